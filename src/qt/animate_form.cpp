// SPDX-License-Identifier: GPL-3.0-or-later
// The Animation screen: the linkage's fields at the left, the picture in the middle, at the right how it is
// shown.
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "qt/form_window.h"
#include "qt/linkage_groups.h"
#include "qt/picture_column.h"

namespace kervol {
namespace {

using namespace form;

QGroupBox* New_Assembly() {
    QGroupBox* group = New_Group("Assembly");
    QGridLayout* grid = New_Group_Grid(group);
    Add_Assembly(grid, 0, 1);
    Add_Assembly(grid, 1, 2);
    grid->setColumnStretch(2, 1);
    return group;
}

QGroupBox* New_Drive() {
    QGroupBox* group = New_Group("Initial Conditions");
    QGridLayout* grid = New_Group_Grid(group);
    Set_Right_Width(grid);
    QLabel* driven = New_Label("lbl_camdriven");
    driven->setWordWrap(true);
    grid->addWidget(driven, 0, 0, 1, 3);
    driven->hide();
    Add_Drive_Row(grid, 1, 0, "Start of the crank's angle range or of the time range.");
    Add_Drive_Row(grid, 2, 1, "End of the crank's angle range or of the time range.");
    Add_Drive_Row(grid, 3, 2, "Step of the crank angle or of time; at most 1024 steps.");
    return group;
}

/// The value of the step on cyan, whatever the palette.
QGroupBox* New_Position() {
    QGroupBox* group = New_Group("Position");
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(kGap, kRowGap, kGap, kGap);
    QHBoxLayout* value = New_Step_Value();
    value->insertStretch(0);
    value->addStretch();
    column->addLayout(value);
    auto* number = group->findChild<QLabel*>("lbl_StepNumber");
    QPalette palette = number->palette();
    palette.setColor(QPalette::Window, Qt::cyan);
    palette.setColor(QPalette::WindowText, Qt::black);
    number->setPalette(palette);
    number->setAutoFillBackground(true);
    return group;
}

QGroupBox* New_Speed() {
    QGroupBox* group = New_Group("Animation Speed");
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(kGap, kRowGap, kGap, kGap);
    column->addWidget(
        New_Bar("hsc_speed", "Animation speed", "The further to the right, the faster the run."));
    QLabel* ends = New_Label(QString());
    ends->setText("<< Slow    Fast >>");
    ends->setAlignment(Qt::AlignCenter);
    column->addWidget(ends);
    return group;
}

QGroupBox* New_Range() {
    QGroupBox* group = New_Group("Range");
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(kGap, kRowGap, kGap, kGap);
    column->addWidget(New_Number_Combo("cmb_wait", "Range of the speed",
                                       "How long each position stands, in multiples: more is slower."));
    return group;
}

QGroupBox* New_Cycles() {
    QGroupBox* group = New_Group("Cycles");
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(kGap, kRowGap, kGap, kGap);
    QLineEdit* cycles = New_Number("txt_Cycles", "Cycles", "How often a run goes through all positions.");
    cycles->setMinimumWidth(0);
    cycles->setMaximumWidth(QWIDGETSIZE_MAX);
    column->addWidget(cycles);
    return group;
}

QGroupBox* New_Checks(const QString& title, std::initializer_list<QCheckBox*> checks) {
    QGroupBox* group = New_Group(title);
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(kGap, kRowGap, kGap, kGap);
    column->setSpacing(kRowGap);
    for (QCheckBox* check : checks) column->addWidget(check);
    return group;
}

QVBoxLayout* New_Column(std::initializer_list<QGroupBox*> groups) {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    for (QGroupBox* group : groups) column->addWidget(group);
    column->addStretch();
    return column;
}

QVBoxLayout* New_Settings() {
    auto* column = New_Column(
        {New_Position(), New_Speed(), New_Range(), New_Cycles(),
         New_Checks(
             "Animation Settings",
             {New_Check("chk_autoscale", "Fits the picture to the whole motion each time it is drawn."),
              New_Check("chk_Trace", "A run leaves every position standing.")}),
         New_Checks("Show Curves",
                    {New_Check("chk_Showlinks", "Draws the links themselves."),
                     New_Check("chk_Coupler", "Draws the paths of both coupler points."),
                     New_Check("chk_Points", "Marks both coupler points at each position.")})});
    QLabel* header = New_Header();
    column->addWidget(header);
    return column;
}

QHBoxLayout* New_Buttons() {
    auto* recalc = New_Button("cmd_Recalc");
    recalc->setToolTip("Calculates every step anew after a change of the linkage.");
    auto* run = New_Button("cmd_Run");
    run->setToolTip("Runs through all positions. Press again, or Escape, to stop.");
    auto* step = New_Button("cmd_Step");
    step->setToolTip("Draws the next position beside those that stand.");
    auto* reset = New_Button("cmd_Reset");
    reset->setToolTip("Goes back to the first position.");
    auto* print = New_Button("cmd_Copy");
    print->setToolTip("Prints an image of this screen.");
    return Button_Row(New_Button("cmd_Back"), {recalc, run, step, reset, print}, New_Button("cmd_Done"));
}

}  // namespace

void Lay_Out_Animate(FormWindow& form, PictureList& picture) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(2 * kGap);
    middle->addLayout(New_Column(
        {New_Stage1(), New_Stage2(), New_Pivot_O4(), New_Pivot_O6(), New_Assembly(), New_Drive()}));
    middle->addLayout(New_Picture_Column(picture, nullptr), 1);
    middle->addLayout(New_Settings());
    all->addLayout(middle, 1);
    all->addLayout(New_Buttons());
    form.first_focus = form.findChild<QWidget*>("cmd_Run");
    form.screen_share = 0.95;
    form.refresh = [&form](const LinkageModel&) { Describe_Picture(form); };
}

}  // namespace kervol
