// SPDX-License-Identifier: GPL-3.0-or-later
// The flywheel screen: what it shows when it opens and once it has calculated, and how it takes a
// coefficient.
#include "core/header.h"
#include "core/number_text.h"
#include "screens/launch_screens.h"
#include "screens/mass_prop_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* kRefused = " Coefficient of fluctuation must be between zero and one - Try .05 ";

class FlywheelScreenTest : public MassPropTest {
  protected:
    FlywheelScreenTest() {
        Open_And_Solve();
        screens->frm_MassProp.cmd_Done.click();
        port.trace.clear();
    }

    void Open_Flywheel() { port.Show_Screen(ScreenId::frm_Flywheel, Modality::Modal); }
    void Open_And_Calculate() {
        Open_Flywheel();
        flywheel.cmd_Calc.click();
    }
    /// 20 over the first third of the 36 steps, then -7.
    void Put_Torque() {
        for (int i = 0; i <= 36; ++i) tables.TorqueTable(i, 0) = i <= 12 ? 20.0F : -7.0F;
    }
    std::vector<std::string> Torques() const {
        std::vector<std::string> texts;
        for (const Label& label : flywheel.lbl_Torque) texts.push_back(label.caption);
        return texts;
    }

    FlywheelScreen& flywheel = screens->frm_Flywheel;
};

TEST_F(FlywheelScreenTest, HasItsTexts) {
    EXPECT_EQ(Screen_Caption(*screens, ScreenId::frm_Flywheel),
              "Flywheel Screen   KERVOL for Windows 7.0, Rev. 2.2");
    EXPECT_EQ(flywheel.fra_Energy.caption, "Energy Under Torque Curve");
    EXPECT_EQ(flywheel.fra_Fluct.caption, "Coef Fluctuation");
    EXPECT_EQ(flywheel.fra_Without.caption, "Without Flywheel");
    EXPECT_EQ(flywheel.fra_With.caption, "With Flywheel");
    EXPECT_EQ(flywheel.cmd_Calc.caption, "&Calculate");
    EXPECT_EQ(flywheel.cmd_Done.caption, "&Next >");
    EXPECT_EQ(flywheel.cmd_Cancel.caption, "< &Back");
    EXPECT_EQ(flywheel.cmd_Print.caption, "&Print Form");
    EXPECT_EQ(flywheel.cmd_copy.caption, "C&opy");
    EXPECT_EQ(flywheel.txt_Fluct.text, "0.05");
    const char* const names[] = {"Tmax", "Tmax", "Tmin", "Tmin"};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(flywheel.lbl_Right2[i].caption, names[i]);
}

TEST_F(FlywheelScreenTest, IsOpenedFromHomeOnceTheDynamicsAreThere) {
    Activate_Screen(*screens, ScreenId::frm_HomeScreen);
    EXPECT_TRUE(home.cmd_Flywheel.enabled);
    home.cmd_Flywheel.click();
    EXPECT_THAT(port.trace, Contains("show frm_Flywheel modal"));
}

TEST_F(FlywheelScreenTest, OpensWithTheCoefficientAndNothingCalculated) {
    model.CoefFluct = 0.125F;
    flywheel.pct_Pict1.caption = "old";
    flywheel.FluctChanged = true;
    flywheel.cmd_Print.enabled = flywheel.cmd_copy.enabled = false;
    model.UnitText(9) = "N-m";
    Open_Flywheel();
    EXPECT_EQ(flywheel.txt_Fluct.text, "0.125");
    EXPECT_EQ(flywheel.pct_Pict1.caption, "");
    EXPECT_FALSE(flywheel.grf_Plot[0].visible);
    EXPECT_FALSE(flywheel.grf_Plot[1].visible);
    EXPECT_FALSE(flywheel.FluctChanged);
    EXPECT_TRUE(flywheel.cmd_Print.enabled);
    EXPECT_TRUE(flywheel.cmd_copy.enabled);
    EXPECT_FALSE(flywheel.cmd_Done.enabled);
    EXPECT_EQ(flywheel.lbl_Header.caption, Put_Header(model));
    for (const Label& unit : flywheel.lbl_Unit) EXPECT_EQ(unit.caption, "N-m");
    EXPECT_EQ(port.pointer, Pointer::Default);
    EXPECT_FALSE(model.FlywheelCalculated);
}

