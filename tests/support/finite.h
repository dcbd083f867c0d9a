// SPDX-License-Identifier: GPL-3.0-or-later
// Every number that a program holds is a number.
#pragma once

#include <string>
#include <vector>

#include "core/program.h"

namespace kervol {

/// Names of the model's fields that hold an infinity or a not-a-number.
std::vector<std::string> Not_Finite(const LinkageModel& model);
/// The same of the tables, the drawing and the plots too.
std::vector<std::string> Not_Finite(const Program& program);

}  // namespace kervol
