// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/picture_list.h"

#include "core/arithmetic.h"

namespace kervol {

bool Shape::operator==(const Shape& other) const {
    return kind == other.kind && Is_Same(x1, other.x1) && Is_Same(y1, other.y1) && Is_Same(x2, other.x2) &&
           Is_Same(y2, other.y2);
}

std::size_t PictureList::ShapeHash::operator()(const Shape& shape) const {
    std::size_t hash = static_cast<std::size_t>(shape.kind);
    for (const double value : {shape.x1, shape.y1, shape.x2, shape.y2})
        hash = hash * 1099511628211U + std::hash<double>()(value);
    return hash;
}

void PictureList::Clear() {
    drawn_.clear();
    last_.clear();
    Move_To(0, 0);
    Changed();
}

void PictureList::Set_Scale(double left, double top, double right, double bottom) {
    Check_Scale(left, top, right, bottom);
    const WorldWindow window = {left, top, right, bottom};
    if (window == window_) return;
    window_ = window;
    Clear();
}

void PictureList::Set_Background(Colour colour) {
    background_ = colour;
    Changed();
}

void PictureList::Line(double x1, double y1, double x2, double y2, Colour colour) {
    Move_To(x2, y2);
    Add({Shape::Kind::Line, x1, y1, x2, y2}, colour);
}

void PictureList::Circle(double x, double y, double radius, Colour colour) {
    Move_To(x, y);
    Add({Shape::Kind::Circle, x, y, radius, 0}, colour);
}

void PictureList::Set_Point(double x, double y, Colour colour) {
    Move_To(x, y);
    Add({Shape::Kind::Point, x, y, 0, 0}, colour);
}

void PictureList::Add(const Shape& shape, Colour colour) {
    const auto [place, is_new] = last_.try_emplace(shape, drawn_.size());
    if (!is_new) drawn_[place->second].covered = true;
    if (colour == background_) {
        last_.erase(place);
    } else {
        place->second = drawn_.size();
        drawn_.push_back({{shape, colour}});
    }
    if (drawn_.size() > 1000 && drawn_.size() > 2 * last_.size()) Drop_Covered();
    Changed();
}

std::vector<Stroke> PictureList::Strokes() const {
    std::vector<Stroke> strokes;
    strokes.reserve(last_.size());
    for (const Drawn& drawn : drawn_)
        if (!drawn.covered) strokes.push_back(drawn.stroke);
    return strokes;
}

void PictureList::Drop_Covered() {
    std::erase_if(drawn_, [](const Drawn& drawn) { return drawn.covered; });
    for (std::size_t i = 0; i < drawn_.size(); ++i) last_[drawn_[i].stroke.shape] = i;
}

}  // namespace kervol
