// SPDX-License-Identifier: GPL-3.0-or-later
// Polar plots: rays and envelope at once and step by step.
#include "plots/polar_plots.h"

#include "core/header.h"
#include "plots/plot_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

class PolarPlots : public PlotTest {
  protected:
    /// Velocity of A at three steps: (3, 4), (-6, 0), (0, -8).
    PolarPlots() {
        form.pct_Plot[0] = &picture;
        model.NumSteps = 2;
        Put_Vector(0, 3, 4);
        Put_Vector(1, -6, 0);
        Put_Vector(2, 0, -8);
        Choose_Plots({{"Veloc I 2,3", "Mag"}});
    }

    void Put_Vector(int step, float x, float y) {
        tables.PointVel(step, 0, 0) = x;
        tables.PointVel(step, 0, 1) = y;
    }
    void Set_Up(bool vectors, bool envelope) {
        form.chk_Vectors.on = vectors;
        form.chk_Envelope.on = envelope;
        MyPolarPlotSetup(*program, form);
    }
    void Show(bool vectors, bool envelope) {
        picture.drawn.clear();
        Set_Up(vectors, envelope);
        MyPolarPlot(*program, form, labels);
    }
    /// Draws one step onto the picture as it stands; only the new strokes.
    std::vector<Drawn> Step(std::int16_t step) {
        picture.drawn.clear();
        MyPolarStep(*program, form, step);
        return picture.drawn;
    }
    std::vector<std::string> Limits() const {
        return {form.lbl_Xmin.caption, form.lbl_Xmax.caption, form.lbl_Ymin.caption, form.lbl_Ymax.caption};
    }
    std::vector<std::string> Vector() const {
        return {form.lbl_vector[0].caption, form.lbl_vector[1].caption};
    }
    static std::vector<Drawn> Axes(double limit) {
        std::vector<Drawn> axes = {Black(-limit, 0, limit, 0), Black(0, -limit, 0, limit)};
        for (int k = -10; k <= 10; ++k) {
            const double value = k * limit / 10, half = 0.01 * limit;
            Append(axes, {Black(value, -half, value, half), Black(-half, value, half, value)});
        }
        return axes;
    }
    std::vector<Drawn> Whole(double limit, const std::vector<Drawn>& curve) {
        std::vector<Drawn> drawn = {{Kind::Clear},
                                    Scale(-1.1 * limit, 1.115 * limit, 1.1 * limit, -1.115 * limit)};
        Append(drawn, Axes(limit));
        Append(drawn, curve);
        return drawn;
    }
    static std::vector<Drawn> After_Axes(std::vector<Drawn> curve) {
        std::vector<Drawn> drawn = Axes(8);
        Append(drawn, curve);
        return drawn;
    }

    FailingPicture picture;
    PolarPlotView form;
};

TEST_F(PolarPlots, TheEnvelopeJoinsTheTipsInOrder) {
    Show(false, true);
    EXPECT_EQ(plots.PolarStyle, 1);
    Expect_Drawn(picture.drawn,
                 Whole(8, {Point(3, 4, kBlue), Line(3, 4, -6, 0, kBlue), Line(-6, 0, 0, -8, kBlue)}));
}

TEST_F(PolarPlots, TheVectorsAreRaysFromTheOrigin) {
    Show(true, false);
    EXPECT_EQ(plots.PolarStyle, 2);
    Expect_Drawn(picture.drawn,
                 Whole(8, {Point(0, 0, kGreen), Line(0, 0, 3, 4, kGreen), Point(0, 0, kGreen),
                           Line(0, 0, -6, 0, kGreen), Point(0, 0, kGreen), Line(0, 0, 0, -8, kGreen)}));
}

TEST_F(PolarPlots, BothAreDrawnRayByRayWithTheLastRayAtTheEnd) {
    Show(true, true);
    EXPECT_EQ(plots.PolarStyle, 3);
    Expect_Drawn(picture.drawn,
                 Whole(8, {Point(0, 0, kGreen), Line(0, 0, 3, 4, kGreen), Line(3, 4, -6, 0, kBlue),
                           Point(0, 0, kGreen), Line(0, 0, -6, 0, kGreen), Line(-6, 0, 0, -8, kBlue),
                           Point(0, 0, kGreen), Line(0, 0, 0, -8, kGreen)}));
}

TEST_F(PolarPlots, NeitherDrawsTheAxesAloneAtFirstAndThenKeepsTheStyle) {
    Show(false, false);
    EXPECT_EQ(plots.PolarStyle, 0);
    Expect_Drawn(picture.drawn, Whole(8, {}));
    Show(true, false);
    Show(false, false);
    EXPECT_EQ(plots.PolarStyle, 2);
    EXPECT_FALSE(plots.ShowVectors);
    EXPECT_EQ(picture.drawn.size(), Whole(8, {}).size() + 6);
}

