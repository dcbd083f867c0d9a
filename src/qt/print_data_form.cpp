// SPDX-License-Identifier: GPL-3.0-or-later
// The screen that shows a table: the grid, and beside it the linkage and its drive.
#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "catalogue/data_grid.h"
#include "qt/builders.h"
#include "qt/data_table.h"
#include "qt/form_window.h"
#include "qt/state_column.h"

namespace kervol {
namespace {

using namespace form;

constexpr int kColumnHeads = 3;

QVBoxLayout* New_Table() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kRowGap);
    auto* title = new QHBoxLayout;
    title->setSpacing(2 * kGap);
    title->addWidget(New_Heading("lbl_Header2", 1.2));
    title->addWidget(New_Label("lbl_Header3"));
    title->addStretch();
    column->addLayout(title);
    auto* table = new DataTable;
    table->setObjectName("grd_Data");
    table->setAccessibleName("Table of the selected functions");
    table->Set_Special_Rows(kColumnHeads, GridHeadRows - kColumnHeads);
    table->setMinimumSize(520, 320);
    column->addWidget(table, 1);
    return column;
}

}  // namespace

void Lay_Out_Print_Data(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(2 * kGap);
    middle->addLayout(New_Table(), 1);
    middle->addLayout(New_State_Column());
    all->addLayout(middle, 1);
    QPushButton* print = New_Button("cmd_PrintForm");
    print->setToolTip("Prints an image of this screen.");
    QPushButton* copy = New_Button("cmd_Copy");
    copy->setToolTip("Puts an image of this screen on the clipboard.");
    all->addLayout(Button_Row(New_Button("cmd_Cancel"), {print, copy}, nullptr));
    form.first_focus = form.findChild<QWidget*>("grd_Data");
    form.screen_share = 0.85;
}

}  // namespace kervol
