// SPDX-License-Identifier: GPL-3.0-or-later
// Stacked plots: every stroke in its order, and the labels around the pictures.
#include "plots/own_plots.h"

#include "core/header.h"
#include "plots/plot_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

constexpr const char* kRest =
    " exceeds the capacity of this window.\n"
    "Switch to the 'Annotated' style of plot instead of the 'Aligned' style,\n"
    "or use a plot type with a larger window to see this function.";

class OwnPlots : public PlotTest {
  protected:
    OwnPlots() {
        for (std::size_t i = 0; i < pictures.size(); ++i) form.pct_Plot[i] = &pictures[i];
    }

    void Show(std::int16_t count) {
        for (FailingPicture& picture : pictures) picture.drawn.clear();
        plots.PlotCount = count;
        MyPlotSetup(*program, form, count);
        MyPlot(*program, form, labels, count);
    }
    std::vector<std::string> X_Labels(std::size_t i) const {
        return {form.lbl_Xmin[i].caption, form.lbl_X1[i].caption, form.lbl_X2[i].caption,
                form.lbl_X3[i].caption, form.lbl_Xmax[i].caption};
    }
    std::vector<std::string> Y_Labels(std::size_t i) const {
        return {form.lbl_Ymax[i].caption, form.lbl_Ymin[i].caption};
    }
    std::vector<std::string> Extremes(std::size_t i) const {
        return {form.lbl_Min[i].caption, form.lbl_Max[i].caption, form.lbl_Peak[i].caption};
    }
    /// Lines, axes and ticks of a limit and a range, by hand from their definitions.
    static std::vector<Drawn> Grid(double limit, double Xlo, double Xhi) {
        std::vector<Drawn> grid;
        const double range = Xhi - Xlo;
        for (int quarter = 1; quarter <= 4; ++quarter) {
            const double x = Xlo + quarter * range / 4;
            grid.push_back(Black(x, -0.95 * limit, x, limit));
        }
        Append(grid, {Black(Xlo, 0, Xhi, 0), Black(Xlo, -limit, Xlo, limit)});
        for (int k = 0; k < 24; ++k) {
            const double x = Xlo + k * 0.04166667 * range;
            grid.push_back(Black(x, -0.07 * limit, x, 0.07 * limit));
        }
        grid.push_back(Black(Xhi, -0.07 * limit, Xhi, 0.07 * limit));
        for (int k = -5; k <= 6; ++k)
            grid.push_back(Black(Xlo - 0.01 * range, k * limit / 5, Xlo + 0.01 * range, k * limit / 5));
        return grid;
    }

    std::array<FailingPicture, OwnPlotView::Plots> pictures;
    OwnPlotView form;
};

TEST_F(OwnPlots, DrawTheCurveThenLinesAxesAndTicks) {
    // Three steps at 0, 10, 20 degrees: Theta3 0.25, 1.25, 2.25; Omega4 0, -1000, -2000.
    Choose_Plots({{"Theta3", "Mag"}, {"Omega4", "Mag"}});
    model.NumSteps = 2;
    model.ThetaMaxDeg = 20;
    Show(2);
    std::vector<Drawn> expected = {{Kind::Clear},
                                   Scale(-3.2, 1.14 * 2.25, 20.8, -1.4 * 2.25),
                                   Point(0, 0.25, kBlue),
                                   Line(0, 0.25, 10, 1.25, kBlue),
                                   Line(10, 1.25, 20, 2.25, kBlue)};
    Append(expected, Grid(2.25, 0, 20));
    Expect_Drawn(pictures[0].drawn, expected);
    expected = {{Kind::Clear},
                Scale(-3.2, 2280, 20.8, -2800),
                Point(0, 0, kBlue),
                Line(0, 0, 10, -1000, kBlue),
                Line(10, -1000, 20, -2000, kBlue)};
    Append(expected, Grid(2000, 0, 20));
    Expect_Drawn(pictures[1].drawn, expected);
    EXPECT_EQ(plots.PlotLimit, 2000.0F);
    EXPECT_FLOAT_EQ(plots.PlotBase, -520.0F);
    EXPECT_EQ(selections.SelCurrent, 2);
}

