// SPDX-License-Identifier: GPL-3.0-or-later
// The selected functions on charts.
#pragma once

#include <array>
#include <cstdint>

#include "catalogue/slots.h"
#include "catalogue/state_labels.h"
#include "core/chart.h"
#include "core/program.h"
#include "plots/grid_style.h"

namespace kervol {

inline constexpr std::size_t MaxPlots = 4;

/// What a screen of charts shows. Charts beyond the number of its kind are not there.
struct ChartView : StateLabels, GridStyleBoxes {
    std::array<Chart, MaxPlots> grf_Plot;
};

/// The style of texts that all charts of the program have.
void Put_Chart_Fonts(Chart& chart);

/// Prepares `count` charts: grid and style, ticks, numbers of sets and points, titles, fonts; the labels
/// beside them. Mode 1 leaves the spacing of ticks and labels, the title of the abscissa and the drive's
/// labels; a polar plot (`PlotTypePick` 4) leaves the number of sets.
void Plot_Setup(Program& program, ChartView& form, std::int16_t count);

/// `SelCount` functions on the one chart, each with the next line pattern. Deliberate: over all steps, also
/// where a transform has fewer harmonics.
void MultiPlot(Program& program, ChartView& form, const SlotLabels& labels);

/// The first `count` functions, one a chart.
void Plot(Program& program, ChartView& form, const SlotLabels& labels, std::int16_t count);

/// The steps of the first function as points of a polar chart, which all stand at the origin.
void PolarPlot(Program& program, ChartView& form, const SlotLabels& labels);

}  // namespace kervol
