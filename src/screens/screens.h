// SPDX-License-Identifier: GPL-3.0-or-later
// All screens of one run, as records of their controls.
#pragma once

#include <array>

#include "core/controls.h"
#include "core/program.h"
#include "screens/analysis_screens.h"
#include "screens/dynamics_screens.h"
#include "screens/linkage_screen.h"
#include "screens/plot_screens.h"
#include "screens/selection_screens.h"

namespace kervol {

struct TitleScreen {
    TitleScreen();

    Label lblHeader, lbl_Version;
    Button cmd_Start, cmd_Abort;
};

struct DisclaimerScreen {
    DisclaimerScreen();

    Label lbl_Notices;
    Button cmd_Done;
};

struct UserScreen {
    UserScreen();

    TextField txt_UserName, txt_DesignNo, txt_Filename;
    Label lbl_UserName, lbl_DesignNo, lbl_Filename;
    Button cmd_Done;
};

struct HomeScreen {
    HomeScreen();

    Button cmd_Input, cmd_Animate, cmd_Plot, cmd_Print, cmd_Dynamics, cmd_Flywheel, cmd_Quit;
    MenuItem mnu_file, mnu_New, mnu_Open, mnu_Save, mnu_Saveas, mnu_Quit;
    MenuItem mnu_Report;
    MenuItem mnu_Export, mnu_Export_Link_Data, mnu_Export_Torque;
    MenuItem mnu_Import, mnu_Import_SVA, mnu_Import_Link2_Drive_Data;
    MenuItem mnu_Units;
    std::array<MenuItem, 6> mnu_pick;  ///< 1 to 5; 0 stays unused
    MenuItem mnu_Examples, mnu_Test, mnu_Hoeken, mnu_Roberts, mnu_Double;
    MenuItem mnu_FFT, mnu_CalcFFT;
    MenuItem mnu_Tools, mnu_SelfCheck;
    MenuItem mnu_Version, mnu_Manual, mnu_About, mnu_Disclaimer;
};

struct AboutScreen {
    AboutScreen();

    Label lblHeader, lbl_Version;
};

struct SelfCheckScreen {
    SelfCheckScreen();

    TextView txt_Report;
    Button cmd_Back, cmd_Copy;
};

struct QuitScreen {
    QuitScreen();

    Label lbl_Question;
    Button cmd_YesQuit, cmd_NoQuit;
};

struct Screens {
    explicit Screens(Program& the_program) : program(the_program) {}

    Program& program;
    TitleScreen frm_Title;
    DisclaimerScreen frm_Disclaimer;
    UserScreen frm_User;
    HomeScreen frm_HomeScreen;
    InputScreen frm_Inputnew;
    AnimateScreen frm_Animate;
    MassPropScreen frm_MassProp;
    MatrixScreen frm_Matrix;
    AboutScreen frm_About;
    PlotTypeScreen frm_PlotType;
    PlotSelectScreen frm_PlotSelect1{kPlotSelect1};
    PlotSelectScreen frm_PlotSelect2{kPlotSelect2};
    PlotSelectScreen frm_PlotSelect3{kPlotSelect3};
    PlotSelectScreen frm_PlotSelect4{kPlotSelect4};
    ChartScreen frm_Plot1{kPlot1};
    ChartScreen frm_Plot2{kPlot2};
    ChartScreen frm_Plot3{kPlot3};
    ChartScreen frm_Plot4{kPlot4};
    OwnPlotScreen frm_Myplot2{kMyplot2};
    OwnPlotScreen frm_MyPlot3{kMyPlot3};
    PolarPlotScreen frm_MyPlot4{kMyPlot4};
    PrintSelectScreen frm_PrintSelect;
    PrintDataScreen frm_PrintData;
    FlywheelScreen frm_Flywheel;
    FFTScreen frm_FFT;
    SelfCheckScreen frm_SelfCheck;
    QuitScreen frm_Quit;
};

}  // namespace kervol
