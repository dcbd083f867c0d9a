// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of every screen by name, for what mirrors a whole record: a toolkit, and the tests. A group of
// controls is one entry; its members are called by the name, an underscore and their index.
#pragma once

#include <numeric>
#include <string>

#include "screens/screens.h"

namespace kervol {

/// Some members of a group: those that stand on a screen.
template <class Visitor, class Record, std::size_t count, std::size_t shown>
void Visit_Members(Visitor& visit, const std::string& group, std::array<Record, count>& records,
                   const std::array<int, shown>& members) {
    for (const int member : members)
        visit((group + "_" + std::to_string(member)).c_str(), records.at(static_cast<std::size_t>(member)));
}

/// 1 to `count`.
template <std::size_t count>
constexpr std::array<int, count> Numbers_To() {
    std::array<int, count> numbers{};
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

/// The first members of a group whose names end in their numbers, from 1.
template <class Visitor, class Record, std::size_t count>
void Visit_Slots(Visitor& visit, const std::string& group, std::array<Record, count>& records,
                 std::size_t shown) {
    for (std::size_t i = 0; i < shown; ++i) visit((group + std::to_string(i + 1)).c_str(), records.at(i));
}

/// The first members of a group whose names end in their indices.
template <class Visitor, class Record, std::size_t count>
void Visit_First(Visitor& visit, const std::string& group, std::array<Record, count>& records,
                 std::size_t shown) {
    for (std::size_t i = 0; i < shown; ++i) visit((group + "_" + std::to_string(i)).c_str(), records.at(i));
}

#define KERVOL_CONTROL(name) visit(#name, screen.name)
#define KERVOL_FIRST(name) Visit_First(visit, #name, screen.name, shown)
#define KERVOL_MEMBERS(name, ...) Visit_Members(visit, #name, screen.name, std::array{__VA_ARGS__})

template <class Visitor>
void Visit_Controls(TitleScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lblHeader);
    KERVOL_CONTROL(lbl_Version);
    KERVOL_CONTROL(cmd_Start);
    KERVOL_CONTROL(cmd_Abort);
}

template <class Visitor>
void Visit_Controls(DisclaimerScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lbl_Notices);
    KERVOL_CONTROL(cmd_Done);
}

template <class Visitor>
void Visit_Controls(UserScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lbl_UserName);
    KERVOL_CONTROL(txt_UserName);
    KERVOL_CONTROL(lbl_DesignNo);
    KERVOL_CONTROL(txt_DesignNo);
    KERVOL_CONTROL(lbl_Filename);
    KERVOL_CONTROL(txt_Filename);
    KERVOL_CONTROL(cmd_Done);
}

template <class Visitor>
void Visit_Controls(HomeScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(cmd_Input);
    KERVOL_CONTROL(cmd_Animate);
    KERVOL_CONTROL(cmd_Plot);
    KERVOL_CONTROL(cmd_Print);
    KERVOL_CONTROL(cmd_Dynamics);
    KERVOL_CONTROL(cmd_Flywheel);
    KERVOL_CONTROL(cmd_Quit);
    KERVOL_CONTROL(mnu_file);
    KERVOL_CONTROL(mnu_New);
    KERVOL_CONTROL(mnu_Open);
    KERVOL_CONTROL(mnu_Save);
    KERVOL_CONTROL(mnu_Saveas);
    KERVOL_CONTROL(mnu_Report);
    KERVOL_CONTROL(mnu_Export);
    KERVOL_CONTROL(mnu_Export_Link_Data);
    KERVOL_CONTROL(mnu_Export_Torque);
    KERVOL_CONTROL(mnu_Import);
    KERVOL_CONTROL(mnu_Import_SVA);
    KERVOL_CONTROL(mnu_Import_Link2_Drive_Data);
    KERVOL_CONTROL(mnu_Quit);
    KERVOL_CONTROL(mnu_Units);
    KERVOL_CONTROL(mnu_pick);
    KERVOL_CONTROL(mnu_Examples);
    KERVOL_CONTROL(mnu_Test);
    KERVOL_CONTROL(mnu_Hoeken);
    KERVOL_CONTROL(mnu_Roberts);
    KERVOL_CONTROL(mnu_Double);
    KERVOL_CONTROL(mnu_FFT);
    KERVOL_CONTROL(mnu_CalcFFT);
    KERVOL_CONTROL(mnu_Tools);
    KERVOL_CONTROL(mnu_SelfCheck);
    KERVOL_CONTROL(mnu_Version);
    KERVOL_CONTROL(mnu_Manual);
    KERVOL_CONTROL(mnu_About);
    KERVOL_CONTROL(mnu_Disclaimer);
}

