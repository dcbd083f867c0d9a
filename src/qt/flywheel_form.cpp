// SPDX-License-Identifier: GPL-3.0-or-later
// The flywheel screen: the coefficient, the torques and the energies at the left, the crank torque without
// and with the flywheel beside them.
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "qt/builders.h"
#include "qt/chart_widget.h"
#include "qt/form_window.h"

namespace kervol {
namespace {

using namespace form;

/// Lines of the energies of ten pulses.
constexpr int kPictureLines = 22;

QString Indexed(const char* name, int index) {
    return QString(name) + "_" + QString::number(index);
}

QGroupBox* New_Coefficient() {
    QGroupBox* group = New_Frame("fra_Fluct");
    QGridLayout* grid = New_Group_Grid(group);
    QLineEdit* field = New_Number("txt_Fluct", "Coefficient of fluctuation",
                                  "Which share of the deviation from the mean torque the flywheel leaves: "
                                  "above 0, at most 1.");
    grid->addWidget(field, 0, 0, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);
    return group;
}

/// `first` and `second` are the indices of maximum and minimum.
QGroupBox* New_Torques(const QString& name, int first, int second) {
    QGroupBox* group = New_Frame(name);
    QGridLayout* grid = New_Group_Grid(group);
    int row = 0;
    for (const int index : {first, second}) {
        QLabel* number = New_Label(Indexed("lbl_Torque", index));
        number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        number->setMinimumWidth(number->fontMetrics().horizontalAdvance("-123456.78"));
        grid->addWidget(New_Label(Indexed("lbl_Right2", index)), row, 0);
        grid->addWidget(number, row, 1);
        grid->addWidget(New_Unit(Indexed("lbl_Unit", index), "dyne-cm"), row++, 2);
    }
    grid->setColumnStretch(1, 1);
    return group;
}

QGroupBox* New_Energies() {
    QGroupBox* group = New_Frame("fra_Energy");
    QGridLayout* grid = New_Group_Grid(group);
    QLabel* text = New_Label("pct_Pict1");
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    text->setAccessibleName("Energies of the pulses of the crank torque");
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setMinimumSize(text->fontMetrics().horizontalAdvance(QString(30, '0')),
                         kPictureLines * text->fontMetrics().lineSpacing());
    grid->addWidget(text, 0, 0);
    return group;
}

QVBoxLayout* New_Side() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(New_Coefficient());
    column->addWidget(New_Torques("fra_Without", 0, 2));
    column->addWidget(New_Torques("fra_With", 1, 3));
    column->addWidget(New_Energies());
    QLabel* header = New_Header();
    column->addWidget(header);
    column->addStretch();
    return column;
}

QVBoxLayout* New_Graphs() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    const char* const names[] = {"Crank torque without flywheel", "Crank torque with flywheel"};
    for (int graph = 0; graph < 2; ++graph) {
        auto* chart = new ChartWidget;
        chart->setObjectName(Indexed("grf_Plot", graph));
        chart->setAccessibleName(names[graph]);
        Keep_Room(chart);
        column->addWidget(chart, 1);
    }
    return column;
}

}  // namespace

void Lay_Out_Flywheel(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(2 * kGap);
    middle->addLayout(New_Side());
    middle->addLayout(New_Graphs(), 1);
    all->addLayout(middle, 1);
    QPushButton* print = New_Button("cmd_Print");
    print->setToolTip("Prints an image of this screen.");
    QPushButton* copy = New_Button("cmd_copy");
    copy->setToolTip("Puts an image of this screen on the clipboard.");
    QPushButton* next = New_Button("cmd_Done");
    next->setToolTip("The torque with the flywheel is offered for tables and plots.");
    all->addLayout(Button_Row(New_Button("cmd_Cancel"), {print, copy, New_Button("cmd_Calc")}, next));
    form.first_focus = form.findChild<QWidget*>("cmd_Calc");
    form.screen_share = 0.85;
}

}  // namespace kervol
