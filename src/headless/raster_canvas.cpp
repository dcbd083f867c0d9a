// SPDX-License-Identifier: GPL-3.0-or-later
#include "headless/raster_canvas.h"

#include <algorithm>
#include <cmath>

namespace kervol {
namespace {

/// How much of a pixel lies within a border that is `inside` pixels away from its centre.
double Cover(double inside) {
    return std::clamp(inside + 0.5, 0.0, 1.0);
}

double Distance(PixelPoint point, PixelPoint from, PixelPoint to) {
    const double x = to.x - from.x, y = to.y - from.y;
    const double length = x * x + y * y;
    const double along =
        length > 0 ? std::clamp(((point.x - from.x) * x + (point.y - from.y) * y) / length, 0.0, 1.0) : 0.0;
    return std::hypot(point.x - from.x - along * x, point.y - from.y - along * y);
}

/// Whether a ray from the point crosses the outline an odd number of times.
bool Is_Inside(PixelPoint point, std::span<const PixelPoint> outline) {
    bool inside = false;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const PixelPoint a = outline[i], b = outline[(i + 1) % outline.size()];
        if ((a.y > point.y) == (b.y > point.y)) continue;
        if (point.x < a.x + (point.y - a.y) * (b.x - a.x) / (b.y - a.y)) inside = !inside;
    }
    return inside;
}

std::uint8_t Mixed(std::uint8_t below, std::uint8_t above, double part) {
    return static_cast<std::uint8_t>(std::lround(below + (double(above) - below) * part));
}

/// Whole pixels from `low` to below `high` on an axis of `size`; drawn far outside they are none.
int Pixel(double value, int size) {
    return static_cast<int>(std::clamp(value, 0.0, double(size)));
}

}  // namespace

RasterCanvas::RasterCanvas(int width, int height, Colour ground)
    : width_(width), height_(height), pixels_(Index(0, height), ground) {}

void RasterCanvas::Stroke(std::span<const PixelPoint> points, bool closed, double width, Colour colour) {
    const double half = width / 2;
    const std::size_t sides = points.size() - (closed ? 0 : 1);
    for (std::size_t i = 0; i < sides; ++i) {
        const PixelPoint a = points[i], b = points[(i + 1) % points.size()];
        const Box box = {std::min(a.x, b.x) - half, std::min(a.y, b.y) - half, std::max(a.x, b.x) + half,
                         std::max(a.y, b.y) + half};
        Paint(box, colour, [=](PixelPoint point) { return Cover(half - Distance(point, a, b)); });
    }
}

void RasterCanvas::Fill(std::span<const PixelPoint> outline, Colour colour, double opacity) {
    Box box = {double(width_), double(height_), 0, 0};
    for (const PixelPoint point : outline)
        box = {std::min(box.left, point.x), std::min(box.top, point.y), std::max(box.right, point.x),
               std::max(box.bottom, point.y)};
    Paint(box, colour, [=](PixelPoint point) { return Is_Inside(point, outline) ? opacity : 0.0; });
}

void RasterCanvas::Disc(PixelPoint centre, double radius, Colour colour) {
    Paint(
        {centre.x - radius, centre.y - radius, centre.x + radius, centre.y + radius}, colour,
        [=](PixelPoint point) { return Cover(radius - std::hypot(point.x - centre.x, point.y - centre.y)); });
}

void RasterCanvas::Ring(PixelPoint centre, double radius, double width, Colour colour) {
    const double outer = radius + width / 2;
    Paint({centre.x - outer, centre.y - outer, centre.x + outer, centre.y + outer}, colour,
          [=](PixelPoint point) {
              return Cover(width / 2 - std::abs(std::hypot(point.x - centre.x, point.y - centre.y) - radius));
          });
}

void RasterCanvas::Paint(const Box& box, Colour colour, const std::function<double(PixelPoint)>& cover) {
    for (int y = Pixel(box.top - 1, height_); y < Pixel(box.bottom + 2, height_); ++y) {
        for (int x = Pixel(box.left - 1, width_); x < Pixel(box.right + 2, width_); ++x) {
            const double part = cover({x + 0.5, y + 0.5});
            if (part <= 0) continue;
            Colour& pixel = pixels_[Index(x, y)];
            pixel = {Mixed(pixel.red, colour.red, part), Mixed(pixel.green, colour.green, part),
                     Mixed(pixel.blue, colour.blue, part)};
        }
    }
}

}  // namespace kervol
