// SPDX-License-Identifier: GPL-3.0-or-later
// Geometry that follows from what was entered.
#pragma once

#include <string>

#include "core/model.h"

namespace kervol {

/// Writes the radian value and the plain text of an angle in degrees.
void Set_Angle(float degrees, float& radians, std::string& text);

/// Writes `O4O6X` to `O2O6Angle` and `LinkTable` from the stored fields. Runs after every change of geometry.
void Derive_Geometry(LinkageModel& model);

}  // namespace kervol