TEST_F(FlywheelScreenTest, ShowsTorquesEnergiesAndGraphs) {
    Put_Torque();
    Open_And_Calculate();
    EXPECT_TRUE(model.FlywheelCalculated);
    EXPECT_TRUE(flywheel.cmd_Done.enabled);
    // 13 steps of 20 and 24 of -7 have the mean 92 / 37 = 2.48648...; with 0.05 of the deviation 3.36
    // and 2.01.
    EXPECT_THAT(Torques(), ElementsAre("20", "3.36", "-7", "2.01"));
    EXPECT_THAT(flywheel.pct_Pict1.caption, HasSubstr("\n Areas of Crank Torque\n"));
    EXPECT_THAT(flywheel.pct_Pict1.caption, HasSubstr(" Order Pos Area   Neg Area\n"));
    // Eleven intervals of 10 degrees of 17.51, and 24 of which the first leads from 17.51 to -9.49.
    EXPECT_THAT(flywheel.pct_Pict1.caption, HasSubstr("   1   33.6      -37.4\n"));
    EXPECT_THAT(flywheel.pct_Pict1.caption, HasSubstr("    Average Torque:\n   2.49  "));
    const char* const titles[] = {"Torque With No Flywheel", "Torque With a Flywheel"};
    for (std::size_t g = 0; g < 2; ++g) {
        const Chart& chart = flywheel.grf_Plot[g];
        EXPECT_TRUE(chart.visible);
        EXPECT_EQ(chart.look.GraphTitle, titles[g]);
        EXPECT_EQ(chart.look.BottomTitle, "Crank Angle (Deg)");
        EXPECT_EQ(chart.look.TickEvery, 5);
        EXPECT_EQ(chart.look.LabelEvery, 10);
        ASSERT_EQ(chart.NumSets(), 1);
        ASSERT_EQ(chart.NumPoints(), 37);
        EXPECT_EQ(chart.look.fonts[4], (ChartFont{90, 2, 1}));
        EXPECT_EQ(chart.look.LabelText[9], FNRoundStr(tables.Theta(9, 0), 0));
        for (int i = 0; i <= 36; ++i)
            EXPECT_EQ(chart.look.sets[0].GraphData[static_cast<std::size_t>(i)],
                      g == 0 ? tables.TorqueTable(i, 0) : tables.FlywheelTorque(i));
    }
    EXPECT_EQ(port.pointer, Pointer::Default);
}

TEST_F(FlywheelScreenTest, WithoutStepsShowsTheMeanAlone) {
    model.NumSteps = 0;
    tables.TorqueTable(0, 0) = 4;
    Open_And_Calculate();
    EXPECT_EQ(flywheel.pct_Pict1.caption.find("Order Pos"), std::string::npos);
    EXPECT_THAT(flywheel.pct_Pict1.caption, HasSubstr("    Average Torque:\n   4  "));
    EXPECT_THAT(Torques(), ElementsAre("4", "4", "4", "4"));
    EXPECT_EQ(flywheel.grf_Plot[0].NumPoints(), 1);
}

TEST_F(FlywheelScreenTest, AConstantTorqueIsOnePulseOfNothing) {
    for (int i = 0; i <= 36; ++i) tables.TorqueTable(i, 0) = 4;
    Open_And_Calculate();
    EXPECT_THAT(flywheel.pct_Pict1.caption,
                HasSubstr(" Order Pos Area   Neg Area\n\n   1   0         0\n   2   0         0\n"));
    EXPECT_THAT(Torques(), ElementsAre("4", "4", "4", "4"));
}

TEST_F(FlywheelScreenTest, TooManyPulsesAreReportedAndTheRestIsShown) {
    for (int i = 0; i <= 36; ++i) tables.TorqueTable(i, 0) = i % 2 == 0 ? 5.0F : -5.0F;
    Open_And_Calculate();
    Expect_Fault(9, "Flywheel");
    EXPECT_EQ(Torques()[0], "5");
    EXPECT_TRUE(model.FlywheelCalculated);
    EXPECT_TRUE(flywheel.grf_Plot[1].visible);
}

