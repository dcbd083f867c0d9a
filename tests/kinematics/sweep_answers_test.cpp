// SPDX-License-Identifier: GPL-3.0-or-later
// How a sweep goes on over positions that cannot be assembled, by the user's answers.

#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

/// A linkage that assembles up to 82.8 and from 277.2 degrees: of 37 rows 9 to 27 fail.
class SweepAnswers : public SweepFixture {
  protected:
    static constexpr int kFirst = 9, kLast = 27;

    void SetUp() override {
        SweepFixture::SetUp();
        Put_Limited_Four_Bar();
        Put_Angle_Range(0, 360, 10);
    }

    /// The same rows as a time sweep of 10 degrees a step.
    void Put_Time_Range() {
        model.CalcMode = 2;
        model.Theta2One = 0;
        model.Omega2Start = 1;
        model.Alpha2Const = 0;
        model.TimeStart = 0;
        model.TimeStep = static_cast<float>(10 * RadiansPerDegree);
        model.NumSteps = 36;
    }

    void Expect_Zeroed(int row) {
        EXPECT_FALSE(tables.StepValid(row)) << row;
        for (int column = 1; column <= 7; ++column) EXPECT_EQ(tables.Theta(row, column), 0) << row;
        for (int column = 0; column <= 4; ++column) {
            EXPECT_EQ(tables.Omega(row, column), 0) << row;
            EXPECT_EQ(tables.Alpha(row, column), 0) << row;
        }
        for (int point = 0; point <= 5; ++point)
            for (int axis = 0; axis <= 1; ++axis) {
                EXPECT_EQ(tables.PointPos(row, point, axis), 0) << row;
                EXPECT_EQ(tables.PointVel(row, point, axis), 0) << row;
                EXPECT_EQ(tables.PointAcc(row, point, axis), 0) << row;
            }
        EXPECT_EQ(tables.VelRatio(row, 0), 0) << row;
        EXPECT_EQ(tables.MechAdv(row, 0), 0) << row;
    }

    void Expect_Solved(int row) {
        EXPECT_TRUE(tables.StepValid(row)) << row;
        EXPECT_NE(tables.PointPos(row, 1, 0), 0) << row;
        EXPECT_NEAR(tables.Theta(row, 0), 10 * row, 1e-3) << row;
    }
};

TEST_F(SweepAnswers, IgnoreShowsOneBoxOnlyAndLeavesTheUnreachableRowsAllZero) {
    Answer_With({Answer::Ignore});
    EXPECT_EQ(Sweep(3), Answer::Ignore);
    Expect_Cannot_Assemble(" 1", "90");
    EXPECT_EQ(Boxes_Left(), 0U);
    for (int row = 0; row <= 36; ++row) {
        if (row < kFirst || row > kLast) {
            Expect_Solved(row);
            continue;
        }
        Expect_Zeroed(row);
        EXPECT_EQ(tables.Theta(row, 0), 0) << "column 0 as well, from the cleared tables";
    }
    EXPECT_TRUE(model.SomeStepFailed);
    EXPECT_TRUE(model.DataCalculated);
}

TEST_F(SweepAnswers, RetryShowsTheBoxAtEveryFailureAndSolvesNothingAgain) {
    Answer_With({Answer::Retry});
    EXPECT_EQ(Sweep(3), Answer::Retry);
    for (int row = kFirst; row <= kLast; ++row) {
        Expect_Cannot_Assemble(" 1", std::to_string(10 * row));
        Expect_Zeroed(row);
    }
    Expect_Solved(kLast + 1);
    EXPECT_TRUE(model.DataCalculated);
}

TEST_F(SweepAnswers, RetryThenIgnoreAsksTwice) {
    Answer_With({Answer::Retry, Answer::Ignore});
    EXPECT_EQ(Sweep(3), Answer::Ignore);
    Expect_Cannot_Assemble(" 1", "90");
    Expect_Cannot_Assemble(" 1", "100");
    Expect_Solved(36);
}

TEST_F(SweepAnswers, AbortStopsAtOnceAndClearsDataCalculated) {
    for (int row = 0; row <= 36; ++row) tables.StepValid(row) = true;
    Answer_With({Answer::Retry, Answer::Abort});
    EXPECT_EQ(Sweep(3), Answer::Abort);
    Take_Box();
    Expect_Cannot_Assemble(" 1", "100");
    Expect_Solved(kFirst - 1);
    Expect_Zeroed(kFirst + 1);
    EXPECT_TRUE(tables.StepValid(kFirst + 2)) << "rows beyond stay as they were";
    EXPECT_EQ(tables.Theta(kFirst + 2, 1), 0);
    EXPECT_EQ(tables.Theta(36, 1), 0);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_TRUE(model.SomeStepFailed);
    EXPECT_NEAR(model.Theta2Rad, 100 * RadiansPerDegree, 1e-5) << "the crank stands where it failed";
}

TEST_F(SweepAnswers, AnswerOfOneSweepIsNotThatOfTheNext) {
    Answer_With({Answer::Ignore});
    Sweep(3);
    Sweep(3);
    Expect_Cannot_Assemble(" 1", "90");
    Expect_Cannot_Assemble(" 1", "90");
}

