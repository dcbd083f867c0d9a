// SPDX-License-Identifier: GPL-3.0-or-later
// ReDraw, Step, Reset, the step bar, Next, Back and Print of the Input screen.
#include "screens/screens_fixture.h"
#include "support/compare.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ReDrawButton : public ScreensTest {
  protected:
    ReDrawButton() { Open_Input_In_Mode(3); }
};

TEST_F(ReDrawButton, PreviewsAFullTurnInTenStepsWithoutTouchingTheRange) {
    model.ThetaMinDeg = 20;
    model.ThetaMaxDeg = 80;
    model.ThetaStepDeg = 5;
    model.ThetaMinText = "20";
    model.ThetaMaxText = "80";
    model.ThetaStepText = "5";
    Open_Input();
    input.cmd_Draw.click();
    EXPECT_EQ(model.NumSteps, 10);
    EXPECT_EQ(model.ThetaMin, 0);
    EXPECT_FLOAT_EQ(model.ThetaMax, 6.283185308F);
    EXPECT_NEAR(tables.Theta(5, 0), 180, 1e-4);
    EXPECT_EQ(model.ThetaMinDeg, 20);
    EXPECT_EQ(model.ThetaMaxDeg, 80);
    EXPECT_EQ(model.ThetaStepDeg, 5);
    EXPECT_THAT((std::vector{model.ThetaMinText, model.ThetaMaxText, model.ThetaStepText}),
                ElementsAre("20", "80", "5"));
    EXPECT_THAT(Initial_Texts(), ElementsAre("20", "80", "5"));
    input.cmd_Calc.click();
    EXPECT_EQ(model.NumSteps, 12) << "the user's range is back";
    EXPECT_EQ(tables.Theta(0, 0), 20);
}

TEST_F(ReDrawButton, CountsAsNoCalculation) {
    Edit(Link(Field_Link3), "8.5");
    input.cmd_Draw.enabled = true;
    model.DynamicsCalculated = true;
    model.NewData = false;
    input.cmd_Draw.click();
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_FALSE(model.DynamicsCalculated);
    EXPECT_TRUE(model.NewData);
    EXPECT_EQ(Outputs(), "Next Step Reset Print ReDraw");
    EXPECT_FALSE(Picture_Is_Clear());
    EXPECT_EQ(program->animation.CurrentStep, 1);
    EXPECT_EQ(input.lbl_StepNumber.caption, "0.0");
    EXPECT_EQ(input.Pnl_Grashof[0].caption, "Stage  1  is Grashof");
}

TEST_F(ReDrawButton, ReadsTheGeometryThatIsStillBeingTyped) {
    Type(Link(Field_Link3), "8.5");
    input.cmd_Draw.click();
    EXPECT_EQ(model.Link3, 8.5F);
}

TEST_F(ReDrawButton, ALinkageThatCannotTurnGetsTwoDegreesAndLosesTheTimeSteps) {
    Put_Limited_Linkage();
    Open_Input();
    input.cmd_Draw.click();
    EXPECT_EQ(model.Stage1Class, "N");
    EXPECT_EQ(model.NumSteps, 10);
    EXPECT_FLOAT_EQ(model.ThetaMin, -0.017453293F);
    EXPECT_FLOAT_EQ(model.ThetaMax, 0.017453293F);
    EXPECT_FALSE(input.opt_Calctype[2].enabled);
    EXPECT_TRUE(input.opt_Calctype[0].enabled);
    EXPECT_EQ(input.Pnl_Grashof[0].caption, "Stage  1  is Non - Grashof");
}

