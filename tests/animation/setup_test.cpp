// SPDX-License-Identifier: GPL-3.0-or-later
// What precedes every drawing: settings, colours, window, radii, scale, header.
#include "animation/animation_fixture.h"
#include "core/header.h"

namespace kervol {
namespace {

class CheckParameters : public AnimationTest {};

TEST_F(CheckParameters, TakesTheDelayAsTheSpeedBarsRest) {
    for (const auto& [bar, delay] : {std::pair{0, 32767}, {16384, 16383}, {32767, 0}}) {
        settings.hsc_speed.value = bar;
        Check_Parameters(*program, settings);
        EXPECT_EQ(model.AnimDelay, delay);
    }
}

TEST_F(CheckParameters, TakesTheIntegerOfTheCycles) {
    const std::pair<const char*, int> cases[] = {{"3", 3},       {" 12", 12},      {"2.9", 2},
                                                 {"0", 0},       {"-2", -2},       {"1E2", 100},
                                                 {"7 times", 7}, {"32767", 32767}, {"32767.9", 32767}};
    for (const auto& [text, cycles] : cases) {
        settings.txt_Cycles.text = text;
        Check_Parameters(*program, settings);
        EXPECT_EQ(model.AnimCycles, cycles) << text;
    }
}

TEST_F(CheckParameters, CountsATextWithoutANumberAsNoCycles) {
    for (const char* text : {"", " ", "many", "-", ".", "E5", "nan", "inf", "x3", "\xc3\xa4"}) {
        settings.txt_Cycles.text = text;
        model.AnimCycles = 9;
        Check_Parameters(*program, settings);
        EXPECT_EQ(model.AnimCycles, 0) << text;
    }
}

TEST_F(CheckParameters, RefusesCyclesBeyond16BitsBeforeTheBoxesAreRead) {
    settings.hsc_speed.value = 767;
    settings.chk_Showlinks.on = false;
    settings.chk_Trace.on = true;
    for (const char* text : {"32768", "-32769", "1E9", "1E999"}) {
        settings.txt_Cycles.text = text;
        model.AnimCycles = 9;
        model.AnimDelay = 1;
        Check_Parameters(*program, settings);
        Expect_Fault(6, "Check_Parameters");
        EXPECT_EQ(model.AnimDelay, 32000);
        EXPECT_EQ(model.AnimCycles, 9);
        EXPECT_EQ(model.HideLinks, "N");
        EXPECT_EQ(model.ShowTrace, "N");
    }
}

TEST_F(CheckParameters, HidesLinksWhoseBoxIsOffAndTracesWhereItsBoxIsOn) {
    for (const bool links : {false, true})
        for (const bool trace : {false, true}) {
            settings.chk_Showlinks.on = links;
            settings.chk_Trace.on = trace;
            Check_Parameters(*program, settings);
            EXPECT_EQ(model.HideLinks, links ? "N" : "Y");
            EXPECT_EQ(model.ShowTrace, trace ? "Y" : "N");
        }
}

class AnimateSetup : public AnimationTest {
  protected:
    AnimateSetup() {
        model.NumSteps = 1;
        Put_Pivots(6, 7, 6);
        for (int link = 1; link <= 7; ++link) model.LinkTable(link) = 4;
        Put_All_Points(0, 5, 7);
        Put_All_Points(1, 6, 8);
        program->animation.colours = {};
        program->animation.LinkColour = kWhite;
    }

