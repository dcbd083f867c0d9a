// SPDX-License-Identifier: GPL-3.0-or-later
// What must hold whatever the input is.
#pragma once

#include <string_view>

#include "core/program.h"

namespace kervol {

/// Ends the run as a finding, with this line of what was broken, unless it holds.
void Demand(bool holds, std::string_view what, std::string_view where);

/// Every number of the program is finite.
void Demand_Finite(const Program& program, std::string_view where);
void Demand_Finite(const LinkageModel& model, std::string_view where);

}  // namespace kervol
