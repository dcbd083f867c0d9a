// SPDX-License-Identifier: GPL-3.0-or-later
// Whole pictures of the linkage.
#include <cmath>

#include "animation/stepping.h"
#include "headless/svg_picture.h"
#include "kinematics/examples.h"
#include "kinematics/kinematics_fixture.h"
#include "support/golden.h"

namespace kervol {
namespace {

class GoldenPicture : public KinematicsTest {
  protected:
    GoldenPicture() {
        view.Picture1 = &picture;
        view.chk_autoscale.on = true;
        settings.hsc_speed.maximum = 32767;
        settings.txt_Cycles.text = "1";
        settings.chk_Showlinks.on = true;
        model.StepMode = "Y";
        port.answer = [](const MessageBox&) { return Answer::Ignore; };
    }

    void Load(std::string_view name) {
        const Example* example = Find_Example(name);
        ASSERT_NE(example, nullptr);
        Load_Example(model, *example);
    }

    void Sweep_Range(float low, float high, float step) {
        Put_Angle_Range(low, high, step);
        Answer response = Answer::None;
        Run_Sweep(*program, 3, response);
    }

    /// Over the range that the model holds.
    void Sweep_All() { Sweep_Range(model.ThetaMinDeg, model.ThetaMaxDeg, model.ThetaStepDeg); }

    void Show(std::int16_t step) { Step(*program, view, settings, step); }

    SvgPicture picture;
    LinkageView view;
    AnimationSettings settings;
};

TEST_F(GoldenPicture, OfAWattChain) {
    Load("watt");
    Sweep_All();
    Show(9);
    Expect_Golden("watt_step_9.svg", picture.Text());
}

TEST_F(GoldenPicture, OfAStephensonChain) {
    Load("double-dwell");
    Sweep_All();
    Show(30);
    Expect_Golden("double_dwell_step_30.svg", picture.Text());
}

TEST_F(GoldenPicture, OfAWattChainTurnedByItsGround) {
    Load("watt");
    const double c = std::cos(35 * RadiansPerDegree), s = std::sin(35 * RadiansPerDegree);
    const double O4 = model.O4X, x = model.O6X, y = model.O6Y;
    Place_Pivots(model, static_cast<float>(O4 * c), static_cast<float>(O4 * s),
                 static_cast<float>(x * c - y * s), static_cast<float>(x * s + y * c));
    // The same positions as without the turn.
    Sweep_Range(35, 395, 10);
    Show(9);
    Expect_Golden("watt_turned_by_35.svg", picture.Text());
}

TEST_F(GoldenPicture, OfATraceOverTwelveSteps) {
    Load("watt");
    Sweep_All();
    settings.chk_Trace.on = true;
    bool busy = false;
    for (int i = 0; i < 12; ++i) Step_Setup(*program, view, settings, busy);
    Expect_Golden("trace_of_12_steps.svg", picture.Text());
}

TEST_F(GoldenPicture, OfCouplerPointsWithHiddenLinks) {
    Load("hoeken");
    Sweep_All();
    settings.chk_Showlinks.on = false;
    model.ShowPoints = "Y";
    Show(20);
    Expect_Golden("hidden_links_with_points.svg", picture.Text());
}

TEST_F(GoldenPicture, OfALinkageThatFailsAtSomePositions) {
    Put_Limited_Four_Bar();
    model.LinkO4D = 2;
    model.Delta3 = 0.8F;
    model.Delta4 = -0.8F;
    model.Delta5 = 0.9F;
    Sweep_Range(0, 360, 5);
    Expect_Cannot_Assemble(" 1", "85");
    ASSERT_TRUE(model.SomeStepFailed);
    Show(8);
    Expect_Golden("failed_rows.svg", picture.Text());
}

}  // namespace
}  // namespace kervol
