// SPDX-License-Identifier: GPL-3.0-or-later
// The imported drives: crank state of each row, no stop on Abort, no row beyond the imported ones.
#include <array>
#include <cmath>

#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

class DriveDataTest : public KinematicsTest {
  protected:
    void SetUp() override {
        Put_Four_Bar(2, 5, 6, 7, 30);
        model.AngleRange = "free";
        model.CalcMode = 4;
        model.NumSteps = 3;
        model.DriveScale = 2;
        model.DriveOffset = 5;
        model.DriveDatum = 3;
        model.Theta2One = -30;
        for (int row = 0; row < 361; ++row) {
            tables.DriveTheta(row) = static_cast<float>(row % 40);
            tables.Omega(row, 0) = static_cast<float>(10 + row);
            tables.Alpha(row, 0) = static_cast<float>(100 - row);
        }
    }

    /// Drives over angles at which the limited linkage fails in rows 1 and 2 of 0 to 3.
    void Put_Failing_Drive() {
        Put_Limited_Four_Bar();
        model.CalcMode = 5;
        model.DriveDatum = 0;
        const float angles[] = {40, 100, 200, 300};
        for (int row = 0; row <= 3; ++row) tables.DriveTheta(row) = angles[row];
    }
};

TEST_F(DriveDataTest, CamDriveScalesAndShiftsTheDisplacement) {
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    for (int row = 0; row <= 3; ++row) {
        const double local = 2.0 * row + 5 - 30 - 3;
        EXPECT_NEAR(tables.PointPos(row, 0, 0), 2 * std::cos(local * RadiansPerDegree), 1e-5) << row;
        EXPECT_NEAR(tables.Theta(row, 0), local + 30, 1e-4) << "the imported angle in the user frame";
    }
    EXPECT_EQ(response, Answer::None) << "no box yet";
}

TEST_F(DriveDataTest, LinkageDriveTakesTheAngleInTheUserFrame) {
    model.CalcMode = 5;
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    for (int row = 0; row <= 3; ++row) EXPECT_NEAR(tables.Theta(row, 0), row + 3, 1e-4) << row;
}

TEST_F(DriveDataTest, RowsTakeTheImportedSpeedAndAccelerationAndKeepThem) {
    for (const auto mode : std::to_array<std::int16_t>({4, 5})) {
        model.CalcMode = mode;
        Answer response = Answer::None;
        Calc_Drive_Data(*program, response);
        for (int row = 0; row <= 3; ++row) {
            EXPECT_EQ(tables.Omega(row, 0), 10 + row);
            EXPECT_EQ(tables.Alpha(row, 0), 100 - row);
            const double speed = std::hypot(tables.PointVel(row, 0, 0), tables.PointVel(row, 0, 1));
            EXPECT_NEAR(speed, 2.0 * (10 + row), 1e-4);
            const double normal = 2.0 * (10 + row) * (10 + row), tangential = 2.0 * (100 - row);
            const double acceleration = std::hypot(tables.PointAcc(row, 0, 0), tables.PointAcc(row, 0, 1));
            EXPECT_NEAR(acceleration, std::hypot(normal, tangential), 1e-3);
        }
        EXPECT_EQ(model.Omega2, 13);
        EXPECT_EQ(model.Alpha2, 97);
    }
}

TEST_F(DriveDataTest, Alpha2OfTheLastRowStaysForLaterSweeps) {
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    model.CalcMode = 2;
    Run_Sweep(*program, 2, response);
    for (int row = 0; row <= 3; ++row) EXPECT_EQ(tables.Alpha(row, 0), 97);
}