    void Set_Up() { Animate_Setup(*program, view, settings); }
    static std::vector<Drawn> Scaled(double low, double high) {
        return {{Drawn::Kind::Scale, low, low, high, high, {}},
                {Drawn::Kind::Background, 0, 0, 0, 0, kWhite}};
    }
};

TEST_F(AnimateSetup, FillsTheColours) {
    Set_Up();
    const ColourTable& colours = program->animation.colours;
    EXPECT_EQ(colours.magenta, (Colour{255, 0, 255}));
    EXPECT_EQ(colours.white, (Colour{255, 255, 255}));
    EXPECT_EQ(colours.blue, (Colour{0, 0, 255}));
    EXPECT_EQ(colours.black, (Colour{0, 0, 0}));
    EXPECT_EQ(colours.green, (Colour{0, 255, 0}));
    EXPECT_EQ(colours.cyan, (Colour{0, 255, 255}));
    EXPECT_EQ(colours.red, (Colour{255, 0, 0}));
    EXPECT_EQ(colours.purple, (Colour{128, 0, 128}));
    EXPECT_EQ(colours.yellow, (Colour{255, 255, 0}));
    EXPECT_EQ(colours.grey, (Colour{128, 128, 128}));
    EXPECT_EQ(program->animation.LinkColour, (Colour{255, 0, 255}));
}

TEST_F(AnimateSetup, ScalesTheWindowThatWasThereWithoutClearing) {
    Set_Up();
    Expect_Drawn(Scaled(-10, 20));
    EXPECT_EQ(program->animation.PlotY0, 10);
}

TEST_F(AnimateSetup, ClearsFirstWithStepModeNAlone) {
    for (const char* mode : {"Y", "", "n"}) {
        model.StepMode = mode;
        Set_Up();
        Expect_Drawn(Scaled(-10, 20));
    }
    model.StepMode = "N";
    Set_Up();
    Expect_Drawn(Joined({{{Drawn::Kind::Clear}}, Scaled(-10, 20)}));
    EXPECT_EQ(model.StepMode, "N");
}

TEST_F(AnimateSetup, WithAutoscaleOnFitsTheWindowToTheMotion) {
    view.chk_autoscale.on = true;
    Set_Up();
    Expect_Drawn(Scaled(0 - 1, 8 + 1));
    EXPECT_EQ(program->animation.PlotY0, 8);
}

TEST_F(AnimateSetup, ReadsTheSettingsBeforeItFitsTheWindow) {
    view.chk_autoscale.on = true;
    settings.chk_Showlinks.on = false;
    Set_Up();
    EXPECT_EQ(model.HideLinks, "Y");
    Expect_Drawn(Scaled(5 - 1, 8 + 1));
}

TEST_F(AnimateSetup, TakesTheRadiiFromTheUpperBoundAlone) {
    AnimationState& state = program->animation;
    for (const auto& [low, high] : {std::pair{-10.0F, 20.0F}, {-1000.0F, 20.0F}, {-1000.0F, -20.0F}}) {
        state.PlotMin = low;
        state.PlotMax = high;
        Set_Up();
        EXPECT_FLOAT_EQ(state.RadiusSmall, 0.3F);
        EXPECT_FLOAT_EQ(state.RadiusCoupler, 0.24F);
        EXPECT_FLOAT_EQ(state.RadiusPivot, 0.6F);
    }
    state.PlotMin = -30;
    state.PlotMax = 0;
    Set_Up();
    EXPECT_EQ(state.RadiusSmall, 0);
    EXPECT_EQ(state.RadiusCoupler, 0);
    EXPECT_EQ(state.RadiusPivot, 0);
}

TEST_F(AnimateSetup, ReportsAnEmptyWindowAndLeavesScaleHeaderAndOriginAsTheyWere) {
    AnimationState& state = program->animation;
    state.PlotMin = state.PlotMax = 0;
    state.PlotY0 = 123;
    view.lbl_Header.caption = "as it was";
    Set_Up();
    Expect_Fault(5, "Animate_Setup");
    Expect_Drawn({});
    EXPECT_EQ(view.lbl_Header.caption, "as it was");
    EXPECT_EQ(state.PlotY0, 123);
    EXPECT_EQ(state.LinkColour, kMagenta);
    EXPECT_EQ(state.RadiusPivot, 0);
}

TEST_F(AnimateSetup, ClearsAlsoInFrontOfAnEmptyWindow) {
    model.StepMode = "N";
    program->animation.PlotMin = program->animation.PlotMax = 7;
    Set_Up();
    Expect_Fault(5, "Animate_Setup");
    Expect_Drawn({{Drawn::Kind::Clear}});
}

TEST_F(AnimateSetup, GoesOnBehindCyclesThatAreRefused) {
    settings.txt_Cycles.text = "99999";
    Set_Up();
    Expect_Fault(6, "Check_Parameters");
    Expect_Drawn(Scaled(-10, 20));
}

TEST_F(AnimateSetup, GoesOnWithWhatAFailedAutoscaleLeft) {
    view.chk_autoscale.on = true;
    model.NumSteps = 1025;
    Set_Up();
    Expect_Fault(9, "Autoscale6");
    EXPECT_EQ(picture.drawn.size(), 2U);
    EXPECT_NE(view.lbl_Header.caption, "");
}

class Header : public AnimationTest {
  protected:
    Header() {
        model.UserName = "A. Weaver";
        model.DesignNumber = 12;
        model.DateText = "2031-02-03";
        model.TimeText = "14:15";
        model.ModelName = "loom";
    }
};

TEST_F(Header, HasFourLinesWithoutAFile) {
    model.ModelPath = "";
    EXPECT_EQ(Put_Header(model), "A. Weaver\n Design No. 12\n2031-02-03\n at 14:15");
}

TEST_F(Header, EndsInTheNameOfAFile) {
    model.ModelPath = "/home/weaver/loom.kvl";
    EXPECT_EQ(Put_Header(model), "A. Weaver\n Design No. 12\n2031-02-03\n at 14:15\n File: loom");
}

TEST_F(Header, KeepsItsLinesWhereNothingStandsInThem) {
    model.UserName = model.DateText = model.TimeText = "";
    model.DesignNumber = -1;
    model.ModelPath = "x.kvl";
    model.ModelName = "";
    EXPECT_EQ(Put_Header(model), "\n Design No. -1\n\n at \n File: ");
}

TEST_F(Header, IsPutOnTheScreenAtEachSetUp) {
    model.ModelPath = "/home/weaver/loom.kvl";
    Animate_Setup(*program, view, settings);
    EXPECT_EQ(view.lbl_Header.caption, "A. Weaver\n Design No. 12\n2031-02-03\n at 14:15\n File: loom");
    model.ModelPath = "";
    Animate_Setup(*program, view, settings);
    EXPECT_EQ(view.lbl_Header.caption, "A. Weaver\n Design No. 12\n2031-02-03\n at 14:15");
}

}  // namespace
}  // namespace kervol
