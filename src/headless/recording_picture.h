// SPDX-License-Identifier: GPL-3.0-or-later
// A picture that keeps what was drawn as a list.
#pragma once

#include <vector>

#include "core/pen_picture.h"

namespace kervol {

struct Drawn {
    enum class Kind { Clear, Scale, Background, Line, Circle, Point };

    Kind kind;
    /// Line: both ends. Circle: centre and radius. Point: itself. Scale: left, top, right, bottom.
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Colour colour{};

    bool operator==(const Drawn&) const = default;
};

class RecordingPicture : public PenPicture {
  public:
    void Clear() override;
    void Set_Scale(double left, double top, double right, double bottom) override;
    void Set_Background(Colour colour) override;
    void Line(double x1, double y1, double x2, double y2, Colour colour) override;
    void Circle(double x, double y, double radius, Colour colour) override;
    void Set_Point(double x, double y, Colour colour) override;

    std::vector<Drawn> drawn;
};

}  // namespace kervol
