// SPDX-License-Identifier: GPL-3.0-or-later
// Rounding to decimals, as a number and as a text, against a rounding of the exact decimal expansion.
#include <algorithm>
#include <array>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "core/number_text.h"
#include "core/thrown_fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

/// A size as its decimal digits, `whole` of them before the point, without leading zeros.
struct Decimal {
    std::string digits;
    int whole = 0;
};

/// Every digit of the number: no double has more than 1074 decimals.
Decimal Exact(double size) {
    std::array<char, 1500> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.1074f", size);
    const std::string text = buffer.data();
    const std::size_t point = text.find('.');
    const std::string digits = text.substr(0, point) + text.substr(point + 1);
    const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
    return {digits.substr(first), static_cast<int>(point) - static_cast<int>(first)};
}

/// The first `count` digits, a half or more of the next turned up.
Decimal Cut(Decimal number, int count) {
    auto& [digits, whole] = number;
    if (count < 0) return {"", whole};
    const auto kept = static_cast<std::size_t>(count);
    const bool up = kept < digits.size() && digits[kept] >= '5';
    digits.resize(kept, '0');
    if (!up) return number;
    std::size_t i = kept;
    while (i > 0 && digits[i - 1] == '9') digits[--i] = '0';
    if (i > 0) {
        ++digits[i - 1];
    } else {
        digits.insert(0, 1, '1');
        ++whole;
    }
    return number;
}

std::string Fixed_Text(double size, int decimals) {
    const Decimal exact = Exact(size);
    auto [digits, whole] = Cut(exact, exact.whole + decimals);
    // As an integer count of the last decimal, with at least one digit before the point.
    while (digits.size() < static_cast<std::size_t>(decimals) + 1) digits.insert(0, 1, '0');
    std::string text = digits.substr(0, digits.size() - static_cast<std::size_t>(decimals));
    std::string fraction = digits.substr(text.size());
    for (auto at = static_cast<int>(text.size()) - 3; at > 0; at -= 3)
        text.insert(static_cast<std::size_t>(at), 1, ',');
    if (decimals == 6) fraction.insert(3, 1, ' ');
    return text + "." + fraction;
}

std::string Exponent_Text(double size) {
    const auto [digits, whole] = Cut(Exact(size), 3);
    const int exponent = whole - 1;
    return digits.substr(0, 1) + "." + digits.substr(1, 2) + (exponent < 0 ? "E-" : "E+") +
           std::to_string(std::abs(exponent));
}

std::string Expected(double x, int n) {
    const std::string text = n < 0 ? Exponent_Text(std::fabs(x)) : Fixed_Text(std::fabs(x), n >= 5 ? 6 : n);
    const bool zero = n >= 0 && text.find_first_of("123456789") == std::string::npos;
    return (x < 0 && !zero ? "-" : "") + text;
}

struct Case {
    double x;
    int n;
    std::string_view text;
};

void Expect_Texts(const std::vector<Case>& cases) {
    for (const auto& [x, n, text] : cases)
        EXPECT_EQ(FNRoundStr(x, static_cast<std::int16_t>(n)), text) << x << ", " << n;
}

TEST(FNRoundStr, HasAPictureForEachCount) {
    Expect_Texts({
        {1234.56789, 0, "1,235."},
        {1234.56789, 1, "1,234.6"},
        {1234.56789, 2, "1,234.57"},
        {1234.56789, 3, "1,234.568"},
        {1234.56789, 4, "1,234.5679"},
        {1234.5678904, 5, "1,234.567 890"},
        {1234.5678904, 6, "1,234.567 890"},
        {1234.5678904, 32767, "1,234.567 890"},
        {1234.56789, -1, "1.23E+3"},
        {1234.56789, -32768, "1.23E+3"},
        {0.123457, 5, "0.123 457"},
    });
}

TEST(FNRoundStr, WritesZeroInEveryPicture) {
    for (const double zero : {0.0, -0.0})
        Expect_Texts({{zero, 0, "0."},
                      {zero, 1, "0.0"},
                      {zero, 2, "0.00"},
                      {zero, 3, "0.000"},
                      {zero, 4, "0.0000"},
                      {zero, 5, "0.000 000"},
                      {zero, -1, "0.00E+0"}});
}

TEST(FNRoundStr, GroupsTheDigitsBeforeThePointByThree) {
    Expect_Texts({
        {1, 0, "1."},
        {12, 0, "12."},
        {123, 1, "123.0"},
        {1234, 1, "1,234.0"},
        {12345, 2, "12,345.00"},
        {123456, 3, "123,456.000"},
        {1234567, 4, "1,234,567.0000"},
        {-1234567, 6, "-1,234,567.000 000"},
        {-123, 2, "-123.00"},
        {1e15, 0, "1,000,000,000,000,000."},
        {123456789012.0, 1, "123,456,789,012.0"},
    });
}

