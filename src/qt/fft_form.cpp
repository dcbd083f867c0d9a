// SPDX-License-Identifier: GPL-3.0-or-later
// The Fourier screen: what is transformed at the left, the four graphs of its spectrum beside it.
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "qt/builders.h"
#include "qt/chart_widget.h"
#include "qt/choice_box.h"
#include "qt/form_window.h"
#include "screens/analysis_screens.h"

namespace kervol {
namespace {

using namespace form;

struct BoxRow {
    const char* label;
    const char* box;
    const char* accessible;
    const char* tip;
    bool is_editable;
};

constexpr BoxRow kBoxes[] = {
    {"lbl_Var1", "cmb_Var1", "Function", "The function that is transformed.", false},
    {"lbl_Com1", "cmb_Com1", "Component", "Which component of a vector is transformed.", false},
    {"lbl_Harmonics", "cmb_Harmonics", "Number of harmonics",
     "How many harmonics are shown. At most half as many as there are data points.", true},
};

QGroupBox* New_Function() {
    QGroupBox* group = New_Frame("fra_Function1");
    QGridLayout* grid = New_Group_Grid(group);
    int row = 0;
    for (const BoxRow& names : kBoxes) {
        QLabel* label = New_Label(names.label);
        auto* box = new ChoiceBox(names.is_editable);
        box->setObjectName(names.box);
        box->setAccessibleName(names.accessible);
        box->setToolTip(names.tip);
        box->setMinimumContentsLength(13);
        label->setBuddy(box);
        grid->addWidget(label, row++, 0);
        grid->addWidget(box, row++, 0);
    }
    QPushButton* clear = New_Button("cmd_Clear1");
    clear->setToolTip("Nothing is chosen, and the graphs are empty.");
    Keep_Room(clear);
    grid->addWidget(clear, row, 0);
    return group;
}

QGroupBox* New_Checks(const char* name, const char* first, const char* first_tip, const char* second,
                      const char* second_tip) {
    QGroupBox* group = New_Frame(name);
    Keep_Room(group);
    QGridLayout* grid = New_Group_Grid(group);
    int row = 0;
    for (QCheckBox* box : {New_Check(first, first_tip), New_Check(second, second_tip)})
        grid->addWidget(box, row++, 0);
    return group;
}

QVBoxLayout* New_Side() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(New_Function());
    column->addWidget(New_Checks("fra_Grid", "chk_HGrid", "Lines at the marks of the values.", "chk_VGrid",
                                 "Lines at the marks of the harmonics."));
    column->addWidget(New_Checks("fra_Style", "chk_Line", "Joins the tips of the spectral lines.",
                                 "chk_Sticks", "A line from 0 for each harmonic."));
    QLabel* header = New_Header();
    column->addWidget(header);
    column->addStretch();
    return column;
}

QGridLayout* New_Graphs() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kGap);
    const char* const names[] = {"Real part by harmonic", "Imaginary part by harmonic",
                                 "Magnitude by harmonic", "Phase by harmonic"};
    for (int graph = 0; graph < static_cast<int>(FFTScreen::graphs); ++graph) {
        const QString index = QString::number(graph);
        auto* cell = new QVBoxLayout;
        cell->setSpacing(kRowGap);
        cell->addWidget(New_Heading("lbl_Graph_" + index, 1.0));
        auto* chart = new ChartWidget;
        chart->setObjectName("grf_Plot_" + index);
        chart->setAccessibleName(names[graph]);
        cell->addWidget(chart, 1);
        grid->addLayout(cell, graph / 2, graph % 2);
        grid->setRowStretch(graph / 2, 1);
        grid->setColumnStretch(graph % 2, 1);
    }
    return grid;
}

}  // namespace

void Lay_Out_FFT(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    all->addWidget(New_Label("lbl_Header2"));
    auto* middle = new QHBoxLayout;
    middle->setSpacing(2 * kGap);
    middle->addLayout(New_Side());
    middle->addLayout(New_Graphs(), 1);
    all->addLayout(middle, 1);
    QPushButton* back = New_Button("cmd_Cancel");
    back->setToolTip("Leaves the screen and drops the transform.");
    QPushButton* print = New_Button("cmd_Print");
    print->setToolTip("Prints an image of this screen.");
    QPushButton* copy = New_Button("cmd_Copy");
    copy->setToolTip("Puts an image of this screen on the clipboard.");
    QPushButton* calculate = New_Button("cmd_Calc");
    QPushButton* next = New_Button("cmd_Done");
    next->setToolTip("Leaves the screen and keeps the transform for tables and plots.");
    for (QPushButton* button : {back, print, copy, calculate, next}) Keep_Room(button);
    all->addLayout(Button_Row(back, {print, copy, calculate}, next));
    form.first_focus = form.findChild<QWidget*>("cmb_Var1");
    form.screen_share = 0.9;
}

}  // namespace kervol
