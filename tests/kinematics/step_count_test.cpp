// SPDX-License-Identifier: GPL-3.0-or-later
// Counts of steps, what is refused and with which words, the range of the quick preview.
#include "kinematics/step_count.h"

#include <array>

#include "kinematics/assembly.h"
#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

constexpr const char* kZeroStep = "Cannot have a zero step size - Please check your data.";
constexpr const char* kAngleSteps =
    "Your angle steps are too small - Have > 1024 Points - Increase Delta Theta";
constexpr const char* kTimeSteps =
    "Your time steps are too small - Have > 1024 Points - Increase Delta Time or Reduce Finish Time";

constexpr std::int16_t kOld = 77;

struct RangeCase {
    float low, high, step;
    std::int16_t count;
};

class StepCountTest : public KinematicsTest {
  protected:
    Refusal Count_Angles(float low, float high, float step) {
        model.ThetaMinDeg = low;
        model.ThetaMaxDeg = high;
        model.ThetaStepDeg = step;
        model.NumSteps = kOld;
        return Count_Angle_Steps(*program);
    }

    Refusal Count_Times(float low, float high, float step) {
        model.TimeStart = low;
        model.TimeEnd = high;
        model.TimeStep = step;
        model.NumSteps = kOld;
        return Count_Time_Steps(*program);
    }
};

TEST_F(StepCountTest, AngleStepsAreTheRoundedQuotient) {
    // clang-format off
    for (const auto& [low, high, step, count] : std::to_array<RangeCase>({
             {   0,     360,  10,    36}, {  0,    360,   1,  360}, {0, 100, 30, 3}, {0, 100, 40, 3},
             { 180,     540,   5,    72}, { 30,    390,   4,   90}, {0,  14, 10, 1}, {0,  16, 10, 2},
             { -90,      90,  45,     4}, { 90,      0, -45,    2}, {0,   4, 10, 0}, {5,   5, 10, 0},
             {   0,    1024,   1,  1024}, {  0, 1024.4F,  1, 1024},
             {  90,       0,  45,    -2}, {  0,     90, -45,   -2}, {0,  17, -10, -2}, {0, 14, -10, -1},
         })) {
        // clang-format on
        EXPECT_EQ(Count_Angles(low, high, step), Refusal::None);
        EXPECT_EQ(model.NumSteps, count) << low << " " << high << " " << step;
    }
}

TEST_F(StepCountTest, AngleRangeIsTakenFromItsDegreeFields) {
    model.ThetaMin = model.ThetaMax = model.ThetaStep = 99;
    model.ThetaMinText = model.ThetaMaxText = model.ThetaStepText = "?";
    model.Alpha2Const = -5;
    Count_Angles(-22.5F, 180, 7.5F);
    EXPECT_FLOAT_EQ(model.ThetaMin, static_cast<float>(-22.5 * RadiansPerDegree));
    EXPECT_FLOAT_EQ(model.ThetaMax, static_cast<float>(180 * RadiansPerDegree));
    EXPECT_FLOAT_EQ(model.ThetaStep, static_cast<float>(7.5 * RadiansPerDegree));
    EXPECT_EQ(model.ThetaMinText, "-22.5");
    EXPECT_EQ(model.ThetaMaxText, "180");
    EXPECT_EQ(model.ThetaStepText, "7.5");
    EXPECT_EQ(model.Alpha2Const, 0);
}

TEST_F(StepCountTest, ZeroAngleStepIsRefusedBeforeAnythingIsCounted) {
    for (const float step : {0.0F, -0.0F, 1e-45F}) {  // the last one is 0 in radians
        model.Alpha2Const = -5;
        model.ThetaMinText = "?";
        EXPECT_EQ(Count_Angles(0, 360, step), Refusal::ZeroAngleStep);
        Expect_Box(kZeroStep, Icon::Exclamation);
        EXPECT_EQ(model.NumSteps, kOld);
        EXPECT_EQ(model.Alpha2Const, -5);
        EXPECT_EQ(model.ThetaMinText, "0") << "the range is taken all the same";
    }
}

