// SPDX-License-Identifier: GPL-3.0-or-later
// Stage 1: the four-bar loop O2, A, B, O4 at one crank position.
#pragma once

#include <optional>

#include "core/arithmetic.h"
#include "core/model.h"
#include "kinematics/fourbar.h"

namespace kervol {

/// One solved position. Angles in radians, all in the local frame, double precision.
struct Stage1 {
    double theta3, theta4;
    double omega3, omega4;
    double alpha3, alpha4;
    PointMotion A, B, C;
};

/// Unlike in Stage 2, a leading coefficient of exactly 0 counts as a position that cannot be assembled.
inline bool Can_Be_Solved(const HalfTangentEquation& equation) {
    return !Is_Zero(equation.P) && equation.discriminant >= 0;
}

/// Solves Stage 1 for the crank state `Theta2Rad`, `Omega2`, `Alpha2`, in the assembly of `OpenSign1`.
/// Nothing where the loop cannot be closed or stands at a toggle position.
std::optional<Stage1> Solve_Stage1(const LinkageModel& model);

}  // namespace kervol