TEST_F(PolarPlots, OnePositionIsOnePointOrOneRay) {
    model.NumSteps = 0;
    Show(false, true);
    Expect_Drawn(picture.drawn, Whole(4, {Point(3, 4, kBlue)}));
    Show(true, false);
    Expect_Drawn(picture.drawn, Whole(4, {Point(0, 0, kGreen), Line(0, 0, 3, 4, kGreen)}));
    Show(true, true);
    Expect_Drawn(picture.drawn, Whole(4, {Point(0, 0, kGreen), Line(0, 0, 3, 4, kGreen)}));
}

TEST_F(PolarPlots, TheLimitIsTheLargestCoordinateAndNotTheLargestMagnitude) {
    for (int step = 0; step <= 2; ++step) Put_Vector(step, -50, 50);
    Show(true, true);
    EXPECT_FLOAT_EQ(plots.PlotLimit, 50) << "the tip is 70.7 away";
    EXPECT_EQ(plots.PlotBase, 0);
}

TEST_F(PolarPlots, TheTipsAreKeptByStep) {
    Show(true, true);
    EXPECT_NEAR(plots.PolarX(0), 3, 1e-6);
    EXPECT_NEAR(plots.PolarY(0), 4, 1e-6);
    EXPECT_NEAR(plots.PolarX(1), -6, 1e-6);
    EXPECT_NEAR(plots.PolarY(2), -8, 1e-6);
}

struct DecimalsCase {
    float limit;
    const char *low, *high;
};

TEST_F(PolarPlots, TheAxesAreLabelledWithTheDecimalsOfTheLimit) {
    for (const DecimalsCase& given :
         {DecimalsCase{250, "-250.", "250."}, DecimalsCase{100, "-100.", "100."},
          DecimalsCase{50, "-50.0", "50.0"}, DecimalsCase{10, "-10.0", "10.0"},
          DecimalsCase{8, "-8.00", "8.00"}, DecimalsCase{0.5F, "-0.500", "0.500"}}) {
        // Along x, so that the tip is exactly the limit.
        for (int step = 0; step <= 2; ++step) Put_Vector(step, given.limit, 0);
        Show(true, true);
        EXPECT_THAT(Limits(), ElementsAre(given.low, given.high, given.low, given.high));
    }
}

TEST_F(PolarPlots, AVectorThatIsAlwaysZeroHasTheLeastLimit) {
    for (int step = 0; step <= 2; ++step) Put_Vector(step, 0, 0);
    Show(true, true);
    EXPECT_EQ(plots.PlotLimit, 0.0001F);
    EXPECT_FALSE(plots.WindowFailed);
    EXPECT_THAT(Limits(), ElementsAre("0.000", "0.000", "0.000", "0.000"));
}

TEST_F(PolarPlots, NameTheirFunctionAndUnit) {
    Choose_Plots({{"Veloc I 2,3", "Mag"}, {"Veloc I 3,4", "Ang"}});
    form.lbl_Header3.caption = "old";
    Show(true, true);
    EXPECT_EQ(form.lbl_Header2.caption, "Linkage Veloc I 3,4  -  in/sec") << "the name of the second slot";
    EXPECT_EQ(form.lbl_Header3.caption, "");
    EXPECT_EQ(form.lbl_LeftTitle.caption, "Veloc I 2,3");
    EXPECT_EQ(form.lbl_PlotUnits.caption, "in/sec");
    EXPECT_EQ(selections.SelCurrent, 1);
    selections.SelComp(1) = 3;
    Show(true, true);
    EXPECT_EQ(form.lbl_PlotUnits.caption, "in/sec");
    selections.SelComp(1) = 4;
    Show(true, true);
    EXPECT_EQ(form.lbl_PlotUnits.caption, "Deg");
}

TEST_F(PolarPlots, TheDriveOfOnePositionIsLabelledAsARangeOfAngles) {
    for (const std::int16_t mode : Int16List{1, 2, 3, 4, 5}) {
        model.CalcMode = mode;
        Set_Up(true, true);
        EXPECT_EQ(form.lbl_Initial[0].caption, mode == 1 || mode == 3 ? "Min Theta" : "Start Time") << mode;
        EXPECT_EQ(form.frm_initial.visible, mode < 4) << mode;
    }
}

TEST_F(PolarPlots, TheSetUpClearsThePictureAndPutsTheState) {
    model.Link3 = 2.5F;
    selections.LocalCoords = 2;
    Set_Up(true, false);
    Expect_Drawn(picture.drawn, {{Kind::Clear}});
    EXPECT_EQ(form.lbl_Header.caption, Put_Header(model));
    EXPECT_EQ(form.lbl_Links[2].caption, "2.500");
    EXPECT_EQ(form.lbl_Coord.caption, "Local Rotating");
    EXPECT_TRUE(plots.ShowVectors);
    EXPECT_FALSE(plots.ShowEnvelope);
}

