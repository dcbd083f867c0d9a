// SPDX-License-Identifier: GPL-3.0-or-later
// Positions that end in a numeric fault: one report, what was reached is stored, the sweep goes on.
#include <functional>

#include "core/arithmetic.h"
#include "kinematics/kinematics_fixture.h"
#include "kinematics/stage1.h"

namespace kervol {
namespace {

struct FaultCase {
    const char* name;
    const char* chain;
    bool stage1;  ///< Stage 1 itself cannot be computed
    std::function<void(LinkageModel&)> spoil;
};

/// Puts point C exactly on O2. The crank is so short that the remaining distance is no single any more; the
/// other links are short enough for the ratios to fit.
void Put_C_On_O2(LinkageModel& model) {
    model.Link2 = model.CouplerAC = 5e-39F;
    model.Link3 = 0.05F;
    model.Link4 = 0.06F;
    Place_Pivots(model, 0.07F, 0, 19, 5);
    model.Theta2Rad = 0;
    model.Delta3 = 0;
    const double theta3 = Solve_Stage1(model)->theta3;
    model.Delta3 = static_cast<float>(3.14159265358979 - theta3);
}

const std::vector<FaultCase>& Fault_Cases() {
    static const std::vector<FaultCase> cases = {
        {"ZeroLink2", "W", true, [](LinkageModel& model) { model.Link2 = 0; }},
        {"ZeroLink3", "W", true, [](LinkageModel& model) { model.Link3 = 0; }},
        {"ZeroLink4", "W", true, [](LinkageModel& model) { model.Link4 = 0; }},
        {"ZeroLinkO4D", "W", false, [](LinkageModel& model) { model.LinkO4D = 0; }},
        {"ZeroLink5", "W", false, [](LinkageModel& model) { model.Link5 = 0; }},
        {"ZeroLink6", "W", false, [](LinkageModel& model) { model.Link6 = 0; }},
        {"ZeroLeadingCoefficientOfStage2", "W", false,
         [](LinkageModel& model) {
             model.LinkO4D = model.Link5 = 1024;
             model.Link6 = 1;
             Place_Pivots(model, 7, 0, 8, 0);
         }},
        {"StephensonZeroLink3", "S", true, [](LinkageModel& model) { model.Link3 = 0; }},
        {"StephensonZeroLink5", "S", false, [](LinkageModel& model) { model.Link5 = 0; }},
        {"StephensonZeroLink6", "S", false, [](LinkageModel& model) { model.Link6 = 0; }},
        {"StephensonPointCOnO2", "S", false, Put_C_On_O2},
    };
    return cases;
}

class NumericFault : public KinematicsTest, public ::testing::WithParamInterface<FaultCase> {
  protected:
    void SetUp() override {
        Put_Four_Bar(2, 5, 6, 7);
        model.LinkageType = GetParam().chain;
        model.Theta2Rad = 0.7F;
        model.Omega2 = 10;
        GetParam().spoil(model);
    }

    static bool Is_Kept(float cell) { return Is_Same(cell, Poison); }
    static bool Is_Kept(const Table<float, 2>& cells) { return Is_Kept(cells(0)) && Is_Kept(cells(1)); }

    void Expect_Stage1_Cells(int row, bool written) {
        for (const int column : {0, 1, 2, 6})
            EXPECT_EQ(!Is_Kept(tables.Theta(row, column)), written) << column;
        for (int column = 0; column <= 2; ++column) {
            EXPECT_EQ(!Is_Kept(tables.Omega(row, column)), written) << column;
            EXPECT_EQ(!Is_Kept(tables.Alpha(row, column)), written) << column;
        }
        EXPECT_EQ(!Is_Kept(tables.VelRatio(row, 0)), written);
        EXPECT_EQ(!Is_Kept(tables.MechAdv(row, 0)), written);
        for (int point = 0; point <= 2; ++point)
            for (const auto* table : {&tables.PointPos, &tables.PointVel, &tables.PointAcc})
                EXPECT_EQ(!Is_Kept((*table)(row, point)), written) << point;
    }

