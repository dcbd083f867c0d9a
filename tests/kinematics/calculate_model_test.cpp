// SPDX-License-Identifier: GPL-3.0-or-later
// The whole calculation of a mode: its refusals, its sweep and the flags it closes with.
#include <array>

#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

struct Flags {
    bool DataCalculated, DataFromFile, DynamicsCalculated, NewData;

    bool operator==(const Flags&) const = default;
};

constexpr Flags kClosed = {true, false, false, true};

class CalculateModelTest : public KinematicsTest {
  protected:
    void SetUp() override {
        Put_Four_Bar(2, 5, 6, 7);
        model.Omega2Start = 10;
        model.ThetaMinDeg = 0;
        model.ThetaMaxDeg = 360;
        model.ThetaStepDeg = 10;
        model.TimeStart = 0;
        model.TimeEnd = 1;
        model.TimeStep = 0.1F;
        Poison_Tables(tables);
    }

    /// All that the closing work changes stands the other way round before.
    CalculationEnd Calculate_Mode(std::int16_t mode) {
        model.CalcMode = mode;
        model.DataCalculated = model.DataFromFile = model.DynamicsCalculated = true;
        model.NewData = false;
        return Calculate_Model(*program);
    }

    Flags Now() const {
        return {model.DataCalculated, model.DataFromFile, model.DynamicsCalculated, model.NewData};
    }

    void Expect_No_Sweep() {
        ResultTables poisoned;
        Poison_Tables(poisoned);
        EXPECT_EQ(tables.Theta, poisoned.Theta);
        EXPECT_EQ(tables.Omega, poisoned.Omega);
        EXPECT_EQ(tables.StepValid, poisoned.StepValid);
    }
};

TEST_F(CalculateModelTest, EachCalculatedModeEndsDone) {
    const std::int16_t steps[] = {0, 10, 36};
    for (const auto mode : std::to_array<std::int16_t>({1, 2, 3})) {
        EXPECT_EQ(Calculate_Mode(mode), CalculationEnd::Done);
        EXPECT_EQ(Now(), kClosed) << mode;
        EXPECT_EQ(model.NumSteps, steps[mode - 1]);
        EXPECT_TRUE(tables.StepValid(steps[mode - 1]));
    }
}

TEST_F(CalculateModelTest, ImportedModesRunTheDriveWithoutACount) {
    model.DriveScale = 1;
    for (const auto mode : std::to_array<std::int16_t>({4, 5})) {
        for (int row = 0; row <= 5; ++row) {
            tables.DriveTheta(row) = static_cast<float>(10 * row);
            tables.Omega(row, 0) = 5;
        }
        model.TimeStep = 0;
        model.ThetaStepDeg = 0;
        model.NumSteps = 5;
        model.Stage1Class = "kept";
        EXPECT_EQ(Calculate_Mode(mode), CalculationEnd::Done);
        EXPECT_EQ(Now(), kClosed) << mode;
        EXPECT_EQ(model.NumSteps, 5);
        EXPECT_EQ(tables.Omega(5, 0), 5);
        EXPECT_EQ(model.Stage1Class, "kept");
    }
}

TEST_F(CalculateModelTest, DriveOfTooManyRowsIsAFaultAndClosesAllTheSame) {
    model.NumSteps = 400;
    tables.Omega.Fill(5);
    tables.Alpha.Fill(0);
    tables.DriveTheta.Fill(40);
    EXPECT_EQ(Calculate_Mode(5), CalculationEnd::Done);
    Expect_Fault(9, "Calc_Drive_Data");
    EXPECT_EQ(Now(), kClosed);
}

TEST_F(CalculateModelTest, ZeroAngleStepIsRefusedAndClosesOverTheOldTables) {
    model.ThetaStepDeg = 0;
    EXPECT_EQ(Calculate_Mode(3), CalculationEnd::Refused);
    Expect_Box("Cannot have a zero step size - Please check your data.", Icon::Exclamation);
    EXPECT_EQ(Now(), kClosed);
    Expect_No_Sweep();
}

TEST_F(CalculateModelTest, TooManyAngleStepsAreRefusedWithoutTheClosingWork) {
    model.ThetaStepDeg = 0.1F;
    EXPECT_EQ(Calculate_Mode(3), CalculationEnd::Refused);
    Expect_Box("Your angle steps are too small - Have > 1024 Points - Increase Delta Theta",
               Icon::Exclamation);
    EXPECT_EQ(Now(), (Flags{false, true, true, false}));
    Expect_No_Sweep();
}

TEST_F(CalculateModelTest, BadTimeStepsAreRefusedInMode1TooAndCloseOverTheOldTables) {
    for (const auto mode : std::to_array<std::int16_t>({1, 2}))
        for (const float step : {0.0F, -0.1F, 0.0001F, 1e-9F}) {
            model.TimeStep = step;
            EXPECT_EQ(Calculate_Mode(mode), CalculationEnd::Refused);
            Expect_Box(
                "Your time steps are too small - Have > 1024 Points - Increase Delta Time or Reduce "
                "Finish Time",
                Icon::Exclamation);
            EXPECT_EQ(Now(), kClosed) << mode << " " << step;
            Expect_No_Sweep();
        }
}

