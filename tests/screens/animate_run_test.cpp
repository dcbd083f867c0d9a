// SPDX-License-Identifier: GPL-3.0-or-later
// Run, Step, Reset and the step bar of the Animation screen.
#include <algorithm>

#include "screens/screens_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* kFailedPositions =
    "This linkage cannot connect at some positions\n"
    "and may not animate properly or at all.\n"
    "\n"
    "Use the Step button to move the linkage \n"
    "through all its possible (reachable) positions\n"
    "and note the useable range as reported in \n"
    "the (cyan) box labeled Theta2 at right.\n"
    "\n"
    "Reset Start Theta and End Theta values accordingly.  \n"
    " It will recalculate and then animate properly.";

class AnimateRun : public ScreensTest {
  protected:
    /// Opens over angle steps of a linkage that reaches 18 of 37 rows, the box of the sweep answered.
    void Open_With_Failed_Rows() {
        Put_Limited_Linkage();
        port.answers = {Answer::Ignore};
        Calculate_In_Mode(3);
        Take_Box();
        Open_Animate();
    }
    void Show_Labels(bool shown) {
        for (Label* label : {&animate.lbl_StepLabel, &animate.lbl_StepUnit, &animate.lbl_StepNumber})
            label->visible = shown;
    }
    std::string Shown_Labels() const {
        std::string shown;
        for (const Label* label : {&animate.lbl_StepLabel, &animate.lbl_StepUnit, &animate.lbl_StepNumber})
            shown += label->visible ? "1" : "0";
        return shown;
    }
    /// How often the picture was cleared since the drawings were taken last.
    std::size_t Clearings() const {
        return static_cast<std::size_t>(
            std::count_if(animate_picture.drawn.begin(), animate_picture.drawn.end(),
                          [](const Drawn& drawn) { return drawn.kind == Drawn::Kind::Clear; }));
    }
};

TEST_F(AnimateRun, GoesThroughAllRowsAndLeavesTheLastStanding) {
    Animate_In_Mode(3);
    animate_picture.drawn.clear();
    animate.cmd_Run.click();
    EXPECT_EQ(Clearings(), 2U) << "one of the set-up, one of the cycle";
    EXPECT_EQ(animate_picture.drawn.front().kind, Drawn::Kind::Clear);
    std::vector<int> rows;
    for (int row = 0; row <= 36; ++row) rows.push_back(row);
    rows.push_back(36);
    EXPECT_EQ(Rows_Drawn(), rows);
    EXPECT_THAT(port.holds, SizeIs(37));
    EXPECT_EQ(Shown_Labels(), "000");
    EXPECT_EQ(model.StepMode, "N");
    EXPECT_EQ(program->animation.CurrentStep, 0);
    EXPECT_THAT(port.runs, ElementsAre(true, false));
    EXPECT_TRUE(model.DataCalculated);
}

TEST_F(AnimateRun, PutsTheBarBackFirst) {
    Animate_In_Mode(3);
    Move_Bar(animate.hsc_step, 9);
    Rows_Drawn();
    animate.cmd_Run.click();
    EXPECT_EQ(animate.hsc_step.value, 0);
    EXPECT_EQ(Rows_Drawn().size(), 1U + 38) << "the bar's own change shows the first row";
}

TEST_F(AnimateRun, TakesEverySettingFromItsControls) {
    Animate_In_Mode(3);
    animate.hsc_speed.value = 32767 - 4096;
    animate.txt_Cycles.text = "2";
    animate.chk_Showlinks.on = false;
    animate.chk_Trace.on = true;
    animate.cmb_wait.text = "40";
    animate.cmb_wait.change();
    animate.cmd_Run.click();
    EXPECT_EQ(model.AnimDelay, 4096);
    EXPECT_EQ(model.AnimCycles, 2);
    EXPECT_EQ(model.HideLinks, "Y");
    EXPECT_EQ(model.ShowTrace, "Y");
    EXPECT_THAT(port.holds, SizeIs(74));
    EXPECT_THAT(port.holds, Each(40.0));
}

TEST_F(AnimateRun, RunsInEveryModeThatMoves) {
    const std::pair<std::int16_t, std::size_t> modes[] = {{2, 101}, {3, 37}, {4, 3}, {5, 3}};
    for (const auto& [mode, rows] : modes) {
        Animate_In_Mode(mode);
        port.holds.clear();
        animate.cmd_Run.click();
        EXPECT_EQ(port.holds.size(), rows) << "mode " << mode;
    }
}

