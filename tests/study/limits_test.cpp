// SPDX-License-Identifier: GPL-3.0-or-later
// Ranges of the crank, what ends them, dead centres and transmission, against angles worked out by hand and
// against the sweep.
#include "study/limits.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "kinematics/stage1.h"
#include "kinematics/stage2.h"
#include "support/program_test.h"
#include "support/random_linkage.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

double Degrees(double radians) {
    return radians * 180 / std::numbers::pi;
}

/// Angle between sides b and c of a triangle with the side a opposite.
double Corner(double a, double b, double c) {
    return Degrees(std::acos((b * b + c * c - a * a) / (2 * b * c)));
}

/// A fresh program holds the Watt example: links 9.375, 2, 8.625, 7, ground angle 0, all open.
class LimitsTest : public ProgramTest {
  protected:
    static bool Holds(const std::vector<CrankRange>& ranges, double crank) {
        return std::any_of(ranges.begin(), ranges.end(), [&](const CrankRange& range) {
            return (crank >= range.from && crank <= range.to) ||
                   (crank + 360 >= range.from && crank + 360 <= range.to);
        });
    }
    /// Nearness of a crank angle to an end of a range.
    static double To_End(const std::vector<CrankRange>& ranges, double crank) {
        double nearest = 360;
        for (const CrankRange& range : ranges)
            for (const double end : {range.from, range.to})
                nearest = std::min(nearest, std::abs(std::remainder(crank - end, 360)));
        return nearest;
    }
    /// The solution that `Calculate` uses; 0 or the stage that fails.
    int Failing(double crank) {
        model.Theta2Rad = static_cast<float>((crank - model.GroundAngleDeg) * RadiansPerDegree);
        try {
            const auto stage1 = Solve_Stage1(model);
            if (!stage1) return 1;
            const auto stage2 =
                model.LinkageType == "W" ? Solve_Watt(model, *stage1) : Solve_Stephenson(model, *stage1);
            return stage2 ? 0 : 2;
        } catch (const Fault&) {
            return -1;
        }
    }
};

TEST_F(LimitsTest, AGrashofCrankMakesAFullTurn) {
    const Limits limits = Find_Limits(model);
    ASSERT_THAT(limits.stages, SizeIs(2));
    for (const StageLimits& stage : limits.stages) {
        ASSERT_THAT(stage.usable, SizeIs(1));
        EXPECT_TRUE(Is_Full_Turn(stage.usable[0]));
        EXPECT_THAT(stage.obstacles, IsEmpty());
    }
}

TEST_F(LimitsTest, DeadCentresStandWhereCrankAndCouplerAreInLine) {
    // O2-B is a + b stretched and b - a folded; the crank then points along it or against it.
    const double stretched = Corner(7, 2 + 8.625, 9.375);
    const double folded = Corner(7, 8.625 - 2, 9.375) + 180;
    const auto dead = Find_Limits(model).stages[0].dead_centres;
    ASSERT_THAT(dead, SizeIs(2));
    EXPECT_NEAR(dead[0].crank, stretched, 1e-3);
    EXPECT_NEAR(dead[1].crank, folded, 1e-3);
    // The rocker makes these angles with the ground link, seen from O4.
    EXPECT_NEAR(dead[0].output, 180 - Corner(2 + 8.625, 7, 9.375), 1e-3);
    EXPECT_NEAR(dead[1].output, 180 - Corner(8.625 - 2, 7, 9.375), 1e-3);
}

TEST_F(LimitsTest, TheTransmissionAngleOfStage1IsThatOfTheTriangleOverTheDistanceAO4) {
    const StageLimits stage = Find_Limits(model).stages[0];
    ASSERT_TRUE(stage.least && stage.greatest);
    EXPECT_NEAR(stage.least->angle, Corner(9.375 - 2, 8.625, 7), 1e-3);
    EXPECT_NEAR(std::remainder(stage.least->crank, 360), 0, 0.02);
    EXPECT_NEAR(stage.greatest->angle, 90, 1e-3);
}

