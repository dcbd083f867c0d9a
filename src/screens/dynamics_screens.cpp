// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/dynamics_screens.h"

#include <string>

namespace kervol {

MassPropScreen::MassPropScreen() {
    for (const int link : kMovingLinks)
        lbl_Segment.at(static_cast<std::size_t>(link)).caption = std::to_string(link);
    chk_Torque.caption = "Import a Torque Function File to Apply to Link 6 ";
    cmd_Solve.caption = "&Solve";
    cmd_Matrix.caption = "Show &Matrix";
    cmd_Done.caption = "&Next >";
    cmd_Cancel.caption = "< &Back";
    cmd_Print.caption = "&Print Form";
    cmd_Copy.caption = "&Copy";
    cmd_Help.caption = "&Help";
}

MatrixScreen::MatrixScreen() {
    for (std::size_t i = 1; i < kEnd; ++i)
        lbl_Var.at(i).caption = lbl_Var.at(NumEquations + i).caption = UnknownNames.at(i);
    Label4.caption = "Note: Data shown are for the first position of linkage calculated.";
    cmd_Done.caption = "&Next >";
    cmd_Back.caption = "< &Back";
    cmd_Copy.caption = "&Copy";
    cmd_Print.caption = "&Print Form";
}

}  // namespace kervol
