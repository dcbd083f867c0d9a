// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/data_table.h"

#include <QHeaderView>

#include "rendering/qt_text.h"

namespace kervol {

DataTable::DataTable(QWidget* parent) : QTableWidget(parent) {
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
}

void DataTable::Set_Special_Rows(int heads, int sums) {
    heads_ = heads;
    sums_ = sums;
}

void DataTable::Show(const Grid& grid) {
    if (grid == shown_) return;
    shown_ = grid;
    setColumnCount(grid.Columns());
    setRowCount(std::max(0, grid.Rows() - heads_));
    Show_Heads();
    for (int row = heads_; row < grid.Rows(); ++row) Show_Row(row);
    scrollToTop();
}

void DataTable::Show_Heads() {
    for (int column = 0; column < shown_.Columns(); ++column) {
        QStringList lines;
        for (int row = 0; row < std::min(heads_, shown_.Rows()); ++row)
            lines.append(Qt_Text(shown_(row, column)));
        auto* head = new QTableWidgetItem(lines.join('\n'));
        head->setTextAlignment(Qt::AlignCenter);
        setHorizontalHeaderItem(column, head);
    }
}

void DataTable::Show_Row(int row) {
    for (int column = 0; column < shown_.Columns(); ++column) {
        auto* cell = new QTableWidgetItem(Qt_Text(shown_(row, column)));
        cell->setTextAlignment(Qt::AlignCenter);
        if (row < heads_ + sums_) {
            QFont bold = font();
            bold.setBold(true);
            cell->setFont(bold);
            cell->setBackground(palette().alternateBase());
        }
        setItem(row - heads_, column, cell);
    }
}

}  // namespace kervol
