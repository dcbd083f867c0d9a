// SPDX-License-Identifier: GPL-3.0-or-later
// The Input screen as it opens, and the events of its fields.
#include <limits>

#include "screens/screens_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

class InputOpening : public ScreensTest {
  protected:
    std::string Shown_Fields() const {
        std::string shown;
        for (std::size_t i = 0; i < NumInitialFields; ++i)
            if (input.txt_Initial[i].visible)
                shown += (shown.empty() ? "" : ", ") + input.lbl_Initial[i].caption;
        return shown;
    }
};

TEST_F(InputOpening, FillsTheScreenAndCalculatesNothing) {
    animate.txt_Cycles.text = "4";
    model.ShowCoupler = "N";
    model.DataCalculated = true;
    input.GeometryEdited = true;
    input.LinkoutChanged = true;
    Open_Input();
    EXPECT_EQ(model.ShowCoupler, "Y");
    EXPECT_EQ(animate.txt_Cycles.text, "4");
    EXPECT_EQ(model.AnimCycles, 4);
    EXPECT_EQ(input.hsc_step.maximum, 36);
    EXPECT_EQ(Link(Field_Link3).text, "8.625");
    EXPECT_TRUE(input.opt_SteveWatt[0].on);
    EXPECT_TRUE(input.opt_Calctype[0].on);
    EXPECT_EQ(input.txt_header.text, "Kervol Watts Chain with Two Coupler Curves");
    EXPECT_EQ(program->animation.CurrentStep, 6) << "step 5 was shown, 6 is next";
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_FALSE(input.GeometryEdited);
    EXPECT_FALSE(input.LinkoutChanged);
    EXPECT_FALSE(input.Filling);
    EXPECT_TRUE(Picture_Is_Clear());
    EXPECT_EQ(Outputs(), "Print ReDraw");
    EXPECT_TRUE(input.cmd_Calc.enabled);
    EXPECT_TRUE(input.cmd_Cancel.enabled);
}

TEST_F(InputOpening, StartsWithAutoscaleAndWithoutAutocalc) {
    EXPECT_TRUE(input.chk_autoscale.on);
    EXPECT_FALSE(input.chk_autocalc.on);
    EXPECT_EQ(input.chk_autoscale.caption, "Autoscale");
    EXPECT_EQ(input.chk_autocalc.caption, "Autocalc On");
    EXPECT_EQ(animate.cmb_wait.text, "1000");
    EXPECT_THAT(animate.cmb_wait.items, ElementsAre("10", "20", "40", "100", "500"));
    EXPECT_EQ(model.AnimWait, 10);
    EXPECT_TRUE(animate.chk_Showlinks.on);
    EXPECT_FALSE(animate.chk_Trace.on);
    EXPECT_EQ(animate.hsc_speed.value, 32767 - 16383);
}

TEST_F(InputOpening, HasItsCaptions) {
    const std::pair<const Button*, const char*> buttons[] = {
        {&input.cmd_Calc, "&Calculate"}, {&input.cmd_Draw, "&ReDraw"}, {&input.cmd_Step, "&Step"},
        {&input.cmd_Reset, "Rese&t"},    {&input.cmd_Next, "&Next >"}, {&input.cmd_Animate, "&Animate"},
        {&input.cmd_Cancel, "< &Back"},  {&input.cmd_Print, "&Print"},
    };
    for (const auto& [button, caption] : buttons) EXPECT_EQ(button->caption, caption);
    EXPECT_EQ(input.opt_SteveWatt[0].caption, "Watt");
    EXPECT_EQ(input.opt_SteveWatt[1].caption, "Stephenson");
    Open_Input();
    const auto caption = [&](LinkField field) { return input.lbl_Left.at(field).caption; };
    EXPECT_EQ(caption(Field_Link1), "Link 1 (O2-O4)");
    EXPECT_EQ(caption(Field_Link2), "Link 2 (O2-A)");
    EXPECT_EQ(caption(Field_Link3), "Link 3 (A-B)");
    EXPECT_EQ(caption(Field_Link4), "Link 4 (O4-B)");
    EXPECT_EQ(caption(Field_CouplerAC), " Dist Coup Pt (A-C)");
    EXPECT_EQ(caption(Field_Delta3), "Ang to 1st Coup Pt");
    EXPECT_EQ(caption(Field_Delta5), "Ang to 2nd Coup Pt (delta5)");
    EXPECT_EQ(caption(Field_Ground), "Angle to Ground");
}

