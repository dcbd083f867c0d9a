// SPDX-License-Identifier: GPL-3.0-or-later
// The linkage as shapes: which corners each link has, where the coupler paths break, how far all reaches.
#include "animation/link_shapes.h"

#include <cmath>

#include "animation/animation_fixture.h"
#include "kinematics/examples.h"
#include "kinematics/step_count.h"

namespace kervol {
namespace {

class LinkShapesTest : public AnimationTest {
  protected:
    /// Points 1 to 6 units along x, one unit up, at steps 0 to `last`.
    void Put_Row_Of_Points(std::int16_t last) {
        model.NumSteps = last;
        for (std::int16_t step = 0; step <= last; ++step) {
            tables.StepValid(step) = true;
            for (int point = 0; point <= 5; ++point) Put_Point(step, point, float(point + 1), 1);
        }
    }

    static std::vector<float> Across(const std::vector<UserPoint>& points) {
        std::vector<float> xs;
        for (const UserPoint point : points) xs.push_back(point.x);
        return xs;
    }
};

double Length(UserPoint from, UserPoint to) {
    return std::hypot(double(to.x) - from.x, double(to.y) - from.y);
}

using Xs = std::vector<float>;

TEST_F(LinkShapesTest, OfAWattChainHaveThreeTernaryLinks) {
    Put_Pivots(10, 20, 5);
    Put_Row_Of_Points(0);
    model.LinkageType = "W";
    const auto shapes = Link_Shapes(*program, 0);
    ASSERT_EQ(shapes.size(), 5U);
    EXPECT_EQ(Across(shapes[0].corners), (Xs{0, 1}));      // O2 A
    EXPECT_EQ(Across(shapes[1].corners), (Xs{1, 2, 3}));   // A B C
    EXPECT_EQ(Across(shapes[2].corners), (Xs{10, 2, 4}));  // O4 B D
    EXPECT_EQ(Across(shapes[3].corners), (Xs{4, 5, 6}));   // D E F
    EXPECT_EQ(Across(shapes[4].corners), (Xs{20, 5}));     // O6 E
    EXPECT_EQ(Across(Moving_Joints(*program, 0)), (Xs{1, 2, 4, 5}));
}

TEST_F(LinkShapesTest, OfAStephensonChainHaveABarForLink4) {
    Put_Pivots(10, 20, 5);
    Put_Row_Of_Points(0);
    model.LinkageType = "S";
    EXPECT_EQ(Across(Link_Shapes(*program, 0)[2].corners), (Xs{10, 2}));
}

TEST_F(LinkShapesTest, OfAnyOtherChainAreStage1Alone) {
    Put_Row_Of_Points(0);
    model.LinkageType = "X";
    EXPECT_EQ(Link_Shapes(*program, 0).size(), 3U);
    EXPECT_EQ(Moving_Joints(*program, 0).size(), 2U);
    EXPECT_EQ(Fixed_Pivots(model).size(), 2U);
    EXPECT_TRUE(Coupler_Path(*program, 2).empty());
    EXPECT_EQ(Coupler_Path(*program, 1).size(), 1U);
}

TEST_F(LinkShapesTest, KeepTheLengthsOfTheModelInATurnedFrame) {
    Load_Example(model, *Find_Example("watt"));
    model.O4X = 0;
    model.O4Y = 9.375F;
    Turn_Ground(90);
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    for (std::int16_t step = 0; step <= 36; ++step) {
        const auto shapes = Link_Shapes(*program, step);
        EXPECT_NEAR(Length(shapes[0].corners[0], shapes[0].corners[1]), 2, kTurned) << step;
        EXPECT_NEAR(Length(shapes[1].corners[0], shapes[1].corners[1]), 8.625, kTurned) << step;
        EXPECT_NEAR(Length(shapes[2].corners[0], shapes[2].corners[2]), 8, kTurned) << step;
        EXPECT_NEAR(Length(shapes[4].corners[0], shapes[4].corners[1]), 8, kTurned) << step;
    }
}

TEST_F(LinkShapesTest, UnderACamDriveShowTheArmOfTheRoller) {
    Put_Row_Of_Points(0);
    model.CalcMode = 4;
    model.DriveArmLength = 4;
    model.DriveDatum = 30;
    tables.Theta(0, 0) = 60;
    const UserPoint arm = Link_Shapes(*program, 0)[0].corners.back();
    EXPECT_NEAR(arm.x, 0, kTurned);
    EXPECT_NEAR(arm.y, 4, kTurned);
}

TEST_F(LinkShapesTest, LeaveGapsInThePathsWhereStepsFailed) {
    Put_Row_Of_Points(6);
    tables.StepValid(0) = tables.StepValid(3) = tables.StepValid(4) = false;
    const auto runs = Coupler_Path(*program, 1);
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].size(), 2U);  // steps 1 and 2
    EXPECT_EQ(runs[1].size(), 2U);  // steps 5 and 6
}

TEST_F(LinkShapesTest, ReachAsFarAsTheirPivotsAndAssembledPoints) {
    Put_Pivots(10, 20, 5);
    Put_Row_Of_Points(2);
    model.LinkageType = "W";
    Put_Point(1, 2, -7, 9);
    Put_Point(2, 2, 500, 500);
    tables.StepValid(2) = false;
    const Extent extent = Motion_Extent(*program);
    EXPECT_EQ(extent.left, -7);
    EXPECT_EQ(extent.right, 20);
    EXPECT_EQ(extent.bottom, 0);
    EXPECT_EQ(extent.top, 9);
}

}  // namespace
}  // namespace kervol