TEST_F(OwnPlots, FourPicturesHaveWindowsOfTheirOwn) {
    Choose_Plots({{"Theta3", "Mag"}, {"Theta3", "Mag"}, {"Theta3", "Mag"}, {"Omega4", "Mag"}});
    Show(4);
    for (const FailingPicture& picture : pictures) {
        ASSERT_GT(picture.drawn.size(), 2U);
        EXPECT_EQ(picture.drawn[1].kind, Kind::Scale);
        Expect_Close(picture.drawn[1].x1, -64.8);
        Expect_Close(picture.drawn[1].x2, 374.4);
    }
    Expect_Close(pictures[3].drawn[1].y1, 1.15 * 36000);
    Expect_Close(pictures[3].drawn[1].y2, -1.7 * 36000);
}

TEST_F(OwnPlots, NameFunctionComponentUnitAndRange) {
    Choose_Plots({{"Veloc I 2,3", "Y"}, {"Omega4", "Mag"}});
    Show(2);
    EXPECT_EQ(form.lbl_LeftTitle[0].caption, "Veloc I 2,3");
    EXPECT_EQ(form.lbl_Comp[0].caption, "Y");
    EXPECT_EQ(form.lbl_PlotUnits[0].caption, "in/sec");
    EXPECT_EQ(form.lbl_LeftTitle[1].caption, "Omega4");
    EXPECT_EQ(form.lbl_Comp[1].caption, "Mag");
    EXPECT_EQ(form.lbl_PlotUnits[1].caption, "rad/sec");
    for (const std::size_t i : {0U, 1U})
        EXPECT_THAT(X_Labels(i), ElementsAre("0.", "90.", "180.", "270.", "360."));
    EXPECT_EQ(form.lbl_BottomTitle[0].caption, "Crank Angle (Deg)");
    EXPECT_EQ(form.lbl_BottomTitle[1].caption, "Crank Angle (Deg)");
    EXPECT_EQ(form.lbl_LeftTitle[2].caption, "");
    EXPECT_EQ(form.lbl_BottomTitle[2].caption, "");
}

TEST_F(OwnPlots, AnAngleIsInDegrees) {
    Choose_Plots({{"Veloc I 2,3", "Ang"}, {"Theta3", "Mag"}});
    Show(2);
    EXPECT_EQ(form.lbl_PlotUnits[0].caption, "Deg");
    EXPECT_EQ(form.lbl_PlotUnits[1].caption, "degrees");
    selections.SelComp(2) = 4;
    Show(2);
    EXPECT_EQ(form.lbl_PlotUnits[1].caption, "degrees") << "another number than that of the charts";
}

struct DecimalsCase {
    float value;
    const char *max, *min, *low, *high, *peak;
};

TEST_F(OwnPlots, AllLabelsOfTheOrdinateHaveTheDecimalsOfItsLimit) {
    Choose_Plots({{"Theta3", "Mag"}, {"Theta3", "Mag"}});
    model.NumSteps = 1;
    for (const DecimalsCase& given : {DecimalsCase{100, "100.", "-100.", "2.", "100.", "99."},
                                      DecimalsCase{99.96F, "100.0", "-100.0", "1.5", "100.0", "98.5"},
                                      DecimalsCase{10, "10.0", "-10.0", "1.5", "10.0", "8.5"},
                                      DecimalsCase{9.5F, "9.50", "-9.50", "1.50", "9.50", "8.00"},
                                      DecimalsCase{-1.75F, "1.75", "-1.75", "-1.75", "1.50", "3.25"},
                                      DecimalsCase{-0.5F, "1.50", "-1.50", "-0.50", "1.50", "2.00"}}) {
        tables.Theta(0, 1) = 1.5F;
        tables.Theta(1, 1) = given.value;
        Show(2);
        EXPECT_THAT(Y_Labels(0), ElementsAre(given.max, given.min)) << given.value;
        EXPECT_THAT(Extremes(0), ElementsAre(given.low, given.high, given.peak)) << given.value;
    }
    tables.Theta(0, 1) = 0.25F;
    tables.Theta(1, 1) = -0.999F;
    Show(2);
    EXPECT_THAT(Y_Labels(0), ElementsAre("0.999", "-0.999"));
    EXPECT_THAT(Extremes(0), ElementsAre("-0.999", "0.250", "1.249"));
}

TEST_F(OwnPlots, TheOrdinateIsSymmetricWhateverTheData) {
    Choose_Plots({{"Theta3", "Mag"}, {"Theta3", "Mag"}});
    model.NumSteps = 1;
    tables.Theta(0, 1) = 10;
    tables.Theta(1, 1) = 20;
    Show(2);
    EXPECT_THAT(Y_Labels(0), ElementsAre("20.0", "-20.0"));
    EXPECT_THAT(Extremes(0), ElementsAre("10.0", "20.0", "10.0"));
}

