// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/state_column.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "qt/builders.h"

namespace kervol::form {
namespace {

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
    QGroupBox* group = New_Frame("frm_initial");
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

}  // namespace

QVBoxLayout* New_State_Column() {
    auto* column = new QVBoxLayout;
    // With the options of a chart above them the parts just fit a screen of 768 lines.
    column->setSpacing(kRowGap);
    QLabel* header = New_Header();
    for (QWidget* part :
         std::initializer_list<QWidget*>{New_Linkage(), New_Drive(), New_Coordinates(), header})
        column->addWidget(part);
    column->addStretch();
    return column;
}

}  // namespace kervol::form
