// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/trust_section.h"

#include <algorithm>
#include <string_view>

#include "core/model_questions.h"
#include "report/html_table.h"
#include "report/page_parts.h"
#include "selfcheck/deviation_texts.h"
#include "selfcheck/self_check_summary.h"

namespace kervol {
namespace {

/// One function of the catalogue stands for each family of those that differ together.
struct Family {
    std::string_view name;
    const char* title;
};
constexpr Family kFamilies[] = {
    {"Alpha4", "Angular acceleration of link 4"},
    {"Omega6", "Angular velocity of link 6"},
    {"Alpha6", "Angular acceleration of link 6"},
    {"Trans Ang-1", "Transmission angle of Stage 1"},
    {"Trans Ang-2", "Transmission angle of Stage 2"},
    {"Veloc CP-2", "Velocity of coupler point 2"},
    {"Accel CP-2", "Acceleration of coupler point 2"},
    {"Veloc CG 5", "Velocity of the centre of gravity of link 5"},
    {"Accel CG 5", "Acceleration of the centre of gravity of link 5"},
    {"Torque 12", "Driving torque"},
    {"F Shaking", "Shaking force"},
    {"Force 12", "Force at O2"},
    {"Force 14", "Force at O4"},
    {"Force 16", "Force at O6"},
};

Curve Curve_Of(const LinkageModel& model, const SelfCheck& check, const Quantity& quantity, const char* name,
               RowValues CheckedStep::*of) {
    Curve curve = {name, {}};
    curve.values.resize(static_cast<std::size_t>(std::max(0, Last_Step(model) + 1)));
    const auto count =
        quantity.needs_forces ? static_cast<std::size_t>(check.steps_with_forces) : check.steps.size();
    for (std::size_t i = 0; i < count; ++i) {
        const CheckedStep& row = check.steps[i];
        curve.values.at(static_cast<std::size_t>(row.step)) = quantity.Size_Of(row.*of);
    }
    return curve;
}

std::string Paragraphs(const std::vector<std::string>& texts) {
    std::string html;
    for (const std::string& text : texts)
        if (!text.empty()) html += Element("p", Markup_Text(text));
    return html;
}

std::string Drive_Panel(const LinkageModel& model, const SelfCheck& check) {
    if (check.steps_with_forces == 0) return {};
    HtmlTable table({"", "Tables", "Consistent"}, 1);
    for (const DriveLine& line : Drive_Lines(model, check))
        table.Add_Row(
            {line.name + " [" + line.unit + "]", Four_Digits(line.tabulated), Four_Digits(line.consistent)});
    return Panel("What the drive needs", table.Text() + Paragraphs({Of_Steps_Alone, Two_Ways_Text(check)}));
}

std::string Deviations_Panel(const LinkageModel& model, const SelfCheck& check) {
    const std::vector<DeviationEffect> deviations = Applying_Deviations(model, check);
    if (deviations.empty()) return {};
    std::vector<NamedText> lines;
    for (const DeviationEffect& deviation : deviations) {
        const std::string effect = Effect_Text(deviation, model, check);
        lines.push_back(
            {std::string(Deviation_Title(deviation.deviation)),
             Deviation_Text(deviation.deviation, model, check) + (effect.empty() ? "" : " " + effect)});
    }
    return Panel("Where the tables differ from rigid links on purpose",
                 Paragraphs({Why_They_Stay}) + List_Table(lines));
}

}  // namespace

SelfCheck Check_Of_Report(const Program& program, int solved_steps) {
    return Check_Results(program.model, program.tables,
                         std::min(solved_steps, Steps_With_Forces(program.model, program.tables)));
}

std::vector<CurveGroup> Deviating_Curves(const LinkageModel& model, const SelfCheck& check) {
    std::vector<CurveGroup> groups;
    for (const Family& family : kFamilies) {
        const CheckedValue* value = Find_Check(check, family.name);
        if (value == nullptr || value->verdict == Verdict::Agrees) continue;
        const Quantity& quantity = value->quantity;
        groups.push_back({family.title,
                          quantity.unit,
                          {Curve_Of(model, check, quantity, "Tables", &CheckedStep::tabulated),
                           Curve_Of(model, check, quantity, "Consistent", &CheckedStep::consistent)}});
    }
    return groups;
}

std::string Trust_Section(const LinkageModel& model, const SelfCheck& check, const Abscissae& abscissae) {
    if (check.checks.empty()) return {};
    std::string text = "<section><h2>How far the numbers can be trusted</h2><div class=\"columns\">\n" +
                       Panel("Self-check", Paragraphs(Self_Check_Summary(model, check))) +
                       Drive_Panel(model, check) + "</div>\n" + Deviations_Panel(model, check);
    const std::vector<CurveGroup> groups = Deviating_Curves(model, check);
    // One position makes no curve.
    if (groups.empty() || Last_Step(model) < 1) return text + "</section>\n";
    return text + "<div class=\"columns\">\n" + Group_Charts(groups, abscissae) + "</div></section>\n";
}

std::string Trust_In_Short(const LinkageModel& model, const SelfCheck& check) {
    if (!check.Tables_Hold()) return "some values are damaged; see the self-check";
    const int differ = check.Count(Verdict::OnPurpose), all = static_cast<int>(check.checks.size());
    if (differ == 0) return "all " + std::to_string(all) + " checked values are those of rigid links";
    std::string text = std::to_string(differ) + " of " + std::to_string(all) +
                       " checked values differ from rigid links on purpose; see the self-check";
    const CheckedValue* torque = Find_Check(check, "Torque 12");
    if (torque == nullptr || torque->verdict == Verdict::Agrees) return text;
    return text + ". A motor needs a peak of " + Four_Digits(check.consistent_drive.peak_torque) + " " +
           model.UnitText(9);
}

}  // namespace kervol