TEST_F(CalculateModelTest, Mode1PassesTheTimeCheckBeforeItsCountBecomesZero) {
    model.TimeEnd = 102.4F;
    EXPECT_EQ(Calculate_Mode(1), CalculationEnd::Done);
    EXPECT_EQ(model.NumSteps, 0);
}

TEST_F(CalculateModelTest, AngleModeDoesNotLookAtTheTimeRange) {
    model.TimeStep = 0;
    EXPECT_EQ(Calculate_Mode(3), CalculationEnd::Done);
}

TEST_F(CalculateModelTest, TimeModesDoNotLookAtTheAngleRange) {
    model.ThetaStepDeg = 0;
    EXPECT_EQ(Calculate_Mode(2), CalculationEnd::Done);
}

TEST_F(CalculateModelTest, SweepOf1025RowsIsDoneAndOneMoreIsRefused) {
    model.TimeEnd = 102.4F;
    EXPECT_EQ(Calculate_Mode(2), CalculationEnd::Done);
    EXPECT_EQ(model.NumSteps, 1024);
    EXPECT_TRUE(tables.StepValid(1024));
    model.TimeEnd = 102.5F;
    EXPECT_EQ(Calculate_Mode(2), CalculationEnd::Refused);
    EXPECT_EQ(model.NumSteps, 1025);
    Take_Box();
}

TEST_F(CalculateModelTest, AbortInEachCalculatedModeEndsAbandonedWithoutTheClosingWork) {
    Put_Limited_Four_Bar();
    model.Theta2One = 100;
    Answer_With({Answer::Abort});
    for (const auto mode : std::to_array<std::int16_t>({1, 2, 3})) {
        EXPECT_EQ(Calculate_Mode(mode), CalculationEnd::Abandoned);
        Take_Box();
        EXPECT_EQ(Boxes_Left(), 0U);
        EXPECT_FALSE(model.DataCalculated);
        EXPECT_EQ(model.DataFromFile, mode != 3) << "the angle sweep had solved rows before, the others none";
        EXPECT_FALSE(model.DynamicsCalculated) << "the sweep's own";
        EXPECT_TRUE(model.NewData) << "the sweep's own";
    }
}

TEST_F(CalculateModelTest, RetryAndIgnoreCloseEvenWhereNoRowSolved) {
    Put_Limited_Four_Bar();
    model.Theta2One = 100;
    for (const Answer answer : {Answer::Retry, Answer::Ignore}) {
        Answer_With({answer});
        EXPECT_EQ(Calculate_Mode(1), CalculationEnd::Done);
        Expect_Cannot_Assemble(" 1", "100");
        EXPECT_EQ(Now(), kClosed);
        EXPECT_TRUE(model.SomeStepFailed);
    }
}

TEST_F(CalculateModelTest, DriveCountsAsAbandonedByItsLastAnswer) {
    Put_Limited_Four_Bar();
    model.NumSteps = 2;
    tables.Omega.Fill(5);
    tables.Alpha.Fill(0);
    const float angles[] = {100, 200, 40};
    for (int row = 0; row <= 2; ++row) tables.DriveTheta(row) = angles[row];

    Answer_With({Answer::Retry, Answer::Abort});
    EXPECT_EQ(Calculate_Mode(5), CalculationEnd::Abandoned);
    Take_Box();
    Take_Box();
    Answer_With({Answer::Abort, Answer::Retry});
    EXPECT_EQ(Calculate_Mode(5), CalculationEnd::Done);
    Take_Box();
    Take_Box();
    EXPECT_EQ(Now(), kClosed);
}

TEST_F(CalculateModelTest, UnknownModeSweepsNothing) {
    for (const auto mode : std::to_array<std::int16_t>({0, -1, 6, 32767})) {
        model.NumSteps = 5;
        EXPECT_EQ(Calculate_Mode(mode), CalculationEnd::NoMode);
        EXPECT_EQ(model.NumSteps, 5);
        EXPECT_EQ(Now(), kClosed) << "nobody said Abort";
        Expect_No_Sweep();
    }
}

TEST_F(CalculateModelTest, FaultInTheClassesIsReportedUnderItsOwnNameAndTheSweepGoesOn) {
    // 3E+38 twice is beyond single precision.
    Put_Four_Bar(3e38F, 3e38F, 3.1e38F, 3.1e38F);
    model.Stage1Class = "old";
    model.Theta2One = 12;
    Calculate_Mode(1);
    Expect_Fault(6, "Classify_Stage");
    EXPECT_EQ(model.Stage1Class, "old");
    EXPECT_EQ(model.ThetaMinText, "12") << "the position was tried";
    EXPECT_EQ(model.NumSteps, 0);
    while (Boxes_Left() > 0) Take_Box();
}

}  // namespace
}  // namespace kervol
