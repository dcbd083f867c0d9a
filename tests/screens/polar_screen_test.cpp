// SPDX-License-Identifier: GPL-3.0-or-later
// The polar plot screen: the whole plot, and the steps through it.
#include "core/colours.h"
#include "screens/plot_screens_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

class PolarScreen : public PlotScreensTest {
  protected:
    PolarScreen() { Open_Plot(polar, 1, "Veloc I 2,3", "Mag"); }

    void Set_Pause(bool on) { Put_Check(form.chk_Pause, on); }
    static void Click(CheckBox& box) { Put_Check(box, !box.on); }

    /// What was drawn since the last call: C for a clearing, W for a window, r for a ray, e for a piece of
    /// the envelope; axes and ticks are left out.
    std::string Strokes() {
        std::string strokes;
        for (const Drawn& drawn : std::exchange(plot.drawn, {})) {
            if (drawn.kind == Drawn::Kind::Clear) strokes += 'C';
            if (drawn.kind == Drawn::Kind::Scale) strokes += 'W';
            if (drawn.kind != Drawn::Kind::Line) continue;
            if (drawn.colour == NamedColours.green) strokes += 'r';
            if (drawn.colour == NamedColours.blue) strokes += 'e';
        }
        return strokes;
    }
    void Expect_Step_Display(bool shown) const {
        for (const Label* label :
             {&form.lbl_StepLabel, &form.lbl_StepUnit, &form.lbl_StepNumber, &form.lbl_vector[0],
              &form.lbl_vector[1], &form.lbl_name[0], &form.lbl_name[1]})
            EXPECT_EQ(label->visible, shown);
        EXPECT_EQ(form.cmd_Step.caption, shown ? "Step" : "Plot");
        EXPECT_EQ(form.PolarStepping, shown);
        EXPECT_EQ(form.chk_Pause.on, shown);
        for (const Control* control : std::initializer_list<const Control*>{
                 &form.lbl_LeftTitle, &form.lbl_PlotUnits, &form.chk_Envelope, &form.chk_Vectors})
            EXPECT_TRUE(control->visible);
    }

    PolarPlotScreen& form = polar_plot;
    RecordingPicture& plot = pictures[0];
};

TEST_F(PolarScreen, OpensWithTheWholePlotAndItsOutputsEnabled) {
    EXPECT_EQ(Strokes(), "CWrerer");
    Expect_Step_Display(false);
    EXPECT_TRUE(form.cmd_PlotPrint.enabled);
    EXPECT_TRUE(form.cmd_Copy.enabled);
    EXPECT_EQ(form.lbl_Ymax.caption, "8.00");
    EXPECT_EQ(program->plots.PlotCount, 1);
}

TEST_F(PolarScreen, PauseClearsThePictureAndShowsTheFirstStep) {
    Strokes();
    Set_Pause(true);
    Expect_Step_Display(true);
    EXPECT_EQ(Strokes(), "Cr");
    EXPECT_EQ(form.PolarStep, 0);
    EXPECT_EQ(form.lbl_StepLabel.caption, "Theta2");
    EXPECT_EQ(form.lbl_StepNumber.caption, "0.0");
    EXPECT_EQ(form.lbl_vector[0].caption, "0");
}

TEST_F(PolarScreen, StepsOneByOneAndEndsByItselfBehindTheLast) {
    Set_Pause(true);
    Strokes();
    form.cmd_Step.click();
    EXPECT_EQ(Strokes(), "re");
    EXPECT_EQ(form.lbl_StepNumber.caption, "10.0");
    EXPECT_EQ(form.lbl_vector[0].caption, "5");
    EXPECT_EQ(form.lbl_vector[1].caption, "53");
    form.cmd_Step.click();
    EXPECT_EQ(form.lbl_StepNumber.caption, "20.0");
    EXPECT_EQ(form.lbl_vector[0].caption, "10");
    EXPECT_EQ(Strokes(), "re");
    Expect_Step_Display(true);
    form.cmd_Step.click();
    Expect_Step_Display(false);
    EXPECT_EQ(Strokes(), "") << "what was drawn stands";
}

TEST_F(PolarScreen, OnePositionHasNoSecondStep) {
    model.NumSteps = 0;
    Set_Pause(true);
    form.cmd_Step.click();
    Expect_Step_Display(false);
}

TEST_F(PolarScreen, PauseOffLeavesTheStepsUntilTheNextPlot) {
    Set_Pause(true);
    form.cmd_Step.click();
    Strokes();
    Set_Pause(false);
    Expect_Step_Display(false);
    EXPECT_EQ(Strokes(), "");
    form.cmd_Step.click();
    EXPECT_EQ(Strokes(), "CWrerer");
    Set_Pause(true);
    EXPECT_EQ(form.PolarStep, 0) << "from the beginning";
}

TEST_F(PolarScreen, TheBoxesOnlySetTheirFlagsUntilThePlotIsAskedFor) {
    Strokes();
    Click(form.chk_Envelope);
    EXPECT_FALSE(program->plots.ShowEnvelope);
    EXPECT_TRUE(program->plots.ShowVectors);
    EXPECT_EQ(program->plots.PolarStyle, 3);
    EXPECT_EQ(Strokes(), "");
    form.cmd_Step.click();
    EXPECT_EQ(program->plots.PolarStyle, 2);
    EXPECT_EQ(Strokes(), "CWrrr");
    Click(form.chk_Vectors);
    EXPECT_FALSE(program->plots.ShowVectors);
    Click(form.chk_Envelope);
    form.cmd_Step.click();
    EXPECT_EQ(Strokes(), "CWee");
}

TEST_F(PolarScreen, PauseReadsTheFlagsButKeepsTheStyleOfTheLastPlot) {
    form.chk_Vectors.on = false;
    Set_Pause(true);
    EXPECT_FALSE(program->plots.ShowVectors);
    EXPECT_EQ(program->plots.PolarStyle, 3);
}

TEST_F(PolarScreen, BothBoxesOffAtFirstUseLeaveAxesAlone) {
    program->plots.PolarStyle = 0;
    form.chk_Vectors.on = form.chk_Envelope.on = false;
    Strokes();
    form.cmd_Step.click();
    EXPECT_GT(plot.drawn.size(), 40U);
    EXPECT_EQ(Strokes(), "CW");
}

TEST_F(PolarScreen, ReopeningEndsTheSteps) {
    Set_Pause(true);
    Strokes();
    Open_Plot(polar, 1, "Veloc I 2,3", "Mag");
    Expect_Step_Display(false);
    EXPECT_EQ(Strokes(), "CWrerer");
}

TEST_F(PolarScreen, FaultsOfAStepAreReported) {
    Set_Pause(true);
    model.NumSteps = 2000;
    form.PolarStep = 1024;
    form.cmd_Step.click();
    Expect_Fault(9, "MyPolarStep");
}

}  // namespace
}  // namespace kervol
