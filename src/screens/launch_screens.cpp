// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/launch_screens.h"

#include <array>

#include "core/arithmetic.h"
#include "core/report.h"
#include "core/units.h"
#include "screens/animate_events.h"
#include "screens/fft_events.h"
#include "screens/fields.h"
#include "screens/flywheel_events.h"
#include "screens/geometry_fields.h"
#include "screens/home_screen.h"
#include "screens/input_events.h"
#include "screens/mass_prop_events.h"
#include "screens/matrix_events.h"
#include "screens/motion_fields.h"
#include "screens/plot_events.h"
#include "screens/plot_select_events.h"
#include "screens/print_select_events.h"
#include "screens/selection_rules.h"
#include "screens/self_check_events.h"
#include "screens/wiring.h"
#include "startup/launch.h"

namespace kervol {
namespace {

void cmd_Start_Click(Screens& screens) {
    screens.program.port.Hide_Screen(ScreenId::frm_Title);
    screens.program.port.Show_Screen(ScreenId::frm_Disclaimer, Modality::Modal);
}

void Disclaimer_Done_Click(Screens& screens) {
    screens.program.port.Hide_Screen(ScreenId::frm_Disclaimer);
    if (screens.program.model.StartingUp)
        screens.program.port.Show_Screen(ScreenId::frm_User, Modality::Modal);
}

void User_Done_Click(Screens& screens) {
    LinkageModel& model = screens.program.model;
    const UserScreen& user = screens.frm_User;
    Port& port = screens.program.port;
    if (user.txt_UserName.text.empty()) {
        port.Set_Focus(ScreenId::frm_User, "txt_UserName");
        return;
    }
    model.UserName = user.txt_UserName.text;
    model.DesignNumber = Int16(Typed_Number(user.txt_DesignNo.text));
    port.Hide_Screen(ScreenId::frm_User);
    port.Show_Screen(ScreenId::frm_HomeScreen, Modality::Modeless);
}

void txt_Filename_LostFocus(Screens& screens) {
    screens.program.model.ModelName = screens.frm_User.txt_Filename.text;
}

void User_Form_Activate(Screens& screens) {
    const LinkageModel& model = screens.program.model;
    UserScreen& user = screens.frm_User;
    user.txt_UserName.text = screens.program.port.User_Name();
    user.txt_DesignNo.text = std::to_string(model.DesignNumber);
    user.txt_Filename.text = model.ModelName;
}

std::string Version_Line(const LinkageModel& model) {
    return model.ProgramTitle + "\nVersion " + model.VersionText + "  Release " + model.ReleaseText + "\n" +
           model.ProgramDate;
}

/// What tells one screen from another.
struct ScreenRow {
    ScreenId screen;
    const char* name;
    const char* title;  ///< before the tail of all captions; the program's title alone where there is none
    void (*activate)(Screens& screens);
    /// What the close box and Escape press; where there is nothing they only close.
    const Button& (*closing_button)(const Screens& screens);
};

/// An edited linkage cannot be taken along, but the screen can be left.
const Button& Closing_Animate(const Screens& all) {
    return all.frm_Animate.cmd_Done.enabled ? all.frm_Animate.cmd_Done : all.frm_Animate.cmd_Back;
}

void Quit_Form_Activate(Screens& screens) {
    screens.program.port.Set_Focus(ScreenId::frm_Quit, "cmd_NoQuit");
}

#define CLOSES(button) [](const Screens& all) -> const Button& { return all.button; }
#define ACTIVATES(form) [](Screens& all) { Selection_Form_Activate(all.program, all.form); }

/// A screen of plots: `kForm` is the member of `Screens`.
template <auto kForm>
constexpr ScreenRow Plots_On(ScreenId id, const char* name) {
    return {id, name, "", [](Screens& all) { Plot_Form_Activate(all, all.*kForm); },
            [](const Screens& all) -> const Button& { return (all.*kForm).cmd_Replot; }};
}

/// In the order of `ScreenId`.
constexpr auto kScreens = std::to_array<ScreenRow>({
    {ScreenId::frm_Title, "frm_Title", nullptr, nullptr, CLOSES(frm_Title.cmd_Abort)},
    {ScreenId::frm_Disclaimer, "frm_Disclaimer", "", nullptr, CLOSES(frm_Disclaimer.cmd_Done)},
    {ScreenId::frm_User, "frm_User", nullptr, User_Form_Activate, CLOSES(frm_User.cmd_Done)},
    {ScreenId::frm_HomeScreen, "frm_HomeScreen", "Home Screen", Home_Form_Activate,
     CLOSES(frm_HomeScreen.cmd_Quit)},
    {ScreenId::frm_Inputnew, "frm_Inputnew", "Input Screen", Input_Form_Activate,
     CLOSES(frm_Inputnew.cmd_Cancel)},
    {ScreenId::frm_Animate, "frm_Animate", "Animation Screen", Animate_Form_Activate, Closing_Animate},
    {ScreenId::frm_MassProp, "frm_MassProp", "Dynamics Screen", Mass_Prop_Form_Activate,
     CLOSES(frm_MassProp.cmd_Cancel)},
    {ScreenId::frm_Matrix, "frm_Matrix", "Matrix Screen", Matrix_Form_Activate, CLOSES(frm_Matrix.cmd_Back)},
    {ScreenId::frm_About, "frm_About", nullptr, nullptr, nullptr},
    {ScreenId::frm_PlotType, "frm_PlotType", "Select Plot Type", Plot_Type_Form_Activate,
     CLOSES(frm_PlotType.cmd_CancelPickPlot)},
    {ScreenId::frm_PlotSelect1, "frm_PlotSelect1", "Select Plot Data", Plot_Select1_Form_Activate,
     CLOSES(frm_PlotSelect1.cmd_Cancel)},
    {ScreenId::frm_PlotSelect2, "frm_PlotSelect2", "Select Plot Data", ACTIVATES(frm_PlotSelect2),
     CLOSES(frm_PlotSelect2.cmd_Cancel)},
    {ScreenId::frm_PlotSelect3, "frm_PlotSelect3", "Select Plot Data", ACTIVATES(frm_PlotSelect3),
     CLOSES(frm_PlotSelect3.cmd_Cancel)},
    {ScreenId::frm_PlotSelect4, "frm_PlotSelect4", "Select Plot Data", ACTIVATES(frm_PlotSelect4),
     CLOSES(frm_PlotSelect4.cmd_Cancel)},
    Plots_On<&Screens::frm_Plot1>(ScreenId::frm_Plot1, "frm_Plot1"),
    Plots_On<&Screens::frm_Plot2>(ScreenId::frm_Plot2, "frm_Plot2"),
    Plots_On<&Screens::frm_Plot3>(ScreenId::frm_Plot3, "frm_Plot3"),
    Plots_On<&Screens::frm_Plot4>(ScreenId::frm_Plot4, "frm_Plot4"),
    Plots_On<&Screens::frm_Myplot2>(ScreenId::frm_Myplot2, "frm_Myplot2"),
    Plots_On<&Screens::frm_MyPlot3>(ScreenId::frm_MyPlot3, "frm_MyPlot3"),
    Plots_On<&Screens::frm_MyPlot4>(ScreenId::frm_MyPlot4, "frm_MyPlot4"),
    {ScreenId::frm_PrintSelect, "frm_PrintSelect", "Print Select", Print_Select_Form_Activate,
     CLOSES(frm_PrintSelect.cmd_Cancel)},
    {ScreenId::frm_PrintData, "frm_PrintData", "Output Screen", nullptr, CLOSES(frm_PrintData.cmd_Cancel)},
    {ScreenId::frm_Flywheel, "frm_Flywheel", "Flywheel Screen", Flywheel_Form_Activate,
     CLOSES(frm_Flywheel.cmd_Cancel)},
    {ScreenId::frm_FFT, "frm_FFT", "Fourier Transform", FFT_Form_Activate, CLOSES(frm_FFT.cmd_Cancel)},
    {ScreenId::frm_SelfCheck, "frm_SelfCheck", "Self-check", Self_Check_Form_Activate,
     CLOSES(frm_SelfCheck.cmd_Back)},
    {ScreenId::frm_Quit, "frm_Quit", nullptr, Quit_Form_Activate, CLOSES(frm_Quit.cmd_NoQuit)},
});

#undef ACTIVATES
#undef CLOSES

constexpr bool Are_In_Order() {
    for (std::size_t i = 0; i < kScreens.size(); ++i)
        if (kScreens[i].screen != static_cast<ScreenId>(i)) return false;
    return kScreens.size() == NumScreens;
}
static_assert(Are_In_Order());

const ScreenRow& Row_Of(ScreenId screen) {
    return kScreens.at(static_cast<std::size_t>(screen));
}

}  // namespace

void Fill_Screens(Screens& screens) {
    const LinkageModel& model = screens.program.model;
    Put_Input_Geometry(screens);
    Put_Calc_Geometry(screens);
    Put_InitialCond(screens, screens.frm_Inputnew);
    Put_InitialCond(screens, screens.frm_Animate);
    Put_Link_Data(model, screens.frm_MassProp);
    Put_OpenCross(model, screens.frm_Inputnew);
    Put_OpenCross(model, screens.frm_Animate);
    Put_Settings(model, screens.frm_Animate);
    screens.frm_Inputnew.txt_header.text = screens.frm_Animate.txt_header.text = model.ModelTitle;
    auto& picks = screens.frm_HomeScreen.mnu_pick;
    for (MenuItem& pick : picks) pick.checked = false;
    const std::size_t system = model.UnitSystem <= 0 ? 1 : static_cast<std::size_t>(model.UnitSystem);
    if (system < picks.size()) picks[system].checked = true;
    Put_Check(screens.frm_MassProp.chk_Torque, model.TorqueImported);
    Update_Home_Menu(screens);
}

void Wire_Screens(Screens& screens) {
    const Wiring on(screens);
    const auto hides = [](ScreenId screen) {
        return [screen](Screens& all) { all.program.port.Hide_Screen(screen); };
    };
    Wire_Home_Screen(screens);
    Wire_Input_Screen(screens);
    Wire_Animate_Screen(screens);
    Wire_Mass_Prop_Screen(screens);
    Wire_Matrix_Screen(screens);
    Wire_Plot_Select_Screens(screens);
    Wire_Plot_Screens(screens);
    Wire_Print_Select_Screens(screens);
    Wire_Flywheel_Screen(screens);
    Wire_FFT_Screen(screens);
    Wire_Self_Check_Screen(screens);
    on(screens.frm_Title.cmd_Start.click, "frm_Title.Start", cmd_Start_Click);
    on(screens.frm_Title.cmd_Abort.click, "frm_Title.Abort",
       [](Screens& all) { all.program.port.Show_Screen(ScreenId::frm_Quit, Modality::Modal); });
    on(screens.frm_Disclaimer.cmd_Done.click, "frm_Disclaimer.Done", Disclaimer_Done_Click);
    on(screens.frm_User.cmd_Done.click, "frm_User.Done", User_Done_Click);
    on(screens.frm_User.txt_Filename.lost_focus, "frm_User.Filename", txt_Filename_LostFocus);
    on(screens.frm_User.txt_Filename.enter, "frm_User.Filename", txt_Filename_LostFocus);
    on(screens.frm_User.txt_UserName.enter, "frm_User.UserName",
       [](Screens& all) { all.program.port.Set_Focus(ScreenId::frm_User, "cmd_Done"); });
    on(screens.frm_Quit.cmd_YesQuit.click, "frm_Quit.Yes",
       [](Screens& all) { all.program.port.End_Program(); });
    on(screens.frm_Quit.cmd_NoQuit.click, "frm_Quit.No", hides(ScreenId::frm_Quit));
}

std::string_view Screen_Name(ScreenId screen) {
    return Row_Of(screen).name;
}

void Activate_Screen(Screens& screens, ScreenId screen) {
    const ScreenRow& row = Row_Of(screen);
    if (row.activate != nullptr) Procedure(screens.program, "Form_Activate", [&] { row.activate(screens); });
}

void Close_Screen(Screens& screens, ScreenId screen) {
    const ScreenRow& row = Row_Of(screen);
    if (row.closing_button == nullptr) return screens.program.port.Hide_Screen(screen);
    const Button& button = row.closing_button(screens);
    if (button.enabled && button.click) button.click();
}

std::string Screen_Caption(const Screens& screens, ScreenId screen) {
    const LinkageModel& model = screens.program.model;
    const char* title = Row_Of(screen).title;
    return title == nullptr ? model.ProgramTitle : title + model.CaptionTail;
}

void Launch(Screens& screens, const std::string& command_line) {
    Program& program = screens.program;
    Set_Program_Values(program.model);
    screens.frm_Title.lbl_Version.caption = Version_Line(program.model);
    screens.frm_About.lbl_Version.caption = Version_Line(program.model);
    Wire_Screens(screens);
    Initialize(program);
    Fill_Screens(screens);
    Open_Clicked_File(program, command_line);
    // A file that was read has brought its own unit system.
    if (!program.model.DataFromFile) {
        program.model.UnitSystem = 1;
        Put_Units(program.model);
        Fill_Screens(screens);
    }
    program.port.Show_Screen(ScreenId::frm_Title, Modality::Modal);
}

}  // namespace kervol
