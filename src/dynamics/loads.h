// SPDX-License-Identifier: GPL-3.0-or-later
// What acts on the links at one step beside the joint forces: inertia, external loads, friction.
#pragma once

#include "core/model.h"
#include "core/result_tables.h"
#include "dynamics/link_motion.h"

namespace kervol {

/// All values are rounded to single precision; moments are about the centre of gravity, counter-clockwise
/// positive. What a link does not have is 0: link 2 external loads, links 2, 4 and 6 friction.
struct LinkLoads {
    Vec inertia_force;          ///< mass by acceleration of the centre of gravity
    float inertia_torque = 0;   ///< moment of inertia by angular acceleration
    Vec external_force;         ///< constant in size and direction
    float external_torque = 0;  ///< `LinkTorque`
    Vec friction_force;         ///< against the velocity of the coupler point
    float moment = 0;           ///< of the external and the friction force
};

/// By link number, 2 to 6.
using StepLoads = Table<LinkLoads, NumLinks + 1>;

/// Loads at row `step`, of which `PointVel` and `PointAcc` must be complete.
///
/// Deliberate: the arm of friction is as long as `CouplerAC` on both couplers and lies along the friction
/// force, so that friction gives no moment but a rounding.
StepLoads Loads_Of_Step(const LinkageModel& model, const ResultTables& tables, const LinkMotion& motion,
                        int step);

}  // namespace kervol
