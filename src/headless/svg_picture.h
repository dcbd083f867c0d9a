// SPDX-License-Identifier: GPL-3.0-or-later
// A picture that writes what was drawn as the text of an SVG file, the same bytes for the same drawing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/pen_picture.h"

namespace kervol {

/// The file's view box is the square of its pixels, onto which the world window is mapped: its numbers keep
/// the same precision whatever the model's unit of length. What was drawn twice stands once, where it was
/// drawn last: painted over itself it would only get harder edges.
class SvgPicture : public PenPicture {
  public:
    /// Side in pixels, which is also the world window until a scale is set.
    explicit SvgPicture(int side = 600);

    void Clear() override;
    /// A window other than the one before clears what was drawn in that.
    void Set_Scale(double left, double top, double right, double bottom) override;
    void Set_Background(Colour colour) override;
    void Line(double x1, double y1, double x2, double y2, Colour colour) override;
    /// In a window that is not square the radius counts along x.
    void Circle(double x, double y, double radius, Colour colour) override;
    /// A dot about as large as lines are wide.
    void Set_Point(double x, double y, Colour colour) override;

    /// The whole file.
    std::string Text() const;

  private:
    std::vector<std::string_view> Visible_Elements() const;
    void Put_Circle(double x, double y, double pixels, const char* paint, Colour colour);
    std::string Across(double x) const;
    std::string Down(double y) const;
    std::string Position(double x, double y) const;
    /// Ends the path too.
    void Move_Pen(double x, double y);

    int side_;
    WorldWindow window_;
    Colour background_;
    std::vector<std::string> elements_;
    bool path_open_ = false;  ///< the last element is a path that ends at the current point
    Colour path_colour_{};
};

}  // namespace kervol
