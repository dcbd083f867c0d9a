// SPDX-License-Identifier: GPL-3.0-or-later
// One solved position: what is stored where, which flags change, what is left alone.
#include <array>
#include <cmath>

#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

using CalculateTest = KinematicsTest;

/// Where a single of up to 512 degrees was stored once and wrapped once.
constexpr double kAngleRounding = 6.2e-5;

TEST_F(CalculateTest, StepBeyondTheTablesIsASubscriptFaultAndChangesNothing) {
    Poison_Tables(tables);
    const LinkageModel before = model;
    const ResultTables tables_before = tables;
    for (const auto step : std::to_array<std::int16_t>({1025, -1, 32767, -32768})) {
        Answer response = Answer::Retry;
        Calculate(*program, step, response);
        Expect_Fault(9, "Calculate");
        EXPECT_EQ(response, Answer::Retry);
    }
    EXPECT_EQ(Differing_Fields(model, before), std::vector<std::string>{});
    EXPECT_EQ(tables.Theta, tables_before.Theta);
    EXPECT_EQ(tables.PointAcc, tables_before.PointAcc);
    EXPECT_EQ(tables.StepValid, tables_before.StepValid);
}

TEST_F(CalculateTest, WritesItsRowAndNoOther) {
    Poison_Tables(tables);
    Put_Four_Bar(2, 5, 6, 7);
    for (const auto row : std::to_array<std::int16_t>({1, 500, 1024})) {
        Solve(row, 40);
        for (const int other : {row - 1, row == 1024 ? 0 : row + 1}) {
            EXPECT_FALSE(tables.StepValid(other));
            for (int column = 0; column <= 7; ++column) EXPECT_EQ(tables.Theta(other, column), Poison);
            for (int point = 0; point <= 10; ++point) EXPECT_EQ(tables.PointVel(other, point, 1), Poison);
        }
        EXPECT_TRUE(tables.StepValid(row));
        for (int column = 0; column <= 7; ++column) EXPECT_NE(tables.Theta(row, column), Poison);
        for (int column = 0; column <= 4; ++column) {
            EXPECT_NE(tables.Omega(row, column), Poison);
            EXPECT_NE(tables.Alpha(row, column), Poison);
        }
        for (int point = 0; point <= 5; ++point)
            for (int axis = 0; axis <= 1; ++axis) {
                EXPECT_NE(tables.PointPos(row, point, axis), Poison);
                EXPECT_NE(tables.PointVel(row, point, axis), Poison);
                EXPECT_NE(tables.PointAcc(row, point, axis), Poison);
            }
    }
}

TEST_F(CalculateTest, LeavesCentresOfGravityForcesAndImportsAlone) {
    Poison_Tables(tables);
    Solve(3, 40);
    for (int point = 6; point <= 10; ++point)
        for (int axis = 0; axis <= 1; ++axis) {
            EXPECT_EQ(tables.PointPos(3, point, axis), Poison);
            EXPECT_EQ(tables.PointVel(3, point, axis), Poison);
            EXPECT_EQ(tables.PointAcc(3, point, axis), Poison);
        }
    ResultTables poisoned;
    Poison_Tables(poisoned);
    EXPECT_EQ(tables.ForceTable, poisoned.ForceTable);
    EXPECT_EQ(tables.TorqueTable, poisoned.TorqueTable);
    EXPECT_EQ(tables.FlywheelTorque, poisoned.FlywheelTorque);
    EXPECT_EQ(tables.FFTTable, poisoned.FFTTable);
    EXPECT_EQ(tables.DriveTheta, poisoned.DriveTheta);
    EXPECT_EQ(tables.Torque21Imported, poisoned.Torque21Imported);
}

