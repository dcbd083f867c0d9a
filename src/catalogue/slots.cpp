// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/slots.h"

#include "catalogue/preset_table.h"
#include "catalogue/selection.h"

namespace kervol {
namespace {

template <std::size_t Slots>
void Put(const CatalogueNames& names, const Preset<Slots>& preset, std::span<SlotBoxes> boxes) {
    for (std::size_t slot = 0; slot < Slots; ++slot)
        boxes[slot] = {names.CatalogName(preset.functions[slot]),
                       names.ComponentName(preset.components[slot])};
}

/// Row of the first title that is equal, 0 if there is none.
template <std::size_t N>
int Row_Of(const Table<std::string, N>& titles, std::string_view title) {
    for (int row = 1; row < static_cast<int>(N); ++row)
        if (titles(row) == title) return row;
    return 0;
}

void Confirm_All(Program& program, std::span<SlotBoxes> boxes) {
    std::int16_t k = 0;
    for (SlotBoxes& slot : boxes) Confirm_Slot(program.catalogue, program.selections, slot, ++k);
}

}  // namespace

void Confirm_Slot(const CatalogueNames& names, Selections& selections, SlotBoxes& boxes, std::int16_t k) {
    Set_Selection(names, selections, boxes.variable, k);
    if (selections.SelScalar) boxes.component = names.ComponentName(component::Mag);
    Set_Component(names, selections, boxes.component, k);
    if (selections.SelScalar) selections.SelCompName(k) = ScalarComponentName;
}

bool Put_Preset(const CatalogueNames& names, std::string_view title, std::span<SlotBoxes> boxes) {
    const bool two = boxes.size() == 2;
    const int row = two ? Row_Of(names.PresetTitle2, title) : Row_Of(names.PresetTitle4, title);
    if (row == 0) return false;
    if (two)
        Put(names, Two_Function_Preset(row), boxes);
    else
        Put(names, Four_Function_Preset(row), boxes);
    return true;
}

void Apply_Preset2(Program& program, std::string_view title, std::array<SlotBoxes, 2>& boxes) {
    Put_Preset(program.catalogue, title, boxes);
    Confirm_All(program, boxes);
    program.selections.SelCount = 2;
}

void Apply_Preset4(Program& program, std::string_view title, std::array<SlotBoxes, 4>& boxes) {
    Put_Preset(program.catalogue, title, boxes);
    Confirm_All(program, boxes);
    program.selections.SelCount = 4;
    program.selections.NumSelected = 4;
}

SlotCount Count_Slots(const SlotLabels& labels) {
    SlotCount count;
    for (std::size_t slot = 0; slot < NumSlots; ++slot) {
        if (labels.lbl_Function[slot].caption.empty()) continue;
        count.last = static_cast<std::int16_t>(slot + 1);
        ++count.filled;
    }
    return count;
}

}  // namespace kervol
