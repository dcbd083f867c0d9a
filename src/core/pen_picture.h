// SPDX-License-Identifier: GPL-3.0-or-later
// What pictures that are made of strokes share: the current point and the world window.
#pragma once

#include "core/arithmetic.h"
#include "core/picture.h"

namespace kervol {

/// The square or oblong part of the world that a picture shows.
struct WorldWindow {
    double left, top, right, bottom;

    bool operator==(const WorldWindow& other) const {
        return Is_Same(left, other.left) && Is_Same(top, other.top) && Is_Same(right, other.right) &&
               Is_Same(bottom, other.bottom);
    }
};

/// Keeps the current point. Each stroke, and the clearing, moves it where `Picture` says.
class PenPicture : public Picture {
  public:
    void Line_To(double x, double y, Colour colour) final { Line(x_, y_, x, y, colour); }

  protected:
    void Move_To(double x, double y) {
        x_ = x;
        y_ = y;
    }
    bool Stands_At(double x, double y) const { return Is_Same(x, x_) && Is_Same(y, y_); }

  private:
    double x_ = 0, y_ = 0;
};

}  // namespace kervol