template <class Visitor>
void Visit_Controls(InputScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lbl_Header);
    KERVOL_CONTROL(txt_header);
    KERVOL_CONTROL(lbl_Chain);
    KERVOL_CONTROL(opt_SteveWatt);
    KERVOL_CONTROL(opt_OpenCross1);
    KERVOL_CONTROL(opt_OpenCross2);
    KERVOL_CONTROL(Pnl_Grashof);
    // The second coupler point has its own label.
    KERVOL_MEMBERS(lbl_Left, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 14, 15, 16);
    KERVOL_CONTROL(lbl_Linkout2);
    KERVOL_CONTROL(txt_Linkout);
    Visit_Members(visit, "lbl_Units", screen.lbl_Units, kLengthFields);
    Visit_Members(visit, "lbl_Degrees", screen.lbl_Degrees, kAngleFields);
    KERVOL_CONTROL(frm_calcmode);
    KERVOL_CONTROL(opt_Calctype);
    KERVOL_CONTROL(lbl_Initial);
    KERVOL_CONTROL(txt_Initial);
    KERVOL_CONTROL(lbl_Unit);
    KERVOL_CONTROL(lbl_camdriven);
    KERVOL_CONTROL(lbl_directions);
    KERVOL_CONTROL(chk_autocalc);
    KERVOL_CONTROL(chk_autoscale);
    KERVOL_CONTROL(hsc_step);
    KERVOL_CONTROL(lbl_cw);
    KERVOL_CONTROL(lbl_ccw);
    KERVOL_CONTROL(lbl_time);
    KERVOL_CONTROL(lbl_StepLabel);
    KERVOL_CONTROL(lbl_StepNumber);
    KERVOL_CONTROL(lbl_StepUnit);
    KERVOL_CONTROL(cmd_Cancel);
    KERVOL_CONTROL(cmd_Print);
    KERVOL_CONTROL(cmd_Draw);
    KERVOL_CONTROL(cmd_Reset);
    KERVOL_CONTROL(cmd_Step);
    KERVOL_CONTROL(cmd_Calc);
    KERVOL_CONTROL(cmd_Animate);
    KERVOL_CONTROL(cmd_Next);
}

template <class Visitor>
void Visit_Controls(AnimateScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lbl_Header);
    KERVOL_CONTROL(txt_header);
    KERVOL_MEMBERS(lbl_Left, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 15, 16);
    KERVOL_MEMBERS(txt_Linkout, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 15, 16);
    KERVOL_MEMBERS(lbl_Units, 0, 1, 2, 3, 4, 6, 7, 8, 9, 15, 16);
    KERVOL_MEMBERS(lbl_Degrees, 5, 14);
    KERVOL_CONTROL(opt_OpenCross1);
    KERVOL_CONTROL(opt_OpenCross2);
    KERVOL_MEMBERS(lbl_Initial, 0, 1, 2);
    KERVOL_MEMBERS(txt_Initial, 0, 1, 2);
    KERVOL_MEMBERS(lbl_Unit, 0, 1, 2);
    KERVOL_CONTROL(lbl_camdriven);
    KERVOL_CONTROL(lbl_StepLabel);
    KERVOL_CONTROL(lbl_StepNumber);
    KERVOL_CONTROL(lbl_StepUnit);
    KERVOL_CONTROL(hsc_step);
    KERVOL_CONTROL(lbl_cw);
    KERVOL_CONTROL(lbl_ccw);
    KERVOL_CONTROL(lbl_time);
    KERVOL_CONTROL(hsc_speed);
    KERVOL_CONTROL(txt_Cycles);
    KERVOL_CONTROL(cmb_wait);
    KERVOL_CONTROL(chk_autoscale);
    KERVOL_CONTROL(chk_Trace);
    KERVOL_CONTROL(chk_Showlinks);
    KERVOL_CONTROL(chk_Coupler);
    KERVOL_CONTROL(chk_Points);
    KERVOL_CONTROL(cmd_Back);
    KERVOL_CONTROL(cmd_Recalc);
    KERVOL_CONTROL(cmd_Run);
    KERVOL_CONTROL(cmd_Step);
    KERVOL_CONTROL(cmd_Reset);
    KERVOL_CONTROL(cmd_Copy);
    KERVOL_CONTROL(cmd_Done);
}

