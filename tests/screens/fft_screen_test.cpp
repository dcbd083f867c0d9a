// SPDX-License-Identifier: GPL-3.0-or-later
// The Fourier screen: its choice of a function, what runs the transform, what its graphs are given, and what
// is left when it closes.
#include "catalogue/lists.h"
#include "catalogue/table_rows.h"
#include "core/header.h"
#include "screens/fft_fixture.h"
#include "screens/launch_screens.h"
#include "support/compare.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

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

}  // namespace
}  // namespace kervol