TEST_F(LimitsTest, ALongCrankStopsWhereLinks3And4AreStretched) {
    model.Link2 = 12;
    const double limit = Degrees(std::acos((144 + 9.375 * 9.375 - 15.625 * 15.625) / (2 * 12 * 9.375)));
    const StageLimits stage = Find_Limits(model).stages[0];
    ASSERT_THAT(stage.usable, SizeIs(1));
    EXPECT_NEAR(stage.usable[0].from, 360 - limit, 0.01);
    EXPECT_NEAR(stage.usable[0].to, 360 + limit, 0.01);
    ASSERT_THAT(stage.obstacles, SizeIs(1));
    const Obstacle& obstacle = stage.obstacles[0];
    EXPECT_EQ(obstacle.why, Misfit::TooShort);
    EXPECT_NEAR(obstacle.range.from, limit, 0.01);
    EXPECT_NEAR(obstacle.range.to, 360 - limit, 0.01);
    EXPECT_DOUBLE_EQ(obstacle.reach, 15.625);
    EXPECT_NEAR(obstacle.distance, 12 + 9.375, 1e-5);
    EXPECT_NEAR(obstacle.at, 180, 0.01);
    EXPECT_EQ(Obstacle_Text(model, obstacle),
              "link 3 and link 4 together, 15.625 in, are too short for the distance A-O4, which grows to "
              "21.375 in at 180.00 deg");
    EXPECT_DOUBLE_EQ(stage.least->angle, 0);
}

TEST_F(LimitsTest, ALongCouplerStopsTheCrankWhereItLiesOverLink4) {
    // The distance A-O4, 7.375 at least, has to be 15 - 7 = 8 at least.
    model.Link3 = 15;
    const double limit = Degrees(std::acos((4 + 9.375 * 9.375 - 64) / (2 * 2 * 9.375)));
    const StageLimits stage = Find_Limits(model).stages[0];
    ASSERT_THAT(stage.usable, SizeIs(1));
    EXPECT_NEAR(stage.usable[0].from, limit, 0.01);
    EXPECT_NEAR(stage.usable[0].to, 360 - limit, 0.01);
    ASSERT_THAT(stage.obstacles, SizeIs(1));
    EXPECT_EQ(stage.obstacles[0].why, Misfit::TooLong);
    EXPECT_EQ(
        Obstacle_Text(model, stage.obstacles[0]),
        "link 3 is too long: it exceeds link 4 by 8.000 in, the distance A-O4 falls to 7.375 in at 0.00 "
        "deg");
}

TEST_F(LimitsTest, AnglesAreThoseThatAPersonEntersWhereTheGroundLinkIsTurned) {
    model.Link2 = 12;
    const CrankRange straight = Find_Limits(model).stages[0].usable[0];
    Place_Pivots(model, 9.375F * std::cos(0.5F), 9.375F * std::sin(0.5F), model.O6X, model.O6Y);
    const CrankRange turned = Find_Limits(model).stages[0].usable[0];
    EXPECT_NEAR(turned.from, straight.from + Degrees(0.5), 0.02);
    EXPECT_NEAR(turned.Width(), straight.Width(), 0.02);
}

TEST_F(LimitsTest, AShortLink5StopsTheSecondStageAlone) {
    // Over a distance D-O6 of 6.02 to 9.11 links 1 and 8 are first too unlike and then too short.
    model.Link5 = 1;
    const Limits limits = Find_Limits(model);
    EXPECT_TRUE(Is_Full_Turn(limits.stages[0].usable[0]));
    EXPECT_THAT(limits.stages[0].obstacles, IsEmpty());
    const auto has = [&](Misfit why) {
        const auto& obstacles = limits.stages[1].obstacles;
        return std::any_of(obstacles.begin(), obstacles.end(),
                           [&](const Obstacle& each) { return each.why == why; });
    };
    EXPECT_TRUE(has(Misfit::TooLong));
    EXPECT_TRUE(has(Misfit::TooShort));
    for (const Obstacle& obstacle : limits.stages[1].obstacles) {
        EXPECT_EQ(obstacle.stage, 2);
        EXPECT_NE(obstacle.why, Misfit::InLine);
        EXPECT_THAT(Obstacle_Text(model, obstacle), HasSubstr("D-O6"));
    }
}

