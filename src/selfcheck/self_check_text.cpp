// SPDX-License-Identifier: GPL-3.0-or-later
#include "selfcheck/self_check_text.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <numeric>
#include <sstream>
#include <string_view>
#include <vector>

#include "selfcheck/deviation_texts.h"
#include "selfcheck/self_check_summary.h"

namespace kervol {
namespace {

using Out = std::ostringstream;

constexpr std::size_t kLineWidth = 108;
constexpr int kNumberWidth = 12;
constexpr int kShownSteps = 13;
constexpr std::size_t kShownValues = 4;

/// The paragraph in lines, each behind `indent` blanks.
void Put_Paragraph(Out& out, const std::string& text, std::size_t indent) {
    std::istringstream words(text);
    std::string word, line;
    const auto put = [&] { out << std::string(indent, ' ') << line << '\n'; };
    while (words >> word) {
        if (!line.empty() && indent + line.size() + 1 + word.size() > kLineWidth) {
            put();
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
    }
    if (!line.empty()) put();
}

void Put_Heading(Out& out, std::string_view text) {
    out << '\n' << text << '\n' << std::string(text.size(), '-') << '\n';
}

void Put_Short(Out& out, const LinkageModel& model, const SelfCheck& result) {
    Put_Heading(out, "In short");
    for (const std::string& paragraph : Self_Check_Summary(model, result)) Put_Paragraph(out, paragraph, 2);
}

void Put_Deviations(Out& out, const LinkageModel& model, const SelfCheck& result) {
    const std::vector<DeviationEffect> shown = Applying_Deviations(model, result);
    if (shown.empty()) return;
    Put_Heading(out, "Where the tables differ from rigid links on purpose");
    Put_Paragraph(out, Why_They_Stay, 2);
    for (const DeviationEffect& effect : shown) {
        out << "\n  " << Deviation_Title(effect.deviation) << '\n';
        Put_Paragraph(out, Deviation_Text(effect.deviation, model, result), 4);
        Put_Paragraph(out, Effect_Text(effect, model, result), 4);
    }
}

void Put_Drive(Out& out, const LinkageModel& model, const SelfCheck& result) {
    if (result.steps_with_forces == 0) return;
    Put_Heading(out, "The drive");
    out << "  " << std::left << std::setw(26) << "" << std::right << std::setw(kNumberWidth) << "Tables"
        << std::setw(kNumberWidth) << "Consistent" << '\n';
    for (const DriveLine& line : Drive_Lines(model, result))
        out << "  " << std::left << std::setw(14) << line.name << std::setw(12) << line.unit << std::right
            << std::setw(kNumberWidth) << Four_Digits(line.tabulated) << std::setw(kNumberWidth)
            << Four_Digits(line.consistent) << '\n';
    Put_Paragraph(out, Of_Steps_Alone, 2);
    Put_Paragraph(out, Two_Ways_Text(result), 2);
}

/// Those that a designer asks for first, as far as they differ.
std::vector<const CheckedValue*> Shown_Values(const SelfCheck& result) {
    std::vector<const CheckedValue*> shown;
    for (const char* name : {"Omega6", "Alpha6", "Accel CG 5", "Torque 12", "Force 14", "F Shaking"}) {
        const CheckedValue* check = Find_Check(result, name);
        if (check != nullptr && check->verdict != Verdict::Agrees && shown.size() < kShownValues)
            shown.push_back(check);
    }
    return shown;
}

void Put_Steps(Out& out, const SelfCheck& result) {
    const std::vector<const CheckedValue*> shown = Shown_Values(result);
    if (shown.empty()) return;
    Put_Heading(out, "Step by step");
    out << "    " << std::string(15, ' ');
    for (const CheckedValue* check : shown)
        out << std::right << std::setw(2 * kNumberWidth)
            << check->quantity.name + ", " + check->quantity.unit;
    out << "\n  Step       Theta2";
    for (std::size_t i = 0; i < shown.size(); ++i)
        out << std::setw(kNumberWidth) << "Tables" << std::setw(kNumberWidth) << "Consistent";
    out << '\n';
    const auto count = static_cast<int>(result.steps.size());
    const int stride = std::max(1, (count + kShownSteps - 2) / (kShownSteps - 1));
    for (int i = 0; i < count; i += stride) {
        const CheckedStep& row = result.steps[static_cast<std::size_t>(i)];
        out << std::setw(6) << row.step << std::setw(13) << Four_Digits(row.theta2);
        for (const CheckedValue* check : shown) {
            const bool has = !check->quantity.needs_forces || i < result.steps_with_forces;
            out << std::setw(kNumberWidth)
                << (has ? Four_Digits(check->quantity.Size_Of(row.tabulated)) : "-")
                << std::setw(kNumberWidth)
                << (has ? Four_Digits(check->quantity.Size_Of(row.consistent)) : "-");
        }
        out << '\n';
    }
    Put_Paragraph(out, "Vectors are shown by their sizes.", 2);
}

std::string_view Group_Title(QuantityGroup group) {
    switch (group) {
        case QuantityGroup::Loops:
            return "Loops and positions";
        case QuantityGroup::Motion:
            return "Motion";
        case QuantityGroup::Forces:
            return "Centres of gravity, forces and torques";
        case QuantityGroup::Balance:
            break;
    }
    return "Equilibrium and power";
}

std::string_view Verdict_Word(Verdict verdict) {
    if (verdict == Verdict::Agrees) return "agrees";
    return verdict == Verdict::OnPurpose ? "on purpose" : "DIFFERS";
}

/// Widths of the columns of all values; the first three are texts.
constexpr std::array<int, 10> kColumnWidths = {23, 11, 12, 11, 12, 6, 12, 6, 12, 12};
constexpr std::size_t kTextColumns = 3;

/// Of the columns from `first` up to `end`.
int Width_Of_Columns(std::size_t first, std::size_t end) {
    return std::accumulate(kColumnWidths.begin() + static_cast<std::ptrdiff_t>(first),
                           kColumnWidths.begin() + static_cast<std::ptrdiff_t>(end), 0);
}

void Put_Cells(Out& out, const std::vector<std::string>& cells) {
    out << "  ";
    for (std::size_t i = 0; i < cells.size(); ++i)
        out << (i < kTextColumns ? std::left : std::right) << std::setw(kColumnWidths.at(i)) << cells[i];
    out << '\n';
}

void Put_Check(Out& out, const CheckedValue& check) {
    const LargestDifference& rule = check.from_rule;
    const LargestDifference& links = check.from_consistent;
    const auto step = [](const LargestDifference& largest) { return std::to_string(largest.step); };
    std::vector<std::string> cells = {check.quantity.name,
                                      check.quantity.unit,
                                      std::string(Verdict_Word(check.verdict)),
                                      Four_Digits(rule.difference),
                                      Four_Digits(rule.allowed),
                                      step(rule),
                                      Four_Digits(links.difference),
                                      step(links)};
    if (!check.quantity.is_residual) {
        cells.push_back(Four_Digits(links.tabulated));
        cells.push_back(Four_Digits(links.expected));
    }
    Put_Cells(out, cells);
}

void Put_All(Out& out, const SelfCheck& result) {
    if (result.checks.empty()) return;
    Put_Heading(out, "All values");
    Put_Paragraph(
        out,
        "Each is held against the rule by which the tables are filled, worked out anew from the "
        "tabulated angles, and against rigid links. Shown is where it differs most; \"allowed\" is what "
        "the rounding of the tables can make of it there.",
        2);
    constexpr std::size_t kRule = 6, kLinks = 8;
    out << "\n  " << std::right << std::setw(Width_Of_Columns(0, kRule)) << "From the tables' own rule"
        << std::setw(Width_Of_Columns(kRule, kLinks)) << "From rigid links" << '\n';
    Put_Cells(out, {"Value", "Unit", "", "by", "allowed", "step", "by", "step", "tables", "consistent"});
    const CheckedValue* before = nullptr;
    for (const CheckedValue& check : result.checks) {
        if (before == nullptr || before->quantity.group != check.quantity.group)
            out << "\n  " << Group_Title(check.quantity.group) << '\n';
        Put_Check(out, check);
        before = &check;
    }
}

}  // namespace

std::string Self_Check_Text(const LinkageModel& model, const SelfCheck& result) {
    Out out;
    out << "Self-check of " << (model.ModelTitle.empty() ? model.ModelName : model.ModelTitle) << '\n';
    Put_Short(out, model, result);
    Put_Deviations(out, model, result);
    Put_Drive(out, model, result);
    Put_Steps(out, result);
    Put_All(out, result);
    return out.str();
}

}  // namespace kervol
