// SPDX-License-Identifier: GPL-3.0-or-later
// The picture that writes SVG, byte by byte.
#include "headless/svg_picture.h"

#include <string>

#include "core/fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

constexpr Colour kRed = {255, 0, 0}, kBlue = {0, 0, 255}, kTeal = {0, 128, 9};

/// What stands between the opening of the file and its end.
std::string Elements(const SvgPicture& picture) {
    const std::string text = picture.Text();
    const std::string group =
        "<g fill=\"none\" stroke-width=\"1.5\" stroke-linecap=\"round\" "
        "stroke-linejoin=\"round\">\n";
    const std::string end = "</g>\n</svg>\n";
    const std::size_t start = text.find(group);
    EXPECT_NE(start, std::string::npos);
    EXPECT_TRUE(text.ends_with(end));
    return text.substr(start + group.size(), text.size() - start - group.size() - end.size());
}

/// 100 pixels for the window -10 to 10: five pixels a unit.
SvgPicture Picture_Of_Twenty() {
    SvgPicture picture(100);
    picture.Set_Scale(-10, -10, 10, 10);
    return picture;
}

TEST(SvgPicture, WithoutADrawingIsAWhiteSquare) {
    EXPECT_EQ(SvgPicture(100).Text(),
              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" height=\"100\" viewBox=\"0 0 100 "
              "100\">\n"
              "<rect width=\"100\" height=\"100\" fill=\"#ffffff\"/>\n"
              "<g fill=\"none\" stroke-width=\"1.5\" stroke-linecap=\"round\" "
              "stroke-linejoin=\"round\">\n"
              "</g>\n"
              "</svg>\n");
}

TEST(SvgPicture, TakesABackgroundAndKeepsItWhenCleared) {
    SvgPicture picture(100);
    picture.Set_Background(kTeal);
    picture.Clear();
    EXPECT_NE(picture.Text().find("fill=\"#008009\"/>\n<g "), std::string::npos);
}

TEST(SvgPicture, MapsTheWorldWindowOntoItsPixels) {
    SvgPicture picture = Picture_Of_Twenty();
    picture.Line(-10, -10, 10, 10, kRed);
    picture.Line(0, 2, -3, 4, kRed);
    EXPECT_EQ(Elements(picture),
              "<path stroke=\"#ff0000\" d=\"M0 0L100 100\"/>\n"
              "<path stroke=\"#ff0000\" d=\"M50 60L35 70\"/>\n");
}

TEST(SvgPicture, TurnsAWindowWhoseBoundsAreReversed) {
    SvgPicture picture(100);
    picture.Set_Scale(10, 10, -10, -10);
    picture.Circle(10, 6, 2, kRed);
    EXPECT_EQ(Elements(picture), "<circle cx=\"0\" cy=\"20\" r=\"10\" stroke=\"#ff0000\"/>\n");
}

TEST(SvgPicture, WithoutAScaleCountsInPixels) {
    SvgPicture picture(100);
    picture.Line(1, 2, 3, 4, kBlue);
    EXPECT_EQ(Elements(picture), "<path stroke=\"#0000ff\" d=\"M1 2L3 4\"/>\n");
}

TEST(SvgPicture, JoinsLinesThatGoOnInTheSameColour) {
    SvgPicture picture(100);
    picture.Line(1, 2, 3, 4, kRed);
    picture.Line_To(5, 6, kRed);
    picture.Line(5, 6, 7, 8, kRed);
    picture.Line_To(9, 9, kBlue);
    picture.Line_To(9, 1, kRed);
    EXPECT_EQ(Elements(picture),
              "<path stroke=\"#ff0000\" d=\"M1 2L3 4L5 6L7 8\"/>\n"
              "<path stroke=\"#0000ff\" d=\"M7 8L9 9\"/>\n"
              "<path stroke=\"#ff0000\" d=\"M9 9L9 1\"/>\n");
}

TEST(SvgPicture, BeginsALineAnewBehindACircleOrAPointThoughItGoesOnFromThere) {
    SvgPicture picture(100);
    picture.Line(1, 2, 3, 4, kRed);
    picture.Circle(3, 4, 5, kRed);
    picture.Line_To(6, 6, kRed);
    picture.Set_Point(6, 6, kRed);
    picture.Line_To(7, 7, kRed);
    EXPECT_EQ(Elements(picture),
              "<path stroke=\"#ff0000\" d=\"M1 2L3 4\"/>\n"
              "<circle cx=\"3\" cy=\"4\" r=\"5\" stroke=\"#ff0000\"/>\n"
              "<path stroke=\"#ff0000\" d=\"M3 4L6 6\"/>\n"
              "<circle cx=\"6\" cy=\"6\" r=\"1.2\" fill=\"#ff0000\"/>\n"
              "<path stroke=\"#ff0000\" d=\"M6 6L7 7\"/>\n");
}

