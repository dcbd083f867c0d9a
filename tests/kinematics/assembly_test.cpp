// SPDX-License-Identifier: GPL-3.0-or-later
// Grashof classes, limit angles, and what a position that cannot be assembled leaves behind.
#include "kinematics/assembly.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

using AssemblyTest = KinematicsTest;

struct ClassCase {
    float l1, l2, l3, l4;  ///< crank, coupler, rocker, ground
    const char* grashof_class;
    const char* words;  ///< behind "Stage  1"
};

TEST_F(AssemblyTest, ClassesAndTheirWords) {
    // clang-format off
    for (const auto& [l1, l2, l3, l4, grashof_class, words] : std::to_array<ClassCase>({
             {2, 5, 6, 7, "Y",  "  is Grashof"},                // 2 + 7 < 5 + 6
             {7, 5, 6, 2, "Y",  "  is Grashof"},
             {5, 2, 6, 7, "Y",  "  is Grashof Double-Rocker"},  // the coupler is the shortest
             {7, 2, 5, 6, "Y",  "  is Grashof Double-Rocker"},
             {4, 3, 3, 5, "N",  "  is Non - Grashof"},          // 3 + 5 > 3 + 4
             {2, 1, 9, 3, "N",  "  is Non - Grashof"},          // the coupler is the shortest, and yet
             {1, 4, 2, 3, "SC", "  is Special Case Grashof"},   // 1 + 4 = 2 + 3
             {4, 1, 2, 3, "SC", "  is Special Case Grashof"},
             {5, 5, 5, 5, "SC", "  is Special Case Grashof"},   // all equal
             {3, 7, 3, 7, "SC", "  is Special Case Grashof"},   // a parallelogram
             {3, 3, 7, 7, "SC", "  is Special Case Grashof"},   // a kite
             {0, 0, 0, 0, "SC", "  is Special Case Grashof"},
         })) {
        // clang-format on
        std::string out = "?";
        Classify_Stage(model, l1, l2, l3, l4, 0, out);
        EXPECT_EQ(out, grashof_class);
        EXPECT_EQ(model.StageText(0), std::string("Stage  1") + words);
    }
}

TEST_F(AssemblyTest, TwoEquallyShortLinksAreNeverGrashofSoThatTheCouplerByValueHasNoTie) {
    // S + L against S + Q with L at least Q: at best the special case.
    for (const auto& [l1, l2, l3, l4, grashof_class, words] : std::to_array<ClassCase>({
             {2, 2, 6, 5, "N", "  is Non - Grashof"},
             {6, 2, 5, 2, "N", "  is Non - Grashof"},
             {2, 2, 5, 5, "SC", "  is Special Case Grashof"},
             {5, 2, 5, 2, "SC", "  is Special Case Grashof"},
         })) {
        std::string out = "?";
        Classify_Stage(model, l1, l2, l3, l4, 0, out);
        EXPECT_EQ(out, grashof_class);
        EXPECT_EQ(model.StageText(0), std::string("Stage  1") + words);
    }
}

TEST_F(AssemblyTest, ClassDoesNotDependOnTheOrderOfTheOtherLinks) {
    std::array<float, 4> lengths = {2, 5, 6, 7};
    do {
        std::string out;
        Classify_Stage(model, lengths[0], lengths[1], lengths[2], lengths[3], 0, out);
        EXPECT_EQ(out, "Y");
        EXPECT_EQ(model.StageText(0),
                  lengths[1] < 3 ? "Stage  1  is Grashof Double-Rocker" : "Stage  1  is Grashof");
    } while (std::next_permutation(lengths.begin(), lengths.end()));
}

TEST_F(AssemblyTest, SumsAreComparedInSinglePrecision) {
    // 1 + 16777216 is 16777216 in single precision, and so is 8388608 + 8388608.
    std::string out;
    Classify_Stage(model, 1, 8388608, 8388608, 16777216, 0, out);
    EXPECT_EQ(out, "SC");
}

TEST_F(AssemblyTest, SecondStageHasItsOwnText) {
    model.StageText(0) = "kept";
    std::string out;
    Classify_Stage(model, 2, 5, 6, 7, 1, out);
    EXPECT_EQ(model.StageText(0), "kept");
    EXPECT_EQ(model.StageText(1), "Stage  2  is Grashof");
}