TEST_F(InputOpening, ShowsTheFieldsOfEachMode) {
    const std::pair<std::int16_t, const char*> modes[] = {
        {1, "Omega2, Alpha2, Theta Zero"},
        {2, "Start Time, End Time, Delta Time, Omega Zero, Alpha2, Theta Zero"},
        {3, "Min Theta, Max Theta, Delta Theta, Omega2"},
        {4, "Thetazero"},
        {5, "Thetazero"},
    };
    for (const auto& [mode, shown] : modes) {
        Open_Input_In_Mode(mode);
        EXPECT_EQ(Shown_Fields(), shown) << "mode " << mode;
        const bool imported = mode > 3;
        EXPECT_EQ(input.frm_calcmode.visible, !imported);
        EXPECT_EQ(input.lbl_camdriven.visible, imported);
        EXPECT_EQ(Initial(5).enabled, !imported);
        EXPECT_EQ(input.opt_Calctype[1].on, mode == 1);
        EXPECT_EQ(input.opt_Calctype[2].on, mode == 2);
        EXPECT_EQ(input.opt_Calctype[0].on, mode == 3);
        EXPECT_EQ(model.CalcMode, mode) << "an imported drive is never read back from the buttons";
        EXPECT_EQ(input.lbl_time.visible, mode == 2);
        EXPECT_EQ(input.lbl_cw.visible, mode == 3);
        EXPECT_EQ(input.lbl_ccw.visible, mode == 3);
    }
}

TEST_F(InputOpening, NamesTheFileOfAnImportedDrive) {
    Put_Imported_Drive(4);
    model.Theta2One = -12.5F;
    Open_Input();
    EXPECT_EQ(input.lbl_camdriven.caption,
              "\n This linkage is being driven by \ns-v-a data imported from the file: drive.sva");
    EXPECT_EQ(Initial(5).text, "-12.5");
}

TEST_F(InputOpening, AModeThatDoesNotExistLeavesTheChoiceOpen) {
    for (const std::int16_t mode : Int16List{0, 6}) {
        Open_Input_In_Mode(mode);
        EXPECT_TRUE(input.frm_calcmode.visible);
        EXPECT_FALSE(input.lbl_camdriven.visible);
        EXPECT_EQ(model.CalcMode, mode);
    }
}

TEST_F(InputOpening, TheTextsOfTheRangeComeBackWhereTheyMeanIt) {
    model.ThetaMinText = "0.00";
    model.ThetaMaxText = "3.6E2";
    model.ThetaStepText = "0.05";  // a time step left by another mode
    Open_Input_In_Mode(3);
    EXPECT_THAT(Initial_Texts(4), ElementsAre("0.00", "3.6E2", "10", "10"));
    EXPECT_EQ(Initial(0).put_value, 0);
    EXPECT_EQ(Initial(1).put_value, 360);
}

TEST_F(InputOpening, TheFieldsOfAnotherModeAreNotTakenFromTheTexts) {
    model.ThetaMinText = "90";
    Open_Input_In_Mode(2);
    EXPECT_THAT(Initial_Texts(6), ElementsAre("0", "5", "0.05", "10", "-5", "0"));
    model.Theta2One = 45;
    Open_Input_In_Mode(1);
    EXPECT_EQ(Initial(5).text, "45");
    EXPECT_EQ(Initial(0).text, "45");
}

TEST_F(InputOpening, AnEmptyTitleLeavesTheHeaderField) {
    input.txt_header.text = "typed";
    model.ModelTitle = "";
    Open_Input();
    EXPECT_EQ(input.txt_header.text, "typed");
}

TEST_F(InputOpening, TheAssemblyOfTheModelStandsAgainstWhatTheOptionsShowed) {
    model.OpenCross1 = model.OpenCross2 = 2;
    Open_Input();
    EXPECT_EQ(model.OpenCross1, 2);
    EXPECT_EQ(model.OpenCross2, 2);
    EXPECT_TRUE(input.opt_OpenCross1[1].on && input.opt_OpenCross2[1].on);
}

TEST_F(InputOpening, TheSettingsOfTheAnimationAreThoseOfTheFile) {
    model.AnimDelay = 30000;
    model.AnimCycles = 3;
    model.ShowTrace = "Y";
    model.HideLinks = "Y";
    port.Fill_Screens();
    EXPECT_EQ(animate.hsc_speed.value, 2767);
    Open_Input();
    EXPECT_EQ(model.AnimDelay, 30000);
    EXPECT_EQ(model.AnimCycles, 3);
    EXPECT_EQ(model.ShowTrace, "Y");
    EXPECT_EQ(model.HideLinks, "Y");
}