TEST_F(ReDrawButton, TheTimeStepsComeBackOnceItCanTurn) {
    Put_Limited_Linkage();
    Open_Input();
    input.cmd_Draw.click();
    ASSERT_FALSE(input.opt_Calctype[2].enabled);
    Edit(Link(Field_Link2), "1");
    Edit(Link(Field_Link3), "4");
    input.cmd_Calc.click();
    EXPECT_NE(model.Stage1Class, "N");
    EXPECT_TRUE(input.opt_Calctype[2].enabled);
    Edit(Link(Field_Link2), "4");
    Edit(Link(Field_Link3), "3");
    input.cmd_Draw.click();
    ASSERT_FALSE(input.opt_Calctype[2].enabled);
    Edit(Link(Field_Link2), "1");
    Edit(Link(Field_Link3), "4");
    input.cmd_Draw.click();
    EXPECT_TRUE(input.opt_Calctype[2].enabled);
}

TEST_F(ReDrawButton, TheTimeStepsComeBackWithAModelThatCanTurn) {
    Put_Limited_Linkage();
    Open_Input();
    input.cmd_Draw.click();
    ASSERT_FALSE(input.opt_Calctype[2].enabled);
    model.Stage1Class = "Y";  // as a file brings it
    Open_Input();
    EXPECT_TRUE(input.opt_Calctype[2].enabled);
}

TEST_F(ReDrawButton, AnImportedDriveIsNotCut) {
    for (const std::int16_t mode : Int16List{4, 5}) {
        Put_Imported_Drive(mode);
        Open_Input();
        input.cmd_Calc.click();
        const float before = tables.Theta(2, 0);
        input.cmd_Draw.click();
        EXPECT_EQ(model.NumSteps, 2);
        EXPECT_EQ(tables.DriveTheta(2), 90);
        EXPECT_EQ(tables.Omega(2, 0), 10);
        EXPECT_EQ(tables.Theta(2, 0), before);
        EXPECT_EQ(input.hsc_step.maximum, 2);
        EXPECT_FALSE(model.DataCalculated);
    }
}

TEST_F(ReDrawButton, OnePositionIsSeen) {
    model.Theta2One = 60;
    Open_Input_In_Mode(1);
    input.cmd_Draw.click();
    EXPECT_FALSE(Picture_Is_Clear());
    EXPECT_EQ(input.lbl_StepNumber.caption, "60.0");
    EXPECT_FALSE(model.DataCalculated);
}

class StepControls : public ScreensTest {
  protected:
    /// Whether something is drawn while this runs.
    bool Draws(const std::function<void()>& action) {
        const std::size_t before = picture.drawn.size();
        action();
        return picture.drawn.size() > before;
    }
};

TEST_F(StepControls, StepGoesOnAndBeginsAgainBehindTheLast) {
    Calculate_In_Mode(3);
    model.StepMode = "N";
    input.cmd_Step.click();
    EXPECT_EQ(model.StepMode, "Y");
    EXPECT_EQ(input.hsc_step.value, 2);
    EXPECT_EQ(program->animation.CurrentStep, 3);
    EXPECT_EQ(input.lbl_StepNumber.caption, "20.0");
    Move_Bar(36);
    input.cmd_Step.click();
    EXPECT_EQ(program->animation.CurrentStep, 37);
    EXPECT_EQ(input.lbl_StepNumber.caption, "360.0");
    input.cmd_Step.click();
    EXPECT_EQ(program->animation.CurrentStep, 1);
    EXPECT_EQ(input.hsc_step.value, 0);
    EXPECT_FALSE(input.Stepping);
}

TEST_F(StepControls, ResetShowsTheFirstAndTheNextIsOne) {
    Calculate_In_Mode(3);
    Move_Bar(9);
    input.cmd_Reset.click();
    EXPECT_EQ(input.hsc_step.value, 0);
    EXPECT_EQ(program->animation.CurrentStep, 1);
    EXPECT_EQ(input.lbl_StepNumber.caption, "0.0");
}

