// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/sample_lines.h"

#include <cstdlib>
#include <type_traits>

#include "support/compare.h"

namespace kervol {
namespace {

using M = LinkageModel;

template <class... Lambdas>
struct Overloaded : Lambdas... {
    using Lambdas::operator()...;
};
template <class... Lambdas>
Overloaded(Lambdas...) -> Overloaded<Lambdas...>;

std::string Unquoted(std::string_view text) {
    return std::string(text.substr(1, text.size() - 2));
}

/// The element that a place names, handed to `use`.
template <class Model, class Use>
auto With_Element(const Place& place, Model& model, const Use& use) {
    return std::visit(
        Overloaded{[](std::monostate) {}, [&](const LinkPlace& p) { use((model.*p.array)(p.link)); },
                   [&](const CGPlace& p) { use(model.LinkCG(p.link, p.part)); },
                   [&](auto member) { use(model.*member); }},
        place);
}

/// Value of a text for an element of that type.
template <class T>
T Value_Of(std::string_view text) {
    const std::string copy(text);
    if constexpr (std::is_same_v<T, std::string>)
        return Unquoted(text);
    else if constexpr (std::is_same_v<T, bool>)
        return text == "#TRUE#";
    else if constexpr (std::is_same_v<T, float>)
        return std::strtof(copy.c_str(), nullptr);
    else
        return static_cast<T>(std::strtol(copy.c_str(), nullptr, 10));
}

/// A value that the text does not stand for; flags have only one such.
template <class T>
T Poison_Of(std::string_view text) {
    if constexpr (std::is_same_v<T, std::string>)
        return "poison";
    else if constexpr (std::is_same_v<T, bool>)
        return text != "#TRUE#";
    else if constexpr (std::is_same_v<T, float>)
        return kervol::Poison;
    else
        return T{-7777};
}

template <class T>
using Plain = std::remove_cvref_t<T>;

}  // namespace

std::span<const std::string_view> Drive_Rows() {
    static constexpr std::string_view kRows[] = {"10.5,20.25,-1.5E-05", "11.5,-20.5,2E+07",
                                                 "-12.5,0.0001,1.1754944E-38"};
    return kRows;
}

std::span<const std::string_view> Torque_Rows() {
    static constexpr std::string_view kRows[] = {"7.5", "-8.25", "9999999"};
    return kRows;
}

std::vector<std::string> Model_File_Lines() {
    std::vector<std::string> lines;
    for (const SampleLine& line : Model_Lines()) lines.emplace_back(line.text);
    while (lines.size() < 214) lines.emplace_back("\"\"");
    for (const auto row : Drive_Rows()) lines.emplace_back(row);
    for (const auto row : Torque_Rows()) lines.emplace_back(row);
    return lines;
}

std::vector<std::string> Legacy_File_Lines() {
    std::vector<std::string> lines;
    for (const SampleLine& line : Legacy_Lines()) lines.emplace_back(line.text);
    return lines;
}

std::string Joined(const std::vector<std::string>& lines, std::string_view line_end) {
    std::string text;
    for (const std::string& line : lines) {
        text += line;
        text += line_end;
    }
    return text;
}

Kind Kind_Of(const SampleLine& line) {
    return std::visit(
        Overloaded{[](std::monostate) { return Kind::Text; }, [](std::string M::*) { return Kind::Text; },
                   [](std::int16_t M::*) { return Kind::Int; }, [](std::int32_t M::*) { return Kind::Long; },
                   [](bool M::*) { return Kind::Flag; }, [](const auto&) { return Kind::Single; }},
        line.place);
}

void Put_Line(const SampleLine& line, LinkageModel& model) {
    With_Element(line.place, model,
                 [&](auto& element) { element = Value_Of<Plain<decltype(element)>>(line.text); });
}

void Put_Sample(Program& program) {
    for (const SampleLine& line : Model_Lines()) Put_Line(line, program.model);
    for (int i = 0; i <= 2; ++i) {
        const std::string row(Drive_Rows()[static_cast<std::size_t>(i)]);
        char* at = nullptr;
        program.tables.DriveTheta(i) = std::strtof(row.c_str(), &at);
        program.tables.Omega(i, 0) = std::strtof(at + 1, &at);
        program.tables.Alpha(i, 0) = std::strtof(at + 1, &at);
        program.tables.Torque21Imported(i) = Value_Of<float>(Torque_Rows()[static_cast<std::size_t>(i)]);
    }
}

bool Holds(const LinkageModel& model, const SampleLine& line) {
    bool holds = true;
    With_Element(line.place, model, [&](const auto& element) {
        holds = std::equal_to<>{}(element, Value_Of<Plain<decltype(element)>>(line.text));
    });
    return holds;
}

void Poison_Line(const SampleLine& line, LinkageModel& model) {
    With_Element(line.place, model,
                 [&](auto& element) { element = Poison_Of<Plain<decltype(element)>>(line.text); });
}

bool Is_Poisoned(const LinkageModel& model, const SampleLine& line) {
    bool poisoned = true;
    With_Element(line.place, model, [&](const auto& element) {
        poisoned = std::equal_to<>{}(element, Poison_Of<Plain<decltype(element)>>(line.text));
    });
    return poisoned;
}

void Poison_All(Program& program, std::span<const SampleLine> lines) {
    for (const SampleLine& line : lines) Poison_Line(line, program.model);
    Poison_Tables(program.tables);
}

}  // namespace kervol
