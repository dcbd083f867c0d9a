// SPDX-License-Identifier: GPL-3.0-or-later
// Windows, axes and ticks of the plots that the program draws itself.
#include "plots/windows.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "plots/plot_fixture.h"

namespace kervol {
namespace {

constexpr const char* kRefusal =
    "The magnitude of Omega4 exceeds the capacity of this window.\n"
    "Switch to the 'Annotated' style of plot instead of the 'Aligned' style,\n"
    "or use a plot type with a larger window to see this function.";

class Windows : public PlotTest {
  protected:
    void Set(float limit, float Xlo, float Xhi) {
        picture.drawn.clear();
        plots.PlotLimit = limit;
        SetWindow(*program, picture, plots.PlotLimit, Xlo, Xhi, "Omega4", plots.PlotBase);
    }
    void Set_Polar(float limit) {
        picture.drawn.clear();
        plots.PlotLimit = limit;
        SetPolarWindow(*program, picture, plots.PlotLimit, "Force 12", plots.PlotBase);
    }

    FailingPicture picture;
};

TEST_F(Windows, OfTwoPlotsLeaveRoomBelow) {
    plots.PlotCount = 2;
    Set(10, 0, 360);
    Expect_Drawn(picture.drawn, {{Kind::Clear}, Scale(-57.6, 11.4, 374.4, -14)});
    EXPECT_FLOAT_EQ(plots.PlotBase, -2.6F);
    EXPECT_FALSE(plots.WindowFailed);
}

TEST_F(Windows, OfFourPlotsLeaveMoreRoomBelow) {
    plots.PlotCount = 4;
    Set(10, 100, 200);
    Expect_Drawn(picture.drawn, {{Kind::Clear}, Scale(82, 11.5, 204, -17)});
    EXPECT_FLOAT_EQ(plots.PlotBase, -5.5F);
}

TEST_F(Windows, AreMirroredForACrankThatTurnsBackwards) {
    plots.PlotCount = 2;
    Set(10, 360, 0);
    Expect_Drawn(picture.drawn, {{Kind::Clear}, Scale(417.6, 11.4, -14.4, -14)});
    EXPECT_FALSE(plots.WindowFailed);
}

TEST_F(Windows, OfAnyOtherNumberOfPlotsHaveNoExtent) {
    for (const std::int16_t count : Int16List{0, 1, 3, 5}) {
        plots.PlotCount = count;
        Set(10, 0, 360);
        Expect_Box(kRefusal, Icon::Exclamation);
        EXPECT_TRUE(plots.WindowFailed);
    }
}

TEST_F(Windows, AFlatFunctionIsPlottedAgainstALeastLimit) {
    plots.PlotCount = 2;
    Set(0, 0, 1);
    EXPECT_EQ(plots.PlotLimit, 0.0001F);
    Expect_Drawn(picture.drawn, {{Kind::Clear}, Scale(-0.16, 1.14e-4, 1.04, -1.4e-4)});
    Set(1e-20F, 0, 1);
    EXPECT_EQ(plots.PlotLimit, 1e-20F) << "only a limit of exactly 0";
}

TEST_F(Windows, OneWithoutARangeIsRefusedAndLeavesTheClearedPictureBlank) {
    plots.PlotCount = 2;
    Set(10, 5, 5);
    Expect_Box(kRefusal, Icon::Exclamation);
    EXPECT_TRUE(plots.WindowFailed);
    Expect_Drawn(picture.drawn, {{Kind::Clear}});
}

TEST_F(Windows, TheNextOneClearsTheFailure) {
    plots.PlotCount = 2;
    Set(10, 5, 5);
    Expect_Box(kRefusal, Icon::Exclamation);
    Set(10, 0, 5);
    EXPECT_FALSE(plots.WindowFailed);
    plots.WindowFailed = true;
    Set_Polar(10);
    EXPECT_FALSE(plots.WindowFailed);
}

struct LimitCase {
    std::int16_t plots;
    float limit;
    bool fits;
};

TEST_F(Windows, NumbersBeyondSinglePrecisionAreTooLargeForThePicture) {
    // The largest single is 3.4028e38; below the axis stand 1.4 limits of two plots, 1.7 of four.
    for (const LimitCase& given : {LimitCase{2, 2.4e38F, true}, LimitCase{2, 2.5e38F, false},
                                   LimitCase{4, 2.0e38F, true}, LimitCase{4, 2.1e38F, false}}) {
        plots.PlotCount = given.plots;
        Set(given.limit, 0, 360);
        EXPECT_EQ(plots.WindowFailed, !given.fits) << given.limit;
        if (!given.fits) Expect_Box(kRefusal, Icon::Exclamation);
    }
    Set_Polar(3.0e38F);
    EXPECT_FALSE(plots.WindowFailed);
    Set_Polar(3.1e38F);
    EXPECT_TRUE(plots.WindowFailed);
    Expect_Box("The magnitude of Force 12 exceeds the capacity of this window.", Icon::Exclamation);
}

TEST_F(Windows, AnyOtherFailureOfThePictureIsReported) {
    plots.PlotCount = 2;
    picture.failure = 7;
    Set(10, 0, 360);
    EXPECT_FALSE(plots.WindowFailed);
    Expect_Fault(7, "SetWindow");
    Set_Polar(10);
    EXPECT_FALSE(plots.WindowFailed);
    Expect_Fault(7, "SetPolarWindow");
    picture.failure = 5;
    Set(10, 0, 360);
    EXPECT_TRUE(plots.WindowFailed);
    Expect_Box(kRefusal, Icon::Exclamation);
}

TEST_F(Windows, APolarOneIsCentredAndDoesNotClear) {
    plots.PlotBase = 3;
    Set_Polar(10);
    Expect_Drawn(picture.drawn, {Scale(-11, 11.15, 11, -11.15)});
    EXPECT_EQ(plots.PlotBase, 0);
    Set_Polar(0);
    EXPECT_EQ(plots.PlotLimit, 0.0001F);
    Expect_Drawn(picture.drawn, {Scale(-1.1e-4, 1.115e-4, 1.1e-4, -1.115e-4)});
}

TEST_F(Windows, TheLimitIsTheLargestAbsoluteValueOfTheStretch) {
    Table<float, StepRows> data;
    data(0) = 100;
    data(1) = -7;
    data(2) = 3;
    data(3) = -50;
    float result = 0;
    CartesianMax(*program, data, 1, 2, result);
    EXPECT_EQ(result, 7);
    CartesianMax(*program, data, 0, 3, result);
    EXPECT_EQ(result, 100);
    CartesianMax(*program, data, 2, 2, result);
    EXPECT_EQ(result, 3);
    CartesianMax(*program, data, 0, 2000, result);
    Expect_Fault(9, "MaxMin1");
    EXPECT_EQ(result, 3);
}

class Axes : public PlotTest {
  protected:
    RecordingPicture picture;
};

TEST_F(Axes, TheVerticalOneStandsAtTheLeftEdgeOfTheData) {
    CartesianAxes(*program, picture, 10, 90, 270);
    Expect_Drawn(picture.drawn, {Black(90, 0, 270, 0), Black(90, -10, 90, 10)});
}

TEST_F(Axes, OfAPolarPlotCrossAtTheOrigin) {
    PolarAxes(*program, picture, 10);
    Expect_Drawn(picture.drawn, {Black(-10, 0, 10, 0), Black(0, -10, 0, 10)});
}

TEST_F(Axes, TheAbscissaHasTwentyFourTicksFromItsStartAndOneAtItsEnd) {
    XticMarks(*program, picture, 10, 0, 360);
    std::vector<Drawn> expected;
    // 0.04166667 of 360, not exactly 15.
    for (int k = 0; k < 24; ++k) expected.push_back(Black(k * 15.0000012, -0.7, k * 15.0000012, 0.7));
    expected.push_back(Black(360, -0.7, 360, 0.7));
    Expect_Drawn(picture.drawn, expected);
    EXPECT_EQ(picture.drawn.back().x1, 360.0) << "exactly";
}

TEST_F(Axes, TheTicksOfABackwardRangeRunDown) {
    XticMarks(*program, picture, 10, 350, 110);
    std::vector<Drawn> expected;
    for (int k = 0; k < 24; ++k)
        expected.push_back(Black(350 - k * 10.0000008, -0.7, 350 - k * 10.0000008, 0.7));
    expected.push_back(Black(110, -0.7, 110, 0.7));
    Expect_Drawn(picture.drawn, expected);
}

TEST_F(Axes, TheOrdinateHasATickBeyondItsTop) {
    YticMarks(*program, picture, 10, 5, 0, 360);
    std::vector<Drawn> expected;
    for (int k = -5; k <= 6; ++k) expected.push_back(Black(-3.6, 2 * k, 3.6, 2 * k));
    Expect_Drawn(picture.drawn, expected);
}

TEST_F(Axes, TheTicksOfTheOrdinateFollowABackwardRange) {
    YticMarks(*program, picture, 10, 5, 360, 0);
    ASSERT_EQ(picture.drawn.size(), 12U);
    Expect_Drawn({picture.drawn[0]}, {Black(363.6, -10, 356.4, -10)});
}

TEST_F(Axes, PolarTicksCrossBothAxes) {
    PolarTicmarks(*program, picture, 10, 10);
    std::vector<Drawn> expected;
    for (int k = -10; k <= 10; ++k) Append(expected, {Black(k, -0.1, k, 0.1), Black(-0.1, k, 0.1, k)});
    Expect_Drawn(picture.drawn, expected);
}

TEST_F(Axes, HowManyTicksThereAreDoesNotDependOnTheNumbers) {
    std::mt19937 source(5);
    std::uniform_real_distribution<float> exponent(-30, 30), start(-1000, 1000);
    for (int i = 0; i < 1000; ++i) {
        const float limit = std::pow(10.0F, exponent(source));
        const float Xlo = start(source), Xhi = start(source);
        picture.drawn.clear();
        XticMarks(*program, picture, limit, Xlo, Xhi);
        ASSERT_EQ(picture.drawn.size(), 25U) << Xlo << " " << Xhi;
        for (const Drawn& tick : picture.drawn) {
            ASSERT_GE(tick.x1, std::min(Xlo, Xhi));
            ASSERT_LE(tick.x1, std::max(Xlo, Xhi));
        }
        picture.drawn.clear();
        YticMarks(*program, picture, limit, 5, Xlo, Xhi);
        ASSERT_EQ(picture.drawn.size(), 12U) << limit;
        picture.drawn.clear();
        PolarTicmarks(*program, picture, limit, 10);
        ASSERT_EQ(picture.drawn.size(), 42U) << limit;
    }
}

TEST_F(Axes, VerticalLinesStandAtTheQuartersAndTheEnd) {
    Vertical_lines(*program, picture, 10, 90, 270);
    Expect_Drawn(picture.drawn, {Black(135, -9.5, 135, 10), Black(180, -9.5, 180, 10),
                                 Black(225, -9.5, 225, 10), Black(270, -9.5, 270, 10)});
    picture.drawn.clear();
    Vertical_lines(*program, picture, 10, 360, 0);
    Expect_Drawn(picture.drawn, {Black(270, -9.5, 270, 10), Black(180, -9.5, 180, 10),
                                 Black(90, -9.5, 90, 10), Black(0, -9.5, 0, 10)});
}

TEST_F(Axes, TicksThatLeadNowhereAreAFaultAndNotAnEndlessLoop) {
    XticMarks(*program, picture, 10, 5, 5);
    Expect_Fault(11, "XticMarks");
    YticMarks(*program, picture, 10, 0, 0, 360);
    Expect_Fault(11, "YticMarks");
    PolarTicmarks(*program, picture, 10, 0);
    Expect_Fault(11, "PolarTicmarks");
    EXPECT_TRUE(picture.drawn.empty());
}

}  // namespace
}  // namespace kervol
