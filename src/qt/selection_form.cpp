// SPDX-License-Identifier: GPL-3.0-or-later
// The screens on which functions are chosen: above how and in which form, below one column for each function,
// with what was confirmed at its foot.
#include <QComboBox>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "qt/builders.h"
#include "qt/form_window.h"
#include "qt/pick_list.h"
#include "screens/selection_screens.h"

namespace kervol {
namespace {

using namespace form;

constexpr int kPresetRows = 6, kVariableRows = 12, kComponentRows = 4;

struct OptionTexts {
    const char* accessible;
    const char* tip;
};

/// A column of options `group`_0, ... in a frame.
QGroupBox* New_Options(QGroupBox* frame, const QString& group, std::initializer_list<OptionTexts> options) {
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(kGap, kRowGap, kGap, kGap);
    column->setSpacing(kRowGap);
    int index = 0;
    for (const OptionTexts& texts : options)
        column->addWidget(New_Option(group + "_" + QString::number(index++), texts.accessible, texts.tip));
    column->addStretch();
    return frame;
}

PickList* New_List(const QString& name, const QString& accessible, const QString& tip, int rows) {
    auto* list = new PickList;
    list->setObjectName(name);
    list->setAccessibleName(accessible);
    list->setToolTip(tip);
    list->Set_Rows(rows);
    return list;
}

QPushButton* New_Slot_Button(const QString& name, const QString& accessible, const QString& tip) {
    QPushButton* button = New_Button(name);
    button->setAccessibleName(accessible);
    button->setToolTip(tip);
    return button;
}

QGroupBox* New_Presets() {
    QGroupBox* frame = New_Frame("fra_Preset");
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(kGap, kRowGap, kGap, kGap);
    row->setSpacing(kGap);
    row->addWidget(
        New_List("cmb_Preset", "Preset formats",
                 "Click a title, or mark it and press Enter: it chooses all functions at once.", kPresetRows),
        1);
    row->addWidget(
        New_Slot_Button("cmd_ClearPreset", "Clear preset", "Takes the preset and its functions back."), 0,
        Qt::AlignTop);
    return frame;
}

QGroupBox* New_Slot(int slot) {
    const QString number = QString::number(slot + 1), index = QString::number(slot);
    QGroupBox* frame = New_Frame("fra_Function" + number);
    QGridLayout* grid = New_Group_Grid(frame);
    QLabel* variable = New_Label("lbl_Var_" + index);
    QLabel* component = New_Label("lbl_Comp_" + index);
    PickList* variables = New_List("cmb_Var" + number, "Variable of function " + number,
                                   "Click a function, or mark it and press Enter.", kVariableRows);
    PickList* components = New_List("cmb_Com" + number, "Component of function " + number,
                                    "Click a component, or mark it and press Enter.", kComponentRows);
    variables->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    components->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    variable->setBuddy(variables);
    component->setBuddy(components);
    grid->addWidget(variable, 0, 0);
    grid->addWidget(variables, 1, 0, 4, 1);
    grid->addWidget(component, 0, 1);
    grid->addWidget(components, 1, 1);
    grid->addWidget(New_Slot_Button("cmd_OK" + number, "Confirm function " + number,
                                    "Takes this function as chosen and opens the next."),
                    2, 1);
    grid->addWidget(New_Slot_Button("cmd_Clear" + number, "Clear function " + number, "Takes it back."), 3,
                    1);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    return frame;
}

/// What was confirmed; it stays readable while the slot above is disabled.
QFrame* New_Confirmed(int slot) {
    auto* panel = new QFrame;
    panel->setFrameShape(QFrame::StyledPanel);
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(kGap, kRowGap, kGap, kRowGap);
    row->setSpacing(kGap);
    QLabel* title = New_Label(QString());
    title->setText("Chosen:");
    QLabel* function = New_Label("lbl_Function_" + QString::number(slot));
    QFont bold = function->font();
    bold.setBold(true);
    function->setFont(bold);
    function->setMinimumHeight(function->fontMetrics().height() + kRowGap);
    row->addWidget(title);
    row->addWidget(function);
    row->addWidget(New_Label("lbl_Component_" + QString::number(slot)));
    row->addStretch();
    return panel;
}

QHBoxLayout* New_Slots(std::size_t functions) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    for (int slot = 0; slot < static_cast<int>(functions); ++slot) {
        auto* column = new QVBoxLayout;
        column->setSpacing(kRowGap);
        column->addWidget(New_Slot(slot), 1);
        column->addWidget(New_Confirmed(slot));
        row->addLayout(column, 1);
    }
    return row;
}

/// The row above the slots. The groups of a screen's own stand at its right.
QHBoxLayout* New_Settings(const SelectionKind& kind, std::initializer_list<QGroupBox*> own) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    if (!kind.vectors_only) {
        row->addWidget(New_Options(
            New_Group("Choose by"), "opt_PrintSet",
            {{"Choose by preset formats", "One title chooses all functions."},
             {"Choose by mix and match", "Each function and its component are chosen for themselves."}}));
        row->addWidget(New_Presets(), 1);
    }
    row->addWidget(New_Options(
        New_Frame("fra_Coord"), "opt_Coord",
        {{"Global coordinates", "Vectors in the frame of the whole linkage."},
         {"Local rotating coordinates", "Vectors in the frame that turns with the link of their point."}}));
    if (kind.has_styles)
        row->addWidget(New_Options(New_Group("Plot Style"), "opt_Plotstyle",
                                   {{"Annotated plots", "Charts with grid, labels and legend."},
                                    {"Aligned plots", "Drawn curves with axes and extremes."}}));
    for (QGroupBox* group : own) row->addWidget(group);
    if (kind.vectors_only) row->addStretch();
    return row;
}

QGroupBox* New_Rows() {
    QGroupBox* group = New_Group("Rows and Numbers");
    auto* column = new QFormLayout(group);
    column->setContentsMargins(kGap, kRowGap, kGap, kGap);
    column->setVerticalSpacing(kRowGap);
    column->addRow("Every n-th step", New_Number_Combo("cmb_Step", "Steps from row to row",
                                                       "Prints every n-th step of the sweep."));
    column->addRow("Decimals", New_Combo("cmb_Decimal", "Decimals", "Decimals of each number."));
    return group;
}

void Lay_Out_Selection(FormWindow& form, const SelectionKind& kind, std::initializer_list<QGroupBox*> own) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    all->addLayout(New_Settings(kind, own));
    all->addLayout(New_Slots(kind.functions), 1);
    all->addLayout(Button_Row(New_Button("cmd_Cancel"), {}, New_Button("cmd_Done")));
    form.first_focus = form.findChild<QWidget*>(kind.vectors_only ? "cmb_Var1" : "cmb_Preset");
    form.screen_share = kind.functions > 2 && !kind.vectors_only ? 0.8 : 0.65;
}

QGroupBox* New_Places() {
    return New_Options(New_Group("Print to"), "opt_Whereto",
                       {{"Print to screen", "Shows the table with extremes and means."},
                        {"Print to printer", "Prints the table in pages of 60 rows."},
                        {"Print to disk file", "Writes the table to a text file."}});
}

}  // namespace

void Lay_Out_Plot_Select(FormWindow& form, const SelectionKind& kind) {
    Lay_Out_Selection(form, kind, {});
}

void Lay_Out_Print_Select(FormWindow& form) {
    Lay_Out_Selection(form, kPrintSelect, {New_Places(), New_Rows()});
}

}  // namespace kervol
