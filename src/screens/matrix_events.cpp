// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/matrix_events.h"

#include "screens/printing.h"
#include "screens/wiring.h"

namespace kervol {
namespace {

void Show_Cell(Label& label, const MatrixCell& cell) {
    label.caption = cell.caption;
    label.colour = cell.colour;
}

}  // namespace

void Matrix_Form_Activate(Screens& screens) {
    const MatrixDisplay& matrix = screens.program.matrix;
    MatrixScreen& screen = screens.frm_Matrix;
    for (int row = 1; row <= NumEquations; ++row) {
        const auto r = static_cast<std::size_t>(row);
        for (int column = 1; column <= NumEquations; ++column)
            Show_Cell(screen.lbl_A.at(r).at(static_cast<std::size_t>(column)), matrix.lbl_A(row, column));
        Show_Cell(screen.lbl_B.at(r), matrix.lbl_B(row));
    }
    screen.cmd_Print.enabled = screen.cmd_Copy.enabled = true;
}

void Wire_Matrix_Screen(Screens& screens) {
    MatrixScreen& screen = screens.frm_Matrix;
    const Wiring on(screens);
    const auto hide = [](Screens& all) { all.program.port.Hide_Screen(ScreenId::frm_Matrix); };
    on(screen.cmd_Done.click, "frm_Matrix.cmd_Done_Click", hide);
    on(screen.cmd_Back.click, "frm_Matrix.cmd_Back_Click", hide);
    on(screen.cmd_Print.click, "frm_Plot1.PrintForm",
       [](Screens& all) { Print_Form(all.program.port, ScreenId::frm_Matrix); });
    on(screen.cmd_Copy.click, "frm_Matrix.cmd_Copy_Click",
       [](Screens& all) { Copy_Form(all.program.port, ScreenId::frm_Matrix); });
}

}  // namespace kervol
