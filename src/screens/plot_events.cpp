// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/plot_events.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/report.h"
#include "screens/launch_screens.h"
#include "screens/printing.h"
#include "screens/selection_rules.h"

namespace kervol {
namespace {

/// Where Next of a selection leads, by the style of the plot.
struct PlotWay {
    ScreenId selection;
    ScreenId annotated;
    ScreenId plain;
};
constexpr std::array kWays = {
    PlotWay{ScreenId::frm_PlotSelect1, ScreenId::frm_Plot1, ScreenId::frm_Plot1},
    PlotWay{ScreenId::frm_PlotSelect2, ScreenId::frm_Plot2, ScreenId::frm_Myplot2},
    PlotWay{ScreenId::frm_PlotSelect3, ScreenId::frm_Plot3, ScreenId::frm_MyPlot3},
    PlotWay{ScreenId::frm_PlotSelect4, ScreenId::frm_Plot4, ScreenId::frm_MyPlot4},
};

std::array<PlotSelectScreen*, kWays.size()> Plot_Selections(Screens& screens) {
    return {&screens.frm_PlotSelect1, &screens.frm_PlotSelect2, &screens.frm_PlotSelect3,
            &screens.frm_PlotSelect4};
}

/// Next of a selection.
void Show_Plot(Screens& screens, PlotSelectScreen& form, const PlotWay& way) {
    Selections& selections = screens.program.selections;
    selections.LocalCoords = form.opt_Coord[1].on ? 2 : 0;
    Toggle_Coordinate(form, false);
    screens.program.port.Hide_Screen(way.selection);
    screens.program.port.Show_Screen(selections.PlotStyle == 2 ? way.plain : way.annotated, Modality::Modal);
}

void Replot_Click(Screens& screens, const PlotButtons& form) {
    screens.program.port.Hide_Screen(form.kind.screen);
    screens.program.port.Show_Screen(Selection_Of(screens, form).kind.screen, Modality::Modal);
}

/// The selections load their lists again, as behind every output.
void Done_With_New_Lists(Screens& screens, const PlotButtons& form) {
    screens.program.model.NewData = true;
    screens.program.port.Hide_Screen(form.kind.screen);
}

void Done(Screens& screens, const PlotButtons& form) {
    screens.program.port.Hide_Screen(form.kind.screen);
}

void Begin_Plot_Form(Program& program, PlotButtons& form) {
    program.plots.PlotCount = form.kind.plots;
    form.cmd_PlotPrint.enabled = form.cmd_Copy.enabled = true;
}

void Load_Charts(Program& program, ChartScreen& form, const SlotLabels& labels) {
    switch (form.kind.screen) {
        case ScreenId::frm_Plot1:
            return MultiPlot(program, form, labels);
        case ScreenId::frm_Plot4:
            return PolarPlot(program, form, labels);
        default:
            return Plot(program, form, labels, form.kind.plots);
    }
}

/// Everything anew: a changed setting is never put into the charts alone.
void Reload_Charts(Screens& screens, ChartScreen& form) {
    for (Chart& chart : form.grf_Plot)
        chart.look.background = form.opt_Back[0].on ? chart_background::White : chart_background::Tinted;
    Plot_Setup(screens.program, form, form.kind.plots);
    Load_Charts(screens.program, form, Selection_Of(screens, form));
}

void Plot_Polar(Screens& screens, PolarPlotScreen& form) {
    MyPolarPlotSetup(screens.program, form);
    MyPolarPlot(screens.program, form, Selection_Of(screens, form));
}

void chk_Pause_Click(Screens& screens, PolarPlotScreen& form) {
    form.PolarStepping = form.chk_Pause.on;
    Show_Stepping(form);
    if (!form.PolarStepping) return;
    Read_Polar_Flags(screens.program, form);
    form.pct_Plot[0]->Clear();
    form.PolarStep = 0;
    MyPolarStep(screens.program, form, form.PolarStep);
}

void cmd_Step_Click(Screens& screens, PolarPlotScreen& form) {
    if (!form.PolarStepping) return Plot_Polar(screens, form);
    ++form.PolarStep;
    if (form.PolarStep > screens.program.model.NumSteps)
        Put_Check(form.chk_Pause, false);
    else
        MyPolarStep(screens.program, form, form.PolarStep);
}

/// Runs a handler for the screen under the name of one of its controls.
template <class Form, class Handler>
void Wire(Screens& screens, Form& form, Event& event, const std::string& name, Handler handler) {
    event = [&screens, &form, name, handler] {
        Procedure(screens.program, name, [&] { handler(screens, form); });
    };
}

std::string Control_Name(const PlotButtons& form, const char* control) {
    return std::string(Screen_Name(form.kind.screen)) + "." + control;
}

void Wire_Buttons(Screens& screens, PlotButtons& form, void (*done)(Screens&, const PlotButtons&)) {
    Wire(screens, form, form.cmd_Replot.click, Control_Name(form, "Select Another"), Replot_Click);
    Wire(screens, form, form.cmd_PlotPrint.click, form.kind.printing,
         [](Screens& all, PlotButtons& its) { Print_Form(all.program.port, its.kind.screen); });
    Wire(screens, form, form.cmd_Copy.click, Control_Name(form, "cmd_Copy"),
         [](Screens& all, PlotButtons& its) { Copy_Form(all.program.port, its.kind.screen, Icon::None); });
    Wire(screens, form, form.cmd_PlotDone.click, Control_Name(form, "cmd_PlotDone"), done);
}

void Wire_Charts(Screens& screens, ChartScreen& form) {
    Wire_Buttons(screens, form, Done_With_New_Lists);
    const auto reloads = [&](Event& event, const char* control) {
        Wire(screens, form, event, Control_Name(form, control), Reload_Charts);
    };
    reloads(form.chk_HGrid.click, "chk_HGrid");
    reloads(form.chk_VGrid.click, "chk_VGrid");
    reloads(form.chk_Line.click, "chk_Line");
    reloads(form.chk_Sticks.click, "chk_Sticks");
    for (OptionButton& option : form.opt_Back) reloads(option.click, "opt_Back");
    for (Chart& chart : form.grf_Plot) reloads(chart.click, "grf_Plot");
    reloads(form.click, "Form_Click");
}

void Wire_Polar(Screens& screens, PolarPlotScreen& form) {
    Wire_Buttons(screens, form, Done_With_New_Lists);
    Wire(screens, form, form.chk_Pause.click, Control_Name(form, "chk_Pause"), chk_Pause_Click);
    Wire(screens, form, form.cmd_Step.click, Control_Name(form, "cmd_Step"), cmd_Step_Click);
    const auto read_flags = [](Screens& all, PolarPlotScreen& its) { Read_Polar_Flags(all.program, its); };
    Wire(screens, form, form.chk_Vectors.click, Control_Name(form, "chk_Vectors"), read_flags);
    Wire(screens, form, form.chk_Envelope.click, Control_Name(form, "chk_Envelope"), read_flags);
}

}  // namespace

PlotSelectScreen& Selection_Of(Screens& screens, const PlotButtons& form) {
    const auto way = std::find_if(kWays.begin(), kWays.end(), [&form](const PlotWay& entry) {
        return entry.annotated == form.kind.screen || entry.plain == form.kind.screen;
    });
    return *Plot_Selections(screens).at(static_cast<std::size_t>(way - kWays.begin()));
}

void Plot_Form_Activate(Screens& screens, ChartScreen& form) {
    Begin_Plot_Form(screens.program, form);
    form.chk_Sticks.caption = screens.program.selections.SelFFT ? "Lines" : "Fills";
    Reload_Charts(screens, form);
}

void Plot_Form_Activate(Screens& screens, OwnPlotScreen& form) {
    Begin_Plot_Form(screens.program, form);
    MyPlotSetup(screens.program, form, form.kind.plots);
    MyPlot(screens.program, form, Selection_Of(screens, form), screens.program.plots.PlotCount);
}

void Plot_Form_Activate(Screens& screens, PolarPlotScreen& form) {
    Put_Check(form.chk_Pause, false);
    Begin_Plot_Form(screens.program, form);
    Plot_Polar(screens, form);
}

void Wire_Plot_Screens(Screens& screens) {
    const auto selections = Plot_Selections(screens);
    for (std::size_t i = 0; i < kWays.size(); ++i)
        Wire(screens, *selections[i], selections[i]->cmd_Done.click,
             std::string(Screen_Name(kWays[i].selection)) + ".cmd_Done",
             [way = kWays[i]](Screens& all, PlotSelectScreen& its) { Show_Plot(all, its, way); });
    for (ChartScreen* form : {&screens.frm_Plot1, &screens.frm_Plot2, &screens.frm_Plot3, &screens.frm_Plot4})
        Wire_Charts(screens, *form);
    for (OwnPlotScreen* form : {&screens.frm_Myplot2, &screens.frm_MyPlot3})
        Wire_Buttons(screens, *form, Done);
    Wire_Polar(screens, screens.frm_MyPlot4);
}

}  // namespace kervol
