// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as texts and back, never by the locale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kervol {

/// The shortest decimal that reads back to the same value: fixed form from 1E-04 to below 1E+07 ("0.003",
/// "-5"), else exponent form ("1.5E-05", "2E+07").
std::string Plain_Number(float value);
std::string Plain_Number(double value);

/// The plain number of the value rounded to that many significant digits.
std::string Short_Number(double value, int digits);

/// A plain number with the leading blank that stands for the sign, as some texts and files have it.
std::string With_Sign_Blank(int value);
std::string With_Sign_Blank(float value);

/// x as text with n decimals and digit grouping ("1,234.500"); n of 0 keeps the point ("5."), 5 and above
/// gives six decimals in two groups ("0.123 457"), below 0 exponent form ("1.23E+4"). A half is rounded away
/// from zero.
std::string FNRoundStr(double x, std::int16_t n);

/// x rounded to n decimals by floor(x * 10^n + 0.5); six decimals for n outside 0 to 5.
double FNRound(float x, std::int16_t n);

/// Length of the number that the text starts with: sign, digits with a point, exponent. 0 if there is none.
std::size_t Number_Length(std::string_view text);

/// Value of a text that is a number as a whole; fault 6 beyond the range of the type.
float To_Single(std::string_view number);
double To_Double(std::string_view number);

/// The number that the text starts with behind optional blanks, 0 if none.
double Val(std::string_view text);

}  // namespace kervol
