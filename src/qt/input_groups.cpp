// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/input_groups.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <array>
#include <memory>

#include "qt/linkage_groups.h"
#include "qt/linkage_sketch.h"

namespace kervol {
namespace {

using namespace form;

/// A label of our own, known by a name that no control has.
constexpr auto kNoArmNote = "qt_no_arm_note";

/// Where the arm of a Watt chain is missing, a note takes its place.
QGroupBox* New_Stage2_With_Note() {
    QGroupBox* group = New_Stage2();
    QLabel* note = New_Label(kNoArmNote);
    note->setText("Link 5 hangs from C on link 3.");
    QFont italic = note->font();
    italic.setItalic(true);
    note->setFont(italic);
    Keep_Room(note);
    static_cast<QGridLayout*>(group->layout())->addWidget(note, 2, 0, 1, 3);
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

/// The modes, and in their place what drives the linkage where it is driven by a file.
QWidget* New_Mode_Choice() {
    auto* modes = new QWidget;
    modes->setObjectName("frm_calcmode");
    auto* column = new QVBoxLayout(modes);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kRowGap);
    column->addWidget(New_Option("opt_Calctype_1", "One position", "A single crank angle."));
    column->addWidget(New_Option("opt_Calctype_2", "Time steps",
                                 "Equal steps of time, constant acceleration of the crank."));
    column->addWidget(
        New_Option("opt_Calctype_0", "Angle steps", "Equal steps of the crank angle, constant speed."));
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
    QGroupBox* group = New_Group("Initial Conditions");
    QGridLayout* grid = New_Group_Grid(group);
    Set_Right_Width(grid);
    QLabel* driven = New_Label("lbl_camdriven");
    driven->setWordWrap(true);
    driven->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    grid->addWidget(New_Mode_Choice(), 0, 0, 1, 3);
    grid->addWidget(driven, 1, 0, 1, 3);
    driven->hide();
    for (int i = 0; i < static_cast<int>(kTips.size()); ++i)
        Add_Drive_Row(grid, i + 2, i, kTips[static_cast<std::size_t>(i)]);
    grid->setRowStretch(static_cast<int>(kTips.size()) + 2, 1);
    // As high as with all fields: below it nothing moves when the mode changes.
    group->setMinimumHeight(group->sizeHint().height());
    return group;
}

QGroupBox* New_Chain() {
    QGroupBox* group = New_Group("Chain and assembly");
    QGridLayout* grid = New_Group_Grid(group);
    Add_Choice(grid, 0, "Chain", "opt_SteveWatt", {"Watt chain", "Stephenson chain"},
               {"Link 5 hangs from point D of link 4.", "Link 5 hangs from coupler point C of link 3."});
    Add_Assembly(grid, 1, 1);
    Add_Assembly(grid, 3, 2);
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

QLabel* New_High_Header() {
    QLabel* header = New_Header();
    // With the line that a file adds.
    header->setFixedHeight(5 * header->fontMetrics().lineSpacing() + kRowGap);
    return header;
}

QLabel* New_Directions() {
    QLabel* directions = New_Label("lbl_directions");
    directions->setWordWrap(true);
    directions->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return directions;
}

LinkageSketch* New_Nomenclature_Figure() {
    auto* sketch = new LinkageSketch({240, 92});
    sketch->setAccessibleName("Names of the points");
    sketch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return sketch;
}

QVBoxLayout* New_Side(std::initializer_list<QWidget*> widgets) {
    auto* side = new QVBoxLayout;
    side->setSpacing(kGap);
    for (QWidget* widget : widgets) side->addWidget(widget);
    return side;
}

}  // namespace

InputGroups New_Input_Groups() {
    QGroupBox* chain = New_Chain();
    QGroupBox* stage2 = New_Stage2_With_Note();
    QVBoxLayout* left = New_Side(
        {chain, New_Stage1(), New_Coupler_Points(), New_Pivot_O4(), New_Pivot_O6(), New_Directions()});
    left->addStretch();
    LinkageSketch* sketch = New_Nomenclature_Figure();
    QVBoxLayout* right = New_Side({stage2, New_Drive(), New_High_Header()});
    right->addWidget(sketch, 1);
    auto* sides = new QHBoxLayout;
    sides->setSpacing(kGap);
    sides->addLayout(left, 5);
    sides->addLayout(right, 4);
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(New_Heading("lbl_Chain", 1.3));
    column->addLayout(sides, 1);

    auto* note = stage2->findChild<QLabel*>(kNoArmNote);
    const auto show = [sketch, note, shown = std::make_shared<std::string>()](const std::string& name) {
        if (name == *shown) return;
        *shown = name;
        note->setVisible(name == "S");
        sketch->Show_Position(Nomenclature(name));
    };
    return {column, chain->findChild<QRadioButton*>("opt_SteveWatt_0"), show};
}

}  // namespace kervol
