// SPDX-License-Identifier: GPL-3.0-or-later
#include "headless/recording_picture.h"

namespace kervol {

void RecordingPicture::Clear() {
    drawn.push_back({Drawn::Kind::Clear});
    Move_To(0, 0);
}

void RecordingPicture::Set_Scale(double left, double top, double right, double bottom) {
    Check_Scale(left, top, right, bottom);
    drawn.push_back({Drawn::Kind::Scale, left, top, right, bottom});
}

void RecordingPicture::Set_Background(Colour colour) {
    drawn.push_back({Drawn::Kind::Background, 0, 0, 0, 0, colour});
}

void RecordingPicture::Line(double x1, double y1, double x2, double y2, Colour colour) {
    drawn.push_back({Drawn::Kind::Line, x1, y1, x2, y2, colour});
    Move_To(x2, y2);
}

void RecordingPicture::Circle(double x, double y, double radius, Colour colour) {
    drawn.push_back({Drawn::Kind::Circle, x, y, radius, 0, colour});
    Move_To(x, y);
}

void RecordingPicture::Set_Point(double x, double y, Colour colour) {
    drawn.push_back({Drawn::Kind::Point, x, y, 0, 0, colour});
    Move_To(x, y);
}

}  // namespace kervol
