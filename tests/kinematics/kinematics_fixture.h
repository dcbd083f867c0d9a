// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of the tests that solve positions and sweeps: hand-made linkages and scripted answers.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "core/constants.h"
#include "kinematics/calculate.h"
#include "kinematics/step_count.h"
#include "kinematics/sweep.h"
#include "support/compare.h"
#include "support/program_test.h"
#include "support/random_linkage.h"

namespace kervol {

class KinematicsTest : public ProgramTest {
  protected:
    /// A Watt chain with this Stage 1; its Stage 2 (arm 1, links 10 and 10, pivots 13 apart) always assembles
    /// and stays far from a toggle. The whole linkage is turned by the ground angle.
    void Put_Four_Bar(float crank, float coupler, float rocker, float ground, double ground_degrees = 0) {
        model.LinkageType = "W";
        model.Link2 = crank;
        model.Link3 = coupler;
        model.Link4 = rocker;
        model.LinkO4D = 1;
        model.Link5 = model.Link6 = 10;
        model.CouplerAC = 2;
        model.Coupler2Length = 3;
        model.Delta3 = model.Delta4 = model.Delta5 = 0;
        const double c = std::cos(ground_degrees * RadiansPerDegree);
        const double s = std::sin(ground_degrees * RadiansPerDegree);
        const double x = double(ground) + 12;
        Place_Pivots(model, static_cast<float>(ground * c), static_cast<float>(ground * s),
                     static_cast<float>(x * c - 5 * s), static_cast<float>(x * s + 5 * c));
    }

    /// Turns from 0 to 82.8 and from 277.2 to 360 degrees only: in between A is more than 6 from O4.
    void Put_Limited_Four_Bar(double ground_degrees = 0) { Put_Four_Bar(4, 3, 3, 5, ground_degrees); }

    /// A Stage 2 that can never be closed: arm 8 and ground link 13 with links of 1.
    void Break_Stage2() {
        model.LinkO4D = 8;
        model.Link5 = model.Link6 = 1;
    }

    /// Solves a row at a local crank angle; a failure does not ask.
    void Solve(std::int16_t row, double local_degrees) {
        model.Theta2Rad = static_cast<float>(local_degrees * RadiansPerDegree);
        Answer response = Answer::Ignore;
        Calculate(*program, row, response);
    }

    /// Range of mode 3 in degrees, user frame, with the count that follows.
    void Put_Angle_Range(float low, float high, float step) {
        model.CalcMode = 3;
        model.ThetaMinDeg = low;
        model.ThetaMaxDeg = high;
        model.ThetaStepDeg = step;
        ASSERT_EQ(Count_Angle_Steps(*program), Refusal::None);
    }

    /// Answers the boxes in this order, the last one ever after.
    void Answer_With(std::vector<Answer> answers) {
        port.answer = [answers = std::move(answers), next = std::size_t{0}](const MessageBox&) mutable {
            const Answer given = answers[next];
            if (next + 1 < answers.size()) ++next;
            return given;
        };
    }

    /// The box of a position that cannot be assembled.
    static std::string Cannot_Assemble_Text(const std::string& stage, const std::string& degrees) {
        return "Stage " + stage + " of linkage cannot connect or is indeterminate at Theta2 =  " + degrees +
               " Degrees\n\n"
               "Choose Abort to terminate further calculations beyond the current position\n\n"
               "Choose Retry to continue calculating the linkage motion and flag new problem positions with "
               "this message\n\n"
               "Choose Ignore to continue calculating, skipping over new problem positions and suppressing "
               "further messages\n";
    }

    void Expect_Cannot_Assemble(const std::string& stage, const std::string& degrees) {
        Expect_Box(Cannot_Assemble_Text(stage, degrees), Icon::Exclamation, Buttons::AbortRetryIgnore);
    }
};

/// A linkage that turns fully, with unwrapped angles, to be swept.
class SweepFixture : public KinematicsTest {
  protected:
    void SetUp() override {
        Put_Four_Bar(2, 5, 6, 7);
        model.AngleRange = "free";
        model.Alpha2 = 0;
        model.Omega2Start = 10;
    }

    Answer Sweep(std::int16_t mode) {
        model.CalcMode = mode;
        Answer response = Answer::None;
        Run_Sweep(*program, mode, response);
        return response;
    }

    /// Column 0 of `Theta` up to the highest step.
    void Expect_Crank_Angles(const std::vector<double>& degrees) {
        ASSERT_EQ(model.NumSteps + 1, static_cast<int>(degrees.size()));
        for (std::size_t row = 0; row < degrees.size(); ++row)
            EXPECT_NEAR(tables.Theta(static_cast<int>(row), 0), degrees[row], 1e-3) << row;
    }
};

}  // namespace kervol
