// SPDX-License-Identifier: GPL-3.0-or-later
// The selected functions in stacked pictures that the program draws line by line.
#pragma once

#include <array>
#include <cstdint>

#include "catalogue/slots.h"
#include "catalogue/state_labels.h"
#include "core/program.h"

namespace kervol {

/// What a screen of stacked plots shows; entries beyond the number of its plots are not there.
struct OwnPlotView : StateLabels {
    static constexpr std::size_t Plots = 4;

    std::array<Picture*, Plots> pct_Plot{};  ///< set before the screen opens
    std::array<Label, Plots> lbl_LeftTitle, lbl_Comp, lbl_PlotUnits;
    /// Below the picture, from the left edge of the data to the right one.
    std::array<Label, Plots> lbl_Xmin, lbl_X1, lbl_X2, lbl_X3, lbl_Xmax;
    std::array<Label, Plots> lbl_Ymax, lbl_Ymin;          ///< at the ends of its y axis
    std::array<Label, Plots> lbl_Min, lbl_Max, lbl_Peak;  ///< extremes of the function, and their difference
    std::array<Label, Plots> lbl_BottomTitle;
};

/// Titles below `count` pictures, and the labels beside them. Mode 1 leaves titles and drive.
void MyPlotSetup(Program& program, OwnPlotView& form, std::int16_t count);

/// Draws the first `count` functions, one a picture, and writes the labels around them. A picture that
/// refuses its window stays blank; it gets its labels, and the others are drawn.
void MyPlot(Program& program, OwnPlotView& form, const SlotLabels& labels, std::int16_t count);

}  // namespace kervol
