// SPDX-License-Identifier: GPL-3.0-or-later
// Single positions on a screen: the step, the Step button, the Reset button.
#include "animation/animation_fixture.h"
#include "core/arithmetic.h"

namespace kervol {
namespace {

/// Records, and at each drawing that begins notes how the screen stands.
class WatchingPicture : public RecordingPicture {
  public:
    WatchingPicture(const LinkageView& view, const bool& busy) : view_(view), busy_(busy) {}

    void Set_Scale(double left, double top, double right, double bottom) override {
        RecordingPicture::Set_Scale(left, top, right, bottom);
        bar_while_drawing.push_back(view_.hsc_step.value);
        busy_while_drawing.push_back(busy_);
    }

    std::vector<int> bar_while_drawing;
    std::vector<bool> busy_while_drawing;

  private:
    const LinkageView& view_;
    const bool& busy_;
};

/// Rows 0 to 3; all points of a row stand at (step + 1, 2), so that a drawing tells its step.
class Stepping : public AnimationTest {
  protected:
    Stepping() {
        view.Picture1 = &watching;
        model.LinkageType = "W";
        model.CalcMode = 3;
        model.NumSteps = 3;
        model.ShowCoupler = "Y";
        model.DriveArmLength = 5;
        Put_Pivots(6, 7, 6);
        for (std::int16_t step = 0; step <= 4; ++step) {
            Put_All_Points(step, static_cast<float>(step + 1), 2);
            tables.Theta(step, 0) = 1230.25F + static_cast<float>(step);
        }
        view.lbl_StepLabel.visible = view.lbl_StepUnit.visible = view.lbl_StepNumber.visible = false;
    }

    void Show(std::int16_t step) { Step(*program, view, settings, step); }

    /// The whole drawing of a step, made of the procedures that it must call in this order.
    std::vector<Drawn> Drawing_Of(std::int16_t step, int positions, bool curves = true) {
        RecordingPicture parts;
        Animate_Setup(*program, view, settings);
        parts.drawn = std::move(watching.drawn);
        watching.drawn.clear();
        Drawpivots(*program, parts);
        Axes(*program, parts);
        if (curves) DrawCouplerCurve(*program, 0, parts);
        if (curves) DrawCouplerCurve(*program, 1, parts);
        for (int i = 0; i < positions; ++i) Drawsub6(*program, step, parts, 6);
        Drawpivots(*program, parts);
        Axes(*program, parts);
        return parts.drawn;
    }

    void Expect_Step(std::int16_t step, int positions = 1, bool curves = true) {
        const std::vector<Drawn> drawn = std::move(watching.drawn);
        watching.drawn.clear();
        EXPECT_EQ(drawn, Drawing_Of(step, positions, curves));
    }

    /// The steps that were drawn, told by where the crank ends.
    std::vector<int> Steps_Drawn() {
        std::vector<int> steps;
        for (const Drawn& drawn : watching.drawn) {
            const bool crank = drawn.kind == Drawn::Kind::Line && drawn.colour == kMagenta &&
                               Is_Same(drawn.x1, 0) && Is_Same(drawn.y1, 10) && Is_Same(drawn.y2, 8);
            if (crank) steps.push_back(static_cast<int>(drawn.x2) - 1);
        }
        watching.drawn.clear();
        return steps;
    }

