// SPDX-License-Identifier: GPL-3.0-or-later
// Charts as stores of properties: what is set before they are loaded, and what is put into them.
#include "plots/chart_plots.h"

#include "core/header.h"
#include "plots/plot_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::SizeIs;

class ChartPlots : public PlotTest {
  protected:
    /// Sets up that many charts as the plot type screen's option leads there.
    void Set_Up(std::int16_t pick, std::int16_t count) {
        selections.PlotTypePick = pick;
        Plot_Setup(*program, form, count);
    }
    void Show_Multi() {
        Set_Up(1, 1);
        MultiPlot(*program, form, labels);
    }
    void Show_Each(std::int16_t pick, std::int16_t count) {
        Set_Up(pick, count);
        Plot(*program, form, labels, count);
    }
    void Show_Polar() {
        Set_Up(4, 1);
        PolarPlot(*program, form, labels);
    }

    ChartView form;
    ChartLook& first = form.grf_Plot[0].look;
};

struct SpacingCase {
    std::int16_t mode;
    bool transform;
    std::int16_t ticks, labels;
    const char* title;
};

TEST_F(ChartPlots, SpacingAndTitleOfTheAbscissaFollowTheMode) {
    for (const SpacingCase& given :
         {SpacingCase{2, false, 5, 10, "Time (Sec)"}, SpacingCase{4, false, 5, 10, "Time (Sec)"},
          SpacingCase{5, false, 5, 10, "Time (Sec)"}, SpacingCase{3, false, 6, 12, "Crank Angle (Deg)"},
          SpacingCase{3, true, 1, 2, "Harmonic Number"}, SpacingCase{2, true, 5, 10, "Time (Sec)"}}) {
        if (given.transform)
            Choose_Spectrum_Plots();
        else
            Choose_Plots({{"Theta3", "Mag"}, {"Omega4", "Mag"}});
        model.CalcMode = given.mode;
        first = {};
        Set_Up(2, 2);
        for (const std::size_t i : {0U, 1U}) {
            const ChartLook& look = form.grf_Plot.at(i).look;
            EXPECT_EQ(look.TickEvery, given.ticks) << given.mode;
            EXPECT_EQ(look.LabelEvery, given.labels) << given.mode;
            EXPECT_EQ(look.BottomTitle, given.title) << given.mode;
        }
        EXPECT_EQ(form.lbl_Initial[0].caption, given.mode == 3 ? "Min Theta" : "Start Time");
    }
}

TEST_F(ChartPlots, OnePositionLeavesSpacingTitleAndDriveAsTheyWere) {
    Choose_Plots({{"Theta3", "Mag"}});
    model.CalcMode = 1;
    model.NumSteps = 0;
    Set_Up(1, 1);
    EXPECT_EQ(first.TickEvery, 1);
    EXPECT_EQ(first.LabelEvery, 1);
    EXPECT_EQ(first.BottomTitle, "");
    EXPECT_EQ(form.lbl_Initial[0].caption, "");
    model.CalcMode = 3;
    Set_Up(1, 1);
    model.CalcMode = 1;
    Set_Up(1, 1);
    EXPECT_EQ(first.TickEvery, 6);
    EXPECT_EQ(first.LabelEvery, 12);
    EXPECT_EQ(first.BottomTitle, "Crank Angle (Deg)");
    EXPECT_EQ(form.lbl_Initial[0].caption, "Min Theta");
}

TEST_F(ChartPlots, AreSetUpAlikeUpToTheirCount) {
    Choose_Plots({{"Theta3", "Mag"}, {"Omega4", "Mag"}});
    form.chk_HGrid.on = form.chk_Sticks.on = true;
    Set_Up(2, 2);
    for (const std::size_t i : {0U, 1U}) {
        const Chart& chart = form.grf_Plot.at(i);
        EXPECT_EQ(chart.NumPoints(), 37);
        EXPECT_EQ(chart.NumSets(), 2);
        EXPECT_EQ(chart.look.GridStyle, 1);
        EXPECT_EQ(chart.look.GraphStyle, 4);
        EXPECT_EQ(chart.look.fonts[4], (ChartFont{90, 2, 1}));
        EXPECT_EQ(chart.look.fonts[0], (ChartFont{90, 0, 0}));
        for (const std::size_t part : {1U, 2U, 3U}) EXPECT_EQ(chart.look.fonts.at(part), ChartFont{});
    }
    EXPECT_EQ(form.grf_Plot[2].look, ChartLook(Chart().look)) << "beyond the count";
}

