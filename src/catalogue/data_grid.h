// SPDX-License-Identifier: GPL-3.0-or-later
// The selected functions as a table on the screen, with their extremes and means.
#pragma once

#include "catalogue/slots.h"
#include "catalogue/state_labels.h"
#include "core/grid.h"
#include "core/program.h"

namespace kervol {

/// What the output screen shows.
struct DataView : StateLabels {
    Grid grd_Data;
};

/// Rows of the grid above the data: three of heads, then Min, Avg and Max.
inline constexpr int GridHeadRows = 6;

/// Fills grid, headers and labels of the output screen with the selected functions. A table shorter than the
/// last one empties the grid first. After a fault, which is reported, the grid stays as far as it was filled.
void Fill_Grid(Program& program, const SlotLabels& labels, DataView& form);

}  // namespace kervol