TEST_F(StepCountTest, MoreThan1024AngleStepsAreRefusedAndCounted) {
    // clang-format off
    for (const auto& [low, high, step, count] : std::to_array<RangeCase>({
             {0, 1025,   1, 1025}, {0, 1024.6F, 1, 1025}, {0, 360, 0.25F, 1440}, {0, 32767, 1, 32767},
             {360, 0, -0.25F, 1440},
         })) {
        // clang-format on
        model.Alpha2Const = -5;
        EXPECT_EQ(Count_Angles(low, high, step), Refusal::TooManyAngleSteps);
        Expect_Box(kAngleSteps, Icon::Exclamation);
        EXPECT_EQ(model.NumSteps, count);
        EXPECT_EQ(model.Alpha2Const, 0);
    }
}

TEST_F(StepCountTest, AngleStepsBeyond16BitsAreRefusedAndTheOldCountStays) {
    for (const float step : {0.01F, 1e-6F, 1e-30F, 1e-43F}) {
        EXPECT_EQ(Count_Angles(0, 360, step), Refusal::TooManyAngleSteps);
        Expect_Box(kAngleSteps, Icon::Exclamation);
        EXPECT_EQ(model.NumSteps, kOld) << step;
    }
}

TEST_F(StepCountTest, NegativeAngleStepsBeyond16BitsKeepTheOldCountAndAreNotRefused) {
    EXPECT_EQ(Count_Angles(0, 360, -0.01F), Refusal::None);
    EXPECT_EQ(model.NumSteps, kOld);
}

TEST_F(StepCountTest, TimeStepsAreTheRoundedQuotient) {
    // clang-format off
    for (const auto& [low, high, step, count] : std::to_array<RangeCase>({
             {0,    5, 0.05F,  100}, {1,       2, 0.25F,    4}, {0, 5, 2, 3}, {0, 1, 0.3F, 3},
             {0, 1024,     1, 1024}, {0, 1024.4F,     1, 1024}, {5, 0, 0.05F, -100}, {2, 2,  1, 0},
         })) {
        // clang-format on
        EXPECT_EQ(Count_Times(low, high, step), Refusal::None);
        EXPECT_EQ(model.NumSteps, count) << low << " " << high << " " << step;
    }
}

TEST_F(StepCountTest, TimeRangeShowsInTheTextsOfMode2AndNotOfMode1) {
    for (const auto mode : std::to_array<std::int16_t>({1, 2})) {
        model.CalcMode = mode;
        model.ThetaMinText = model.ThetaMaxText = model.ThetaStepText = "?";
        Count_Times(0.5F, 5, 0.05F);
        EXPECT_EQ(model.ThetaMinText, mode == 2 ? "0.5" : "?");
        EXPECT_EQ(model.ThetaMaxText, mode == 2 ? "5" : "?");
        EXPECT_EQ(model.ThetaStepText, mode == 2 ? "0.05" : "?");
    }
}

TEST_F(StepCountTest, TimeStepOfZeroOrBelowIsRefusedUncounted) {
    for (const float step : {0.0F, -0.0F, -0.05F, -1e-45F}) {
        EXPECT_EQ(Count_Times(0, 5, step), Refusal::TimeSteps);
        Expect_Box(kTimeSteps, Icon::Exclamation);
        EXPECT_EQ(model.NumSteps, kOld);
    }
}

TEST_F(StepCountTest, MoreThan1024TimeStepsAreRefusedAndCountedWithin16Bits) {
    // clang-format off
    for (const auto& [low, high, step, count] : std::to_array<RangeCase>({
             {0, 1025,     1,  1025}, {0, 1024.5F, 1, 1025}, {0, 32767, 1, 32767},
             {0, 32768,    1,  kOld}, {0, 5, 1e-6F, kOld},   {0, 3e38F, 1e-45F, kOld},
         })) {
        // clang-format on
        EXPECT_EQ(Count_Times(low, high, step), Refusal::TimeSteps);
        Expect_Box(kTimeSteps, Icon::Exclamation);
        EXPECT_EQ(model.NumSteps, count);
    }
}

class PreviewTest : public KinematicsTest {
  protected:
    /// A model whose range fields hold what a preview must not touch.
    void SetUp() override {
        Put_Angle_Range(20, 200, 5);
        model.DataCalculated = true;
    }
};

