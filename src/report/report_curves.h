// SPDX-License-Identifier: GPL-3.0-or-later
// What a report plots: groups of curves over the sweep, their charts and their extremes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/program.h"
#include "report/line_chart.h"

namespace kervol {

/// Titles of the groups that a report looks at twice.
inline constexpr const char* TransmissionAngles = "Transmission angles";
inline constexpr const char* DrivingTorque = "Driving torque";
inline constexpr const char* ShakingForce = "Shaking force";

struct CurveGroup {
    std::string title;
    std::string unit;
    std::vector<Curve> curves;  ///< a value for each step that assembled
    bool turns = false;         ///< directions in degrees
};

/// Angles, speeds, accelerations, transmission angles and coupler points; with the dynamics the driving
/// torque and the forces; with the flywheel its torque. Stage 2 only where the chain has one.
std::vector<CurveGroup> Motion_Curves(const Program& program);
/// Nothing without the dynamics. Steps from `solved_steps` on have no forces.
std::vector<CurveGroup> Force_Curves(const Program& program, int solved_steps);

/// Crank angle without its jumps, in drives over time the time.
struct Abscissae {
    std::string label;
    bool is_angle;
    std::vector<double> values;
};
Abscissae Sweep_Abscissae(const Program& program);

/// A figure with a chart of lines for each group, as markup.
std::string Group_Charts(const std::vector<CurveGroup>& groups, const Abscissae& abscissae);

struct Extremes {
    double low, high;
    int low_step, high_step;  ///< the first where it occurs
};
/// Nothing for a curve without a value.
std::optional<Extremes> Extremes_Of(const Curve& curve);

}  // namespace kervol