    void Expect_Stage2_Cells_Kept(int row) {
        for (const int column : {3, 4, 5, 7}) EXPECT_EQ(tables.Theta(row, column), Poison) << column;
        for (int column = 3; column <= 4; ++column) {
            EXPECT_EQ(tables.Omega(row, column), Poison);
            EXPECT_EQ(tables.Alpha(row, column), Poison);
        }
        EXPECT_EQ(tables.VelRatio(row, 1), Poison);
        EXPECT_EQ(tables.MechAdv(row, 1), Poison);
        for (int point = 3; point <= 5; ++point)
            for (const auto* table : {&tables.PointPos, &tables.PointVel, &tables.PointAcc})
                EXPECT_TRUE(Is_Kept((*table)(row, point))) << point;
    }
};

TEST_P(NumericFault, IsReportedOnceAndCellsNotReachedKeepTheirValues) {
    Poison_Tables(tables);
    model.DataCalculated = false;
    model.DataFromFile = true;
    model.Theta5Rad = 1.5F;
    Answer response = Answer::Retry;
    Calculate(*program, 12, response);
    Expect_Fault(11, "Calculate");
    EXPECT_EQ(response, Answer::Retry);
    EXPECT_TRUE(tables.StepValid(12));
    EXPECT_FALSE(model.SomeStepFailed);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_TRUE(model.DataFromFile);
    EXPECT_EQ(model.Theta5Rad, 1.5F);
    Expect_Stage1_Cells(12, !GetParam().stage1);
    Expect_Stage2_Cells_Kept(12);
}

INSTANTIATE_TEST_SUITE_P(Cases, NumericFault, ::testing::ValuesIn(Fault_Cases()),
                         [](const auto& param) { return std::string(param.param.name); });

class FaultInSweep : public KinematicsTest {
  protected:
    void SetUp() override {
        Put_Four_Bar(2, 5, 6, 7);
        Put_Angle_Range(0, 360, 10);
        model.Link3 = 0;
    }
};

TEST_F(FaultInSweep, DoesNotStopTheDriver) {
    Answer response = Answer::None;
    Run_Sweep(*program, 3, response);
    for (int row = 0; row <= 36; ++row) {
        Expect_Fault(11, "Calculate");
        EXPECT_TRUE(tables.StepValid(row));
    }
    EXPECT_EQ(response, Answer::Retry);
    EXPECT_FALSE(model.SomeStepFailed);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_NEAR(model.Theta2Rad, 2 * Pi, 0.2) << "the crank went all the way";
    EXPECT_EQ(program->faults.entries.size(), 37U);
}

TEST_F(FaultInSweep, DoesNotSpoilTheRowsAfterIt) {
    model.Link3 = 5;
    const float length = model.Link5;
    for (int row = 0; row <= 2; ++row) {
        model.Link5 = row == 1 ? 0 : length;
        Solve(static_cast<std::int16_t>(row), 40);
    }
    Expect_Fault(11, "Calculate");
    EXPECT_EQ(tables.Theta(1, 5), 0);
    EXPECT_NE(tables.Theta(0, 5), 0);
    EXPECT_EQ(tables.Theta(2), tables.Theta(0));
    EXPECT_EQ(tables.PointAcc(2), tables.PointAcc(0));
}

TEST_F(FaultInSweep, IsShownOnceASweepWhereThePortAsksForThat) {
    port.shows_repeated_faults = false;
    Answer response = Answer::None;
    Run_Sweep(*program, 3, response);
    Expect_Fault(11, "Calculate");
    EXPECT_EQ(Boxes_Left(), 0U);
    Run_Sweep(*program, 3, response);
    Expect_Fault(11, "Calculate");
    EXPECT_EQ(Boxes_Left(), 0U);
    Calc_Drive_Data(*program, response);
    Expect_Fault(11, "Calculate");
    EXPECT_EQ(Boxes_Left(), 0U);
}

TEST_F(FaultInSweep, OutsideASweepEachOneIsShown) {
    port.shows_repeated_faults = false;
    Answer response = Answer::None;
    for (int call = 0; call < 3; ++call) {
        Calculate(*program, 0, response);
        Expect_Fault(11, "Calculate");
    }
}

TEST_F(FaultInSweep, AnotherNumberInTheSameSweepIsShownToo) {
    port.shows_repeated_faults = false;
    model.NumSteps = 1026;
    Answer response = Answer::None;
    Run_Sweep(*program, 2, response);
    Expect_Fault(11, "Calculate");
    Expect_Fault(9, "Calculate");
    EXPECT_EQ(Boxes_Left(), 0U);
}

TEST_F(KinematicsTest, ResultTooLargeForASingleStopsTheStoresInTheirOrder) {
    Put_Four_Bar(2, 5, 6, 7);
    Poison_Tables(tables);
    model.Omega2 = 1e20F;  // its square is beyond single precision: speeds fit, accelerations do not
    Solve(0, 40);
    Expect_Fault(6, "Calculate");
    EXPECT_TRUE(tables.StepValid(0));
    for (const int column : {0, 1, 2, 6}) EXPECT_NE(tables.Theta(0, column), Poison);
    EXPECT_NE(tables.VelRatio(0, 0), Poison);
    EXPECT_NE(tables.MechAdv(0, 0), Poison);
    EXPECT_EQ(tables.Omega(0, 0), 1e20F);
    EXPECT_EQ(tables.Alpha(0, 0), model.Alpha2);
    EXPECT_NE(tables.Omega(0, 1), Poison);
    EXPECT_NE(tables.Omega(0, 2), Poison);
    for (int column = 1; column <= 4; ++column) EXPECT_EQ(tables.Alpha(0, column), Poison);
    for (int point = 0; point <= 5; ++point) EXPECT_EQ(tables.PointPos(0, point, 0), Poison);
    EXPECT_EQ(tables.Theta(0, 3), Poison);
}

}  // namespace
}  // namespace kervol
