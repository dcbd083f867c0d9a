// SPDX-License-Identifier: GPL-3.0-or-later
// The vector and angle routines: their unusual ranges and constants, their boxes and their faults.
#include "core/mathematics.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "core/constants.h"
#include "core/thrown_fault.h"
#include "support/program_test.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

constexpr double kPi = 3.141592654;
constexpr double kHalfPi = 1.570796327;
constexpr double kDegrees = 57.29577950560105;
constexpr double kRadians = 0.017453292522222223;
constexpr float kLargest = std::numeric_limits<float>::max();
constexpr float kUntouched = -98765.0F;

class Mathematics : public ProgramTest {};

TEST(Constants, AreTheRoundedOnesOfTheProgram) {
    EXPECT_EQ(Pi, kPi);
    EXPECT_EQ(HalfPi, kHalfPi);
    EXPECT_EQ(DegreesPerRadian, kDegrees);
    EXPECT_EQ(RadiansPerDegree, kRadians);
    EXPECT_EQ(DegreesPerRadian, 180 / Pi);
    EXPECT_EQ(RadiansPerDegree, Pi / 180);
}

TEST_F(Mathematics, ArcCosOfPlusAndMinusOneIsOne) {
    EXPECT_EQ(FNArcCos(port, 1.0F), 1.0);
    EXPECT_EQ(FNArcCos(port, -1.0F), 1.0);
}

TEST_F(Mathematics, ArcCosOfZeroIsHalfOfPi) {
    EXPECT_EQ(FNArcCos(port, 0.0F), kPi / 2);
    EXPECT_EQ(FNArcCos(port, -0.0F), kPi / 2);
}

TEST_F(Mathematics, ArcCosRoundsTheSquareOfTheSineToSingle) {
    bool rounding_shows = false;
    for (const float x : {0.5F, -0.5F, 0.1F, 0.999F, -0.999F, 0.99999994F, 1e-5F, -1e-30F}) {
        const double unrounded = 1.0 - double(x) * double(x);
        const auto s = static_cast<float>(unrounded);
        EXPECT_EQ(FNArcCos(port, x), -std::atan(x / std::sqrt(double(s))) + kPi / 2) << x;
        rounding_shows |= std::abs(std::sqrt(double(s)) - std::sqrt(unrounded)) > 0.0;
    }
    EXPECT_TRUE(rounding_shows);
}

TEST_F(Mathematics, ArcCosIsTheArcCosineInsideItsRange) {
    // The sine's square is single: half a unit in its last place moves the angle by less than 1e-6 here.
    for (float x = -0.99F; x <= 0.99F; x += 0.01F) EXPECT_NEAR(FNArcCos(port, x), std::acos(double(x)), 1e-6);
}

TEST_F(Mathematics, ArcCosBeyondOneShowsABoxAndGivesZero) {
    EXPECT_EQ(FNArcCos(port, 2.0F), 0.0);
    Expect_Box("Attempting to take square root of negative number (-3) in FNArcCos(2 ) - check your data",
               Icon::Exclamation);
    EXPECT_EQ(FNArcCos(port, -1.5F), 0.0);
    Expect_Box(
        "Attempting to take square root of negative number (-1.25) in FNArcCos(-1.5 ) - check your data",
        Icon::Exclamation);
}

// 1 - x * x is minus (2^-22 + 2^-46), which rounds to minus 2^-22.
TEST_F(Mathematics, ArcCosOfTheFirstNumberBeyondOneShowsTheRoundedDifference) {
    EXPECT_EQ(FNArcCos(port, std::nextafter(1.0F, 2.0F)), 0.0);
    Expect_Box(
        "Attempting to take square root of negative number (-2.3841858E-07) in FNArcCos(1.0000001 ) - check "
        "your data",
        Icon::Exclamation);
}

TEST_F(Mathematics, ArcCosOfWhatIsNoNumberShowsABoxWithoutIconAndGivesZero) {
    EXPECT_EQ(FNArcCos(port, std::numeric_limits<float>::quiet_NaN()), 0.0);
    const MessageBox box = Take_Box();
    EXPECT_EQ(box.text.rfind("Something wrong - cannot take ArcCos of ", 0), 0U);
    EXPECT_EQ(box.icon, Icon::None);
    EXPECT_EQ(box.buttons, Buttons::OK);
}

TEST_F(Mathematics, ArcCosFaultsUnderItsOwnNameWhereTheSquareLeavesSingle) {
    Expect_Thrown(6, "FNArcCos", [&] { FNArcCos(port, 1e20F); });
}