TEST(FNRoundStr, RoundsAHalfAwayFromZero) {
    Expect_Texts({
        {0.5, 0, "1."},
        {1.5, 0, "2."},
        {2.5, 0, "3."},
        {-2.5, 0, "-3."},
        {-0.5, 0, "-1."},
        {0.25, 1, "0.3"},
        {-0.75, 1, "-0.8"},
        {0.125, 2, "0.13"},
        {-0.125, 2, "-0.13"},
        {0.375, 2, "0.38"},
        {0.0625, 3, "0.063"},
        {0.03125, 4, "0.0313"},
        {2.5, 1, "2.5"},
        {999.5, 0, "1,000."},
        {-999.5, 0, "-1,000."},
        {0.0078125, 6, "0.007 813"},
        {9.96875, 4, "9.9688"},
        {99.9375, 3, "99.938"},
        {4503599627370495.5, 0, "4,503,599,627,370,496."},
    });
}

// Neighbouring doubles lie further apart here than the decimals that are shown.
TEST(FNRoundStr, RoundsAHalfOfALargeNumberToItsNeighbour) {
    Expect_Texts({
        {462314457280087.375, 2, "462,314,457,280,087.38"},
        {-462314457280087.375, 2, "-462,314,457,280,087.38"},
        {1125899906842624.25, 1, "1,125,899,906,842,624.3"},
        {70368744177664.0625, 3, "70,368,744,177,664.063"},
    });
}

// None of these doubles is the decimal that was typed; what counts is the side on which it lies.
TEST(FNRoundStr, RoundsTheExactValueAndNotTheDecimalThatWasTyped) {
    Expect_Texts({
        {1.005, 2, "1.00"},
        {2.675, 2, "2.67"},
        {0.15, 1, "0.1"},
        {0.05, 1, "0.1"},
        {-0.005, 2, "-0.01"},
        {1.0005, 3, "1.000"},
        {999999.995, 2, "999,999.99"},
        {std::nextafter(2.5, 0.0), 0, "2."},
        {std::nextafter(0.125, 0.0), 2, "0.12"},
        {double(0.1F), 6, "0.100 000"},
    });
}

TEST(FNRoundStr, NeverWritesAMinusBeforeZero) {
    Expect_Texts({
        {-0.004, 2, "0.00"},
        {-0.4, 0, "0."},
        {-0.04, 1, "0.0"},
        {-0.0004, 3, "0.000"},
        {-0.00004, 4, "0.0000"},
        {-1e-7, 6, "0.000 000"},
        {-1e-300, 2, "0.00"},
        {-5e-324, 5, "0.000 000"},
    });
}

TEST(FNRoundStr, CarriesIntoANewDigit) {
    Expect_Texts({
        {9.96, 1, "10.0"},
        {99.999, 2, "100.00"},
        {999.9999, 3, "1,000.000"},
        {999999.9, 0, "1,000,000."},
        {0.99999999, 6, "1.000 000"},
        {-0.999, 2, "-1.00"},
    });
}

TEST(FNRoundStr, WritesExponentsWithTheirSignAndNoLeadingZero) {
    Expect_Texts({
        {1, -1, "1.00E+0"},
        {-1, -1, "-1.00E+0"},
        {10, -1, "1.00E+1"},
        {0.1, -1, "1.00E-1"},
        {0.00015, -1, "1.50E-4"},
        {-12345, -2, "-1.23E+4"},
        {1e10, -1, "1.00E+10"},
        {1e-10, -1, "1.00E-10"},
        {1e100, -1, "1.00E+100"},
        {DBL_MAX, -1, "1.80E+308"},
        {-5e-324, -1, "-4.94E-324"},
    });
}

TEST(FNRoundStr, RoundsTheMantissaOfAnExponentAwayFromZero) {
    Expect_Texts({
        {1.125, -1, "1.13E+0"},
        {-1.125, -1, "-1.13E+0"},
        {112500, -1, "1.13E+5"},
        {100500, -1, "1.01E+5"},
        {0.03125, -1, "3.13E-2"},
        {1.115e21, -1, "1.12E+21"},
        {1.005, -1, "1.00E+0"},
    });
}

// The double nearest to 9.995 lies below it; 9.995E+4 is exact.
TEST(FNRoundStr, CarriesTheMantissaOfAnExponent) {
    Expect_Texts({
        {9.995, -1, "9.99E+0"},
        {9.996, -1, "1.00E+1"},
        {99950, -1, "1.00E+5"},
        {0.0009996, -1, "1.00E-3"},
        {-0.9999, -1, "-1.00E+0"},
    });
}

