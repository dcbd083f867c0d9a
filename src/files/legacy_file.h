// SPDX-License-Identifier: GPL-3.0-or-later
// Input files of the older, character-mode program (.ikv), read only.
#pragma once

#include "core/program.h"
#include "files/read_report.h"
#include "files/value_reader.h"

namespace kervol {

/// Reads the lines behind the second one into the model, again and again while the file lasts. Angles stand
/// in radians there. Fields that the format does not have keep their values.
ReadEnd Read_Oldfile_6(Program& program, ValueReader& file);

}  // namespace kervol
