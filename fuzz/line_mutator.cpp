// SPDX-License-Identifier: GPL-3.0-or-later
#include "line_mutator.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

/// Of libFuzzer: changes bytes in place and returns the new size.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);

namespace kervol {
namespace {

using Lines = std::vector<std::string>;
using LineChange = void (*)(const LineKind& kind, Lines& lines, FuzzRandom& random);

constexpr std::size_t kLongText = 4000;

std::string_view Text_Of(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Each with its end.
Lines Lines_Of(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        std::size_t end = std::min(text.find_first_of("\r\n"), text.size() - 1) + 1;
        if (text[end - 1] == '\r' && end < text.size() && text[end] == '\n') ++end;
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return lines;
}

/// libFuzzer takes no empty text.
std::size_t Put_Text(const Lines& lines, std::uint8_t* out, std::size_t max_size) {
    std::string text;
    for (const std::string& line : lines) text += line;
    if (text.empty()) text = "\n";
    const std::size_t size = std::min(text.size(), max_size);
    std::memcpy(out, text.data(), size);
    return size;
}

Lines::iterator Line_At(Lines& lines, std::size_t i) {
    return lines.begin() + static_cast<std::ptrdiff_t>(i);
}

/// Some lines in a row, mostly few.
std::pair<std::size_t, std::size_t> Some_Lines(std::size_t count, FuzzRandom& random) {
    const std::size_t first = Below(random, count);
    const std::size_t most = Below(random, 4) == 0 ? count - first : std::min<std::size_t>(3, count - first);
    return {first, first + 1 + Below(random, most)};
}

void Drop_Lines(const LineKind&, Lines& lines, FuzzRandom& random) {
    const auto [first, last] = Some_Lines(lines.size(), random);
    lines.erase(Line_At(lines, first), Line_At(lines, last));
}

void Double_Lines(const LineKind&, Lines& lines, FuzzRandom& random) {
    const auto [first, last] = Some_Lines(lines.size(), random);
    const Lines copy(Line_At(lines, first), Line_At(lines, last));
    lines.insert(Line_At(lines, Below(random, lines.size() + 1)), copy.begin(), copy.end());
}

void Swap_Lines(const LineKind&, Lines& lines, FuzzRandom& random) {
    std::swap(lines[Below(random, lines.size())], lines[Below(random, lines.size())]);
}

void Cut_Off(const LineKind&, Lines& lines, FuzzRandom& random) {
    lines.erase(Line_At(lines, 1 + Below(random, lines.size())), lines.end());
}

void Insert_Line(const LineKind& kind, Lines& lines, FuzzRandom& random) {
    lines.insert(Line_At(lines, Below(random, lines.size() + 1)), kind.new_line(random) + "\n");
}

void Change_End(const LineKind&, Lines& lines, FuzzRandom& random) {
    static constexpr std::array kEnds = {"\n",   "\r\n", "\r",          "", "\n\n", " \n",
                                         "\n\r", ",\n",  "\xEF\xBB\xBF"};
    std::string& line = lines[Below(random, lines.size())];
    line.resize(line.find_last_not_of("\r\n") + 1);
    line += kEnds.at(Below(random, kEnds.size()));
}

/// Replaces one of a line's values, or a whole number's neighbourhood: one more, one less, another sign.
void Change_Value(const LineKind& kind, Lines& lines, FuzzRandom& random) {
    std::string& line = lines[Below(random, lines.size())];
    const std::size_t length = line.find_last_not_of("\r\n") + 1;
    std::vector<std::size_t> starts = {0};
    for (std::size_t i = 0; i < length; ++i)
        if (kind.separators.find(line[i]) != std::string_view::npos) starts.push_back(i + 1);
    const std::size_t start = starts[Below(random, starts.size())];
    const std::size_t end = std::min(line.find_first_of(kind.separators, start), length);
    std::string value = line.substr(start, end - start);
    switch (Below(random, 8)) {
        case 0:
            value.insert(0, "-");
            break;
        case 1:
            if (!value.empty()) ++value.back();
            break;
        case 2:
            value += static_cast<char>('0' + Below(random, 10));
            break;
        default:
            value = Edge_Value(random);
    }
    line.replace(start, end - start, value);
}

constexpr auto kChanges =
    std::to_array<LineChange>({Change_Value, Change_Value, Change_Value, Change_Value, Insert_Line,
                               Insert_Line, Drop_Lines, Double_Lines, Swap_Lines, Change_End, Cut_Off});

}  // namespace

std::size_t Below(FuzzRandom& random, std::size_t count) {
    return random() % count;
}

std::string Edge_Value(FuzzRandom& random) {
    static constexpr auto kValues = std::to_array<std::string_view>({
        "0",
        "-0",
        "-1",
        "1",
        "2",
        "3",
        "4",
        "5",
        "6",
        "7",
        "10",
        ".5",
        "-.5",
        "1.5",
        "2.5",
        "1E-05",
        "359",
        "360",
        "361",
        "1023",
        "1024",
        "1025",
        "16383",
        "32767",
        "32768",
        "-32768",
        "-32769",
        "65536",
        "2147483647",
        "2147483648",
        "-2147483649",
        "90",
        "180",
        "-90",
        "1E+18",
        "1E+19",
        "1E+20",
        "1e38",
        "-1e38",
        "3.4028235E+38",
        "3.4028236E+38",
        "1e39",
        "-1e39",
        "1e308",
        "1e309",
        "1e-38",
        "1e-45",
        "1e-46",
        "1e-320",
        "1e-400",
        "nan",
        "-nan",
        "inf",
        "-inf",
        "infinity",
        "",
        " ",
        "\"\"",
        "\"",
        "\"a",
        "a\"b",
        "#TRUE#",
        "#FALSE#",
        "#NULL#",
        "\"W\"",
        "\"S\"",
        "\"Y\"",
        "\"N\"",
        "W",
        "S",
        "abs",
        "\"180\"",
        "-",
        "+",
        ".",
        "1e",
        "1e+",
        "--1",
        "0x10",
        "1d5",
        "&HFF",
        "1,234.500",
        "12,34.5",
        "9,999,999.000",
        "1.2.3",
        "1 2",
        "\t7",
        "\xFF",
        "\xC3\xBC",
        "\xC3",
        "\xED\xA0\x80",
        "\xEF\xBB\xBF",
        "\"KERVOL\"",
        "\"KERVOL for Windows\"",
        "\"7.0\"",
        "\"2.2\"",
        "\"2.1\"",
        "<b>&amp;</b>",
        "%s%n",
        "..",
        "/dev/full",
        "999999999999999999999999999999999999999999",
        ".00000000000000000000000000000000000001",
    });
    const std::size_t choice = Below(random, kValues.size() + 2);
    if (choice == kValues.size()) return std::string(kLongText, static_cast<char>('0' + Below(random, 75)));
    if (choice > kValues.size()) return {"a\0b", 3};
    return std::string(kValues.at(choice));
}

}  // namespace kervol

/// Of libFuzzer: swaps, drops, doubles, moves and makes lines, and replaces values; now and then changes
/// bytes as libFuzzer itself does. Returns the size of the changed text, at most `max_size`.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t max_size,
                                               unsigned seed) {
    using namespace kervol;
    FuzzRandom random(seed);
    if (Below(random, 10) == 0) return LLVMFuzzerMutate(data, size, max_size);
    const LineKind kind = Lines_Of_Input();
    Lines lines = Lines_Of(Text_Of(data, size));
    for (std::size_t changes = 1 + Below(random, 4); changes > 0; --changes) {
        const LineChange change = lines.empty() ? Insert_Line : kChanges.at(Below(random, kChanges.size()));
        change(kind, lines, random);
    }
    return Put_Text(lines, data, max_size);
}

/// Of libFuzzer: puts lines of the second text in the place of lines of the first, at the same place or
/// another. Returns the size of the text, at most `max_size`.
extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* first, std::size_t first_size,
                                                 const std::uint8_t* second, std::size_t second_size,
                                                 std::uint8_t* out, std::size_t max_size, unsigned seed) {
    using namespace kervol;
    FuzzRandom random(seed);
    Lines lines = Lines_Of(Text_Of(first, first_size));
    Lines others = Lines_Of(Text_Of(second, second_size));
    if (lines.empty() || others.empty()) return Put_Text(lines, out, max_size);
    const auto [first_taken, last_taken] = Some_Lines(others.size(), random);
    // The position is what a line means.
    const bool in_place = Below(random, 2) == 0;
    const std::size_t at = in_place ? std::min(first_taken, lines.size()) : Below(random, lines.size() + 1);
    const std::size_t replaced =
        Below(random, 3) == 0 ? 0 : std::min(last_taken - first_taken, lines.size() - at);
    lines.erase(Line_At(lines, at), Line_At(lines, at + replaced));
    lines.insert(Line_At(lines, at), Line_At(others, first_taken), Line_At(others, last_taken));
    return Put_Text(lines, out, max_size);
}
