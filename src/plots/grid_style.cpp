// SPDX-License-Identifier: GPL-3.0-or-later
#include "plots/grid_style.h"

namespace kervol {

void SetGridstyle(const GridStyleBoxes& boxes, std::span<Chart> charts) {
    for (Chart& chart : charts) {
        chart.look.GridStyle =
            static_cast<std::int16_t>((boxes.chk_HGrid.on ? 1 : 0) + (boxes.chk_VGrid.on ? 2 : 0));
        chart.look.GraphStyle =
            static_cast<std::int16_t>((boxes.chk_Line.on ? 2 : 0) + (boxes.chk_Sticks.on ? 4 : 0));
    }
}

}  // namespace kervol