template <class Visitor>
void Visit_Controls(MassPropScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lbl_Header);
    KERVOL_MEMBERS(lbl_Segment, 2, 3, 4, 5, 6);
    KERVOL_MEMBERS(txt_Mass, 2, 3, 4, 5, 6);
    KERVOL_MEMBERS(txt_Inertia, 2, 3, 4, 5, 6);
    KERVOL_MEMBERS(txt_DistCG, 2, 3, 4, 5, 6);
    KERVOL_MEMBERS(txt_AngCG, 2, 3, 4, 5, 6);
    KERVOL_MEMBERS(txt_MagForce, 3, 4, 5, 6);
    KERVOL_MEMBERS(txt_AngForce, 3, 4, 5, 6);
    KERVOL_MEMBERS(txt_DistP, 3, 4, 5, 6);
    KERVOL_MEMBERS(txt_AngP, 3, 4, 5, 6);
    KERVOL_MEMBERS(txt_Torque, 3, 4, 5, 6);
    KERVOL_MEMBERS(txt_Frict, 3, 4, 5, 6);
    KERVOL_CONTROL(lbl_MassUnit);
    KERVOL_CONTROL(lbl_InertiaUnit);
    KERVOL_CONTROL(lbl_TorqueUnit);
    KERVOL_MEMBERS(Lbl_DistUnit, 1, 2);
    KERVOL_MEMBERS(lbl_ForceUnit, 1, 2);
    KERVOL_MEMBERS(lbl_AngUnit, 1, 2, 3);
    KERVOL_CONTROL(chk_Torque);
    KERVOL_CONTROL(cmd_Cancel);
    KERVOL_CONTROL(cmd_Help);
    KERVOL_CONTROL(cmd_Solve);
    KERVOL_CONTROL(cmd_Matrix);
    KERVOL_CONTROL(cmd_Print);
    KERVOL_CONTROL(cmd_Copy);
    KERVOL_CONTROL(cmd_Done);
}

template <class Visitor>
void Visit_Controls(MatrixScreen& screen, Visitor&& visit) {
    constexpr auto kNumbers = Numbers_To<NumEquations>();
    KERVOL_CONTROL(lbl_Header);
    for (const int row : kNumbers)
        Visit_Members(visit, "lbl_A" + std::to_string(row), screen.lbl_A.at(static_cast<std::size_t>(row)),
                      kNumbers);
    Visit_Members(visit, "lbl_B", screen.lbl_B, kNumbers);
    Visit_Members(visit, "lbl_Var", screen.lbl_Var, Numbers_To<2 * NumEquations>());
    KERVOL_CONTROL(Label4);
    KERVOL_CONTROL(cmd_Back);
    KERVOL_CONTROL(cmd_Copy);
    KERVOL_CONTROL(cmd_Print);
    KERVOL_CONTROL(cmd_Done);
}

template <class Visitor>
void Visit_Controls(AboutScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lblHeader);
    KERVOL_CONTROL(lbl_Version);
}

template <class Visitor>
void Visit_Controls(PlotTypeScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(opt_PickPlot);
    KERVOL_CONTROL(pct_PickPlot);
    KERVOL_CONTROL(cmd_CancelPickPlot);
    KERVOL_CONTROL(cmd_PickPlotDone);
}

