// SPDX-License-Identifier: GPL-3.0-or-later
// Checked arithmetic: what raises which fault, and the limits of what doesn't.
#include "core/arithmetic.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "core/thrown_fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kLargestSingle = std::numeric_limits<float>::max();
/// Half way from the largest single to 2^128, so that it rounds up, beyond the range.
const double kFirstBeyondSingle = std::ldexp(1.0, 128) - std::ldexp(1.0, 103);

TEST(Comparison, WithZeroHasNoTolerance) {
    EXPECT_TRUE(Is_Zero(0.0));
    EXPECT_TRUE(Is_Zero(-0.0));
    EXPECT_FALSE(Is_Zero(std::numeric_limits<double>::denorm_min()));
    EXPECT_FALSE(Is_Zero(kNaN));
}

TEST(Comparison, OfEqualityHasNoTolerance) {
    EXPECT_TRUE(Is_Same(1.5, 1.5));
    EXPECT_TRUE(Is_Same(0.0, -0.0));
    EXPECT_FALSE(Is_Same(1.0, std::nextafter(1.0, 2.0)));
    EXPECT_FALSE(Is_Same(kNaN, kNaN));
}

TEST(Finite, PassesNumbersAndRaisesFault6ForTheRest) {
    for (const double value : {0.0, -1.5, std::numeric_limits<double>::max()})
        EXPECT_EQ(Finite(value), value);
    for (const double value : {kInfinity, -kInfinity, kNaN})
        Expect_Thrown(6, "", [&] { (void)Finite(value); });
}

TEST(Single, RoundsToTheNearestSingle) {
    EXPECT_EQ(Single(0.1), 0.1F);
    EXPECT_EQ(Single(1.0 + std::ldexp(1.0, -25)), 1.0F);
    EXPECT_EQ(Single(-kLargestSingle), std::numeric_limits<float>::lowest());
    EXPECT_EQ(Single(1e-300), 0.0F);
}

// A compiler that takes both parts through one register has been met that leaves this rounding out.
TEST(Single, IsRoundedAlsoWhereADoubleTakesIt) {
    volatile double angle = 1.234, size = 7.3;
    const double x = static_cast<float>(size * std::cos(angle)),
                 y = static_cast<float>(size * std::sin(angle));
    const std::array<double, 2> parts = {3 - x, 3 - y};
    volatile float rounded_x = static_cast<float>(size * std::cos(angle));
    volatile float rounded_y = static_cast<float>(size * std::sin(angle));
    EXPECT_EQ(parts[0], 3 - double(rounded_x));
    EXPECT_EQ(parts[1], 3 - double(rounded_y));
}

TEST(Single, EndsWhereRoundingLeavesTheRange) {
    EXPECT_EQ(Single(std::nextafter(kFirstBeyondSingle, 0.0)), std::numeric_limits<float>::max());
    for (const double value : {kFirstBeyondSingle, -kFirstBeyondSingle, 1e39, kInfinity, -kInfinity, kNaN})
        Expect_Thrown(6, "", [&] { (void)Single(value); });
}

TEST(Divide, GivesTheQuotient) {
    EXPECT_EQ(Divide(7.0, 2.0), 3.5);
    EXPECT_EQ(Divide(0.0, -4.0), 0.0);
}

TEST(Divide, RaisesFault11ForAZeroDivisor) {
    Expect_Thrown(11, "", [] { (void)Divide(1.0, 0.0); });
    Expect_Thrown(11, "", [] { (void)Divide(1.0, -0.0); });
    Expect_Thrown(11, "", [] { (void)Divide(0.0, 0.0); });
}

TEST(Divide, RaisesFault6ForAQuotientBeyondTheRange) {
    Expect_Thrown(6, "", [] { (void)Divide(1e300, 1e-300); });
    Expect_Thrown(6, "", [] { (void)Divide(kInfinity, 2.0); });
    Expect_Thrown(6, "", [] { (void)Divide(kNaN, 2.0); });
}

TEST(Root, GivesTheSquareRoot) {
    EXPECT_EQ(Root(2.25), 1.5);
    EXPECT_EQ(Root(0.0), 0.0);
    EXPECT_EQ(Root(-0.0), 0.0);
}

TEST(Root, RaisesFault5ForANegativeNumber) {
    Expect_Thrown(5, "", [] { (void)Root(-1e-300); });
    Expect_Thrown(5, "", [] { (void)Root(-kInfinity); });
}

TEST(Root, RaisesFault6ForWhatIsNoNumber) {
    Expect_Thrown(6, "", [] { (void)Root(kInfinity); });
    Expect_Thrown(6, "", [] { (void)Root(kNaN); });
}

TEST(Rounded, TurnsAHalfToTheEvenNeighbour) {
    const struct {
        double value;
        std::int16_t rounded;
    } cases[] = {
        {0.5, 0},   {1.5, 2},    {2.5, 2},    {3.5, 4},    {-0.5, 0},   {-1.5, -2},
        {-2.5, -2}, {0.4999, 0}, {0.5001, 1}, {2.4999, 2}, {2.5001, 3}, {-2.5001, -3},
    };
    for (const auto& [value, rounded] : cases) {
        EXPECT_EQ(Int16(value), rounded) << value;
        EXPECT_EQ(Rounded<std::int32_t>(value), rounded) << value;
    }
}

TEST(Rounded, HasTheLimitsOf16Bits) {
    EXPECT_EQ(Int16(32767.0), 32767);
    EXPECT_EQ(Int16(32767.4999), 32767);
    EXPECT_EQ(Int16(-32768.5), -32768);  // the even neighbour is inside
    for (const double value : {32767.5, 32768.0, -32768.5001, -32769.0, 1e300, kInfinity, -kInfinity, kNaN})
        Expect_Thrown(6, "", [&] { (void)Int16(value); });
}

TEST(Rounded, HasTheLimitsOf32Bits) {
    EXPECT_EQ(Rounded<std::int32_t>(2147483647.25), 2147483647);
    EXPECT_EQ(Rounded<std::int32_t>(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    for (const double value : {2147483647.5, -2147483648.75, -2147483649.0, 1e300, kInfinity, kNaN})
        Expect_Thrown(6, "", [&] { (void)Rounded<std::int32_t>(value); });
}

}  // namespace
}  // namespace kervol
