// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/value_reader.h"

#include <algorithm>
#include <utility>

#include "core/arithmetic.h"
#include "core/fault.h"
#include "core/number_text.h"
#include "core/text_encoding.h"

namespace kervol {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kSeparators = ",\r\n";
constexpr std::string_view kNumberEnds = ",\r\n \t";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view Without_Trailing_Blanks(std::string_view text) {
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

}  // namespace

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
