// SPDX-License-Identifier: GPL-3.0-or-later
// What stands on a picture, as a list that can be painted at any size.
#pragma once

#include <cstddef>
#include <functional>
#include <unordered_map>
#include <vector>

#include "core/pen_picture.h"

namespace kervol {

/// Line: both ends. Circle: centre and radius `x2`. Point: itself.
struct Shape {
    enum class Kind { Line, Circle, Point };

    Kind kind;
    double x1, y1, x2, y2;

    bool operator==(const Shape& other) const;
};

struct Stroke {
    Shape shape;
    Colour colour;
};

/// Of several strokes of one shape only the last is kept: it covers the others, so the picture is the same,
/// its smooth edges do not darken, and stepping for hours does not grow the list. A stroke in the colour of
/// the background takes away what stands in its shape, smooth edges and all, and leaves what it crosses.
class PictureList : public PenPicture {
  public:
    void Clear() override;
    /// A changed window clears the picture first: strokes of two windows do not fit each other.
    void Set_Scale(double left, double top, double right, double bottom) override;
    void Set_Background(Colour colour) override;
    void Line(double x1, double y1, double x2, double y2, Colour colour) override;
    void Circle(double x, double y, double radius, Colour colour) override;
    void Set_Point(double x, double y, Colour colour) override;

    /// In the order of drawing.
    std::vector<Stroke> Strokes() const;
    bool Is_Empty() const { return last_.empty(); }
    const WorldWindow& Window() const { return window_; }
    Colour Background() const { return background_; }

    /// Called after each change.
    std::function<void()> changed;

  private:
    struct ShapeHash {
        std::size_t operator()(const Shape& shape) const;
    };
    struct Drawn {
        Stroke stroke;
        bool covered = false;
    };

    void Add(const Shape& shape, Colour colour);
    void Drop_Covered();
    void Changed() const {
        if (changed) changed();
    }

    std::vector<Drawn> drawn_;                                ///< with the covered ones
    std::unordered_map<Shape, std::size_t, ShapeHash> last_;  ///< where in `drawn_` a shape stands last
    WorldWindow window_{0, 0, 1, 1};
    Colour background_{255, 255, 255};
};

}  // namespace kervol
