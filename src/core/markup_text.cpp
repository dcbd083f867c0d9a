// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/markup_text.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace kervol {
namespace {

/// Room for any double in fixed form.
constexpr std::size_t kLongestNumber = 400;

bool Is_Forbidden(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < 0x20 && c != '\t' && c != '\n' && c != '\r';
}

}  // namespace

std::string Markup_Text(std::string_view text) {
    std::string safe;
    safe.reserve(text.size());
    for (const char c : text) {
        switch (c) {
            case '&':
                safe += "&amp;";
                break;
            case '<':
                safe += "&lt;";
                break;
            case '>':
                safe += "&gt;";
                break;
            case '"':
                safe += "&quot;";
                break;
            case '\'':
                safe += "&#39;";
                break;
            default:
                safe += Is_Forbidden(c) ? ' ' : c;
        }
    }
    return safe;
}

std::string Fixed_Number(double value, int decimals) {
    std::array<char, kLongestNumber> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed, decimals);
    std::string text(buffer.data(), end.ptr);
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string Colour_Text(Colour colour) {
    std::array<char, 8> buffer;
    static_cast<void>(std::snprintf(buffer.data(), buffer.size(), "#%02x%02x%02x",
                                    static_cast<unsigned>(colour.red), static_cast<unsigned>(colour.green),
                                    static_cast<unsigned>(colour.blue)));
    return buffer.data();
}

}  // namespace kervol
