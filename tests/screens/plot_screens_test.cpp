// SPDX-License-Identifier: GPL-3.0-or-later
// The plot screens: the way to them and back, what opening draws, and what draws it anew.
#include <map>
#include <set>

#include "screens/control_lists.h"
#include "screens/launch_screens.h"
#include "screens/plot_screens_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsSupersetOf;
using ::testing::Not;

class PlotScreens : public PlotScreensTest {
  protected:
    static std::string Name(const PlotButtons* form) { return std::string(Screen_Name(form->kind.screen)); }
};

TEST_F(PlotScreens, NextOpensTheOneOfItsSelectionAndStyleInPlaceOfTheSelection) {
    const struct {
        SelectionForm& form;
        std::size_t style;
        const char* selection;
        const char* plot;
        std::int16_t count;
    } cases[] = {
        {single, 0, "frm_PlotSelect1", "frm_Plot1", 1}, {two, 0, "frm_PlotSelect2", "frm_Plot2", 2},
        {two, 1, "frm_PlotSelect2", "frm_Myplot2", 2},  {four, 0, "frm_PlotSelect3", "frm_Plot3", 4},
        {four, 1, "frm_PlotSelect3", "frm_MyPlot3", 4}, {polar, 0, "frm_PlotSelect4", "frm_Plot4", 1},
        {polar, 1, "frm_PlotSelect4", "frm_MyPlot4", 1}};
    for (const auto& given : cases) {
        Open_Plot(given.form, given.style, "Veloc I 2,3", "X");
        EXPECT_THAT(port.trace, ElementsAre("hide " + std::string(given.selection),
                                            "show " + std::string(given.plot) + " modal"));
        EXPECT_EQ(program->plots.PlotCount, given.count) << given.plot;
    }
}

TEST_F(PlotScreens, TheSingleWindowHasNoOtherStyle) {
    Choose_Functions(two, "Theta3");
    Choose_Style(two, 1);
    EXPECT_EQ(selections.PlotStyle, 2);
    Open_Plot(single, 0, "Theta3");
    EXPECT_EQ(port.screens.back(), ScreenId::frm_Plot1);
}

TEST_F(PlotScreens, NextReadsTheFrameAndClosesItsChoice) {
    Choose_Functions(two, "Veloc I 2,3", "X");
    Choose(two.opt_Coord, 1);
    EXPECT_TRUE(Frame_Can_Be_Chosen(two));
    two.cmd_Done.click();
    EXPECT_EQ(selections.LocalCoords, 2);
    EXPECT_FALSE(Frame_Can_Be_Chosen(two));
    EXPECT_TRUE(two.opt_Coord[1].on) << "the choice itself stays";
    EXPECT_EQ(screens->frm_Plot2.lbl_Coord.caption, "Local Rotating");
    Choose(two.opt_Coord, 0);
    two.cmd_Done.click();
    EXPECT_EQ(selections.LocalCoords, 0);
    EXPECT_EQ(screens->frm_Plot2.lbl_Coord.caption, "Global");
}

TEST_F(PlotScreens, BackReopensTheSelectionInPlaceOfThePlot) {
    const std::map<std::string, std::string> selection_of = {
        {"frm_Plot1", "frm_PlotSelect1"},   {"frm_Plot2", "frm_PlotSelect2"},
        {"frm_Plot3", "frm_PlotSelect3"},   {"frm_Plot4", "frm_PlotSelect4"},
        {"frm_Myplot2", "frm_PlotSelect2"}, {"frm_MyPlot3", "frm_PlotSelect3"},
        {"frm_MyPlot4", "frm_PlotSelect4"}};
    for (PlotButtons* form : All_Plots()) {
        model.NewData = false;
        const auto trace = Trace_Of([&] { form->cmd_Replot.click(); });
        ASSERT_GE(trace.size(), 2U);
        EXPECT_EQ(trace[0], "hide " + Name(form));
        EXPECT_EQ(trace[1], "show " + selection_of.at(Name(form)) + " modal");
        EXPECT_EQ(form->cmd_Replot.caption, "< &Back");
    }
}

