// SPDX-License-Identifier: GPL-3.0-or-later
// Checks of the drive's fields as they are left, in their order.
#include "screens/motion_fields.h"
#include "screens/screens_fixture.h"
#include "support/compare.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kClockwise = "\n\nTo rotate CW from max to min, use a negative Omega2.";
constexpr const char* kAngleOrder = "Minimum angle must be smaller than maximum angle.";
constexpr const char* kAngleStep = "Cannot have a zero or negative step size";
constexpr const char* kTooClose =
    "Something is wrong. \nMin and Max theta are too close together\n or delta theta is too large.";
constexpr const char* kManyAngles =
    "Your angle steps are too small - Have > 1024 Points - Increase Delta Theta";
constexpr const char* kTimeOrder = "Start time must be smaller than end time - will reset.";
constexpr const char* kTimeStep = "Time steps must be positive - will reset";
constexpr const char* kManyTimes = "Your time steps are too small - Have > 1024 Points - Increase Delta Time";

class RangeChecks : public ScreensTest {
  protected:
    /// Types the range and leaves its last field.
    void Enter_Range(std::string_view first, std::string_view last, std::string_view step) {
        Type(Initial(0), first);
        Type(Initial(1), last);
        Edit(Initial(2), step);
    }

    std::vector<float> Angles() const { return {model.ThetaMinDeg, model.ThetaMaxDeg, model.ThetaStepDeg}; }
    std::vector<float> Times() const { return {model.TimeStart, model.TimeEnd, model.TimeStep}; }
    std::vector<std::string> Range_Texts() const {
        return {model.ThetaMinText, model.ThetaMaxText, model.ThetaStepText};
    }
};

class AngleChecks : public RangeChecks {
  protected:
    AngleChecks() { Open_Input_In_Mode(3); }
};

TEST_F(AngleChecks, AGoodRangeIsStored) {
    model.Alpha2Const = -5;
    model.StepMode = "N";
    Enter_Range("-20", "70.5", "0.5");
    EXPECT_THAT(Angles(), ElementsAre(-20, 70.5F, 0.5F));
    EXPECT_THAT(Range_Texts(), ElementsAre("-20", "70.5", "0.5"));
    EXPECT_FLOAT_EQ(model.ThetaMax, static_cast<float>(70.5 * 0.017453292522222223));
    EXPECT_EQ(model.NumSteps, 181);
    EXPECT_EQ(model.Alpha2Const, 0);
    EXPECT_EQ(model.StepMode, "Y");
    EXPECT_EQ(animate.txt_Initial[1].text, "70.5");
}

TEST_F(AngleChecks, AMinimumNotBelowTheMaximumIsRefusedFirstAndBothArePutBack) {
    for (const char* min : {"370", "400"}) {
        Enter_Range(min, "370", "0");
        Expect_Warning(std::string(kAngleOrder) + kClockwise);
        EXPECT_THAT(Angles(), ElementsAre(0, 360, 10));
        EXPECT_THAT(Initial_Texts(), ElementsAre("0", "360", "0")) << "the step is not looked at";
        EXPECT_EQ(Initial(0).put_value, 0);
    }
}

TEST_F(AngleChecks, AStepThatIsNotPositiveIsRefusedNextAndPutBackAlone) {
    for (const char* step : {"0", "-10", "x"}) {
        Enter_Range("10", "50", step);
        Expect_Warning(std::string(kAngleStep) + kClockwise);
        EXPECT_THAT(Angles(), ElementsAre(10, 50, 10)) << "minimum and maximum are stored";
        EXPECT_THAT(Initial_Texts(), ElementsAre("10", "50", "10"));
        EXPECT_EQ(model.NumSteps, 36);
    }
}

TEST_F(AngleChecks, ARangeThatIsTooShortForItsStepIsRefusedWithTheValuesStored) {
    // 0.98 of the step must stay below the range.
    Enter_Range("0", "98", "100");
    Expect_Warning(kTooClose);
    EXPECT_THAT(Angles(), ElementsAre(0, 98, 100));
    EXPECT_THAT(Range_Texts(), ElementsAre("0", "98", "100"));
    EXPECT_EQ(model.NumSteps, 36) << "not counted any more";
    Enter_Range("0", "97", "100");
    Expect_Warning(kTooClose);
    Enter_Range("0", "98.5", "100");
    EXPECT_EQ(model.NumSteps, 1);
    Enter_Range("0", "100", "100");
    EXPECT_EQ(model.NumSteps, 1);
}

TEST_F(AngleChecks, CountsToTheNearestStep) {
    Enter_Range("0", "360", "1");
    EXPECT_EQ(model.NumSteps, 360);
    Enter_Range("0", "100", "30");
    EXPECT_EQ(model.NumSteps, 3);
    Enter_Range("0", "100", "40");
    EXPECT_EQ(model.NumSteps, 3);
}

TEST_F(AngleChecks, UpTo1024StepsPassAndMoreAreRefusedWithTheFocusOnTheStep) {
    Enter_Range("0", "1024", "1");
    EXPECT_EQ(model.NumSteps, 1024);
    EXPECT_EQ(port.focus, "");
    Enter_Range("0", "1025", "1");
    Expect_Warning(kManyAngles);
    EXPECT_EQ(port.trace.back(), "focus frm_Inputnew.txt_Initial_2");
    EXPECT_EQ(model.NumSteps, 1025);
    EXPECT_EQ(Boxes_Left(), 0U) << "nothing is drawn from rows that do not exist";
}

TEST_F(AngleChecks, ACountBeyondSixteenBitsIsRefusedAndLeavesTheOldOne) {
    Enter_Range("0", "360", "0.001");
    Expect_Warning(kManyAngles);
    EXPECT_EQ(model.NumSteps, 36);
}

