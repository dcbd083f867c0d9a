// SPDX-License-Identifier: GPL-3.0-or-later
// Grid and style of charts by the check boxes beside them.
#pragma once

#include <span>

#include "core/chart.h"
#include "core/controls.h"

namespace kervol {

struct GridStyleBoxes {
    CheckBox chk_HGrid, chk_VGrid;  ///< grid lines
    CheckBox chk_Line, chk_Sticks;  ///< the curve; sticks or a fill below it
};

/// `GridStyle` and `GraphStyle` of the charts.
void SetGridstyle(const GridStyleBoxes& boxes, std::span<Chart> charts);

}  // namespace kervol
