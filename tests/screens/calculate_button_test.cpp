// SPDX-License-Identifier: GPL-3.0-or-later
// The Calculate button in every mode of the drive, its refusals and abandoned runs.
#include "screens/home_screen.h"
#include "screens/input_events.h"
#include "screens/motion_fields.h"
#include "screens/screens_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* kAll = "Next Step Animate Reset Print ReDraw";
constexpr const char* kManyAngles =
    "Your angle steps are too small - Have > 1024 Points - Increase Delta Theta";
constexpr const char* kManyTimes = "Your time steps are too small - Have > 1024 Points - Increase Delta Time";
constexpr const char* kManyTimesRefused =
    "Your time steps are too small - Have > 1024 Points - Increase Delta Time or Reduce Finish Time";

class CalculateButton : public ScreensTest {
  protected:
    void Expect_Done() {
        EXPECT_TRUE(model.DataCalculated);
        EXPECT_FALSE(model.DataFromFile);
        EXPECT_FALSE(model.DynamicsCalculated);
        EXPECT_TRUE(model.NewData);
        EXPECT_EQ(input.hsc_step.maximum, model.NumSteps);
        EXPECT_EQ(port.pointer, Pointer::Default);
        EXPECT_TRUE(home.mnu_Save.enabled);
        EXPECT_TRUE(home.cmd_Print.enabled);
    }

    std::string Shown_Ends() const {
        std::string shown;
        for (const Label* label : {&input.lbl_cw, &input.lbl_ccw, &input.lbl_time})
            shown += label->visible ? "1" : "0";
        return shown;
    }

    void Expect_Abandoned() {
        EXPECT_FALSE(model.DataCalculated);
        EXPECT_EQ(port.pointer, Pointer::Default) << "no run goes on";
    }

