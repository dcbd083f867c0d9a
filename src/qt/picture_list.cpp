// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/picture_list.h"

#include "core/arithmetic.h"
#include "core/fault.h"

namespace kervol {

bool Stroke::operator==(const Stroke& other) const {
    return kind == other.kind && colour == other.colour && Is_Same(x1, other.x1) && Is_Same(y1, other.y1) &&
           Is_Same(x2, other.x2) && Is_Same(y2, other.y2);
}

std::size_t PictureList::StrokeHash::operator()(const Stroke& stroke) const {
    std::size_t hash = static_cast<std::size_t>(stroke.kind);
    const auto mix = [&hash](std::size_t part) { hash = hash * 1099511628211U + part; };
    for (const double value : {stroke.x1, stroke.y1, stroke.x2, stroke.y2}) mix(std::hash<double>()(value));
    for (const unsigned channel : {stroke.colour.red, stroke.colour.green, stroke.colour.blue}) mix(channel);
    return hash;
}

void PictureList::Clear() {
    drawn_.clear();
    last_.clear();
    x_ = y_ = 0;
    Changed();
}

void PictureList::Set_Scale(double left, double top, double right, double bottom) {
    if (Is_Same(left, right) || Is_Same(top, bottom)) Raise(fault::InvalidCall);
    const bool same = Is_Same(left, window_.left) && Is_Same(top, window_.top) &&
                      Is_Same(right, window_.right) && Is_Same(bottom, window_.bottom);
    if (same) return;
    window_ = {left, top, right, bottom};
    Clear();
}

void PictureList::Set_Background(Colour colour) {
    background_ = colour;
    Changed();
}

void PictureList::Line(double x1, double y1, double x2, double y2, Colour colour) {
    Add({Stroke::Kind::Line, x1, y1, x2, y2, colour}, x2, y2);
}

void PictureList::Line_To(double x, double y, Colour colour) {
    Line(x_, y_, x, y, colour);
}

void PictureList::Circle(double x, double y, double radius, Colour colour) {
    Add({Stroke::Kind::Circle, x, y, radius, 0, colour}, x, y);
}

void PictureList::Set_Point(double x, double y, Colour colour) {
    Add({Stroke::Kind::Point, x, y, 0, 0, colour}, x, y);
}

void PictureList::Add(const Stroke& stroke, double x, double y) {
    last_[stroke] = drawn_.size();
    drawn_.push_back(stroke);
    x_ = x;
    y_ = y;
    if (drawn_.size() > 1000 && drawn_.size() > 2 * last_.size()) Drop_Covered();
    Changed();
}

std::vector<Stroke> PictureList::Strokes() const {
    std::vector<Stroke> strokes;
    strokes.reserve(last_.size());
    for (std::size_t i = 0; i < drawn_.size(); ++i)
        if (last_.at(drawn_[i]) == i) strokes.push_back(drawn_[i]);
    return strokes;
}

void PictureList::Drop_Covered() {
    drawn_ = Strokes();
    for (std::size_t i = 0; i < drawn_.size(); ++i) last_[drawn_[i]] = i;
}

}  // namespace kervol
