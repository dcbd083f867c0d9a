// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/input_groups.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <algorithm>
#include <array>
#include <memory>

#include "qt/builders.h"
#include "qt/linkage_sketch.h"

namespace kervol {
namespace {

using namespace form;

/// Stage 2 stands above the drive and aligns with it.
constexpr auto kWidestDriveUnit = "rad/s^2";
/// A label of our own, known by a name that no control has.
constexpr auto kNoArmNote = "qt_no_arm_note";

FieldRow Link_Row(int field, const QString& accessible, const QString& tip) {
    const QString index = QString::number(field);
    return {"lbl_Left_" + index, "txt_Linkout_" + index, "lbl_Units_" + index, accessible, tip};
}

/// A result of the coordinates of O4: shown like the fields beside it, passed over by the Tab key.
void Set_Result(QLineEdit* field) {
    field->setReadOnly(true);
    field->setFocusPolicy(Qt::NoFocus);
    QPalette palette = field->palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    field->setPalette(palette);
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

QGroupBox* New_Coupler_Points() {
    QGroupBox* group = New_Group("Coupler points");
    QGridLayout* grid = New_Group_Grid(group);
    Add_Row(grid, 0,
            Link_Row(10, "Distance to first coupler point",
                     "From pin A to coupler point C on link 3; in a Stephenson chain C carries link 5."));
    Add_Row(grid, 1,
            Link_Row(11, "Angle to first coupler point",
                     "Delta3: at A, from the line A-B to the line A-C, counterclockwise."));
    Add_Row(grid, 2,
            Link_Row(12, "Distance to second coupler point",
                     "On link 5, from D (Watt) or C (Stephenson) to coupler point F."));
    Add_Row(grid, 3,
            Link_Row(13, "Angle to second coupler point",
                     "Delta5: on link 5, from the line D-E (Watt) or C-D (Stephenson) to coupler point F."));
    return group;
}

FieldRow Stage2_Row(int field, const QString& accessible, const QString& tip) {
    FieldRow row = Link_Row(field, accessible, tip);
    row.widest_unit = kWidestDriveUnit;
    return row;
}

/// The groups on the right, whose captions change with chain and drive, stay as wide as with the widest of
/// them.
void Set_Right_Width(QGridLayout* grid) {
    int width = 0;
    for (const char* caption :
         {"Link 6 (O6-D)", "Link 6 (O6-E)", "Angle Delta4", "Delta Theta", "Omega Zero"})
        width = std::max(width, QLabel(caption).sizeHint().width());
    grid->setColumnMinimumWidth(0, width);
}

/// The arm of a Watt chain stands last: where it is missing, a note takes its place.
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
    QLabel* note = New_Label(kNoArmNote);
    note->setText("Link 5 hangs from C on link 3.");
    QFont italic = note->font();
    italic.setItalic(true);
    note->setFont(italic);
    Keep_Room(note);
    grid->addWidget(note, 2, 0, 1, 3);
    return group;
}

void Add_Pivot(QGridLayout* grid, int row, const QString& pivot, int x, int y) {
    auto* title = New_Label(QString());
    title->setText(pivot);
    grid->addWidget(title, row, 0);
    int column = 1;
    for (const int field : {x, y}) {
        const QString axis = field == x ? "x" : "y";
        const FieldRow names =
            Link_Row(field, "Pivot " + pivot + ", " + axis,
                     "Coordinate " + axis + " of fixed pivot " + pivot + ", with O2 at the origin.");
        QLabel* label = New_Label(names.label);
        QLineEdit* number = New_Number(names.field, names.accessible, names.tip);
        label->setBuddy(number);
        QLabel* unit = New_Unit(names.unit, "mm");
        grid->addWidget(label, row, column++);
        grid->addWidget(number, row, column++);
        grid->addWidget(unit, row, column++);
    }
}

QGroupBox* New_Pivots() {
    QGroupBox* group = New_Group("Fixed pivots");
    QGridLayout* grid = New_Group_Grid(group);
    Add_Pivot(grid, 0, "O4", 15, 16);
    Add_Pivot(grid, 1, "O6", 8, 9);
    const FieldRow names = Link_Row(
        14, "Angle to ground", "Direction from pivot O2 to pivot O4. Follows from the coordinates of O4.");
    QLineEdit* number = New_Number(names.field, names.accessible, names.tip);
    Set_Result(number);
    grid->addWidget(New_Label(names.label), 2, 0, 1, 5, Qt::AlignRight);
    grid->addWidget(number, 2, 5);
    grid->addWidget(New_Label(names.unit), 2, 6);
    grid->setColumnStretch(0, 1);
    return group;
}

/// The modes, and in their place what drives the linkage where it is driven by a file.
QWidget* New_Mode_Choice() {
    auto* modes = new QWidget;
    modes->setObjectName("frm_calcmode");
    auto* column = new QVBoxLayout(modes);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kRowGap);
    column->addWidget(
        New_Option("opt_Calctype_0", "Angle steps", "Equal steps of the crank angle, constant speed."));
    column->addWidget(New_Option("opt_Calctype_1", "One position", "A single crank angle."));
    column->addWidget(New_Option("opt_Calctype_2", "Time steps",
                                 "Equal steps of time, constant acceleration of the crank."));
    for (auto* mode : modes->findChildren<QRadioButton*>()) mode->setText(mode->accessibleName());
    return modes;
}

QGroupBox* New_Drive() {
    static constexpr std::array kTips = {
        "Start of the crank's angle range, start of the time range, or the one crank angle.",
        "End of the crank's angle range or of the time range.",
        "Step of the crank angle or of time; at most 1024 steps.",
        "Angular velocity of crank O2-A; negative turns clockwise. At time 0 in a time range.",
        "Constant angular acceleration of crank O2-A.",
        "Angle of crank O2-A at time 0.",
    };
    QGroupBox* group = New_Group("Drive");
    QGridLayout* grid = New_Group_Grid(group);
    Set_Right_Width(grid);
    QLabel* driven = New_Label("lbl_camdriven");
    driven->setWordWrap(true);
    driven->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    grid->addWidget(New_Mode_Choice(), 0, 0, 1, 3);
    grid->addWidget(driven, 1, 0, 1, 3);
    driven->hide();
    for (int i = 0; i < static_cast<int>(kTips.size()); ++i) {
        const QString index = QString::number(i);
        Add_Row(grid, i + 2,
                {"lbl_Initial_" + index, "txt_Initial_" + index, "lbl_Unit_" + index, QString(),
                 kTips[static_cast<std::size_t>(i)], kWidestDriveUnit, false});
    }
    grid->setRowStretch(static_cast<int>(kTips.size()) + 2, 1);
    // As high as with all fields: below it nothing moves when the mode changes.
    group->setMinimumHeight(group->sizeHint().height());
    return group;
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

QGroupBox* New_Chain() {
    QGroupBox* group = New_Group("Chain and assembly");
    QGridLayout* grid = New_Group_Grid(group);
    Add_Choice(grid, 0, "Chain", "opt_SteveWatt", {"Watt chain", "Stephenson chain"},
               {"Link 5 hangs from point D of link 4.", "Link 5 hangs from coupler point C of link 3."});
    const std::array<QString, 2> tips = {"The open assembly of the loop.",
                                         "The assembly with crossed links."};
    Add_Choice(grid, 1, "Stage 1", "opt_OpenCross1", {"Stage 1 open", "Stage 1 crossed"}, tips);
    Add_Choice(grid, 3, "Stage 2", "opt_OpenCross2", {"Stage 2 open", "Stage 2 crossed"}, tips);
    for (int stage = 0; stage < 2; ++stage) {
        QLabel* kind = New_Label("Pnl_Grashof_" + QString::number(stage));
        QFont italic = kind->font();
        italic.setItalic(true);
        kind->setFont(italic);
        Keep_Room(kind);
        grid->addWidget(kind, 2 + 2 * stage, 0, 1, 3);
    }
    grid->setColumnStretch(2, 1);
    return group;
}

QLabel* New_Header() {
    QLabel* header = New_Label("lbl_Header");
    header->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    // With the line that a file adds.
    header->setFixedHeight(5 * header->fontMetrics().lineSpacing() + kRowGap);
    return header;
}

/// The directions and the figure that they speak of, which takes the room left over.
QHBoxLayout* New_Nomenclature(LinkageSketch* sketch) {
    QLabel* directions = New_Label("lbl_directions");
    directions->setWordWrap(true);
    directions->setFixedWidth(directions->fontMetrics().horizontalAdvance("Mechanon for definitions of"));
    directions->setAlignment(Qt::AlignVCenter | Qt::AlignLeft);
    sketch->setAccessibleName("Names of the points");
    sketch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto* row = new QHBoxLayout;
    row->addWidget(directions);
    row->addWidget(sketch, 1);
    return row;
}

QVBoxLayout* New_Side(std::initializer_list<QWidget*> widgets) {
    auto* side = new QVBoxLayout;
    side->setSpacing(kGap);
    for (QWidget* widget : widgets) side->addWidget(widget);
    side->addStretch();
    return side;
}

}  // namespace

InputGroups New_Input_Groups() {
    QGroupBox* chain = New_Chain();
    QGroupBox* stage2 = New_Stage2();
    auto* sides = new QHBoxLayout;
    sides->setSpacing(kGap);
    sides->addLayout(New_Side({chain, New_Stage1(), New_Coupler_Points(), New_Pivots()}), 5);
    sides->addLayout(New_Side({stage2, New_Drive(), New_Header()}), 4);
    auto* sketch = new LinkageSketch({240, 92});
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(New_Heading("lbl_Chain", 1.3));
    column->addLayout(sides);
    column->addLayout(New_Nomenclature(sketch), 1);

    auto* note = stage2->findChild<QLabel*>(kNoArmNote);
    const auto show = [sketch, note, shown = std::make_shared<std::string>()](const std::string& name) {
        if (name == *shown) return;
        *shown = name;
        note->setVisible(name == "S");
        sketch->Show_Position(Nomenclature(name));
        sketch->setAccessibleDescription(name == "W" ? "A Watt chain" : "A Stephenson chain");
    };
    return {column, chain->findChild<QRadioButton*>("opt_SteveWatt_0"), show};
}

}  // namespace kervol