TEST(Atan2, OnTheAxesGivesTheProgramsConstants) {
    EXPECT_EQ(Atan2(0.0F, 3.0F), kHalfPi);
    EXPECT_EQ(Atan2(0.0F, -3.0F), -kHalfPi);
    EXPECT_EQ(Atan2(-0.0F, 1e-30F), kHalfPi);
    EXPECT_EQ(Atan2(2.0F, 0.0F), 0.0);
    EXPECT_EQ(Atan2(-2.0F, 0.0F), kPi);
}

TEST(Atan2, OfTheZeroVectorIsZero) {
    EXPECT_EQ(Atan2(0.0F, 0.0F), 0.0);
    EXPECT_FALSE(std::signbit(Atan2(0.0F, 0.0F))) << "a table would show it as -0";
    EXPECT_EQ(Atan2D(0.0F, 0.0F), 0.0);
    EXPECT_EQ(Atan2(-0.0F, -0.0F), 0.0);
}

TEST(Atan2, IsNeverNormalised) {
    EXPECT_EQ(Atan2(-1.0F, -1.0F), std::atan(1.0) + kPi);
    EXPECT_EQ(Atan2(1.0F, -1.0F), -std::atan(1.0));
    EXPECT_EQ(Atan2(-1.0F, 1.0F), std::atan(-1.0) + kPi);
    EXPECT_NEAR(Atan2D(-1.0F, -1.0F), 225.0, 1e-7);  // 1e-7: the shortened pi
    EXPECT_NEAR(Atan2D(1.0F, -1.0F), -45.0, 1e-7);
}

TEST(Atan2, StaysFromMinusAQuarterToThreeQuartersOfATurn) {
    for (int degrees = -89; degrees < 270; ++degrees) {
        const double angle = degrees * std::acos(-1.0) / 180.0;
        const auto x = static_cast<float>(7.0 * std::cos(angle));
        const auto y = static_cast<float>(7.0 * std::sin(angle));
        EXPECT_NEAR(Atan2(x, y), angle, 2e-7) << degrees;
        EXPECT_EQ(Atan2D(x, y), Atan2(x, y) * kDegrees) << degrees;
    }
}

TEST(Atan2, DividesInDoublePrecision) {
    EXPECT_EQ(Atan2(1e-30F, 1e30F), std::atan(double(1e30F) / 1e-30F));
    EXPECT_EQ(Atan2(1e30F, 1e-30F), double(1e-30F) / 1e30F);
}

TEST(CartToPolar, OfTheZeroVectorIsZeroWithoutAFault) {
    float r = kUntouched, theta = kUntouched;
    Cart_to_Polar(0.0F, 0.0F, r, theta);
    EXPECT_EQ(r, 0.0F);
    EXPECT_EQ(theta, 0.0F);
}

TEST(CartToPolar, GivesMagnitudeAndDegrees) {
    const struct {
        float x, y, r, theta;
    } cases[] = {
        {5.0F, 0.0F, 5.0F, 0.0F},          {0.0F, 5.0F, 5.0F, 90.0F},
        {0.0F, -5.0F, 5.0F, -90.0F},       {-5.0F, 0.0F, 5.0F, 180.0F},
        {3.0F, 4.0F, 5.0F, 53.1301024F},   {-3.0F, 4.0F, 5.0F, 126.869898F},
        {-3.0F, -4.0F, 5.0F, 233.130102F}, {3.0F, -4.0F, 5.0F, -53.1301024F},
    };
    for (const auto& c : cases) {
        float r = 0.0F, theta = 0.0F;
        Cart_to_Polar(c.x, c.y, r, theta);
        EXPECT_EQ(r, c.r);
        EXPECT_FLOAT_EQ(theta, c.theta);
    }
}

TEST(CartToPolar, RoundsTheAngleToSingleBeforeItTurnsItToDegrees) {
    bool order_shows = false;
    for (int i = 1; i < 200; ++i) {
        const auto x = static_cast<float>(i), y = static_cast<float>(100 - 3 * i);
        float r = 0.0F, theta = 0.0F;
        Cart_to_Polar(-x, y, r, theta);
        const double angle = std::atan(double(y) / double(-x)) + kPi;
        EXPECT_EQ(theta, static_cast<float>(double(static_cast<float>(angle)) * kDegrees));
        EXPECT_EQ(r, static_cast<float>(std::sqrt(double(x) * double(x) + double(y) * double(y))));
        order_shows |= std::abs(theta - static_cast<float>(angle * kDegrees)) > 0.0F;
    }
    EXPECT_TRUE(order_shows);
}

TEST(CartToPolar, SquaresInDoublePrecision) {
    float r = 0.0F, theta = 0.0F;
    Cart_to_Polar(3e30F, 4e30F, r, theta);
    EXPECT_FLOAT_EQ(r, 5e30F);
    Cart_to_Polar(1e-40F, 0.0F, r, theta);
    EXPECT_EQ(r, 1e-40F);
}

