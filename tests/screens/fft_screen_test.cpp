// SPDX-License-Identifier: GPL-3.0-or-later
// The Fourier screen: its lists and checks, what runs the transform, what its graphs are given, and what is
// left when it closes.
#include "catalogue/lists.h"
#include "catalogue/table_rows.h"
#include "core/header.h"
#include "screens/launch_screens.h"
#include "screens/screens_fixture.h"
#include "support/compare.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

constexpr const char* kTooMany =
    "Number of harmonics cannot exceed 1/2 the number of data points available.\r"
    "If you want more bandwidth, recalculate all data with smaller increments. \r"
    "Use the [INPUT] button from the Home Screen to do so.";
constexpr const char* kNoHarmonics = " Must set the number of harmonics to a value > 0";
constexpr const char* kNoFunction = " Please select a function for FFT calculation";

class FFTScreenTest : public ScreensTest {
  protected:
    FFTScreenTest() {
        // 36 steps of 10 degrees.
        Calculate_In_Mode(3);
        port.trace.clear();
    }

    void Open() { port.Show_Screen(ScreenId::frm_FFT, Modality::Modal); }
    /// Opens for a sweep of that many steps.
    void Open_With(int steps) {
        model.NumSteps = static_cast<std::int16_t>(steps);
        Open();
    }
    static void Pick(ComboBox& box, const char* text) {
        box.text = text;
        box.click();
    }
    void Open_And_Transform(const char* function = "Theta3") {
        Open();
        Pick(screen.cmb_Var1, function);
    }
    bool Table_Is_Clear() const {
        for (int row = 0; row <= 512; ++row)
            for (int column = 0; column <= 3; ++column)
                if (tables.FFTTable(row, column) < 0 || tables.FFTTable(row, column) > 0) return false;
        return true;
    }
    std::string Buttons_On() const {
        std::string on;
        if (screen.cmd_Done.enabled) on += "Next ";
        if (screen.cmd_Print.enabled) on += "Print ";
        if (screen.cmd_Copy.enabled) on += "Copy";
        return on;
    }

    FFTScreen& screen = screens->frm_FFT;
    FourierState& fourier = program->fourier;
};

TEST_F(FFTScreenTest, HasItsTexts) {
    EXPECT_EQ(Screen_Caption(*screens, ScreenId::frm_FFT),
              "Fourier Transform   KERVOL for Windows 7.0, Rev. 2.2");
    EXPECT_EQ(screen.fra_Function1.caption, "Function for FFT");
    EXPECT_EQ(screen.lbl_Var1.caption, "Variable");
    EXPECT_EQ(screen.lbl_Com1.caption, "Component");
    EXPECT_EQ(screen.lbl_Harmonics.caption, "No of Harmonics");
    EXPECT_EQ(screen.cmb_Harmonics.text, "15");
    EXPECT_EQ(screen.cmd_Clear1.caption, "&Clear");
    EXPECT_EQ(screen.fra_Grid.caption, "Grid");
    EXPECT_EQ(screen.fra_Style.caption, "Style");
    EXPECT_EQ(screen.chk_HGrid.caption, "Horiz");
    EXPECT_EQ(screen.chk_VGrid.caption, "Vertic");
    EXPECT_EQ(screen.chk_Line.caption, "Envelope");
    EXPECT_EQ(screen.chk_Sticks.caption, "Spectral Lines");
    EXPECT_EQ(screen.cmd_Calc.caption, "&Calculate");
    EXPECT_EQ(screen.cmd_Done.caption, "&Next >");
    EXPECT_EQ(screen.cmd_Cancel.caption, "< &Back");
    EXPECT_EQ(screen.cmd_Print.caption, "&Print");
    EXPECT_EQ(screen.cmd_Copy.caption, "C&opy");
    EXPECT_EQ(screen.lbl_Header2.caption, "");
    const char* const labels[] = {"Real", "Img", "Mag", "Phs"};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(screen.lbl_Graph[i].caption, labels[i]);
}

TEST_F(FFTScreenTest, IsOpenedFromItsMenu) {
    home.mnu_CalcFFT.click();
    EXPECT_THAT(port.trace, Contains("show frm_FFT modal"));
}

