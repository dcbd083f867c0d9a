// SPDX-License-Identifier: GPL-3.0-or-later
// Unit systems: labels and nothing more. No number is ever converted.
#pragma once

#include <cstdint>
#include <string>

#include "core/model.h"

namespace kervol {

/// Builds the 18 unit texts of a system, 1 to 5, and copies entries 1 to `count`. For any other system the
/// length, force, mass and inertia texts are empty.
void Put_Units(std::int16_t system, Table<std::string, 19>& table, std::int16_t count);

/// The same for the model's own system and table, up to the entry behind `UnitCount`.
void Put_Units(LinkageModel& model);

}  // namespace kervol