TEST_F(AssemblyTest, StagesAreClassifiedByTheirOwnLengths) {
    model.Link2 = 5, model.Link3 = 2, model.Link4 = 6, model.Link1 = 7;
    model.LinkO4D = 4, model.Link5 = 3, model.Link6 = 3, model.O4O6Length = 5;
    Classify_Stage1(*program);
    EXPECT_EQ(model.Stage1Class, "Y");
    EXPECT_EQ(model.StageText(0), "Stage  1  is Grashof Double-Rocker");
    Classify_Stage2(*program);
    EXPECT_EQ(model.Stage2Class, "N");
    EXPECT_EQ(model.StageText(1), "Stage  2  is Non - Grashof");

    model.LinkO4D = 5, model.Link5 = 2, model.Link6 = 6, model.O4O6Length = 7;
    Classify_Stage2(*program);
    EXPECT_EQ(model.StageText(1), "Stage  2  is Grashof Double-Rocker") << "link 5 is the coupler";
}

TEST_F(AssemblyTest, OnlyAWattChainHasAStage2Class) {
    for (const std::string_view chain : {"S", "", "w"}) {
        model.LinkageType = chain;
        model.Stage2Class = "old";
        model.StageText(1) = "old";
        Classify_Stage2(*program);
        EXPECT_EQ(model.Stage2Class, "old");
        EXPECT_EQ(model.StageText(1), "old");
    }
}

TEST_F(AssemblyTest, LimitAngleIsTakenFromTheSumWhereThatIsACosine) {
    // u = (16 + 25 - 9 - 9) / 40, v = 9 / 20: their sum 1.025 is none, their difference 0.125 is.
    EXPECT_NEAR(Check_Limit_Angles(port, 4, 3, 3, 5), std::acos(0.125) * DegreesPerRadian, 1e-5);
    // u = (4 + 9 - 1 - 4) / 12 = 2/3, v = 2 / 6 = 1/3: the sum is 1, whose arc cosine counts as 1 radian.
    EXPECT_NEAR(Check_Limit_Angles(port, 2, 1, 2, 3), DegreesPerRadian, 1e-9);
    // u = (9 + 9 - 4 - 25) / 18 = -11/18, v = 10 / 9: the sum is 1/2.
    EXPECT_NEAR(Check_Limit_Angles(port, 3, 2, 5, 3), 60, 1e-5);
}

TEST_F(AssemblyTest, LimitAngleBeyondACosineShowsTheBoxOfTheArcCosine) {
    // u = (1 + 36 - 1 - 1) / 12 = 35/12, v = 1/6: neither 37/12 nor 2.75 is a cosine. 1 - 2.75 * 2.75 =
    // -6.5625.
    EXPECT_EQ(Check_Limit_Angles(port, 1, 1, 1, 6), 0);
    Expect_Box(
        "Attempting to take square root of negative number (-6.5625) in FNArcCos(2.75 ) - check your data",
        Icon::Exclamation);
}

class CannotAssembleTest : public KinematicsTest {
  protected:
    void SetUp() override {
        Poison_Tables(tables);
        tables.StepValid(7) = true;
    }

    Answer Fail(int stage, float theta2, Answer response) {
        Cannot_Assemble(*program, stage, 7, theta2, response);
        return response;
    }
};

TEST_F(CannotAssembleTest, BoxHasItsWholeTextIconButtonsAndIgnorePreset) {
    port.answer = [](const MessageBox& box) {
        EXPECT_EQ(box.preset, Answer::Ignore);
        return Answer::Retry;
    };
    EXPECT_EQ(Fail(1, 0, Answer::Retry), Answer::Retry);
    const MessageBox box = Take_Box();
    EXPECT_EQ(box.text,
              "Stage  1 of linkage cannot connect or is indeterminate at Theta2 =  0 Degrees\n"
              "\n"
              "Choose Abort to terminate further calculations beyond the current position\n"
              "\n"
              "Choose Retry to continue calculating the linkage motion and flag new problem positions with "
              "this message\n"
              "\n"
              "Choose Ignore to continue calculating, skipping over new problem positions and suppressing "
              "further messages\n");
    EXPECT_EQ(box.icon, Icon::Exclamation);
    EXPECT_EQ(box.buttons, Buttons::AbortRetryIgnore);
}