TEST(SvgPicture, ScalesCirclesButNotDots) {
    SvgPicture picture = Picture_Of_Twenty();
    picture.Circle(0, 0, 3, kBlue);
    picture.Set_Point(0, 0, kBlue);
    EXPECT_EQ(Elements(picture),
              "<circle cx=\"50\" cy=\"50\" r=\"15\" stroke=\"#0000ff\"/>\n"
              "<circle cx=\"50\" cy=\"50\" r=\"1.2\" fill=\"#0000ff\"/>\n");
}

TEST(SvgPicture, WritesNumbersShort) {
    SvgPicture picture(100);
    picture.Line(1.0 / 3, 2.0 / 3, 0.5, 99.999, kRed);
    picture.Line(-0.001, 10, 100, -12.34, kBlue);
    EXPECT_EQ(Elements(picture),
              "<path stroke=\"#ff0000\" d=\"M0.33 0.67L0.5 100\"/>\n"
              "<path stroke=\"#0000ff\" d=\"M0 10L100 -12.34\"/>\n");
}

TEST(SvgPicture, KeepsItsPrecisionInAnyUnit) {
    const auto drawing = [](double unit) {
        SvgPicture picture(100);
        picture.Set_Scale(-10 * unit, -10 * unit, 10 * unit, 10 * unit);
        picture.Line(1.25 * unit, 0, 0, 2.5 * unit, kRed);
        picture.Circle(0, 0, 0.75 * unit, kRed);
        return picture.Text();
    };
    const std::string text = drawing(1);
    EXPECT_NE(text.find("M56.25 50L50 62.5"), std::string::npos) << text;
    for (const double unit : {1e-6, 1e-3, 1e3, 1e6}) EXPECT_EQ(drawing(unit), text) << unit;
}

TEST(SvgPicture, WritesWhatWasDrawnTwiceOnceInTheLaterPlace) {
    SvgPicture picture(100);
    for (const Colour colour : {kRed, kBlue, kRed}) {
        picture.Circle(5, 5, 1, kBlue);
        picture.Line(1, 2, 3, 4, colour);
        picture.Line_To(4, 4, colour);
    }
    EXPECT_EQ(Elements(picture),
              "<path stroke=\"#0000ff\" d=\"M1 2L3 4L4 4\"/>\n"
              "<circle cx=\"5\" cy=\"5\" r=\"1\" stroke=\"#0000ff\"/>\n"
              "<path stroke=\"#ff0000\" d=\"M1 2L3 4L4 4\"/>\n");
}

TEST(SvgPicture, IsEmptiedByClear) {
    SvgPicture picture = Picture_Of_Twenty();
    picture.Line(1, 2, 3, 4, kRed);
    picture.Clear();
    EXPECT_EQ(Elements(picture), "");
    picture.Line_To(10, 10, kRed);
    EXPECT_EQ(Elements(picture), "<path stroke=\"#ff0000\" d=\"M50 50L100 100\"/>\n");
}

TEST(SvgPicture, KeepsItsDrawingInTheSameWindowAndClearsItForAnother) {
    SvgPicture picture = Picture_Of_Twenty();
    picture.Set_Point(0, 0, kRed);
    const std::string drawn = picture.Text();
    picture.Set_Scale(-10, -10, 10, 10);
    EXPECT_EQ(picture.Text(), drawn);
    picture.Set_Scale(-10, -10, 10, 11);
    EXPECT_EQ(Elements(picture), "");
}

TEST(SvgPicture, RefusesAWindowWithoutAnExtentAndKeepsItsOwn) {
    SvgPicture picture = Picture_Of_Twenty();
    picture.Circle(0, 0, 3, kBlue);
    const std::string drawn = picture.Text();
    const double empty[][4] = {{0, 0, 0, 0}, {1, 0, 1, 5}, {0, 2, 5, 2}};
    for (const auto& [left, top, right, bottom] : empty) {
        try {
            picture.Set_Scale(left, top, right, bottom);
            ADD_FAILURE() << "taken";
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number, fault::InvalidCall);
        }
    }
    EXPECT_EQ(picture.Text(), drawn);
    picture.Clear();
    picture.Circle(0, 0, 3, kBlue);
    EXPECT_EQ(picture.Text(), drawn);
}

TEST(SvgPicture, HoldsNoText) {
    SvgPicture picture = Picture_Of_Twenty();
    picture.Line(1, 2, 3, 4, kRed);
    EXPECT_EQ(picture.Text().find("<text"), std::string::npos);
}

}  // namespace
}  // namespace kervol