TEST_F(CalculateTest, ChangesOfTheModelOnlyWorkingStateAndFlags) {
    model.DataFromFile = true;
    model.Theta2Rad = 0.5F;
    model.Omega2 = 3;
    model.Alpha2 = 2;
    const LinkageModel before = model;
    Answer response = Answer::Retry;
    Calculate(*program, 0, response);
    EXPECT_EQ(response, Answer::Retry);
    const std::vector<std::string> expected = {
        "Theta3Rad", "Theta4Rad", "Theta5Rad", "Theta6Rad", "Omega3Now", "Omega4Now",      "Omega5Now",
        "Omega6Now", "Alpha3Now", "Alpha4Now", "Alpha5Now", "Alpha6Now", "DataCalculated", "DataFromFile"};
    EXPECT_EQ(Differing_Fields(model, before), expected);
}

TEST_F(CalculateTest, WorkingStateHoldsTheTabulatedMotionAndStage2AnglesFromItsGroundLink) {
    for (const std::string_view chain : {"W", "S"}) {
        RandomLinkages random(7);
        do {
            random.Next(model, chain);
            model.AngleRange = "free";
            Solve(9, 33);
        } while (!tables.StepValid(9));
        const double ground = model.GroundAngleDeg;
        const double stage2_ground = ground + (chain == "W" ? model.O4O6AngleDeg : model.O2O6AngleDeg);
        const auto degrees = [](float radians) { return double(radians) * DegreesPerRadian; };
        EXPECT_NEAR(tables.Theta(9, 1), degrees(model.Theta3Rad) + ground, kAngleRounding);
        EXPECT_NEAR(tables.Theta(9, 2), degrees(model.Theta4Rad) + ground, kAngleRounding);
        EXPECT_NEAR(tables.Theta(9, 4), degrees(model.Theta5Rad) + stage2_ground, kAngleRounding);
        EXPECT_NEAR(tables.Theta(9, 5), degrees(model.Theta6Rad) + stage2_ground, kAngleRounding);
        const float omega[] = {model.Omega2, model.Omega3Now, model.Omega4Now, model.Omega5Now,
                               model.Omega6Now};
        const float alpha[] = {model.Alpha2, model.Alpha3Now, model.Alpha4Now, model.Alpha5Now,
                               model.Alpha6Now};
        for (int column = 0; column <= 4; ++column) {
            EXPECT_EQ(tables.Omega(9, column), omega[column]);
            EXPECT_EQ(tables.Alpha(9, column), alpha[column]);
        }
    }
}

TEST_F(CalculateTest, SolvedPositionSetsDataCalculatedAndClearsDataFromFile) {
    model.DataCalculated = false;
    model.DataFromFile = true;
    Solve(0, 40);
    EXPECT_TRUE(model.DataCalculated);
    EXPECT_FALSE(model.DataFromFile);
    EXPECT_FALSE(model.SomeStepFailed);
}

TEST_F(CalculateTest, FailedPositionLeavesDataCalculatedAndDataFromFile) {
    for (const bool stage2 : {false, true})
        for (const bool flag : {false, true}) {
            Put_Limited_Four_Bar();
            if (stage2) Break_Stage2();
            model.DataCalculated = model.DataFromFile = flag;
            Solve(0, stage2 ? 40 : 180);
            EXPECT_FALSE(tables.StepValid(0));
            EXPECT_EQ(model.DataCalculated, flag);
            EXPECT_EQ(model.DataFromFile, flag);
            EXPECT_TRUE(model.SomeStepFailed);
        }
}

TEST_F(CalculateTest, TurnedGroundLinkShowsInThetaColumns0To5AndNotInPoints) {
    model.AngleRange = "free";
    Put_Four_Bar(2, 5, 6, 7);
    Solve(0, 40);
    for (const double ground : {30.0, -60.0, 200.0}) {
        Put_Four_Bar(2, 5, 6, 7, ground);
        EXPECT_NEAR(model.GroundAngleDeg, ground, 1e-4);
        Solve(1, 40);
        for (int column = 0; column <= 5; ++column)
            EXPECT_NEAR(tables.Theta(1, column), tables.Theta(0, column) + ground, 2e-4) << column;
        for (int column = 6; column <= 7; ++column)
            EXPECT_NEAR(tables.Theta(1, column), tables.Theta(0, column), 2e-4) << column;
        for (int point = 0; point <= 5; ++point)
            for (int axis = 0; axis <= 1; ++axis) {
                EXPECT_NEAR(tables.PointPos(1, point, axis), tables.PointPos(0, point, axis), 1e-4);
                EXPECT_NEAR(tables.PointVel(1, point, axis), tables.PointVel(0, point, axis), 1e-3);
            }
    }
}

