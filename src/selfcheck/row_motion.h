// SPDX-License-Identifier: GPL-3.0-or-later
// Motion of all links and points at one step, by differentiating the closed loops at given link angles. In
// double precision and apart from the formulas that fill the tables. Local frame throughout.
#pragma once

#include <optional>

#include "core/constants.h"
#include "core/model.h"
#include "core/table.h"
#include "kinematics/fourbar.h"
#include "selfcheck/rules.h"

namespace kervol {

inline Vec operator-(Vec left, Vec right) {
    return {left.x - right.x, left.y - right.y};
}
inline Vec operator*(double factor, Vec vector) {
    return {factor * vector.x, factor * vector.y};
}
inline double Cross(Vec left, Vec right) {
    return left.x * right.y - left.y * right.x;
}
inline double Dot(Vec left, Vec right) {
    return left.x * right.x + left.y * right.y;
}

/// Angles of links 2 to 6 by link number, radians.
using LinkAngles = Table<double, NumLinks + 1>;

/// Speed in rad/s and acceleration in rad/s^2.
struct Rates {
    double omega = 0, alpha = 0;
};

/// a11 x + a12 y = b1, a21 x + a22 y = b2. Nothing where there is no single solution.
std::optional<Vec> Solve_Pair(double a11, double a12, double b1, double a21, double a22, double b2);

struct RowMotion {
    Table<Rates, NumLinks + 1> link;      ///< by link number, 2 to 6
    Table<PointMotion, 6> point;          ///< points 0 to 5 of the tables
    Table<PointMotion, NumLinks + 1> cg;  ///< by link number, 2 to 6
    /// Where Stage 1 (0) and Stage 2 (1) fail to close: the end reached over the coupler less that on the
    /// output link.
    Table<Vec, 2> gap;
};

/// Pivots O4 and O6 as the stages use them.
Vec Local_O4(const LinkageModel& model);
Vec Local_O6(const LinkageModel& model);

/// Without a Stage 2 links 5 and 6 stand still at 0. Nothing at a dead centre, where the loops leave the
/// speeds open.
std::optional<RowMotion> Motion_Of_Row(const LinkageModel& model, const LinkAngles& theta, Rates crank,
                                       Rules rules);

}  // namespace kervol
