// SPDX-License-Identifier: GPL-3.0-or-later
// The examples of the Home screen's menu, one after another.
#include "screens/screens_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

class ExamplesMenu : public ScreensTest {
  protected:
    static std::string Chosen(const std::array<OptionButton, 2>& group) {
        if (group[0].on == group[1].on) return "neither";
        return group[0].on ? group[0].caption : group[1].caption;
    }
};

TEST_F(ExamplesMenu, OpensTheInputScreenOverSetFlags) {
    model.CalcMode = 2;
    model.DataCalculated = false;
    model.DataFromFile = model.DynamicsCalculated = true;
    std::vector<bool> flags;
    port.opening[ScreenId::frm_Inputnew] = [&] {
        flags = {model.DataCalculated, model.DataFromFile, model.DynamicsCalculated, model.Loading};
    };
    home.mnu_Roberts.click();
    EXPECT_THAT(flags, ElementsAre(true, false, false, false));
    EXPECT_THAT(port.trace, ElementsAre("show frm_Inputnew modal"));
    EXPECT_EQ(model.CalcMode, 3);
    EXPECT_TRUE(input.opt_Calctype[0].on);
    EXPECT_EQ(model.ModelTitle, "Watts 6-bar Chain with Roberts 4-bar SL as Stage 2");
    EXPECT_EQ(input.txt_header.text, model.ModelTitle);
}

TEST_F(ExamplesMenu, RefreshesTheHomeScreenOnReturn) {
    model.DataCalculated = true;
    port.script[ScreenId::frm_Inputnew] = [&] { input.cmd_Calc.click(); };
    home.mnu_Test.click();
    EXPECT_TRUE(home.mnu_Save.enabled);
    EXPECT_TRUE(home.cmd_Plot.enabled);
    port.script[ScreenId::frm_Inputnew] = nullptr;
    home.mnu_Test.click();
    EXPECT_FALSE(model.DataCalculated) << "cleared as the Input screen opened";
    EXPECT_FALSE(home.mnu_Save.enabled);
    EXPECT_FALSE(home.cmd_Plot.enabled);
}

TEST_F(ExamplesMenu, EachShowsItsLinkage) {
    home.mnu_Test.click();
    EXPECT_EQ(model.LinkageType, "W");
    EXPECT_THAT((std::vector{Link(Field_Link1).text, Link(Field_Link2).text, Link(Field_Link3).text,
                             Link(Field_Link4).text, Link(Field_LinkO4D).text, Link(Field_Delta4).text}),
                ElementsAre("9.375", "2.000", "8.625", "7.000", "8.000", "-30.00"));
    EXPECT_THAT((std::vector{Link(Field_Link5).text, Link(Field_Link6).text, Link(Field_O6X).text,
                             Link(Field_O6Y).text, Link(Field_CouplerAC).text, Link(Field_Delta3).text}),
                ElementsAre("7.000", "8.000", "14.375", "2.000", "6.0", "45.00"));
    EXPECT_THAT((std::vector{Link(Field_Coupler2).text, Link(Field_Delta5).text, Link(Field_Ground).text,
                             Link(Field_O4X).text, Link(Field_O4Y).text}),
                ElementsAre("6.0", "80.00", "0.00", "9.375", "0.000"));
    EXPECT_THAT(Initial_Texts(4), ElementsAre("0", "360", "10", "10"));
    home.mnu_Double.click();
    EXPECT_EQ(Link(Field_CouplerAC).text, "8.8");
    EXPECT_THAT(Initial_Texts(4), ElementsAre("30", "390", "4", "10"));
    home.mnu_Hoeken.click();
    EXPECT_THAT(Initial_Texts(4), ElementsAre("180", "540", "5", "10"));
    home.mnu_Roberts.click();
    EXPECT_EQ(Link(Field_CouplerAC).text, "0.0");
    EXPECT_THAT(Initial_Texts(4), ElementsAre("0", "360", "10", "20"));
}

TEST_F(ExamplesMenu, OptionsOfChainAndAssemblyFollow) {
    for (int round = 0; round < 2; ++round) {
        home.mnu_Hoeken.click();
        EXPECT_EQ(Chosen(input.opt_SteveWatt), "Stephenson");
        EXPECT_EQ(Chosen(input.opt_OpenCross1), "Open");
        EXPECT_EQ(Chosen(input.opt_OpenCross2), "Crossed");
        EXPECT_EQ(Chosen(animate.opt_OpenCross2), "Crossed");
        EXPECT_EQ(model.OpenCross2, 2);
        EXPECT_EQ(model.OpenSign2, 1);
        home.mnu_Test.click();
        EXPECT_EQ(Chosen(input.opt_SteveWatt), "Watt");
        EXPECT_EQ(Chosen(input.opt_OpenCross2), "Open");
        EXPECT_EQ(model.OpenCross2, 1);
        EXPECT_EQ(model.OpenSign2, -1);
    }
}

TEST_F(ExamplesMenu, HoekenAfterWattKeepsTheArmOfTheWattChain) {
    home.mnu_Test.click();
    home.mnu_Hoeken.click();
    EXPECT_EQ(model.LinkageType, "S");
    EXPECT_EQ(model.LinkO4D, 8);
    EXPECT_EQ(model.Delta4Deg, -30);
    EXPECT_FALSE(Link(Field_LinkO4D).visible);
    EXPECT_EQ(Link(Field_LinkO4D).text, "8.000") << "hidden, and still in the model";
}

TEST_F(ExamplesMenu, ATurnedLinkageBeforeLeavesNoTrace) {
    Open_Input();
    Edit(Link(Field_O4Y), "4");
    ASSERT_GT(model.GroundAngleDeg, 20);
    home.mnu_Test.click();
    EXPECT_EQ(model.GroundAngleDeg, 0);
    EXPECT_EQ(model.GroundAngle, 0);
    EXPECT_EQ(model.O4LocalX, 9.375F);
    EXPECT_EQ(model.O4LocalY, 0);
    EXPECT_EQ(model.O4O6X, 5);
    EXPECT_EQ(model.O4O6Y, 2);
    EXPECT_EQ(Link(Field_Ground).text, "0.00");
}

TEST_F(ExamplesMenu, LeavesLinkDataStepsUnitsAndSettingsAlone) {
    model.LinkMass(3) = 7;
    model.NumSteps = 12;
    home.mnu_pick[3].click();
    animate.chk_Trace.on = true;
    animate.hsc_speed.value = 20000;
    home.mnu_Double.click();
    EXPECT_EQ(model.LinkMass(3), 7);
    EXPECT_EQ(model.NumSteps, 12);
    EXPECT_EQ(model.UnitSystem, 3);
    EXPECT_TRUE(animate.chk_Trace.on);
    EXPECT_EQ(animate.hsc_speed.value, 20000);
}

TEST_F(ExamplesMenu, EveryOneOfThemCalculatesAtThePressOfTheButton) {
    port.script[ScreenId::frm_Inputnew] = [&] { input.cmd_Calc.click(); };
    const std::pair<const MenuItem*, int> examples[] = {
        {&home.mnu_Test, 36}, {&home.mnu_Hoeken, 72}, {&home.mnu_Roberts, 36}, {&home.mnu_Double, 90}};
    for (const auto& [entry, steps] : examples) {
        entry->click();
        EXPECT_EQ(model.NumSteps, steps) << model.ModelTitle;
        EXPECT_TRUE(model.DataCalculated);
        EXPECT_FALSE(model.SomeStepFailed) << model.ModelTitle;
        EXPECT_FALSE(Picture_Is_Clear());
    }
}

}  // namespace
}  // namespace kervol
