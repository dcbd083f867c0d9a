// SPDX-License-Identifier: GPL-3.0-or-later
// The Calculate button where the drive is refused, or positions do not assemble.
#include "screens/calculate_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;

constexpr const char* kManyAngles =
    "Your angle steps are too small - Have > 1024 Points - Increase Delta Theta";
constexpr const char* kManyTimes = "Your time steps are too small - Have > 1024 Points - Increase Delta Time";
constexpr const char* kManyTimesRefused =
    "Your time steps are too small - Have > 1024 Points - Increase Delta Time or Reduce Finish Time";

class CalculateRefusals : public CalculateTest {
  protected:
    void Expect_Abandoned() {
        EXPECT_FALSE(model.DataCalculated);
        EXPECT_EQ(port.pointer, Pointer::Default) << "no run goes on";
    }

    /// Disables the output buttons as an edit does.
    void Edit_Something() { Edit(Link(Field_Delta5), "80"); }
};

TEST_F(CalculateRefusals, ARefusedRunHasPutTheStepBarBackAllTheSame) {
    Calculate_In_Mode(3);
    Move_Bar(20);
    Type(Initial(2), "0.1");
    input.cmd_Calc.click();
    Expect_Warning(kManyAngles);
    Expect_Warning(kManyAngles);
    EXPECT_EQ(input.hsc_step.value, 0);
}

TEST_F(CalculateRefusals, TooManyAngleStepsAreRefusedAndNothingIsClosed) {
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

TEST_F(CalculateRefusals, AStepOfZeroInTheModelIsRefusedAndClosedOverTheOldTables) {
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

TEST_F(CalculateRefusals, ATypedStepOfZeroIsPutBackBeforeItCanBeRefusedAgain) {
    Open_Input_In_Mode(3);
    Type(Initial(2), "0");
    input.cmd_Calc.click();
    Expect_Warning(
        "Cannot have a zero or negative step size\n\nTo rotate CW from max to min, use a negative Omega2.");
    Expect_Done();
    EXPECT_EQ(model.NumSteps, 36);
}

TEST_F(CalculateRefusals, ANegativeStepOverAFallingRangeRuns) {
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

TEST_F(CalculateRefusals, ARangeThatIsTooShortIsWarnedOfAndRunsAllTheSame) {
    Open_Input_In_Mode(3);
    Type(Initial(1), "5");
    input.cmd_Calc.click();
    EXPECT_THAT(Take_Box().text, HasSubstr("too close together"));
    Expect_Done();
    EXPECT_EQ(model.NumSteps, 1);
}

TEST_F(CalculateRefusals, TooManyTimeStepsAreRefusedAndClosedOverTheOldTables) {
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

TEST_F(CalculateRefusals, OnePositionPassesThroughTheSameCheckOfTheTimeStep) {
    model.TimeStep = 0;
    Open_Input_In_Mode(1);
    tables.Theta(0, 0) = 77;
    input.cmd_Calc.click();
    Expect_Warning(kManyTimesRefused);
    EXPECT_EQ(tables.Theta(0, 0), 77);
    EXPECT_TRUE(model.DataCalculated);
}

TEST_F(CalculateRefusals, OneThousandAndTwentyFourStepsRunInBothModes) {
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

TEST_F(CalculateRefusals, AnAbandonedRunLeavesTheButtonsOffAndNothingCalculated) {
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

TEST_F(CalculateRefusals, AnImportedDriveSkipsItsClosingOnlyIfAbortIsTheLastAnswer) {
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

TEST_F(CalculateRefusals, TheClassStandsOnTheScreenBeforeAFailureIsAskedOf) {
    Put_Limited_Linkage();
    Open_Input_In_Mode(3);
    input.Pnl_Grashof[0].caption.clear();
    std::string shown;
    port.while_box = [&] { shown = input.Pnl_Grashof[0].caption; };
    input.cmd_Calc.click();
    Take_Box();
    EXPECT_EQ(shown, "Stage  1  is Non - Grashof");
}

TEST_F(CalculateRefusals, IgnoredFailuresAreAskedOfOnceAndTheRestIsCalculated) {
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

}  // namespace
}  // namespace kervol