TEST_F(FFTScreenTest, OpensWithoutAChoiceAndWithoutATransform) {
    fourier.FFTReady = true;
    tables.FFTTable.Fill(Poison);
    fourier.FFTWork.Fill(1);
    program->selections.LocalCoords = 2;
    screen.cmb_Var1.text = "Theta3";
    screen.cmb_Com1.text = "Ang";
    port.trace.clear();
    Open();
    EXPECT_FALSE(fourier.FFTReady);
    EXPECT_TRUE(fourier.FFTScreenOpen);
    EXPECT_EQ(Buttons_On(), "");
    EXPECT_TRUE(screen.cmd_Cancel.enabled);
    EXPECT_EQ(screen.cmb_Var1.text, "");
    EXPECT_EQ(screen.cmb_Var1.items.size(), 35U);
    EXPECT_EQ(screen.cmb_Com1.text, "X");
    EXPECT_THAT(screen.cmb_Com1.items, ElementsAre("X", "Y", "Mag", "Ang"));
    EXPECT_EQ(program->selections.SelComp(1), 0);
    EXPECT_EQ(program->selections.LocalCoords, 0);
    EXPECT_EQ(program->selections.PlotTypePick, 5);
    EXPECT_EQ(program->selections.SelCount, 1);
    EXPECT_EQ(fourier.NumPlots, 4);
    EXPECT_EQ(fourier.NumHarmonics, 18);
    EXPECT_EQ(screen.MaxTicks, 15);
    EXPECT_EQ(screen.lbl_Header.caption, Put_Header(model));
    EXPECT_THAT(port.trace, Contains("focus frm_FFT.cmb_Var1"));
    EXPECT_EQ(tables.FFTTable(36, 3), 0);
    EXPECT_EQ(tables.FFTTable(37, 0), Poison) << "rows to the number of steps are cleared";
    EXPECT_EQ(fourier.FFTWork(36, 0), 0);
    EXPECT_EQ(fourier.FFTWork(37, 0), 1);
}

TEST_F(FFTScreenTest, OffersHalfTheStepsAndItsDivisorsDownTo3) {
    Open_With(36);
    EXPECT_THAT(screen.cmb_Harmonics.items, ElementsAre("18", "9", "6", "3"));
    EXPECT_EQ(screen.cmb_Harmonics.text, "18");
    Open_With(7);
    EXPECT_THAT(screen.cmb_Harmonics.items, ElementsAre("4")) << "3.5 to the even 4, and 4 / 2 is below 3";
    Open_With(5);
    EXPECT_THAT(screen.cmb_Harmonics.items, ElementsAre("2")) << "2.5 to the even 2";
    Open_With(360);
    EXPECT_THAT(screen.cmb_Harmonics.items, ElementsAre("180", "90", "60", "45", "36", "30", "20", "18", "15",
                                                        "12", "10", "9", "6", "5", "4", "3"));
    Open_With(1);
    EXPECT_THAT(screen.cmb_Harmonics.items, ElementsAre("0"));
    EXPECT_EQ(fourier.NumHarmonics, 0);
}

TEST_F(FFTScreenTest, APickOfAFunctionTransformsIt) {
    Open();
    port.trace.clear();
    Pick(screen.cmb_Var1, "Torque 12");
    EXPECT_EQ(fourier.FFTFunctionName, "Torque 12");
    EXPECT_TRUE(fourier.FFTReady);
    EXPECT_EQ(fourier.FFTHalf, 18);
    EXPECT_EQ(fourier.FFTUnit, model.UnitText(9));
    EXPECT_EQ(Buttons_On(), "Next Print Copy");
    EXPECT_EQ(port.trace.back(), "focus frm_FFT.cmd_Done");
    EXPECT_EQ(port.pointer, Pointer::Default);
}

TEST_F(FFTScreenTest, TransformsTheComponentThatIsPicked) {
    Open_And_Transform("Cpler Pt-1");
    double x = 0, y = 0;
    for (int step = 1; step <= 36; ++step) {
        x += tables.PointPos(step, 2, 0) / 36.0;
        y += tables.PointPos(step, 2, 1) / 36.0;
    }
    EXPECT_NEAR(tables.FFTTable(0, 0), x, 1e-4);
    Pick(screen.cmb_Com1, "Y");
    EXPECT_NEAR(tables.FFTTable(0, 0), y, 1e-4);
}

