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

/// Link 1 and the ground angle, in degrees and radians, from O4.
void Derive_Ground_Link(LinkageModel& model);

/// The pivots in the local frame, from the user frame and the ground angle.
void Derive_Local_O4(LinkageModel& model);
void Derive_Local_O6(LinkageModel& model);

/// `O6O4AngleDeg` and its radians.
void Derive_Direction_O6_O4(LinkageModel& model);

/// Writes `O4O6X` to `O2O6Angle` and `LinkTable` from the stored fields. Runs after every change of geometry.
void Derive_Geometry(LinkageModel& model);

/// The same for the program's model, with a fault reported under its own name; the caller goes on.
void Derive_Geometry(Program& program);

}  // namespace kervol