TEST_F(SweepAnswers, SomeStepFailedIsClearedByTheNextSweepThatSolves) {
    Answer_With({Answer::Ignore});
    Sweep(3);
    Take_Box();
    EXPECT_TRUE(model.SomeStepFailed);
    Put_Angle_Range(0, 80, 10);
    Sweep(3);
    EXPECT_FALSE(model.SomeStepFailed);
}

TEST_F(SweepAnswers, FailedLastRowLeavesDataCalculatedOfTheEarlierRows) {
    Put_Angle_Range(0, 180, 10);
    Answer_With({Answer::Ignore});
    Sweep(3);
    Take_Box();
    EXPECT_FALSE(tables.StepValid(18));
    EXPECT_TRUE(model.DataCalculated);
}

TEST_F(SweepAnswers, RowsAfterAGapDoNotDependOnTheGap) {
    Answer_With({Answer::Ignore});
    Sweep(3);
    Take_Box();
    const auto theta = tables.Theta(kLast + 1);
    const auto acceleration = tables.PointAcc(kLast + 1);
    const float crank = static_cast<float>(double(model.ThetaStep));
    model.Theta2Rad = 0;
    for (int row = 0; row <= kLast; ++row) model.Theta2Rad += crank;
    Answer response = Answer::Ignore;
    tables.Theta(kLast + 1).Fill(0);
    Calculate(*program, kLast + 1, response);
    EXPECT_EQ(tables.Theta(kLast + 1), theta);
    EXPECT_EQ(tables.PointAcc(kLast + 1), acceleration);
}

TEST_F(SweepAnswers, Stage2FailureKeepsTheCrankAngleAsAbscissa) {
    Put_Four_Bar(2, 5, 6, 7);
    Break_Stage2();
    Answer_With({Answer::Ignore});
    Sweep(3);
    Expect_Cannot_Assemble(" 2", "0");
    for (int row = 0; row <= 36; ++row) {
        Expect_Zeroed(row);
        EXPECT_NEAR(tables.Theta(row, 0), 10 * row, 1e-3);
    }
    EXPECT_FALSE(model.DataCalculated);
}

TEST_F(SweepAnswers, AbortInTheSecondSolutionOfAnOvershootingRowCounts) {
    // Row 3 is solved at 300, where it assembles, and again at 270, where it does not.
    Put_Angle_Range(0, 270, 100);
    Answer_With({Answer::Ignore});
    Sweep(3);
    Take_Box();
    EXPECT_EQ(model.NumSteps, 3);
    Answer_With({Answer::Retry, Answer::Retry, Answer::Abort});
    EXPECT_EQ(Sweep(3), Answer::Abort);
    Expect_Cannot_Assemble(" 1", "100");
    Expect_Cannot_Assemble(" 1", "200");
    Expect_Cannot_Assemble(" 1", "270");
    EXPECT_FALSE(model.DataCalculated);
}

TEST_F(SweepAnswers, TimeSweepAbortLeavesTheRowsBeyondAsTheyWere) {
    Put_Time_Range();
    Poison_Tables(tables);
    Answer_With({Answer::Abort});
    EXPECT_EQ(Sweep(2), Answer::Abort);
    Expect_Cannot_Assemble(" 1", "90");
    Expect_Solved(kFirst - 1);
    Expect_Zeroed(kFirst);
    EXPECT_EQ(tables.Theta(kFirst, 0), Poison) << "Stage 1 failed and the tables were not cleared";
    EXPECT_EQ(tables.VelRatio(kFirst, 1), Poison);
    for (int row = kFirst + 1; row <= 36; ++row) {
        EXPECT_EQ(tables.Theta(row, 1), Poison);
        EXPECT_EQ(tables.PointPos(row, 0, 0), Poison);
    }
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_NEAR(model.CurrentTime, 90 * RadiansPerDegree, 1e-5) << "the time stands where it failed";
}

TEST_F(SweepAnswers, TimeSweepRetryAndIgnoreGoOn) {
    Put_Time_Range();
    Answer_With({Answer::Retry, Answer::Retry, Answer::Ignore});
    EXPECT_EQ(Sweep(2), Answer::Ignore);
    Expect_Cannot_Assemble(" 1", "90");
    Expect_Cannot_Assemble(" 1", "100");
    Expect_Cannot_Assemble(" 1", "110");
    for (int row = kFirst; row <= kLast; ++row) Expect_Zeroed(row);
    Expect_Solved(36);
    EXPECT_TRUE(model.DataCalculated);
}

TEST_F(SweepAnswers, OnePositionComesBackWithTheAnswerAndNoData) {
    Put_Limited_Four_Bar(30);
    for (const Answer answer : {Answer::Abort, Answer::Retry, Answer::Ignore}) {
        model.Theta2One = 130;
        model.DataCalculated = true;
        model.DataFromFile = true;
        Answer_With({answer});
        EXPECT_EQ(Sweep(1), answer);
        Expect_Cannot_Assemble(" 1", "100");
        Expect_Zeroed(0);
        EXPECT_FALSE(model.DataCalculated);
        EXPECT_TRUE(model.DataFromFile);
        EXPECT_EQ(model.NumSteps, 0);
    }
}

}  // namespace
}  // namespace kervol
