// SPDX-License-Identifier: GPL-3.0-or-later
#include "headless/dxf_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>

namespace kervol {
namespace {

/// Room for any double in fixed form.
constexpr std::size_t kLongestNumber = 400;
/// Longest text that release 12 takes.
constexpr std::size_t kLongestText = 255;

std::string Group(int code, std::string_view value) {
    return std::to_string(code) + "\r\n" + std::string(value) + "\r\n";
}

std::string Group(int code, int value) {
    return Group(code, std::to_string(value));
}

/// Never in exponent form, which some readers do not know; always with a point, which tells a real.
std::string Real(double value) {
    std::array<char, kLongestNumber> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    std::string text(buffer.data(), end.ptr);
    if (text.find('.') == std::string::npos) text += ".0";
    return text == "-0.0" ? "0.0" : text;
}

/// The code point that begins at `at` in valid UTF-8, and its bytes.
struct CodePoint {
    std::uint32_t value;
    std::size_t bytes;
};

CodePoint Code_Point(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(at);
    const std::size_t bytes = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (bytes == 1 || at + bytes > text.size()) return {first, 1};
    std::uint32_t value = first & (0xFFU >> (bytes + 1));
    for (std::size_t i = 1; i < bytes; ++i) value = value << 6 | (byte(at + i) & 0x3FU);
    return {value, bytes};
}

/// One line of ASCII: line ends would end the value, and "%%" and "\U+" begin codes of the format.
std::string Line_Text(std::string_view text) {
    std::string line;
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint code = Code_Point(text, at);
        at += code.bytes;
        std::string piece;
        if (code.value < 0x20 || code.value == 0x7F) {
            piece = " ";
        } else if (code.value == '%' || code.value == '\\' || code.value >= 0x80) {
            std::array<char, 16> escaped;
            static_cast<void>(std::snprintf(escaped.data(), escaped.size(), "\\U+%04X",
                                            static_cast<unsigned>(std::min(code.value, 0xFFFFU))));
            piece = escaped.data();
        } else {
            piece = static_cast<char>(code.value);
        }
        if (line.size() + piece.size() > kLongestText) break;
        line += piece;
    }
    return line;
}

std::string Line_Type_Table() {
    return Group(0, "TABLE") + Group(2, "LTYPE") + Group(70, 1) + Group(0, "LTYPE") + Group(2, "CONTINUOUS") +
           Group(70, 0) + Group(3, "Solid line") + Group(72, 65) + Group(73, 0) + Group(40, "0.0") +
           Group(0, "ENDTAB");
}

}  // namespace

void DxfWriter::Add_Layer(const std::string& name, int colour) {
    layers_.push_back({name, colour});
}

void DxfWriter::Line(const std::string& layer, DxfPoint from, DxfPoint to) {
    Begin("LINE", layer);
    Put_Point(from);
    entities_ += Group(11, Real(to.x)) + Group(21, Real(to.y)) + Group(31, "0.0");
    low_ = {std::min(low_.x, to.x), std::min(low_.y, to.y)};
    high_ = {std::max(high_.x, to.x), std::max(high_.y, to.y)};
}

void DxfWriter::Polyline(const std::string& layer, std::span<const DxfPoint> points) {
    Begin("POLYLINE", layer);
    entities_ += Group(66, 1) + Group(70, 0) + Group(10, "0.0") + Group(20, "0.0") + Group(30, "0.0");
    for (const DxfPoint point : points) {
        Begin("VERTEX", layer);
        Put_Point(point);
    }
    Begin("SEQEND", layer);
}

void DxfWriter::Circle(const std::string& layer, DxfPoint centre, double radius) {
    Begin("CIRCLE", layer);
    Put_Point(centre);
    entities_ += Group(40, Real(radius));
}

void DxfWriter::Point(const std::string& layer, DxfPoint point) {
    Begin("POINT", layer);
    Put_Point(point);
}

void DxfWriter::Text(const std::string& layer, DxfPoint start, double height, std::string_view text) {
    Begin("TEXT", layer);
    Put_Point(start);
    entities_ += Group(40, Real(height)) + Group(1, Line_Text(text));
}

void DxfWriter::Comment(std::string_view text) {
    comments_ += Group(999, Line_Text(text));
}

std::string DxfWriter::Finished() const {
    std::string text = comments_ + Group(0, "SECTION") + Group(2, "HEADER") + Group(9, "$ACADVER") +
                       Group(1, "AC1009") + Group(9, "$EXTMIN") + Group(10, Real(low_.x)) +
                       Group(20, Real(low_.y)) + Group(9, "$EXTMAX") + Group(10, Real(high_.x)) +
                       Group(20, Real(high_.y)) + Group(0, "ENDSEC");
    text += Group(0, "SECTION") + Group(2, "TABLES") + Line_Type_Table() + Group(0, "TABLE") +
            Group(2, "LAYER") + Group(70, static_cast<int>(layers_.size()));
    for (const Layer& layer : layers_)
        text += Group(0, "LAYER") + Group(2, layer.name) + Group(70, 0) + Group(62, layer.colour) +
                Group(6, "CONTINUOUS");
    text += Group(0, "ENDTAB") + Group(0, "ENDSEC");
    return text + Group(0, "SECTION") + Group(2, "ENTITIES") + entities_ + Group(0, "ENDSEC") +
           Group(0, "EOF");
}

void DxfWriter::Begin(const char* entity, const std::string& layer) {
    entities_ += Group(0, entity) + Group(8, layer);
}

void DxfWriter::Put_Point(DxfPoint point) {
    entities_ += Group(10, Real(point.x)) + Group(20, Real(point.y)) + Group(30, "0.0");
    low_ = is_empty_ ? point : DxfPoint{std::min(low_.x, point.x), std::min(low_.y, point.y)};
    high_ = is_empty_ ? point : DxfPoint{std::max(high_.x, point.x), std::max(high_.y, point.y)};
    is_empty_ = false;
}

}  // namespace kervol
