// SPDX-License-Identifier: GPL-3.0-or-later
// From the user frame to the pixels of a picture that fits the motion, and the look that such pictures share.
#pragma once

#include <array>

#include "animation/link_shapes.h"
#include "core/picture.h"

namespace kervol {

/// Colours that can be told apart on white, on black and by people who see few, by link number; 0 and 1 are
/// the ground's.
inline constexpr std::array<Colour, NumLinks + 1> LinkColours = {{
    {110, 116, 125},
    {110, 116, 125},
    {213, 62, 45},
    {38, 122, 204},
    {26, 148, 92},
    {137, 90, 205},
    {201, 122, 0},
}};

/// Of the paths of coupler points 1 and 2.
inline constexpr std::array<Colour, 2> PathColours = {{{0, 144, 158}, {196, 48, 130}}};

/// Measures of the look in pixels, for a picture of 600.
struct Look {
    double stroke, path, pin, pivot;

    static Look Of_Size(int size) { return {size / 200.0, size / 400.0, size / 130.0, size / 40.0}; }
};

class FittedView {
  public:
    /// The longer side of the picture has `size` pixels.
    FittedView(const Extent& extent, int size);

    double X(double x) const { return (x - left_) * scale_; }
    /// Pixels count downwards.
    double Y(double y) const { return (top_ - y) * scale_; }
    double Length(double length) const { return length * scale_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    const Look& look() const { return look_; }

  private:
    Look look_;
    double scale_, left_, top_;
    int width_, height_;
};

}  // namespace kervol
