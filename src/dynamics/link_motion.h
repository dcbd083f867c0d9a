// SPDX-License-Identifier: GPL-3.0-or-later
// The moving links at one step, as the force equations need them: angles and rates from the tables, motion of
// the centres of gravity.
#pragma once

#include <cmath>

#include "core/arithmetic.h"
#include "core/model.h"
#include "core/result_tables.h"
#include "kinematics/fourbar.h"

namespace kervol {

/// Row of a link's centre of gravity among the points of the tables, 6 to 10 for links 2 to 6.
constexpr int CG_Point(int link) {
    return link + 4;
}

/// Sine and cosine of an angle, local frame.
struct Direction {
    Direction() = default;
    explicit Direction(double angle) : sin(std::sin(angle)), cos(std::cos(angle)) {}

    double sin = 0.0, cos = 0.0;
};

/// Rounded to single precision, x first; fault 6 beyond its range.
inline Vec Single_Vec(double x, double y) {
    const float first = Single(x);
    return {first, Single(y)};
}

/// One link. Angles in radians, local frame, as singles.
struct MovingLink {
    float theta = 0;
    float omega = 0;
    float omega_squared = 0;
    float alpha = 0;
    Direction line;                ///< of theta
    float sin_cg = 0, cos_cg = 0;  ///< of the line from the pivot to the centre of gravity
    float cg_distance = 0;         ///< length of that line

    /// Motion of the centre of gravity about a pivot that stands still, unrounded.
    Vec CG_Velocity() const;
    Vec CG_Acceleration() const;
    /// From the pivot to the centre of gravity, unrounded.
    Vec CG_Arm() const { return {double(cg_distance) * cos_cg, double(cg_distance) * sin_cg}; }
};

struct LinkMotion {
    Table<MovingLink, NumLinks + 1> link;  ///< by link number, 2 to 6
    Direction stage2_input;                ///< column 3 of `Theta`: O4-D (Watt), A-C (Stephenson)
};

/// Reads row `step` of `Theta`, `Omega` and `Alpha`. A row that did not assemble is taken as it stands.
LinkMotion Motion_Of_Links(const LinkageModel& model, const ResultTables& tables, int step);

/// Writes points 6 to 10 of row `step`, the centres of gravity of links 2 to 6. Link 3 takes the motion of A
/// from point 0 along. Deliberate: link 5 does not take that of its pin, it turns as if the pin stood still.
void Put_CG_Velocities(const LinkMotion& motion, ResultTables& tables, int step);
void Put_CG_Accelerations(const LinkMotion& motion, ResultTables& tables, int step);

}  // namespace kervol