template <class Visitor>
void Visit_Controls(SelectionForm& screen, Visitor&& visit) {
    if (!screen.kind.vectors_only) {
        KERVOL_CONTROL(opt_PrintSet);
        KERVOL_CONTROL(fra_Preset);
        KERVOL_CONTROL(cmb_Preset);
        KERVOL_CONTROL(cmd_ClearPreset);
    }
    KERVOL_CONTROL(fra_Coord);
    KERVOL_CONTROL(opt_Coord);
    if (screen.kind.has_styles) KERVOL_CONTROL(opt_Plotstyle);
    const std::size_t shown = screen.kind.functions;
    Visit_Slots(visit, "fra_Function", screen.fra_Function, shown);
    Visit_First(visit, "lbl_Var", screen.lbl_Var, shown);
    Visit_Slots(visit, "cmb_Var", screen.cmb_Var, shown);
    Visit_First(visit, "lbl_Comp", screen.lbl_Comp, shown);
    Visit_Slots(visit, "cmb_Com", screen.cmb_Com, shown);
    Visit_Slots(visit, "cmd_OK", screen.cmd_OK, shown);
    Visit_Slots(visit, "cmd_Clear", screen.cmd_Clear, shown);
    Visit_First(visit, "lbl_Function", screen.lbl_Function, shown);
    Visit_First(visit, "lbl_Component", screen.lbl_Component, shown);
    KERVOL_CONTROL(cmd_Cancel);
    KERVOL_CONTROL(cmd_Done);
}

template <class Visitor>
void Visit_Controls(PrintSelectScreen& screen, Visitor&& visit) {
    Visit_Controls(static_cast<SelectionForm&>(screen), visit);
    KERVOL_CONTROL(opt_Whereto);
    KERVOL_CONTROL(cmb_Step);
    KERVOL_CONTROL(cmb_Decimal);
}

template <class Visitor>
void Visit_Controls(StateLabels& screen, Visitor&& visit) {
    KERVOL_CONTROL(lbl_Header);
    KERVOL_CONTROL(lbl_Header2);
    KERVOL_CONTROL(lbl_Header3);
    KERVOL_CONTROL(lbl_Left);
    KERVOL_CONTROL(lbl_Links);
    KERVOL_CONTROL(frm_initial);
    KERVOL_CONTROL(lbl_Initial);
    KERVOL_CONTROL(lbl_Linkout2);
    KERVOL_CONTROL(lbl_Unit);
    KERVOL_CONTROL(lbl_Coord);
}

template <class Visitor>
void Visit_Controls(PlotButtons& screen, Visitor&& visit) {
    KERVOL_CONTROL(cmd_Replot);
    visit(screen.kind.plain_names ? "cmd_Print" : "cmd_PlotPrint", screen.cmd_PlotPrint);
    KERVOL_CONTROL(cmd_Copy);
    visit(screen.kind.plain_names ? "cmd_Done" : "cmd_PlotDone", screen.cmd_PlotDone);
}

template <class Visitor>
void Visit_Controls(ChartScreen& screen, Visitor&& visit) {
    Visit_Controls(static_cast<StateLabels&>(screen), visit);
    Visit_First(visit, "grf_Plot", screen.grf_Plot, static_cast<std::size_t>(screen.kind.plots));
    KERVOL_CONTROL(chk_HGrid);
    KERVOL_CONTROL(chk_VGrid);
    KERVOL_CONTROL(chk_Line);
    KERVOL_CONTROL(chk_Sticks);
    KERVOL_CONTROL(opt_Back);
    Visit_Controls(static_cast<PlotButtons&>(screen), visit);
}

template <class Visitor>
void Visit_Controls(OwnPlotScreen& screen, Visitor&& visit) {
    const auto shown = static_cast<std::size_t>(screen.kind.plots);
    Visit_Controls(static_cast<StateLabels&>(screen), visit);
    KERVOL_FIRST(lbl_LeftTitle);
    KERVOL_FIRST(lbl_Comp);
    KERVOL_FIRST(lbl_PlotUnits);
    KERVOL_FIRST(lbl_Ymax);
    KERVOL_FIRST(lbl_Ymin);
    KERVOL_FIRST(lbl_Xmin);
    KERVOL_FIRST(lbl_X1);
    KERVOL_FIRST(lbl_X2);
    KERVOL_FIRST(lbl_X3);
    KERVOL_FIRST(lbl_Xmax);
    KERVOL_FIRST(lbl_BottomTitle);
    KERVOL_FIRST(lbl_Min);
    KERVOL_FIRST(lbl_Max);
    KERVOL_FIRST(lbl_Peak);
    Visit_Controls(static_cast<PlotButtons&>(screen), visit);
}

