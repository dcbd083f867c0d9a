// SPDX-License-Identifier: GPL-3.0-or-later
// The angle-step drive: the crank state of each row, forward, backward and standing.
#include <array>
#include <cmath>

#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

using AngleStepsTest = SweepFixture;

TEST_F(AngleStepsTest, FullTurnByTensHas37RowsAndEndsAt360) {
    for (const std::string_view range : {"abs", "free"}) {
        model.AngleRange = range;
        Put_Angle_Range(0, 360, 10);
        EXPECT_EQ(model.NumSteps, 36);
        Sweep(3);
        for (int row = 0; row <= 36; ++row) EXPECT_NEAR(tables.Theta(row, 0), 10 * row, 1e-3);
        EXPECT_EQ(tables.Theta(0, 0), 0);
    }
}

TEST_F(AngleStepsTest, TurnedGroundLinkKeepsTheUserAngles) {
    Put_Four_Bar(2, 5, 6, 7, 50);
    Put_Angle_Range(0, 90, 30);
    Sweep(3);
    Expect_Crank_Angles({0, 30, 60, 90});
    EXPECT_NEAR(tables.PointPos(0, 0, 0), 2 * std::cos(50 * RadiansPerDegree), 1e-5);
}

TEST_F(AngleStepsTest, TurnedGroundLinkKeepsTheUserAnglesOfAnOvershootingRow) {
    Put_Four_Bar(2, 5, 6, 7, 50);
    Put_Angle_Range(0, 100, 40);
    Sweep(3);
    Expect_Crank_Angles({0, 40, 80, 100});
    model.Omega2Start = -10;
    Put_Angle_Range(0, 100, 40);
    Sweep(3);
    Expect_Crank_Angles({100, 60, 20, 0});
}

TEST_F(AngleStepsTest, RangeThatIsNoMultipleEndsBeforeItsMaximum) {
    Put_Angle_Range(0, 100, 30);
    EXPECT_EQ(model.NumSteps, 3);
    Sweep(3);
    Expect_Crank_Angles({0, 30, 60, 90});
}

TEST_F(AngleStepsTest, OvershootingRowIsSolvedAgainAtTheMaximum) {
    Put_Angle_Range(0, 100, 40);
    EXPECT_EQ(model.NumSteps, 3);
    Sweep(3);
    Expect_Crank_Angles({0, 40, 80, 100});
    EXPECT_NEAR(tables.PointPos(3, 0, 1), 2 * std::sin(100 * RadiansPerDegree), 1e-5);
}

TEST_F(AngleStepsTest, OvershootingRowFoldsItsTransmissionAngleByItsFirstSolution) {
    Put_Angle_Range(0, 100, 40);
    Solve(20, 120);
    const float first = std::abs(tables.Theta(20, 2) - tables.Theta(20, 1));
    ASSERT_GT(first, 90);
    Sweep(3);
    EXPECT_FLOAT_EQ(tables.Theta(3, 6), std::abs(180 - first));
}

TEST_F(AngleStepsTest, NegativeSpeedRunsFromMaximumToMinimum) {
    model.Omega2Start = -10;
    Put_Angle_Range(0, 100, 40);
    Sweep(3);
    Expect_Crank_Angles({100, 60, 20, 0});
    for (int row = 0; row <= 3; ++row) EXPECT_EQ(tables.Omega(row, 0), -10);
    Put_Angle_Range(0, 100, 30);
    Sweep(3);
    Expect_Crank_Angles({100, 70, 40, 10});
}

TEST_F(AngleStepsTest, NegativeSpeedStartsAtAFullTurnThatCountsAsZero) {
    model.Omega2Start = -10;
    Put_Angle_Range(0, 360, 10);
    model.AngleRange = "abs";
    Sweep(3);
    EXPECT_EQ(tables.Theta(0, 0), 0) << "the full turn of row 0 counts as none";
    for (int row = 1; row <= 35; ++row) EXPECT_NEAR(tables.Theta(row, 0), 360 - 10 * row, 1e-3);
}

TEST_F(AngleStepsTest, ZeroSpeedSolvesTheMaximumInEveryRow) {
    model.Omega2Start = 0;
    Put_Angle_Range(0, 100, 40);
    Sweep(3);
    Expect_Crank_Angles({100, 100, 100, 100});
    for (int row = 0; row <= 3; ++row) {
        EXPECT_EQ(tables.PointPos(row), tables.PointPos(0));
        for (int stage = 0; stage <= 1; ++stage) {
            EXPECT_EQ(tables.VelRatio(row, stage), 0);
            EXPECT_EQ(tables.MechAdv(row, stage), 0);
        }
    }
}

TEST_F(AngleStepsTest, NegativeStepStopsAtTheFirstRowPastTheEnd) {
    // Two rows by the count, but the first already lies past the end.
    Put_Angle_Range(90, 0, -45);
    EXPECT_EQ(model.NumSteps, 2);
    Poison_Tables(tables);
    Sweep(3);
    EXPECT_NEAR(tables.Theta(0, 0), 0, 1e-4);
    EXPECT_EQ(tables.Theta(1, 0), 0) << "cleared and not solved";
    EXPECT_FALSE(tables.StepValid(1));
}

TEST_F(AngleStepsTest, AngleStepsClearTheCamAndTheConstantAcceleration) {
    model.NumSteps = 1;
    model.CamDriven = model.LinkDriven = true;
    model.Alpha2Const = -5;
    Sweep(3);
    EXPECT_FALSE(model.CamDriven);
    EXPECT_TRUE(model.LinkDriven);
    EXPECT_EQ(model.Alpha2Const, 0);
    model.CamDriven = true;
    model.Alpha2Const = -5;
    for (const auto mode : std::to_array<std::int16_t>({1, 2})) {
        Sweep(mode);
        EXPECT_TRUE(model.CamDriven);
        EXPECT_EQ(model.Alpha2Const, -5);
    }
}

TEST_F(AngleStepsTest, AngleStepsClearTheTablesUpToTheHighestStep) {
    Poison_Tables(tables);
    model.TorqueImported = true;
    Put_Angle_Range(0, 20, 10);
    Sweep(3);
    for (int row = 0; row <= 3; ++row) {
        const float expected = row <= 2 ? 0 : Poison;
        EXPECT_EQ(tables.Torque21Imported(row), expected);
        for (int point = 6; point <= 10; ++point) {
            EXPECT_EQ(tables.PointPos(row, point, 0), expected);
            EXPECT_EQ(tables.PointVel(row, point, 1), expected);
            EXPECT_EQ(tables.PointAcc(row, point, 0), expected);
        }
        EXPECT_EQ(tables.ForceTable(row, 0, 0), Poison);
        EXPECT_EQ(tables.FlywheelTorque(row), Poison);
    }
    EXPECT_EQ(tables.Theta(3, 0), Poison);
    EXPECT_FALSE(model.TorqueImported);
}

}  // namespace
}  // namespace kervol
