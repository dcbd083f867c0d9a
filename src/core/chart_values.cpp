// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/chart_values.h"

#include "core/number_text.h"

namespace kervol {

std::string Chart_Values(const ChartLook& look) {
    std::string text = look.BottomTitle;
    for (const ChartSet& set : look.sets) {
        if (!set.filled) continue;
        // Of a chart with one curve its title says what is shown.
        const std::string name =
            look.GraphTitle.empty() ? set.LegendText : look.GraphTitle + " " + set.LegendText;
        text.append("\t").append(name);
        if (look.polar) text.append(" X\t").append(name).append(" Y");
    }
    text += '\n';
    for (std::size_t point = 0; point < look.LabelText.size(); ++point) {
        text += look.LabelText[point];
        for (const ChartSet& set : look.sets) {
            if (!set.filled) continue;
            if (look.polar) text += '\t' + Plain_Number(set.XPosData[point]);
            text += '\t' + Plain_Number(set.GraphData[point]);
        }
        text += '\n';
    }
    return text;
}

}  // namespace kervol
