// SPDX-License-Identifier: GPL-3.0-or-later
// The one position and the time-step drive: the crank state of each row.
#include <array>

#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

using TimeStepsTest = SweepFixture;

TEST_F(TimeStepsTest, OnePositionSolvesRow0AtTheLocalAngle) {
    Put_Four_Bar(2, 5, 6, 7, 30);
    Poison_Tables(tables);
    model.NumSteps = 50;
    model.Theta2One = 100;
    model.Omega2Start = -3;
    Sweep(1);
    EXPECT_EQ(model.NumSteps, 0);
    EXPECT_EQ(model.Omega2, -3);
    EXPECT_NEAR(model.Theta2Rad, 70 * RadiansPerDegree, 1e-6);
    EXPECT_NEAR(tables.Theta(0, 0), 100, 1e-4);
    EXPECT_EQ(tables.Omega(0, 0), -3);
    EXPECT_TRUE(tables.StepValid(0));
    EXPECT_EQ(tables.Theta(1, 0), Poison) << "the tables are not cleared";
    EXPECT_EQ(tables.PointVel(0, 6, 0), Poison);
}

struct TextCase {
    float degrees;
    const char* text;
};

TEST_F(TimeStepsTest, OnePositionShowsItsAngleWithOneDecimal) {
    // clang-format off
    for (const auto& [degrees, text] : std::to_array<TextCase>({
             {0, "0"}, {45, "45"}, {12.34F, "12.3"}, {12.25F, "12.3"}, {-12.25F, "-12.2"}, {-7.5F, "-7.5"},
             {-0.04F, "0"}, {1234.56F, "1234.6"},
         })) {
        // clang-format on
        model.Theta2One = degrees;
        model.ThetaMinText = model.ThetaMaxText = model.ThetaStepText = "?";
        Sweep(1);
        EXPECT_EQ(model.ThetaMinText, text);
        EXPECT_EQ(model.ThetaMaxText, text);
        EXPECT_EQ(model.ThetaStepText, "0");
    }
}

TEST_F(TimeStepsTest, TimeStepsFollowConstantAcceleration) {
    Put_Four_Bar(2, 5, 6, 7, 30);
    model.NumSteps = 4;
    model.TimeStart = 0;
    model.TimeStep = 0.25F;
    model.Theta2One = 20;
    model.Omega2Start = 4;
    model.Alpha2Const = -2;
    Sweep(2);
    for (int row = 0; row <= 4; ++row) {
        const double t = 0.25 * row;
        EXPECT_NEAR(tables.Theta(row, 0), 20 + (-t * t + 4 * t) * DegreesPerRadian, 1e-3) << row;
        EXPECT_FLOAT_EQ(tables.Omega(row, 0), static_cast<float>(4 - 2 * t)) << row;
    }
    EXPECT_FLOAT_EQ(model.CurrentTime, 1.25F) << "moved on once more behind the last row";
    EXPECT_EQ(model.NumSteps, 4);
    EXPECT_EQ(model.Alpha2Const, -2);
}

TEST_F(TimeStepsTest, TimeCountsFromZeroEvenWhereTheSweepStartsLater) {
    model.NumSteps = 1;
    model.TimeStart = 2;
    model.TimeStep = 0.5F;
    model.Theta2One = 20;
    model.Omega2Start = 1;
    model.Alpha2Const = 1;
    Sweep(2);
    EXPECT_NEAR(tables.Theta(0, 0), 20 + 4 * DegreesPerRadian, 1e-3) << "2 * 2 / 2 + 1 * 2 radians on";
    EXPECT_EQ(tables.Omega(0, 0), 3);
    EXPECT_NEAR(tables.Theta(1, 0), 20 + 5.625 * DegreesPerRadian, 1e-3);
}

TEST_F(TimeStepsTest, TimeStepsDoNotSetAlpha2) {
    model.NumSteps = 2;
    model.TimeStart = 0;
    model.TimeStep = 0.1F;
    model.Alpha2Const = -5;
    Sweep(2);
    for (int row = 0; row <= 2; ++row) EXPECT_EQ(tables.Alpha(row, 0), 0);
    model.Alpha2 = 9;
    Sweep(2);
    for (int row = 0; row <= 2; ++row) EXPECT_EQ(tables.Alpha(row, 0), 9);
    EXPECT_EQ(model.Alpha2, 9);
}

TEST_F(TimeStepsTest, OnePositionAndAngleStepsKeepAlpha2Too) {
    model.Alpha2 = 9;
    Sweep(1);
    EXPECT_EQ(tables.Alpha(0, 0), 9);
    Put_Angle_Range(0, 20, 10);
    Sweep(3);
    for (int row = 0; row <= 2; ++row) EXPECT_EQ(tables.Alpha(row, 0), 9);
}

TEST_F(TimeStepsTest, TimeStepsDoNotClearTheTables) {
    Poison_Tables(tables);
    model.TorqueImported = true;
    model.NumSteps = 2;
    Sweep(2);
    EXPECT_EQ(tables.PointVel(1, 6, 0), Poison);
    EXPECT_EQ(tables.Torque21Imported(1), Poison);
    EXPECT_EQ(tables.Theta(3, 0), Poison);
    EXPECT_TRUE(model.TorqueImported);
}

TEST_F(TimeStepsTest, TimeStepsBeyondSinglePrecisionEndUnderTheirOwnName) {
    model.NumSteps = 5;
    model.TimeStart = 3e38F;
    model.Omega2Start = 3e38F;
    Sweep(2);
    Expect_Fault(6, "Calc_Time_Steps");
    EXPECT_FALSE(model.DataCalculated);
}

}  // namespace
}  // namespace kervol
