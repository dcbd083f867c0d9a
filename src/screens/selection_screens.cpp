// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/selection_screens.h"

#include <string>

namespace kervol {
namespace {

/// The grid's width before anything has laid it out: its columns keep their shares at every other.
constexpr int kGridWidth = 1000;

}  // namespace

PlotTypeScreen::PlotTypeScreen() {
    opt_PickPlot[0].caption = "Single Window - One to Four Functions";
    opt_PickPlot[1].caption = "Two Windows - Two Functions";
    opt_PickPlot[2].caption = "Four Windows - Four Functions";
    opt_PickPlot[3].caption = "Polar Plot - One to Four Functions";
    opt_PickPlot[0].on = true;
    cmd_PickPlotDone.caption = "&Next >";
    cmd_CancelPickPlot.caption = "< &Back";
}

SelectionForm::SelectionForm(const SelectionKind& the_kind) : kind(the_kind) {
    for (std::size_t slot = 0; slot < NumSlots; ++slot) {
        fra_Function[slot].caption = "Function " + std::to_string(slot + 1);
        lbl_Var[slot].caption = "Variable";
        lbl_Comp[slot].caption = "Component";
        cmd_OK[slot].caption = "&OK";
        cmd_Clear[slot].caption = "&Clear";
    }
    opt_PrintSet[0].caption = "Preset Formats";
    opt_PrintSet[1].caption = "Mix and Match";
    fra_Preset.caption = "Select from Preset Formats";
    cmd_ClearPreset.caption = "&Clear";
    fra_Coord.caption = "Coordinate System";
    opt_Coord[0].caption = "Global";
    opt_Coord[1].caption = "Local Rotating";
    opt_Coord[0].on = true;
    opt_Plotstyle[0].caption = "Annotated";
    opt_Plotstyle[1].caption = "Aligned";
    // A polar plot is drawn by the program itself unless the chart is asked for.
    opt_Plotstyle[kind.vectors_only ? 1 : 0].on = true;
    cmd_Done.caption = "&Next >";
    cmd_Cancel.caption = "< &Back";
}

PrintSelectScreen::PrintSelectScreen() : SelectionForm(kPrintSelect) {
    opt_Whereto[0].caption = "Screen";
    opt_Whereto[1].caption = "Printer";
    opt_Whereto[2].caption = "Disk File";
    opt_Whereto[0].on = true;
    cmb_Step.items = {"1", "2", "3", "5", "10"};
    cmb_Decimal.items = {"0", "1", "2", "3", "4", "5", "6"};
    cmb_Decimal.text = "3";
}

PrintDataScreen::PrintDataScreen() {
    grd_Data.width = kGridWidth;
    cmd_PrintForm.caption = "&Print";
    cmd_Copy.caption = "&Copy";
    cmd_Cancel.caption = "< &Back";
}

}  // namespace kervol
