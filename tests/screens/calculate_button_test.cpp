// SPDX-License-Identifier: GPL-3.0-or-later
// The Calculate button in every mode of the drive.
#include "screens/calculate_fixture.h"
#include "screens/input_events.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

class CalculateButton : public CalculateTest {
  protected:
    std::string Shown_Ends() const {
        std::string shown;
        for (const Label* label : {&input.lbl_cw, &input.lbl_ccw, &input.lbl_time})
            shown += label->visible ? "1" : "0";
        return shown;
    }
};

TEST_F(CalculateButton, AngleStepsAreSweptAndTwoPositionsDrawn) {
    Open_Input_In_Mode(3);
    model.DataFromFile = model.DynamicsCalculated = true;
    model.NewData = false;
    model.StepMode = "N";
    input.cmd_Calc.click();
    Expect_Done();
    EXPECT_EQ(Outputs(), kAll);
    EXPECT_EQ(model.NumSteps, 36);
    EXPECT_NEAR(tables.Theta(9, 0), 90, 1e-3);
    EXPECT_EQ(program->animation.CurrentStep, 2) << "step 1 is drawn";
    EXPECT_EQ(input.hsc_step.value, 1);
    EXPECT_EQ(input.lbl_StepNumber.caption, "10.0");
    EXPECT_EQ(Shown_Ends(), "110");
    EXPECT_TRUE(input.lbl_StepLabel.visible && input.lbl_StepUnit.visible && input.lbl_StepNumber.visible);
    EXPECT_TRUE(home.mnu_CalcFFT.enabled);
    EXPECT_TRUE(home.cmd_Plot.enabled);
    EXPECT_EQ(input.Pnl_Grashof[0].caption, "Stage  1  is Grashof");
    EXPECT_EQ(input.Pnl_Grashof[1].caption, "Stage  2  is Grashof");
}

TEST_F(CalculateButton, ReadsTheRangeFromTheFieldsAndTheSpeed) {
    Open_Input_In_Mode(3);
    Type(Initial(0), "10");
    Type(Initial(1), "50");
    Type(Initial(2), "20");
    Type(Initial(3), "-4");
    input.cmd_Calc.click();
    EXPECT_EQ(model.NumSteps, 2);
    EXPECT_EQ(model.Omega2Start, -4);
    EXPECT_EQ(model.Alpha2Const, 0);
    EXPECT_EQ(tables.Theta(0, 0), 50) << "from the maximum down";
    EXPECT_NEAR(tables.Theta(2, 0), 10, 1e-3);
}

TEST_F(CalculateButton, TimeStepsAreSweptAndOnePositionDrawn) {
    Open_Input_In_Mode(2);
    Type(Initial(0), "0");
    Type(Initial(1), "0.4");
    Type(Initial(2), "0.1");
    Type(Initial(3), "2");
    Type(Initial(4), "1");
    Type(Initial(5), "30");
    input.cmd_Calc.click();
    Expect_Done();
    EXPECT_EQ(Outputs(), kAll);
    EXPECT_EQ(model.NumSteps, 4);
    EXPECT_EQ(model.Omega2Start, 2);
    EXPECT_EQ(model.Alpha2Const, 1);
    EXPECT_EQ(model.Theta2One, 30);
    EXPECT_NEAR(tables.Theta(0, 0), 30, 1e-4);
    EXPECT_NEAR(tables.Omega(4, 0), 2.4, 1e-5);
    EXPECT_EQ(program->animation.CurrentStep, 1);
    EXPECT_EQ(input.hsc_step.value, 0);
    EXPECT_EQ(input.lbl_StepNumber.caption, "0.00");
    EXPECT_TRUE(input.lbl_time.visible);
    EXPECT_FALSE(input.lbl_ccw.visible);
    EXPECT_FALSE(home.mnu_CalcFFT.enabled);
    EXPECT_TRUE(home.cmd_Animate.enabled);
    EXPECT_EQ(model.ThetaMaxText, "0.4");
}