TEST_F(FFTScreenTest, EachGraphShowsOneColumnByHarmonic) {
    Open_And_Transform();
    for (std::size_t g = 0; g < 4; ++g) {
        const Chart& chart = screen.grf_Plot[g];
        EXPECT_TRUE(chart.visible);
        ASSERT_EQ(chart.NumSets(), 1);
        ASSERT_EQ(chart.NumPoints(), 19);
        EXPECT_EQ(chart.look.BottomTitle, "Harmonic Number");
        EXPECT_EQ(chart.look.GridStyle, 1);
        EXPECT_EQ(chart.look.GraphStyle, 4);
        EXPECT_TRUE(chart.look.sticks) << "a line for each harmonic, not a fill";
        // 18 / 15 is 1.2, twice that 2.4.
        EXPECT_EQ(chart.look.TickEvery, 1);
        EXPECT_EQ(chart.look.LabelEvery, 2);
        EXPECT_EQ(chart.look.fonts[4], (ChartFont{90, 2, 1}));
        EXPECT_EQ(chart.look.fonts[0].FontSize, 90);
        for (std::size_t i = 0; i <= 18; ++i) {
            EXPECT_EQ(chart.look.LabelText[i], std::to_string(i));
            EXPECT_EQ(chart.look.sets[0].GraphData[i],
                      tables.FFTTable(static_cast<int>(i), static_cast<int>(g)));
        }
        EXPECT_EQ(chart.look.sets[0].GraphData[18], 0) << "behind the last row of the table";
    }
    EXPECT_EQ(program->selections.SelCurrent, 4);
}

TEST_F(FFTScreenTest, TheBoxesOfGridAndStyleChangeTheGraphsAtOnce) {
    Open();
    const auto styles = [&] {
        return std::pair(screen.grf_Plot[3].look.GridStyle, screen.grf_Plot[0].look.GraphStyle);
    };
    EXPECT_EQ(styles(), std::pair(std::int16_t{1}, std::int16_t{4}));
    Put_Check(screen.chk_VGrid, true);
    EXPECT_EQ(styles(), std::pair(std::int16_t{3}, std::int16_t{4}));
    Put_Check(screen.chk_HGrid, false);
    Put_Check(screen.chk_Line, true);
    EXPECT_EQ(styles(), std::pair(std::int16_t{2}, std::int16_t{6}));
    Put_Check(screen.chk_Sticks, false);
    EXPECT_EQ(styles(), std::pair(std::int16_t{2}, std::int16_t{2}));
}

TEST_F(FFTScreenTest, FewerHarmonicsGiveFewerPointsAndTicks) {
    Open_And_Transform();
    Pick(screen.cmb_Harmonics, "6");
    EXPECT_EQ(fourier.NumHarmonics, 6);
    EXPECT_EQ(screen.MaxTicks, 6);
    EXPECT_EQ(screen.grf_Plot[2].NumPoints(), 7);
    EXPECT_EQ(screen.grf_Plot[2].look.TickEvery, 1);
    EXPECT_EQ(screen.grf_Plot[2].look.LabelEvery, 2);
    EXPECT_TRUE(fourier.FFTReady);
}

TEST_F(FFTScreenTest, TicksStandAFifteenthOfTheHarmonicsApart) {
    model.ThetaStepDeg = 1;
    Calculate_In_Mode(3);
    ASSERT_EQ(model.NumSteps, 360);
    Open_And_Transform();
    EXPECT_EQ(screen.grf_Plot[0].look.TickEvery, 12);
    EXPECT_EQ(screen.grf_Plot[0].look.LabelEvery, 24);
    // 20 / 15 is 1.33, twice that 2.67.
    Pick(screen.cmb_Harmonics, "20");
    EXPECT_EQ(screen.grf_Plot[0].look.TickEvery, 1);
    EXPECT_EQ(screen.grf_Plot[0].look.LabelEvery, 3);
}

TEST_F(FFTScreenTest, MoreHarmonicsThanHalfTheStepsAreRefused) {
    Open_And_Transform();
    Pick(screen.cmb_Harmonics, "40");
    Expect_Box(kTooMany, Icon::None);
    EXPECT_EQ(fourier.NumHarmonics, 18);
    EXPECT_EQ(screen.cmb_Harmonics.text, "18");
    EXPECT_EQ(screen.grf_Plot[0].NumPoints(), 19);
    for (int row = 18; row <= 512; ++row)
        for (int column = 0; column <= 3; ++column) EXPECT_EQ(tables.FFTTable(row, column), 0);
}

TEST_F(FFTScreenTest, TheCalculateButtonTakesMoreHarmonicsAndShowsZeroesBehindTheTable) {
    Open_And_Transform();
    screen.cmb_Harmonics.text = "40";
    screen.cmd_Calc.click();
    EXPECT_EQ(fourier.NumHarmonics, 40);
    ASSERT_EQ(screen.grf_Plot[2].NumPoints(), 41);
    EXPECT_EQ(screen.grf_Plot[2].look.sets[0].GraphData[40], 0);
    screen.cmb_Harmonics.text = "600";
    screen.cmd_Calc.click();
    EXPECT_EQ(screen.grf_Plot[2].NumPoints(), 513) << "the table ends there";
}

