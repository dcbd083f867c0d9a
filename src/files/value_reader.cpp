// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/value_reader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/arithmetic.h"
#include "core/fault.h"
#include "core/number_text.h"

namespace kervol {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kSeparators = ",\r\n";
constexpr std::string_view kNumberEnds = ",\r\n \t";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

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

std::string_view Without_Trailing_Blanks(std::string_view text) {
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
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

ValueReader::ValueReader(std::string content) : content_(std::move(content)) {
    if (content_.starts_with(kByteOrderMark)) at_ = kByteOrderMark.size();
}

void ValueReader::Read(std::string& text) {
    Begin_Value();
    if (content_[at_] == '"') {
        ++at_;
        text = Decoded(Take_Until("\""));
        Take_Until(kSeparators);
    } else {
        text = Decoded(Without_Trailing_Blanks(Take_Until(kSeparators)));
    }
    End_Value();
}

void ValueReader::Read(float& number) {
    number = To_Single(Take_Number());
    End_Value();
}

void ValueReader::Read(std::int16_t& number) {
    number = Int16(To_Double(Take_Number()));
    End_Value();
}

void ValueReader::Read(std::int32_t& number) {
    number = Rounded<std::int32_t>(To_Double(Take_Number()));
    End_Value();
}

void ValueReader::Read(bool& flag) {
    Begin_Value();
    const auto piece = Without_Trailing_Blanks(Take_Until(kSeparators));
    if (piece != "#TRUE#" && piece != "#FALSE#") Raise(fault::TypeMismatch);
    flag = piece == "#TRUE#";
    End_Value();
}

void ValueReader::Skip(int count) {
    std::string dropped;
    for (int i = 0; i < count; ++i) Read(dropped);
}

std::size_t ValueReader::Line() const {
    std::size_t line = 1;
    for (std::size_t i = 0; i < at_; ++i) {
        const bool first_half = content_[i] == '\r' && i + 1 < content_.size() && content_[i + 1] == '\n';
        if (content_[i] == '\n' || (content_[i] == '\r' && !first_half)) ++line;
    }
    return line;
}

/// Skips blanks; the value itself may be an empty piece, but not the end of the file.
void ValueReader::Begin_Value() {
    at_ = std::min(content_.find_first_not_of(kBlanks, at_), content_.size());
    if (At_End()) Raise(fault::InputPastEnd);
}

std::string_view ValueReader::Take_Until(std::string_view ends) {
    const std::size_t end = std::min(content_.find_first_of(ends, at_), content_.size());
    const std::string_view piece = std::string_view(content_).substr(at_, end - at_);
    at_ = end;
    return piece;
}

std::string_view ValueReader::Take_Number() {
    Begin_Value();
    const std::string_view piece = Take_Until(kNumberEnds);
    if (piece.empty() || Number_Length(piece) != piece.size()) Raise(fault::TypeMismatch);
    return piece;
}

/// Passes the blanks behind a value and one separator.
void ValueReader::End_Value() {
    at_ = std::min(content_.find_first_not_of(kBlanks, at_), content_.size());
    if (At_End() || kSeparators.find(content_[at_]) == std::string_view::npos) return;
    const bool pair = content_[at_] == '\r' && at_ + 1 < content_.size() && content_[at_ + 1] == '\n';
    at_ += pair ? 2 : 1;
}

}  // namespace kervol
