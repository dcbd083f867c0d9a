// SPDX-License-Identifier: GPL-3.0-or-later
#include "rendering/chart_extent.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kervol {
namespace {

constexpr double kMargin = 0.05;       // of the extent, on either side
constexpr double kPointMargin = 0.01;  // the same along the points
/// Values that differ by less only differ by their rounding.
constexpr double kFlat = 2e-6;

struct Extent {
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    void Take(double value) {
        if (!std::isfinite(value)) return;
        low = std::min(low, value);
        high = std::max(high, value);
    }
    /// With a margin; about one value, or none, a range that can be drawn.
    void Widen(double share) {
        if (low > high) low = high = 0;
        const double size = std::max(std::abs(low), std::abs(high));
        const double room = high - low > kFlat * size ? share * (high - low) : (size > 0 ? 0.1 * size : 1.0);
        low -= room;
        high += room;
    }
};

}  // namespace

bool Has_Fills(const ChartLook& look) {
    return look.GraphStyle == 4 || look.GraphStyle == 6;
}

PlaneView Whole_View(const ChartLook& look) {
    Extent x, y;
    if (!look.polar && Has_Fills(look)) y.Take(0);
    for (const ChartSet& set : look.sets) {
        if (!set.filled) continue;
        for (const float value : set.GraphData) y.Take(double(value));
        if (look.polar)
            for (const float value : set.XPosData) x.Take(double(value));
    }
    y.Widen(kMargin);
    if (look.polar) {
        x.Widen(kMargin);
        return {x.low, x.high, y.low, y.high};
    }
    const double last = double(look.LabelText.size()) - 1;
    const double margin = last > 0 ? kPointMargin * last : 0.5;
    return {-margin, last + margin, y.low, y.high};
}

}  // namespace kervol