TEST_F(FlywheelScreenTest, ACoefficientIsTakenAndCalculatedWhenTheFieldIsLeft) {
    Put_Torque();
    Open_Flywheel();
    Type(flywheel.txt_Fluct, "1");
    EXPECT_TRUE(flywheel.FluctChanged);
    EXPECT_FALSE(model.FlywheelCalculated);
    flywheel.txt_Fluct.lost_focus();
    EXPECT_FALSE(flywheel.FluctChanged);
    EXPECT_EQ(model.CoefFluct, 1);
    EXPECT_TRUE(flywheel.cmd_Done.enabled);
    for (int i = 0; i <= 36; ++i) EXPECT_EQ(tables.FlywheelTorque(i), tables.TorqueTable(i, 0));
    Type(flywheel.txt_Fluct, "0.5 or so");
    flywheel.txt_Fluct.enter();
    EXPECT_EQ(model.CoefFluct, 0.5F);
}

TEST_F(FlywheelScreenTest, AFieldThatWasNotChangedCalculatesNothing) {
    Open_Flywheel();
    flywheel.txt_Fluct.lost_focus();
    flywheel.txt_Fluct.enter();
    EXPECT_FALSE(model.FlywheelCalculated);
}

TEST_F(FlywheelScreenTest, NothingAndLessAreRefused) {
    for (const char* text : {"0", "-0.1", "", "x"}) {
        Open_Flywheel();
        port.trace.clear();
        Edit(flywheel.txt_Fluct, text);
        Expect_Box(kRefused, Icon::None);
        EXPECT_EQ(model.CoefFluct, 0.05F);
        EXPECT_EQ(flywheel.txt_Fluct.text, "0.05");
        EXPECT_THAT(port.trace, ElementsAre("box", "focus frm_Flywheel.txt_Fluct"));
        EXPECT_TRUE(flywheel.FluctChanged);
        EXPECT_FALSE(model.FlywheelCalculated);
    }
    flywheel.txt_Fluct.lost_focus();
    EXPECT_TRUE(model.FlywheelCalculated) << "what was put back counts as changed";
    EXPECT_FALSE(flywheel.FluctChanged);
}

TEST_F(FlywheelScreenTest, OneAboveOneIsTakenOnceAndTheNextIsRefused) {
    Open_Flywheel();
    Edit(flywheel.txt_Fluct, "2");
    EXPECT_EQ(model.CoefFluct, 2);
    Edit(flywheel.txt_Fluct, "0.5");
    Expect_Box(kRefused, Icon::None);
    EXPECT_EQ(model.CoefFluct, 0.05F);
}

TEST_F(FlywheelScreenTest, KeepsTheCoefficientAcrossVisits) {
    Open_Flywheel();
    Edit(flywheel.txt_Fluct, "0.2");
    flywheel.cmd_Cancel.click();
    Open_Flywheel();
    EXPECT_EQ(flywheel.txt_Fluct.text, "0.2");
}

TEST_F(FlywheelScreenTest, NextMakesTheSelectionsLoadTheirListsAnew) {
    Open_And_Calculate();
    model.NewData = false;
    flywheel.cmd_Done.click();
    EXPECT_TRUE(model.NewData);
    EXPECT_EQ(port.trace.back(), "hide frm_Flywheel");
}

TEST_F(FlywheelScreenTest, BackOnlyCloses) {
    Open_And_Calculate();
    model.NewData = false;
    flywheel.cmd_Cancel.click();
    EXPECT_FALSE(model.NewData);
    EXPECT_EQ(port.trace.back(), "hide frm_Flywheel");
    port.trace.clear();
    Close_Screen(*screens, ScreenId::frm_Flywheel);
    EXPECT_THAT(port.trace, ElementsAre("hide frm_Flywheel"));
}

TEST_F(FlywheelScreenTest, PrintsAndCopiesAfterItsBoxes) {
    Open_And_Calculate();
    port.answers = {Answer::Yes};
    flywheel.cmd_Print.click();
    EXPECT_EQ(Take_Box().buttons, Buttons::YesNo);
    EXPECT_THAT(port.printed, ElementsAre(ScreenId::frm_Flywheel));
    flywheel.cmd_copy.click();
    Expect_Box("Use the Alt-PrintScrn key combo to copy the screen to the clipboard", Icon::None);
}

TEST_F(FlywheelScreenTest, ANewRunOfTheDynamicsVoidsTheFlywheel) {
    Open_And_Calculate();
    Open_And_Solve();
    EXPECT_FALSE(model.FlywheelCalculated);
}

}  // namespace
}  // namespace kervol