TEST_F(AnimateRun, WarnsOfFailedRowsAndThenRuns) {
    Open_With_Failed_Rows();
    Show_Labels(false);
    std::string shown;
    std::size_t held = 1;
    port.while_box = [&] {
        shown = Shown_Labels();
        held = port.holds.size();
    };
    animate.cmd_Run.click();
    Expect_Warning(kFailedPositions);
    EXPECT_EQ(shown, "111");
    EXPECT_EQ(held, 0U) << "the warning comes first";
    EXPECT_THAT(port.holds, SizeIs(18));
    EXPECT_EQ(Shown_Labels(), "000");
    EXPECT_EQ(model.StepMode, "N");
    EXPECT_TRUE(model.SomeStepFailed);
}

TEST_F(AnimateRun, SkipsTheFailedRows) {
    Open_With_Failed_Rows();
    Rows_Drawn();
    animate.cmd_Run.click();
    Take_Box();
    std::vector<int> rows;
    for (int row = 0; row <= 36; ++row)
        if (row <= 8 || row >= 28) rows.push_back(row);
    rows.push_back(36);
    EXPECT_EQ(Rows_Drawn(), rows);
}

TEST_F(AnimateRun, WarnsAgainEachTimeAndNoMoreOnceAllRowsAssemble) {
    Open_With_Failed_Rows();
    animate.cmd_Run.click();
    Expect_Warning(kFailedPositions);
    animate.cmd_Run.click();
    Expect_Warning(kFailedPositions);
    Type(animate.txt_Initial[0], "0");
    Edit(animate.txt_Initial[1], "80");
    animate.cmd_Run.click();
    EXPECT_EQ(Boxes_Left(), 0U);
}

TEST_F(AnimateRun, ThatIsStoppedLeavesTheScreenReadyForTheNext) {
    Animate_In_Mode(3);
    Rows_Drawn();
    animate.txt_Cycles.text = "5";
    port.goes_on = [&] { return port.holds.size() < 4; };
    animate.cmd_Run.click();
    EXPECT_THAT(Rows_Drawn(), ElementsAre(0, 1, 2, 3, 4));
    EXPECT_EQ(program->animation.CurrentStep, 0);
    EXPECT_EQ(animate.hsc_step.value, 0);
    EXPECT_EQ(Animate_Outputs(), "Next Step Run Reset Print");
    EXPECT_TRUE(model.DataCalculated);
    port.goes_on = nullptr;
    port.holds.clear();
    animate.cmd_Run.click();
    EXPECT_THAT(port.holds, SizeIs(5 * 37));
}

TEST_F(AnimateRun, OfNoCyclesLeavesAClearPicture) {
    Animate_In_Mode(3);
    animate.txt_Cycles.text = "0";
    animate_picture.drawn.clear();
    animate.cmd_Run.click();
    EXPECT_EQ(Clearings(), 1U) << "of the set-up";
    EXPECT_THAT(Rows_Drawn(), IsEmpty());
    EXPECT_THAT(port.holds, IsEmpty());
}

class AnimateSteps : public AnimateRun {
  protected:
    AnimateSteps() {
        Animate_In_Mode(3);
        Rows_Drawn();
    }
};

TEST_F(AnimateSteps, AStepAfterARunStandsBesideItsLastPosition) {
    animate.cmd_Run.click();
    Rows_Drawn();
    animate.cmd_Step.click();
    EXPECT_EQ(model.StepMode, "Y");
    EXPECT_EQ(Clearings(), 0U);
    EXPECT_THAT(Rows_Drawn(), ElementsAre(0));
    EXPECT_EQ(Shown_Labels(), "111");
}

TEST_F(AnimateSteps, GoOnAndBeginAgainBehindTheLast) {
    animate.cmd_Step.click();
    EXPECT_EQ(animate.hsc_step.value, 1);
    EXPECT_EQ(program->animation.CurrentStep, 2);
    animate.cmd_Step.click();
    EXPECT_EQ(animate.lbl_StepNumber.caption, "20.0");
    EXPECT_THAT(Rows_Drawn(), ElementsAre(1, 2)) << "and both stand";
    Move_Bar(animate.hsc_step, 36);
    animate.cmd_Step.click();
    EXPECT_EQ(animate.lbl_StepNumber.caption, "360.0");
    animate.cmd_Step.click();
    EXPECT_EQ(animate.hsc_step.value, 0);
    EXPECT_EQ(animate.lbl_StepNumber.caption, "0.0");
    EXPECT_EQ(program->animation.CurrentStep, 1);
    EXPECT_FALSE(animate.Stepping);
}