    bool busy = false;
    WatchingPicture watching{view, busy};
};

TEST_F(Stepping, ShowsTheStepLabels) {
    Show(1);
    EXPECT_TRUE(view.lbl_StepLabel.visible);
    EXPECT_TRUE(view.lbl_StepUnit.visible);
    EXPECT_TRUE(view.lbl_StepNumber.visible);
}

TEST_F(Stepping, TellsTheCrankAngleInModesOfAngles) {
    for (const std::int16_t mode : Modes{1, 3}) {
        model.CalcMode = mode;
        Show(2);
        EXPECT_EQ(view.lbl_StepNumber.caption, "1,232.3");
        tables.Theta(0, 0) = -12.5;
        Show(0);
        EXPECT_EQ(view.lbl_StepNumber.caption, "-12.5");
        EXPECT_EQ(view.lbl_StepLabel.caption, "Theta2");
        EXPECT_EQ(view.lbl_StepUnit.caption, "deg");
    }
}

TEST_F(Stepping, TellsTheTimeInModesOfTime) {
    model.TimeStep = 0.25;
    model.TimeStart = 1;
    for (const std::int16_t mode : Modes{2, 4, 5}) {
        model.CalcMode = mode;
        view.lbl_StepNumber.caption.clear();
        Show(3);
        EXPECT_EQ(view.lbl_StepNumber.caption, "1.75");
        Show(0);
        EXPECT_EQ(view.lbl_StepNumber.caption, "1.00");
        EXPECT_EQ(view.lbl_StepLabel.caption, "Time");
        EXPECT_EQ(view.lbl_StepUnit.caption, "sec");
    }
}

TEST_F(Stepping, RoundsTheTimeOnceOnly) {
    model.CalcMode = 2;
    model.TimeStart = 0.1F;
    model.TimeStep = 0.125F;
    Show(1);
    EXPECT_EQ(view.lbl_StepNumber.caption, "0.23") << "0.1 in single precision is a little more";
    model.TimeStart = 0;
    model.TimeStep = 0.025F;
    tables.StepValid(7) = true;
    Show(7);
    EXPECT_EQ(view.lbl_StepNumber.caption, "0.18");
}

TEST_F(Stepping, LeavesTheNumberInAModeThatDoesNotExist) {
    view.lbl_StepNumber.caption = "as it was";
    for (const std::int16_t mode : Modes{0, 6, -1}) {
        model.CalcMode = mode;
        Show(1);
        EXPECT_EQ(view.lbl_StepNumber.caption, "as it was");
    }
}

TEST_F(Stepping, DrawsThePositionBetweenTwoLayersOfPivotsAndAxes) {
    Show(1);
    Expect_Step(1);
}

TEST_F(Stepping, DrawsTheLastPositionTwice) {
    Show(3);
    Expect_Step(3, 2);
}

TEST_F(Stepping, DrawsNoPathsWhereTheyAreOff) {
    for (const char* show : {"N", "", "y"}) {
        model.ShowCoupler = show;
        Show(1);
        Expect_Step(1, 1, false);
    }
}

TEST_F(Stepping, LeavesTheLinksColourAtRest) {
    program->animation.LinkColour = kWhite;
    Show(3);
    EXPECT_EQ(program->animation.LinkColour, kMagenta);
    for (const Drawn& drawn : watching.drawn)
        EXPECT_TRUE(drawn.kind == Drawn::Kind::Background || drawn.colour != kWhite);
}

TEST_F(Stepping, KeepsEarlierPositionsUnlessStepModeIsN) {
    Show(1);
    EXPECT_NE(watching.drawn.front().kind, Drawn::Kind::Clear);
    watching.drawn.clear();
    model.StepMode = "N";
    Show(1);
    EXPECT_EQ(watching.drawn.front().kind, Drawn::Kind::Clear);
}

TEST_F(Stepping, DrawsEvenInAWindowThatWasRefused) {
    program->animation.PlotMin = program->animation.PlotMax = 0;
    Show(1);
    Expect_Fault(5, "Animate_Setup");
    // Six pivot circles and two axes; two paths of a point and four lines each; bars and pins of Stage 1,
    // then of Stage 2; pivots and axes again.
    EXPECT_EQ(watching.drawn.size(), 8U + 2 * 5 + (5 + 3) + (6 + 3) + 8);
    EXPECT_TRUE(view.lbl_StepLabel.visible);
}

TEST_F(Stepping, BeyondTheTablesIsAFaultBehindTheSetUp) {
    Show(1025);
    Expect_Fault(9, "Step");
    EXPECT_EQ(watching.drawn.size(), 2U);
}

class StepButton : public Stepping {
  protected:
    void Click() { Step_Setup(*program, view, settings, busy); }
    std::int16_t& current = program->animation.CurrentStep;
};

TEST_F(StepButton, GoesThroughAllStepsAndStartsAgain) {
    for (const std::int16_t mode : Modes{2, 3, 4, 5}) {
        model.CalcMode = mode;
        current = 0;
        for (const int step : {0, 1, 2, 3, 0, 1}) {
            Click();
            const std::vector<int> drawn = Steps_Drawn();
            EXPECT_EQ(drawn, std::vector<int>(step == 3 ? 2 : 1, step)) << "mode " << mode;
            EXPECT_EQ(view.hsc_step.value, step);
            EXPECT_EQ(view.hsc_step.maximum, 3);
            EXPECT_EQ(current, step + 1);
        }
    }
}

TEST_F(StepButton, StartsAgainWhereAnEarlierTableWasLonger) {
    current = 5;
    Click();
    EXPECT_EQ(Steps_Drawn(), std::vector<int>{0});
    EXPECT_EQ(current, 1);
}

TEST_F(StepButton, DrawsNothingForOnePosition) {
    model.CalcMode = 1;
    current = 2;
    view.hsc_step.value = 2;
    Click();
    EXPECT_TRUE(watching.drawn.empty());
    EXPECT_EQ(current, 0);
    EXPECT_EQ(view.hsc_step.value, 2);
    EXPECT_EQ(view.hsc_step.maximum, 3);
    EXPECT_FALSE(busy);
}

TEST_F(StepButton, PutsTheBarBeforeTheDrawingButWithAngleStepsBehindIt) {
    view.hsc_step.value = 3;
    current = 1;
    Click();
    EXPECT_EQ(watching.bar_while_drawing, std::vector<int>{3});
    EXPECT_EQ(view.hsc_step.value, 1);
    for (const std::int16_t mode : Modes{2, 4, 5}) {
        watching.bar_while_drawing.clear();
        view.hsc_step.value = 3;
        current = 1;
        model.CalcMode = mode;
        Click();
        EXPECT_EQ(watching.bar_while_drawing, std::vector<int>{1});
    }
}

TEST_F(StepButton, IsBusyWhileItDrawsAndNotAfterwards) {
    for (const std::int16_t mode : Modes{2, 3, 4, 5}) {
        model.CalcMode = mode;
        Click();
        EXPECT_FALSE(busy);
    }
    EXPECT_EQ(watching.busy_while_drawing, std::vector<bool>(4, true));
}

TEST_F(StepButton, LeavesEarlierPositionsStanding) {
    model.StepMode = "N";
    Click();
    EXPECT_EQ(model.StepMode, "Y");
    EXPECT_EQ(watching.drawn.front().kind, Drawn::Kind::Scale);
}

TEST_F(StepButton, IsNotBusyBehindAFault) {
    model.NumSteps = 32767;
    model.ShowCoupler = "N";
    current = 32767;
    Click();
    Expect_Fault(9, "Step");
    Expect_Fault(6, "Step_Setup");
    EXPECT_FALSE(busy);
    EXPECT_EQ(current, 32767);
}

TEST_F(Stepping, ResetDrawsStep0AndGoesOnWith1) {
    view.hsc_step.value = 3;
    program->animation.CurrentStep = 3;
    Step_Reset(*program, view, settings);
    EXPECT_EQ(watching.bar_while_drawing, std::vector<int>{3});
    Expect_Step(0);
    EXPECT_EQ(view.hsc_step.value, 0);
    EXPECT_EQ(program->animation.CurrentStep, 1);
    EXPECT_EQ(view.lbl_StepNumber.caption, "1,230.3");
}

TEST_F(Stepping, ResetRaisesTheChangeOfABarThatMoves) {
    int changes = 0;
    view.hsc_step.change = [&] { ++changes; };
    Step_Reset(*program, view, settings);
    EXPECT_EQ(changes, 0);
    view.hsc_step.value = 3;
    Step_Reset(*program, view, settings);
    EXPECT_EQ(changes, 1);
}

TEST_F(Stepping, ResetLeavesEarlierPositionsToStepMode) {
    Step_Reset(*program, view, settings);
    EXPECT_EQ(watching.drawn.front().kind, Drawn::Kind::Scale);
    EXPECT_EQ(model.StepMode, "Y");
    watching.drawn.clear();
    model.StepMode = "N";
    Step_Reset(*program, view, settings);
    EXPECT_EQ(watching.drawn.front().kind, Drawn::Kind::Clear);
    EXPECT_EQ(model.StepMode, "N");
}

}  // namespace
}  // namespace kervol
