// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/limits_section.h"

#include "core/fault.h"
#include "report/page_parts.h"
#include "study/limits.h"

namespace kervol {
namespace {

std::string Panels(const LinkageModel& model) {
    const Limits limits = Find_Limits(model);
    std::string text;
    int number = 0;
    for (const StageLimits& stage : limits.stages) {
        ++number;
        text += Panel("Stage " + std::to_string(number), List_Table(Stage_Lines(model, stage, number)));
    }
    if (!limits.warnings.empty())
        text += Element("div class=\"full\"", Panel("To heed", Bullets(limits.warnings)));
    return text;
}

}  // namespace

std::string Limits_Section(const LinkageModel& model) {
    std::string panels;
    try {
        panels = Panels(model);
    } catch (const Fault&) {
        panels = Panel("To heed", Bullets({"There is no position at all: a length is 0."}));
    }
    return "<section><h2>Range and limits</h2><div class=\"columns\">\n" + panels + "</div></section>\n";
}

}  // namespace kervol
