// SPDX-License-Identifier: GPL-3.0-or-later
// Plots as pages, for files: what stands on a plot screen without its controls.
#pragma once

#include <span>
#include <string>

#include "core/program.h"
#include "core/sheet.h"
#include "plots/chart_plots.h"
#include "plots/own_plots.h"
#include "plots/polar_plots.h"

namespace kervol {

/// Width and height of a page.
struct PageSize {
    double width, height;
};

/// The first `count` charts: one, two over each other, or four in a square.
Sheet Chart_Sheet(const ChartView& form, std::size_t count, PageSize size);

/// Plots with the labels around them, placed likewise; `plots` of them stood on the screen, which decides
/// where their labels stand, and the pictures are those of the plots from `first` on.
Sheet Own_Plot_Sheet(const OwnPlotView& form, std::int16_t plots, std::size_t first,
                     std::span<const PictureList* const> pictures, PageSize size);

Sheet Polar_Plot_Sheet(const PolarPlotView& form, const PictureList& picture, PageSize size);

/// The first `count` selected functions as a text that spreadsheets take: a line of titles, then one for each
/// step or harmonic. Columns are parted by tabs; numbers read back to the same single. `SelCurrent` is left
/// as it was: tables turn local frames by it.
std::string Plot_Values(Program& program, const SlotLabels& labels, std::int16_t count);
/// The tips of the polar plot that was drawn last, in the same form: x and y.
std::string Polar_Plot_Values(const Program& program);

}  // namespace kervol
