// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/value_reader.h"

#include <array>
#include <utility>

#include "core/arithmetic.h"
#include "core/fault.h"
#include "core/number_text.h"
#include "core/text_encoding.h"

namespace kervol {
namespace {

constexpr std::uint8_t kBlank = 1, kSeparator = 2, kQuote = 4;
/// What each byte means outside a number; a search by `find_first_of` takes longer than all the rest.
constexpr auto kMeaning = [] {
    std::array<std::uint8_t, 256> meaning{};
    meaning[' '] = meaning['\t'] = kBlank;
    meaning[','] = meaning['\r'] = meaning['\n'] = kSeparator;
    meaning['"'] = kQuote;
    return meaning;
}();
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool Is(char byte, std::uint8_t meanings) {
    return (kMeaning[static_cast<unsigned char>(byte)] & meanings) != 0;
}

std::string_view Without_Trailing_Blanks(std::string_view text) {
    while (!text.empty() && Is(text.back(), kBlank)) text.remove_suffix(1);
    return text;
}

}  // namespace

ValueReader::ValueReader(std::string content) : content_(std::move(content)) {
    if (content_.starts_with(kByteOrderMark)) at_ = kByteOrderMark.size();
}

void ValueReader::Read(std::string& text) {
    Begin_Value();
    if (content_[at_] == '"') {
        ++at_;
        text = Decoded(Take_Until(kQuote));
        Take_Until(kSeparator);
    } else {
        text = Decoded(Without_Trailing_Blanks(Take_Until(kSeparator)));
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
    const auto piece = Without_Trailing_Blanks(Take_Until(kSeparator));
    if (piece != "#TRUE#" && piece != "#FALSE#") Raise(fault::TypeMismatch);
    flag = piece == "#TRUE#";
    End_Value();
}

void ValueReader::Skip(int count) {
    std::string dropped;
    for (int i = 0; i < count; ++i) Read(dropped);
}

std::size_t ValueReader::Line() const {
    const char* const text = content_.c_str();
    std::size_t line = 1;
    // Without a branch, so that many bytes are looked at together. A CR before an LF counts with it.
    for (std::size_t i = 0; i < at_; ++i)
        line += static_cast<std::size_t>((text[i] == '\n') | ((text[i] == '\r') & (text[i + 1] != '\n')));
    return line;
}

/// Skips blanks; the value itself may be an empty piece, but not the end of the file.
void ValueReader::Begin_Value() {
    Skip_Blanks();
    if (At_End()) Raise(fault::InputPastEnd);
}

void ValueReader::Skip_Blanks() {
    while (!At_End() && Is(content_[at_], kBlank)) ++at_;
}

std::string_view ValueReader::Take_Until(std::uint8_t ends) {
    std::size_t end = at_;
    while (end < content_.size() && !Is(content_[end], ends)) ++end;
    const std::string_view piece = std::string_view(content_).substr(at_, end - at_);
    at_ = end;
    return piece;
}

std::string_view ValueReader::Take_Number() {
    Begin_Value();
    const std::string_view rest = std::string_view(content_).substr(at_);
    const std::size_t length = Number_Length(rest);
    const bool ends = length == rest.size() || Is(rest[length], kSeparator | kBlank);
    if (length == 0 || !ends) Raise(fault::TypeMismatch);
    at_ += length;
    return rest.substr(0, length);
}

/// Passes the blanks behind a value and one separator.
void ValueReader::End_Value() {
    Skip_Blanks();
    if (At_End() || !Is(content_[at_], kSeparator)) return;
    const bool pair = content_[at_] == '\r' && at_ + 1 < content_.size() && content_[at_ + 1] == '\n';
    at_ += pair ? 2 : 1;
}

}  // namespace kervol
