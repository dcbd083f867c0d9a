// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/fields.h"

#include <algorithm>
#include <cctype>
#include <string>

#include "core/arithmetic.h"
#include "core/number_text.h"

namespace kervol {
namespace {

bool Is_Digit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

/// Length of "1,234,567" in front of a point: one to three digits, the first not 0, then groups of exactly
/// three. 0 for any other start.
std::size_t Grouped_Length(std::string_view text) {
    std::size_t lead = 0;
    while (lead < text.size() && Is_Digit(text[lead])) ++lead;
    if (lead < 1 || lead > 3 || text[0] == '0') return 0;
    std::size_t end = lead;
    while (end < text.size() && text[end] == ',') {
        const std::string_view group = text.substr(end + 1, 3);
        if (group.size() != 3 || !std::all_of(group.begin(), group.end(), Is_Digit)) return 0;
        end += 4;
    }
    return end > lead && end < text.size() && text[end] == '.' ? end : 0;
}

}  // namespace

void Put_Number(TextField& field, float value, std::int16_t code) {
    Put_Number_Text(field, FNRoundStr(value, code), value);
}

void Put_Plain_Number(TextField& field, float value) {
    Put_Number_Text(field, Plain_Number(value), value);
}

void Put_Number_Text(TextField& field, std::string_view text, float value) {
    field.text = text;
    field.put_value = value;
}

float Number_In(const TextField& field) {
    return field.put_value ? *field.put_value : Single(Typed_Number(field.text));
}

double Typed_Number(std::string_view text) {
    std::string plain(text);
    const std::size_t start = std::min(text.find_first_not_of(" \t"), text.size());
    const std::size_t digits =
        start < text.size() && (text[start] == '-' || text[start] == '+') ? start + 1 : start;
    const std::size_t grouped = Grouped_Length(text.substr(digits));
    if (grouped > 0) {
        const auto first = plain.begin() + static_cast<std::ptrdiff_t>(digits);
        plain.erase(std::remove(first, first + static_cast<std::ptrdiff_t>(grouped), ','),
                    first + static_cast<std::ptrdiff_t>(grouped));
    }
    return Val(plain);
}

}  // namespace kervol