TEST(CartToPolar, WritesTheAngleBeforeItsMagnitudeOverflows) {
    float r = kUntouched, theta = kUntouched;
    Expect_Thrown(6, "Cart_to_Polar", [&] { Cart_to_Polar(kLargest, kLargest, r, theta); });
    EXPECT_FLOAT_EQ(theta, 45.0F);
    EXPECT_EQ(r, kUntouched);
}

TEST(CartToPolar, MayWriteOverItsArguments) {
    float x = -3.0F, y = 4.0F;
    Cart_to_Polar(x, y, x, y);
    EXPECT_EQ(x, 5.0F);
    EXPECT_FLOAT_EQ(y, 126.869898F);
}

TEST(Rotate, TurnsByDegreesInTheDirectionOfTheSign) {
    const struct {
        float x, y, angle;
        std::int16_t sign;
        float xr, yr;
    } cases[] = {
        {1.0F, 0.0F, 90.0F, 1, 0.0F, 1.0F},         {1.0F, 0.0F, 90.0F, -1, 0.0F, -1.0F},
        {0.0F, 2.0F, 90.0F, 1, -2.0F, 0.0F},        {3.0F, -4.0F, 180.0F, 1, -3.0F, 4.0F},
        {3.0F, -4.0F, 0.0F, 1, 3.0F, -4.0F},        {2.0F, 0.0F, 30.0F, 1, 1.7320508F, 1.0F},
        {2.0F, 0.0F, -30.0F, -1, 1.7320508F, 1.0F},
    };
    for (const auto& c : cases) {
        float xr = kUntouched, yr = kUntouched;
        Rotate(c.x, c.y, c.angle, c.sign, xr, yr);
        EXPECT_NEAR(xr, c.xr, 1e-6F);  // the angle is single and pi shortened
        EXPECT_NEAR(yr, c.yr, 1e-6F);
    }
}

TEST(Rotate, RoundsTheAngleInRadiansToSingle) {
    float xr = 0.0F, yr = 0.0F;
    Rotate(30.0F, 10.0F, 12345.6F, -1, xr, yr);
    const double unrounded = -1.0 * double(12345.6F) * kRadians;
    const double a = static_cast<float>(unrounded);
    EXPECT_EQ(xr, static_cast<float>(30.0 * std::cos(a) - 10.0 * std::sin(a)));
    EXPECT_EQ(yr, static_cast<float>(30.0 * std::sin(a) + 10.0 * std::cos(a)));
    EXPECT_NE(xr, static_cast<float>(30.0 * std::cos(unrounded) - 10.0 * std::sin(unrounded)));
}

TEST(Rotate, MayWriteOverItsArguments) {
    float x = 1.0F, y = 2.0F;
    Rotate(x, y, 90.0F, 1, x, y);
    EXPECT_NEAR(x, -2.0F, 1e-6F);
    EXPECT_NEAR(y, 1.0F, 1e-6F);
}

TEST(Rotate, KeepsTheFirstCoordinateWhereTheSecondOverflows) {
    float xr = kUntouched, yr = kUntouched;
    Expect_Thrown(6, "Rotate", [&] { Rotate(kLargest, kLargest, 45.0F, 1, xr, yr); });
    EXPECT_NE(xr, kUntouched);
    EXPECT_LT(std::abs(xr), 1e32F);
    EXPECT_EQ(yr, kUntouched);
}

TEST(Rotate, WritesNothingWhereTheFirstCoordinateOverflows) {
    float xr = kUntouched, yr = kUntouched;
    Expect_Thrown(6, "Rotate", [&] { Rotate(kLargest, -kLargest, 45.0F, 1, xr, yr); });
    EXPECT_EQ(xr, kUntouched);
    EXPECT_EQ(yr, kUntouched);
}

TEST_F(Mathematics, CheckPositiveTurnsANegativeValueWithAWarning) {
    float value = -2.5F;
    Check_Positive(port, value);
    Expect_Box("This value must be positive.  Please redo.", Icon::Exclamation);
    EXPECT_EQ(value, 2.5F);
}

TEST_F(Mathematics, CheckPositiveLeavesZeroAndPositiveValuesInSilence) {
    for (const float given : {0.0F, -0.0F, 1e-30F, 12.0F}) {
        float value = given;
        Check_Positive(port, value);
        EXPECT_EQ(value, given);
    }
}

TEST_F(Mathematics, WarnPositiveShowsItsBox) {
    Warn_Positive(port);
    Expect_Box("This value must be positive.  Please redo.", Icon::Exclamation);
}

}  // namespace
}  // namespace kervol
