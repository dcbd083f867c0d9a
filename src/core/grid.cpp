// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/grid.h"

#include <algorithm>
#include <utility>

#include "core/fault.h"

namespace kervol {

void Grid::Resize(int rows, int columns) {
    if (rows < 0 || columns < 0) Raise(fault::InvalidCall);
    Grid resized;
    resized.rows_ = rows;
    resized.columns_ = columns;
    resized.texts_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
    for (int row = 0; row < std::min(rows, rows_); ++row)
        for (int column = 0; column < std::min(columns, columns_); ++column)
            resized(row, column) = std::move((*this)(row, column));
    texts_ = std::move(resized.texts_);
    rows_ = rows;
    columns_ = columns;
}

std::string& Grid::operator()(int row, int column) {
    return texts_[Place(row, column)];
}

const std::string& Grid::operator()(int row, int column) const {
    return texts_[Place(row, column)];
}

std::size_t Grid::Place(int row, int column) const {
    if (row < 0 || row >= rows_ || column < 0 || column >= columns_) Raise(fault::Subscript);
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
}

void Clear_Grid(Grid& grid) {
    for (int row = 0; row < grid.Rows(); ++row)
        for (int column = 0; column < grid.Columns(); ++column) grid(row, column).clear();
}

}  // namespace kervol
