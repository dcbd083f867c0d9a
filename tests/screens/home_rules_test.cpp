// SPDX-License-Identifier: GPL-3.0-or-later
// The Home screen: what is enabled when, its units, and that nothing on it is dead.
#include <set>

#include "screens/control_lists.h"
#include "screens/home_screen.h"
#include "screens/launch_screens.h"
#include "screens/screens_fixture.h"
#include "support/compare.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

struct EnabledCase {
    bool calculated;
    bool dynamics;
    std::int16_t mode;
    /// New, Save, Save as, Export together; Calculate FFT; torque export; flywheel ("=" leaves it);
    /// print and dynamics together; plot and animate together.
    const char* expected;
};

constexpr EnabledCase kEnabled[] = {
    // calculated, dynamics, mode: file fft torque flywheel print plot
    {false, false, 1, "0 0 0 = 0 0"}, {false, false, 2, "0 0 0 = 0 0"}, {false, false, 3, "0 0 0 0 0 0"},
    {false, false, 4, "0 0 0 = 0 0"}, {false, false, 5, "0 0 0 = 0 0"},  //
    {false, true, 1, "0 0 1 = 0 0"},  {false, true, 2, "0 0 1 = 0 0"},  {false, true, 3, "0 0 1 1 0 0"},
    {false, true, 4, "0 0 1 = 0 0"},  {false, true, 5, "0 0 1 = 0 0"},  //
    {true, false, 1, "1 0 0 = 1 0"},  {true, false, 2, "1 0 0 = 1 1"},  {true, false, 3, "1 1 0 0 1 1"},
    {true, false, 4, "1 0 0 = 1 1"},  {true, false, 5, "1 0 0 = 1 1"},  //
    {true, true, 1, "1 0 1 = 1 0"},   {true, true, 2, "1 0 1 = 1 1"},   {true, true, 3, "1 1 1 1 1 1"},
    {true, true, 4, "1 0 1 = 1 1"},   {true, true, 5, "1 0 1 = 1 1"},
};

class HomeRules : public ScreensTest {
  protected:
    /// All that the rules may set, to one value.
    void Set_All(bool enabled) {
        for (Button* button : {&home.cmd_Animate, &home.cmd_Plot, &home.cmd_Print, &home.cmd_Dynamics,
                               &home.cmd_Flywheel, &home.cmd_Input, &home.cmd_Quit})
            button->enabled = enabled;
        for (MenuItem* entry : {&home.mnu_New, &home.mnu_Save, &home.mnu_Saveas, &home.mnu_Export,
                                &home.mnu_CalcFFT, &home.mnu_Export_Torque, &home.mnu_Open})
            entry->enabled = enabled;
    }

    std::string Enabled(bool before) const {
        const auto group = [](std::initializer_list<bool> flags) {
            const bool first = *flags.begin();
            for (const bool flag : flags)
                if (flag != first) return std::string("mixed");
            return std::string(first ? "1" : "0");
        };
        const bool kept = model.CalcMode != 3 && home.cmd_Flywheel.enabled == before;
        return group({home.mnu_New.enabled, home.mnu_Save.enabled, home.mnu_Saveas.enabled,
                      home.mnu_Export.enabled}) +
               " " + group({home.mnu_CalcFFT.enabled}) + " " + group({home.mnu_Export_Torque.enabled}) + " " +
               (kept ? "=" : group({home.cmd_Flywheel.enabled})) + " " +
               group({home.cmd_Print.enabled, home.cmd_Dynamics.enabled}) + " " +
               group({home.cmd_Plot.enabled, home.cmd_Animate.enabled});
    }
};

TEST_F(HomeRules, FollowWhatIsCalculatedEachTimeTheScreenComesToTheFront) {
    for (const EnabledCase& given : kEnabled) {
        for (const bool before : {false, true}) {
            Set_All(before);
            model.DataCalculated = given.calculated;
            model.DynamicsCalculated = given.dynamics;
            model.CalcMode = given.mode;
            model.StartingUp = true;
            model.NewData = false;
            Activate_Screen(*screens, ScreenId::frm_HomeScreen);
            EXPECT_EQ(Enabled(before), given.expected)
                << "calculated " << given.calculated << " dynamics " << given.dynamics << " mode "
                << given.mode << " before " << before;
            EXPECT_FALSE(model.StartingUp);
            EXPECT_TRUE(model.NewData);
            for (const bool untouched :
                 {home.cmd_Input.enabled, home.cmd_Quit.enabled, home.mnu_Open.enabled})
                EXPECT_EQ(untouched, before);
        }
    }
}

