// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers read from texts: how far a number goes, what it is worth, and the ends of the range.
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "core/number_text.h"
#include "core/thrown_fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

/// A text, how much of it is a number, and what that number is.
struct Prefix {
    std::string_view text;
    std::size_t length;
    double value;
};

constexpr Prefix kPrefixes[] = {
    {"0", 1, 0.0},         {"12", 2, 12.0},        {"-12.5", 5, -12.5}, {"+7", 2, 7.0},
    {".5", 2, 0.5},        {"-.5", 3, -0.5},       {"+.25", 4, 0.25},   {"5.", 2, 5.0},
    {"007", 3, 7.0},       {"1.5E-05", 7, 1.5e-5}, {"2E+07", 5, 2e7},   {"2e3", 3, 2000.0},
    {"5.e2", 4, 500.0},    {".5E1", 4, 5.0},       {"12abc", 2, 12.0},  {"12 34", 2, 12.0},
    {"1,234.500", 1, 1.0}, {"1.2.3", 3, 1.2},      {"1..2", 2, 1.0},    {"1-2", 1, 1.0},
    {"3E", 1, 3.0},        {"3E+", 1, 3.0},        {"3E-x", 1, 3.0},    {"3EE2", 1, 3.0},
    {"4e5.5", 3, 4e5},     {"6E5E2", 3, 6e5},      {"0x1F", 1, 0.0},    {"1d5", 1, 1.0},
    {"", 0, 0.0},          {"-", 0, 0.0},          {"+", 0, 0.0},       {".", 0, 0.0},
    {"-.", 0, 0.0},        {"E5", 0, 0.0},         {".E5", 0, 0.0},     {"--5", 0, 0.0},
    {"+-5", 0, 0.0},       {"abc", 0, 0.0},        {"nan", 0, 0.0},     {"inf", 0, 0.0},
    {"-infinity", 0, 0.0}, {"#5", 0, 0.0},         {"\u00BD", 0, 0.0},
};

TEST(NumberLength, CoversSignDigitsPointAndExponent) {
    for (const Prefix& prefix : kPrefixes)
        EXPECT_EQ(Number_Length(prefix.text), prefix.length) << prefix.text;
}

TEST(NumberLength, DoesNotSkipBlanks) {
    EXPECT_EQ(Number_Length(" 5"), 0U);
}

TEST(Val, IsTheNumberThatTheTextStartsWith) {
    for (const Prefix& prefix : kPrefixes) EXPECT_EQ(Val(prefix.text), prefix.value) << prefix.text;
}

TEST(Val, SkipsBlanksBeforeTheNumber) {
    EXPECT_EQ(Val("   12"), 12.0);
    EXPECT_EQ(Val(" -3.5 "), -3.5);
    EXPECT_EQ(Val("   "), 0.0);
    EXPECT_EQ(Val("- 5"), 0.0);
}

TEST(Val, RaisesFault6BeyondTheRangeOfDouble) {
    EXPECT_EQ(Val("1E308"), 1e308);
    EXPECT_EQ(Thrown([] { (void)Val("1E309"); }).number, 6);
    EXPECT_EQ(Thrown([] { (void)Val(" -1E309 mm"); }).number, 6);
    EXPECT_EQ(Val("1E-400"), 0.0);
}

TEST(ToSingle, RoundsToTheNearestSingle) {
    EXPECT_EQ(To_Single("0.1"), 0.1F);
    EXPECT_EQ(To_Single("+2.5"), 2.5F);
    EXPECT_EQ(To_Single("16777217"), 16777216.0F);
    EXPECT_EQ(To_Single("1E-45"), std::numeric_limits<float>::denorm_min());
    EXPECT_EQ(To_Single("1.1754942E-38"), std::nextafter(FLT_MIN, 0.0F));
}

// A little below the middle of 1 + 2^-23 and 1 + 2^-22. Rounded to double first, it would stand at the middle
// and go up.
TEST(ToSingle, RoundsOnce) {
    EXPECT_EQ(To_Single("1.000000178813934326171874999999999"), 1.0F + std::ldexp(1.0F, -23));
}

TEST(ToSingle, GivesZeroWhereTheNumberIsTooSmall) {
    for (const std::string_view text : {"1E-46", "-1E-46", "7E-46", "1E-400", "1E-99999999999999999999",
                                        "0.00000000000000000000000000000000000000000000000001"})
        EXPECT_EQ(To_Single(text), 0.0F) << text;
}

TEST(ToSingle, RaisesFault6BeyondItsRange) {
    EXPECT_EQ(To_Single("3.4028235E+38"), FLT_MAX);
    EXPECT_EQ(To_Single("-3.40282356E+38"), -FLT_MAX);
    for (const std::string_view text :
         {"3.4028236E+38", "-3.4028236E+38", "1E39", "1E400", "1E99999999999999999999", "-1E+309",
          "999999999999999999999999999999999999999999", ".1E40", "0.0001E43"})
        EXPECT_EQ(Thrown([&] { (void)To_Single(text); }).number, 6) << text;
}

TEST(ToSingle, ReadsZeroWithAnyExponent) {
    for (const std::string_view text : {"0E999", "0.000E-999", "-0E99999999999999999999", "000.E5"})
        EXPECT_EQ(To_Single(text), 0.0F) << text;
}

TEST(ToSingle, WeighsManyDigitsAgainstTheExponent) {
    const std::string zeros(400, '0');
    EXPECT_EQ(To_Single("0." + zeros + "1E401"), 1.0F);
    EXPECT_EQ(To_Single("1" + zeros + "E-400"), 1.0F);
    EXPECT_EQ(To_Single("0." + zeros + "1E300"), 0.0F);
    EXPECT_EQ(To_Single("1" + zeros + "E-500"), 0.0F);
    EXPECT_EQ(Thrown([&] { (void)To_Single("0." + zeros + "1E500"); }).number, 6);
    EXPECT_EQ(Thrown([&] { (void)To_Single("1" + zeros + "E-300"); }).number, 6);
    EXPECT_EQ(To_Single(std::string(2000, '0') + "5"), 5.0F);
}

TEST(ToDouble, HasTheRangeOfDouble) {
    EXPECT_EQ(To_Double("1.7976931348623157E+308"), DBL_MAX);
    EXPECT_EQ(To_Double("5E-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(To_Double("1E-324"), 0.0);
    EXPECT_EQ(To_Double("-1E39"), -1e39);
    EXPECT_EQ(Thrown([] { (void)To_Double("1.8E+308"); }).number, 6);
    EXPECT_EQ(Thrown([] { (void)To_Double("-1E400"); }).number, 6);
}

}  // namespace
}  // namespace kervol