TEST_F(PlotScreens, DoneLeadsHomeAndMakesTheListsLoadAgainButNotBehindAlignedPlots) {
    for (PlotButtons* form : All_Plots()) {
        model.NewData = false;
        EXPECT_THAT(Trace_Of([&] { form->cmd_PlotDone.click(); }), ElementsAre("hide " + Name(form)));
        const bool aligned = form == &two_plots || form == &four_plots;
        EXPECT_EQ(model.NewData, !aligned) << Name(form);
    }
}

TEST_F(PlotScreens, CloseBoxesDoAsTheWayBack) {
    for (PlotButtons* form : All_Plots()) {
        const auto trace = Trace_Of([&] { Close_Screen(*screens, form->kind.screen); });
        ASSERT_GE(trace.size(), 2U);
        EXPECT_EQ(trace[0], "hide " + Name(form));
        EXPECT_EQ(trace[1].substr(0, 19), "show frm_PlotSelect");
    }
}

TEST_F(PlotScreens, AreCalledByTheTailOfAllCaptionsAlone) {
    for (PlotButtons* form : All_Plots())
        EXPECT_EQ(Screen_Caption(*screens, form->kind.screen), model.CaptionTail);
}

TEST_F(PlotScreens, CopyPutsTheScreenOnTheClipboardAndNamesTheKeys) {
    for (PlotButtons* form : All_Plots()) {
        form->cmd_Copy.click();
        Expect_Box("Use the Alt-PrintScrn key combo to copy the screen to the clipboard", Icon::None);
        EXPECT_EQ(port.copied.back(), form->kind.screen);
    }
}

TEST_F(PlotScreens, ArePrintedAsTheyStandAfterTheWarning) {
    for (PlotButtons* form : All_Plots()) Expect_Print_Asks(form->cmd_PlotPrint, form->kind.screen);
}

TEST_F(PlotScreens, APrintThatFailsIsReportedByNamesOfWhichTwoAreThoseOfCharts) {
    const std::map<std::string, std::string> reported = {
        {"frm_Plot1", "frm_Plot1.PrintForm"},   {"frm_Plot2", "frm_Plot2.PrintForm"},
        {"frm_Plot3", "frm_Plot3.PrintForm"},   {"frm_Plot4", "frm_Plot4.PrintForm"},
        {"frm_Myplot2", "frm_Plot2.PrintForm"}, {"frm_MyPlot3", "frm_MyPlot3.PrintForm"},
        {"frm_MyPlot4", "frm_Plot4.PrintForm"}};
    port.printer_breaks = true;
    for (PlotButtons* form : All_Plots()) {
        port.answers = {Answer::Yes};
        form->cmd_PlotPrint.click();
        Expect_Box(kPrintQuestion, Icon::Exclamation, Buttons::YesNo);
        Expect_Fault(57, reported.at(Name(form)));
    }
}

struct NameList {
    std::set<std::string> names;

    template <class T>
    void operator()(const std::string& name, const T&) {
        names.insert(name);
    }
};

TEST_F(PlotScreens, TheirControlsHaveTheNamesOfTheSystem) {
    NameList plot1, plot3, own2, own4, own_polar;
    Visit_Controls(screens->frm_Plot1, plot1);
    Visit_Controls(screens->frm_Plot3, plot3);
    Visit_Controls(two_plots, own2);
    Visit_Controls(four_plots, own4);
    Visit_Controls(polar_plot, own_polar);
    EXPECT_THAT(plot1.names, IsSupersetOf({"grf_Plot_0", "lbl_Header3", "lbl_Links", "lbl_Linkout2",
                                           "lbl_Coord", "frm_initial", "cmd_PlotPrint", "cmd_PlotDone",
                                           "opt_Back", "chk_HGrid", "chk_VGrid", "chk_Line", "chk_Sticks"}));
    EXPECT_THAT(plot1.names, Not(Contains("grf_Plot_1")));
    EXPECT_THAT(plot3.names, IsSupersetOf({"grf_Plot_3", "cmd_Print", "cmd_Done", "cmd_Copy", "cmd_Replot"}));
    EXPECT_THAT(plot3.names, Not(Contains("cmd_PlotPrint")));
    EXPECT_THAT(own2.names, IsSupersetOf({"lbl_Xmin_1", "lbl_Peak_1", "lbl_BottomTitle_1", "cmd_PlotPrint"}));
    EXPECT_THAT(own2.names, Not(Contains("lbl_Xmin_2")));
    EXPECT_THAT(own4.names, Contains("lbl_Ymin_3"));
    EXPECT_THAT(own_polar.names, IsSupersetOf({"chk_Pause", "chk_Vectors", "chk_Envelope", "cmd_Step",
                                               "lbl_vector", "lbl_name", "lbl_StepNumber", "lbl_Xmax"}));
}