TEST_F(OwnPlots, AFunctionThatIsZeroIsAFlatLineAgainstTheLeastLimit) {
    Choose_Plots({{"Omega3", "Mag"}, {"Theta3", "Mag"}});
    for (int step = 0; step <= 36; ++step) tables.Omega(step, 1) = 0;
    Show(2);
    EXPECT_FALSE(plots.WindowFailed);
    Expect_Drawn({pictures[0].drawn[1]}, {Scale(-57.6, 1.14e-4, 374.4, -1.4e-4)});
    EXPECT_EQ(pictures[0].drawn[3].y1, 0.0);
    EXPECT_EQ(pictures[0].drawn[3].y2, 0.0);
    EXPECT_THAT(Y_Labels(0), ElementsAre("0.000", "0.000"));
    EXPECT_THAT(Extremes(0), ElementsAre("0.000", "0.000", "0.000"));
}

TEST_F(OwnPlots, ACrankThatTurnsBackwardsOrStandsRunsFromRightToLeft) {
    Choose_Plots({{"Theta3", "Mag"}, {"Theta3", "Mag"}});
    for (const float speed : {-10.0F, 0.0F}) {
        model.Omega2 = speed;
        Show(2);
        EXPECT_THAT(X_Labels(0), ElementsAre("360.", "270.", "180.", "90.", "0."));
        Expect_Drawn({pictures[0].drawn[1]}, {Scale(417.6, 1.14 * 36.25, -14.4, -1.4 * 36.25)});
        std::vector<Drawn> grid(pictures[0].drawn.end() - 43, pictures[0].drawn.end());
        Expect_Drawn(grid, Grid(36.25, 360, 0));
    }
}

TEST_F(OwnPlots, TimeDrivesHaveAWindowOfTimeButACurveOverTheCrankAngle) {
    Choose_Plots({{"Theta3", "Mag"}, {"Theta3", "Mag"}});
    model.NumSteps = 1;
    model.TimeStart = 2;
    for (const std::int16_t mode : Int16List{2, 4, 5}) {
        model.CalcMode = mode;
        Show(2);
        EXPECT_THAT(X_Labels(1), ElementsAre("2.", "4.", "6.", "8.", "10.")) << mode;
        Expect_Drawn({pictures[1].drawn[1]}, {Scale(0.72, 1.425, 10.32, -1.75)});
        Expect_Drawn({pictures[1].drawn[2], pictures[1].drawn[3]},
                     {Point(0, 0.25, kBlue), Line(0, 0.25, 10, 1.25, kBlue)});
        EXPECT_EQ(form.lbl_BottomTitle[1].caption, "Time (Sec)");
        EXPECT_EQ(form.lbl_Initial[0].caption, "Start Time");
        EXPECT_EQ(form.frm_initial.visible, mode < 4);
    }
}

TEST_F(OwnPlots, OnePositionIsOnePointWithAllLabelsAndNoLine) {
    Choose_Plots({{"Theta3", "Mag"}, {"Omega4", "Mag"}});
    model.CalcMode = 1;
    model.NumSteps = 0;
    model.TimeStart = 0;
    form.lbl_BottomTitle[0].caption = "as it was";
    Show(2);
    std::vector<Drawn> expected = {{Kind::Clear}, Scale(-1.6, 0.285, 10.4, -0.35), Point(0, 0.25, kBlue)};
    Append(expected, Grid(0.25, 0, 10));
    Expect_Drawn(pictures[0].drawn, expected);
    EXPECT_THAT(X_Labels(0), ElementsAre("0.", "3.", "5.", "8.", "10.")) << "2.5 and 7.5 go away from zero";
    EXPECT_THAT(Extremes(0), ElementsAre("0.250", "0.250", "0.000"));
    EXPECT_EQ(form.lbl_BottomTitle[0].caption, "as it was");
    EXPECT_EQ(form.lbl_Initial[0].caption, "");
}

TEST_F(OwnPlots, WithoutARangeAreRefusedButLabelled) {
    Choose_Plots({{"Theta3", "Mag"}, {"Omega4", "Mag"}});
    model.CalcMode = 1;
    model.NumSteps = 0;
    model.TimeStart = model.TimeEnd = 3;
    Show(2);
    Expect_Box(std::string("The magnitude of Theta3") + kRest, Icon::Exclamation);
    Expect_Box(std::string("The magnitude of Omega4") + kRest, Icon::Exclamation);
    Expect_Drawn(pictures[0].drawn, {{Kind::Clear}});
    Expect_Drawn(pictures[1].drawn, {{Kind::Clear}});
    EXPECT_THAT(X_Labels(0), ElementsAre("3.", "3.", "3.", "3.", "3."));
    EXPECT_THAT(Y_Labels(1), ElementsAre("0.000", "0.000"));
}

