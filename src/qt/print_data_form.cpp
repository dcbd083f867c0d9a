// SPDX-License-Identifier: GPL-3.0-or-later
// The screen that shows a table: the grid, and beside it the linkage and its drive.
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "catalogue/data_grid.h"
#include "qt/builders.h"
#include "qt/data_table.h"
#include "qt/form_window.h"

namespace kervol {
namespace {

using namespace form;

constexpr int kColumnHeads = 3;

QLabel* New_Number_Label(const QString& name) {
    QLabel* label = New_Label(name);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

QString Indexed(const char* name, int index) {
    return QString(name) + "_" + QString::number(index);
}

/// The pivot's two coordinates stand one below the other.
QGroupBox* New_Linkage() {
    QGroupBox* group = New_Group("Linkage Data");
    QGridLayout* grid = New_Group_Grid(group);
    grid->setColumnStretch(0, 1);
    for (int i = 0; i < 10; ++i) {
        if (i < 9) grid->addWidget(New_Label(Indexed("lbl_Left", i)), i, 0);
        grid->addWidget(New_Number_Label(Indexed("lbl_Links", i)), i, 1);
    }
    return group;
}

QGroupBox* New_Drive() {
    QGroupBox* group = New_Group({});
    group->setObjectName("frm_initial");
    QGridLayout* grid = New_Group_Grid(group);
    grid->setColumnStretch(0, 1);
    for (int i = 0; i < 6; ++i) {
        grid->addWidget(New_Label(Indexed("lbl_Initial", i)), i, 0);
        grid->addWidget(New_Number_Label(Indexed("lbl_Linkout2", i)), i, 1);
        grid->addWidget(New_Unit(Indexed("lbl_Unit", i), "rad/s/s"), i, 2);
    }
    return group;
}

QGroupBox* New_Coordinates() {
    QGroupBox* group = New_Group("Coord System");
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(kGap, kRowGap, kGap, kGap);
    column->addWidget(New_Label("lbl_Coord"));
    return group;
}

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

QVBoxLayout* New_State() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    QLabel* header = New_Label("lbl_Header");
    header->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    for (QWidget* part :
         std::initializer_list<QWidget*>{New_Linkage(), New_Drive(), New_Coordinates(), header})
        column->addWidget(part);
    column->addStretch();
    return column;
}

}  // namespace

void Lay_Out_Print_Data(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(2 * kGap);
    middle->addLayout(New_Table(), 1);
    middle->addLayout(New_State());
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
