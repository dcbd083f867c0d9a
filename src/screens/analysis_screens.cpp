// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/analysis_screens.h"

namespace kervol {

FFTScreen::FFTScreen() {
    fra_Function1.caption = "Function for FFT";
    lbl_Var1.caption = "Variable";
    lbl_Com1.caption = "Component";
    lbl_Harmonics.caption = "No of Harmonics";
    lbl_Header2.visible = false;
    cmb_Com1.text = "X";
    cmb_Harmonics.text = "15";
    const std::array<const char*, graphs> columns = {"Real", "Img", "Mag", "Phs"};
    for (std::size_t graph = 0; graph < graphs; ++graph) lbl_Graph[graph].caption = columns[graph];
    fra_Grid.caption = "Grid";
    fra_Style.caption = "Style";
    chk_HGrid.caption = "Horiz";
    chk_VGrid.caption = "Vertic";
    chk_Line.caption = "Envelope";
    chk_Sticks.caption = "Spectral Lines";
    chk_HGrid.on = chk_Sticks.on = true;
    cmd_Clear1.caption = "&Clear";
    cmd_Calc.caption = "&Calculate";
    cmd_Done.caption = "&Next >";
    cmd_Cancel.caption = "< &Back";
    cmd_Print.caption = "&Print";
    cmd_Copy.caption = "C&opy";
}

FlywheelScreen::FlywheelScreen() {
    fra_Energy.caption = "Energy Under Torque Curve";
    fra_Fluct.caption = "Coef Fluctuation";
    fra_Without.caption = "Without Flywheel";
    fra_With.caption = "With Flywheel";
    txt_Fluct.text = "0.05";
    for (const std::size_t i : {0U, 1U}) lbl_Right2[i].caption = "Tmax";
    for (const std::size_t i : {2U, 3U}) lbl_Right2[i].caption = "Tmin";
    cmd_Calc.caption = "&Calculate";
    cmd_Done.caption = "&Next >";
    cmd_Cancel.caption = "< &Back";
    cmd_Print.caption = "&Print Form";
    cmd_copy.caption = "C&opy";
}

}  // namespace kervol
