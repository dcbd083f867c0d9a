// SPDX-License-Identifier: GPL-3.0-or-later
// Shows a grid of texts: its first rows as the heads of the columns, the others below them, to be read and
// selected but not changed. Its columns share the width evenly.
#pragma once

#include <QTableWidget>

#include "core/grid.h"

namespace kervol {

class DataTable : public QTableWidget {
  public:
    explicit DataTable(QWidget* parent = nullptr);

    /// Rows that become heads, and rows behind them that sum up the rest.
    void Set_Special_Rows(int heads, int sums);
    void Show(const Grid& grid);

  private:
    void Show_Heads();
    void Show_Row(int row);

    Grid shown_;
    int heads_ = 0;
    int sums_ = 0;
};

}  // namespace kervol
