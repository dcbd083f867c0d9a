// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/arithmetic.h"
#include "core/fault.h"

namespace kervol {
namespace {

/// Room for any double in fixed form with six decimals.
constexpr std::size_t kLongestNumber = 400;

template <class Float>
std::string Shortest(Float value) {
    const Float size = std::abs(value);
    const bool fixed = Is_Zero(value) || (size >= Float(1e-4) && size < Float(1e7));
    std::array<char, 64> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      fixed ? std::chars_format::fixed : std::chars_format::scientific);
    std::string text(buffer.data(), result.ptr);
    std::replace(text.begin(), text.end(), 'e', 'E');
    return text;
}

std::string Digits(double value, std::chars_format format, int decimals) {
    std::array<char, kLongestNumber> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, decimals);
    return {buffer.data(), result.ptr};
}

/// Whether the value stands exactly half way between two decimals of that many places. Such a value is m /
/// 2^(n+1) with m odd, since 10^n times it is an odd number of halves.
bool Is_Half_Way(double value, int decimals) {
    if (decimals >= 0) return Is_Same(std::fmod(std::ldexp(value, decimals + 1), 2.0), 1.0);
    const double unit = std::pow(10.0, -decimals);
    return Is_Same(std::fmod(value, unit), unit / 2);
}

/// Counts the last digit of a decimal up by one.
std::string Counted_Up(std::string digits) {
    for (std::size_t i = digits.size(); i-- > 0;) {
        if (digits[i] == '.') continue;
        if (digits[i] != '9') {
            ++digits[i];
            return digits;
        }
        digits[i] = '0';
    }
    return "1" + digits;
}

/// Fixed form with a half rounded up, where `std::to_chars` rounds it to the even neighbour.
std::string Rounded_Digits(double size, int decimals) {
    if (!Is_Half_Way(size, decimals)) return Digits(size, std::chars_format::fixed, decimals);
    std::string exact = Digits(size, std::chars_format::fixed, decimals + 1);
    exact.pop_back();
    if (decimals == 0) exact.pop_back();
    return Counted_Up(exact);
}

std::string Grouped(const std::string& digits) {
    const std::size_t whole = std::min(digits.find('.'), digits.size());
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && i < whole && (whole - i) % 3 == 0) text += ',';
        text += digits[i];
    }
    return text;
}

std::string Fixed_Form(double size, int decimals) {
    std::string text = Grouped(Rounded_Digits(size, decimals));
    if (decimals == 0) text += '.';
    if (decimals == 6) text.insert(text.size() - 3, " ");
    return text;
}

/// Two decimals and an exponent with its sign and no leading zero.
std::string Exponent_Form(double size) {
    const int exponent = Is_Zero(size) ? 0 : static_cast<int>(std::floor(std::log10(size)));
    // `std::to_chars` rounds a half to the even neighbour; two decimals do not show the step to the next
    // value up.
    if (Is_Half_Way(size, 2 - exponent)) size = std::nextafter(size, std::numeric_limits<double>::infinity());
    const std::string text = Digits(size, std::chars_format::scientific, 2);
    const std::size_t e = text.find('e');
    const std::size_t digit = std::min(text.find_first_not_of('0', e + 2), text.size() - 1);
    return text.substr(0, e) + "E" + text[e + 1] + text.substr(digit);
}

/// Power of ten of the first significant digit, counted from the digit before the point; a huge exponent
/// saturates.
long Decimal_Magnitude(std::string_view number) {
    const std::size_t e = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, e);
    const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<long>(mantissa.find_first_of("123456789"));
    long exponent = 0;
    if (e < number.size()) {
        const bool negative = number[e + 1] == '-';
        for (const char c : number.substr(e + 1))
            if (c >= '0' && c <= '9') exponent = std::min(exponent * 10 + (c - '0'), 100'000'000L);
        if (negative) exponent = -exponent;
    }
    return exponent + (first < point ? point - first - 1 : point - first);
}

template <class Float>
Float Parsed(std::string_view number) {
    if (!number.empty() && number.front() == '+') number.remove_prefix(1);
    Float value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // Too small for the type is rounded to zero, too large is a fault.
        if (Decimal_Magnitude(number) > 0) Raise(fault::Overflow);
        return 0;
    }
    return value;
}

std::size_t Skip_Digits(std::string_view text, std::size_t at) {
    return std::min(text.find_first_not_of("0123456789", at), text.size());
}

}  // namespace

std::string Plain_Number(float value) {
    return Shortest(value);
}

std::string Plain_Number(double value) {
    return Shortest(value);
}

std::string Short_Number(double value, int digits) {
    return Plain_Number(To_Double(Digits(value, std::chars_format::scientific, digits - 1)));
}

std::string With_Sign_Blank(int value) {
    return (value < 0 ? "" : " ") + std::to_string(value);
}

std::string With_Sign_Blank(float value) {
    return (std::signbit(value) ? "" : " ") + Plain_Number(value);
}

std::string FNRoundStr(double x, std::int16_t n) {
    return Routine("FNRoundStr", [&] {
        const double size = std::abs(Finite(x));
        const std::string text = n < 0 ? Exponent_Form(size) : Fixed_Form(size, n < 5 ? n : 6);
        const bool is_zero = text.substr(0, text.find('E')).find_first_of("123456789") == std::string::npos;
        return (x < 0 && !is_zero ? "-" : "") + text;
    });
}

double FNRound(float x, std::int16_t n) {
    static constexpr std::array<double, 6> kPowers = {1, 10, 100, 1000, 10000, 100000};
    const double p = n >= 0 && n <= 5 ? kPowers[static_cast<std::size_t>(n)] : 1e6;
    return std::floor(x * p + 0.5) / p;
}

std::size_t Number_Length(std::string_view text) {
    const std::size_t sign = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    std::size_t end = Skip_Digits(text, sign);
    std::size_t digits = end - sign;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fraction = Skip_Digits(text, end + 1);
        digits += fraction - (end + 1);
        end = fraction;
    }
    if (digits == 0) return 0;
    if (end < text.size() && (text[end] == 'E' || text[end] == 'e')) {
        std::size_t exponent = end + 1;
        if (exponent < text.size() && (text[exponent] == '-' || text[exponent] == '+')) ++exponent;
        const std::size_t exponent_end = Skip_Digits(text, exponent);
        if (exponent_end > exponent) end = exponent_end;
    }
    return end;
}

float To_Single(std::string_view number) {
    return Parsed<float>(number);
}

double To_Double(std::string_view number) {
    return Parsed<double>(number);
}

double Val(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const std::size_t length = Number_Length(text);
    return length == 0 ? 0.0 : To_Double(text.substr(0, length));
}

}  // namespace kervol
