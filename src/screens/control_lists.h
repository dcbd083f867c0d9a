// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of every screen by name, for what mirrors a whole record: a toolkit, and the tests. A group of
// controls is one entry; its members are called by the name, an underscore and their index.
#pragma once

#include <string>

#include "screens/screens.h"

namespace kervol {

#define KERVOL_CONTROL(name) visit(#name, screen.name)

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
    KERVOL_CONTROL(mnu_Version);
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
    KERVOL_CONTROL(lbl_Left);
    KERVOL_CONTROL(txt_Linkout);
    KERVOL_CONTROL(lbl_Units);
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
void Visit_Controls(AboutScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lblHeader);
    KERVOL_CONTROL(lbl_Version);
}

template <class Visitor>
void Visit_Controls(QuitScreen& screen, Visitor&& visit) {
    KERVOL_CONTROL(lbl_Question);
    KERVOL_CONTROL(cmd_YesQuit);
    KERVOL_CONTROL(cmd_NoQuit);
}

#undef KERVOL_CONTROL

}  // namespace kervol