TEST_F(CalculateTest, ZeroLeadingCoefficientIsAStage1FailureAndNoDivisionByZero) {
    Put_Four_Bar(2, 3, 3, 2);
    Solve(0, 0);
    EXPECT_FALSE(tables.StepValid(0));
    EXPECT_TRUE(model.SomeStepFailed);
}

TEST_F(CalculateTest, ZeroLeadingCoefficientOfTheCouplerIsAStage1Failure) {
    // A (8, 0), B (6, 0), O4 (2, 0): the coupler lies at 180 degrees, the rocker at 0.
    Put_Four_Bar(8, 2, 4, 2);
    Solve(0, 0);
    EXPECT_FALSE(tables.StepValid(0));
    EXPECT_TRUE(model.SomeStepFailed);
}

TEST_F(CalculateTest, ExactToggleIsAFailure) {
    // A (1, 0), O4 (3, 0), B (5, 0): coupler and rocker both lie at exactly 0.
    Put_Four_Bar(1, 4, 2, 3);
    Solve(0, 0);
    EXPECT_FALSE(tables.StepValid(0));
}

TEST_F(CalculateTest, VeryNearAToggleGivesVeryLargeSpeeds) {
    Put_Limited_Four_Bar();
    model.Omega2 = 1;
    Solve(0, std::acos(0.125) * 180 / std::acos(-1) - 2e-5);
    ASSERT_TRUE(tables.StepValid(0));
    EXPECT_GT(std::abs(tables.Omega(0, 1)), 100);
    EXPECT_GT(std::abs(tables.Omega(0, 2)), 100);
}

TEST_F(CalculateTest, StandingCrankGivesNoSpeedsAndKeepsTheRatios) {
    for (const std::string_view chain : {"W", "S"}) {
        Put_Four_Bar(2, 5, 6, 7);
        model.LinkageType = chain;
        Poison_Tables(tables);
        model.Omega2 = 0;
        model.Alpha2 = 0;
        Solve(4, 40);
        ASSERT_TRUE(tables.StepValid(4));
        for (int column = 0; column <= 4; ++column) EXPECT_EQ(tables.Omega(4, column), 0) << column;
        for (int point = 0; point <= 5; ++point)
            for (int axis = 0; axis <= 1; ++axis) EXPECT_EQ(tables.PointVel(4, point, axis), 0) << point;
        for (int stage = 0; stage <= 1; ++stage) {
            EXPECT_EQ(tables.VelRatio(4, stage), Poison);
            EXPECT_EQ(tables.MechAdv(4, stage), Poison);
        }
    }
}

TEST_F(CalculateTest, AlphaColumn0AndAccelerationsFollowAlpha2) {
    Put_Four_Bar(2, 5, 6, 7);
    model.Omega2 = 0;
    model.Alpha2 = 4;
    Solve(0, 90);
    EXPECT_EQ(tables.Alpha(0, 0), 4);
    EXPECT_NEAR(tables.PointAcc(0, 0, 0), -8, 1e-5) << "A at (0, 2) is pushed along -x by 2 times 4";
    EXPECT_NE(tables.Alpha(0, 1), 0);
}

struct WrapCase {
    const char* range;
    double degrees;
    double column0;
};

