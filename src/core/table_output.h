// SPDX-License-Identifier: GPL-3.0-or-later
// Settings and header texts of tables on the screen, on paper and in files. How many steps lie between two
// rows stands in the model, since files keep it.
#pragma once

#include <cstdint>
#include <string>

namespace kervol {

struct TableOutput {
    std::int16_t DecimalPlaces = 3;  ///< code of `FNRoundStr`
    std::int16_t OutputDest{};       ///< 0 screen, 1 printer, 2 file

    // Written by `Make_Headers`.
    std::string HeaderLine1;  ///< title of the table
    std::string HeaderLine2;  ///< function of a Fourier transform, else empty
    std::string HeaderLine3;  ///< what the first column is
    std::string HeaderLine4;  ///< the same, second line
    std::string HeaderLine5;  ///< unit of the first column

    // Size of the grid, kept from one filling to the next; written by `Fill_Grid`.
    std::int16_t GridRows{};
    std::int16_t GridCols{};
};

}  // namespace kervol
