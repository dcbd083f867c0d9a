// SPDX-License-Identifier: GPL-3.0-or-later
// Smooth lines, discs and filled outlines on pixels, for picture files that hold pixels.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "core/picture.h"

namespace kervol {

/// Coordinates are pixels, y counts downwards; the centre of the first pixel is at (0.5, 0.5).
struct PixelPoint {
    double x, y;
};

/// What lies outside the canvas is left out.
class RasterCanvas {
  public:
    RasterCanvas(int width, int height, Colour ground);

    int Width() const { return width_; }
    int Height() const { return height_; }
    Colour At(int x, int y) const { return pixels_[Index(x, y)]; }

    /// Through all points, with round ends and corners; back to the first where it is closed.
    void Stroke(std::span<const PixelPoint> points, bool closed, double width, Colour colour);
    /// The inside of an outline, `opacity` of 1 hides what is below.
    void Fill(std::span<const PixelPoint> outline, Colour colour, double opacity);
    void Disc(PixelPoint centre, double radius, Colour colour);
    void Ring(PixelPoint centre, double radius, double width, Colour colour);

  private:
    struct Box {
        double left, top, right, bottom;
    };

    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }
    /// Lays the colour over the pixels of the box; `cover` tells how much of a pixel, by its centre.
    void Paint(const Box& box, Colour colour, const std::function<double(PixelPoint)>& cover);

    int width_, height_;
    std::vector<Colour> pixels_;
};

}  // namespace kervol
