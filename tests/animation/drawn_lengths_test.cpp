// SPDX-License-Identifier: GPL-3.0-or-later
// Laws that hold of every drawn position of a solved linkage: bars as long as their links, and closed loops.
#include <cmath>
#include <map>
#include <utility>

#include "animation/linkage_drawing.h"
#include "animation/surroundings.h"
#include "headless/recording_picture.h"
#include "kinematics/examples.h"
#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

class DrawnLengths : public KinematicsTest {
  protected:
    DrawnLengths() {
        model.HideLinks = "N";
        model.ShowTrace = "N";
        model.ShowPoints = "N";
        program->animation.PlotY0 = 3;
        // Tells pivots, pins and bars apart.
        program->animation.LinkColour = {255, 0, 255};
        program->animation.colours.blue = {0, 0, 255};
    }

    /// Lines of the row in their order.
    std::vector<Drawn> Bars(std::int16_t step) {
        RecordingPicture picture;
        Drawsub6(*program, step, picture, 6);
        std::vector<Drawn> bars;
        for (const Drawn& drawn : picture.drawn)
            if (drawn.kind == Drawn::Kind::Line) bars.push_back(drawn);
        return bars;
    }

    /// The drawn pivots O2, O4, O6: every other circle is the small one of the pair.
    std::vector<Drawn> Pivots() {
        RecordingPicture picture;
        Drawpivots(*program, picture);
        return {picture.drawn.at(0), picture.drawn.at(2), picture.drawn.at(4)};
    }

    void Expect_Bars_Fit(std::int16_t step) {
        const std::vector<Drawn> bars = Bars(step);
        const bool watt = model.LinkageType == "W";
        // Number of the bar in the drawing, and the length that it must have.
        using Lengths = std::vector<std::pair<std::size_t, float>>;
        Lengths lengths = {{0, model.Link2}, {1, model.Link3}, {2, model.Link4}, {3, model.CouplerAC}};
        const Lengths stage2 =
            watt ? Lengths{{5, model.LinkO4D}, {7, model.Link5}, {8, model.Coupler2Length}, {10, model.Link6}}
                 : Lengths{{5, model.Coupler2Length}, {6, model.Link5}, {8, model.Link6}};
        lengths.insert(lengths.end(), stage2.begin(), stage2.end());
        ASSERT_EQ(bars.size(), watt ? 11U : 9U);
        const double tolerance = 1e-4 * double(Longest_Link(model));
        for (const auto& [bar, length] : lengths)
            EXPECT_NEAR(std::hypot(bars[bar].x2 - bars[bar].x1, bars[bar].y2 - bars[bar].y1), length,
                        tolerance)
                << "bar " << bar << " at step " << step;

        const std::vector<Drawn> pivots = Pivots();
        EXPECT_NEAR(std::hypot(bars[0].x1 - pivots[0].x1, bars[0].y1 - pivots[0].y1), 0, tolerance);
        EXPECT_NEAR(std::hypot(bars[2].x2 - pivots[1].x1, bars[2].y2 - pivots[1].y1), 0, tolerance);
        EXPECT_NEAR(std::hypot(bars.back().x2 - pivots[2].x1, bars.back().y2 - pivots[2].y1), 0, tolerance);
    }
};

TEST_F(DrawnLengths, AreThoseOfTheLinksInEveryStepOfTheExamples) {
    for (const Example& example : Examples()) {
        SCOPED_TRACE(example.name);
        Load_Example(model, example);
        Put_Angle_Range(example.ThetaMinDeg, example.ThetaMaxDeg, example.ThetaStepDeg);
        Answer response = Answer::None;
        Run_Sweep(*program, 3, response);
        ASSERT_FALSE(model.SomeStepFailed);
        for (std::int16_t step = 0; step <= model.NumSteps; ++step) Expect_Bars_Fit(step);
    }
}

TEST_F(DrawnLengths, AreThoseOfTheLinksHoweverTheLinkageLiesAndStarts) {
    RandomLinkages random(20260);
    std::map<std::string, int> assembled;
    for (int i = 0; i < 600; ++i) {
        const char* chain = i % 2 == 0 ? "W" : "S";
        random.Next(model, chain);
        tables.StepValid(0) = false;
        port.answer = [](const MessageBox&) { return Answer::Ignore; };
        Solve(0, random.Between(-180, 180));
        while (Boxes_Left() > 0) Take_Box();
        if (!tables.StepValid(0)) continue;
        ++assembled[chain];
        Expect_Bars_Fit(0);
    }
    EXPECT_GT(assembled["W"], 20);
    EXPECT_GT(assembled["S"], 20);
}

}  // namespace
}  // namespace kervol
