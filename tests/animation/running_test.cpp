// SPDX-License-Identifier: GPL-3.0-or-later
// What a run through all rows draws, and in which order.
#include "animation/running_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::IsEmpty;

class RunDrawing : public Running {};

TEST_F(RunDrawing, ShowsAndErasesEveryRowAndLeavesTheLastStanding) {
    Run();
    Expect_Run({Prepared(), Whole_Cycle()});
}

TEST_F(RunDrawing, ClearsThePictureFirstWhereStepModeIsN) {
    model.StepMode = "N";
    Run();
    Expect_Run({{{Drawn::Kind::Clear}}, Prepared(), Whole_Cycle()});
    EXPECT_EQ(model.StepMode, "N");
}

TEST_F(RunDrawing, UnderTraceDrawsEveryRowTwiceInTheLinksColour) {
    settings.chk_Trace.on = true;
    Run();
    Expect_Run({Prepared(), Whole_Cycle()});
}

TEST_F(RunDrawing, WithHiddenLinksRepaintsPathsAndPivotsAtEveryRow) {
    settings.chk_Showlinks.on = false;
    Run();
    const DrawnList around = Joined({Paths(), Pivots()});
    Expect_Run({Prepared(), Cycle({around, around, around, around})});
}

TEST_F(RunDrawing, MarksTheCouplerPointsInGreenInBothPasses) {
    model.ShowPoints = "Y";
    Run();
    Expect_Run({Prepared(), Whole_Cycle()});
    settings.chk_Showlinks.on = false;
    Run();
    Expect_Run({Prepared(), Whole_Cycle()});
    settings.chk_Trace.on = true;
    Run();
    Expect_Run({Prepared(), Whole_Cycle()});
}

TEST_F(RunDrawing, LeavesOutThePathsWhereTheyAreOff) {
    for (const char* show : {"N", "", "y"}) {
        model.ShowCoupler = show;
        Run();
        Expect_Run({Prepared(), Whole_Cycle()});
    }
}

TEST_F(RunDrawing, SkipsFailedRowsAndLeavesAGapInThePaths) {
    Fail(1);
    Fail(2);
    path = Joined({Stretch({0}), Stretch({3})});
    Run();
    Expect_Run({Prepared(), Cycle({Passed(0), Passed(3), Position(3)})});
    EXPECT_EQ(port.holds.size(), 2U) << "no time passes for what is not drawn";
}

TEST_F(RunDrawing, BeginsAtTheFirstRowThatAssembled) {
    Fail(0);
    // The start is looked for first, and again behind the gap.
    path = Joined({{Dot(Of_Row(1), kCyan)}, Stretch({1, 2, 3})});
    Run();
    Expect_Run({Prepared(), Cycle({Passed(1), Passed(2), Passed(3), Position(3)})});
}

TEST_F(RunDrawing, LeavesNothingStandingWhereTheLastRowFailed) {
    Fail(3);
    path = Stretch({0, 1, 2});
    Run();
    Expect_Run({Prepared(), Cycle({Passed(0), Passed(1), Passed(2)})});
}

TEST_F(RunDrawing, OfRowsThatAllFailedDrawsWhatStaysStill) {
    for (std::int16_t row = 0; row <= 3; ++row) Fail(row);
    path = {Dot(kO2, kCyan)};  // no row has a start for it
    Run();
    Expect_Run({Prepared(), Cycle({})});
    EXPECT_THAT(port.holds, IsEmpty());
}

TEST_F(RunDrawing, EndsItsCycleAtOnceWhereTheFirstRowHasNoPosition) {
    Take_Position(0);
    path = Stretch({1, 2, 3});
    Run();
    Expect_Run({Prepared(), Cycle({})});
    EXPECT_THAT(port.holds, IsEmpty());
}

TEST_F(RunDrawing, LeavesTheRowBeforeStandingWhereOneHasNoPosition) {
    Take_Position(2);
    path = Stretch({0, 1, 3});
    Run();
    Expect_Run({Prepared(), Cycle({Passed(0), Passed(1), Position(1)})});
    EXPECT_EQ(port.holds.size(), 2U);
}

