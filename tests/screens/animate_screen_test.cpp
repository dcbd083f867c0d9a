// SPDX-License-Identifier: GPL-3.0-or-later
// The Animation screen as it opens, its run, its single steps, and the ways to it and from it.
#include "screens/launch_screens.h"
#include "screens/screens_fixture.h"
#include "support/compare.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kAll = "Next Step Run Reset Print";

class AnimateOpening : public ScreensTest {
  protected:
    std::string Shown_Fields() const {
        std::string shown;
        for (std::size_t i = 0; i < 3; ++i)
            if (animate.txt_Initial.at(i).visible)
                shown += (shown.empty() ? "" : ", ") + animate.lbl_Initial.at(i).caption + " in " +
                         animate.lbl_Unit.at(i).caption;
        return shown;
    }
    std::vector<std::string> Initial_Texts() const {
        return {animate.txt_Initial[0].text, animate.txt_Initial[1].text, animate.txt_Initial[2].text};
    }
    std::string Caption(LinkField field) const { return animate.lbl_Left.at(field).caption; }
};

TEST_F(AnimateOpening, HasItsCaptions) {
    const std::pair<const Button*, const char*> buttons[] = {
        {&animate.cmd_Run, "&Run"},       {&animate.cmd_Step, "&Step"},  {&animate.cmd_Reset, "Rese&t"},
        {&animate.cmd_Recalc, "&Recalc"}, {&animate.cmd_Copy, "&Print"}, {&animate.cmd_Done, "&Next >"},
        {&animate.cmd_Back, "< &Back"},
    };
    for (const auto& [button, caption] : buttons) EXPECT_EQ(button->caption, caption);
    const std::pair<const CheckBox*, const char*> checks[] = {
        {&animate.chk_autoscale, "Autoscale"}, {&animate.chk_Trace, "Trace"},
        {&animate.chk_Showlinks, "Links"},     {&animate.chk_Coupler, "Coupler Path"},
        {&animate.chk_Points, "Coupler Pts"},
    };
    for (const auto& [check, caption] : checks) EXPECT_EQ(check->caption, caption);
    for (const auto* options : {&animate.opt_OpenCross1, &animate.opt_OpenCross2}) {
        EXPECT_EQ((*options)[0].caption, "Open");
        EXPECT_EQ((*options)[1].caption, "Crossed");
    }
    EXPECT_THAT(animate.cmb_wait.items, ElementsAre("10", "20", "40", "100", "500"));
    EXPECT_EQ(animate.cmb_wait.text, "1000");
    EXPECT_TRUE(animate.chk_autoscale.on);
    EXPECT_EQ(Screen_Caption(*screens, ScreenId::frm_Animate).find("Animation Screen"), 0U);
}

TEST_F(AnimateOpening, HasTheCaptionsAndUnitsOfItsFieldsByTheChain) {
    Animate_In_Mode(3);
    EXPECT_THAT(
        (std::vector{Caption(Field_Link1), Caption(Field_Link2), Caption(Field_Link3), Caption(Field_Link4),
                     Caption(Field_Ground)}),
        ElementsAre("Link 1 (O2-O4)", "Link 2 (O2-A)", "Link 3 (A-B)", "Link 4 (O4-B)", "Angle to Ground"));
    const auto by_chain = [&] {
        return std::vector{Caption(Field_LinkO4D), Caption(Field_Delta4), Caption(Field_Link5),
                           Caption(Field_Link6)};
    };
    EXPECT_THAT(by_chain(), ElementsAre("Link O4-D", "Angle Delta4", "Link 5 (D-E)", "Link 6 (O6-E)"));
    home.mnu_pick[3].click();
    home.mnu_Double.click();
    Open_Animate();
    EXPECT_THAT(by_chain(), ElementsAre("Coupler A-C", "Angle Delta3", "Link 5 (C-D)", "Link 6 (O6-D)"));
    EXPECT_EQ(animate.txt_Linkout.at(Field_Delta4).text, "-8.000");
    for (const int field : {0, 1, 2, 3, 4, 6, 7, 8, 9, 15, 16})
        EXPECT_EQ(animate.lbl_Units.at(static_cast<std::size_t>(field)).caption, "m");
    EXPECT_EQ(animate.lbl_Degrees.at(Field_Delta4).caption, "deg");
    EXPECT_EQ(animate.lbl_Degrees.at(Field_Ground).caption, "deg");
}