TEST_F(PreviewTest, GrashofLinkageTurnsFullyInTenSteps) {
    Put_Four_Bar(2, 5, 6, 7);
    Set_Preview_Range(*program);
    EXPECT_EQ(model.ThetaMin, 0);
    EXPECT_EQ(model.ThetaMax, 6.283185308F);
    EXPECT_EQ(model.ThetaStep, static_cast<float>(double(6.283185308F) / 10));
    EXPECT_EQ(model.NumSteps, 10);
    EXPECT_EQ(model.Stage1Class, "Y");
    EXPECT_EQ(model.Stage2Class, "Y");
}

TEST_F(PreviewTest, SpecialCaseTurnsFullyToo) {
    Put_Four_Bar(1, 4, 2, 3);
    Set_Preview_Range(*program);
    EXPECT_EQ(model.Stage1Class, "SC");
    EXPECT_EQ(model.ThetaMax, 6.283185308F);
    EXPECT_EQ(model.NumSteps, 10);
}

TEST_F(PreviewTest, NonGrashofLinkageMovesOneDegreeToEitherSideOfZero) {
    Put_Limited_Four_Bar();
    Set_Preview_Range(*program);
    EXPECT_EQ(model.Stage1Class, "N");
    EXPECT_EQ(model.ThetaMin, static_cast<float>(-RadiansPerDegree));
    EXPECT_EQ(model.ThetaMax, static_cast<float>(RadiansPerDegree));
    EXPECT_EQ(model.ThetaStep, static_cast<float>((double(model.ThetaMax) - model.ThetaMin) / 10));
    EXPECT_EQ(model.NumSteps, 10);
}

TEST_F(PreviewTest, LimitAngleThatIsNoneShowsItsBoxAndThePreviewGoesOn) {
    Put_Four_Bar(1, 1, 1, 6);
    Set_Preview_Range(*program);
    Expect_Box(
        "Attempting to take square root of negative number (-6.5625) in FNArcCos(2.75 ) - check your data",
        Icon::Exclamation);
    EXPECT_EQ(model.NumSteps, 10);
    EXPECT_EQ(model.ThetaMax, static_cast<float>(RadiansPerDegree));
}

TEST_F(PreviewTest, LimitAngleOfAZeroCrankIsReportedAndThePreviewGoesOn) {
    Put_Four_Bar(0, 1, 1, 6);
    Set_Preview_Range(*program);
    Expect_Fault(11, "Check_Limit_Angles");
    EXPECT_EQ(model.NumSteps, 10);
    EXPECT_EQ(model.ThetaMax, static_cast<float>(RadiansPerDegree));
}

TEST_F(PreviewTest, TouchesOnlyTheRadianRangeTheCountTheClassesAndDataCalculated) {
    Put_Limited_Four_Bar();
    Break_Stage2();
    model.Stage1Class = model.Stage2Class = model.StageText(0) = model.StageText(1) = "?";
    const LinkageModel before = model;
    Set_Preview_Range(*program);
    const std::vector<std::string> expected = {"Stage1Class", "Stage2Class", "StageText", "NumSteps",
                                               "ThetaMin",    "ThetaMax",    "ThetaStep", "DataCalculated"};
    EXPECT_EQ(Differing_Fields(model, before), expected);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_EQ(model.StageText(1), "Stage  2  is Non - Grashof");
}

TEST_F(PreviewTest, StephensonHasNoStage2Class) {
    Put_Four_Bar(2, 5, 6, 7);
    model.LinkageType = "S";
    model.Stage2Class = "?";
    Set_Preview_Range(*program);
    EXPECT_EQ(model.Stage2Class, "?");
}

TEST_F(PreviewTest, SweepBehindItCoversTheWholeTravel) {
    Put_Four_Bar(2, 5, 6, 7);
    model.AngleRange = "free";
    model.Omega2Start = 10;
    Set_Preview_Range(*program);
    Answer response = Answer::None;
    Run_Sweep(*program, 3, response);
    for (int row = 0; row <= 10; ++row) EXPECT_NEAR(tables.Theta(row, 0), 36 * row, 1e-3);
    EXPECT_EQ(model.ThetaMinDeg, 20);
    EXPECT_EQ(model.ThetaMaxText, "200");
}

}  // namespace
}  // namespace kervol
