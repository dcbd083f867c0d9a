// SPDX-License-Identifier: GPL-3.0-or-later
// The Matrix screen: coefficients and right-hand side of the force equations side by side, row by row.
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include "qt/builders.h"
#include "qt/form_window.h"
#include "screens/dynamics_screens.h"

namespace kervol {
namespace {

using namespace form;

/// The rows come in threes, those of one link.
constexpr int kRowsOfLink = 3;

/// As large as what it holds, if there is room; scrolls else.
class FittingArea : public QScrollArea {
  public:
    explicit FittingArea(QWidget* contents) {
        setWidget(contents);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
    }
    QSize sizeHint() const override { return widget()->sizeHint(); }
};

QLabel* New_Cell(const QString& name, const QString& place) {
    QLabel* cell = New_Label(name);
    cell->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cell->setAccessibleDescription(place);
    return cell;
}

QLabel* New_Head(int index, Qt::Alignment alignment) {
    QLabel* head = New_Label("lbl_Var_" + QString::number(index));
    head->setText("F65x");  // as wide as any, before the window takes its size
    head->setAlignment(alignment | Qt::AlignVCenter);
    QFont bold = head->font();
    bold.setBold(true);
    head->setFont(bold);
    return head;
}

QString Tip_Of_Row(int row) {
    const QString link = QString::number((row - 1) / kRowsOfLink + 2);
    switch ((row - 1) % kRowsOfLink) {
        case 0:
            return "Forces on link " + link + " along x.";
        case 1:
            return "Forces on link " + link + " along y.";
        default:
            return "Moments on link " + link + " about its centre of gravity.";
    }
}

/// Where row `row` stands: behind each link there is a gap.
int Grid_Row(int row) {
    return row + (row - 1) / kRowsOfLink;
}

/// The same rows in both groups, whatever stands in them.
QGridLayout* New_Matrix_Grid(QGroupBox* group) {
    QGridLayout* grid = New_Group_Grid(group);
    grid->setHorizontalSpacing(kGap + kRowGap);
    const int height = group->fontMetrics().lineSpacing() + kRowGap;
    Hold_Row(grid, 0, height);
    for (int row = 1; row <= NumEquations; ++row) {
        Hold_Row(grid, Grid_Row(row), height);
        grid->setRowStretch(Grid_Row(row), 1);
    }
    for (int row = kRowsOfLink; row < NumEquations; row += kRowsOfLink)
        grid->setRowMinimumHeight(Grid_Row(row) + 1, kRowGap);
    return grid;
}

QGroupBox* New_Coefficients() {
    QGroupBox* group = New_Group("A-matrix");
    QGridLayout* grid = New_Matrix_Grid(group);
    for (int i = 1; i <= NumEquations; ++i) {
        grid->addWidget(New_Head(i, Qt::AlignRight), 0, i);
        grid->setColumnStretch(i, 1);
        grid->setColumnMinimumWidth(i, group->fontMetrics().horizontalAdvance("-12.345"));
        QLabel* head = New_Head(NumEquations + i, Qt::AlignLeft);
        head->setToolTip(Tip_Of_Row(i));
        grid->addWidget(head, Grid_Row(i), 0);
    }
    for (int row = 1; row <= NumEquations; ++row)
        for (int column = 1; column <= NumEquations; ++column)
            grid->addWidget(New_Cell(QString("lbl_A%1_%2").arg(row).arg(column),
                                     QString("Row %1, column %2").arg(row).arg(column)),
                            Grid_Row(row), column);
    return group;
}

QGroupBox* New_Right_Side() {
    QGroupBox* group = New_Group("C-vector");
    QGridLayout* grid = New_Matrix_Grid(group);
    grid->setColumnMinimumWidth(0, group->fontMetrics().horizontalAdvance("-1,234.567"));
    for (int row = 1; row <= NumEquations; ++row) {
        QLabel* cell = New_Cell("lbl_B_" + QString::number(row), QString("Right-hand side, row %1").arg(row));
        cell->setToolTip(Tip_Of_Row(row));
        grid->addWidget(cell, Grid_Row(row), 0);
    }
    return group;
}

}  // namespace

void Lay_Out_Matrix(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    auto* system = new QWidget;
    auto* sides = new QHBoxLayout(system);
    sides->setContentsMargins(0, 0, 0, 0);
    sides->setSpacing(kGap);
    QGroupBox* coefficients = New_Coefficients();
    QGroupBox* right_side = New_Right_Side();
    sides->addWidget(coefficients, 1);
    sides->addWidget(right_side);
    auto* area = new FittingArea(system);
    area->setAccessibleName("Force equations");
    all->addWidget(area, 1);
    auto* words = new QHBoxLayout;
    QLabel* note = New_Label("Label4");
    note->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    words->addWidget(note);
    words->addStretch();
    words->addWidget(New_Header());
    all->addLayout(words);
    auto* print = New_Button("cmd_Print");
    print->setToolTip("Prints an image of this screen.");
    auto* copy = New_Button("cmd_Copy");
    copy->setToolTip("Copies an image of this screen to the clipboard.");
    QPushButton* next = New_Button("cmd_Done");
    all->addLayout(Button_Row(New_Button("cmd_Back"), {print, copy}, next));
    form.first_focus = next;
    // Or the window, which takes its size before it is shown, would take that of the numbers before.
    form.refresh = [coefficients, right_side, area](const LinkageModel&) {
        for (QWidget* part : std::initializer_list<QWidget*>{coefficients, right_side, area})
            part->updateGeometry();
    };
}

}  // namespace kervol
