// SPDX-License-Identifier: GPL-3.0-or-later
// The model and its result tables as one JSON object.
#pragma once

#include <string>

#include "core/program.h"
#include "headless/recording_port.h"

namespace kervol {

std::string Tables_Json(const Program& program, const RecordingPort& port);

}  // namespace kervol