TEST_F(PlotScreens, OpeningChartsEnablesTheirOutputsAndLoadsThem) {
    for (Button* button : {&screens->frm_Plot2.cmd_PlotPrint, &screens->frm_Plot2.cmd_Copy})
        button->enabled = false;
    Open_Plot(two, 0, "Theta3");
    EXPECT_TRUE(screens->frm_Plot2.cmd_PlotPrint.enabled);
    EXPECT_TRUE(screens->frm_Plot2.cmd_Copy.enabled);
    for (const std::size_t i : {0U, 1U}) {
        const ChartLook& look = screens->frm_Plot2.grf_Plot.at(i).look;
        EXPECT_EQ(look.GraphTitle, "Theta3  (degrees)");
        EXPECT_THAT(look.sets.at(0).GraphData, ElementsAre(0.25F, 1.25F, 2.25F));
        EXPECT_EQ(look.background, 15);
    }
    EXPECT_EQ(screens->frm_Plot2.lbl_Header2.caption, "Selected Linkage Parameters");
}

TEST_F(PlotScreens, TheSingleWindowOverlaysItsFunctions) {
    Open_Plot(single, 0, "Veloc I 2,3", "Y");
    const ChartLook& look = screens->frm_Plot1.grf_Plot[0].look;
    ASSERT_EQ(look.sets.size(), 4U);
    EXPECT_EQ(look.sets[3].LegendText, "Veloc I 2,3 Y in/sec");
    EXPECT_EQ(look.sets[3].PatternData, 3);
    EXPECT_THAT(look.sets[3].GraphData, ElementsAre(0, 4, 8));
}

TEST_F(PlotScreens, ThePolarChartStandsAtTheOrigin) {
    Open_Plot(polar, 0, "Veloc I 2,3", "Mag");
    const ChartLook& look = screens->frm_Plot4.grf_Plot[0].look;
    ASSERT_EQ(look.sets.size(), 1U);
    EXPECT_THAT(look.sets[0].GraphData, ElementsAre(0, 0, 0));
    EXPECT_EQ(screens->frm_Plot4.lbl_Header2.caption, "        Linkage Veloc I 2,3  -  in/sec");
}

TEST_F(PlotScreens, SticksAreLinesOfATransformAndFillsElse) {
    for (ChartScreen* form : All_Charts()) {
        EXPECT_EQ(form->chk_Sticks.caption, "Fills");
        EXPECT_EQ(form->chk_HGrid.caption, "Horiz");
        EXPECT_EQ(form->chk_VGrid.caption, "Vertic");
    }
    program->fourier.FFTReady = true;
    program->fourier.NumHarmonics = 1;
    Open(four);
    selections.PlotTypePick = 3;
    Pick_Preset(four, "Current FFT - Real, Imag, Mag, Phase");
    four.cmd_Done.click();
    EXPECT_EQ(screens->frm_Plot3.chk_Sticks.caption, "Lines");
    EXPECT_EQ(screens->frm_Plot3.grf_Plot[3].NumPoints(), 2);
    EXPECT_EQ(screens->frm_Plot3.lbl_Header3.caption.substr(0, 22), "Fourier Transform of  ");
    Open_Plot(four, 0, "Theta3");
    EXPECT_EQ(screens->frm_Plot3.chk_Sticks.caption, "Fills");
}