TEST_F(FFTScreenTest, ASweepAbove512StepsIsNoFailure) {
    model.ThetaStepDeg = 0.3515625F;
    Calculate_In_Mode(3);
    ASSERT_EQ(model.NumSteps, 1024);
    tables.FFTTable.Fill(Poison);
    Open();
    EXPECT_TRUE(Table_Is_Clear());
    EXPECT_EQ(fourier.NumHarmonics, 512);
    Pick(screen.cmb_Var1, "Theta3");
    EXPECT_EQ(fourier.FFTHalf, 512);
    EXPECT_EQ(screen.grf_Plot[2].NumPoints(), 513);
    screen.cmd_Clear1.click();
    EXPECT_TRUE(Table_Is_Clear());
}

TEST_F(FFTScreenTest, NoHarmonicsAreRefused) {
    for (const char* text : {"0", "", "x", "-3", "0.4"}) {
        Open();
        screen.cmb_Harmonics.text = text;
        port.trace.clear();
        screen.cmb_Harmonics.click();
        Expect_Box(kNoHarmonics, Icon::Exclamation);
        EXPECT_THAT(port.trace, ElementsAre("box", "focus frm_FFT.cmb_Harmonics"));
        EXPECT_EQ(port.pointer, Pointer::Default);
    }
}

TEST_F(FFTScreenTest, NoHarmonicsEmptyTheFunctionWhereItIsCalculated) {
    Open();
    screen.cmb_Harmonics.text = "0";
    Pick(screen.cmb_Var1, "Theta3");
    Expect_Box(kNoHarmonics, Icon::Exclamation);
    EXPECT_EQ(screen.cmb_Var1.text, "");
    EXPECT_FALSE(fourier.FFTReady);
    EXPECT_EQ(Buttons_On(), "");
}

TEST_F(FFTScreenTest, ATransformIsTitledByWhatItsFieldShows) {
    Open_And_Transform("Theta3");
    EXPECT_EQ(Transform_Title(*program), "Fourier Transform of  Theta3");
    // Refused: Omega4 is not what the table holds.
    screen.cmb_Harmonics.text = "0";
    Pick(screen.cmb_Var1, "Omega4");
    Expect_Box(kNoHarmonics, Icon::Exclamation);
    EXPECT_TRUE(fourier.FFTReady);
    EXPECT_EQ(Transform_Title(*program), "Fourier Transform of  ");
    Pick(screen.cmb_Harmonics, "9");
    Expect_Box(kNoFunction, Icon::Question);
    screen.cmd_Clear1.click();
    Pick(screen.cmb_Com1, "X");
    EXPECT_EQ(Transform_Title(*program), "Fourier Transform of  ");
}

TEST_F(FFTScreenTest, HarmonicsWithoutAFunctionAskForOne) {
    Open();
    port.trace.clear();
    Pick(screen.cmb_Harmonics, "9");
    Expect_Box(kNoFunction, Icon::Question);
    EXPECT_THAT(port.trace, ElementsAre("box", "focus frm_FFT.cmb_Var1"));
    EXPECT_EQ(fourier.NumHarmonics, 9);
}

TEST_F(FFTScreenTest, EnterOnAnEmptyFunctionAsksForOneAndClearsTheTable) {
    Open_And_Transform();
    port.trace.clear();
    Pick(screen.cmb_Var1, "");
    Expect_Box(kNoFunction, Icon::Question);
    EXPECT_TRUE(Table_Is_Clear());
    EXPECT_EQ(screen.grf_Plot[0].look.sets[0].GraphData[0], 0);
    EXPECT_EQ(port.trace.back(), "focus frm_FFT.cmb_Var1");
}

TEST_F(FFTScreenTest, AComponentWithoutAFunctionTransformsWhatSelection1Held) {
    Open_And_Transform("Cpler Pt-1");
    const float mean = tables.FFTTable(0, 0);
    Open();
    EXPECT_TRUE(Table_Is_Clear());
    Pick(screen.cmb_Com1, "X");
    EXPECT_TRUE(fourier.FFTReady);
    EXPECT_EQ(tables.FFTTable(0, 0), mean);
    EXPECT_FALSE(program->selections.SelVector);
}