struct AngleTextCase {
    double degrees;
    const char* text;
};

TEST_F(CannotAssembleTest, AngleIsPlainWithAtMostTwoDecimals) {
    // clang-format off
    for (const auto& [degrees, text] : std::to_array<AngleTextCase>({
             {     90, "90"    }, {  12.5, "12.5"  }, {123.456, "123.46"}, {-45.678, "-45.68"},
             {  0.004, "0"     }, {-0.004, "0"     }, {   0.05, "0.05"  }, { -0.006, "-0.01" },
             {   1440, "1440"  },
         })) {
        // clang-format on
        Fail(2, static_cast<float>(degrees * RadiansPerDegree), Answer::Retry);
        Expect_Cannot_Assemble(" 2", text);
    }
}

TEST_F(CannotAssembleTest, EveryAnswerComesBack) {
    for (const Answer answer : {Answer::Abort, Answer::Retry, Answer::Ignore})
        for (const Answer before : {Answer::None, Answer::Abort, Answer::Retry}) {
            Answer_With({answer});
            EXPECT_EQ(Fail(1, 0, before), answer);
            Expect_Cannot_Assemble(" 1", "0");
        }
}

TEST_F(CannotAssembleTest, AfterIgnoreNoBoxIsShown) {
    EXPECT_EQ(Fail(1, 0, Answer::Ignore), Answer::Ignore);
    EXPECT_EQ(Boxes_Left(), 0U);
    EXPECT_TRUE(model.SomeStepFailed);
    EXPECT_FALSE(tables.StepValid(7));
}

TEST_F(CannotAssembleTest, ZeroesTheRowButNotWhatMustStay) {
    model.CalcMode = 3;
    Fail(1, 0, Answer::Ignore);
    EXPECT_EQ(tables.Theta(7, 0), Poison);
    for (int column = 1; column <= 7; ++column) EXPECT_EQ(tables.Theta(7, column), 0) << column;
    for (int column = 0; column <= 4; ++column) {
        EXPECT_EQ(tables.Omega(7, column), 0) << column;
        EXPECT_EQ(tables.Alpha(7, column), 0) << column;
    }
    for (int point = 0; point <= 10; ++point)
        for (int axis = 0; axis <= 1; ++axis)
            for (const auto* table : {&tables.PointPos, &tables.PointVel, &tables.PointAcc})
                EXPECT_EQ((*table)(7, point, axis), point <= 5 ? 0 : Poison) << point;
    EXPECT_EQ(tables.VelRatio(7, 0), 0);
    EXPECT_EQ(tables.MechAdv(7, 0), 0);
    EXPECT_EQ(tables.VelRatio(7, 1), Poison);
    EXPECT_EQ(tables.MechAdv(7, 1), Poison);
}

TEST_F(CannotAssembleTest, LeavesOtherRowsAndOtherTablesAlone) {
    ResultTables poisoned;
    Poison_Tables(poisoned);
    Fail(1, 0, Answer::Ignore);
    for (const int row : {0, 6, 8, 1024}) {
        EXPECT_EQ(tables.Theta(row), poisoned.Theta(row));
        EXPECT_EQ(tables.Omega(row), poisoned.Omega(row));
        EXPECT_EQ(tables.PointPos(row), poisoned.PointPos(row));
        EXPECT_EQ(tables.VelRatio(row), poisoned.VelRatio(row));
    }
    EXPECT_EQ(tables.ForceTable, poisoned.ForceTable);
    EXPECT_EQ(tables.TorqueTable, poisoned.TorqueTable);
    EXPECT_EQ(tables.FlywheelTorque, poisoned.FlywheelTorque);
    EXPECT_EQ(tables.Torque21Imported, poisoned.Torque21Imported);
    EXPECT_EQ(tables.DriveTheta, poisoned.DriveTheta);
}