TEST_F(CalculateTest, AngleRangeWrapsOnceAndOnlyItsOwnSide) {
    Put_Four_Bar(2, 5, 6, 7);
    // clang-format off
    for (const auto& [range, degrees, column0] : std::to_array<WrapCase>({
             {"abs",    10,   10}, {"abs",   -10,  350}, {"abs",  -350,   10}, {"abs", -400,  -40},
             {"abs",   370,  370}, {"abs",   540,  540}, {"abs",   360,  360},
             {"180",   170,  170}, {"180",   190, -170}, {"180",   600,  240}, {"180", -190, -190},
             {"180",   360,    0},
             {"free",  -10,  -10}, {"free",  190,  190}, {"",      -10,  -10}, {"ABS",  -10,  -10},
         })) {
        // clang-format on
        model.AngleRange = range;
        Solve(1, degrees);
        EXPECT_NEAR(tables.Theta(1, 0), column0, kAngleRounding) << range << " " << degrees;
    }
}

TEST_F(CalculateTest, AngleRangeWrapsColumns1And2WithTheGroundAngleAndNotColumns3To7) {
    Put_Four_Bar(2, 5, 6, 7, -80);
    model.OpenSign1 = 1;
    model.AngleRange = "free";
    Solve(0, 20);
    for (const std::string_view range : {"abs", "180"}) {
        model.AngleRange = range;
        Solve(1, 20);
        for (int column = 0; column <= 2; ++column) {
            const double plain = tables.Theta(0, column);
            const double wrapped =
                range == "abs" ? plain + (plain < 0 ? 360 : 0) : plain - (plain > 180 ? 360 : 0);
            EXPECT_NEAR(tables.Theta(1, column), wrapped, kAngleRounding);
        }
        for (int column = 3; column <= 5; ++column)
            EXPECT_EQ(tables.Theta(1, column), tables.Theta(0, column));
        EXPECT_EQ(tables.Theta(1, 7), tables.Theta(0, 7));
    }
    EXPECT_LT(tables.Theta(0, 0), 0) << "a case that needs wrapping";
    EXPECT_LT(tables.Theta(0, 3), 0) << "a case that would need wrapping";
}

TEST_F(CalculateTest, FullTurnInRow0BecomesZeroWhateverRowIsWrittenButOnlyThere) {
    Put_Four_Bar(2, 5, 6, 7);
    model.AngleRange = "abs";
    Solve(0, 360);
    EXPECT_EQ(tables.Theta(0, 0), 0);

    tables.Theta(0, 0) = 360;
    Solve(5, 360);
    EXPECT_EQ(tables.Theta(0, 0), 0);
    EXPECT_EQ(tables.Theta(5, 0), 360);

    tables.Theta(0, 0) = std::nextafter(360.0F, 0.0F);
    Solve(5, 20);
    EXPECT_EQ(tables.Theta(0, 0), std::nextafter(360.0F, 0.0F));
}

TEST_F(CalculateTest, FullTurnInRow0StaysInOtherRanges) {
    Put_Four_Bar(2, 5, 6, 7);
    for (const std::string_view range : {"180", "free"}) {
        model.AngleRange = range;
        tables.Theta(0, 0) = 360;
        Solve(5, 20);
        EXPECT_EQ(tables.Theta(0, 0), 360) << range;
    }
}

TEST_F(CalculateTest, ImportedDriveStaysInColumn0OfModes4And5) {
    for (const auto mode : std::to_array<std::int16_t>({0, 1, 2, 3, 4, 5, 6})) {
        model.CalcMode = mode;
        model.Omega2 = 7;
        model.Alpha2 = -3;
        Poison_Tables(tables);
        Solve(2, 40);
        EXPECT_EQ(tables.Omega(2, 0), mode < 4 ? 7 : Poison) << mode;
        EXPECT_EQ(tables.Alpha(2, 0), mode < 4 ? -3 : Poison) << mode;
        EXPECT_NE(tables.Omega(2, 1), Poison) << mode;
    }
}