TEST_F(PolarPlots, ATransformIsRefused) {
    Choose_Spectrum_Plots();
    plots.PlotLimit = 5;
    Show(true, true);
    Expect_Box("FFT data are not suited to polar plots.\nUse a cartesian plot format instead.", Icon::None);
    Expect_Drawn(picture.drawn, {{Kind::Clear}});
    EXPECT_EQ(form.lbl_Header2.caption, "");
    EXPECT_EQ(plots.PlotLimit, 5);
}

TEST_F(PolarPlots, ARefusedPictureStaysBlankButIsLabelled) {
    Put_Vector(1, -3.2e18F, 0);
    picture.failure = 5;
    Show(true, true);
    Expect_Box("The magnitude of Veloc I 2,3 exceeds the capacity of this window.", Icon::Exclamation);
    Expect_Drawn(picture.drawn, {{Kind::Clear}});
    EXPECT_EQ(form.lbl_Ymin.caption.substr(0, 3), "-3,");
    EXPECT_EQ(form.lbl_LeftTitle.caption, "Veloc I 2,3");
}

TEST_F(PolarPlots, AFunctionThatIsNoVectorGivesZeros) {
    Choose_Plots({{"Theta3", "Mag"}});
    Show(true, true);
    EXPECT_EQ(plots.PlotLimit, 0.0001F);
    EXPECT_EQ(plots.PolarX(2), 0);
}

TEST_F(PolarPlots, StepsDrawTheAxesAgainAndOneRayEach) {
    Show(true, false);
    Expect_Drawn(Step(0), After_Axes({Point(0, 0, kGreen), Line(0, 0, 3, 4, kGreen)}));
    Expect_Drawn(Step(2), After_Axes({Point(0, 0, kGreen), Line(0, 0, 0, -8, kGreen)}));
}

TEST_F(PolarPlots, StepsOfTheEnvelopeJoinTheTipBefore) {
    Show(false, true);
    Expect_Drawn(Step(0), After_Axes({Point(3, 4, kBlue)}));
    Expect_Drawn(Step(1), After_Axes({Point(-6, 0, kBlue), Line(3, 4, -6, 0, kBlue)}));
}

TEST_F(PolarPlots, StepsOfBothDrawTheRayAndThenTheEnvelope) {
    Show(true, true);
    Expect_Drawn(Step(0), After_Axes({Point(0, 0, kGreen), Line(0, 0, 3, 4, kGreen)}));
    Expect_Drawn(Step(2),
                 After_Axes({Point(0, 0, kGreen), Line(0, 0, 0, -8, kGreen), Line(-6, 0, 0, -8, kBlue)}));
}

TEST_F(PolarPlots, StepsWithoutAStyleDrawTheAxesAlone) {
    Show(false, false);
    Expect_Drawn(Step(1), After_Axes({}));
}

TEST_F(PolarPlots, AStepShowsWholeNumbersOfMagnitudeAndAngle) {
    Show(true, true);
    Step(0);
    EXPECT_THAT(Vector(), ElementsAre("5", "53")) << "atan of 4/3 is 53.13";
    Step(1);
    EXPECT_THAT(Vector(), ElementsAre("6", "180"));
    Step(2);
    // The tip comes by a pi that is a little too large, so that its x is just below 0.
    EXPECT_THAT(Vector(), ElementsAre("8", "270"));
}

TEST_F(PolarPlots, AStepIsTheCrankAngleOfAnAngleDrive) {
    Show(true, true);
    Step(2);
    EXPECT_EQ(form.lbl_StepLabel.caption, "Theta2");
    EXPECT_EQ(form.lbl_StepUnit.caption, "deg");
    EXPECT_EQ(form.lbl_StepNumber.caption, "20.0");
}

TEST_F(PolarPlots, AStepIsTheTimeOfAnyOtherDrive) {
    Show(true, true);
    for (const std::int16_t mode : Int16List{1, 2, 4, 5}) {
        model.CalcMode = mode;
        Step(2);
        EXPECT_EQ(form.lbl_StepLabel.caption, "Time");
        EXPECT_EQ(form.lbl_StepUnit.caption, "sec");
        EXPECT_EQ(form.lbl_StepNumber.caption, "1.50");
    }
}

TEST_F(PolarPlots, FaultsAreReported) {
    Show(true, true);
    MyPolarStep(*program, form, 1025);
    Expect_Fault(9, "MyPolarStep");
    model.NumSteps = 1025;
    MyPolarPlot(*program, form, labels);
    // The fetch reports the row that is not there, the tips the one that they have no room for.
    Expect_Fault(9, "Select_PolarVariable");
    Expect_Fault(9, "MyPolarPlot");
}

}  // namespace
}  // namespace kervol