TEST_F(OwnPlots, ARefusedPictureStaysBlankAndTheOthersGoOn) {
    Choose_Plots({{"Theta3", "Mag"}, {"Theta3", "Mag"}, {"Omega4", "Mag"}, {"Theta3", "Mag"}});
    tables.Omega(1, 2) = 3e38F;
    Show(4);
    Expect_Box(std::string("The magnitude of Omega4") + kRest, Icon::Exclamation);
    Expect_Drawn(pictures[2].drawn, {{Kind::Clear}});
    EXPECT_EQ(pictures[3].drawn.size(), pictures[0].drawn.size());
    EXPECT_GT(pictures[3].drawn.size(), 80U);
    EXPECT_THAT(X_Labels(2), ElementsAre("0.", "90.", "180.", "270.", "360."));
    EXPECT_EQ(form.lbl_PlotUnits[2].caption, "rad/sec");
    EXPECT_EQ(form.lbl_Max[2].caption.substr(0, 8), "300,000,");
    EXPECT_FALSE(plots.WindowFailed) << "of the last picture";
}

TEST_F(OwnPlots, ATransformCountsHarmonicsUnderACurveOverTheCrankAngle) {
    Choose_Spectrum_Plots();
    Show(4);
    EXPECT_THAT(X_Labels(1), ElementsAre("0.", "1.", "2.", "2.", "3.")) << "0.75, 1.5 and 2.25 rounded";
    EXPECT_EQ(form.lbl_BottomTitle[1].caption, "Harmonic Number");
    std::vector<Drawn> expected = {{Kind::Clear},
                                   Scale(-0.54, 6.9, 3.12, -10.2),
                                   Point(0, 0, kBlue),
                                   Line(0, 0, 10, 2, kBlue),
                                   Line(10, 2, 20, 4, kBlue),
                                   Line(20, 4, 30, 6, kBlue)};
    Append(expected, Grid(6, 0, 3));
    Expect_Drawn(pictures[1].drawn, expected);
    EXPECT_EQ(form.lbl_PlotUnits[1].caption, "") << "a transform has no unit here";
    EXPECT_EQ(form.lbl_PlotUnits[3].caption, "Deg") << "but its phase";
}

TEST_F(OwnPlots, ATransformInATimeDriveHasAWindowOfTime) {
    Choose_Spectrum_Plots();
    model.CalcMode = 2;
    Show(4);
    EXPECT_THAT(X_Labels(0), ElementsAre("1.", "3.", "6.", "8.", "10."));  // 3.25, 5.5, 7.75
    EXPECT_EQ(form.lbl_BottomTitle[0].caption, "Time (Sec)");
}

TEST_F(OwnPlots, ASinglePictureHasNoExtremes) {
    Choose_Plots({{"Theta3", "Mag"}});
    plots.PlotCount = 2;
    MyPlot(*program, form, labels, 1);
    EXPECT_THAT(Extremes(0), ElementsAre("", "", ""));
    EXPECT_EQ(form.lbl_Ymax[0].caption, "36.3");
}

TEST_F(OwnPlots, CarryTheStateOfTheModelBesideThem) {
    Choose_Plots({{"Theta3", "Mag"}, {"Omega4", "Mag"}});
    model.Link3 = 2.5F;
    selections.LocalCoords = 2;
    Show(2);
    EXPECT_EQ(form.lbl_Header.caption, Put_Header(model));
    EXPECT_EQ(form.lbl_Links[2].caption, "2.500");
    EXPECT_EQ(form.lbl_Coord.caption, "Local Rotating");
    EXPECT_TRUE(form.frm_initial.visible);
    EXPECT_EQ(form.lbl_Initial[0].caption, "Min Theta");
    selections.LocalCoords = 0;
    Show(2);
    EXPECT_EQ(form.lbl_Coord.caption, "Global");
}

TEST_F(OwnPlots, FaultsAreReported) {
    Choose_Plots({{"Theta3", "Mag"}, {"Omega4", "Mag"}});
    plots.PlotCount = 2;
    model.NumSteps = 1025;
    MyPlot(*program, form, labels, 2);
    Expect_Fault(9, "MyPlot");
    MyPlotSetup(*program, form, 5);
    Expect_Fault(9, "MyPlotSetup");
}

}  // namespace
}  // namespace kervol
