// SPDX-License-Identifier: GPL-3.0-or-later
// What every sweep clears, sets and classifies, and how it meets the ends of the tables.
#include "kinematics/sweep.h"

#include <array>

#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

using SweepTest = SweepFixture;

TEST_F(SweepTest, OpenSignFollowsItsCode) {
    std::int16_t sign = 0;
    std::string text;
    Set_Open_Sign(1, sign, text);
    EXPECT_EQ(sign, -1);
    EXPECT_EQ(text, "Open");
    Set_Open_Sign(2, sign, text);
    EXPECT_EQ(sign, 1);
    EXPECT_EQ(text, "Crossed");
}

TEST_F(SweepTest, OtherOpenCodesChangeNothing) {
    for (const auto code : std::to_array<std::int16_t>({0, 3, -1, -2, 32767})) {
        std::int16_t sign = 77;
        std::string text = "kept";
        Set_Open_Sign(code, sign, text);
        EXPECT_EQ(sign, 77);
        EXPECT_EQ(text, "kept");
    }
}

TEST_F(SweepTest, StartsByAssembliesAndClasses) {
    model.NumSteps = -1;
    model.OpenCross1 = 2;
    model.OpenCross2 = 1;
    model.OpenSign1 = model.OpenSign2 = 0;
    model.OpenCross1Text = model.OpenCross2Text = "OPEN";
    model.Stage1Class = model.Stage2Class = "";
    Sweep(3);
    EXPECT_EQ(model.OpenSign1, 1);
    EXPECT_EQ(model.OpenSign2, -1);
    EXPECT_EQ(model.OpenCross1Text, "Crossed");
    EXPECT_EQ(model.OpenCross2Text, "Open");
    EXPECT_EQ(model.Stage1Class, "Y");
    EXPECT_EQ(model.StageText(0), "Stage  1  is Grashof");
    EXPECT_EQ(model.Stage2Class, "Y") << "1 + 13 < 10 + 10";
    EXPECT_EQ(model.StageText(1), "Stage  2  is Grashof");
}

TEST_F(SweepTest, StephensonSweepLeavesTheStage2Class) {
    model.LinkageType = "S";
    model.NumSteps = -1;
    model.Stage2Class = "old";
    Sweep(3);
    EXPECT_EQ(model.Stage2Class, "old");
}

TEST_F(SweepTest, ClearsAndSetsItsFlags) {
    for (const auto mode : std::to_array<std::int16_t>({1, 2, 3})) {
        model.NumSteps = 3;
        model.DynamicsCalculated = true;
        model.SomeStepFailed = true;
        model.NewData = false;
        model.DataFromFile = true;
        model.DataCalculated = false;
        EXPECT_EQ(Sweep(mode), Answer::Retry) << "a sweep that never asked";
        EXPECT_FALSE(model.DynamicsCalculated) << mode;
        EXPECT_FALSE(model.SomeStepFailed) << mode;
        EXPECT_TRUE(model.NewData) << mode;
        EXPECT_FALSE(model.DataFromFile) << mode;
        EXPECT_TRUE(model.DataCalculated) << mode;
    }
}

TEST_F(SweepTest, DataCalculatedIsClearedAtTheStartAndStaysSoWhereNoRowSolves) {
    Break_Stage2();
    Answer_With({Answer::Ignore});
    for (const auto mode : std::to_array<std::int16_t>({1, 2, 3})) {
        model.NumSteps = 3;
        model.DataCalculated = true;
        model.DataFromFile = true;
        Sweep(mode);
        EXPECT_FALSE(model.DataCalculated) << mode;
        EXPECT_TRUE(model.DataFromFile) << mode;
        EXPECT_TRUE(model.SomeStepFailed) << mode;
        Take_Box();
    }
}

TEST_F(SweepTest, OtherModesSweepNothing) {
    Poison_Tables(tables);
    for (const auto mode : std::to_array<std::int16_t>({0, -1, 4, 5, 6, 32767})) {
        model.NumSteps = 3;
        EXPECT_EQ(Sweep(mode), Answer::None) << mode;
        EXPECT_FALSE(model.DataCalculated) << mode;
        for (int row = 0; row <= 3; ++row) EXPECT_EQ(tables.Theta(row, 0), Poison) << mode;
        EXPECT_EQ(model.NumSteps, 3);
    }
}