TEST_F(InputOpening, ADelayBeyondTheSpeedBarStandsAtItsEnd) {
    for (const std::int32_t delay : {40000, std::numeric_limits<std::int32_t>::max()}) {
        model.AnimDelay = delay;
        port.Fill_Screens();
        EXPECT_EQ(animate.hsc_speed.value, 0);
    }
    for (const std::int32_t delay : {-5, std::numeric_limits<std::int32_t>::min()}) {
        model.AnimDelay = delay;
        port.Fill_Screens();
        EXPECT_EQ(animate.hsc_speed.value, 32767);
    }
}

TEST_F(InputOpening, OtherTextsOfAFileCountAsTheDrawingTakesThem) {
    model.HideLinks = "y";
    model.ShowTrace = "x";
    port.Fill_Screens();
    EXPECT_FALSE(animate.chk_Showlinks.on);
    EXPECT_TRUE(animate.chk_Trace.on);
    model.HideLinks = model.ShowTrace = "";
    port.Fill_Screens();
    EXPECT_TRUE(animate.chk_Showlinks.on);
    EXPECT_FALSE(animate.chk_Trace.on);
}

TEST_F(InputOpening, WithAutocalcItCalculatesAndStaysCalculated) {
    input.chk_autocalc.on = true;
    Open_Input();
    EXPECT_TRUE(model.DataCalculated);
    EXPECT_EQ(Outputs(), "Next Step Animate Reset Print ReDraw");
    EXPECT_FALSE(Picture_Is_Clear());
    EXPECT_NEAR(tables.Theta(9, 0), 90, 1e-3);
    EXPECT_FALSE(input.GeometryEdited);
}

TEST_F(InputOpening, WithAutocalcAnAbandonedRunLeavesNothingCalculated) {
    Put_Limited_Linkage();
    input.chk_autocalc.on = true;
    port.answers = {Answer::Abort};
    Open_Input();
    Take_Box();
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_FALSE(input.Filling);
}

TEST_F(InputOpening, ACountBeyondTheTablesIsNotDrawn) {
    for (const std::int16_t steps : Int16List{5000, -3}) {
        model.NumSteps = steps;
        Open_Input();
        EXPECT_EQ(Boxes_Left(), 0U);
        EXPECT_EQ(model.NumSteps, steps);
    }
}

class FieldEvents : public ScreensTest {
  protected:
    FieldEvents() { Calculate_In_Mode(3); }
};

TEST_F(FieldEvents, ACharacterTypedIntoTheGeometryTurnsTheOutputsOff) {
    Type(Link(Field_Link3), "8");
    EXPECT_EQ(Outputs(), "");
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_TRUE(Picture_Is_Clear());
    EXPECT_EQ(model.Link3, 8.625F) << "not read yet";
    EXPECT_FALSE(input.GeometryEdited);
}

TEST_F(FieldEvents, LeavingAnEditedFieldReadsItAndWithoutAutocalcClearsThePicture) {
    Type(Link(Field_Link3), "8");
    picture.Circle(0, 0, 1, {});
    Link(Field_Link3).lost_focus();
    EXPECT_EQ(model.Link3, 8);
    EXPECT_TRUE(input.GeometryEdited);
    EXPECT_TRUE(Picture_Is_Clear());
    EXPECT_EQ(Outputs(), "");
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_FALSE(input.LinkoutChanged);
}

TEST_F(FieldEvents, LeavingAnEditedFieldCalculatesWithAutocalc) {
    input.chk_autocalc.on = true;
    const float before = tables.Theta(9, 1);
    Edit(Link(Field_Link3), "8");
    EXPECT_TRUE(model.DataCalculated);
    EXPECT_EQ(Outputs(), "Next Step Animate Reset Print ReDraw");
    EXPECT_NE(tables.Theta(9, 1), before);
    EXPECT_TRUE(input.GeometryEdited);
}

TEST_F(FieldEvents, LeavingAFieldThatWasNotEditedDoesNothing) {
    Link(Field_Link3).lost_focus();
    EXPECT_TRUE(model.DataCalculated);
    EXPECT_FALSE(input.GeometryEdited);
    EXPECT_FALSE(Picture_Is_Clear());
}

TEST_F(FieldEvents, EnterLeavesTheFieldInPlace) {
    Type(Link(Field_Link3), "8");
    Link(Field_Link3).enter();
    EXPECT_EQ(model.Link3, 8);
    EXPECT_TRUE(input.GeometryEdited);
    input.GeometryEdited = false;
    Link(Field_Link3).lost_focus();
    EXPECT_FALSE(input.GeometryEdited) << "nothing has changed since";
    Type(Initial(2), "20");
    Initial(2).enter();
    EXPECT_EQ(model.ThetaStepDeg, 20);
}

