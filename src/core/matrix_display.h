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

/// Index 0 stays unused in all of them.
struct MatrixDisplay {
    Table<MatrixCell, 16, 16> lbl_A;  ///< coefficients, row first
    Table<MatrixCell, 16> lbl_B;      ///< right-hand side by row
    Table<std::string, 16> lbl_Var;   ///< names of the unknowns, which head rows and columns
};

}  // namespace kervol
