// SPDX-License-Identifier: GPL-3.0-or-later
// The settings on the Animation screen, and what a model that was read, or an example, puts there.
#include "screens/screens_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AnimateRefresh : public ScreensTest {
  protected:
    std::string Text(LinkField field) const { return animate.txt_Linkout.at(field).text; }
    std::vector<std::string> Range_Texts() const {
        return {animate.txt_Initial[0].text, animate.txt_Initial[1].text, animate.txt_Initial[2].text};
    }
    static std::string Chosen(const std::array<OptionButton, 2>& group) {
        if (group[0].on == group[1].on) return "neither";
        return group[0].on ? group[0].caption : group[1].caption;
    }
};

TEST_F(AnimateRefresh, AModelThatWasReadFillsGeometryRangeAssemblyAndTitle) {
    model.Link2 = model.LinkTable(2) = 2.5F;
    model.LinkTable(7) = 8.25F;
    model.Delta4Deg = -31.5F;
    model.O6X = 1234.5F;
    model.CalcMode = 2;
    model.TimeEnd = 3;
    model.OpenCross1 = 2;
    model.OpenCross2 = 1;
    model.ModelTitle = "My crank";
    port.Fill_Screens();
    EXPECT_EQ(Text(Field_Link2), "2.500");
    EXPECT_EQ(Text(Field_LinkO4D), "8.250");
    EXPECT_EQ(Text(Field_Delta4), "-31.500");
    EXPECT_EQ(Text(Field_O6X), "1,234.500");
    EXPECT_THAT(Range_Texts(), ElementsAre("0", "3", "0.05"));
    EXPECT_EQ(animate.lbl_Initial[1].caption, "End Time");
    EXPECT_EQ(Chosen(animate.opt_OpenCross1), "Crossed");
    EXPECT_EQ(Chosen(animate.opt_OpenCross2), "Open");
    EXPECT_EQ(animate.txt_header.text, "My crank");
}

TEST_F(AnimateRefresh, AModelThatWasReadFillsTheSettings) {
    struct Case {
        const char *trace, *hide;
        bool trace_on, links_on;
    };
    for (const Case& one :
         {Case{"Y", "Y", true, false}, Case{"N", "N", false, true}, Case{"", "", false, true}}) {
        model.ShowTrace = one.trace;
        model.HideLinks = one.hide;
        model.AnimDelay = 767;
        model.AnimCycles = 12;
        port.Fill_Screens();
        EXPECT_EQ(animate.chk_Trace.on, one.trace_on) << one.trace;
        EXPECT_EQ(animate.chk_Showlinks.on, one.links_on) << one.hide;
        EXPECT_EQ(animate.hsc_speed.value, 32000);
        EXPECT_EQ(animate.txt_Cycles.text, "12");
    }
}

TEST_F(AnimateRefresh, TheSettingsOfAFileOutliveOpeningAndRunning) {
    Calculate_In_Mode(3);
    model.ShowTrace = model.HideLinks = "Y";
    model.AnimDelay = 4096;
    model.AnimCycles = 2;
    port.Fill_Screens();
    Open_Animate();
    animate.cmd_Run.click();
    EXPECT_EQ(model.ShowTrace, "Y");
    EXPECT_EQ(model.HideLinks, "Y");
    EXPECT_EQ(model.AnimDelay, 4096);
    EXPECT_EQ(model.AnimCycles, 2);
    EXPECT_EQ(port.holds.size(), 74U);
}

TEST_F(AnimateRefresh, AnExampleFillsItsFieldsBeforeTheInputScreenOpens) {
    model.CalcMode = 2;
    int opened = 0;
    port.opening[ScreenId::frm_Inputnew] = [&] {
        ++opened;
        EXPECT_EQ(animate.lbl_Left.at(Field_LinkO4D).caption, "Coupler A-C");
        EXPECT_EQ(Text(Field_LinkO4D), "8.750");
        EXPECT_EQ(Text(Field_Delta4), "-8.000");
        EXPECT_THAT(Range_Texts(), ElementsAre("30", "390", "4"));
        EXPECT_EQ(animate.lbl_Initial[0].caption, "Min Theta");
    };
    home.mnu_Double.click();
    EXPECT_EQ(opened, 1);
}

TEST_F(AnimateRefresh, EveryExampleRunsThroughAllItsRows) {
    port.script[ScreenId::frm_Inputnew] = [&] { input.cmd_Calc.click(); };
    const std::pair<const MenuItem*, std::size_t> examples[] = {
        {&home.mnu_Test, 37}, {&home.mnu_Hoeken, 73}, {&home.mnu_Roberts, 37}, {&home.mnu_Double, 91}};
    for (const auto& [entry, rows] : examples) {
        entry->click();
        home.cmd_Animate.click();
        port.holds.clear();
        animate.cmd_Run.click();
        EXPECT_EQ(port.holds.size(), rows) << model.ModelTitle;
    }
}

TEST_F(AnimateRefresh, OpeningShowsThePathsAsTheModelHasThem) {
    Calculate_In_Mode(3);
    for (const char* show : {"Y", "N", "Y"}) {
        model.ShowCoupler = show;
        Open_Animate();
        EXPECT_EQ(animate.chk_Coupler.on, std::string_view(show) == "Y");
        EXPECT_EQ(model.ShowCoupler, show);
    }
}

class AnimateSettingsEvents : public ScreensTest {
  protected:
    AnimateSettingsEvents() {
        Animate_In_Mode(3);
        animate_picture.drawn.clear();
    }
};

TEST_F(AnimateSettingsEvents, TheWaitIsTheNumberOfItsText) {
    const std::pair<const char*, int> waits[] = {
        {"10", 10},   {"500", 500}, {"1000", 1000}, {" 40 ms", 40},
        {"12.7", 12}, {"-3", -3},   {"fast", 0},    {"", 0},
    };
    for (const auto& [text, wait] : waits) {
        model.AnimWait = 7;
        animate.cmb_wait.text = text;
        animate.cmb_wait.change();
        EXPECT_EQ(model.AnimWait, wait) << text;
    }
}

TEST_F(AnimateSettingsEvents, AWaitBeyondSixteenBitsIsReportedAndTheOldOneStays) {
    model.AnimWait = 7;
    animate.cmb_wait.text = "40000";
    animate.cmb_wait.change();
    Expect_Fault(6, "frm_animate.cmb_wait");
    EXPECT_EQ(model.AnimWait, 7);
}

TEST_F(AnimateSettingsEvents, PathsAndPointsFollowTheirBoxesAtOnce) {
    for (const bool on : {false, true}) {
        animate.chk_Coupler.on = animate.chk_Points.on = on;
        animate.chk_Coupler.click();
        EXPECT_EQ(model.ShowCoupler, on ? "Y" : "N");
        animate.chk_Points.click();
        EXPECT_EQ(model.ShowPoints, on ? "Y" : "N");
    }
    EXPECT_THAT(animate_picture.drawn, IsEmpty()) << "the picture follows with its next position";
}

TEST_F(AnimateSettingsEvents, TheTitleIsTakenAsItsFieldIsLeft) {
    Edit(animate.txt_header, "My crank");
    EXPECT_EQ(model.ModelTitle, "My crank");
    Edit(animate.txt_header, "");
    EXPECT_EQ(model.ModelTitle, "");
    EXPECT_FALSE(animate.GeometryEdited);
    EXPECT_TRUE(model.DataCalculated);
}

}  // namespace
}  // namespace kervol