TEST_F(CannotAssembleTest, ImportedDriveSurvives) {
    for (const auto mode : std::to_array<std::int16_t>({1, 2, 3, 4, 5})) {
        Poison_Tables(tables);
        model.CalcMode = mode;
        Fail(1, 0, Answer::Ignore);
        EXPECT_EQ(tables.Omega(7, 0), mode < 4 ? 0 : Poison) << mode;
        EXPECT_EQ(tables.Alpha(7, 0), mode < 4 ? 0 : Poison) << mode;
        for (int column = 1; column <= 4; ++column) {
            EXPECT_EQ(tables.Omega(7, column), 0) << mode;
            EXPECT_EQ(tables.Alpha(7, column), 0) << mode;
        }
    }
}

TEST_F(CannotAssembleTest, ZeroesTheTwelveWorkingValuesOnly) {
    for (float* value : {&model.Theta2Rad, &model.Omega2, &model.Alpha2, &model.CurrentTime, &model.Theta3Rad,
                         &model.Theta4Rad, &model.Theta5Rad, &model.Theta6Rad, &model.Omega3Now,
                         &model.Omega4Now, &model.Omega5Now, &model.Omega6Now, &model.Alpha3Now,
                         &model.Alpha4Now, &model.Alpha5Now, &model.Alpha6Now})
        *value = 1.25F;
    const LinkageModel before = model;
    Fail(1, 0, Answer::Ignore);
    const std::vector<std::string> expected = {
        "Theta3Rad", "Theta4Rad", "Theta5Rad", "Theta6Rad", "Omega3Now", "Omega4Now",     "Omega5Now",
        "Omega6Now", "Alpha3Now", "Alpha4Now", "Alpha5Now", "Alpha6Now", "SomeStepFailed"};
    EXPECT_EQ(Differing_Fields(model, before), expected);
    for (const float value : {model.Theta3Rad, model.Theta6Rad, model.Omega3Now, model.Alpha6Now})
        EXPECT_EQ(value, 0);
}

TEST_F(CannotAssembleTest, RowBeyondTheTablesIsReportedUnderItsOwnName) {
    Answer response = Answer::Ignore;
    Cannot_Assemble(*program, 1, 1025, 0, response);
    Expect_Fault(9, "Cannot_Assemble");
}

TEST_F(CannotAssembleTest, CalculateHandsOnTheResponseAndTheLocalAngle) {
    Put_Limited_Four_Bar(30);
    for (const Answer answer : {Answer::Abort, Answer::Retry, Answer::Ignore}) {
        Answer_With({answer});
        model.Theta2Rad = static_cast<float>(100 * RadiansPerDegree);
        Answer response = Answer::Retry;
        Calculate(*program, 7, response);
        EXPECT_EQ(response, answer);
        Expect_Cannot_Assemble(" 1", "100");
    }
    Break_Stage2();
    model.Theta2Rad = static_cast<float>(40.5 * RadiansPerDegree);
    Answer response = Answer::Retry;
    Calculate(*program, 7, response);
    Expect_Cannot_Assemble(" 2", "40.5");
}

TEST_F(CannotAssembleTest, Stage1FailureKeepsThetaColumn0AndStage2FailureHoldsTheCrankAngle) {
    Put_Limited_Four_Bar(30);
    model.AngleRange = "abs";
    Solve(7, 100);
    EXPECT_EQ(tables.Theta(7, 0), Poison);
    Break_Stage2();
    Solve(7, 40);
    EXPECT_NEAR(tables.Theta(7, 0), 70, 1e-4);
    for (int column = 1; column <= 7; ++column) EXPECT_EQ(tables.Theta(7, column), 0);
    EXPECT_EQ(tables.PointPos(7, 0, 0), 0) << "what Stage 1 had stored is zeroed again";
    EXPECT_EQ(tables.Omega(7, 1), 0);
    EXPECT_EQ(tables.VelRatio(7, 0), 0);
    EXPECT_EQ(tables.VelRatio(7, 1), Poison);
    EXPECT_EQ(model.Theta3Rad, 0);
}

TEST_F(CannotAssembleTest, LaterSolutionOfTheRowMakesItValidAgain) {
    Put_Limited_Four_Bar();
    Solve(7, 100);
    EXPECT_FALSE(tables.StepValid(7));
    Solve(7, 40);
    EXPECT_TRUE(tables.StepValid(7));
    EXPECT_TRUE(model.SomeStepFailed) << "only the start of a sweep clears it";
}

}  // namespace
}  // namespace kervol