TEST_F(LimitsTest, AParallelogramIsIndeterminateWhereItsLinksAreInLine) {
    model.Link2 = model.Link4 = 3;
    model.Link3 = model.Link1 = 9.375F;
    const Limits limits = Find_Limits(model);
    EXPECT_TRUE(Is_Full_Turn(limits.stages[0].usable[0]));
    ASSERT_FALSE(limits.stages[0].obstacles.empty());
    for (const Obstacle& obstacle : limits.stages[0].obstacles) {
        EXPECT_EQ(obstacle.why, Misfit::InLine);
        EXPECT_NEAR(std::remainder(obstacle.at, 180), 0, 0.02);
    }
    EXPECT_THAT(limits.warnings, ::testing::Contains(HasSubstr("in line")));
}

TEST_F(LimitsTest, ALinkageThatNeverClosesHasNoRange) {
    model.Link3 = 1;
    model.Link4 = 1;
    const Limits limits = Find_Limits(model);
    EXPECT_THAT(limits.stages[0].usable, IsEmpty());
    EXPECT_THAT(limits.stages[1].usable, IsEmpty());
    ASSERT_THAT(limits.stages[0].obstacles, SizeIs(1));
    EXPECT_DOUBLE_EQ(limits.stages[0].obstacles[0].range.Width(), 360);
    EXPECT_FALSE(limits.stages[0].least);
    EXPECT_THAT(limits.warnings, ::testing::ElementsAre(HasSubstr("cannot be assembled at any position")));
}

TEST_F(LimitsTest, AChainWithoutAStage2HasOneStage) {
    model.LinkageType = "X";
    EXPECT_THAT(Find_Limits(model).stages, SizeIs(1));
}

TEST_F(LimitsTest, ALengthOfZeroIsTheFaultThatASweepWouldReport) {
    for (float LinkageModel::*length : {&LinkageModel::Link2, &LinkageModel::Link4, &LinkageModel::LinkO4D,
                                        &LinkageModel::Link5, &LinkageModel::Link6}) {
        LinkageModel broken = model;
        broken.*length = 0;
        try {
            Find_Limits(broken);
            ADD_FAILURE() << "no fault";
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number, fault::DivisionByZero);
        }
    }
}

TEST_F(LimitsTest, ADriveBeyondTheRangeIsWarnedOf) {
    model.Link2 = 12;
    model.ThetaMinDeg = -90;
    model.ThetaMaxDeg = 90;
    EXPECT_THAT(Find_Limits(model).warnings, ::testing::Not(::testing::Contains(HasSubstr("leaves"))));
    model.ThetaMaxDeg = 95;
    EXPECT_THAT(Find_Limits(model).warnings,
                ::testing::Contains("The drive from -90 to 95 deg leaves the usable range."));
}

TEST_F(LimitsTest, TheDriveIsWhatTheModeMakesOfIt) {
    model.CalcMode = 1;
    model.Theta2One = -30;
    EXPECT_NEAR(Driven_Range(model)->from, 330, 1e-9);
    EXPECT_NEAR(Driven_Range(model)->Width(), 0, 1e-9);
    model.CalcMode = 3;
    model.ThetaMinDeg = 180;
    model.ThetaMaxDeg = 900;
    EXPECT_NEAR(Driven_Range(model)->from, 180, 1e-9);
    EXPECT_NEAR(Driven_Range(model)->Width(), 360, 1e-9);
    model.CalcMode = 4;
    EXPECT_FALSE(Driven_Range(model));
}

/// Thrown up at 2 rad/s against 1 rad/s^2 from 10 degrees: 2 rad on it turns back, after 5 s it is 2.5 rad
/// below the start.
TEST_F(LimitsTest, ADriveOverTimeHoldsTheAngleAtWhichItTurnsBack) {
    model.CalcMode = 2;
    model.Theta2One = 10;
    model.Omega2Start = 2;
    model.Alpha2Const = -1;
    model.TimeStart = 0;
    model.TimeEnd = 5;
    const CrankRange drive = Driven_Range(model).value();
    // The program's own constant for degrees has ten digits.
    EXPECT_NEAR(drive.from, 10 - Degrees(2.5) + 360, 1e-7);
    EXPECT_NEAR(drive.Width(), Degrees(4.5), 1e-7);
    EXPECT_TRUE(kervol::Holds(drive, 10 + Degrees(1.99)));
    EXPECT_FALSE(kervol::Holds(drive, 10 + Degrees(2.01)));
    EXPECT_TRUE(kervol::Holds(drive, 10 - Degrees(2.49)));
    EXPECT_FALSE(kervol::Holds(drive, 10 - Degrees(2.51)));
}

