// SPDX-License-Identifier: GPL-3.0-or-later
// The sums for every processor.
#include "fourier/lanes.h"

namespace kervol {

void Sum_Two(const HarmonicSums& sums) {
    LaneSums<2>::Sum(sums);
}

}  // namespace kervol