TEST_F(ChartPlots, CarryTheStateOfTheModelBesideThem) {
    Choose_Plots({{"Theta3", "Mag"}});
    selections.LocalCoords = 2;
    model.Link2 = 1.5F;
    Set_Up(1, 1);
    EXPECT_EQ(form.lbl_Header.caption, Put_Header(model));
    EXPECT_EQ(form.lbl_Header2.caption, "Selected Linkage Parameters");
    EXPECT_EQ(form.lbl_Header3.caption, "");
    EXPECT_EQ(form.lbl_Links[1].caption, "1.500");
    EXPECT_EQ(form.lbl_Coord.caption, "Local Rotating");
    Choose_Spectrum_Plots();
    Set_Up(1, 1);
    EXPECT_EQ(form.lbl_Header3.caption, "Fourier Transform of  Omega4");
}

TEST_F(ChartPlots, OfATransformHaveOnePointMoreThanHarmonics) {
    Choose_Spectrum_Plots();
    Set_Up(3, 4);
    EXPECT_EQ(first.LabelText.size(), 4U) << "harmonics 0 to 3";
    program->fourier.NumHarmonics = 600;
    Set_Up(3, 4);
    EXPECT_EQ(first.LabelText.size(), 513U) << "as many as the table has";
}

TEST_F(ChartPlots, ThePolarOneKeepsItsNumberOfSets) {
    Choose_Plots({{"Veloc I 2,3", "Mag"}, {"Veloc I 2,3", "Ang"}});
    Set_Up(4, 1);
    EXPECT_EQ(form.grf_Plot[0].NumSets(), 1);
    Set_Up(3, 1);
    EXPECT_EQ(form.grf_Plot[0].NumSets(), 2);
}

TEST_F(ChartPlots, WithoutAFunctionOrAStepAreRefused) {
    Choose_Plots({});
    Set_Up(1, 1);
    Expect_Fault(5, "Plot_Setup");
    Choose_Plots({{"Theta3", "Mag"}});
    model.NumSteps = -1;
    Set_Up(1, 1);
    Expect_Fault(5, "Plot_Setup");
    model.NumSteps = 36;
    Set_Up(1, 5);
    Expect_Fault(9, "Plot_Setup");
}

TEST_F(ChartPlots, AMultiPlotHasOneSetForEachFunctionWithThePatternsInTurn) {
    Choose_Plots({{"Theta3", "Mag"}, {"Veloc I 2,3", "X"}, {"Omega4", "Mag"}});
    Show_Multi();
    EXPECT_EQ(first.DrawMode, 2);
    ASSERT_EQ(first.sets.size(), 3U);
    EXPECT_EQ(first.sets[0].LegendText, "Theta3 Mag degrees");
    EXPECT_EQ(first.sets[1].LegendText, "Veloc I 2,3 X in/sec");
    EXPECT_EQ(first.sets[2].LegendText, "Omega4 Mag rad/sec");
    for (std::size_t set = 0; set < 3; ++set) {
        EXPECT_TRUE(first.sets[set].PatternedLines);
        EXPECT_EQ(first.sets[set].PatternData, static_cast<int>(set));
        EXPECT_TRUE(first.sets[set].filled);
        ASSERT_THAT(first.sets[set].GraphData, SizeIs(37));
    }
    EXPECT_EQ(first.sets[0].GraphData[0], 0.25F);
    EXPECT_EQ(first.sets[0].GraphData[36], 36.25F);
    EXPECT_EQ(first.sets[1].GraphData[2], 6.0F);
    EXPECT_EQ(first.sets[2].GraphData[36], -36000.0F);
    EXPECT_EQ(first.GraphTitle, "");
}