TEST_F(DriveDataTest, StartsAsASweepButNeitherClassifiesNorSetsTheSigns) {
    model.DataCalculated = model.DynamicsCalculated = model.SomeStepFailed = model.DataFromFile = true;
    model.NewData = false;
    model.OpenCross1 = model.OpenCross2 = 2;
    model.OpenSign1 = model.OpenSign2 = -1;
    model.Stage1Class = model.Stage2Class = model.StageText(0) = "kept";
    model.NumSteps = -1;
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_FALSE(model.DynamicsCalculated);
    EXPECT_FALSE(model.SomeStepFailed);
    EXPECT_TRUE(model.NewData);
    EXPECT_TRUE(model.DataFromFile) << "no position was solved";
    EXPECT_EQ(model.OpenSign1, -1);
    EXPECT_EQ(model.OpenSign2, -1);
    EXPECT_EQ(model.Stage1Class, "kept");
    EXPECT_EQ(model.Stage2Class, "kept");
    EXPECT_EQ(model.StageText(0), "kept");

    model.NumSteps = 3;
    Calc_Drive_Data(*program, response);
    EXPECT_TRUE(model.DataCalculated);
    EXPECT_FALSE(model.DataFromFile);
}

TEST_F(DriveDataTest, TablesAreNotClearedFirst) {
    tables.PointVel.Fill(Poison);
    tables.Torque21Imported.Fill(Poison);
    model.TorqueImported = true;
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    EXPECT_EQ(tables.PointVel(0, 6, 0), Poison);
    EXPECT_EQ(tables.Torque21Imported(0), Poison);
    EXPECT_TRUE(model.TorqueImported);
}

TEST_F(DriveDataTest, AbortDoesNotStopItAndTheNextFailureAsksAgain) {
    Put_Failing_Drive();
    Answer_With({Answer::Abort});
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    Expect_Cannot_Assemble(" 1", "100");
    Expect_Cannot_Assemble(" 1", "200");
    EXPECT_EQ(response, Answer::Abort);
    EXPECT_TRUE(tables.StepValid(0));
    EXPECT_FALSE(tables.StepValid(1));
    EXPECT_FALSE(tables.StepValid(2));
    EXPECT_TRUE(tables.StepValid(3));
    EXPECT_TRUE(model.SomeStepFailed);
    EXPECT_TRUE(model.DataCalculated) << "a solved row behind it sets it again";
}

TEST_F(DriveDataTest, LastAnswerCounts) {
    Put_Failing_Drive();
    Answer_With({Answer::Abort, Answer::Retry});
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    Take_Box();
    Take_Box();
    EXPECT_EQ(response, Answer::Retry);
}

TEST_F(DriveDataTest, IgnoreSuppressesFurtherBoxes) {
    Put_Failing_Drive();
    Answer_With({Answer::Ignore});
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    Expect_Cannot_Assemble(" 1", "100");
    EXPECT_EQ(Boxes_Left(), 0U);
    EXPECT_EQ(response, Answer::Ignore);
}

TEST_F(DriveDataTest, FailedRowKeepsItsImportedSpeedAndAcceleration) {
    Put_Failing_Drive();
    Answer_With({Answer::Ignore});
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    Take_Box();
    EXPECT_EQ(tables.Omega(1, 0), 11);
    EXPECT_EQ(tables.Alpha(1, 0), 99);
    EXPECT_EQ(tables.Omega(1, 1), 0);
}

TEST_F(DriveDataTest, AllImportedRowsAreSwept) {
    model.NumSteps = 360;
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    EXPECT_TRUE(tables.StepValid(360));
    EXPECT_FALSE(tables.StepValid(361));
}

TEST_F(DriveDataTest, Row361IsAFaultOfTheDrive) {
    for (const auto steps : std::to_array<std::int16_t>({361, 1024, 1025, 32767})) {
        model.NumSteps = steps;
        Answer response = Answer::None;
        Calc_Drive_Data(*program, response);
        Expect_Fault(9, "Calc_Drive_Data");
        EXPECT_EQ(Boxes_Left(), 0U) << "one report, not one a row";
        EXPECT_TRUE(tables.StepValid(360));
        EXPECT_FALSE(tables.StepValid(361));
        EXPECT_TRUE(model.DataCalculated);
    }
}

}  // namespace
}  // namespace kervol