TEST_F(StepControls, TheBarShowsItsStepOnlyOverCalculatedData) {
    Calculate_In_Mode(3);
    EXPECT_TRUE(Draws([&] { Move_Bar(9); }));
    EXPECT_EQ(program->animation.CurrentStep, 9);
    EXPECT_EQ(input.lbl_StepNumber.caption, "90.0");
    EXPECT_TRUE(Draws([&] {
        input.hsc_step.value = 10;
        input.hsc_step.scroll();
    }));
    EXPECT_EQ(program->animation.CurrentStep, 10);
    model.DataCalculated = false;
    EXPECT_FALSE(Draws([&] { Move_Bar(3); }));
    EXPECT_FALSE(Draws([&] { input.hsc_step.scroll(); }));
    EXPECT_EQ(program->animation.CurrentStep, 10);
}

TEST_F(StepControls, AChangeWrittenByAStepDoesNotDrawAgainButAScrollDoes) {
    Calculate_In_Mode(3);
    input.Stepping = true;
    EXPECT_FALSE(Draws([&] { Move_Bar(9); }));
    EXPECT_TRUE(Draws([&] { input.hsc_step.scroll(); }));
}

TEST_F(StepControls, RowsThatDoNotExistAreNotDrawn) {
    Calculate_In_Mode(3);
    model.NumSteps = 5000;  // as a file may hold it
    EXPECT_FALSE(Draws([&] { input.cmd_Step.click(); }));
    EXPECT_FALSE(Draws([&] { input.cmd_Reset.click(); }));
    EXPECT_FALSE(Draws([&] { Move_Bar(2000); }));
}

class LeavingInput : public ScreensTest {
  protected:
    LeavingInput() {
        Open_Input();
        port.trace.clear();
    }
};

TEST_F(LeavingInput, NextTakesTheTitle) {
    Type(input.txt_header, "My crank");
    program->animation.CurrentStep = 9;
    port.opening[ScreenId::frm_Animate] = [&] { EXPECT_EQ(program->animation.CurrentStep, 0); };
    input.cmd_Next.click();
    EXPECT_EQ(model.ModelTitle, "My crank");
    EXPECT_EQ(model.DesignNumber, 1) << "nothing was edited";
    EXPECT_THAT(port.trace, ElementsAre("hide frm_Inputnew", "show frm_Animate modal"));
}

TEST_F(LeavingInput, NextTakesAnEmptyTitleToo) {
    Type(input.txt_header, "");
    input.cmd_Next.click();
    EXPECT_EQ(model.ModelTitle, "");
    Type(input.txt_header, "Figure");
    input.cmd_Next.click();
    EXPECT_EQ(model.ModelTitle, "Figure");
}

TEST_F(LeavingInput, NextCountsTheDesignOnlyAfterAnEditOfTheGeometry) {
    Edit(Link(Field_Link3), "8.5");
    input.cmd_Next.click();
    EXPECT_EQ(model.DesignNumber, 2);
    Open_Input();
    input.cmd_Next.click();
    EXPECT_EQ(model.DesignNumber, 2) << "forgotten as the screen opened";
    Open_Input();
    Edit(Initial(2), "5");
    input.cmd_Next.click();
    EXPECT_EQ(model.DesignNumber, 2) << "the range is no geometry";
}

TEST_F(LeavingInput, NextOfOnePositionGoesHome) {
    Open_Input_In_Mode(1);
    port.trace.clear();
    input.cmd_Next.click();
    EXPECT_THAT(port.trace, ElementsAre("hide frm_Inputnew"));
}

TEST_F(LeavingInput, BackTakesNothing) {
    Type(input.txt_header, "My crank");
    Edit(Link(Field_Link3), "8.5");
    const LinkageModel before = model;
    input.cmd_Cancel.click();
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
    EXPECT_THAT(port.trace, ElementsAre("hide frm_Inputnew"));
}

TEST_F(LeavingInput, PrintWarnsAndPrintsOnYesAlone) {
    Expect_Print_Asks(input.cmd_Print, ScreenId::frm_Inputnew);
}

}  // namespace
}  // namespace kervol
