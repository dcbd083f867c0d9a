// SPDX-License-Identifier: GPL-3.0-or-later
// The run of the animation: the linkage moves through its rows.
#pragma once

#include "animation/stepping.h"

namespace kervol {

/// Draws one row, holds it for `AnimWait` times `AnimDelay` / 4096 milliseconds, and draws it again in the
/// colour of the background, or, where a trace is left, in its own. True, with nothing drawn, where coupler
/// point 1 stands exactly at the origin: the row has no position.
bool Drawone(Program& program, std::int16_t step, Picture& picture);

/// Runs through all rows that assembled, `AnimCycles` times. Each cycle begins with a clear picture and
/// leaves its last position standing. A row without a position ends its cycle. Once the person wants the run
/// to end, the next position is left standing and the cycle closed. Hides the value of the step.
void Animate(Program& program, LinkageView& view, const AnimationSettings& settings);

}  // namespace kervol
