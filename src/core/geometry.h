// SPDX-License-Identifier: GPL-3.0-or-later
// Geometry that follows from what was entered.
#pragma once

#include <string>

#include "core/model.h"

namespace kervol {

struct Program;

/// Writes the radian value and the plain text of an angle in degrees.
void Set_Angle(float degrees, float& radians, std::string& text);

/// `Set_Angle` for the three offset angles.
void Set_Offset_Angles(LinkageModel& model);

/// `Set_Angle` for the angle range of mode 3.
void Set_Range_Angles(LinkageModel& model);

/// Writes `O4O6X` to `O2O6Angle` and `LinkTable` from the stored fields. Runs after every change of geometry.
void Derive_Geometry(LinkageModel& model);

/// The same for the program's model, with a fault reported under its own name; the caller goes on.
void Derive_Geometry(Program& program);

}  // namespace kervol
