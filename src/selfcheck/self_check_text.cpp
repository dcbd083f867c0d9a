// SPDX-License-Identifier: GPL-3.0-or-later
#include "selfcheck/self_check_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <sstream>
#include <string_view>
#include <vector>

#include "core/arithmetic.h"
#include "selfcheck/deviation_texts.h"

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

std::string Count_Text(int count, const char* noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string Chain_Text(const LinkageModel& model) {
    if (model.LinkageType == "W") return "Watt chain";
    if (model.LinkageType == "S") return "Stephenson chain";
    return "Chain \"" + model.LinkageType + "\", Stage 1 alone";
}

std::string Compared_Text(const LinkageModel& model, const SelfCheck& result) {
    std::string text =
        Chain_Text(model) + ": " + Count_Text(static_cast<int>(result.steps.size()), "step") + " compared";
    if (result.not_assembled > 0)
        text += ", " + std::to_string(result.not_assembled) + " left out that do not assemble";
    if (!result.left_out.empty())
        text += ", " + std::to_string(result.left_out.size()) +
                " left out at a dead centre, the first of them " + std::to_string(result.left_out.front());
    if (result.steps_with_forces > 0)
        return text + "; forces of " + Count_Text(result.steps_with_forces, "step") + ".";
    if (!Chain_Has_Stage2(model)) return text + "; there are no forces without a Stage 2.";
    return text + "; forces are not solved, so only the motion is compared.";
}

std::string Verdict_Text(const SelfCheck& result) {
    const int agree = result.Count(Verdict::Agrees), purpose = result.Count(Verdict::OnPurpose);
    const int all = static_cast<int>(result.checks.size());
    std::string text = "Of " + Count_Text(all, "value") + ", " + std::to_string(agree) +
                       " agree with rigid links to the last digits that the tables hold";
    if (purpose > 0) text += "; " + std::to_string(purpose) + " differ on purpose, as told below";
    return text + (result.Tables_Hold() ? "; none is damaged." : ".");
}

/// "30 % less": the tabulated value beside the consistent one.
std::string Compared_Size(double tabulated, double consistent) {
    if (Is_Zero(consistent)) return "where rigid links need none";
    const double percent = 100 * (std::abs(tabulated) / std::abs(consistent) - 1);
    return Four_Digits(std::abs(percent)) + (percent < 0 ? " % less" : " % more");
}

std::string Motor_Text(const LinkageModel& model, const SelfCheck& result) {
    const DriveNeeds& tables = result.tabulated_drive;
    const DriveNeeds& links = result.consistent_drive;
    const CheckedValue* torque = Find_Check(result, "Torque 12");
    const std::string& unit = model.UnitText(9);
    if (torque->verdict == Verdict::Agrees)
        return "A motor may be sized on the tabulated driving torque: it is that of rigid links, with a peak "
               "of " +
               Four_Digits(links.peak_torque) + " " + unit + " at step " + std::to_string(links.peak_step) +
               ".";
    return "Size a motor on the consistent driving torque, not on the tabulated one: rigid links need a peak "
           "of " +
           Four_Digits(links.peak_torque) + " " + unit + " (step " + std::to_string(links.peak_step) +
           ") and " + Four_Digits(links.rms_torque) + " " + unit + " rms. The tables say " +
           Four_Digits(tables.peak_torque) + " " + unit + " (step " + std::to_string(tables.peak_step) +
           "), " + Compared_Size(tables.peak_torque, links.peak_torque) + ", and " +
           Four_Digits(tables.rms_torque) + " " + unit + " rms, " +
           Compared_Size(tables.rms_torque, links.rms_torque) +
           ". Pin forces, shaking force and flywheel follow the same rules.";
}

void Put_Short(Out& out, const LinkageModel& model, const SelfCheck& result) {
    Put_Heading(out, "In short");
    Put_Paragraph(out, Compared_Text(model, result), 2);
    if (result.checks.empty()) return Put_Paragraph(out, "Nothing to compare: calculate first.", 2);
    Put_Paragraph(out, Verdict_Text(result), 2);
    if (!result.Tables_Hold()) Put_Paragraph(out, Self_Check_Complaint(result), 2);
    if (result.steps_with_forces > 0) Put_Paragraph(out, Motor_Text(model, result), 2);
    // Labels and nothing more: forces come out in mass by length by second^2.
    if (model.UnitSystem == 5 && result.steps_with_forces > 0)
        Put_Paragraph(out,
                      "Units: kg, mm and seconds make forces in mN and torques in mN-mm, whatever the labels "
                      "say. Enter loads so, and read forces and torques so.",
                      2);
}

void Put_Deviations(Out& out, const LinkageModel& model, const SelfCheck& result) {
    std::vector<const DeviationEffect*> shown;
    for (const DeviationEffect& effect : result.effects)
        if (Applies(effect.deviation, model, result)) shown.push_back(&effect);
    if (shown.empty()) return;
    Put_Heading(out, "Where the tables differ from rigid links on purpose");
    Put_Paragraph(
        out,
        "Tables, files and sibling programs agree on these rules, so they stay. The values that rigid "
        "links would have are called consistent here.",
        2);
    for (const DeviationEffect* effect : shown) {
        out << "\n  " << Deviation_Title(effect->deviation) << '\n';
        Put_Paragraph(out, Deviation_Text(effect->deviation, model, result), 4);
        if (effect->deviation != Deviation::Transmission)
            Put_Paragraph(out, Effect_Text(*effect, model, result), 4);
    }
}

void Put_Drive(Out& out, const LinkageModel& model, const SelfCheck& result) {
    if (result.steps_with_forces == 0) return;
    Put_Heading(out, "The drive");
    const std::string torque = model.UnitText(9), power = torque + "/sec";
    struct Line {
        const char* name;
        const std::string& unit;
        double DriveNeeds::*value;
    };
    const Line lines[] = {{"Peak torque", torque, &DriveNeeds::peak_torque},
                          {"Torque, rms", torque, &DriveNeeds::rms_torque},
                          {"Torque, mean", torque, &DriveNeeds::mean_torque},
                          {"Peak power", power, &DriveNeeds::peak_power},
                          {"Power, mean", power, &DriveNeeds::mean_power}};
    out << "  " << std::left << std::setw(26) << "" << std::right << std::setw(kNumberWidth) << "Tables"
        << std::setw(kNumberWidth) << "Consistent" << '\n';
    for (const Line& line : lines)
        out << "  " << std::left << std::setw(14) << line.name << std::setw(12) << line.unit << std::right
            << std::setw(kNumberWidth) << Four_Digits(result.tabulated_drive.*line.value)
            << std::setw(kNumberWidth) << Four_Digits(result.consistent_drive.*line.value) << '\n';
    Put_Paragraph(
        out,
        "The consistent torque was found twice: from the equilibrium of all links, and from the work "
        "done, as the rate of the kinetic energy less the power of the loads. The two agree to " +
            Four_Digits(result.torque_ways_differ) + " of the work that goes through the links.",
        2);
}

/// Those that a designer asks for first, as far as they differ.
std::vector<const CheckedValue*> Shown_Values(const SelfCheck& result) {
    std::vector<const CheckedValue*> shown;
    for (const char* name :
         {"Omega5", "Omega6", "Alpha6", "Accel CG 5", "Torque 12", "Force 14", "F Shaking"}) {
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
        out << std::right << std::setw(2 * kNumberWidth - 2)
            << check->quantity.name + ", " + check->quantity.unit;
    out << "\n  Step       Theta2";
    for (std::size_t i = 0; i < shown.size(); ++i)
        out << std::setw(kNumberWidth - 2) << "Tables" << std::setw(kNumberWidth) << "Consistent";
    out << '\n';
    const auto count = static_cast<int>(result.steps.size());
    const int stride = std::max(1, (count + kShownSteps - 2) / (kShownSteps - 1));
    for (int i = 0; i < count; i += stride) {
        const CheckedStep& row = result.steps[static_cast<std::size_t>(i)];
        out << std::setw(6) << row.step << std::setw(13) << Four_Digits(row.theta2);
        for (const CheckedValue* check : shown) {
            const bool has = !check->quantity.needs_forces || i < result.steps_with_forces;
            out << std::setw(kNumberWidth - 2)
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
constexpr std::array<int, 10> kColumnWidths = {23, 11, 11, 10, 10, 5, 10, 5, 11, 11};
constexpr std::size_t kTextColumns = 3;

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
    out << "\n  " << std::string(45, ' ') << "From the tables' own rule    From rigid links\n";
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

std::string Self_Check_Complaint(const SelfCheck& result) {
    if (result.Tables_Hold()) return {};
    const int differing = result.Count(Verdict::Differs);
    if (differing == 0)
        return "The check itself lost its digits: its two driving torques differ. Do not rely on its forces.";
    std::string names;
    int named = 0;
    for (const CheckedValue& check : result.checks) {
        if (check.verdict != Verdict::Differs || named == 3) continue;
        names += (named == 0 ? "" : ", ") + check.quantity.name + " at step " +
                 std::to_string(check.from_rule.step);
        ++named;
    }
    if (differing > named) names += " and " + std::to_string(differing - named) + " more";
    return Count_Text(differing, "value") + (differing == 1 ? " differs" : " differ") +
           " from the rules of the tables: " + names +
           ". Calculate and solve anew; what differs even then must not be relied on.";
}

}  // namespace kervol
