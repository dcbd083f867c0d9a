// SPDX-License-Identifier: GPL-3.0-or-later
// The square window that holds the whole motion.
#include "animation/animation_fixture.h"

namespace kervol {
namespace {

/// Rows 0 and 1 with all points between 5 and 8, pivots within, and links that make a margin of 1.
class Autoscale : public AnimationTest {
  protected:
    Autoscale() {
        model.LinkageType = "W";
        model.NumSteps = 1;
        Put_Pivots(6, 7, 6);
        for (int link = 1; link <= 7; ++link) model.LinkTable(link) = 4;
        Put_All_Points(0, 5, 7);
        Put_All_Points(1, 6, 8);
    }

    void Expect_Window(double low, double high, double tolerance = 0) {
        Autoscale6(*program);
        EXPECT_NEAR(program->animation.PlotMin, low, tolerance);
        EXPECT_NEAR(program->animation.PlotMax, high, tolerance);
    }
};

TEST_F(Autoscale, HoldsXAndYOfEveryPointAndStep) {
    model.HideLinks = "y";
    for (int point = 2; point <= 5; ++point)
        for (std::int16_t step = 0; step <= 1; ++step)
            for (const bool x_axis : {false, true}) {
                Put_Point(step, point, x_axis ? -20.0F : 6.0F, x_axis ? 6.0F : -20.0F);
                Expect_Window(-20 - 1, 8 + 1);
                Put_Point(step, point, x_axis ? 30.0F : 6.0F, x_axis ? 6.0F : 30.0F);
                Expect_Window(5 - 1, 30 + 1);
                Put_Point(step, point, step == 0 ? 5.0F : 6.0F, step == 0 ? 7.0F : 8.0F);
            }
}

TEST_F(Autoscale, LooksAtNoRowBehindTheHighestStep) {
    model.HideLinks = "Y";
    Put_All_Points(2, -100, 100);
    Expect_Window(5 - 1, 8 + 1);
}

TEST_F(Autoscale, ForgetsTheWindowBefore) {
    model.HideLinks = "Y";
    program->animation.PlotMin = -1000;
    program->animation.PlotMax = 1000;
    Expect_Window(5 - 1, 8 + 1);
}

TEST_F(Autoscale, LeavesAAndBOutWithHiddenLinksInAnyCase) {
    Put_Point(1, 0, -50, 8);
    Put_Point(1, 1, 6, 60);
    for (const char* hide : {"Y", "y"}) {
        model.HideLinks = hide;
        Expect_Window(5 - 1, 8 + 1);
    }
    for (const char* hide : {"N", "n", ""}) {
        model.HideLinks = hide;
        Expect_Window(-50 - 1, 60 + 1);
    }
}

TEST_F(Autoscale, HoldsO2WithShownLinks) {
    for (const char* hide : {"N", "n"}) {
        model.HideLinks = hide;
        Expect_Window(0 - 1, 8 + 1);
    }
    // Neither shown nor hidden before the animation was used.
    model.HideLinks = "";
    Expect_Window(5 - 1, 8 + 1);
}

TEST_F(Autoscale, HoldsO2AlsoAboveThePoints) {
    Put_All_Points(0, -7, -5);
    Put_All_Points(1, -8, -6);
    Put_Pivots(2, -6, -6);
    Expect_Window(-8 - 1, 0 + 1);
}

TEST_F(Autoscale, HoldsO6WithShownLinksAlone) {
    Put_Pivots(6, 40, -30);
    Expect_Window(-30 - 1, 40 + 1);
    model.HideLinks = "Y";
    Expect_Window(5 - 1, 8 + 1);
}

TEST_F(Autoscale, DoesNotTreatO4ByItself) {
    Put_Pivots(100, 7, 6);
    Expect_Window(0 - 1, 8 + 1);
}

TEST_F(Autoscale, TurnsPointsAndO6WithTheGround) {
    // A quarter turn makes (x, y) to (-y, x).
    Turn_Ground(90);
    Put_Pivots(6, 40, 30);
    Expect_Window(-30 - 1, 40 + 1, kTurned);
    Put_Pivots(6, 7, 6);
    Put_Point(1, 0, 6, 50);
    Expect_Window(-50 - 1, 7 + 1, kTurned);
}

TEST_F(Autoscale, StartsFromPointCAsTabulatedWithoutTheTurn) {
    // Turned by half, all points lie at -7 and -5; only the start stays at (5, 7).
    model.HideLinks = "Y";
    Turn_Ground(180);
    model.NumSteps = 0;
    Expect_Window(-7 - 1, 7 + 1, kTurned);
}

TEST_F(Autoscale, HasFailedRowsPullTheOriginInEvenWithHiddenLinks) {
    model.HideLinks = "Y";
    Put_All_Points(1, 0, 0);
    tables.StepValid(1) = false;
    Expect_Window(0 - 1, 7 + 1);
}

TEST_F(Autoscale, MarginIsAQuarterOfTheAverageOfLink1To6AndO4D) {
    model.HideLinks = "Y";
    const float lengths[] = {700, 1, 2, 3, 4, 5, 6, 7, 700};
    for (int link = 0; link <= 8; ++link) model.LinkTable(link) = lengths[link];
    Expect_Window(5 - 1, 8 + 1);
    for (int link = 1; link <= 7; ++link) {
        model.LinkTable(link) += 28;
        Expect_Window(5 - 2, 8 + 2);
        model.LinkTable(link) -= 28;
    }
}

TEST_F(Autoscale, CountsAnOldO4DOfAStephensonChainInTheMargin) {
    model.HideLinks = "Y";
    model.LinkageType = "S";
    model.LinkTable(7) = 60;
    Expect_Window(5 - 3, 8 + 3);
    model.LinkTable(7) = 4;
    Expect_Window(5 - 1, 8 + 1);
}

TEST_F(Autoscale, OfPointsInOnePlaceIsTheMarginAroundIt) {
    model.HideLinks = "Y";
    Put_All_Points(0, 5, 5);
    Put_All_Points(1, 5, 5);
    Expect_Window(5 - 1, 5 + 1);
}

TEST_F(Autoscale, OfNoExtentAtAllIsAnEmptyWindow) {
    model.HideLinks = "Y";
    Put_All_Points(0, 0, 0);
    Put_All_Points(1, 0, 0);
    for (int link = 1; link <= 7; ++link) model.LinkTable(link) = 0;
    Expect_Window(0, 0);
}

TEST_F(Autoscale, BeyondTheTablesIsAFault) {
    model.NumSteps = 1025;
    Autoscale6(*program);
    Expect_Fault(9, "Autoscale6");
}

}  // namespace
}  // namespace kervol