TEST_F(PlotScreens, EveryClickLoadsTheChartsAnew) {
    Open_Plot(two, 0, "Theta3");
    ChartScreen& form = screens->frm_Plot2;
    ChartLook& look = form.grf_Plot[1].look;
    const std::map<std::string, Event*> events = {{"chk_HGrid", &form.chk_HGrid.click},
                                                  {"chk_VGrid", &form.chk_VGrid.click},
                                                  {"chk_Line", &form.chk_Line.click},
                                                  {"chk_Sticks", &form.chk_Sticks.click},
                                                  {"opt_Back_0", &form.opt_Back[0].click},
                                                  {"opt_Back_1", &form.opt_Back[1].click},
                                                  {"grf_Plot_0", &form.grf_Plot[0].click},
                                                  {"grf_Plot_1", &form.grf_Plot[1].click},
                                                  {"screen", &form.click}};
    for (const auto& [name, event] : events) {
        look.GraphTitle = look.BottomTitle = "old";
        form.lbl_Header2.caption = "old";
        look.sets[0].GraphData[2] = -1;
        (*event)();
        EXPECT_EQ(look.GraphTitle, "Theta3  (degrees)") << name;
        EXPECT_EQ(look.BottomTitle, "Crank Angle (Deg)") << name;
        EXPECT_EQ(look.sets[0].GraphData[2], 2.25F) << name;
        EXPECT_EQ(form.lbl_Header2.caption, "Selected Linkage Parameters") << name;
    }
}

TEST_F(PlotScreens, GridStyleAndBackgroundFollowTheirBoxes) {
    Open_Plot(four, 0, "Theta3");
    ChartScreen& form = screens->frm_Plot3;
    const auto put = [](CheckBox& box, bool on) { Put_Check(box, on); };
    put(form.chk_HGrid, true);
    put(form.chk_VGrid, false);
    put(form.chk_Line, true);
    put(form.chk_Sticks, true);
    Choose(form.opt_Back, 1);
    for (const Chart& chart : form.grf_Plot) {
        EXPECT_EQ(chart.look.GridStyle, 1);
        EXPECT_EQ(chart.look.GraphStyle, 6);
        EXPECT_EQ(chart.look.background, 1);
    }
    Choose(form.opt_Back, 0);
    for (const Chart& chart : form.grf_Plot) EXPECT_EQ(chart.look.background, 15);
}

TEST_F(PlotScreens, OpeningAlignedPlotsEnablesTheirOutputsAndDrawsThem) {
    four_plots.cmd_PlotPrint.enabled = four_plots.cmd_Copy.enabled = false;
    Open_Plot(four, 1, "Theta3");
    EXPECT_TRUE(four_plots.cmd_PlotPrint.enabled);
    EXPECT_TRUE(four_plots.cmd_Copy.enabled);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_FALSE(pictures.at(i).drawn.empty()) << i;
        EXPECT_EQ(four_plots.lbl_LeftTitle.at(i).caption, "Theta3");
        EXPECT_EQ(four_plots.lbl_Ymax.at(i).caption, "2.25");
        EXPECT_EQ(four_plots.lbl_BottomTitle.at(i).caption, "Crank Angle (Deg)");
    }
    Open_Plot(two, 1, "Theta3");
    EXPECT_FALSE(pictures[1].drawn.empty());
    EXPECT_TRUE(pictures[2].drawn.empty());
    EXPECT_EQ(two_plots.lbl_Xmax[1].caption, "20.");
}

TEST_F(PlotScreens, AnAlignedPlotThatDoesNotFitSaysSoOnceForEachPicture) {
    model.ThetaMaxDeg = 0;
    Open_Plot(two, 1, "Theta3");
    for (int i = 0; i < 2; ++i)
        Expect_Box(
            "The magnitude of Theta3 exceeds the capacity of this window.\n"
            "Switch to the 'Annotated' style of plot instead of the 'Aligned' style,\n"
            "or use a plot type with a larger window to see this function.",
            Icon::Exclamation);
    EXPECT_EQ(two_plots.lbl_Xmin[0].caption, "0.");
}

}  // namespace
}  // namespace kervol
