// SPDX-License-Identifier: GPL-3.0-or-later
// One position of the linkage as lines and circles.
#pragma once

#include <cstdint>

#include "core/program.h"

namespace kervol {

/// Draws row `step` in `LinkColour`: bars, pins, marked coupler points, the arm of a cam drive and, with
/// calculated dynamics, the centres of gravity. Of `links` 6 the whole linkage, of 4 Stage 1 alone.
void Drawsub6(Program& program, std::int16_t step, Picture& picture, int links);

}  // namespace kervol
