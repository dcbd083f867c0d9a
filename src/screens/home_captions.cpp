// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/screens.h"

namespace kervol {

TitleScreen::TitleScreen() {
    lblHeader.caption = "A Program for the Kinematic Analysis and Synthesis of Kervol Linkages";
    cmd_Start.caption = "&Start >";
    cmd_Abort.caption = "< &Abort";
}

DisclaimerScreen::DisclaimerScreen() {
    lbl_Notices.caption =
        "This program computes what it is told to compute. Whoever designs with it is responsible for the "
        "quality of "
        "any design made with its help, and should check results by other means before anything is built "
        "from them.\n\n"
        "The program comes without a warranty of any kind. Nobody who wrote or distributes it is liable for "
        "incidental or consequential damages that arise from its use.";
    cmd_Done.caption = "&Next >";
}

UserScreen::UserScreen() {
    lbl_UserName.caption = "Please enter your name and/or a project ID:";
    lbl_DesignNo.caption = "Please enter a design number:";
    lbl_Filename.caption = "Please enter a file name:";
    txt_Filename.text = "Model1";
    cmd_Done.caption = "Next >";
}

HomeScreen::HomeScreen() {
    cmd_Input.caption = "&Input";
    cmd_Animate.caption = "&Animate";
    cmd_Plot.caption = "&Plot";
    cmd_Print.caption = "P&rint";
    cmd_Dynamics.caption = "\t&Dynamics";
    cmd_Flywheel.caption = "\t&Flywheel";
    cmd_Quit.caption = "&Quit";
    mnu_file.caption = "&File";
    mnu_New.caption = "&New";
    mnu_Open.caption = "&Open";
    mnu_Save.caption = "&Save";
    mnu_Saveas.caption = "Save &as";
    mnu_Report.caption = "&Report...";
    mnu_Export.caption = "Export";
    mnu_Export_Link_Data.caption = "Link 6 Theta-Omega-Alpha Data";
    mnu_Export_Torque.caption = "Link 2 Driving Torque Data";
    mnu_Import.caption = "&Import";
    mnu_Import_SVA.caption = "Haldrix Drive Data";
    mnu_Import_Link2_Drive_Data.caption = "Linkage Drive Data";
    mnu_Quit.caption = "&Quit";
    mnu_Units.caption = "&Units";
    const std::array<const char*, 5> systems = {"&ips", "&fps", "&SI", "&cgs", "&kg-mm-s"};
    for (std::size_t i = 0; i < systems.size(); ++i) mnu_pick[i + 1].caption = systems[i];
    mnu_Examples.caption = "&Examples";
    mnu_Test.caption = "&Watt Test Linkage";
    mnu_Hoeken.caption = "&Hoeken Single Dwell";
    mnu_Roberts.caption = "&Roberts SL Linkage";
    mnu_Double.caption = "&Double Dwell Linkage";
    mnu_FFT.caption = "&FFT";
    mnu_CalcFFT.caption = "&Calculate FFT";
    mnu_Tools.caption = "&Tools";
    mnu_SelfCheck.caption = "Self-check...";
    mnu_Version.caption = "&Help";
    mnu_Manual.caption = "&Manual";
    mnu_About.caption = "&About Kervol";
    mnu_Disclaimer.caption = "&Disclaimer";
}

AboutScreen::AboutScreen() {
    lblHeader.caption = "A Program for the Kinematic Analysis and Synthesis of Kervol Linkages";
}

SelfCheckScreen::SelfCheckScreen() {
    cmd_Back.caption = "< &Back";
    cmd_Copy.caption = "&Copy";
}

QuitScreen::QuitScreen() {
    lbl_Question.caption = "Do you really want to Quit?";
    cmd_YesQuit.caption = "&Yes >";
    cmd_NoQuit.caption = "< &No";
}

}  // namespace kervol
