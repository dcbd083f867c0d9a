// SPDX-License-Identifier: GPL-3.0-or-later
// Mass properties and loads of the links.
#pragma once

#include "core/model.h"

namespace kervol {

/// Link data of a new model: all arrays zero, then masses, inertias and centres of gravity that suit its
/// geometry. The centre of gravity of a link is its middle, of the coupler it is coupler point 1.
void Default_Mass_Properties(LinkageModel& model);

/// Direction of a link's centre of gravity from its line of centres, held in radians, as a person gives and
/// sees it: in degrees.
double CG_Angle_Degrees(const LinkageModel& model, int link);
void Set_CG_Angle(LinkageModel& model, int link, double degrees);

/// Writes `ForceX` and `ForceY` of a link from `ForceMag` and `ForceAngle`. Deliberate: the angle,
/// given in the user frame, is taken in the local one as it is.
void Resolve_External_Force(LinkageModel& model, int link);
/// Those of links 3 to 6.
void Resolve_External_Forces(LinkageModel& model);

}  // namespace kervol
