// SPDX-License-Identifier: GPL-3.0-or-later
// What a sweep cannot go below: all outputs of a row in plain doubles, each library call made once, nothing
// checked, stored one after the other in a flat array.
#pragma once

#include "core/model.h"

namespace kervol::bench {

/// Outputs of a row: 8 angles, 4 speeds and accelerations of links beside the crank's, 6 points with
/// position, velocity and acceleration, 4 ratios.
inline constexpr int kFloorOutputs = 8 + 5 + 5 + 3 * 12 + 4;

/// Solves rows 0 to `rows` - 1 from `theta2` by `step` radians, local frame. `out` has room for
/// `kFloorOutputs` a row.
void Floor_Watt(const LinkageModel& model, double theta2, double step, int rows, double* out);
void Floor_Stephenson(const LinkageModel& model, double theta2, double step, int rows, double* out);

}  // namespace kervol::bench
