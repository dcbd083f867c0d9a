// SPDX-License-Identifier: GPL-3.0-or-later
// Pivots, axes and the paths of the coupler points.
#include "animation/animation_fixture.h"

namespace kervol {
namespace {

class PivotDrawing : public AnimationTest {
  protected:
    PivotDrawing() {
        Put_Pivots(6, 11, -1);
        model.CalcMode = 3;
        model.CamCentreX = 4;
        model.CamCentreY = 5;
        model.CamBaseRadius = 2.5;
    }

    static std::vector<Drawn> Pivot(At centre) {
        return {Circle(centre, kPivot, kBlue), Circle(centre, kSmall, kBlue)};
    }
};

TEST_F(PivotDrawing, IsAPairOfCirclesAtO2ThenO4ThenO6) {
    Drawpivots(*program, picture);
    Expect_Drawn(Joined({Pivot({0, 10}), Pivot({6, 10}), Pivot({11, 11})}));
}

TEST_F(PivotDrawing, TurnsWithTheGround) {
    Turn_Ground(90);
    Drawpivots(*program, picture);
    Expect_Drawn(Joined({Pivot({0, 10}), Pivot({0, 4}), Pivot({1, -1})}), kTurned);
}

TEST_F(PivotDrawing, OfACamDriveAddsTheCamAtItsCentreWithBothSignsTurned) {
    model.CalcMode = 4;
    Turn_Ground(90);  // The cam's centre is not turned with it.
    Drawpivots(*program, picture);
    Expect_Drawn(Joined({Pivot({0, 10}),
                         Pivot({0, 4}),
                         Pivot({1, -1}),
                         {Circle({-4, 15}, 2.5, kBlue), Circle({-4, 15}, kPivot, kBlue)}}),
                 kTurned);
}

TEST_F(PivotDrawing, OfOtherModesHasNoCam) {
    for (const std::int16_t mode : Modes{1, 2, 3, 5}) {
        model.CalcMode = mode;
        Drawpivots(*program, picture);
        Expect_Drawn(Joined({Pivot({0, 10}), Pivot({6, 10}), Pivot({11, 11})}));
    }
}

class AxesDrawing : public AnimationTest {};

TEST_F(AxesDrawing, AreNineTenthsOfTheWindowLongWithTheFactorOnThePicturesY) {
    // The window is -10 to 20, so that the picture's y is 10 minus y.
    Axes(*program, picture);
    Expect_Drawn({Line({-9, 10}, {18, 10}, kBlack), Line({0, 18}, {0, -9}, kBlack)}, 1e-9);
}

TEST_F(AxesDrawing, OfAWindowThatIsEvenAboutZeroAreEven) {
    program->animation.PlotMin = -8;
    program->animation.PlotMax = 8;
    program->animation.PlotY0 = 0;
    Axes(*program, picture);
    Expect_Drawn({Line({-7.2, 0}, {7.2, 0}, kBlack), Line({0, 7.2}, {0, -7.2}, kBlack)}, 1e-9);
}

/// Rows 0 to 4 with C on the line y = 1 and F on the line y = 2, at x of 1 more than the step.
class CouplerCurve : public AnimationTest {
  protected:
    CouplerCurve() {
        model.NumSteps = 4;
        for (std::int16_t step = 0; step <= 4; ++step) {
            const auto x = static_cast<float>(step + 1);
            Put_Point(step, 2, x, 1);
            Put_Point(step, 5, x, 2);
            tables.StepValid(step) = true;
        }
    }

    void Fail(std::int16_t step) {
        Put_All_Points(step, 0, 0);
        tables.StepValid(step) = false;
    }
    void Draw(int which = 0) { DrawCouplerCurve(*program, which, picture); }