TEST_F(SweepTest, ClearingClearsEveryKinematicTable) {
    Poison_Tables(tables);
    model.NumSteps = 1;
    model.TorqueImported = true;
    Clear_Tables(*program);
    const ResultTables zero;
    ResultTables poisoned;
    Poison_Tables(poisoned);
    for (int row = 0; row <= 2; ++row) {
        const ResultTables& expected = row <= 1 ? zero : poisoned;
        EXPECT_EQ(tables.Theta(row), expected.Theta(row));
        EXPECT_EQ(tables.Omega(row), expected.Omega(row));
        EXPECT_EQ(tables.Alpha(row), expected.Alpha(row));
        EXPECT_EQ(tables.PointPos(row), expected.PointPos(row));
        EXPECT_EQ(tables.PointVel(row), expected.PointVel(row));
        EXPECT_EQ(tables.PointAcc(row), expected.PointAcc(row));
        EXPECT_EQ(tables.VelRatio(row), expected.VelRatio(row));
        EXPECT_EQ(tables.MechAdv(row), expected.MechAdv(row));
        EXPECT_EQ(tables.Torque21Imported(row), expected.Torque21Imported(row));
        EXPECT_EQ(tables.ForceTable(row), poisoned.ForceTable(row));
        EXPECT_EQ(tables.TorqueTable(row), poisoned.TorqueTable(row));
    }
    EXPECT_EQ(tables.DriveTheta, poisoned.DriveTheta);
    EXPECT_EQ(tables.FFTTable, poisoned.FFTTable);
    EXPECT_FALSE(model.TorqueImported);
}

TEST_F(SweepTest, NegativeHighestStepSolvesNothingAndClearsTheFlagAlone) {
    for (const auto mode : std::to_array<std::int16_t>({2, 3})) {
        Poison_Tables(tables);
        model.NumSteps = -1;
        model.TorqueImported = true;
        EXPECT_EQ(Sweep(mode), Answer::Retry);
        EXPECT_EQ(model.TorqueImported, mode == 2);
        ResultTables poisoned;
        Poison_Tables(poisoned);
        EXPECT_EQ(tables.Theta, poisoned.Theta);
        EXPECT_EQ(tables.Torque21Imported, poisoned.Torque21Imported);
        EXPECT_FALSE(model.DataCalculated);
    }
}

TEST_F(SweepTest, HighestStep1024FillsEveryTableToItsLastRow) {
    for (const auto mode : std::to_array<std::int16_t>({2, 3})) {
        Poison_Tables(tables);
        model.NumSteps = 1024;
        model.TimeStart = 0;
        model.TimeStep = 0.001F;
        model.ThetaMin = 0;
        model.ThetaMax = 2;
        model.ThetaStep = 2.0F / 1024;
        Sweep(mode);
        for (const int row : {0, 512, 1024}) {
            EXPECT_TRUE(tables.StepValid(row));
            EXPECT_NE(tables.Theta(row, 7), Poison);
            EXPECT_NE(tables.PointAcc(row, 5, 1), Poison);
            EXPECT_NE(tables.MechAdv(row, 1), Poison);
        }
    }
}

TEST_F(SweepTest, HighestStepBeyondTheTablesIsAFaultForEachRowBeyond) {
    model.NumSteps = 1026;
    model.TimeStep = 0.001F;
    Sweep(2);
    Expect_Fault(9, "Calculate");
    Expect_Fault(9, "Calculate");
    EXPECT_TRUE(tables.StepValid(1024));
    EXPECT_EQ(model.NumSteps, 1026);

    model.ThetaMin = 0;
    model.ThetaMax = 3;
    model.ThetaStep = 0.001F;
    Sweep(3);
    Expect_Fault(9, "Calculate");
    Expect_Fault(9, "Calculate");
    EXPECT_TRUE(model.DataCalculated);
}

}  // namespace
}  // namespace kervol