TEST_F(RunDrawing, DrawsNothingOfALastRowWithoutAPosition) {
    Take_Position(3);
    path = Stretch({0, 1, 2});
    Run();
    Expect_Run({Prepared(), Cycle({Passed(0), Passed(1), Passed(2), Position(2)})});
}

TEST_F(RunDrawing, GoesOnToTheNextCycleBehindARowWithoutAPosition) {
    Take_Position(1);
    path = Stretch({0, 2, 3});
    settings.txt_Cycles.text = "2";
    Run();
    const DrawnList cycle = Cycle({Passed(0), Position(0)});
    Expect_Run({Prepared(), cycle, cycle});
}

TEST_F(RunDrawing, OfNoCyclesDrawsNothing) {
    for (const char* cycles : {"0", "", "many", "-3"}) {
        settings.txt_Cycles.text = cycles;
        Run();
        Expect_Run({Prepared()});
    }
    EXPECT_THAT(port.holds, IsEmpty());
}

TEST_F(RunDrawing, OfThreeCyclesSetsUpOnceAndClearsThreeTimes) {
    settings.txt_Cycles.text = "3";
    Run();
    Expect_Run({Prepared(), Whole_Cycle(), Whole_Cycle(), Whole_Cycle()});
    EXPECT_EQ(port.holds.size(), 12U);
}

TEST_F(RunDrawing, OfACamDriveShowsItsArmAndItsCam) {
    Put_Cam();
    Run();
    Expect_Run({Prepared(), Whole_Cycle()});
    settings.chk_Showlinks.on = false;
    Run();
    Expect_Run({Prepared(), Whole_Cycle()});
}

TEST_F(RunDrawing, FramesTheMotionFirstWhereAutoscaleIsOn) {
    for (int link = 1; link <= 7; ++link) model.LinkTable(link) = 4;
    view.chk_autoscale.on = true;
    Run();
    // From the origin to O6, and a quarter of a link around.
    EXPECT_EQ(picture.drawn.front(), (Drawn{Drawn::Kind::Scale, -1, -1, 8, 8}));
}

TEST_F(RunDrawing, HidesTheValueOfTheStepAlsoWithoutACycle) {
    for (const char* cycles : {"1", "0"}) {
        settings.txt_Cycles.text = cycles;
        view.lbl_StepLabel.visible = view.lbl_StepUnit.visible = view.lbl_StepNumber.visible = true;
        bool hidden = true;
        port.goes_on = [&] {
            hidden = hidden && !view.lbl_StepLabel.visible && !view.lbl_StepUnit.visible &&
                     !view.lbl_StepNumber.visible;
            return true;
        };
        Run();
        EXPECT_TRUE(hidden) << "while it runs";
        EXPECT_FALSE(view.lbl_StepLabel.visible);
        EXPECT_FALSE(view.lbl_StepUnit.visible);
        EXPECT_FALSE(view.lbl_StepNumber.visible);
    }
}

TEST_F(RunDrawing, SetsTheCurrentStepToZeroAndLeavesTheBar) {
    program->animation.CurrentStep = 3;
    view.hsc_step.value = 2;
    port.goes_on = [this] {
        EXPECT_EQ(program->animation.CurrentStep, 0);
        return true;
    };
    Run();
    EXPECT_EQ(program->animation.CurrentStep, 0);
    EXPECT_EQ(view.hsc_step.value, 2);
}

TEST_F(RunDrawing, LeavesTheLinksColourAtRest) {
    program->animation.LinkColour = kWhite;
    Run();
    EXPECT_EQ(program->animation.LinkColour, kMagenta);
    Fail(3);
    Run();
    EXPECT_EQ(program->animation.LinkColour, kMagenta) << "erasing came last";
    Take_Position(1);
    Run();
    EXPECT_EQ(program->animation.LinkColour, kMagenta);
}

}  // namespace
}  // namespace kervol
