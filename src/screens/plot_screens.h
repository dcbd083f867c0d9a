// SPDX-License-Identifier: GPL-3.0-or-later
// The screens that show plots, as records of their controls: charts, stacked plots of our own drawing, and a
// polar plot that can be stepped through.
#pragma once

#include <array>
#include <cstdint>

#include "core/controls.h"
#include "core/port.h"
#include "plots/chart_plots.h"
#include "plots/own_plots.h"
#include "plots/polar_plots.h"

namespace kervol {

/// What tells one plot screen from another of its kind.
struct PlotKind {
    ScreenId screen;
    std::int16_t plots;        ///< `PlotCount` while it is open
    const char* printing;      ///< name under which a failed print is reported
    bool plain_names = false;  ///< its buttons are `cmd_Print` and `cmd_Done`
};

inline constexpr PlotKind kPlot1 = {ScreenId::frm_Plot1, 1, "frm_Plot1.PrintForm"};
inline constexpr PlotKind kPlot2 = {ScreenId::frm_Plot2, 2, "frm_Plot2.PrintForm"};
inline constexpr PlotKind kPlot3 = {ScreenId::frm_Plot3, 4, "frm_Plot3.PrintForm", true};
inline constexpr PlotKind kPlot4 = {ScreenId::frm_Plot4, 1, "frm_Plot4.PrintForm"};
// Deliberate: two of the screens that are drawn by the program itself report by the names of charts.
inline constexpr PlotKind kMyplot2 = {ScreenId::frm_Myplot2, 2, "frm_Plot2.PrintForm"};
inline constexpr PlotKind kMyPlot3 = {ScreenId::frm_MyPlot3, 4, "frm_MyPlot3.PrintForm"};
inline constexpr PlotKind kMyPlot4 = {ScreenId::frm_MyPlot4, 1, "frm_Plot4.PrintForm"};

/// What all plot screens share.
struct PlotButtons {
    explicit PlotButtons(const PlotKind& the_kind);

    PlotKind kind;
    Button cmd_Replot, cmd_PlotPrint, cmd_Copy, cmd_PlotDone;
};

struct ChartScreen : ChartView, PlotButtons {
    explicit ChartScreen(const PlotKind& the_kind);

    std::array<OptionButton, 2> opt_Back;  ///< background of the charts
    Event click;                           ///< of the screen itself, beside its controls
};

struct OwnPlotScreen : OwnPlotView, PlotButtons {
    using PlotButtons::PlotButtons;
};

struct PolarPlotScreen : PolarPlotView, PlotButtons {
    explicit PolarPlotScreen(const PlotKind& the_kind);

    CheckBox chk_Pause;  ///< step through the motion
    Button cmd_Step;     ///< the next step, or the whole plot anew

    bool PolarStepping = false;
    std::int16_t PolarStep = 0;  ///< the step that was drawn last
};

/// What is seen of a polar screen while it is stepped through, and what its Step button is called.
void Show_Stepping(PolarPlotScreen& form);

}  // namespace kervol