TEST_F(ChartPlots, TheLabelsOfAnAngleDriveAreCrankAngles) {
    Choose_Plots({{"Theta3", "Mag"}});
    model.NumSteps = 3;
    Show_Multi();
    EXPECT_THAT(first.LabelText, ElementsAre("0.", "10.", "20.", "30."));
}

TEST_F(ChartPlots, TheLabelsOfAllOtherDrivesAreTimes) {
    Choose_Plots({{"Theta3", "Mag"}});
    model.NumSteps = 3;
    for (const std::int16_t mode : Int16List{1, 2, 4, 5}) {
        first.LabelText.assign(4, "");
        model.CalcMode = mode;
        Show_Multi();
        EXPECT_THAT(first.LabelText, ElementsAre("1.00", "1.25", "1.50", "1.75")) << mode;
    }
}

TEST_F(ChartPlots, OnePositionIsOnePoint) {
    Choose_Plots({{"Theta3", "Mag"}});
    model.CalcMode = 1;
    model.NumSteps = 0;
    Show_Multi();
    EXPECT_THAT(first.sets[0].GraphData, ElementsAre(0.25F));
    EXPECT_THAT(first.LabelText, ElementsAre("1.00"));
}

TEST_F(ChartPlots, AnAngleKeepsTheUnitOfItsTable) {
    Choose_Plots({{"Veloc I 2,3", "Ang"}});
    Show_Multi();
    EXPECT_EQ(first.sets[0].LegendText, "Veloc I 2,3 Ang in/sec");
    Show_Each(1, 1);
    EXPECT_EQ(first.GraphTitle, "Veloc I 2,3  (in/sec)");
}

TEST_F(ChartPlots, DegreesAreTheUnitOfComponentFour) {
    Choose_Plots({{"Theta3", "Mag"}});
    selections.SelComp(1) = 4;
    Show_Multi();
    EXPECT_EQ(first.sets[0].LegendText, "Theta3 Mag Deg");
    Show_Each(1, 1);
    EXPECT_EQ(first.GraphTitle, "Theta3  (Deg)");
    Show_Polar();
    EXPECT_EQ(form.lbl_Header2.caption, "        Linkage Theta3  -  Deg");
}

TEST_F(ChartPlots, AMultiPlotOfATransformGoesOverAllStepsOverTheirAngles) {
    Choose_Spectrum_Plots();
    model.NumSteps = 5;
    Show_Multi();
    ASSERT_EQ(first.sets.size(), 4U);
    EXPECT_EQ(first.sets[0].LegendText, "Current FFT X ") << "no unit behind the blank";
    EXPECT_THAT(first.sets[2].GraphData, ElementsAre(0, 3, 6, 9, 12, 15));
    EXPECT_THAT(first.LabelText, ElementsAre("0.", "10.", "20.", "30.", "40.", "50."));
    EXPECT_EQ(first.BottomTitle, "Harmonic Number");
}

TEST_F(ChartPlots, AMultiPlotOfATransformBeyondItsTableIsReported) {
    Choose_Spectrum_Plots();
    model.NumSteps = 513;
    Show_Multi();
    Expect_Fault(9, "MultiPlot");
    EXPECT_EQ(first.sets[0].GraphData[512], 512.0F) << "as far as it was loaded";
}

