// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/picture.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/arithmetic.h"
#include "core/fault.h"

namespace kervol {

void Check_Scale(double left, double top, double right, double bottom) {
    // Not-a-numbers fail the comparison too.
    const auto fits = [](double bound) { return std::abs(bound) <= std::numeric_limits<float>::max(); };
    const auto bounds = {left, top, right, bottom};
    if (!std::all_of(bounds.begin(), bounds.end(), fits)) Raise(fault::InvalidCall);
    if (Is_Same(left, right) || Is_Same(top, bottom)) Raise(fault::InvalidCall);
}

}  // namespace kervol