TEST_F(AnimateOpening, ShowsTheRangeAndTheEndsOfTheBarOfEachMode) {
    struct Shown {
        std::int16_t mode;
        const char* fields;
        bool angles, times, driven;
    };
    const Shown modes[] = {
        {1, "", true, false, false},
        {2, "Start Time in sec, End Time in sec, Delta Time in sec", false, true, false},
        {3, "Min Theta in deg, Max Theta in deg, Delta Theta in deg", true, false, false},
        {4, "", false, false, true},
        {5, "", false, false, true},
    };
    for (const Shown& shown : modes) {
        Animate_In_Mode(shown.mode);
        EXPECT_EQ(Shown_Fields(), shown.fields) << "mode " << shown.mode;
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(animate.txt_Initial.at(i).enabled, shown.mode != 1) << "mode " << shown.mode;
        EXPECT_EQ(animate.lbl_cw.visible, shown.angles);
        EXPECT_EQ(animate.lbl_ccw.visible, shown.angles);
        EXPECT_EQ(animate.lbl_time.visible, shown.times);
        EXPECT_EQ(animate.lbl_camdriven.visible, shown.driven);
        EXPECT_EQ(model.CalcMode, shown.mode);
    }
    EXPECT_EQ(animate.lbl_camdriven.caption,
              "\n This linkage is being driven by \ns-v-a data imported from the file: drive.sva");
}

TEST_F(AnimateOpening, ShowsTheRangeOfTheMode) {
    Animate_In_Mode(2);
    EXPECT_THAT(Initial_Texts(), ElementsAre("0", "5", "0.05"));
    Animate_In_Mode(3);
    EXPECT_THAT(Initial_Texts(), ElementsAre("0", "360", "10"));
}

TEST_F(AnimateOpening, TakesSpeedCyclesAndTheLengthOfTheBar) {
    Calculate_In_Mode(3);
    model.AnimDelay = 30000;
    model.AnimCycles = 3;
    animate.hsc_step.value = 9;
    animate.hsc_step.maximum = 9;
    Open_Animate();
    EXPECT_EQ(animate.hsc_speed.value, 2767);
    EXPECT_EQ(animate.txt_Cycles.text, "3");
    EXPECT_EQ(animate.hsc_step.maximum, 36);
    EXPECT_EQ(animate.hsc_step.value, 0);
    EXPECT_EQ(model.AnimDelay, 30000);
    EXPECT_EQ(model.AnimCycles, 3);
}

TEST_F(AnimateOpening, TheSpeedBarEndsAtTheEndsOfTheDelay) {
    EXPECT_EQ(animate.hsc_speed.minimum, 0);
    EXPECT_EQ(animate.hsc_speed.maximum, 32767);
    Calculate_In_Mode(3);
    const std::pair<int, int> delays[] = {{40000, 0}, {32767, 0}, {0, 32767}, {-5, 32767}};
    for (const auto& [delay, value] : delays) {
        model.AnimDelay = delay;
        Open_Animate();
        EXPECT_EQ(animate.hsc_speed.value, value);
    }
}

TEST_F(AnimateOpening, DrawsTheFirstStepAndThenTheSecond) {
    for (const std::int16_t mode : Int16List{2, 3, 5}) {
        if (mode > 3) Put_Imported_Drive(mode);
        Calculate_In_Mode(mode);
        Rows_Drawn();
        animate.hsc_step.value = 0;
        Open_Animate();
        EXPECT_THAT(Rows_In(Standing_On(animate_picture)), ElementsAre(0, 1)) << "mode " << mode;
        EXPECT_EQ(program->animation.CurrentStep, 1);
        EXPECT_EQ(animate.hsc_step.value, 0);
        EXPECT_EQ(animate.lbl_StepLabel.caption, mode == 3 ? "Theta2" : "Time");
        EXPECT_EQ(animate.lbl_StepUnit.caption, mode == 3 ? "deg" : "sec");
        EXPECT_TRUE(animate.lbl_StepNumber.visible);
    }
}

TEST_F(AnimateOpening, TellsTheValueOfTheSecondStep) {
    Animate_In_Mode(3);
    EXPECT_EQ(animate.lbl_StepNumber.caption, "10.0");
    Animate_In_Mode(2);
    EXPECT_EQ(animate.lbl_StepNumber.caption, "0.05");
}

TEST_F(AnimateOpening, LeavesEarlierPositionsToStepMode) {
    Animate_In_Mode(3);
    animate.cmd_Run.click();
    Open_Animate();
    EXPECT_THAT(Rows_In(Standing_On(animate_picture)), ElementsAre(1)) << "as after a run";
    animate.cmd_Step.click();
    Open_Animate();
    EXPECT_THAT(Rows_In(Standing_On(animate_picture)), ElementsAre(0, 0, 1)) << "the bar has moved, too";
}

