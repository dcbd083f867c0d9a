// SPDX-License-Identifier: GPL-3.0-or-later
// Forces of one step by cutting the linkage into pairs of links: links 5 and 6, then 3 and 4, then the crank.
// In double precision and apart from the fifteen equations that fill the tables. Local frame; moments are
// counter-clockwise positive.
#pragma once

#include <optional>

#include "core/model.h"
#include "selfcheck/row_motion.h"
#include "selfcheck/rules.h"

namespace kervol {

/// On a link beside its joints.
struct LinkLoad {
    Vec external, friction;      ///< forces
    double external_moment = 0;  ///< of both forces about the centre of gravity
    double torque = 0;           ///< external torque
    Vec inertia;                 ///< mass by acceleration of the centre of gravity
    double inertia_torque = 0;   ///< moment of inertia by angular acceleration

    /// What the joints must give.
    Vec Needed_Force() const { return inertia - external - friction; }
    double Needed_Moment() const { return inertia_torque - torque - external_moment; }
};
using RowLoads = Table<LinkLoad, NumLinks + 1>;

/// Named as in the tables: a force ab acts as it is on link b and reversed on link a; F54 on link 4 (Watt) or
/// 3 (Stephenson), F65 on link 5.
struct JointForces {
    Vec F12, F32, F43, F14, F54, F65, F16;
    double T12 = 0;
};

/// `torque6` is the external torque on link 6 at the step. Loads of the model as the last solution resolved
/// them.
RowLoads Loads_Of_Row(const LinkageModel& model, const LinkAngles& theta, const RowMotion& motion,
                      double torque6, Rules rules);

/// Nothing at a dead centre, where the forces are not determined.
std::optional<JointForces> Solve_Joints(const LinkageModel& model, const LinkAngles& theta,
                                        const RowMotion& motion, const RowLoads& loads, Rules rules);

/// What given joint forces leave open: those on links 2 to 6 by link number, moments about the centres of
/// gravity; 0 is the whole linkage, moments about O2. All 0 in equilibrium.
struct Imbalance {
    Table<Vec, NumLinks + 1> force;
    Table<double, NumLinks + 1> moment;
};
Imbalance Imbalance_Of(const LinkageModel& model, const LinkAngles& theta, const RowMotion& motion,
                       const RowLoads& loads, const JointForces& joints, Rules rules);

/// Powers at one step.
struct RowPower {
    double kinetic = 0;  ///< rate of the kinetic energy
    double loads = 0;    ///< of external forces, friction and torques
    double gross = 0;    ///< sizes of all that was added up
};
/// Of the loads on links that move with these speeds. With those of a crank speed of 1 rad/s and the true
/// accelerations the difference kinetic - loads is the driving torque that the work done asks for.
RowPower Power_Of(const RowMotion& speeds, const RowLoads& loads);

}  // namespace kervol