TEST_F(HomeRules, TheButtonsAloneFollowBetweenTimes) {
    for (const EnabledCase& given : kEnabled) {
        Set_All(false);
        model.DataCalculated = given.calculated;
        model.CalcMode = given.mode;
        Update_Home_Buttons(*screens);
        EXPECT_EQ(home.cmd_Print.enabled, given.calculated);
        EXPECT_EQ(home.cmd_Dynamics.enabled, given.calculated);
        EXPECT_EQ(home.cmd_Plot.enabled, given.calculated && given.mode > 1);
        EXPECT_EQ(home.cmd_Animate.enabled, given.calculated && given.mode > 1);
        EXPECT_FALSE(home.mnu_Save.enabled);
        EXPECT_FALSE(home.cmd_Flywheel.enabled);
    }
}

TEST_F(HomeRules, OpenTheirScreens) {
    home.cmd_Input.click();
    EXPECT_EQ(port.trace.front(), "show frm_Inputnew modal");
    port.trace.clear();
    home.mnu_About.click();
    EXPECT_THAT(port.trace, ElementsAre("show frm_About modal"));
}

TEST_F(HomeRules, HaveTheirCaptions) {
    const std::pair<const Button*, const char*> buttons[] = {
        {&home.cmd_Input, "&Input"}, {&home.cmd_Animate, "&Animate"},     {&home.cmd_Plot, "&Plot"},
        {&home.cmd_Print, "P&rint"}, {&home.cmd_Dynamics, "\t&Dynamics"}, {&home.cmd_Flywheel, "\t&Flywheel"},
        {&home.cmd_Quit, "&Quit"},
    };
    for (const auto& [button, caption] : buttons) EXPECT_EQ(button->caption, caption);
    const std::pair<const MenuItem*, const char*> entries[] = {
        {&home.mnu_file, "&File"},
        {&home.mnu_New, "&New"},
        {&home.mnu_Open, "&Open"},
        {&home.mnu_Save, "&Save"},
        {&home.mnu_Saveas, "Save &as"},
        {&home.mnu_Export, "Export"},
        {&home.mnu_Export_Link_Data, "Link 6 Theta-Omega-Alpha Data"},
        {&home.mnu_Export_Torque, "Link 2 Driving Torque Data"},
        {&home.mnu_Import, "&Import"},
        {&home.mnu_Import_SVA, "Haldrix Drive Data"},
        {&home.mnu_Import_Link2_Drive_Data, "Linkage Drive Data"},
        {&home.mnu_Quit, "&Quit"},
        {&home.mnu_Units, "&Units"},
        {&home.mnu_pick[1], "&ips"},
        {&home.mnu_pick[2], "&fps"},
        {&home.mnu_pick[3], "&SI"},
        {&home.mnu_pick[4], "&cgs"},
        {&home.mnu_pick[5], "&kg-mm-s"},
        {&home.mnu_Examples, "&Examples"},
        {&home.mnu_Test, "&Watt Test Linkage"},
        {&home.mnu_Hoeken, "&Hoeken Single Dwell"},
        {&home.mnu_Roberts, "&Roberts SL Linkage"},
        {&home.mnu_Double, "&Double Dwell Linkage"},
        {&home.mnu_FFT, "&FFT"},
        {&home.mnu_CalcFFT, "&Calculate FFT"},
        {&home.mnu_Version, "&Help"},
        {&home.mnu_Manual, "&Manual"},
        {&home.mnu_About, "&About Kervol"},
        {&home.mnu_Disclaimer, "&Disclaimer"},
    };
    for (const auto& [entry, caption] : entries) EXPECT_EQ(entry->caption, caption);
}

TEST_F(HomeRules, AUnitSystemRelabelsAndConvertsNothing) {
    const char* const lengths[] = {"in", "ft", "m", "cm", "mm"};
    const char* const torques[] = {"lb-in", "lb-ft", "N-m", "dyn-cm", "kN-mm"};
    for (std::size_t system = 1; system <= 5; ++system) {
        const LinkageModel before = model;
        home.mnu_pick[system].click();
        EXPECT_EQ(model.UnitSystem, static_cast<std::int16_t>(system));
        EXPECT_EQ(model.UnitText(6), lengths[system - 1]);
        EXPECT_EQ(model.UnitText(9), torques[system - 1]);
        for (std::size_t other = 1; other <= 5; ++other)
            EXPECT_EQ(home.mnu_pick[other].checked, other == system);
        EXPECT_THAT(Differing_Fields(model, before), ::testing::IsSubsetOf({"UnitSystem", "UnitText"}));
        Open_Input();
        EXPECT_EQ(Link(Field_Link3).text, "8.625");
        EXPECT_EQ(input.lbl_Units.at(Field_Link2).caption, lengths[system - 1]);
        EXPECT_EQ(input.lbl_Units.at(Field_O6Y).caption, lengths[system - 1]);
        EXPECT_EQ(input.lbl_Degrees.at(Field_Delta5).caption, "deg");
    }
}