TEST_F(AnimateOpening, NothingOfAnotherLinkageStands) {
    Animate_In_Mode(3);
    Edit(Link(Field_Link2), "2.5");
    input.cmd_Calc.click();
    Open_Animate();
    EXPECT_THAT(Rows_In(Standing_On(animate_picture)), ElementsAre(0, 1));
}

TEST_F(AnimateOpening, PointsAreOnForAngleStepsAndOffForTimeSteps) {
    struct Case {
        std::int16_t mode;
        bool box;
        const char* flag;
        bool points;
    };
    // A box that is written and does not change raises nothing; then it takes what the model says.
    const Case cases[] = {
        {3, false, "N", true}, {3, false, "Y", true},  {3, true, "Y", true},   {3, true, "N", false},
        {2, true, "Y", false}, {2, true, "N", false},  {2, false, "N", false}, {2, false, "Y", true},
        {1, false, "Y", true}, {1, true, "N", false},  {4, false, "Y", true},  {4, true, "N", false},
        {5, false, "Y", true}, {5, false, "N", false}, {5, true, "Y", true},   {5, true, "", false},
    };
    for (const Case& one : cases) {
        if (one.mode > 3) Put_Imported_Drive(one.mode);
        Calculate_In_Mode(one.mode);
        animate.chk_Points.on = one.box;
        model.ShowPoints = one.flag;
        Open_Animate();
        EXPECT_EQ(animate.chk_Points.on, one.points)
            << "mode " << one.mode << ", box " << one.box << ", flag " << one.flag;
        EXPECT_EQ(model.ShowPoints == "Y", one.points)
            << "mode " << one.mode << ", box " << one.box << ", flag " << one.flag;
    }
}

TEST_F(AnimateOpening, ShowsTheTitleUnlessItIsEmpty) {
    Calculate_In_Mode(3);
    model.ModelTitle = "My crank";
    Open_Animate();
    EXPECT_EQ(animate.txt_header.text, "My crank");
    model.ModelTitle = "";
    Open_Animate();
    EXPECT_EQ(animate.txt_header.text, "My crank");
}

TEST_F(AnimateOpening, BeginsWithoutAnEditAndWithItsButtons) {
    Calculate_In_Mode(3);
    animate.GeometryEdited = true;
    animate.cmd_Copy.enabled = false;
    port.opening[ScreenId::frm_Animate] = [&] { EXPECT_FALSE(animate.Filling); };
    Open_Animate();
    EXPECT_FALSE(animate.GeometryEdited);
    EXPECT_FALSE(animate.Filling);
    EXPECT_EQ(Animate_Outputs(), kAll);
    EXPECT_TRUE(model.DataCalculated) << "looking keeps what was calculated";
}

TEST_F(AnimateOpening, ComesBackToLifeBehindACalculationOnTheInputScreen) {
    Animate_In_Mode(3);
    Edit(animate.txt_Linkout.at(Field_Link3), "8.5");
    EXPECT_EQ(Animate_Outputs(), "");
    port.script[ScreenId::frm_Inputnew] = [&] {
        input.cmd_Calc.click();
        input.cmd_Next.click();
    };
    animate.cmd_Back.click();
    EXPECT_EQ(Animate_Outputs(), kAll);
}

TEST_F(AnimateOpening, ShowsTheAssemblyOfTheModelAndCalculatesNothing) {
    Calculate_In_Mode(3);
    model.OpenCross1 = model.OpenCross2 = 2;
    tables.Theta(1, 1) = Poison;
    Open_Animate();
    EXPECT_TRUE(animate.opt_OpenCross1[1].on && animate.opt_OpenCross2[1].on);
    EXPECT_FALSE(animate.opt_OpenCross1[0].on || animate.opt_OpenCross2[0].on);
    EXPECT_EQ(model.OpenCross1, 2);
    EXPECT_EQ(tables.Theta(1, 1), Poison);
}

TEST_F(AnimateOpening, PutsTheLinkageIntoItsFields) {
    Calculate_In_Mode(3);
    animate.txt_Linkout.at(Field_Link2).text = "typed and left by Back";
    Open_Animate();
    EXPECT_EQ(animate.txt_Linkout.at(Field_Link2).text, "2.000");
}

TEST_F(AnimateOpening, ACountBeyondTheTablesIsNotDrawn) {
    Calculate_In_Mode(3);
    model.NumSteps = 5000;
    Open_Animate();
    EXPECT_THAT(Rows_Drawn(), IsEmpty());
    EXPECT_EQ(Boxes_Left(), 0U);
}

TEST_F(AnimateOpening, LookingAtItChangesNoFieldOfTheModel) {
    Animate_In_Mode(3);
    const LinkageModel before = model;
    Open_Animate();
    animate.cmd_Done.click();
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
}

class AnimateWays : public ScreensTest {
  protected:
    AnimateWays() {
        Animate_In_Mode(3);
        port.trace.clear();
    }
};

