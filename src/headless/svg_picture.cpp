// SPDX-License-Identifier: GPL-3.0-or-later
#include "headless/svg_picture.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <unordered_set>

#include "core/markup_text.h"

namespace kervol {
namespace {

constexpr double kPenWidth = 1.5;   // pixels
constexpr double kDotRadius = 1.2;  // pixels
constexpr Colour kWhite = {255, 255, 255};

/// What ends an element; a path takes more points in front of it.
constexpr std::string_view kEnd = "\"/>\n";

}  // namespace

SvgPicture::SvgPicture(int side)
    : side_(side), window_{0, 0, double(side), double(side)}, background_(kWhite) {}

void SvgPicture::Clear() {
    elements_.clear();
    Move_Pen(0, 0);
}

void SvgPicture::Set_Scale(double left, double top, double right, double bottom) {
    Check_Scale(left, top, right, bottom);
    const WorldWindow window = {left, top, right, bottom};
    if (window == window_) return;
    window_ = window;
    Clear();
}

void SvgPicture::Set_Background(Colour colour) {
    background_ = colour;
}

void SvgPicture::Line(double x1, double y1, double x2, double y2, Colour colour) {
    const bool goes_on = path_open_ && colour == path_colour_ && Stands_At(x1, y1);
    if (goes_on)
        elements_.back().resize(elements_.back().size() - kEnd.size());
    else
        elements_.push_back("<path stroke=\"" + Colour_Text(colour) + "\" d=\"M" + Position(x1, y1));
    elements_.back() += "L" + Position(x2, y2);
    elements_.back() += kEnd;
    Move_Pen(x2, y2);
    path_open_ = true;
    path_colour_ = colour;
}

void SvgPicture::Circle(double x, double y, double radius, Colour colour) {
    const double pixels = std::abs(radius * side_ / (window_.right - window_.left));
    Put_Circle(x, y, pixels, "stroke", colour);
    Move_Pen(x, y);
}

void SvgPicture::Set_Point(double x, double y, Colour colour) {
    Put_Circle(x, y, kDotRadius, "fill", colour);
    Move_Pen(x, y);
}

std::string SvgPicture::Text() const {
    const std::string side = std::to_string(side_);
    std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + side + "\" height=\"" + side +
                       "\" viewBox=\"0 0 " + side + " " + side + "\">\n<rect width=\"" + side +
                       "\" height=\"" + side + "\" fill=\"" + Colour_Text(background_) +
                       "\"/>\n<g fill=\"none\" stroke-width=\"" + Fixed_Number(kPenWidth) +
                       "\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n";
    for (const std::string_view element : Visible_Elements()) text += element;
    return text + "</g>\n</svg>\n";
}

std::vector<std::string_view> SvgPicture::Visible_Elements() const {
    std::unordered_set<std::string_view> seen;
    std::vector<std::string_view> visible;
    for (auto element = elements_.rbegin(); element != elements_.rend(); ++element)
        if (seen.insert(*element).second) visible.push_back(*element);
    std::reverse(visible.begin(), visible.end());
    return visible;
}

void SvgPicture::Put_Circle(double x, double y, double pixels, const char* paint, Colour colour) {
    elements_.push_back("<circle cx=\"" + Across(x) + "\" cy=\"" + Down(y) + "\" r=\"" +
                        Fixed_Number(pixels) + "\" " + paint + "=\"" + Colour_Text(colour));
    elements_.back() += kEnd;
}

std::string SvgPicture::Across(double x) const {
    return Fixed_Number((x - window_.left) * side_ / (window_.right - window_.left));
}

std::string SvgPicture::Down(double y) const {
    return Fixed_Number((y - window_.top) * side_ / (window_.bottom - window_.top));
}

std::string SvgPicture::Position(double x, double y) const {
    return Across(x) + " " + Down(y);
}

void SvgPicture::Move_Pen(double x, double y) {
    Move_To(x, y);
    path_open_ = false;
}

}  // namespace kervol
