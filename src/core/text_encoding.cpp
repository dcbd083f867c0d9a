// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/text_encoding.h"

#include <algorithm>
#include <array>

namespace kervol {
namespace {

/// Code points of the Windows-1252 bytes 0x80 to 0x9F; the five unused ones stand for themselves.
constexpr std::array<char32_t, 32> kWindows1252 = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

bool Is_Ascii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Length of the valid UTF-8 sequence at the start of the bytes, 0 if there is none: no overlong form, no
/// surrogate, nothing above U+10FFFF.
std::size_t Utf8_Length(std::string_view bytes) {
    const auto byte = [&](std::size_t i) {
        return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U;
    };
    const auto follows = [&](std::size_t i, unsigned low, unsigned high) {
        return byte(i) >= low && byte(i) <= high;
    };
    const unsigned lead = byte(0);
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return follows(1, 0x80, 0xBF) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        const unsigned low = lead == 0xE0 ? 0xA0 : 0x80;
        const unsigned high = lead == 0xED ? 0x9F : 0xBF;
        return follows(1, low, high) && follows(2, 0x80, 0xBF) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const unsigned low = lead == 0xF0 ? 0x90 : 0x80;
        const unsigned high = lead == 0xF4 ? 0x8F : 0xBF;
        return follows(1, low, high) && follows(2, 0x80, 0xBF) && follows(3, 0x80, 0xBF) ? 4 : 0;
    }
    return 0;
}

void Append_Windows1252(std::string& text, unsigned char byte) {
    const char32_t code = byte < 0xA0 ? kWindows1252.at(byte - 0x80U) : byte;
    if (code < 0x800) {
        text += static_cast<char>(0xC0 | (code >> 6));
    } else {
        text += static_cast<char>(0xE0 | (code >> 12));
        text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    }
    text += static_cast<char>(0x80 | (code & 0x3F));
}

}  // namespace

std::string Decoded(std::string_view bytes) {
    if (Is_Ascii(bytes)) return std::string(bytes);
    std::string text;
    while (!bytes.empty()) {
        const std::size_t length = Utf8_Length(bytes);
        if (length > 0)
            text += bytes.substr(0, length);
        else
            Append_Windows1252(text, static_cast<unsigned char>(bytes.front()));
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

}  // namespace kervol