    static constexpr At kC0{1, 9}, kC1{2, 9}, kC2{3, 9}, kC3{4, 9}, kC4{5, 9};
};

TEST_F(CouplerCurve, RunsThroughPointCFromItsFirstRowToItsLast) {
    Draw();
    Expect_Drawn(Joined({{Dot(kC0, kCyan)}, Chain({kC0, kC0, kC1, kC2, kC3, kC4}, kCyan)}));
    EXPECT_EQ(program->animation.PathX, 5);
    EXPECT_EQ(program->animation.PathY, 1);
}

TEST_F(CouplerCurve, OfAnyNumberAboveZeroRunsThroughPointF) {
    for (const int which : {1, 2}) {
        Draw(which);
        Expect_Drawn(
            Joined({{Dot({1, 8}, kCyan)}, Chain({{1, 8}, {1, 8}, {2, 8}, {3, 8}, {4, 8}, {5, 8}}, kCyan)}));
    }
}

TEST_F(CouplerCurve, EndsAtTheHighestStep) {
    model.NumSteps = 2;
    Draw();
    Expect_Drawn(Joined({{Dot(kC0, kCyan)}, Chain({kC0, kC0, kC1, kC2}, kCyan)}));
}

TEST_F(CouplerCurve, LeavesAGapWhereRowsFailed) {
    Fail(2);
    Draw();
    Expect_Drawn(Joined({{Dot(kC0, kCyan)},
                         Chain({kC0, kC0, kC1}, kCyan),
                         {Dot(kC3, kCyan)},
                         Chain({kC3, kC3, kC4}, kCyan)}));
}

TEST_F(CouplerCurve, LeavesAGapAtAFailedRowThatStillHoldsAPoint) {
    tables.StepValid(1) = tables.StepValid(2) = false;
    Draw();
    Expect_Drawn(Joined(
        {{Dot(kC0, kCyan)}, Chain({kC0, kC0}, kCyan), {Dot(kC3, kCyan)}, Chain({kC3, kC3, kC4}, kCyan)}));
}

TEST_F(CouplerCurve, BeginsAtTheFirstRowThatAssembled) {
    Fail(0);
    Draw();
    Expect_Drawn(Joined({{Dot(kC1, kCyan), Dot(kC1, kCyan)}, Chain({kC1, kC1, kC2, kC3, kC4}, kCyan)}));
}

TEST_F(CouplerCurve, OfAllRowsFailedIsAPointAtTheOrigin) {
    for (std::int16_t step = 0; step <= 4; ++step) Fail(step);
    Draw();
    Expect_Drawn({Dot({0, 10}, kCyan)});
}

TEST_F(CouplerCurve, WithAllItsPointsAtTheOriginIsAPointThere) {
    for (std::int16_t step = 0; step <= 4; ++step) Put_Point(step, 2, 0, 0);
    program->animation.PathX = program->animation.PathY = 77;
    Draw();
    Expect_Drawn({Dot({0, 10}, kCyan)});
    EXPECT_EQ(program->animation.PathX, 0);
    EXPECT_EQ(program->animation.PathY, 0);
}

TEST_F(CouplerCurve, PassesOverAPointAtTheOriginButNotOverOneOnAnAxis) {
    Put_Point(1, 2, 0, 0);
    Put_Point(2, 2, 3, 0);
    Put_Point(3, 2, 0, 3);
    Draw();
    Expect_Drawn(Joined({{Dot(kC0, kCyan)}, Chain({kC0, kC0, {3, 10}, {0, 7}, kC4}, kCyan)}));
}

TEST_F(CouplerCurve, TurnsWithTheGroundAndLooksForZerosBeforeTurning) {
    model.NumSteps = 2;
    Put_Point(0, 2, 0, 0);
    Turn_Ground(90);
    Draw();
    // (2, 1) and (3, 1) become (-1, 2) and (-1, 3).
    Expect_Drawn(Joined({{Dot({-1, 8}, kCyan)}, Chain({{-1, 8}, {-1, 8}, {-1, 7}}, kCyan)}), kTurned);
    EXPECT_NEAR(program->animation.PathX, -1, kTurned);
    EXPECT_NEAR(program->animation.PathY, 3, kTurned);
}

TEST_F(CouplerCurve, BeyondTheTablesIsAFaultBehindTheLastRow) {
    model.NumSteps = 1025;
    Draw();
    Expect_Fault(9, "DrawCouplerCurve");
    Expect_Drawn(Joined({{Dot(kC0, kCyan)}, Chain({kC0, kC0, kC1, kC2, kC3, kC4}, kCyan)}));
}

}  // namespace
}  // namespace kervol
