// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/flywheel_events.h"

#include <string>

#include "core/arithmetic.h"
#include "core/header.h"
#include "core/number_text.h"
#include "dynamics/crank_torque_areas.h"
#include "plots/chart_plots.h"
#include "screens/fields.h"
#include "screens/printing.h"
#include "screens/wiring.h"

namespace kervol {
namespace {

constexpr std::int16_t kTorqueUnit = 9;
constexpr std::array kTitles = {"Torque With No Flywheel", "Torque With a Flywheel"};

void Put_Torque_Units(const LinkageModel& model, FlywheelScreen& screen) {
    for (Label& unit : screen.lbl_Unit) unit.caption = model.UnitText(kTorqueUnit);
}

void PlotTorque(Screens& screens) {
    Program& program = screens.program;
    const ResultTables& tables = program.tables;
    program.port.Set_Pointer(Pointer::Busy);
    for (std::size_t graph = 0; graph < kTitles.size(); ++graph) {
        Chart& chart = screens.frm_Flywheel.grf_Plot.at(graph);
        chart.Put_NumSets(1);
        chart.look.BottomTitle = "Crank Angle (Deg)";
        chart.look.TickEvery = 5;
        chart.look.LabelEvery = 10;
        chart.Put_NumPoints(program.model.NumSteps + 1);
        chart.look.GraphTitle = kTitles.at(graph);
        chart.look.DrawMode = 2;
        Put_Chart_Fonts(chart);
        for (std::int16_t i = 0; i <= program.model.NumSteps; ++i) {
            chart.ThisPoint = static_cast<std::int16_t>(i + 1);
            chart.Put_GraphData(graph == 0 ? tables.TorqueTable(i, 0) : tables.FlywheelTorque(i));
            chart.Put_LabelText(FNRoundStr(tables.Theta(i, 0), 0));
        }
    }
    program.port.Set_Pointer(Pointer::Default);
}

/// Line by line, as it was printed.
std::string Picture_Text(const CrankTorqueAreas& areas) {
    std::string text;
    for (const std::string& line : areas.Text) text += line + "\n";
    return text;
}

void cmd_Calc_Click(Screens& screens) {
    Program& program = screens.program;
    FlywheelScreen& screen = screens.frm_Flywheel;
    FlywheelSizing sizing;
    Size_Flywheel(program, sizing);
    screen.pct_Pict1.caption = Picture_Text(sizing.areas);
    PlotTorque(screens);
    for (Chart& chart : screen.grf_Plot) chart.visible = true;
    screen.cmd_Done.enabled = true;
    const std::array torques = {sizing.without.Tmax, sizing.with.Tmax, sizing.without.Tmin, sizing.with.Tmin};
    for (std::size_t i = 0; i < torques.size(); ++i)
        screen.lbl_Torque[i].caption = Plain_Number(FNRound(torques.at(i), 2));
    Put_Torque_Units(program.model, screen);
}

void txt_Fluct_LostFocus(Screens& screens) {
    Program& program = screens.program;
    FlywheelScreen& screen = screens.frm_Flywheel;
    if (!screen.FluctChanged) return;
    if (Take_Coef_Fluct(program.model, Number_In(screen.txt_Fluct))) {
        screen.pct_Pict1.caption.clear();
        screen.cmd_Done.enabled = false;
        cmd_Calc_Click(screens);
        screen.FluctChanged = false;
        return;
    }
    // Deliberate: it still counts as changed, and what was put back is taken when the field is left next.
    program.port.Show_Message({FluctuationRefused});
    Put_Plain_Number(screen.txt_Fluct, program.model.CoefFluct);
    program.port.Set_Focus(ScreenId::frm_Flywheel, "txt_Fluct");
}

/// The selections offer the torque with the flywheel from now on.
void cmd_Done_Click(Screens& screens) {
    screens.program.port.Hide_Screen(ScreenId::frm_Flywheel);
    screens.program.model.NewData = true;
}

}  // namespace

void Flywheel_Form_Activate(Screens& screens) {
    Program& program = screens.program;
    FlywheelScreen& screen = screens.frm_Flywheel;
    screen.cmd_Print.enabled = screen.cmd_copy.enabled = true;
    screen.cmd_Done.enabled = false;
    screen.lbl_Header.caption = Put_Header(program.model);
    Put_Plain_Number(screen.txt_Fluct, program.model.CoefFluct);
    for (Chart& chart : screen.grf_Plot) chart.visible = false;
    screen.pct_Pict1.caption.clear();
    for (Label& torque : screen.lbl_Torque) torque.caption.clear();
    Put_Torque_Units(program.model, screen);
    program.port.Set_Pointer(Pointer::Default);
    screen.FluctChanged = false;
}

void Wire_Flywheel_Screen(Screens& screens) {
    FlywheelScreen& screen = screens.frm_Flywheel;
    const Wiring on(screens);
    on(screen.cmd_Calc.click, "cmd_Calc_Click", cmd_Calc_Click);
    on(screen.cmd_Done.click, "frm_Flywheel.cmd_Done", cmd_Done_Click);
    on(screen.cmd_Cancel.click, "frm_Flywheel.cmd_Cancel",
       [](Screens& all) { all.program.port.Hide_Screen(ScreenId::frm_Flywheel); });
    on(screen.cmd_Print.click, "frm_Flywheel.PrintForm",
       [](Screens& all) { Print_Form(all.program.port, ScreenId::frm_Flywheel); });
    on(screen.cmd_copy.click, "frm_Flywheel.cmd_copy",
       [](Screens& all) { Copy_Form(all.program.port, ScreenId::frm_Flywheel, Icon::None); });
    on(screen.txt_Fluct.change, "frm_Flywheel.txt_Fluct",
       [](Screens& all) { all.frm_Flywheel.FluctChanged = true; });
    on(screen.txt_Fluct.lost_focus, "frm_Flywheel.txt_Fluct", txt_Fluct_LostFocus);
    on(screen.txt_Fluct.enter, "frm_Flywheel.txt_Fluct", txt_Fluct_LostFocus);
}

}  // namespace kervol