TEST_F(AngleChecks, TheStepOfTheAnimationScreenTakesTheFocusThere) {
    Type(animate.txt_Initial[2], "0.1");
    Get_InitialCond(*screens, animate);
    Expect_Warning(kManyAngles);
    EXPECT_EQ(port.trace.back(), "focus frm_Animate.txt_Initial_2");
}

TEST_F(AngleChecks, FieldsLeftUntouchedKeepTheirDecimals) {
    model.ThetaStepDeg = 1.2345678F;
    model.ThetaMaxDeg = 359.98764F;
    Open_Input();
    Initial(2).lost_focus();
    EXPECT_THAT(Angles(), ElementsAre(0, 359.98764F, 1.2345678F));
}

TEST_F(AngleChecks, TheSpeedIsNotReadYet) {
    Edit(Initial(3), "25");
    EXPECT_EQ(model.Omega2Start, 10);
}

class TimeChecks : public RangeChecks {
  protected:
    TimeChecks() { Open_Input_In_Mode(2); }
};

TEST_F(TimeChecks, AGoodRangeIsStored) {
    model.StepMode = "N";
    Enter_Range("0.5", "2.5", "0.25");
    EXPECT_THAT(Times(), ElementsAre(0.5F, 2.5F, 0.25F));
    EXPECT_THAT(Range_Texts(), ElementsAre("0.5", "2.5", "0.25"));
    EXPECT_EQ(model.NumSteps, 8);
    EXPECT_EQ(model.Alpha2Const, -5) << "kept in this mode";
    EXPECT_EQ(model.StepMode, "Y");
    EXPECT_THAT(Angles(), ElementsAre(0, 360, 10));
    EXPECT_EQ(animate.txt_Initial[0].text, "0.5");
}

TEST_F(TimeChecks, AStartNotBeforeTheEndIsRefusedFirstAndBothArePutBack) {
    for (const char* start : {"4", "6"}) {
        Enter_Range(start, "4", "0");
        Expect_Warning(kTimeOrder);
        EXPECT_THAT(Times(), ElementsAre(0, 5, 0.05F));
        EXPECT_THAT(Initial_Texts(), ElementsAre("0", "5", "0"));
    }
}

TEST_F(TimeChecks, ANegativeStepIsKeptAsItsAbsoluteValue) {
    Enter_Range("0", "1", "-0.1");
    Expect_Warning(kTimeStep);
    EXPECT_THAT(Times(), ElementsAre(0, 1, 0.1F));
    EXPECT_EQ(Initial(2).text, "0.1");
    EXPECT_EQ(model.ThetaStepText, "0.1");
    EXPECT_EQ(model.NumSteps, 10);
}

TEST_F(TimeChecks, AStepOfZeroKeepsTheOldOne) {
    Enter_Range("0", "1", "0");
    Expect_Warning(kTimeStep);
    EXPECT_THAT(Times(), ElementsAre(0, 1, 0.05F));
    EXPECT_EQ(Initial(2).text, "0.05");
    EXPECT_EQ(model.NumSteps, 20);
}

TEST_F(TimeChecks, UpTo1024StepsPassAndMoreAreWarnedOf) {
    Enter_Range("0", "1024", "1");
    EXPECT_EQ(model.NumSteps, 1024);
    Enter_Range("0", "1025", "1");
    Expect_Warning(kManyTimes);
    EXPECT_THAT(Times(), ElementsAre(0, 1025, 1)) << "and stored all the same";
    EXPECT_EQ(animate.txt_Initial[1].text, "1025") << "and goes on";
    EXPECT_EQ(model.NumSteps, 1025);
}

TEST_F(TimeChecks, AModelWithoutAPositiveStepIsWarnedOfTwice) {
    model.TimeStep = 0;
    Open_Input();
    Initial(2).lost_focus();
    Expect_Warning(kTimeStep);
    Expect_Warning(kManyTimes);
    EXPECT_EQ(model.TimeStep, 0);
}

TEST_F(RangeChecks, OnePositionIsTheAngleOfTheFieldThatIsShown) {
    Open_Input_In_Mode(1);
    model.StepMode = "N";
    Edit(Initial(5), "123.5");
    EXPECT_EQ(model.Theta2One, 123.5F);
    EXPECT_THAT(Initial_Texts(2), ElementsAre("123.5", "123.5"));
    EXPECT_EQ(model.StepMode, "Y");
    model.Theta2One = 33.333332F;
    Open_Input();
    Initial(5).lost_focus();
    EXPECT_EQ(model.Theta2One, 33.333332F);
}

TEST_F(RangeChecks, AnImportedDriveHasNothingToCheck) {
    for (const std::int16_t mode : Int16List{4, 5}) {
        Put_Imported_Drive(mode);
        Open_Input();
        const LinkageModel before = model;
        Get_InitialCond(*screens, input);
        EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
    }
}

TEST_F(RangeChecks, ThePositionOfTheCurrentStepIsDrawn) {
    Calculate_In_Mode(3);
    program->animation.CurrentStep = 4;
    const std::size_t drawn = picture.drawn.size();
    Get_InitialCond(*screens, input);
    EXPECT_GT(picture.drawn.size(), drawn);
    EXPECT_EQ(input.lbl_StepNumber.caption, "40.0");
    EXPECT_EQ(program->animation.CurrentStep, 4);
}

TEST_F(RangeChecks, ThereIsNothingToDrawBehindTheLastRow) {
    Open_Input_In_Mode(3);
    Enter_Range("0", "1024", "1");
    program->animation.CurrentStep = 1025;
    Get_InitialCond(*screens, input);
    EXPECT_EQ(Boxes_Left(), 0U);
}

}  // namespace
}  // namespace kervol
