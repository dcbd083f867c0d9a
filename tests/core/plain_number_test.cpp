// SPDX-License-Identifier: GPL-3.0-or-later
// Plain number texts: form, borders, shortest digits, and that they read back to the same number.
#include <array>
#include <bit>
#include <cfloat>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <locale>
#include <random>
#include <string>
#include <string_view>

#include "core/number_text.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

std::uint32_t Bits(float value) {
    return std::bit_cast<std::uint32_t>(value);
}

float Read_Back(const std::string& text) {
    return std::strtof(text.c_str(), nullptr);
}

/// Digits and power of ten of a number's shortest text, found by trying every count of digits.
struct Scientific {
    std::string digits;
    int exponent = 0;
};

Scientific Tried(float value) {
    for (int places = 0; places < 9; ++places) {
        std::array<char, 40> buffer{};
        std::snprintf(buffer.data(), buffer.size(), "%.*e", places, double(value));
        if (Bits(Read_Back(buffer.data())) != Bits(value)) continue;
        const std::string text = buffer.data();
        const std::size_t e = text.find('e');
        Scientific result;
        for (const char c : text.substr(0, e))
            if (c >= '0' && c <= '9') result.digits += c;
        result.exponent = std::atoi(text.c_str() + e + 1);
        return result;
    }
    return {};
}

/// The text that these digits stand for: fixed from 1E-04 to below 1E+07.
std::string Composed(bool negative, Scientific number) {
    std::string text = negative ? "-" : "";
    auto& [digits, exponent] = number;
    if (exponent < -4 || exponent >= 7) {
        text += digits[0];
        if (digits.size() > 1) text += "." + digits.substr(1);
        const std::string size = std::to_string(std::abs(exponent));
        return text + (exponent < 0 ? "E-" : "E+") + (size.size() < 2 ? "0" : "") + size;
    }
    if (exponent < 0) return text + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() <= whole) return text + digits + std::string(whole - digits.size(), '0');
    return text + digits.substr(0, whole) + "." + digits.substr(whole);
}

/// A power of two has unequal gaps on its two sides, so that the nearest text of so many digits need not be
/// one that reads back while another of them does.
bool Is_Power_Of_Two(float value) {
    return (Bits(value) & 0x007FFFFFU) == 0;
}

float Random_Single(std::mt19937& random) {
    float value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    while (!std::isfinite(value)) value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    return value;
}

