// SPDX-License-Identifier: GPL-3.0-or-later
// From the tables' local frame to the picture.
#pragma once

#include "core/program.h"

namespace kervol {

/// A point in the user frame.
struct UserPoint {
    float x = 0, y = 0;
};

/// Turned into the user frame; taken as it is where the ground link is not turned.
UserPoint To_User_Frame(const LinkageModel& model, float x, float y);

/// Tabulated point of a step, user frame.
UserPoint User_Position(const Program& program, std::int16_t step, int point);

/// Fixed pivots, user frame.
UserPoint Pivot_O4(const LinkageModel& model);
UserPoint Pivot_O6(const LinkageModel& model);

/// Draws in user coordinates on a picture whose y axis points down.
class UpwardPen {
  public:
    UpwardPen(Picture& picture, float y0) : picture_(picture), y0_(y0) {}

    void Line(UserPoint from, UserPoint to, Colour colour) {
        picture_.Line(from.x, Down(from.y), to.x, Down(to.y), colour);
    }
    void Line_To(UserPoint to, Colour colour) { picture_.Line_To(to.x, Down(to.y), colour); }
    void Circle(UserPoint centre, float radius, Colour colour) {
        picture_.Circle(centre.x, Down(centre.y), radius, colour);
    }
    void Set_Point(UserPoint point, Colour colour) { picture_.Set_Point(point.x, Down(point.y), colour); }

  private:
    double Down(float y) const { return double(y0_) - y; }

    Picture& picture_;
    float y0_;
};

}  // namespace kervol