    /// Disables the output buttons as an edit does.
    void Edit_Something() { Edit(Link(Field_Delta5), "80"); }
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

TEST_F(CalculateButton, ARefusedRunHasPutTheStepBarBackAllTheSame) {
    Calculate_In_Mode(3);
    Move_Bar(20);
    Type(Initial(2), "0.1");
    input.cmd_Calc.click();
    Expect_Warning(kManyAngles);
    Expect_Warning(kManyAngles);
    EXPECT_EQ(input.hsc_step.value, 0);
}

TEST_F(CalculateButton, TooManyAngleStepsAreRefusedAndNothingIsClosed) {
    Open_Input_In_Mode(3);
    tables.Theta(1, 1) = 77;
    Type(Initial(2), "0.1");
    input.cmd_Calc.click();
    Expect_Warning(kManyAngles);
    Expect_Warning(kManyAngles);
    Expect_Abandoned();
    EXPECT_EQ(Outputs(), "") << "the edit of the range has switched them off";
    EXPECT_EQ(tables.Theta(1, 1), 77);
    EXPECT_FALSE(home.mnu_Save.enabled);
}

TEST_F(CalculateButton, AStepOfZeroInTheModelIsRefusedAndClosedOverTheOldTables) {
    Open_Input_In_Mode(3);
    model.ThetaStepDeg = 0;
    Open_Input();
    tables.Theta(1, 1) = 77;
    model.NewData = false;
    model.DynamicsCalculated = true;
    input.cmd_Calc.click();
    Expect_Warning(
        "Cannot have a zero or negative step size\n\nTo rotate CW from max to min, use a negative Omega2.");
    Expect_Warning("Cannot have a zero step size - Please check your data.");
    EXPECT_EQ(tables.Theta(1, 1), 77);
    Expect_Done();
    EXPECT_EQ(Outputs(), kAll);
}

TEST_F(CalculateButton, ATypedStepOfZeroIsPutBackBeforeItCanBeRefusedAgain) {
    Open_Input_In_Mode(3);
    Type(Initial(2), "0");
    input.cmd_Calc.click();
    Expect_Warning(
        "Cannot have a zero or negative step size\n\nTo rotate CW from max to min, use a negative Omega2.");
    Expect_Done();
    EXPECT_EQ(model.NumSteps, 36);
}

TEST_F(CalculateButton, ANegativeStepOverAFallingRangeRuns) {
    model.ThetaMinDeg = 90;
    model.ThetaMaxDeg = 0;
    model.ThetaStepDeg = -30;
    Open_Input_In_Mode(3);
    input.cmd_Calc.click();
    Expect_Warning(
        "Minimum angle must be smaller than maximum angle.\n\nTo rotate CW from max to min, use a negative "
        "Omega2.");
    Expect_Done();
    EXPECT_EQ(model.NumSteps, 3);
    EXPECT_NEAR(tables.Theta(0, 0), 0, 1e-3) << "a forward crank is past that end at once";
}

TEST_F(CalculateButton, ARangeThatIsTooShortIsWarnedOfAndRunsAllTheSame) {
    Open_Input_In_Mode(3);
    Type(Initial(1), "5");
    input.cmd_Calc.click();
    EXPECT_THAT(Take_Box().text, HasSubstr("too close together"));
    Expect_Done();
    EXPECT_EQ(model.NumSteps, 1);
}

TEST_F(CalculateButton, TooManyTimeStepsAreRefusedAndClosedOverTheOldTables) {
    Open_Input_In_Mode(2);
    tables.Theta(1, 1) = 77;
    Type(Initial(2), "0.001");
    input.cmd_Calc.click();
    Expect_Warning(kManyTimes);
    Expect_Warning(kManyTimesRefused);
    EXPECT_EQ(tables.Theta(1, 1), 77);
    EXPECT_TRUE(model.DataCalculated);
    EXPECT_EQ(Outputs(), kAll);
    EXPECT_EQ(port.pointer, Pointer::Default);
}

TEST_F(CalculateButton, OnePositionPassesThroughTheSameCheckOfTheTimeStep) {
    model.TimeStep = 0;
    Open_Input_In_Mode(1);
    tables.Theta(0, 0) = 77;
    input.cmd_Calc.click();
    Expect_Warning(kManyTimesRefused);
    EXPECT_EQ(tables.Theta(0, 0), 77);
    EXPECT_TRUE(model.DataCalculated);
}

TEST_F(CalculateButton, OneThousandAndTwentyFourStepsRunInBothModes) {
    Open_Input_In_Mode(2);
    Type(Initial(1), "1024");
    Type(Initial(2), "1");
    input.cmd_Calc.click();
    Expect_Done();
    EXPECT_EQ(model.NumSteps, 1024);
    Open_Input_In_Mode(3);
    Type(Initial(1), "1024");
    Type(Initial(2), "1");
    input.cmd_Calc.click();
    Expect_Done();
    EXPECT_EQ(model.NumSteps, 1024);
    EXPECT_TRUE(tables.StepValid(1024));
}

TEST_F(CalculateButton, AnAbandonedRunLeavesTheButtonsOffAndNothingCalculated) {
    for (const std::int16_t mode : Int16List{1, 2, 3}) {
        Put_Limited_Linkage();
        model.Theta2One = 180;
        model.Alpha2Const = 0;
        Open_Input_In_Mode(mode);
        Edit_Something();
        ASSERT_EQ(Outputs(), "");
        port.answers = {Answer::Abort};
        input.cmd_Calc.click();
        EXPECT_THAT(Take_Box().text, HasSubstr("of linkage cannot connect"));
        Expect_Abandoned();
        EXPECT_EQ(Outputs(), "") << "mode " << mode;
        EXPECT_FALSE(home.mnu_Save.enabled);
        EXPECT_TRUE(input.cmd_Calc.enabled);
        EXPECT_TRUE(input.cmd_Cancel.enabled);
    }
}

TEST_F(CalculateButton, AnImportedDriveSkipsItsClosingOnlyIfAbortIsTheLastAnswer) {
    Put_Limited_Linkage();
    Put_Imported_Drive(4);
    tables.DriveTheta(1) = 180;
    tables.DriveTheta(2) = 190;
    Open_Input();
    port.answers = {Answer::Abort, Answer::Abort};
    input.cmd_Calc.click();
    Take_Box();
    Take_Box();
    EXPECT_EQ(Outputs(), "Print ReDraw");
    port.answers = {Answer::Abort, Answer::Ignore};
    input.cmd_Calc.click();
    Take_Box();
    Take_Box();
    Expect_Done();
    EXPECT_EQ(Outputs(), kAll);
    EXPECT_TRUE(model.SomeStepFailed);
}

TEST_F(CalculateButton, TheClassStandsOnTheScreenBeforeAFailureIsAskedOf) {
    Put_Limited_Linkage();
    Open_Input_In_Mode(3);
    input.Pnl_Grashof[0].caption.clear();
    std::string shown;
    port.while_box = [&] { shown = input.Pnl_Grashof[0].caption; };
    input.cmd_Calc.click();
    Take_Box();
    EXPECT_EQ(shown, "Stage  1  is Non - Grashof");
}

TEST_F(CalculateButton, IgnoredFailuresAreAskedOfOnceAndTheRestIsCalculated) {
    Put_Limited_Linkage();
    Open_Input_In_Mode(3);
    port.answers = {Answer::Ignore};
    input.cmd_Calc.click();
    const MessageBox box = Take_Box();
    EXPECT_EQ(box.icon, Icon::Exclamation);
    EXPECT_EQ(box.buttons, Buttons::AbortRetryIgnore);
    EXPECT_EQ(box.preset, Answer::Ignore);
    Expect_Done();
    EXPECT_TRUE(model.SomeStepFailed);
    EXPECT_FALSE(tables.StepValid(18));
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