TEST(PlainNumber, HasFixedFormInTheMiddleAndExponentFormBeyond) {
    const struct {
        float value;
        std::string_view text;
    } cases[] = {
        {0.0F, "0"},
        {0.003F, "0.003"},
        {-5.0F, "-5"},
        {1.5e-5F, "1.5E-05"},
        {2e7F, "2E+07"},
        {8.75F, "8.75"},
        {100.0F, "100"},
        {-0.1F, "-0.1"},
        {1234567.0F, "1234567"},
        {0.33333334F, "0.33333334"},
        {-2.5e-10F, "-2.5E-10"},
        {1e30F, "1E+30"},
        {FLT_MAX, "3.4028235E+38"},
        {-FLT_MAX, "-3.4028235E+38"},
        {FLT_MIN, "1.1754944E-38"},
        {std::numeric_limits<float>::denorm_min(), "1E-45"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(Plain_Number(value), text);
}

TEST(PlainNumber, ChangesItsFormAt1EMinus4AndAt1EPlus7) {
    EXPECT_EQ(Plain_Number(1e-4F), "0.0001");
    EXPECT_EQ(Plain_Number(-1e-4F), "-0.0001");
    EXPECT_EQ(Plain_Number(std::nextafter(1e-4F, 0.0F)).substr(0, 2), "9.");
    EXPECT_EQ(Plain_Number(9.999e-5F), "9.999E-05");
    EXPECT_EQ(Plain_Number(1e7F), "1E+07");
    EXPECT_EQ(Plain_Number(-1e7F), "-1E+07");
    EXPECT_EQ(Plain_Number(9999999.0F), "9999999");
    EXPECT_EQ(Plain_Number(std::nextafter(1e7F, 2e7F)), "1.0000001E+07");
}

TEST(PlainNumber, OfADoubleFollowsTheSameRules) {
    EXPECT_EQ(Plain_Number(0.1), "0.1");
    EXPECT_EQ(Plain_Number(double(0.1F)), "0.10000000149011612");
    EXPECT_EQ(Plain_Number(-123456.789), "-123456.789");
    EXPECT_EQ(Plain_Number(0.0001), "0.0001");
    EXPECT_EQ(Plain_Number(0.00009), "9E-05");
    EXPECT_EQ(Plain_Number(9999999.5), "9999999.5");
    EXPECT_EQ(Plain_Number(1e7), "1E+07");
    EXPECT_EQ(Plain_Number(1e100), "1E+100");
    EXPECT_EQ(Plain_Number(5e-324), "5E-324");
}

TEST(PlainNumber, OfMillionsOfBitPatternsReadsBackToTheSameSingle) {
    std::mt19937 random(7);
    for (int i = 0; i < 2'000'000; ++i) {
        const float value = Random_Single(random);
        const float back = To_Single(Plain_Number(value));
        if (Bits(back) != Bits(value)) FAIL() << Plain_Number(value) << " reads back as " << back;
    }
}

TEST(PlainNumber, ReadsBackTheSameByTheLibraryOfTheLanguage) {
    std::mt19937 random(8);
    for (int i = 0; i < 200'000; ++i) {
        const float value = Random_Single(random);
        ASSERT_EQ(Bits(Read_Back(Plain_Number(value))), Bits(value));
        const double wide = double(value) / 3.0;
        ASSERT_EQ(std::strtod(Plain_Number(wide).c_str(), nullptr), wide);
    }
}

TEST(PlainNumber, IsTheShortestThatReadsBack) {
    std::mt19937 random(9);
    for (int i = 0; i < 100'000; ++i) {
        // Every other number lies where the form is fixed.
        const float value =
            i % 2 == 0 ? Random_Single(random) : std::uniform_real_distribution<float>(-1e4F, 1e4F)(random);
        if (Is_Power_Of_Two(value)) continue;
        ASSERT_EQ(Plain_Number(value), Composed(value < 0, Tried(value)));
    }
}

TEST(PlainNumber, OfPowersOfTwoIsNoLongerThanTheShortestTried) {
    for (int exponent = -149; exponent < 128; ++exponent) {
        const float value = std::ldexp(1.0F, exponent);
        const std::string text = Plain_Number(value);
        EXPECT_EQ(Read_Back(text), value);
        EXPECT_LE(text.size(), Composed(false, Tried(value)).size()) << text;
    }
}

TEST(PlainNumber, OfDecimalsIsWhatWasTyped) {
    for (int i = 1; i < 10'000; ++i) {
        const std::string digits = std::to_string(i % 1000);
        const std::string text =
            std::to_string(i / 1000) + "." + std::string(3 - digits.size(), '0') + digits;
        const std::string trimmed = text.substr(0, text.find_last_not_of('0') + 1);
        EXPECT_EQ(Plain_Number(Read_Back(text)),
                  trimmed.back() == '.' ? trimmed.substr(0, trimmed.size() - 1) : trimmed);
    }
}

/// A locale with a decimal comma and grouping by blanks.
class CommaNumbers : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return ' '; }
    std::string do_grouping() const override { return "\3"; }
};

/// Puts a decimal comma everywhere the language's libraries look for one, as far as this system can.
class CommaLocale {
  public:
    CommaLocale() : before_(std::locale::global(std::locale(std::locale(), new CommaNumbers))) {
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8"})
            if (std::setlocale(LC_ALL, name) != nullptr) break;
    }
    ~CommaLocale() {
        std::locale::global(before_);
        std::setlocale(LC_ALL, "C");
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

  private:
    std::locale before_;
};

TEST(NumberTexts, NeverFollowTheLocale) {
    const CommaLocale comma;
    EXPECT_EQ(Plain_Number(1234.5F), "1234.5");
    EXPECT_EQ(Plain_Number(1.5e-5), "1.5E-05");
    EXPECT_EQ(With_Sign_Blank(12345), " 12345");
    EXPECT_EQ(FNRoundStr(1234.5, 3), "1,234.500");
    EXPECT_EQ(FNRoundStr(1234.5, -1), "1.23E+3");
    EXPECT_EQ(Val("1234.5"), 1234.5);
    EXPECT_EQ(Val("1234,5"), 1234.0);
    EXPECT_EQ(To_Single("0.25"), 0.25F);
    EXPECT_EQ(Number_Length("1,5"), 1U);
}

TEST(WithSignBlank, PutsABlankBeforeZeroAndPositiveNumbers) {
    EXPECT_EQ(With_Sign_Blank(0), " 0");
    EXPECT_EQ(With_Sign_Blank(1025), " 1025");
    EXPECT_EQ(With_Sign_Blank(-3), "-3");
    EXPECT_EQ(With_Sign_Blank(std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(With_Sign_Blank(0.0F), " 0");
    EXPECT_EQ(With_Sign_Blank(0.05F), " 0.05");
    EXPECT_EQ(With_Sign_Blank(-1.5e-5F), "-1.5E-05");
    EXPECT_EQ(With_Sign_Blank(-0.0F), "-0");
}

}  // namespace
}  // namespace kervol
