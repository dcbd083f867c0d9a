// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/plot_screens.h"

namespace kervol {

PlotButtons::PlotButtons(const PlotKind& the_kind) : kind(the_kind) {
    cmd_Replot.caption = "< &Back";
    cmd_PlotPrint.caption = "&Print";
    cmd_Copy.caption = "&Copy";
    cmd_PlotDone.caption = "&Done";
}

ChartScreen::ChartScreen(const PlotKind& the_kind) : PlotButtons(the_kind) {
    chk_HGrid.caption = "Horiz";
    chk_VGrid.caption = "Vertic";
    chk_Line.caption = "Curve";
    chk_Sticks.caption = "Fills";
    chk_HGrid.on = chk_VGrid.on = chk_Line.on = true;
    opt_Back[0].caption = "White";
    opt_Back[1].caption = "Tinted";
    opt_Back[0].on = true;
}

PolarPlotScreen::PolarPlotScreen(const PlotKind& the_kind) : PlotButtons(the_kind) {
    chk_Vectors.caption = "Vectors";
    chk_Envelope.caption = "Envelope";
    chk_Vectors.on = chk_Envelope.on = true;
    chk_Pause.caption = "Pause";
    lbl_name[0].caption = "Magnitude";
    lbl_name[1].caption = "Angle";
    Show_Stepping(*this);
}

void Show_Stepping(PolarPlotScreen& form) {
    const bool stepping = form.PolarStepping;
    form.cmd_Step.caption = stepping ? "Step" : "Plot";
    for (Label* label : {&form.lbl_StepLabel, &form.lbl_StepUnit, &form.lbl_StepNumber, &form.lbl_vector[0],
                         &form.lbl_vector[1], &form.lbl_name[0], &form.lbl_name[1]})
        label->visible = stepping;
}

}  // namespace kervol
