// SPDX-License-Identifier: GPL-3.0-or-later
#include "selfcheck/self_check_summary.h"

#include <cmath>

#include "core/arithmetic.h"
#include "core/model_questions.h"
#include "selfcheck/deviation_texts.h"

namespace kervol {
namespace {

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
    if (!Has_Stage2(model)) return text + "; there are no forces without a Stage 2.";
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

}  // namespace

std::vector<std::string> Self_Check_Summary(const LinkageModel& model, const SelfCheck& result) {
    std::vector<std::string> summary = {Compared_Text(model, result)};
    if (result.checks.empty()) {
        summary.emplace_back("Nothing to compare: calculate first.");
        return summary;
    }
    summary.push_back(Verdict_Text(result));
    if (!result.Tables_Hold()) summary.push_back(Self_Check_Complaint(result));
    if (result.steps_with_forces == 0) return summary;
    summary.push_back(Motor_Text(model, result));
    // Labels and nothing more: forces come out in mass by length by second^2.
    if (model.UnitSystem == 5)
        summary.emplace_back(
            "Units: kg, mm and seconds make forces in mN and torques in mN-mm, whatever the labels "
            "say. Enter loads so, and read forces and torques so.");
    return summary;
}

std::vector<DriveLine> Drive_Lines(const LinkageModel& model, const SelfCheck& result) {
    const std::string torque = model.UnitText(9), power = torque + "/sec";
    const DriveNeeds& tables = result.tabulated_drive;
    const DriveNeeds& links = result.consistent_drive;
    return {{"Peak torque", torque, tables.peak_torque, links.peak_torque},
            {"Torque, rms", torque, tables.rms_torque, links.rms_torque},
            {"Torque, mean", torque, tables.mean_torque, links.mean_torque},
            {"Peak power", power, tables.peak_power, links.peak_power},
            {"Power, mean", power, tables.mean_power, links.mean_power}};
}

std::string Two_Ways_Text(const SelfCheck& result) {
    return "The consistent torque was found twice: from the equilibrium of all links, and from the work "
           "done, as the rate of the kinetic energy less the power of the loads. The two agree to " +
           Four_Digits(result.torque_ways_differ) + " of the work that goes through the links.";
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
