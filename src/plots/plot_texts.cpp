// SPDX-License-Identifier: GPL-3.0-or-later
#include "plots/plot_texts.h"

#include "catalogue/table_rows.h"
#include "core/header.h"
#include "core/number_text.h"

namespace kervol {

const std::string& Slot_Caption(const std::array<Label, NumSlots>& labels, int slot) {
    const auto index = static_cast<std::size_t>(slot);
    if (index >= labels.size()) Raise(fault::Subscript);
    return labels[index].caption;
}

std::string Plot_Unit(const Program& program, std::int16_t k, const std::string& spectrum,
                      std::int16_t angle) {
    const Selections& selections = program.selections;
    if (selections.SelComp(k) == angle) return "Deg";
    return selections.SelFFT ? spectrum : program.model.UnitText(selections.SelTable(k));
}

void Put_Plot_State(const Program& program, StateLabels& form) {
    form.lbl_Header.caption = Put_Header(program.model);
    Put_Link_Labels(program.model, form);
}

void Put_Abscissa_Title(const Program& program, StateLabels& form, std::string& title) {
    switch (program.model.CalcMode) {
        case 2:
        case 4:
        case 5:
            // Deliberate: also of a transform, whose abscissa is the harmonic.
            title = "Time (Sec)";
            Put_Labels_Time(program.model, form);
            break;
        case 3:
            title = program.selections.SelFFT ? "Harmonic Number" : "Crank Angle (Deg)";
            Put_Labels_Angle(program.model, form);
            break;
        default:
            break;
    }
}

std::string Frame_Text(const Program& program) {
    return program.selections.SelFFT ? Transform_Title(program) : "";
}

std::string Time_Text(const LinkageModel& model, std::int16_t step) {
    return FNRoundStr(step * double(model.TimeStep) + model.TimeStart, 2);
}

std::int16_t Label_Decimals(float limit) {
    if (limit >= 100) return 0;
    if (limit >= 10) return 1;
    return limit >= 1 ? 2 : 3;
}

}  // namespace kervol
