// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of tests on the plot screens: functions chosen on their selections, and pictures to draw on.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "screens/selection_fixture.h"

namespace kervol {

class PlotScreensTest : public SelectionTest {
  protected:
    /// "Theta3" is s + 0.25 at step s of 3, the velocity of A is (3 s, 4 s), the crank turns by 10 degrees.
    PlotScreensTest() {
        for (std::size_t i = 0; i < 2; ++i) two_plots.pct_Plot[i] = &pictures[i];
        for (std::size_t i = 0; i < 4; ++i) four_plots.pct_Plot[i] = &pictures[i];
        polar_plot.pct_Plot[0] = &pictures[0];
        model.NumSteps = 2;
        model.GroundAngleDeg = 0;
        model.Omega2 = 10;
        model.ThetaMinDeg = 0;
        model.ThetaMaxDeg = 20;
        for (int step = 0; step <= 2; ++step) {
            const auto s = static_cast<float>(step);
            tables.Theta(step, 0) = 10 * s;
            tables.Theta(step, 1) = s + 0.25F;
            tables.PointVel(step, 0, 0) = 3 * s;
            tables.PointVel(step, 0, 1) = 4 * s;
        }
    }

    /// Chooses a kind of plot, and a function of that selection for each of its slots.
    void Choose_Functions(SelectionForm& form, const char* name, const char* component = "") {
        selections.PlotTypePick = static_cast<std::int16_t>(1 + static_cast<int>(form.kind.lists));
        Open_Mix(form);
        for (std::size_t k = 1; k <= form.kind.functions; ++k) Confirm(form, k, name, component);
    }
    /// Chooses the style of the plot, 0 for charts.
    static void Choose_Style(SelectionForm& form, std::size_t style) {
        if (!form.opt_Plotstyle.at(style).on) Choose(form.opt_Plotstyle, style);
    }
    /// All the way to the plot.
    void Open_Plot(SelectionForm& form, std::size_t style, const char* name, const char* component = "") {
        Choose_Functions(form, name, component);
        Choose_Style(form, style);
        for (RecordingPicture& shown : pictures) shown.drawn.clear();
        port.trace.clear();
        form.cmd_Done.click();
    }

    std::vector<std::string> Trace_Of(const std::function<void()>& act) {
        port.trace.clear();
        act();
        return std::exchange(port.trace, {});
    }

    std::vector<ChartScreen*> All_Charts() {
        return {&screens->frm_Plot1, &screens->frm_Plot2, &screens->frm_Plot3, &screens->frm_Plot4};
    }
    std::vector<PlotButtons*> All_Plots() {
        return {&screens->frm_Plot1, &screens->frm_Plot2, &screens->frm_Plot3, &screens->frm_Plot4,
                &two_plots,          &four_plots,         &polar_plot};
    }

    std::array<RecordingPicture, 4> pictures;
    OwnPlotScreen& two_plots = screens->frm_Myplot2;
    OwnPlotScreen& four_plots = screens->frm_MyPlot3;
    PolarPlotScreen& polar_plot = screens->frm_MyPlot4;
};

}  // namespace kervol
