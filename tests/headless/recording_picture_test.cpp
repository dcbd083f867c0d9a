// SPDX-License-Identifier: GPL-3.0-or-later
// The picture that keeps a list of what was drawn, above all where its current point stands.
#include "headless/recording_picture.h"

#include "core/fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

using Kind = Drawn::Kind;
constexpr Colour kRed = {255, 0, 0}, kGreen = {0, 255, 0};

TEST(RecordingPicture, KeepsWhatWasDrawnInItsOrder) {
    RecordingPicture picture;
    picture.Clear();
    picture.Set_Scale(-1, -2, 3, 4);
    picture.Set_Background(kGreen);
    picture.Line(1, 2, 3, 4, kRed);
    picture.Circle(5, 6, 7, kGreen);
    picture.Set_Point(8, 9, kRed);
    EXPECT_EQ(picture.drawn, (std::vector<Drawn>{{Kind::Clear},
                                                 {Kind::Scale, -1, -2, 3, 4},
                                                 {Kind::Background, 0, 0, 0, 0, kGreen},
                                                 {Kind::Line, 1, 2, 3, 4, kRed},
                                                 {Kind::Circle, 5, 6, 7, 0, kGreen},
                                                 {Kind::Point, 8, 9, 0, 0, kRed}}));
}

/// Draws to (9, 9) from the current point and tells where that was.
std::pair<double, double> Current_Point(RecordingPicture& picture) {
    picture.Line_To(9, 9, kRed);
    const Drawn& line = picture.drawn.back();
    EXPECT_EQ(line.kind, Kind::Line);
    EXPECT_EQ(line.x2, 9);
    EXPECT_EQ(line.y2, 9);
    return {line.x1, line.y1};
}

TEST(RecordingPicture, GoesOnFromTheEndOfALine) {
    RecordingPicture picture;
    picture.Line(1, 2, 3, 4, kRed);
    EXPECT_EQ(Current_Point(picture), std::pair(3.0, 4.0));
    EXPECT_EQ(Current_Point(picture), std::pair(9.0, 9.0));
}

TEST(RecordingPicture, GoesOnFromTheCentreOfACircle) {
    RecordingPicture picture;
    picture.Circle(5, 6, 7, kRed);
    EXPECT_EQ(Current_Point(picture), std::pair(5.0, 6.0));
}

TEST(RecordingPicture, GoesOnFromAPoint) {
    RecordingPicture picture;
    picture.Set_Point(8, 9, kRed);
    EXPECT_EQ(Current_Point(picture), std::pair(8.0, 9.0));
}

TEST(RecordingPicture, BeginsAtTheOriginAndThereAgainWhenCleared) {
    RecordingPicture picture;
    EXPECT_EQ(Current_Point(picture), std::pair(0.0, 0.0));
    picture.Clear();
    EXPECT_EQ(Current_Point(picture), std::pair(0.0, 0.0));
}

TEST(RecordingPicture, KeepsItsCurrentPointThroughScaleAndBackground) {
    RecordingPicture picture;
    picture.Set_Point(8, 9, kRed);
    picture.Set_Scale(0, 0, 1, 1);
    picture.Set_Background(kGreen);
    EXPECT_EQ(Current_Point(picture), std::pair(8.0, 9.0));
}

TEST(RecordingPicture, RefusesAWindowWithoutAnExtent) {
    RecordingPicture picture;
    const double empty[][4] = {{0, 0, 0, 0}, {1, 0, 1, 5}, {0, 2, 5, 2}};
    for (const auto& [left, top, right, bottom] : empty) {
        try {
            picture.Set_Scale(left, top, right, bottom);
            ADD_FAILURE() << "taken";
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number, fault::InvalidCall);
        }
    }
    EXPECT_TRUE(picture.drawn.empty());
}

}  // namespace
}  // namespace kervol
