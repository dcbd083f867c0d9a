// SPDX-License-Identifier: GPL-3.0-or-later
// The sums for processors with vectors of four doubles; this file alone is compiled for them. Not for fused
// multiply-adds, which would round otherwise.
#include "fourier/lanes.h"

namespace kervol {

void Sum_Four(const HarmonicSums& sums) {
    LaneSums<4>::Sum(sums);
}

}  // namespace kervol
