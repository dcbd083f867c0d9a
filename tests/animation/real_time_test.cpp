// SPDX-License-Identifier: GPL-3.0-or-later
// When each row is reached in an animation that runs by itself.
#include "animation/real_time.h"

#include "kinematics/examples.h"
#include "kinematics/step_count.h"
#include "support/program_test.h"

namespace kervol {
namespace {

constexpr double kTurn = 6.283185307;
/// Steps and speeds are single precision.
constexpr double kRounding = 1e-5;

class RealTimeTest : public ProgramTest {
  protected:
    RealTimeTest() { Load_Example(model, *Find_Example("watt")); }

    /// The Watt example from `low` to `high` degrees at a crank speed.
    void Sweep(float low, float high, float step, float speed) {
        model.ThetaMinDeg = low;
        model.ThetaMaxDeg = high;
        model.ThetaStepDeg = step;
        model.Omega2Start = speed;
        ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    }
};

TEST_F(RealTimeTest, ATurnTakesTheTimeOfTheCrank) {
    Sweep(0, 360, 10, 2);
    const TimedCycle cycle = Timed_Cycle(*program, 1, 0);
    EXPECT_TRUE(cycle.closed);
    EXPECT_TRUE(cycle.smooth);
    EXPECT_NEAR(cycle.seconds, kTurn / 2, kRounding);
    EXPECT_NEAR(cycle.speed, 1, 1e-12);
    ASSERT_EQ(cycle.rows.size(), 37U);
    EXPECT_NEAR(cycle.rows[9].seconds, kTurn / 8, kRounding);
    EXPECT_NEAR(cycle.rows[36].seconds, cycle.seconds, 1e-12);
}

TEST_F(RealTimeTest, ACrankThatRunsBackwardsTakesAsLong) {
    Sweep(0, 360, 10, -2);
    EXPECT_NEAR(Timed_Cycle(*program, 1, 0).seconds, kTurn / 2, kRounding);
}

TEST_F(RealTimeTest, ARangeHoldsItsLastPositionForAStep) {
    Sweep(0, 60, 10, 0.1F);
    const TimedCycle cycle = Timed_Cycle(*program, 1, 0);
    EXPECT_FALSE(cycle.closed);
    EXPECT_NEAR(cycle.rows.back().seconds, kTurn / 6 / 0.1, 1e-4);
    EXPECT_NEAR(cycle.seconds, 7 * kTurn / 36 / 0.1, 1e-4);
}

TEST_F(RealTimeTest, SpeedDividesTheTime) {
    Sweep(0, 360, 10, 2);
    const TimedCycle cycle = Timed_Cycle(*program, 0.1, 0);
    EXPECT_NEAR(cycle.seconds, 10 * kTurn / 2, 1e-4);
    EXPECT_NEAR(cycle.speed, 0.1, 1e-12);
}

TEST_F(RealTimeTest, NoCycleIsABlur) {
    Sweep(0, 360, 10, 200);
    const TimedCycle cycle = Timed_Cycle(*program, 1, 0);
    EXPECT_EQ(cycle.seconds, ShortestCycleSeconds);
    EXPECT_NEAR(cycle.speed, kTurn / 200 / 0.5, 1e-6);
}

TEST_F(RealTimeTest, TimeStepsTakeTheirTime) {
    model.CalcMode = 2;
    model.Omega2Start = 1;
    model.Alpha2Const = 0;
    model.TimeStart = 0;
    model.TimeEnd = 2;
    model.TimeStep = 0.1F;
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    const TimedCycle cycle = Timed_Cycle(*program, 1, 0);
    ASSERT_EQ(cycle.rows.size(), 21U);
    EXPECT_NEAR(cycle.rows[10].seconds, 1, kRounding);
    EXPECT_NEAR(cycle.seconds, 2.1, kRounding);
}

TEST_F(RealTimeTest, AStandingCrankIsGivenASpeed) {
    model.Omega2Start = 0;
    EXPECT_TRUE(Start_Standing_Crank(model));
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    EXPECT_NEAR(Timed_Cycle(*program, 1, 0).seconds, StandingCycleSeconds, kRounding);
    EXPECT_FALSE(Start_Standing_Crank(model));
}

TEST_F(RealTimeTest, OnlyACrankInARangeOfAnglesIsStarted) {
    model.CalcMode = 2;
    model.Omega2Start = 0;
    EXPECT_FALSE(Start_Standing_Crank(model));
    EXPECT_EQ(model.Omega2Start, 0);
}

TEST_F(RealTimeTest, APositionAloneHasNoTime) {
    model.CalcMode = 1;
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    const TimedCycle cycle = Timed_Cycle(*program, 1, 0);
    EXPECT_EQ(cycle.rows.size(), 1U);
    EXPECT_EQ(cycle.seconds, 0);
    EXPECT_EQ(cycle.speed, 0);
}

TEST_F(RealTimeTest, RowsThatComeTooSoonAreLeftOutButNeverTheLast) {
    Sweep(0, 360, 10, 10);  // a row each 0.01745 s
    const TimedCycle cycle = Timed_Cycle(*program, 1, 0.03);
    ASSERT_EQ(cycle.rows.size(), 19U);
    for (std::size_t i = 0; i < 19; ++i) EXPECT_EQ(cycle.rows[i].row, 2 * int(i));
    EXPECT_FALSE(cycle.smooth);  // 20 degrees
    const TimedCycle coarse = Timed_Cycle(*program, 1, 0.09);
    EXPECT_EQ(coarse.rows.front().row, 0);
    EXPECT_EQ(coarse.rows.back().row, 36);
}

TEST_F(RealTimeTest, RowsThatFailedLeaveTheirTime) {
    Sweep(0, 60, 10, 0.1F);
    tables.StepValid(2) = tables.StepValid(3) = false;
    const TimedCycle cycle = Timed_Cycle(*program, 1, 0);
    ASSERT_EQ(cycle.rows.size(), 5U);
    EXPECT_EQ(cycle.rows[2].row, 4);
    EXPECT_FALSE(cycle.rows[2].joined);
    EXPECT_TRUE(cycle.rows[3].joined);
    EXPECT_NEAR(cycle.rows[2].seconds, 4 * kTurn / 36 / 0.1, 1e-4);
}

TEST_F(RealTimeTest, ALinkageThatNeverAssemblesHasNoRows) {
    Sweep(0, 60, 10, 1);
    for (int step = 0; step <= 6; ++step) tables.StepValid(step) = false;
    EXPECT_TRUE(Timed_Cycle(*program, 1, 0).rows.empty());
}

}  // namespace
}  // namespace kervol
