// SPDX-License-Identifier: GPL-3.0-or-later
// A grid of texts, as a toolkit shows it.
#pragma once

#include <string>
#include <vector>

namespace kervol {

class Grid {
  public:
    int width = 0;         ///< of the whole grid on the screen, set by what shows it
    int column_width = 0;  ///< of each column, in the same unit; its texts are centred

    bool operator==(const Grid&) const = default;

    int Rows() const { return rows_; }
    int Columns() const { return columns_; }

    /// Cells that stay within keep their texts, new ones are empty. Fault 5 for a negative number.
    void Resize(int rows, int columns);
    /// Text of a cell, from 0; fault 9 outside.
    std::string& operator()(int row, int column);
    const std::string& operator()(int row, int column) const;

  private:
    std::size_t Place(int row, int column) const;

    int rows_ = 0;
    int columns_ = 0;
    std::vector<std::string> texts_;  ///< row by row
};

/// Empties every cell; the size stays.
void Clear_Grid(Grid& grid);

}  // namespace kervol
