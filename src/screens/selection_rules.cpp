// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/selection_rules.h"

#include <string>
#include <vector>

#include "catalogue/lists.h"
#include "catalogue/preset_table.h"
#include "catalogue/selection.h"
#include "core/report.h"
#include "screens/launch_screens.h"

namespace kervol {
namespace {

constexpr const char* kGap =
    "Something is wrong. \n"
    "\n"
    "You are missing a plot selection.\n"
    "\n"
    "Please leave no gaps between selections. \n"
    "Two functions should use Plots 1 and 2. \n"
    "Three functions should use Plots 1, 2, and 3.";

/// Number of a slot: its selection, and what its controls are called by.
std::int16_t Number_Of(std::size_t slot) {
    return static_cast<std::int16_t>(slot + 1);
}

bool Is_Mix(const SelectionForm& form) {
    return form.opt_PrintSet[1].on;
}

/// Moves the focus on while a person goes from control to control; a preset leaves it where it is.
void Lead_To(Program& program, const SelectionForm& form, const char* control, std::size_t slot) {
    if (Is_Mix(form)) program.port.Set_Focus(form.kind.screen, control + std::to_string(Number_Of(slot)));
}

bool Holds_Choice(const SelectionForm& form, std::size_t slot) {
    return !form.cmb_Var[slot].text.empty() && !form.cmb_Com[slot].text.empty();
}

bool All_Slots_Hold_Choice(const SelectionForm& form) {
    for (std::size_t slot = 0; slot < form.kind.functions; ++slot)
        if (!Holds_Choice(form, slot)) return false;
    return true;
}

void Clear_Label(SelectionForm& form, std::size_t slot) {
    form.lbl_Function[slot].caption.clear();
    form.lbl_Component[slot].caption.clear();
}

void Clear_Labels(SelectionForm& form) {
    for (std::size_t slot = 0; slot < form.kind.functions; ++slot) Clear_Label(form, slot);
}

void Clear_Components(SelectionForm& form) {
    for (std::size_t slot = 0; slot < form.kind.functions; ++slot) form.cmb_Com[slot].text.clear();
}

void Clear_Preset(SelectionForm& form) {
    Clear_Labels(form);
    for (std::size_t slot = 0; slot < form.kind.functions; ++slot) form.cmb_Var[slot].text.clear();
    Clear_Components(form);
    form.cmb_Preset.text.clear();
    form.cmd_Done.enabled = false;
}

/// All that a slot has, but for the OK button, which waits for a choice.
void Set_Slot(SelectionForm& form, std::size_t slot, bool on) {
    for (Control* control :
         std::initializer_list<Control*>{&form.fra_Function[slot], &form.lbl_Var[slot], &form.lbl_Comp[slot],
                                         &form.cmb_Var[slot], &form.cmb_Com[slot], &form.cmd_Clear[slot]})
        control->enabled = on;
}

void Set_Controls(SelectionForm& form, bool on) {
    for (std::size_t slot = 0; slot < form.kind.functions; ++slot) {
        Set_Slot(form, slot, on);
        form.cmd_OK[slot].enabled = on;
    }
}

void Enable_Slot(SelectionForm& form, std::size_t slot) {
    Set_Slot(form, slot, true);
    if (Holds_Choice(form, slot)) form.cmd_OK[slot].enabled = true;
}

void Set_Print_Set(Program& program, SelectionForm& form) {
    Clear_Preset(form);
    Set_Controls(form, false);
    const bool mix = Is_Mix(form);
    for (Control* control :
         std::initializer_list<Control*>{&form.fra_Preset, &form.cmb_Preset, &form.cmd_ClearPreset})
        control->enabled = !mix;
    if (mix)
        Enable_Slot(form, 0);
    else
        program.port.Set_Focus(form.kind.screen, "cmb_Preset");
}

void Variable_Picked(Program& program, SelectionForm& form, std::size_t slot) {
    Selections& selections = program.selections;
    Clear_Label(form, slot);
    form.cmd_Done.enabled = false;
    Set_Selection(program.catalogue, selections, form.cmb_Var[slot].text, Number_Of(slot));
    Toggle_Coordinate(form, selections.SelVector);
    const bool scalar = selections.SelScalar;
    form.cmb_Com[slot].enabled = !scalar;
    form.cmd_OK[slot].enabled = scalar;
    if (scalar) {
        form.cmb_Com[slot].text = program.catalogue.ComponentName(component::Mag);
        selections.SelCompName(Number_Of(slot)) = ScalarComponentName;
    }
    Lead_To(program, form, scalar ? "cmd_OK" : "cmb_Com", slot);
}

void Component_Picked(Program& program, SelectionForm& form, std::size_t slot) {
    form.cmd_OK[slot].enabled = true;
    form.lbl_Component[slot].caption.clear();
    Set_Component(program.catalogue, program.selections, form.cmb_Com[slot].text, Number_Of(slot));
    Lead_To(program, form, "cmd_OK", slot);
}

void Select_OK(Program& program, SelectionForm& form, std::size_t slot) {
    Variable_Picked(program, form, slot);
    Component_Picked(program, form, slot);
    if (program.selections.SelScalar) program.selections.SelCompName(Number_Of(slot)) = ScalarComponentName;
    form.lbl_Function[slot].caption = form.cmb_Var[slot].text;
    form.lbl_Component[slot].caption = form.cmb_Com[slot].text;
    form.cmd_OK[slot].enabled = true;
    form.cmd_Done.enabled = true;
}

/// Deliberate: a gap is told of, but does not hold back.
void Check_Gaps(Program& program, SelectionForm& form) {
    const SlotCount count = Count_Slots(form);
    const auto filled = static_cast<std::size_t>(count.filled);
    program.selections.*form.kind.count = count.last;
    if (filled < (form.kind.needed == SlotsNeeded::All ? form.kind.functions : 1))
        form.cmd_Done.enabled = false;
    if (form.kind.needed == SlotsNeeded::WithoutGaps && count.last != count.filled)
        program.port.Show_Message({kGap});
}

void cmd_OK_Click(Program& program, SelectionForm& form, std::size_t slot) {
    Select_OK(program, form, slot);
    if (slot + 1 < form.kind.functions) Enable_Slot(form, slot + 1);
    Toggle_Coordinate(form, program.selections.SelVector);
    Check_Gaps(program, form);
}

void cmd_Clear_Click(Program& program, SelectionForm& form, std::size_t slot) {
    form.cmb_Var[slot].text.clear();
    form.cmb_Com[slot].text.clear();
    Clear_Label(form, slot);
    // Deliberate: of the slots in the middle only. Behind another one what is left may still be shown.
    if (slot == 1 || slot == 2) form.cmd_OK[slot].enabled = form.cmd_Done.enabled = false;
    Check_Gaps(program, form);
}

/// The last function that was missing is confirmed too, or it would be missing in what comes next.
void cmb_Var_DblClick(Program& program, SelectionForm& form, std::size_t slot) {
    Variable_Picked(program, form, slot);
    if (!All_Slots_Hold_Choice(form)) return;
    cmd_OK_Click(program, form, slot);
    // A gap, of which the user was told, keeps them here.
    const bool complete = static_cast<std::size_t>(Count_Slots(form).filled) == form.kind.functions;
    if (complete && form.cmd_Done.enabled && form.cmd_Done.click) form.cmd_Done.click();
}

/// Fills the boxes as a person would, then presses OK of each slot.
void Apply_Preset(Program& program, SelectionForm& form) {
    std::vector<SlotBoxes> boxes;
    for (std::size_t slot = 0; slot < form.kind.functions; ++slot)
        boxes.push_back({form.cmb_Var[slot].text, form.cmb_Com[slot].text});
    Put_Preset(program.catalogue, form.cmb_Preset.text, boxes);
    for (std::size_t slot = 0; slot < boxes.size(); ++slot) {
        form.cmb_Var[slot].text = boxes[slot].variable;
        form.cmb_Com[slot].text = boxes[slot].component;
    }
    for (std::size_t slot = 0; slot < boxes.size(); ++slot) Select_OK(program, form, slot);
    program.selections.SelCount = static_cast<std::int16_t>(boxes.size());
    if (boxes.size() == NumSlots) program.selections.NumSelected = program.selections.SelCount;
}

void Load_Lists(Program& program, SelectionForm& form) {
    const auto load = form.kind.vectors_only ? Load_Vector_Variables : Load_Variables;
    for (std::size_t slot = 0; slot < form.kind.functions; ++slot) {
        load(program, form.cmb_Var[slot]);
        Load_Components(program, form.cmb_Com[slot]);
    }
    if (!form.kind.vectors_only)
        Load_Presets(program, form.cmb_Preset, static_cast<std::int16_t>(form.kind.functions));
}

}  // namespace

void Toggle_Coordinate(SelectionForm& form, bool on) {
    form.fra_Coord.enabled = form.opt_Coord[0].enabled = form.opt_Coord[1].enabled = on;
}

void Selection_Form_Activate(Program& program, SelectionForm& form) {
    Selections& selections = program.selections;
    if (Take_New_Data(program, form.kind.lists)) Load_Lists(program, form);
    selections.LocalCoords = 0;
    Toggle_Coordinate(form, false);
    form.opt_PrintSet[0].on = !form.kind.vectors_only;
    form.opt_PrintSet[1].on = form.kind.vectors_only;
    Set_Print_Set(program, form);
    if (form.kind.has_styles) selections.PlotStyle = form.opt_Plotstyle[1].on ? 2 : 1;
}

void Wire_Selection_Form(Program& program, SelectionForm& form) {
    const std::string name = std::string(Screen_Name(form.kind.screen)) + ".";
    const auto on = [&](Event& event, const std::string& control, auto handler) {
        event = [&program, &form, label = name + control, handler] {
            Procedure(program, label, [&] { handler(program, form); });
        };
    };
    const auto on_slot = [&](Event& event, const char* control, std::size_t slot, auto handler) {
        on(event, control + std::to_string(Number_Of(slot)),
           [slot, handler](Program& all, SelectionForm& its) { handler(all, its, slot); });
    };
    for (std::size_t slot = 0; slot < form.kind.functions; ++slot) {
        on_slot(form.cmb_Var[slot].click, "cmb_Var", slot, Variable_Picked);
        on_slot(form.cmb_Var[slot].double_click, "cmb_Var", slot, cmb_Var_DblClick);
        on_slot(form.cmb_Com[slot].click, "cmb_Com", slot, Component_Picked);
        on_slot(form.cmd_OK[slot].click, "cmd_OK", slot, cmd_OK_Click);
        on_slot(form.cmd_Clear[slot].click, "cmd_Clear", slot, cmd_Clear_Click);
    }
    for (OptionButton& option : form.opt_PrintSet) on(option.click, "opt_PrintSet", Set_Print_Set);
    on(form.cmb_Preset.click, "cmb_Preset", Apply_Preset);
    on(form.cmb_Preset.double_click, "cmb_Preset", Apply_Preset);
    on(form.cmd_ClearPreset.click, "cmd_ClearPreset",
       [](Program&, SelectionForm& its) { Clear_Preset(its); });
    for (OptionButton& option : form.opt_Plotstyle)
        on(option.click, "opt_Plotstyle", [](Program& all, SelectionForm& its) {
            all.selections.PlotStyle = its.opt_Plotstyle[1].on ? 2 : 1;
        });
}

}  // namespace kervol
