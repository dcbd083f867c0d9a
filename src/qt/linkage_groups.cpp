// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/linkage_groups.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <algorithm>

#include "screens/linkage_screen.h"

namespace kervol::form {
namespace {

/// Stage 2 stands above the drive and aligns with it.
constexpr auto kWidestDriveUnit = "rad/s^2";
/// A result of the coordinates of O4: shown like the fields beside it, passed over by the Tab key.
void Set_Result(QLineEdit* field) {
    field->setReadOnly(true);
    field->setFocusPolicy(Qt::NoFocus);
    QPalette palette = field->palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    field->setPalette(palette);
}

FieldRow Stage2_Row(int field, const QString& accessible, const QString& tip) {
    FieldRow row = Link_Row(field, accessible, tip);
    row.widest_unit = kWidestDriveUnit;
    return row;
}

QGroupBox* New_Pivot(const QString& pivot, int x, int y) {
    QGroupBox* group = New_Group("Pivot " + pivot + " Coords");
    QGridLayout* grid = New_Group_Grid(group);
    int column = 0;
    for (const int field : {x, y}) {
        const QString axis = field == x ? "x" : "y";
        const FieldRow names =
            Link_Row(field, "Pivot " + pivot + ", " + axis,
                     "Coordinate " + axis + " of fixed pivot " + pivot + ", with O2 at the origin.");
        QLabel* label = New_Label(names.label);
        QLineEdit* number = New_Number(names.field, names.accessible, names.tip);
        label->setBuddy(number);
        grid->addWidget(label, 0, column++);
        grid->addWidget(number, 0, column++);
        grid->addWidget(New_Unit(names.unit, "mm"), 0, column++);
    }
    grid->setColumnStretch(2, 1);
    return group;
}

}  // namespace

FieldRow Link_Row(int field, const QString& accessible, const QString& tip) {
    const QString index = QString::number(field);
    const bool angle = std::find(kAngleFields.begin(), kAngleFields.end(), field) != kAngleFields.end();
    // The second coupler point has a label of its own.
    const QString label = field == Field_Coupler2 ? QString("lbl_Linkout2") : "lbl_Left_" + index;
    return {label, "txt_Linkout_" + index, (angle ? "lbl_Degrees_" : "lbl_Units_") + index, accessible, tip};
}

/// The groups on the right, whose captions change with chain and drive, stay as wide as with the widest of
/// them.
void Set_Right_Width(QGridLayout* grid) {
    int width = 0;
    for (const char* caption : {"Link 6 (O6-D)", "Link 6 (O6-E)", "Angle Delta4", "Delta Theta", "Omega Zero",
                                "O4D or cp3 dist", "Delta4 or Delta3"})
        width = std::max(width, QLabel(caption).sizeHint().width());
    grid->setColumnMinimumWidth(0, width);
}

QGroupBox* New_Stage1() {
    QGroupBox* group = New_Group("Stage 1");
    QGridLayout* grid = New_Group_Grid(group);
    Set_Result(
        Add_Row(grid, 0,
                Link_Row(0, "Link 1, O2 to O4",
                         "Ground link from pivot O2 to pivot O4. Follows from the coordinates of O4.")));
    Add_Row(grid, 1, Link_Row(1, "Link 2, O2 to A", "Crank, from pivot O2 to pin A."));
    Add_Row(grid, 2, Link_Row(2, "Link 3, A to B", "Coupler of Stage 1, from pin A to pin B."));
    Add_Row(grid, 3, Link_Row(3, "Link 4, O4 to B", "Rocker, from pivot O4 to pin B."));
    return group;
}

QGroupBox* New_Stage2() {
    QGroupBox* group = New_Group("Stage 2");
    QGridLayout* grid = New_Group_Grid(group);
    Set_Right_Width(grid);
    Add_Row(grid, 0,
            Stage2_Row(6, "Link 5", "From D to E in a Watt chain, from C to D in a Stephenson chain."));
    Add_Row(grid, 1, Stage2_Row(7, "Link 6", "From pivot O6 to pin E (Watt) or D (Stephenson)."));
    Add_Row(grid, 2,
            Stage2_Row(4, "Link O4-D", "Arm of link 4 from pivot O4 to pin D, which carries link 5."));
    Add_Row(grid, 3,
            Stage2_Row(5, "Angle Delta4", "At O4, from the line O4-B to the line O4-D, counterclockwise."));
    return group;
}

QGroupBox* New_Pivot_O4() {
    QGroupBox* group = New_Pivot("O4", Field_O4X, Field_O4Y);
    auto* grid = static_cast<QGridLayout*>(group->layout());
    const FieldRow names =
        Link_Row(Field_Ground, "Angle to ground",
                 "Direction from pivot O2 to pivot O4. Follows from the coordinates of O4.");
    QLineEdit* number = New_Number(names.field, names.accessible, names.tip);
    Set_Result(number);
    grid->addWidget(New_Label(names.label), 1, 0, 1, 4, Qt::AlignRight);
    grid->addWidget(number, 1, 4);
    grid->addWidget(New_Label(names.unit), 1, 5);
    return group;
}

QGroupBox* New_Pivot_O6() {
    return New_Pivot("O6", Field_O6X, Field_O6Y);
}

void Add_Choice(QGridLayout* grid, int row, const QString& title, const QString& group,
                std::array<QString, 2> accessible, std::array<QString, 2> tips) {
    auto* label = New_Label(QString());
    label->setText(title);
    grid->addWidget(label, row, 0);
    for (int i = 0; i < 2; ++i) {
        const auto n = static_cast<std::size_t>(i);
        grid->addWidget(New_Option(group + "_" + QString::number(i), accessible[n], tips[n]), row, i + 1);
    }
}

void Add_Assembly(QGridLayout* grid, int row, int stage) {
    const QString number = QString::number(stage);
    Add_Choice(grid, row, "Stage " + number, "opt_OpenCross" + number,
               {"Stage " + number + " open", "Stage " + number + " crossed"},
               {"The open assembly of the loop.", "The assembly with crossed links."});
}

void Add_Drive_Row(QGridLayout* grid, int row, int field, const QString& tip) {
    const QString index = QString::number(field);
    Add_Row(grid, row,
            {"lbl_Initial_" + index, "txt_Initial_" + index, "lbl_Unit_" + index, QString(), tip,
             kWidestDriveUnit, false});
}

}  // namespace kervol::form
