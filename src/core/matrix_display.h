// SPDX-License-Identifier: GPL-3.0-or-later
// What the matrix screen shows of the force equations of the first position.
#pragma once

#include <string>

#include "core/picture.h"
#include "core/table.h"

namespace kervol {

/// A number in three decimals; grey where that shows 0, else red.
struct MatrixCell {
    std::string caption;
    Colour colour{};
};

/// Index 0 stays unused in both.
struct MatrixDisplay {
    Table<MatrixCell, 16, 16> lbl_A;  ///< coefficients, row first
    Table<MatrixCell, 16> lbl_B;      ///< right-hand side by row
};

}  // namespace kervol
