// SPDX-License-Identifier: GPL-3.0-or-later
// When each row of the tables is reached, for animations that run by themselves.
#pragma once

#include <cstdint>
#include <vector>

#include "core/program.h"

namespace kervol {

/// A cycle of a standing crank, which has no time of its own, takes this long.
inline constexpr double StandingCycleSeconds = 4;
/// No cycle is shown faster than this: it would be a blur.
inline constexpr double ShortestCycleSeconds = 0.5;

struct TimedRow {
    std::int16_t row;
    double seconds;  ///< from the start of the cycle
    bool joined;     ///< no row between this and the one before it failed
};

/// One cycle; the next begins where it ends.
struct TimedCycle {
    std::vector<TimedRow> rows;  ///< those that assembled, without the ones that come too soon to be seen
    double seconds = 0;          ///< of the cycle; 0 for a single position
    double speed = 0;            ///< by which real time is multiplied; 0 where there is no real time
    bool closed = false;         ///< the last row is the first position again
    bool smooth = false;         ///< positions between joined rows may be drawn in between
};

/// Gives a crank that is to turn through a range of angles at no speed one that takes it through the range in
/// `StandingCycleSeconds`. To be done before the sweep, whose rows else all show the same position.
bool Start_Standing_Crank(LinkageModel& model);

/// The rows at their times: by crank speed in angle steps, by the time step else, divided by `speed`. Rows
/// less than `apart` seconds behind the one before them are left out.
TimedCycle Timed_Cycle(const Program& program, double speed, double apart);

}  // namespace kervol