/// Over A-O4 of length sqrt(12^2 + 9.375^2 - 2 12 9.375 cos 60) links 3 and 4 make the angle that they make
/// at both ends of the drive; between them A is nearer to O4.
TEST_F(LimitsTest, TheTransmissionAngleThatCountsIsThatWithinTheDrive) {
    model.Link2 = 12;
    model.ThetaMinDeg = -60;
    model.ThetaMaxDeg = 60;
    const Limits limits = Find_Limits(model);
    const double distance = std::sqrt(12 * 12 + 9.375 * 9.375 - 12 * 9.375);
    const double corner = Corner(distance, 8.625, 7);
    const double nearest = Corner(12 - 9.375, 8.625, 7);
    EXPECT_NEAR(limits.stages[0].least->angle, 0, 1e-9);
    EXPECT_NEAR(limits.stages[0].least_driven->angle, std::min({corner, 180 - corner, nearest}), 0.01);
    model.ThetaMaxDeg = 100;
    EXPECT_NEAR(Find_Limits(model).stages[0].least_driven->angle, 0, 1e-9);
    model.ThetaMinDeg = model.ThetaMaxDeg = 180;
    EXPECT_FALSE(Find_Limits(model).stages[0].least_driven);
}

TEST_F(LimitsTest, DeadCentresOfADrivenCrankAreNoWarning) {
    const Limits limits = Find_Limits(model);
    EXPECT_THAT(limits.stages[0].dead_centres, SizeIs(2));
    EXPECT_THAT(limits.warnings, IsEmpty());
}

class LimitLaws : public LimitsTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(LimitLaws, RangesHoldExactlyTheAnglesThatTheSolutionCloses) {
    RandomLinkages random(77);
    int solved = 0, failed = 0;
    for (int linkage = 0; linkage < 60; ++linkage) {
        random.Next(model, GetParam());
        const Limits limits = Find_Limits(model);
        for (int i = 0; i < 400; ++i) {
            const double crank = random.Between(0, 360);
            const int failing = Failing(crank);
            SCOPED_TRACE(testing::Message() << "linkage " << linkage << " at " << crank);
            for (const std::size_t stage : {0U, 1U}) {
                const auto& usable = limits.stages[stage].usable;
                const bool closes = failing == 0 || failing > static_cast<int>(stage) + 1;
                if (To_End(usable, crank) < 0.015) continue;
                EXPECT_EQ(Holds(usable, crank), closes) << "stage " << stage + 1;
                ++(closes ? solved : failed);
            }
        }
    }
    EXPECT_GT(solved, 2000);
    EXPECT_GT(failed, 2000);
}

TEST_P(LimitLaws, TheOutputTurnsBackAtADeadCentreAndNowhereElse) {
    RandomLinkages random(78);
    int centres = 0;
    for (int linkage = 0; linkage < 60; ++linkage) {
        random.Next(model, GetParam());
        const Limits limits = Find_Limits(model);
        const auto output = [&](double crank, std::size_t stage) {
            if (const int failing = Failing(crank); failing != 0) return std::nan("");
            const auto stage1 = Solve_Stage1(model);
            if (stage == 0) return stage1->theta4;
            return model.LinkageType == "W" ? Solve_Watt(model, *stage1)->theta6
                                            : Solve_Stephenson(model, *stage1)->theta6;
        };
        for (const std::size_t stage : {0U, 1U})
            for (const DeadCentre& dead : limits.stages[stage].dead_centres) {
                const double before = output(dead.crank - 0.5, stage), at = output(dead.crank, stage),
                             after = output(dead.crank + 0.5, stage);
                if (std::isnan(before + at + after)) continue;
                const double first = std::remainder(at - before, 2 * std::numbers::pi);
                const double second = std::remainder(after - at, 2 * std::numbers::pi);
                EXPECT_LT(first * second, 0) << "linkage " << linkage << " at " << dead.crank;
                EXPECT_NEAR(std::remainder(Degrees(at) + model.GroundAngleDeg - dead.output, 360), 0, 0.01);
                ++centres;
            }
    }
    EXPECT_GT(centres, 50);
}

INSTANTIATE_TEST_SUITE_P(Chains, LimitLaws, ::testing::Values("W", "S"));

}  // namespace
}  // namespace kervol
