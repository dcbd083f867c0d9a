// SPDX-License-Identifier: GPL-3.0-or-later
// The torque file (.trq), which carries the crank torque of one linkage to link 6 of another.
#pragma once

#include "core/program.h"
#include "files/output_file.h"
#include "files/read_report.h"
#include "files/value_reader.h"

namespace kervol {

/// Reads a torque for each step into `Torque21Imported`. A file whose count is not `NumSteps` is refused with
/// a box; its rows are not counted. A fault leaves the rows read until then.
ReadEnd Import_Torque_Data(Program& program, ValueReader& file);

/// Writes count and crank torque of each step, one number a line. False after a fault; the file then stays as
/// far as it was written.
bool Export_Torque_Data(Program& program, OutputFile& file);

}  // namespace kervol
