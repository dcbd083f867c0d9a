// SPDX-License-Identifier: GPL-3.0-or-later
// The surface that the program draws on, in world units of its own.
#pragma once

#include <cstdint>

namespace kervol {

struct Colour {
    std::uint8_t red, green, blue;

    bool operator==(const Colour&) const = default;
};

/// Fault 5 for a world window that no picture takes: without an extent, or with a bound beyond single
/// precision.
void Check_Scale(double left, double top, double right, double bottom);

class Picture {
  public:
    virtual ~Picture() = default;

    virtual void Clear() = 0;
    /// The world window: left and top, then right and bottom. Fault 5, and the window as it was, for one that
    /// `Check_Scale` refuses.
    virtual void Set_Scale(double left, double top, double right, double bottom) = 0;
    virtual void Set_Background(Colour colour) = 0;

    virtual void Line(double x1, double y1, double x2, double y2, Colour colour) = 0;
    /// From the current point, which every drawing leaves at its end, a circle at its centre.
    virtual void Line_To(double x, double y, Colour colour) = 0;
    virtual void Circle(double x, double y, double radius, Colour colour) = 0;
    virtual void Set_Point(double x, double y, Colour colour) = 0;
};

}  // namespace kervol