TEST_F(CalculateTest, UnknownChainTabulatesLeftOverStage2Speeds) {
    Put_Four_Bar(2, 5, 6, 7);
    model.LinkageType = "w";
    model.DataCalculated = false;
    model.Omega2 = 10;
    model.Omega5Now = 5;
    model.Omega6Now = 4;
    model.Alpha5Now = 50;
    model.Alpha6Now = 60;
    model.Theta5Rad = 0.25F;
    Poison_Tables(tables);
    tables.Theta(3, 4) = 10;
    tables.Theta(3, 5) = 150;
    Solve(3, 40);
    EXPECT_TRUE(tables.StepValid(3));
    EXPECT_EQ(tables.Omega(3, 3), 5);
    EXPECT_EQ(tables.Omega(3, 4), 4);
    EXPECT_EQ(tables.Alpha(3, 3), 50);
    EXPECT_EQ(tables.Alpha(3, 4), 60);
    EXPECT_FLOAT_EQ(tables.VelRatio(3, 1), 0.4F);
    EXPECT_FLOAT_EQ(tables.MechAdv(3, 1), 2.5F);
    EXPECT_EQ(tables.Theta(3, 3), Poison);
    EXPECT_EQ(tables.Theta(3, 4), 10);
    EXPECT_EQ(tables.Theta(3, 5), 150);
    EXPECT_EQ(tables.Theta(3, 7), 40) << "140 folded";
    for (int axis = 0; axis <= 1; ++axis)
        for (const auto* table : {&tables.PointPos, &tables.PointVel, &tables.PointAcc}) {
            EXPECT_EQ((*table)(3, 3, axis), Poison);
            EXPECT_EQ((*table)(3, 4, axis), 0);
            EXPECT_EQ((*table)(3, 5, axis), 0);
        }
    EXPECT_EQ(model.Theta5Rad, 0.25F);
    EXPECT_TRUE(model.DataCalculated);
}

TEST_F(CalculateTest, UnknownChainStillFailsAtStage1) {
    Put_Limited_Four_Bar();
    model.LinkageType = "";
    Solve(0, 180);
    EXPECT_FALSE(tables.StepValid(0));
    EXPECT_EQ(model.Omega6Now, 0);
}

TEST_F(CalculateTest, AssemblyOfStage2IsItsOwn) {
    Put_Four_Bar(2, 5, 6, 7);
    Solve(0, 40);
    model.OpenSign2 = 1;
    Solve(1, 40);
    for (int column = 0; column <= 2; ++column) EXPECT_EQ(tables.Theta(1, column), tables.Theta(0, column));
    EXPECT_NE(tables.Theta(1, 4), tables.Theta(0, 4));
    EXPECT_NE(tables.Theta(1, 5), tables.Theta(0, 5));
}

TEST_F(CalculateTest, StephensonChainIgnoresTheArmOfLink4) {
    Put_Four_Bar(2, 5, 6, 7);
    model.LinkageType = "S";
    Solve(0, 40);
    model.LinkO4D = 0;
    model.Delta4 = 1;
    model.Delta4Deg = 57;
    Solve(1, 40);
    ASSERT_TRUE(tables.StepValid(1));
    EXPECT_EQ(tables.Theta(1), tables.Theta(0));
    EXPECT_EQ(tables.Omega(1), tables.Omega(0));
    EXPECT_EQ(tables.Alpha(1), tables.Alpha(0));
    EXPECT_EQ(tables.PointPos(1), tables.PointPos(0));
    EXPECT_EQ(tables.PointAcc(1), tables.PointAcc(0));
}

TEST_F(CalculateTest, StephensonColumn3IsTheLineFromAToCAndNotTheInputLine) {
    Put_Four_Bar(2, 5, 6, 7);
    model.LinkageType = "S";
    model.Delta3 = 0.5F;
    Solve(0, 40);
    const double line = std::atan2(double(tables.PointPos(0, 2, 1)) - tables.PointPos(0, 0, 1),
                                   double(tables.PointPos(0, 2, 0)) - tables.PointPos(0, 0, 0));
    EXPECT_NEAR(tables.Theta(0, 3), line * DegreesPerRadian, 1e-3);
}

}  // namespace
}  // namespace kervol
