// SPDX-License-Identifier: GPL-3.0-or-later
#include <QImage>

#include "core/fault.h"
#include "qt/picture_widget.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

constexpr Colour kMagenta = {255, 0, 255};
constexpr Colour kBlue = {0, 0, 255};

QImage Painted(PictureWidget& widget, QSize size, double ratio = 1) {
    widget.resize(size);
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    widget.render(&image);
    return image;
}

/// Pixels of a column that are not white.
int Inked(const QImage& image, int column) {
    int count = 0;
    for (int row = 0; row < image.height(); ++row)
        if (image.pixelColor(column, row).lightness() < 192) ++count;
    return count;
}

TEST(PictureListTest, AStrokeTakesThePlaceOfAnEarlierOneOfItsShape) {
    PictureList list;
    list.Line(0, 0, 1, 1, kMagenta);
    list.Circle(0, 0, 1, kBlue);
    list.Line(0, 0, 1, 1, kBlue);
    const auto strokes = list.Strokes();
    ASSERT_EQ(strokes.size(), 2U);
    EXPECT_EQ(strokes[0].shape.kind, Shape::Kind::Circle);
    EXPECT_EQ(strokes[1].colour, kBlue);
}

TEST(PictureListTest, TheColourOfTheBackgroundTakesAShapeAwayAndLeavesWhatItCrosses) {
    PictureList list;
    list.Line(0, 0, 1, 1, kMagenta);
    list.Line(0, 1, 1, 0, kBlue);
    list.Line(0, 0, 1, 1, {255, 255, 255});
    list.Line_To(2, 2, kBlue);
    const auto strokes = list.Strokes();
    ASSERT_EQ(strokes.size(), 2U);
    EXPECT_EQ(strokes[0].shape, (Shape{Shape::Kind::Line, 0, 1, 1, 0}));
    EXPECT_EQ(strokes[1].shape, (Shape{Shape::Kind::Line, 1, 1, 2, 2})) << "it moves the current point";
    list.Line(0, 0, 1, 1, kMagenta);
    EXPECT_EQ(list.Strokes().size(), 3U);
}

TEST(PictureListTest, DrawingTheSameOverAndOverKeepsTheListShort) {
    PictureList list;
    for (int round = 0; round < 5000; ++round)
        for (int line = 0; line < 10; ++line) list.Line(line, 0, line, 1, kBlue);
    EXPECT_EQ(list.Strokes().size(), 10U);
    EXPECT_EQ(list.Strokes().back().shape.x1, 9);
}

TEST(PictureListTest, LinesGoOnFromWhereTheLastDrawingEnded) {
    PictureList list;
    list.Set_Point(1, 2, kBlue);
    list.Line_To(3, 4, kBlue);
    list.Circle(5, 6, 1, kBlue);
    list.Line_To(7, 8, kBlue);
    const auto strokes = list.Strokes();
    ASSERT_EQ(strokes.size(), 4U);
    EXPECT_EQ(strokes[1].shape, (Shape{Shape::Kind::Line, 1, 2, 3, 4}));
    EXPECT_EQ(strokes[3].shape, (Shape{Shape::Kind::Line, 5, 6, 7, 8}));
}

TEST(PictureListTest, AChangedWindowClearsThePictureFirst) {
    PictureList list;
    list.Set_Scale(-5, -5, 5, 5);
    list.Line(0, 0, 1, 1, kBlue);
    list.Set_Scale(-5, -5, 5, 5);
    EXPECT_FALSE(list.Is_Empty());
    list.Set_Scale(-6, -6, 6, 6);
    EXPECT_TRUE(list.Is_Empty());
}

TEST(PictureListTest, AWindowWithoutAnExtentIsRefusedAndTheOldOneStays) {
    PictureList list;
    list.Set_Scale(-5, -5, 5, 5);
    try {
        list.Set_Scale(0, 0, 0, 0);
        FAIL() << "no fault";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.number, 5);
    }
    EXPECT_EQ(list.Window().right, 5);
}

TEST(PictureWidgetTest, TheWindowIsTheLargestSquareInTheMiddle) {
    PictureList list;
    PictureWidget widget(list);
    list.Set_Scale(-10, -10, 10, 10);
    widget.resize(300, 200);
    EXPECT_EQ(widget.Window_Place(), QRectF(50, 0, 200, 200));
    EXPECT_EQ(widget.To_Widget(0, 0), QPointF(150, 100));
    EXPECT_EQ(widget.To_Widget(10, -10), QPointF(250, 0));
}

TEST(PictureWidgetTest, WhatWasDrawnIsPaintedAtEverySizeInOnePenWidth) {
    PictureList list;
    PictureWidget widget(list);
    list.Set_Scale(-10, -10, 10, 10);
    list.Line(-10, 0, 10, 0, kBlue);
    const QImage small = Painted(widget, {200, 200});
    const QImage large = Painted(widget, {800, 800});
    EXPECT_EQ(small.pixelColor(100, 20), QColor(Qt::white));
    EXPECT_GE(Inked(small, 100), 1);
    EXPECT_LE(Inked(small, 100), 2);
    EXPECT_EQ(Inked(large, 400), Inked(small, 100));
}

TEST(PictureWidgetTest, AFinerScreenGetsMorePixelsAcrossALine) {
    PictureList list;
    PictureWidget widget(list);
    list.Set_Scale(-10, -10, 10, 10);
    list.Line(-10, 0, 10, 0, kBlue);
    EXPECT_GE(Inked(Painted(widget, {200, 200}, 3), 300), 4);
}

TEST(PictureWidgetTest, TheGroundStaysWhiteInADarkDesktop) {
    PictureList list;
    PictureWidget widget(list);
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::Base, Qt::black);
    widget.setPalette(dark);
    EXPECT_EQ(Painted(widget, {100, 50}).pixelColor(2, 2), QColor(Qt::white));
}

TEST(PictureWidgetTest, CirclesGrowWithTheWindow) {
    PictureList list;
    PictureWidget widget(list);
    list.Set_Scale(-10, -10, 10, 10);
    list.Circle(0, 0, 5, kMagenta);
    for (const int side : {200, 600}) {
        const QImage image = Painted(widget, {side, side});
        EXPECT_NE(image.pixelColor(side / 2 + side / 4, side / 2), QColor(Qt::white)) << side;
        EXPECT_EQ(image.pixelColor(side / 2, side / 2), QColor(Qt::white)) << side;
    }
}

}  // namespace
}  // namespace kervol