TEST_F(ChartPlots, APlotPutsOneFunctionOnEachChart) {
    Choose_Plots({{"Theta3", "Mag"}, {"Veloc I 2,3", "Y"}});
    form.grf_Plot[1].Set().ThickLines = true;
    Show_Each(2, 2);
    const ChartLook& second = form.grf_Plot[1].look;
    EXPECT_EQ(first.GraphTitle, "Theta3  (degrees)");
    EXPECT_EQ(first.sets[0].LegendText, "Mag");
    EXPECT_EQ(second.GraphTitle, "Veloc I 2,3  (in/sec)");
    EXPECT_EQ(second.sets[0].LegendText, "Y");
    EXPECT_EQ(second.DrawMode, 2);
    EXPECT_TRUE(second.sets[0].PatternedLines);
    EXPECT_EQ(second.sets[0].PatternData, 0);
    EXPECT_FALSE(second.sets[0].ThickLines);
    EXPECT_EQ(first.sets[0].GraphData[36], 36.25F);
    EXPECT_EQ(second.sets[0].GraphData[36], 144.0F);
    EXPECT_EQ(second.LabelText[36], "360.");
    EXPECT_EQ(selections.SelCurrent, 2);
}

TEST_F(ChartPlots, ASetBeyondTheOneThatIsLoadedStaysUnfilled) {
    Choose_Plots({{"Theta3", "Mag"}, {"Omega4", "Mag"}});
    Show_Each(2, 2);
    ASSERT_EQ(first.sets.size(), 2U);
    EXPECT_TRUE(first.sets[0].filled);
    EXPECT_FALSE(first.sets[1].filled);
    EXPECT_THAT(first.sets[1].GraphData, Each(0.0F));
}

TEST_F(ChartPlots, APlotOfATransformCountsHarmonicsAndNamesTheUnitOfItsFunction) {
    Choose_Spectrum_Plots();
    Show_Each(3, 4);
    for (std::size_t i = 0; i < 4; ++i) {
        const ChartLook& look = form.grf_Plot[i].look;
        EXPECT_EQ(look.GraphTitle, "Current FFT  (rad/sec)");
        EXPECT_THAT(look.LabelText, ElementsAre("0", "1", "2", "3"));
        EXPECT_EQ(look.sets[0].GraphData[3], static_cast<float>(3 * (i + 1)));
    }
}

TEST_F(ChartPlots, APlotOfATransformInATimeDriveStillHasTimeLabels) {
    Choose_Spectrum_Plots();
    model.CalcMode = 2;
    Show_Each(3, 4);
    EXPECT_THAT(first.LabelText, ElementsAre("1.00", "1.25", "1.50", "1.75"));
    EXPECT_EQ(first.BottomTitle, "Time (Sec)");
}

TEST_F(ChartPlots, TheLocalFrameOfEachPlotTurnsWithItsOwnPoint) {
    // Point 0 turns with link 2, at 10 s degrees; point 1 with link 4, which stays at 90.
    Choose_Plots({{"Veloc I 2,3", "Mag"}, {"Veloc I 3,4", "X"}});
    model.NumSteps = 1;
    selections.LocalCoords = 2;
    tables.Theta(1, 2) = 90;
    tables.PointVel(1, 1, 0) = 3;
    tables.PointVel(1, 1, 1) = 4;
    Show_Each(2, 2);
    EXPECT_NEAR(form.grf_Plot[1].look.sets[0].GraphData[1], 4, 1e-5);
}

TEST_F(ChartPlots, EveryPointOfThePolarChartStandsAtTheOrigin) {
    Choose_Plots({{"Veloc I 2,3", "Mag"}});
    form.grf_Plot[0].Put_NumPoints(3);
    form.grf_Plot[0].Put_GraphData(5);
    form.grf_Plot[0].Put_XPosData(5);
    Show_Polar();
    EXPECT_EQ(first.DrawMode, 2);
    ASSERT_EQ(first.sets.size(), 1U);
    EXPECT_THAT(first.sets[0].GraphData, SizeIs(37));
    EXPECT_THAT(first.sets[0].GraphData, Each(0.0F));
    EXPECT_THAT(first.sets[0].XPosData, Each(0.0F));
    EXPECT_TRUE(first.sets[0].filled);
    EXPECT_EQ(first.LabelText[36], "360.");
    EXPECT_EQ(form.lbl_Header2.caption, "        Linkage Veloc I 2,3  -  in/sec");
    EXPECT_EQ(form.lbl_Header3.caption, "");
    EXPECT_EQ(selections.SelCurrent, 1);
}

}  // namespace
}  // namespace kervol