TEST_F(AnimateWays, HomeOpensItOverItselfFromTheFirstStep) {
    program->animation.CurrentStep = 9;
    port.opening[ScreenId::frm_Animate] = [&] { EXPECT_EQ(program->animation.CurrentStep, 0); };
    home.cmd_Animate.click();
    EXPECT_THAT(port.trace, ElementsAre("show frm_Animate modal"));
    EXPECT_EQ(program->animation.CurrentStep, 1);
}

TEST_F(AnimateWays, HomeOffersItOnceThereIsMotion) {
    EXPECT_TRUE(home.cmd_Animate.enabled);
    Calculate_In_Mode(1);
    EXPECT_FALSE(home.cmd_Animate.enabled);
    Calculate_In_Mode(2);
    EXPECT_TRUE(home.cmd_Animate.enabled);
}

TEST_F(AnimateWays, BothButtonsOfTheInputScreenGoOnToIt) {
    for (Button* button : {&input.cmd_Next, &input.cmd_Animate}) {
        program->animation.CurrentStep = 9;
        port.opening[ScreenId::frm_Animate] = [&] { EXPECT_EQ(program->animation.CurrentStep, 0); };
        port.trace.clear();
        button->click();
        EXPECT_THAT(port.trace, ElementsAre("hide frm_Inputnew", "show frm_Animate modal"));
    }
}

TEST_F(AnimateWays, NextTakesTheTitleAndLeaves) {
    for (const char* title : {"My crank", "", "Figure"}) {
        port.trace.clear();
        Type(animate.txt_header, title);
        animate.cmd_Done.click();
        EXPECT_EQ(model.ModelTitle, title);
        EXPECT_THAT(port.trace, ElementsAre("hide frm_Animate"));
    }
    EXPECT_EQ(model.DesignNumber, 1) << "nothing was edited";
}

TEST_F(AnimateWays, NextCountsTheDesignAfterAnEditOfTheGeometry) {
    Edit(animate.txt_Linkout.at(Field_Link3), "8.5");
    animate.cmd_Recalc.click();
    animate.cmd_Done.click();
    EXPECT_EQ(model.DesignNumber, 2);
    Open_Animate();
    animate.cmd_Done.click();
    EXPECT_EQ(model.DesignNumber, 2) << "forgotten as the screen opened";
    Open_Animate();
    Edit(animate.txt_Initial[2], "5");
    animate.cmd_Done.click();
    EXPECT_EQ(model.DesignNumber, 2) << "the range is no geometry";
}

TEST_F(AnimateWays, AFaultOfNextLeavesItOpen) {
    model.DesignNumber = 32767;
    animate.GeometryEdited = true;
    animate.cmd_Done.click();
    Expect_Fault(6, "frm_animate.cmd_Done_Click");
    EXPECT_EQ(model.DesignNumber, 32767);
    EXPECT_THAT(port.trace, ElementsAre("box"));
}

TEST_F(AnimateWays, BackOpensTheInputScreenInItsPlaceAndTakesNothing) {
    Type(animate.txt_header, "My crank");
    animate.GeometryEdited = true;
    const LinkageModel before = model;
    port.opening[ScreenId::frm_Inputnew] = [&] {
        EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
        EXPECT_THAT(port.trace, ElementsAre("hide frm_Animate", "show frm_Inputnew modal"));
    };
    animate.cmd_Back.click();
    EXPECT_THAT(port.screens.back(), ScreenId::frm_Inputnew);
}

TEST_F(AnimateWays, ClosingItsWindowIsItsNext) {
    Type(animate.txt_header, "My crank");
    animate.GeometryEdited = true;
    Close_Screen(*screens, ScreenId::frm_Animate);
    EXPECT_EQ(model.ModelTitle, "My crank");
    EXPECT_EQ(model.DesignNumber, 2);
    EXPECT_THAT(port.trace, ElementsAre("hide frm_Animate"));
}

TEST_F(AnimateWays, PrintWarnsAndPrintsOnYesAlone) {
    const char* const question =
        "Note: The image on this screen may not print correctly on some printers.\n"
        "You can also copy it to the clipboard and paste it in a document.\n"
        "Do you want to send it to the printer now anyway?";
    Expect_Print_Asks(animate.cmd_Copy, ScreenId::frm_Animate, question);
}

TEST_F(AnimateWays, AFaultOfPrintingIsReportedUnderItsName) {
    Break_Next_Box();
    animate.cmd_Copy.click();
    Expect_Fault(57, "frm_animate.cmd_Copy_Click");
    EXPECT_THAT(port.printed, IsEmpty());
}

}  // namespace
}  // namespace kervol
