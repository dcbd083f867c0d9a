// SPDX-License-Identifier: GPL-3.0-or-later
// Wrapped angles, transmission angles and ratios of speeds, and what their cells held before.
#include "kinematics/derived.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

TEST(WrapAngle, LiftsOrLowersOnce) {
    // clang-format off
    EXPECT_EQ(Wrap_Angle(  -1, "abs"),  359);
    EXPECT_EQ(Wrap_Angle(   0, "abs"),    0);
    EXPECT_EQ(Wrap_Angle( 361, "abs"),  361);
    EXPECT_EQ(Wrap_Angle(-361, "abs"),   -1);
    EXPECT_EQ(Wrap_Angle( 180, "180"),  180);
    EXPECT_EQ(Wrap_Angle( 181, "180"), -179);
    EXPECT_EQ(Wrap_Angle( 541, "180"),  181);
    EXPECT_EQ(Wrap_Angle(-181, "180"), -181);
    EXPECT_EQ(Wrap_Angle(  -1, "360"),   -1);
    EXPECT_EQ(Wrap_Angle( 181, ""),     181);
    // clang-format on
    EXPECT_EQ(Wrap_Angle(std::nextafter(180.0F, 400.0F), "180"), std::nextafter(180.0F, 400.0F) - 360);
}

struct TransmissionCase {
    float first, second, third, angle;
};

TEST(TransmissionAngle1, FoldsByThePreviousContentOfTheCell) {
    // clang-format off
    for (const auto& [previous, theta3, theta4, angle] : std::to_array<TransmissionCase>({
             {     0,  20,  80,  60}, {     0,  80,  20,  60}, {   0,   5, 350, 345}, {0, 0, 360, 360},
             {    90,  20,  80,  60}, {    91,  20,  80,  89}, { 150,  20,  80,  30}, {300, 20, 80, 120},
             {-98765,  20,  80,  60}, {   180,  20,  80,   0},
         })) {
        // clang-format on
        EXPECT_EQ(Transmission_Angle_1(previous, theta3, theta4), angle) << previous;
    }
}

TEST(TransmissionAngle2, FoldsOnceAbove90) {
    // clang-format off
    for (const auto& [unused, theta5, theta6, angle] : std::to_array<TransmissionCase>({
             {0, 20, 80, 60}, {0, 80, 20, 60}, {0, 0, 90, 90}, {0, 0, 91, 89}, {0, 0, 180, 0},
             {0, 0, 270, 90},
         })) {
        // clang-format on
        EXPECT_EQ(Transmission_Angle_2(theta5, theta6), angle) << theta5 << " " << theta6;
    }
}

TEST(TransmissionAngle2, DifferenceOfMoreThan270StillGivesMoreThan90) {
    EXPECT_EQ(Transmission_Angle_2(-200, 100), 120);
    EXPECT_EQ(Transmission_Angle_2(300, -300), 420);
}

TEST(SpeedRatios, AreReciprocal) {
    float ratio = 0, advantage = 0;
    Put_Speed_Ratios(4, -2, ratio, advantage);
    EXPECT_EQ(ratio, -0.5F);
    EXPECT_EQ(advantage, -2);
}

TEST(SpeedRatios, StandingCrankKeepsTheVelocityRatio) {
    float ratio = 77, advantage = 88;
    Put_Speed_Ratios(0, 2, ratio, advantage);
    EXPECT_EQ(ratio, 77);
    EXPECT_EQ(advantage, 0);
}

TEST(SpeedRatios, DeadCentreKeepsTheMechanicalAdvantage) {
    float ratio = 77, advantage = 88;
    Put_Speed_Ratios(2, 0, ratio, advantage);
    EXPECT_EQ(ratio, 0);
    EXPECT_EQ(advantage, 88);
    Put_Speed_Ratios(2, -0.0, ratio, advantage);
    EXPECT_EQ(advantage, 88);
}

TEST(SpeedRatios, NothingMovesNothingIsWritten) {
    float ratio = 77, advantage = 88;
    Put_Speed_Ratios(0, 0, ratio, advantage);
    EXPECT_EQ(ratio, 77);
    EXPECT_EQ(advantage, 88);
}

using DerivedTest = KinematicsTest;

TEST_F(DerivedTest, Stage2RatiosAreTakenAgainstTheCrank) {
    Put_Four_Bar(2, 5, 6, 7);
    model.Omega2 = -4;
    Solve(0, 40);
    for (int stage = 0; stage <= 1; ++stage) {
        const double omega = tables.Omega(0, stage == 0 ? 2 : 4);
        EXPECT_FLOAT_EQ(tables.VelRatio(0, stage), static_cast<float>(omega / -4));
        EXPECT_FLOAT_EQ(tables.MechAdv(0, stage), static_cast<float>(-4 / omega));
    }
}

TEST_F(DerivedTest, NearADeadCentreTheMechanicalAdvantageIsHuge) {
    // Crank and coupler in line: A (2, 0) turned by t, B at 7 from O2, with 2 + 5 = 7 and rocker 6.
    Put_Four_Bar(2, 5, 6, 7);
    model.Omega2 = 1;
    const double dead_centre = std::acos((7.0 * 7 + 7.0 * 7 - 6.0 * 6) / (2 * 7 * 7)) * 180 / std::acos(-1);
    float previous = 10;
    for (const double off : {1e-1, 1e-2, 1e-3}) {
        Solve(0, dead_centre + off);
        ASSERT_TRUE(tables.StepValid(0));
        EXPECT_GT(std::abs(tables.MechAdv(0, 0)), 5 * previous);
        previous = std::abs(tables.MechAdv(0, 0));
    }
}

TEST_F(DerivedTest, TransmissionAngleOfAClearedRowIsThePlainDifferenceOfWrappedAngles) {
    Put_Four_Bar(2, 5, 6, 7, -80);
    model.NumSteps = 36;
    Clear_Tables(*program);
    double largest = 0;
    for (int row = 0; row <= 36; ++row) {
        Solve(static_cast<std::int16_t>(row), 10.0 * row);
        EXPECT_EQ(tables.Theta(row, 6), std::abs(tables.Theta(row, 2) - tables.Theta(row, 1)));
        largest = std::max(largest, double(tables.Theta(row, 6)));
    }
    EXPECT_GT(largest, 180) << "one angle wrapped and the other not";
}

TEST_F(DerivedTest, SameTimeSweepTwiceGivesOtherTransmissionAnglesWhereTheFirstWasAbove90) {
    Put_Four_Bar(2, 5, 6, 7);
    model.CalcMode = 2;
    model.TimeStart = 0;
    model.TimeStep = 0.02F;
    model.NumSteps = 40;
    model.Omega2Start = 10;
    model.Alpha2Const = 0;
    Answer response = Answer::None;
    Table<float, StepRows, 8> runs[3];
    for (auto& run : runs) {
        Calc_Time_Steps(*program, response);
        run = tables.Theta;
    }
    int above = 0, below = 0;
    for (int row = 0; row <= 40; ++row) {
        const float plain = std::abs(runs[0](row, 2) - runs[0](row, 1));
        EXPECT_EQ(runs[0](row, 6), plain);
        EXPECT_EQ(runs[1](row, 6), plain > 90 ? std::abs(180 - plain) : plain);
        EXPECT_EQ(runs[2](row, 6), plain) << "the third pass is the first again";
        ++(plain > 90 ? above : below);
        for (int column = 0; column <= 5; ++column) EXPECT_EQ(runs[1](row, column), runs[0](row, column));
    }
    EXPECT_GT(above, 0);
    EXPECT_GT(below, 0);
}

}  // namespace
}  // namespace kervol