template <class Visitor>
void Visit_Controls(PolarPlotScreen& screen, Visitor&& visit) {
    Visit_Controls(static_cast<StateLabels&>(screen), visit);
    KERVOL_CONTROL(lbl_LeftTitle);
    KERVOL_CONTROL(lbl_PlotUnits);
    KERVOL_CONTROL(lbl_Ymax);
    KERVOL_CONTROL(lbl_Ymin);
    KERVOL_CONTROL(lbl_Xmin);
    KERVOL_CONTROL(lbl_Xmax);
    KERVOL_CONTROL(chk_Vectors);
    KERVOL_CONTROL(chk_Envelope);
    KERVOL_CONTROL(chk_Pause);
    KERVOL_CONTROL(cmd_Step);
    KERVOL_CONTROL(lbl_StepLabel);
    KERVOL_CONTROL(lbl_StepNumber);
    KERVOL_CONTROL(lbl_StepUnit);
    KERVOL_CONTROL(lbl_name);
    KERVOL_CONTROL(lbl_vector);
    Visit_Controls(static_cast<PlotButtons&>(screen), visit);
}

template <class Visitor>
void Visit_Controls(PrintDataScreen& screen, Visitor&& visit) {
    Visit_Controls(static_cast<StateLabels&>(screen), visit);
    KERVOL_CONTROL(grd_Data);
    KERVOL_CONTROL(cmd_Cancel);
    KERVOL_CONTROL(cmd_PrintForm);
    KERVOL_CONTROL(cmd_Copy);
}

template <class Visitor>
void Visit_Controls(FlywheelScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lbl_Header);
    KERVOL_CONTROL(fra_Energy);
    KERVOL_CONTROL(pct_Pict1);
    KERVOL_CONTROL(fra_Fluct);
    KERVOL_CONTROL(txt_Fluct);
    KERVOL_CONTROL(fra_Without);
    KERVOL_CONTROL(fra_With);
    KERVOL_CONTROL(lbl_Right2);
    KERVOL_CONTROL(lbl_Torque);
    KERVOL_CONTROL(lbl_Unit);
    KERVOL_CONTROL(grf_Plot);
    KERVOL_CONTROL(cmd_Cancel);
    KERVOL_CONTROL(cmd_Print);
    KERVOL_CONTROL(cmd_copy);
    KERVOL_CONTROL(cmd_Calc);
    KERVOL_CONTROL(cmd_Done);
}

template <class Visitor>
void Visit_Controls(FFTScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lbl_Header);
    KERVOL_CONTROL(lbl_Header2);
    KERVOL_CONTROL(fra_Function1);
    KERVOL_CONTROL(lbl_Var1);
    KERVOL_CONTROL(cmb_Var1);
    KERVOL_CONTROL(lbl_Com1);
    KERVOL_CONTROL(cmb_Com1);
    KERVOL_CONTROL(cmd_Clear1);
    KERVOL_CONTROL(lbl_Harmonics);
    KERVOL_CONTROL(cmb_Harmonics);
    KERVOL_CONTROL(fra_Grid);
    KERVOL_CONTROL(chk_HGrid);
    KERVOL_CONTROL(chk_VGrid);
    KERVOL_CONTROL(fra_Style);
    KERVOL_CONTROL(chk_Line);
    KERVOL_CONTROL(chk_Sticks);
    KERVOL_CONTROL(lbl_Graph);
    KERVOL_CONTROL(grf_Plot);
    KERVOL_CONTROL(cmd_Cancel);
    KERVOL_CONTROL(cmd_Print);
    KERVOL_CONTROL(cmd_Copy);
    KERVOL_CONTROL(cmd_Calc);
    KERVOL_CONTROL(cmd_Done);
}

template <class Visitor>
void Visit_Controls(SelfCheckScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(txt_Report);
    KERVOL_CONTROL(cmd_Back);
    KERVOL_CONTROL(cmd_Copy);
}

template <class Visitor>
void Visit_Controls(QuitScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lbl_Question);
    KERVOL_CONTROL(cmd_YesQuit);
    KERVOL_CONTROL(cmd_NoQuit);
}

#undef KERVOL_MEMBERS
#undef KERVOL_FIRST
#undef KERVOL_CONTROL

}  // namespace kervol
