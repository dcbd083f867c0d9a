// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/home_screen.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "core/arithmetic.h"
#include "core/mathematics.h"
#include "core/report.h"
#include "core/text_encoding.h"
#include "core/units.h"
#include "files/exchange.h"
#include "files/model_file.h"
#include "kinematics/examples.h"
#include "report/report_page.h"
#include "screens/geometry_fields.h"
#include "screens/launch_screens.h"
#include "screens/motion_fields.h"
#include "screens/wiring.h"
#include "startup/launch.h"

namespace kervol {
namespace {

constexpr const char* kSaveFirst =
    "The current data has not been saved.  Do you want to save it before resetting?";

bool Unsaved(const LinkageModel& model) {
    return model.DataCalculated && !model.DataSaved;
}

bool Wants_To_Save(Port& port) {
    return port.Show_Message({kSaveFirst, Icon::None, Buttons::YesNo, Answer::Yes}) == Answer::Yes;
}

void Clear_Input_Picture(Screens& screens) {
    if (screens.frm_Inputnew.Picture1 != nullptr) screens.frm_Inputnew.Picture1->Clear();
}

/// Deliberate: an example writes its pivots in both frames but not the ground angle, which may be that of the
/// model before it, and a pivot's field that nobody edits leaves the angle as it is.
void Level_Ground(LinkageModel& model) {
    Cart_to_Polar(model.O4X, model.O4Y, model.Link1, model.GroundAngleDeg);
    model.GroundAngle = Single(model.GroundAngleDeg * RadiansPerDegree);
}

void mnu_New_Click(Screens& screens) {
    Program& program = screens.program;
    if (Unsaved(program.model) && Wants_To_Save(program.port)) SaveAs(screens);
    const Answer answer =
        program.port.Show_Message({"Please confirm your order to reset all variables to initial values",
                                   Icon::None, Buttons::OKCancel});
    if (answer != Answer::OK) return;
    Initialize(program);
    Clear_Tables(program);
    program.model.DataCalculated = false;
    program.model.ModelTitle.clear();
    screens.frm_Animate.cmb_wait.text = AnimateScreen().cmb_wait.text;
    Level_Ground(program.model);
    Fill_Screens(screens);
    Update_Home_Buttons(screens);
    Home_Form_Activate(screens);
    program.model.DataFromFile = false;
}

/// Before a file is read over results that no file holds.
void Offer_To_Save(Screens& screens) {
    if (!Unsaved(screens.program.model) || !Wants_To_Save(screens.program.port)) return;
    // Deliberate: the save dialog comes twice.
    SaveAs(screens);
    SaveAs(screens);
}

/// What follows on a file that could be opened, however far it was read.
void Close_Reading(Screens& screens, const ReadReport& report) {
    const bool opened = report.line > 0;
    if (!opened) return;
    Update_Home_Menu(screens);
    screens.frm_HomeScreen.mnu_New.enabled = true;
    Clear_Input_Picture(screens);
}

void mnu_Open_Click(Screens& screens) {
    Program& program = screens.program;
    Offer_To_Save(screens);
    Clear_Tables(program);
    const auto path = program.port.Ask_File_To_Open(
        {"Open a model", "KERVOL for Windows (*.kvl)|*.kvl | Kervol DOS(*.ikv)|*.ikv| All (*.*)|*.*|",
         "*.kvl"});
    if (path) Close_Reading(screens, Open_Model(program, *path));
}

void Import(Screens& screens, const FileDialog& dialog,
            ReadReport (*read)(Program& program, const std::string& path)) {
    Offer_To_Save(screens);
    const auto path = screens.program.port.Ask_File_To_Open(dialog);
    if (path) Close_Reading(screens, read(screens.program, *path));
}

void mnu_Import_SVA_Click(Screens& screens) {
    Import(screens, {"Open a Haldrix export data file", "Haldrix Export (*.sva)|*.sva|(*.*)|*.*|", "*.sva"},
           Import_Cam_Drive);
}

void mnu_Import_Link2_Drive_Data_Click(Screens& screens) {
    Import(screens, {"Open a Linkage Drive Data file", "Linkage Export (*.out)|*.out|(*.*)|*.*|", "*.out"},
           Import_Linkage_Drive);
}

void mnu_Export_Link_Data_Click(Screens& screens) {
    Program& program = screens.program;
    const auto path =
        program.port.Ask_File_To_Save({"Export Link 6 Data", "Kervol Export (*.out)|*.out|(*.*)|*.*|",
                                       program.model.ModelName + "_kvl.out"});
    if (path) Export_Link6(program, *path);
}

void mnu_Export_Torque_Click(Screens& screens) {
    Program& program = screens.program;
    const auto path = program.port.Ask_File_To_Save({"Export Link 2 Driving Torque Data",
                                                     "Link 2 Torque Export (*.trq)|*.trq|(*.*)|*.*|",
                                                     program.model.ModelName + "_kvl.trq"});
    if (path) Export_Torque(program, *path);
}

void mnu_Save_Click(Screens& screens) {
    const LinkageModel& model = screens.program.model;
    if (model.DataSaved && !model.ModelPath.empty())
        Save_Model(screens.program);
    else
        SaveAs(screens);
}

void mnu_Report_Click(Screens& screens) {
    Program& program = screens.program;
    const auto path =
        program.port.Ask_File_To_Save({"Write a Report", "*.html", program.model.ModelName + ".html"});
    if (!path || !Write_Report(program, *path)) return;
    program.port.Show_Message({"The report was written to \n" + Decoded(*path), Icon::Information});
}

void mnu_pick_Click(Screens& screens, std::int16_t index) {
    LinkageModel& model = screens.program.model;
    auto& picks = screens.frm_HomeScreen.mnu_pick;
    for (MenuItem& pick : picks) pick.checked = false;
    picks.at(static_cast<std::size_t>(index)).checked = true;
    model.UnitSystem = index;
    Put_Units(model);
}

/// Shows the chosen example in the fields that it changes.
void Put_Example(Screens& screens) {
    LinkageModel& model = screens.program.model;
    model.Loading = true;
    Put_Input_Geometry(screens);
    Put_Calc_Geometry(screens);
    for (LinkageScreen* screen : {static_cast<LinkageScreen*>(&screens.frm_Inputnew),
                                  static_cast<LinkageScreen*>(&screens.frm_Animate)}) {
        Put_InitialCond(screens, *screen);
        Put_OpenCross(model, *screen);
    }
    model.Loading = false;
}

void Choose_Example(Screens& screens, std::string_view name) {
    Program& program = screens.program;
    LinkageModel& model = program.model;
    Load_Example(model, *Find_Example(name));
    Level_Ground(model);
    model.CalcMode = 3;
    Put_Example(screens);
    model.DataCalculated = true;
    model.DataFromFile = false;
    model.DynamicsCalculated = false;
    program.port.Show_Screen(ScreenId::frm_Inputnew, Modality::Modal);
    Update_Home_Menu(screens);
}

void cmd_Animate_Click(Screens& screens) {
    screens.program.animation.CurrentStep = 0;
    screens.program.port.Show_Screen(ScreenId::frm_Animate, Modality::Modal);
}

/// Whatever has changed since: the selections are to offer what there is now.
void Open_Selection(Screens& screens, ScreenId screen) {
    screens.program.model.NewData = true;
    screens.program.port.Show_Screen(screen, Modality::Modal);
}

std::string No_Manual_Text(const std::vector<std::string>& places) {
    std::string text = "The manual was not found. It was looked for at";
    for (const std::string& place : places) text += "\n" + Decoded(place);
    return text + "\nscripts/manual builds it from the sources of this program.";
}

void mnu_Manual_Click(Screens& screens) {
    Port& port = screens.program.port;
    const std::vector<std::string> places = port.Manual_Places();
    const auto manual = std::find_if(places.begin(), places.end(), [](const std::string& place) {
        std::error_code error;
        return std::filesystem::is_regular_file(place, error);
    });
    if (manual == places.end()) {
        port.Show_Message({No_Manual_Text(places), Icon::Exclamation});
        return;
    }
    if (port.Open_File(*manual)) return;
    port.Show_Message(
        {"There is no program that shows the manual. Open this file in a browser:\n" + Decoded(*manual),
         Icon::Exclamation});
}

void mnu_Disclaimer_Click(Screens& screens) {
    screens.program.model.StartingUp = false;
    screens.program.port.Show_Screen(ScreenId::frm_Disclaimer, Modality::Modal);
}

}  // namespace

void SaveAs(Screens& screens) {
    Program& program = screens.program;
    Procedure(program, "frm_Homescreen.SaveAs", [&] {
        const auto path =
            program.port.Ask_File_To_Save({"Save the Model", "*.kvl", program.model.ModelName + ".kvl"});
        if (path) Save_Model_As(program, *path);
    });
}

void Quit(Screens& screens) {
    if (Unsaved(screens.program.model)) SaveAs(screens);
    screens.program.port.Show_Screen(ScreenId::frm_Quit, Modality::Modal);
}

void Home_Form_Activate(Screens& screens) {
    LinkageModel& model = screens.program.model;
    model.StartingUp = false;
    model.NewData = true;
    Update_Home_Menu(screens);
}

void Update_Home_Menu(Screens& screens) {
    const LinkageModel& model = screens.program.model;
    HomeScreen& home = screens.frm_HomeScreen;
    for (MenuItem* entry : {&home.mnu_New, &home.mnu_Save, &home.mnu_Saveas, &home.mnu_Export})
        entry->enabled = model.DataCalculated;
    home.mnu_Report.enabled = model.DataCalculated;
    home.mnu_CalcFFT.enabled = model.DataCalculated && model.CalcMode == 3;
    home.mnu_SelfCheck.enabled = model.DataCalculated;
    home.mnu_Export_Torque.enabled = model.DynamicsCalculated;
    if (model.CalcMode == 3) home.cmd_Flywheel.enabled = model.DynamicsCalculated;
    Update_Home_Buttons(screens);
}

void Update_Home_Buttons(Screens& screens) {
    const LinkageModel& model = screens.program.model;
    HomeScreen& home = screens.frm_HomeScreen;
    home.cmd_Dynamics.enabled = home.cmd_Print.enabled = model.DataCalculated;
    home.cmd_Animate.enabled = home.cmd_Plot.enabled = model.DataCalculated && model.CalcMode > 1;
}

void Wire_Home_Screen(Screens& screens) {
    HomeScreen& home = screens.frm_HomeScreen;
    const Wiring on(screens);
    const auto opens = [](ScreenId screen) {
        return [screen](Screens& all) { all.program.port.Show_Screen(screen, Modality::Modal); };
    };
    const auto example = [](std::string_view name) {
        return [name](Screens& all) { Choose_Example(all, name); };
    };
    on(home.cmd_Input.click, "frm_Homescreen.Input", opens(ScreenId::frm_Inputnew));
    on(home.cmd_Animate.click, "frm_Homescreen.Animate", cmd_Animate_Click);
    on(home.cmd_Dynamics.click, "frm_Homescreen.Dynamics", opens(ScreenId::frm_MassProp));
    on(home.cmd_Flywheel.click, "frm_Homescreen.Flywheel", opens(ScreenId::frm_Flywheel));
    on(home.mnu_CalcFFT.click, "frm_Homescreen.FFT", opens(ScreenId::frm_FFT));
    on(home.cmd_Plot.click, "frm_Homescreen.Plot",
       [](Screens& all) { Open_Selection(all, ScreenId::frm_PlotType); });
    on(home.cmd_Print.click, "frm_Homescreen.Print",
       [](Screens& all) { Open_Selection(all, ScreenId::frm_PrintSelect); });
    on(home.cmd_Quit.click, "frm_Homescreen.Quit", Quit);
    on(home.mnu_Quit.click, "frm_Homescreen.Quit", Quit);
    on(home.mnu_New.click, "frm_Homescreen.New", mnu_New_Click);
    on(home.mnu_Open.click, "frm_Homescreen.Open", mnu_Open_Click);
    on(home.mnu_Save.click, "frm_Homescreen.Save", mnu_Save_Click);
    on(home.mnu_Saveas.click, "frm_Homescreen.SaveAs", SaveAs);
    on(home.mnu_Report.click, "frm_Homescreen.Report", mnu_Report_Click);
    on(home.mnu_Export_Link_Data.click, "mnu_link4_Click", mnu_Export_Link_Data_Click);
    on(home.mnu_Export_Torque.click, "mnu_Torque_export_Click", mnu_Export_Torque_Click);
    on(home.mnu_Import_SVA.click, "mnu_Link_Data_Import_Click", mnu_Import_SVA_Click);
    on(home.mnu_Import_Link2_Drive_Data.click, "mnu_Link_Data_Import_Click",
       mnu_Import_Link2_Drive_Data_Click);
    for (std::size_t i = 1; i < home.mnu_pick.size(); ++i)
        on(home.mnu_pick[i].click, "frm_Homescreen.Units",
           [i](Screens& all) { mnu_pick_Click(all, static_cast<std::int16_t>(i)); });
    on(home.mnu_Test.click, "frm_Homescreen.Example", example("watt"));
    on(home.mnu_Hoeken.click, "frm_Homescreen.Example", example("hoeken"));
    on(home.mnu_Roberts.click, "frm_Homescreen.Example", example("roberts"));
    on(home.mnu_Double.click, "frm_Homescreen.Example", example("double-dwell"));
    on(home.mnu_SelfCheck.click, "frm_Homescreen.SelfCheck", opens(ScreenId::frm_SelfCheck));
    on(home.mnu_Manual.click, "frm_Homescreen.Manual", mnu_Manual_Click);
    on(home.mnu_About.click, "frm_Homescreen.About", opens(ScreenId::frm_About));
    on(home.mnu_Disclaimer.click, "frm_Homescreen.Disclaimer", mnu_Disclaimer_Click);
}

}  // namespace kervol