TEST_F(CalculateButton, OnePositionTakesTheShownFieldAndIsDrawn) {
    Open_Input_In_Mode(1);
    Type(Initial(3), "7");
    Type(Initial(4), "3");
    Type(Initial(5), "42.5");
    input.cmd_Calc.click();
    Expect_Done();
    EXPECT_EQ(model.Theta2One, 42.5F);
    EXPECT_EQ(model.Omega2Start, 7);
    EXPECT_EQ(model.Alpha2Const, 3);
    EXPECT_EQ(model.NumSteps, 0);
    EXPECT_EQ(tables.Theta(0, 0), 42.5F);
    EXPECT_EQ(input.lbl_StepNumber.caption, "42.5");
    EXPECT_FALSE(Picture_Is_Clear());
    EXPECT_EQ(Outputs(), "Next Reset Print ReDraw") << "there is no motion to show";
    EXPECT_THAT(Initial_Texts(2), ElementsAre("42.5", "42.5"));
    EXPECT_FALSE(home.cmd_Plot.enabled);
    EXPECT_FALSE(home.cmd_Animate.enabled);
    EXPECT_EQ(model.ThetaMinText, "42.5");
}

TEST_F(CalculateButton, AnImportedDriveIsSweptAsItStands) {
    for (const std::int16_t mode : Int16List{4, 5}) {
        Put_Imported_Drive(mode);
        Open_Input();
        model.SomeStepFailed = true;
        input.cmd_Calc.click();
        Expect_Done();
        EXPECT_EQ(Outputs(), kAll);
        EXPECT_EQ(model.NumSteps, 2);
        EXPECT_NEAR(tables.Theta(2, 0), 90, 1e-4);
        EXPECT_EQ(tables.Omega(2, 0), 10);
        EXPECT_FALSE(model.SomeStepFailed);
        EXPECT_EQ(Initial(5).text, "0");
        EXPECT_EQ(program->animation.CurrentStep, 1);
        EXPECT_TRUE(home.cmd_Plot.enabled);
        EXPECT_FALSE(home.mnu_CalcFFT.enabled);
    }
}

TEST_F(CalculateButton, AModeThatDoesNotExistSweepsNothing) {
    for (const std::int16_t mode : Int16List{0, 6, -1}) {
        model.CalcMode = mode;
        Open_Input();
        tables.Theta(1, 1) = 77;
        input.cmd_Calc.click();
        EXPECT_EQ(tables.Theta(1, 1), 77);
    }
}

TEST_F(CalculateButton, StartsFromTheFirstStep) {
    Calculate_In_Mode(3);
    Move_Bar(20);
    ASSERT_EQ(program->animation.CurrentStep, 20);
    input.cmd_Calc.click();
    EXPECT_EQ(input.hsc_step.value, 1);
    EXPECT_EQ(program->animation.CurrentStep, 2);
}

TEST_F(CalculateButton, TheClassOfTheLinkageIsShown) {
    Open_Input();
    // Two pairs of equal links.
    Edit(Link(Field_Link2), "9.375");
    Edit(Link(Field_Link3), "7");
    input.cmd_Calc.click();
    if (Boxes_Left() > 0) Take_Box();  // it may be folded flat
    EXPECT_EQ(input.Pnl_Grashof[0].caption, "Stage  1  is Special Case Grashof");
    Put_Limited_Linkage();
    Open_Input();
    input.cmd_Calc.click();
    Take_Box();
    EXPECT_EQ(input.Pnl_Grashof[0].caption, "Stage  1  is Non - Grashof");
}

TEST_F(CalculateButton, TheBusyPointerIsShownWhileItRuns) {
    Put_Limited_Linkage();
    Open_Input_In_Mode(3);
    bool busy = false;
    port.answers = {Answer::Ignore};
    class Watching : public RecordingPicture {
      public:
        explicit Watching(std::function<void()> seen) : seen_(std::move(seen)) {}
        void Set_Background(Colour colour) override {
            seen_();
            RecordingPicture::Set_Background(colour);
        }

      private:
        std::function<void()> seen_;
    } watching([&] { busy = busy || port.pointer == Pointer::Busy; });
    input.Picture1 = &watching;
    input.cmd_Calc.click();
    Take_Box();
    EXPECT_TRUE(busy);
    EXPECT_EQ(port.pointer, Pointer::Default);
}

TEST_F(CalculateButton, OutputsAreSwitchedTogether) {
    Open_Input();
    Enable_Outputs(*screens);
    EXPECT_EQ(Outputs(), kAll);
    EXPECT_TRUE(model.DataCalculated);
    picture.Circle(0, 0, 1, {});
    Enable_Outputs(*screens);
    EXPECT_FALSE(Picture_Is_Clear());
    Disable_Outputs(*screens);
    EXPECT_EQ(Outputs(), "");
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_TRUE(Picture_Is_Clear());
    EXPECT_TRUE(input.cmd_Calc.enabled);
    EXPECT_TRUE(input.cmd_Cancel.enabled);
}

}  // namespace
}  // namespace kervol
