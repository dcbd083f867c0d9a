// SPDX-License-Identifier: GPL-3.0-or-later
// Stage 2: the second loop, driven by a line that Stage 1 carries.
#pragma once

#include <optional>

#include "core/model.h"
#include "kinematics/fourbar.h"
#include "kinematics/stage1.h"

namespace kervol {

/// One solved position. Angles in radians, double precision.
struct Stage2 {
    double column3;               ///< the line tabulated in `Theta` column 3, local frame
    double theta5, theta6;        ///< local frame
    double relative5, relative6;  ///< from the Stage 2 ground link
    double omega5, omega6;
    double alpha5, alpha6;
    PointMotion start;     ///< start of link 5: D (Watt), C (Stephenson)
    PointMotion end;       ///< end of link 5: E (Watt), D (Stephenson)
    PointMotion coupler2;  ///< coupler point 2
};

/// The input line of each chain, local frame: O4-D for the angle of link 4, O2-C for the position of C.
Line Watt_Input(const LinkageModel& model, double theta4);
Line Stephenson_Input(Vec C);

/// Links 5 and 6 of a Stephenson chain as the equations of its rates have them.
struct StephensonRates {
    /// Faults where link 5 lies along the x axis.
    StephensonRates(const Arm& link5, const Arm& link6);

    /// Angular velocities of links 5 and 6 for the velocity of C.
    ///
    /// Deliberate: the signs differ from those of the accelerations, so that Stage 2 speeds are not the
    /// derivative of the positions. Tables, dynamics and exports of this chain carry these values.
    CouplerOutput Speeds(Vec VC) const;
    /// Angular accelerations for the acceleration of C.
    CouplerOutput Accelerations(Vec AC, const CouplerOutput& omega) const;
    /// What the angular acceleration of link 6 is divided by.
    double Divisor() const { return rq_by_p + s; }

    double p, q, r, s;
    double rq_by_p;
};

/// Watt: input line O4-D on link 4, ground link O4-O6. Nothing where the loop cannot be closed.
std::optional<Stage2> Solve_Watt(const LinkageModel& model, const Stage1& stage1);

/// Stephenson: input line O2-C, whose length changes with the step, ground link O2-O6. Nothing where the loop
/// cannot be closed.
std::optional<Stage2> Solve_Stephenson(const LinkageModel& model, const Stage1& stage1);

}  // namespace kervol