TEST(FNRoundStr, FaultsUnderItsOwnNameForWhatIsNoNumber) {
    for (const double x : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::quiet_NaN()})
        Expect_Thrown(6, "FNRoundStr", [&] { (void)FNRoundStr(x, 2); });
}

void Compare_With_Exact(double x) {
    for (int n = -1; n <= 6; ++n) {
        if (n < 0 && std::fpclassify(x) == FP_ZERO) continue;
        ASSERT_EQ(FNRoundStr(x, static_cast<std::int16_t>(n)), Expected(x, n)) << x << ", " << n;
    }
}

TEST(FNRoundStr, RoundsRandomNumbersAsTheirExactExpansion) {
    std::mt19937_64 random(10);
    for (int i = 0; i < 1500 && !::testing::Test::HasFailure(); ++i) {
        const double bits = std::bit_cast<double>(random());
        if (std::isfinite(bits)) Compare_With_Exact(bits);
        Compare_With_Exact(std::uniform_real_distribution<>(-2000.0, 2000.0)(random));
    }
}

// Multiples of small powers of two hold every exact half; their neighbours hold what only looks like one.
TEST(FNRoundStr, RoundsHalvesAndTheirNeighboursAsTheirExactExpansion) {
    std::mt19937_64 random(11);
    for (int i = 0; i < 1000 && !::testing::Test::HasFailure(); ++i) {
        const int count = std::uniform_int_distribution<>(-100'000, 100'000)(random);
        const double x = std::ldexp(count, -std::uniform_int_distribution<>(0, 8)(random));
        Compare_With_Exact(x);
        Compare_With_Exact(std::nextafter(x, 1e9));
        Compare_With_Exact(std::nextafter(x, -1e9));
    }
}

TEST(FNRoundStr, RoundsDecimalHalvesAsTheirExactExpansion) {
    for (int i = 5; i < 20'000 && !::testing::Test::HasFailure(); i += 170)
        for (const double power : {10.0, 100.0, 1000.0, 10000.0, 1e5, 1e7}) Compare_With_Exact(i / power);
}

// Mantissas that end in an exact or all but exact half, at every exponent.
TEST(FNRoundStr, RoundsTheHalvesOfEveryExponentAsTheirExactExpansion) {
    for (int exponent = -325; exponent <= 304; ++exponent) {
        for (int mantissa = 1005; mantissa < 10'000; mantissa += 410) {
            const std::string text = std::to_string(mantissa) + "E" + std::to_string(exponent);
            const double x = To_Double(text);
            for (const double near : {x, std::nextafter(x, 0.0), std::nextafter(x, DBL_MAX)})
                ASSERT_EQ(FNRoundStr(near, -1), Expected(near, -1)) << text;
        }
    }
}

TEST(FNRound, OfTwoAndAHalfIsThreeAndOfMinusTwoAndAHalfMinusTwo) {
    EXPECT_EQ(FNRound(2.5F, 0), 3.0);
    EXPECT_EQ(FNRound(-2.5F, 0), -2.0);
}

TEST(FNRound, RoundsToTheDecimalsGiven) {
    const struct {
        int n;
        double rounded;
    } cases[] = {
        {0, 1.0}, {1, 1.2}, {2, 1.23}, {3, 1.235}, {4, 1.2346}, {5, 1.23457}, {6, 1.234568},
    };
    for (const auto& [n, rounded] : cases)
        EXPECT_EQ(FNRound(1.2345678F, static_cast<std::int16_t>(n)), rounded) << n;
}

TEST(FNRound, TakesSixDecimalsForEveryOtherCount) {
    for (const int n : {7, 8, 100, 32767, -1, -2, -32768})
        EXPECT_EQ(FNRound(1.2345678F, static_cast<std::int16_t>(n)), 1.234568) << n;
}

TEST(FNRound, TurnsAHalfTowardsPositiveInfinity) {
    EXPECT_EQ(FNRound(0.125F, 2), 0.13);
    EXPECT_EQ(FNRound(-0.125F, 2), -0.12);
    EXPECT_EQ(FNRound(-0.5F, 0), 0.0);
    EXPECT_EQ(FNRound(-1.5F, 0), -1.0);
    EXPECT_EQ(FNRound(-0.25F, 1), -0.2);
    EXPECT_EQ(FNRound(-2.51F, 0), -3.0);
}

TEST(FNRound, WorksInDoublePrecision) {
    EXPECT_EQ(FNRound(16777216.0F, 5), 16777216.0);
    EXPECT_EQ(FNRound(FLT_MAX, 6), std::floor(double(FLT_MAX) * 1e6 + 0.5) / 1e6);
    EXPECT_EQ(FNRound(0.1F, 3), 0.1);
}

}  // namespace
}  // namespace kervol