TEST_F(AnimateSteps, OfOnePositionDrawNothing) {
    Animate_In_Mode(1);
    Rows_Drawn();
    animate.cmd_Step.click();
    EXPECT_TRUE(animate_picture.drawn.empty());
    EXPECT_EQ(program->animation.CurrentStep, 0);
}

TEST_F(AnimateSteps, AreDrawnOnceThoughTheBarMoves) {
    for (const std::int16_t mode : Int16List{2, 3, 5}) {
        Animate_In_Mode(mode);
        Rows_Drawn();
        animate.cmd_Step.click();
        EXPECT_THAT(Rows_Drawn(), ElementsAre(1)) << "mode " << mode;
        EXPECT_EQ(animate.hsc_step.value, 1);
    }
}

TEST_F(AnimateSteps, ResetShowsTheFirstAndTheNextIsOne) {
    animate.cmd_Step.click();
    animate.cmd_Step.click();
    Rows_Drawn();
    animate.cmd_Reset.click();
    EXPECT_THAT(Rows_Drawn(), Each(0));
    EXPECT_EQ(animate.hsc_step.value, 0);
    EXPECT_EQ(program->animation.CurrentStep, 1);
    EXPECT_EQ(animate.lbl_StepNumber.caption, "0.0");
}

TEST_F(AnimateSteps, ResetLeavesEarlierPositionsToStepMode) {
    animate.cmd_Reset.click();
    EXPECT_EQ(Clearings(), 0U);
    animate.cmd_Run.click();
    animate_picture.drawn.clear();
    animate.cmd_Reset.click();
    EXPECT_EQ(Clearings(), 1U);
    EXPECT_EQ(model.StepMode, "N");
}

TEST_F(AnimateSteps, TheBarShowsItsStepWhetherCalculatedOrNot) {
    for (const bool calculated : {true, false}) {
        model.DataCalculated = calculated;
        Move_Bar(animate.hsc_step, 9);
        EXPECT_THAT(Rows_Drawn(), ElementsAre(9));
        EXPECT_EQ(program->animation.CurrentStep, 9);
        EXPECT_EQ(animate.lbl_StepNumber.caption, "90.0");
        animate.hsc_step.value = 10;
        animate.hsc_step.scroll();
        EXPECT_THAT(Rows_Drawn(), ElementsAre(10));
        EXPECT_EQ(program->animation.CurrentStep, 10);
    }
}

TEST_F(AnimateSteps, AChangeWrittenByAStepDoesNotDrawAgainButAScrollDoes) {
    animate.Stepping = true;
    Move_Bar(animate.hsc_step, 9);
    EXPECT_THAT(Rows_Drawn(), IsEmpty());
    EXPECT_EQ(program->animation.CurrentStep, 1);
    animate.hsc_step.scroll();
    EXPECT_THAT(Rows_Drawn(), ElementsAre(9));
    EXPECT_EQ(program->animation.CurrentStep, 9);
}

TEST_F(AnimateSteps, TheBarShowsPositionsThatFailedAsTheyStandInTheTables) {
    Open_With_Failed_Rows();
    Rows_Drawn();
    Move_Bar(animate.hsc_step, 18);
    EXPECT_EQ(program->animation.CurrentStep, 18);
    EXPECT_EQ(animate.lbl_StepNumber.caption, "0.0");
    EXPECT_FALSE(animate_picture.drawn.empty());
}

TEST_F(AnimateSteps, RowsThatDoNotExistAreNotDrawn) {
    model.NumSteps = 5000;  // as a file may hold it
    animate.cmd_Step.click();
    animate.cmd_Reset.click();
    Move_Bar(animate.hsc_step, 2000);
    EXPECT_TRUE(animate_picture.drawn.empty());
}

TEST_F(AnimateSteps, TheInputScreenIsNotDrawnOn) {
    const std::size_t before = picture.drawn.size();
    animate.cmd_Step.click();
    animate.cmd_Reset.click();
    Move_Bar(animate.hsc_step, 5);
    animate.cmd_Run.click();
    EXPECT_EQ(picture.drawn.size(), before);
    EXPECT_EQ(input.hsc_step.value, 1) << "as its own calculation left it";
}

}  // namespace
}  // namespace kervol
