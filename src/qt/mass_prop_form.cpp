// SPDX-License-Identifier: GPL-3.0-or-later
// The Dynamics screen: one table of links by properties with the units in its head, and below it the linkage
// with the numbers of its links.
#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <vector>

#include "qt/builders.h"
#include "qt/form_window.h"
#include "qt/linkage_sketch.h"
#include "screens/dynamics_screens.h"

namespace kervol {
namespace {

using namespace form;

struct Column {
    const char* head;
    const char* fields;  ///< object names are this, an underscore and the number of the link
    const char* unit;    ///< object name
    int first_link;
    const char* accessible;  ///< of a field, without its link
    const char* tip;
};

struct ColumnGroup {
    const char* title;
    std::vector<Column> columns;
};

const std::array kTable = std::to_array<ColumnGroup>({
    {"Mass Properties",
     {{"Mass of Link", "txt_Mass", "lbl_MassUnit", 2, "Mass",
       "In the unit of mass that goes with the units of force and length."},
      {"Mass Mom of Inert vs CG", "txt_Inertia", "lbl_InertiaUnit", 2, "Moment of inertia",
       "Mass moment of inertia about the link's centre of gravity."}}},
    {"CG Locations",
     {{"Dist to CG from Pivot", "txt_DistCG", "Lbl_DistUnit_1", 2, "Distance to the centre of gravity",
       "From the pivot at which the link's line of centres begins."},
      {"Angle to CG in LRCS*", "txt_AngCG", "lbl_AngUnit_1", 2, "Angle to the centre of gravity",
       "From the link's line of centres, counterclockwise; turns with the link."}}},
    {"External Forces",
     {{"Force Magnitude", "txt_MagForce", "lbl_ForceUnit_1", 3, "External force",
       "Constant over the whole motion; a negative one points the other way."},
      {"Angle of Force in GCS*", "txt_AngForce", "lbl_AngUnit_2", 3, "Angle of the external force",
       "A fixed direction: it does not turn with the link."}}},
    {"External Force Locations",
     {{"Dist to Force Point vs CG", "txt_DistP", "Lbl_DistUnit_2", 3, "Distance to the force point",
       "From the link's centre of gravity; 0 gives no moment."},
      {"Ang to Force Pt in LRCS*", "txt_AngP", "lbl_AngUnit_3", 3, "Angle to the force point",
       "From the link's line of centres, counterclockwise; turns with the link."}}},
    {"External Torques",
     {{"Torque on Link", "txt_Torque", "lbl_TorqueUnit", 3, "External torque",
       "Counterclockwise positive, beside the moment of the external force."}}},
    {"Friction",
     {{"Friction Force at Coupler Point", "txt_Frict", "lbl_ForceUnit_2", 3, "Friction",
       "Against the velocity of the coupler point, on links 3 and 5; links 4 and 6 have none."}}},
});

/// Rows of every group: captions, units, a line, then the links.
constexpr int kHeadRow = 0, kUnitRow = 1, kLineRow = 2;
constexpr auto kTallestHead = "Friction\nForce at\nCoupler Point";
/// Narrower than elsewhere, so that ten columns stand side by side; they grow with the window.
constexpr auto kNarrowestNumber = "-0.0012345";

constexpr int Row_Of_Link(int link) {
    return kLineRow + link - 1;
}

QLabel* New_Text_Label(const QString& text, Qt::Alignment alignment) {
    QLabel* label = New_Label(QString());
    label->setText(text);
    label->setAlignment(alignment);
    return label;
}

/// Rows of the same heights in all groups, so that a link is one line across the table.
QGridLayout* New_Table_Grid(QGroupBox* group, int columns) {
    QGridLayout* grid = New_Group_Grid(group);
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    grid->addWidget(line, kLineRow, 0, 1, columns);
    Hold_Row(grid, kHeadRow, QLabel(kTallestHead).sizeHint().height());
    const int height = QLineEdit().sizeHint().height();
    for (const int link : kMovingLinks) Hold_Row(grid, Row_Of_Link(link), height);
    grid->setRowStretch(Row_Of_Link(kMovingLinks.back()) + 1, 1);
    return grid;
}

QGroupBox* New_Link_Numbers() {
    static constexpr std::array kRoles = {"Crank, driven: from O2 to A.", "Coupler of Stage 1: from A to B.",
                                          "Rocker of Stage 1: from O4 to B.",
                                          "Coupler of Stage 2: from D to E (Watt), from C to D (Stephenson).",
                                          "Output link: from O6 to E (Watt) or D (Stephenson)."};
    QGroupBox* group = New_Group("Link");
    QGridLayout* grid = New_Table_Grid(group, 1);
    grid->addWidget(New_Text_Label("Units", Qt::AlignCenter), kUnitRow, 0);
    for (const int link : kMovingLinks) {
        QLabel* number = New_Label("lbl_Segment_" + QString::number(link));
        number->setAlignment(Qt::AlignCenter);
        number->setToolTip(kRoles.at(static_cast<std::size_t>(link - kMovingLinks.front())));
        grid->addWidget(number, Row_Of_Link(link), 0);
    }
    return group;
}

void Add_Column(QGridLayout* grid, int place, const Column& column) {
    QLabel* head = New_Text_Label(column.head, Qt::AlignRight | Qt::AlignBottom);
    head->setWordWrap(true);
    head->setToolTip(column.tip);
    head->setFixedHeight(QLabel(kTallestHead).sizeHint().height());
    // The fields alone give the width.
    head->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    grid->addWidget(head, kHeadRow, place);
    QLabel* unit = New_Label(column.unit);
    unit->setAlignment(Qt::AlignRight);
    grid->addWidget(unit, kUnitRow, place);
    for (const int link : kMovingLinks) {
        if (link < column.first_link) continue;
        const QString number = QString::number(link);
        QLineEdit* field =
            New_Number(column.fields + ("_" + number), column.accessible + (", link " + number), column.tip);
        field->setMinimumWidth(field->fontMetrics().horizontalAdvance(kNarrowestNumber) + 2 * kGap);
        field->setMaximumWidth(QWIDGETSIZE_MAX);
        field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        grid->addWidget(field, Row_Of_Link(link), place);
    }
    grid->setColumnStretch(place, 1);
}

QHBoxLayout* New_Table() {
    auto* table = new QHBoxLayout;
    table->setSpacing(kGap);
    table->addWidget(New_Link_Numbers());
    for (const ColumnGroup& columns : kTable) {
        const int count = static_cast<int>(columns.columns.size());
        QGroupBox* group = New_Group(columns.title);
        QGridLayout* grid = New_Table_Grid(group, count);
        for (int place = 0; place < count; ++place)
            Add_Column(grid, place, columns.columns.at(static_cast<std::size_t>(place)));
        table->addWidget(group, count);
    }
    return table;
}

/// Link by link across the table.
void Set_Tab_Order(const FormWindow& form) {
    QWidget* before = nullptr;
    for (const int link : kMovingLinks)
        for (const ColumnGroup& group : kTable)
            for (const Column& column : group.columns) {
                if (link < column.first_link) continue;
                auto* field = form.findChild<QLineEdit*>(column.fields + ("_" + QString::number(link)));
                if (before != nullptr) QWidget::setTabOrder(before, field);
                before = field;
            }
}

QHBoxLayout* New_Notes() {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addWidget(
        New_Text_Label("*  LCRS = Local Rotating Coordinate System.    GCS = Global Coordinate System",
                       Qt::AlignLeft | Qt::AlignVCenter));
    row->addStretch();
    QCheckBox* torque = New_Check("chk_Torque", "Link 6 takes its torque, step by step, from a file.");
    // Its caption ends with a blank, which is not to be read out.
    torque->setAccessibleName("Import a Torque Function File to Apply to Link 6");
    row->addWidget(torque);
    return row;
}

QHBoxLayout* New_Buttons() {
    auto* help = New_Button("cmd_Help");
    help->setToolTip("How the external force of a link is entered.");
    auto* solve = New_Button("cmd_Solve");
    solve->setToolTip("Solves for the pin forces and the driving torque at every step.");
    auto* matrix = New_Button("cmd_Matrix");
    matrix->setToolTip("Shows the force equations of the first position.");
    auto* print = New_Button("cmd_Print");
    print->setToolTip("Prints an image of this screen.");
    auto* copy = New_Button("cmd_Copy");
    copy->setToolTip("Copies an image of this screen to the clipboard.");
    return Button_Row(New_Button("cmd_Cancel"), {help, solve, matrix, print, copy}, New_Button("cmd_Done"));
}

}  // namespace

void Lay_Out_Mass_Prop(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    all->addLayout(New_Table());
    all->addLayout(New_Notes());
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    auto* inside = new QVBoxLayout(frame);
    auto* sketch = new LinkageSketch({360, 180});
    sketch->Number_Links();
    sketch->setAccessibleName("Figure of the linkage with the numbers of its links");
    inside->addWidget(sketch, 1);
    QLabel* header = New_Header();
    auto* lower = new QHBoxLayout;
    lower->setSpacing(2 * kGap);
    lower->addWidget(frame, 1);
    lower->addWidget(header);
    all->addLayout(lower, 1);
    all->addLayout(New_Buttons());
    Set_Tab_Order(form);
    form.first_focus = form.findChild<QWidget*>("txt_Mass_2");
    form.screen_share = 0.95;
    form.refresh = [sketch](const LinkageModel& model) { sketch->Show_Model(model); };
}

}  // namespace kervol