TEST_F(FFTScreenTest, ClearTakesTheChoiceAndTheTransform) {
    Open_And_Transform();
    screen.cmd_Clear1.click();
    EXPECT_EQ(screen.cmb_Var1.text, "");
    EXPECT_TRUE(Table_Is_Clear());
    EXPECT_FALSE(fourier.FFTReady);
    EXPECT_EQ(Buttons_On(), "");
    EXPECT_FALSE(screen.Loading);
    for (const float y : screen.grf_Plot[2].look.sets[0].GraphData) EXPECT_EQ(y, 0);
}

TEST_F(FFTScreenTest, PicksWhileAListIsFilledDoNothing) {
    Open();
    screen.Loading = true;
    Pick(screen.cmb_Var1, "Theta3");
    Pick(screen.cmb_Com1, "Y");
    Pick(screen.cmb_Harmonics, "0");
    EXPECT_FALSE(fourier.FFTReady);
    EXPECT_EQ(fourier.NumHarmonics, 18);
}

TEST_F(FFTScreenTest, NextKeepsTheTransformForTablesAndPlots) {
    Open_And_Transform();
    port.trace.clear();
    screen.cmd_Done.click();
    Expect_Box(
        " The FFT of the selected function is \r now available for output as \r 'Current FFT' from the "
        "Preset "
        "Format\r lists on the PRINT and PLOT screens",
        Icon::Information);
    EXPECT_THAT(port.trace, ElementsAre("box", "hide frm_FFT"));
    EXPECT_FALSE(fourier.FFTScreenOpen);
    EXPECT_TRUE(fourier.FFTReady);
    ComboBox presets;
    Load_Presets(*program, presets, 4);
    EXPECT_THAT(presets.items, Contains("Current FFT - Real, Imag, Mag, Phase"));
}

TEST_F(FFTScreenTest, BackDropsTheTransform) {
    Open_And_Transform();
    screen.cmd_Cancel.click();
    EXPECT_FALSE(fourier.FFTScreenOpen);
    EXPECT_FALSE(fourier.FFTReady);
    EXPECT_EQ(port.trace.back(), "hide frm_FFT");
    ComboBox presets;
    Load_Presets(*program, presets, 2);
    EXPECT_THAT(presets.items, Not(Contains("Current FFT - Real, Imag")));
}

TEST_F(FFTScreenTest, ItsCloseBoxIsBack) {
    Open_And_Transform();
    Close_Screen(*screens, ScreenId::frm_FFT);
    EXPECT_FALSE(fourier.FFTReady);
}

TEST_F(FFTScreenTest, PrintsWithoutItsButtons) {
    Open_And_Transform();
    port.answers = {Answer::No};
    screen.cmd_Print.click();
    EXPECT_EQ(Take_Box().buttons, Buttons::YesNo);
    EXPECT_TRUE(port.printed.empty());
    port.answers = {Answer::Yes};
    port.while_printing = [&] {
        EXPECT_FALSE(screen.cmd_Calc.visible);
        EXPECT_FALSE(screen.fra_Style.visible);
        EXPECT_FALSE(screen.fra_Grid.visible) << "no empty frame is left where its boxes are hidden";
        EXPECT_TRUE(screen.cmb_Var1.visible);
    };
    screen.cmd_Print.click();
    EXPECT_EQ(Take_Box().icon, Icon::Exclamation);
    EXPECT_THAT(port.printed, ElementsAre(ScreenId::frm_FFT));
    EXPECT_TRUE(screen.cmd_Calc.visible);
    EXPECT_TRUE(screen.fra_Style.visible);
}

TEST_F(FFTScreenTest, CopySaysHowAndCopies) {
    Open_And_Transform();
    screen.cmd_Copy.click();
    Expect_Box("Use the Alt-PrintScrn key combo to copy the screen to the clipboard", Icon::Information);
}

TEST_F(FFTScreenTest, HarmonicsOfOneStepCannotBeDrawn) {
    Open_With(1);
    screen.cmb_Harmonics.text = "1";
    Pick(screen.cmb_Var1, "Theta3");
    EXPECT_TRUE(fourier.FFTReady);
    screen.cmb_Harmonics.click();
    Expect_Box(kTooMany, Icon::None);
    Expect_Fault(11, "FFT_Plot_Setup");
    EXPECT_EQ(fourier.NumHarmonics, 0);
}

TEST_F(FFTScreenTest, ANumberOfHarmonicsBeyondAllBoundsIsAFault) {
    Open_And_Transform();
    Pick(screen.cmb_Harmonics, "99999");
    Expect_Fault(6, "frm_FFT.cmb_Harmonics");
    EXPECT_EQ(fourier.NumHarmonics, 18);
}

}  // namespace
}  // namespace kervol
