// SPDX-License-Identifier: GPL-3.0-or-later
#include "animation/fitted_view.h"

#include <algorithm>
#include <cmath>

namespace kervol {
namespace {

/// Room around the motion, as a part of the longer side: the signs of the pivots stand there.
constexpr double kMargin = 0.07;
/// A flat motion still gets a picture of this shape.
constexpr double kFlattest = 0.4;

}  // namespace

FittedView::FittedView(const Extent& extent, int size) : look_(Look::Of_Size(size)) {
    const double longer = std::max(extent.Width(), extent.Height());
    const double room = longer > 0 ? longer : 1;
    const double width = std::max(extent.Width(), kFlattest * room) + 2 * kMargin * room;
    const double height = std::max(extent.Height(), kFlattest * room) + 2 * kMargin * room;
    scale_ = size / std::max(width, height);
    left_ = (extent.left + extent.right - width) / 2;
    top_ = (extent.top + extent.bottom + height) / 2;
    width_ = static_cast<int>(std::lround(width * scale_));
    height_ = static_cast<int>(std::lround(height * scale_));
}

}  // namespace kervol
