// SPDX-License-Identifier: GPL-3.0-or-later
// The header of screens and printed pages.
#pragma once

#include <string>

#include "core/model.h"

namespace kervol {

/// User, design number, date, time and, once there is a file, its name; one a line.
std::string Put_Header(const LinkageModel& model);

}  // namespace kervol