TEST_F(FieldEvents, LeavingAFieldOfTheDriveChecksItAndClearsOrCalculates) {
    Edit(Initial(2), "20");
    EXPECT_EQ(model.NumSteps, 18);
    EXPECT_TRUE(Picture_Is_Clear());
    EXPECT_FALSE(input.GeometryEdited);
    input.chk_autocalc.on = true;
    Edit(Initial(2), "30");
    EXPECT_EQ(model.NumSteps, 12);
    EXPECT_TRUE(model.DataCalculated);
    EXPECT_FALSE(Picture_Is_Clear());
}

TEST_F(FieldEvents, EveryFieldOfTheScreenRaisesThem) {
    for (const TextField& field : input.txt_Linkout) {
        EXPECT_TRUE(field.change);
        EXPECT_TRUE(field.lost_focus);
        EXPECT_TRUE(field.enter);
    }
    for (const TextField& field : input.txt_Initial) {
        EXPECT_TRUE(field.lost_focus);
        EXPECT_TRUE(field.enter);
    }
}

TEST_F(FieldEvents, AFaultEndsTheEventAndNotTheProgram) {
    model.DesignNumber = 32767;
    input.GeometryEdited = true;
    input.cmd_Next.click();
    Expect_Fault(6, "frm_Input.cmd_Next");
    EXPECT_EQ(model.DesignNumber, 32767);
}

TEST_F(FieldEvents, ACharacterTypedIntoTheRangeTurnsTheOutputsOffToo) {
    Type(Initial(2), "5");
    EXPECT_EQ(Outputs(), "");
    EXPECT_FALSE(model.DataCalculated);
}

TEST_F(FieldEvents, ATypedSpeedOutlivesAChangeOfMode) {
    Edit(Initial(3), "88");
    Choose(input.opt_Calctype, 2);
    EXPECT_EQ(model.Omega2Start, 88);
    EXPECT_EQ(Initial(3).text, "88");
    Edit(Initial(5), "45");
    Edit(Initial(4), "-2");
    Choose(input.opt_Calctype, 1);
    EXPECT_EQ(model.Theta2One, 45);
    EXPECT_EQ(model.Alpha2Const, -2);
    EXPECT_EQ(Initial(5).text, "45");
}

TEST_F(FieldEvents, AnAccelerationThatAngleStepsHaveClearedDoesNotComeBack) {
    Choose(input.opt_Calctype, 2);
    Edit(Initial(4), "7");
    input.cmd_Calc.click();
    ASSERT_EQ(model.Alpha2Const, 7);
    Choose(input.opt_Calctype, 0);
    input.cmd_Calc.click();
    Choose(input.opt_Calctype, 2);
    EXPECT_EQ(Initial(4).text, "0");
    EXPECT_EQ(model.Alpha2Const, 0);
}

TEST_F(FieldEvents, AnimateComesBackBehindOnePosition) {
    input.cmd_Calc.click();
    ASSERT_TRUE(input.cmd_Animate.enabled);
    Choose(input.opt_Calctype, 1);
    EXPECT_FALSE(input.cmd_Animate.enabled) << "nothing to animate";
    Choose(input.opt_Calctype, 0);
    EXPECT_TRUE(input.cmd_Animate.enabled);
    Edit(Initial(3), "5");
    Choose(input.opt_Calctype, 2);
    EXPECT_FALSE(input.cmd_Animate.enabled) << "an edit turned the outputs off";
}

TEST_F(FieldEvents, TheOnePositionIsMirroredOnBothScreens) {
    Choose(input.opt_Calctype, 1);
    Edit(Initial(5), "33");
    input.cmd_Calc.click();
    for (const LinkageScreen* screen :
         {static_cast<LinkageScreen*>(&input), static_cast<LinkageScreen*>(&animate)})
        for (const std::size_t field : {0U, 1U}) EXPECT_EQ(screen->txt_Initial.at(field).text, "33");
}

TEST_F(FieldEvents, AutoscaleOffBeforeAnyWindowIsReported) {
    program->animation.PlotMin = program->animation.PlotMax = 0;
    input.chk_autoscale.on = false;
    input.hsc_step.value = 0;
    input.cmd_Reset.click();
    Expect_Fault(5, "Animate_Setup");
}

}  // namespace
}  // namespace kervol