TEST_F(HomeRules, AUnitSystemOfAFileIsCheckedAndZeroChecksTheFirst) {
    const auto checked = [&](std::int16_t system) {
        model.UnitSystem = system;
        Fill_Screens(*screens);
        std::vector<std::size_t> on;
        for (std::size_t i = 1; i <= 5; ++i)
            if (home.mnu_pick[i].checked) on.push_back(i);
        EXPECT_EQ(model.UnitSystem, system);
        return on;
    };
    EXPECT_THAT(checked(4), ElementsAre(4U));
    EXPECT_THAT(checked(0), ElementsAre(1U));
    EXPECT_THAT(checked(-3), ElementsAre(1U));
    EXPECT_THAT(checked(9), ::testing::IsEmpty());
}

/// Visits controls and collects those of a screen that a person may click without any effect.
struct DeadControls {
    std::set<std::string> names, dead;

    void operator()(const std::string& name, const Button& button) { Check(name, button.click); }
    void operator()(const std::string& name, const MenuItem& item) { Check(name, item.click); }
    void operator()(const std::string& name, const OptionButton& option) { Check(name, option.click); }
    void operator()(const std::string& name, const Grid&) { names.insert(name); }
    template <class T>
    requires std::derived_from<T, Control>
    void operator()(const std::string& name, const T&) { names.insert(name); }
    template <class T, std::size_t count>
    void operator()(const std::string& name, const std::array<T, count>& group) {
        for (std::size_t i = 0; i < count; ++i) (*this)(name + "_" + std::to_string(i), group[i]);
    }

  private:
    void Check(const std::string& name, const Event& click) {
        names.insert(name);
        if (!click) dead.insert(name);
    }
};

TEST_F(HomeRules, EveryButtonAndEntryDoesSomething) {
    DeadControls controls;
    Visit_Controls(home, controls);
    Visit_Controls(input, controls);
    Visit_Controls(screens->frm_Title, controls);
    Visit_Controls(screens->frm_Disclaimer, controls);
    Visit_Controls(screens->frm_User, controls);
    Visit_Controls(screens->frm_MassProp, controls);
    Visit_Controls(screens->frm_Matrix, controls);
    Visit_Controls(screens->frm_PlotType, controls);
    for (PlotSelectScreen* form : {&screens->frm_PlotSelect1, &screens->frm_PlotSelect2,
                                   &screens->frm_PlotSelect3, &screens->frm_PlotSelect4})
        Visit_Controls(*form, controls);
    for (ChartScreen* form :
         {&screens->frm_Plot1, &screens->frm_Plot2, &screens->frm_Plot3, &screens->frm_Plot4})
        Visit_Controls(*form, controls);
    for (OwnPlotScreen* form : {&screens->frm_Myplot2, &screens->frm_MyPlot3})
        Visit_Controls(*form, controls);
    Visit_Controls(screens->frm_MyPlot4, controls);
    Visit_Controls(screens->frm_PrintSelect, controls);
    Visit_Controls(screens->frm_PrintData, controls);
    Visit_Controls(screens->frm_Flywheel, controls);
    Visit_Controls(screens->frm_FFT, controls);
    Visit_Controls(screens->frm_SelfCheck, controls);
    Visit_Controls(screens->frm_Quit, controls);
    // Headings of menus, the place that no unit system has, and options that are read when a screen goes on.
    EXPECT_THAT(controls.dead,
                ElementsAre("mnu_Examples", "mnu_Export", "mnu_FFT", "mnu_Import", "mnu_Tools", "mnu_Units",
                            "mnu_Version", "mnu_file", "mnu_pick_0", "opt_Coord_0", "opt_Coord_1",
                            "opt_PickPlot_0", "opt_PickPlot_1", "opt_PickPlot_2", "opt_PickPlot_3",
                            "opt_Whereto_0", "opt_Whereto_1", "opt_Whereto_2"));
    EXPECT_TRUE(controls.names.contains("txt_Linkout_16"));
}

}  // namespace
}  // namespace kervol
