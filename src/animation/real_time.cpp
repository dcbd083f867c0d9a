// SPDX-License-Identifier: GPL-3.0-or-later
#include "animation/real_time.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "animation/link_shapes.h"
#include "core/arithmetic.h"
#include "core/model_questions.h"

namespace kervol {
namespace {

/// Farther apart, links drawn between two rows would be seen to shrink: at 15 degrees a crank loses 0.9 per
/// cent half way.
constexpr double kSmoothDegrees = 15;
/// What two positions may be off by, as a part of the picture, to count as one.
constexpr double kSamePosition = 1e-3;

/// Seconds that a step takes; 0 where time stands still.
double Step_Seconds(const LinkageModel& model) {
    if (model.CalcMode != 3) return std::abs(double(model.TimeStep));
    if (Is_Zero(model.Omega2Start)) return 0;
    return std::abs(double(model.ThetaStep) / model.Omega2Start);
}

double Turn_Between(const Program& program, std::int16_t from, std::int16_t to) {
    return std::abs(
        std::remainder(double(program.tables.Theta(to, 0)) - program.tables.Theta(from, 0), 360.0));
}

/// Whether all joints stand in the same places at both rows.
bool Same_Position(const Program& program, std::int16_t left, std::int16_t right, double tolerance) {
    if (!program.tables.StepValid(left) || !program.tables.StepValid(right)) return false;
    const auto first = Moving_Joints(program, left), second = Moving_Joints(program, right);
    return std::equal(first.begin(), first.end(), second.begin(), [&](UserPoint a, UserPoint b) {
        return std::hypot(double(a.x) - b.x, double(a.y) - b.y) <= tolerance;
    });
}

/// All rows that assembled, a unit of time apart.
std::vector<TimedRow> Assembled_Rows(const Program& program) {
    std::vector<TimedRow> rows;
    for (std::int16_t row = 0; row <= Last_Step(program.model); ++row) {
        if (!program.tables.StepValid(row)) continue;
        rows.push_back({row, double(row), !rows.empty() && rows.back().row == row - 1});
    }
    return rows;
}

/// Leaves out rows that come too soon, but never the last.
void Thin_Out(std::vector<TimedRow>& rows, double apart) {
    std::vector<TimedRow> kept;
    bool joined = true;  // no row that failed stands behind the one kept last
    for (const TimedRow& row : rows) {
        joined = joined && row.joined;
        // Rows that are just so far apart must not be dropped for a rounding of their times.
        if (!kept.empty() && row.seconds - kept.back().seconds < apart * (1 - 1e-9)) {
            if (&row != &rows.back()) continue;
            if (kept.size() > 1) {
                joined = joined && kept.back().joined;
                kept.pop_back();
            }
        }
        kept.push_back({row.row, row.seconds, joined});
        joined = true;
    }
    rows = std::move(kept);
}

bool Is_Smooth(const Program& program, const std::vector<TimedRow>& rows) {
    for (std::size_t i = 1; i < rows.size(); ++i)
        if (rows[i].joined && Turn_Between(program, rows[i - 1].row, rows[i].row) > kSmoothDegrees)
            return false;
    return true;
}

}  // namespace

bool Start_Standing_Crank(LinkageModel& model) {
    if (model.CalcMode != 3 || !Is_Zero(model.Omega2Start)) return false;
    const double range = std::abs(double(model.ThetaMaxDeg) - model.ThetaMinDeg) * RadiansPerDegree;
    model.Omega2Start = Single(range / StandingCycleSeconds);
    return true;
}

TimedCycle Timed_Cycle(const Program& program, double speed, double apart) {
    TimedCycle cycle;
    cycle.rows = Assembled_Rows(program);
    const std::int16_t last = Last_Step(program.model);
    if (last < 1 || cycle.rows.empty()) return cycle;

    const Extent extent = Motion_Extent(program);
    cycle.closed = last > 1 &&
                   Same_Position(program, 0, last, kSamePosition * std::max(extent.Width(), extent.Height()));
    const double steps = cycle.closed ? last : last + 1;
    const double real = Step_Seconds(program.model) * steps;
    const double wanted = real > 0 ? real / speed : StandingCycleSeconds / speed;
    cycle.seconds = std::max(wanted, ShortestCycleSeconds);
    cycle.speed = real / cycle.seconds;
    for (TimedRow& row : cycle.rows) row.seconds *= cycle.seconds / steps;
    Thin_Out(cycle.rows, apart);
    cycle.smooth = Is_Smooth(program, cycle.rows);
    return cycle;
}

}  // namespace kervol
