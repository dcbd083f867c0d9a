// SPDX-License-Identifier: GPL-3.0-or-later
// Single combinations: their numbers are those of a calculation of the whole model, and failures are told.
#include "study/study.h"

#include "core/geometry.h"
#include "dynamics/crank_torque_areas.h"
#include "dynamics/solve_forces.h"
#include "kinematics/step_count.h"
#include "study/study_fixture.h"
#include "support/random_linkage.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

const std::vector<std::string> kMotion = {"max(Omega6)",          "range(Theta6)",    "min(\"Trans Ang-1\")",
                                          "max(\"Trans Ang-2\")", "peak(V-Ratio-1)",  "rms(MchAdv-2)",
                                          "mean(Theta4)",         "dwell(Theta6, 3)", "max(Theta2)"};
const std::vector<std::string> kForces = {"peak(\"Torque 12\")", "rms(\"F Shaking\":Mag)",
                                          "max(\"Accel CG 5\":Ang)", "min(\"Force 14\":Y)",
                                          "max(\"Flywl Torque\")"};

class StudySolverTest : public StudyTest {
  protected:
    /// The measures of the program's own model, calculated whole.
    std::vector<float> Whole(const StudyPlan& plan, const LinkageModel& of) {
        IgnoringPort ignoring;
        const auto whole = std::make_unique<Program>(ignoring);
        whole->catalogue = program->catalogue;
        whole->tables = tables;
        whole->model = of;
        Calculate_Model(*whole);
        FlywheelSizing sizing;
        if (whole->faults.entries.empty()) {
            Run_Dynamics(*whole);
            Size_Flywheel(*whole, sizing);
        }
        std::vector<float> values, series;
        for (const Measure& measure : plan.measures) values.push_back(measure.Of(*whole, series));
        return values;
    }
};

TEST_F(StudySolverTest, GivesTheValuesOfTheFieldsInTheirOrderTheFirstSlowest) {
    const StudyPlan plan = Plan({"Link2=1:2:0.5", "Delta5Deg=10:20:10"}, {"max(Theta2)"});
    ASSERT_EQ(plan.Combinations(), 6U);
    std::vector<std::string> starts;
    for (std::uint64_t number = 0; number < 6; ++number) {
        const std::string line = Study_Line(plan, Solve(plan, number));
        starts.push_back(line.substr(0, line.find(',', line.find(',') + 1)));
    }
    EXPECT_THAT(starts, ::testing::ElementsAre("1,10", "1,20", "1.5,10", "1.5,20", "2,10", "2,20"));
}

TEST_F(StudySolverTest, NumbersAreThoseOfTheWholeCalculation) {
    for (const auto* measures : {&kMotion, &kForces}) {
        const StudyPlan plan = Plan({"Link2=1.5:2.5:0.5", "Delta3Deg=30:60:15"}, *measures);
        for (std::uint64_t number = 0; number < 9; ++number) {
            LinkageModel edited = model;
            edited.Link2 = 1.5F + 0.5F * static_cast<float>(number / 3);
            edited.Delta3Deg = 30.0F + 15.0F * static_cast<float>(number % 3);
            Set_Offset_Angles(edited);
            Derive_Geometry(edited);
            const StudyRow row = Solve(plan, number);
            EXPECT_EQ(row.outcome, "ok");
            EXPECT_EQ(row.steps, 37);
            EXPECT_EQ(row.values, Whole(plan, edited)) << number;
        }
    }
}

TEST_F(StudySolverTest, NumbersAreThoseOfTheWholeCalculationInEveryDriveMode) {
    for (std::int16_t mode = 1; mode <= 5; ++mode) {
        model.CalcMode = mode;
        model.NumSteps = 36;
        for (int step = 0; step <= 36; ++step) {
            tables.DriveTheta(step) = static_cast<float>(5 * step);
            tables.Omega(step, 0) = static_cast<float>(step);
            tables.Alpha(step, 0) = static_cast<float>(3 * step);
        }
        model.DriveScale = 1;
        model.TimeEnd = 1;
        const StudyPlan plan = Plan({"Link5=6:8:1"}, {"max(Omega6)", "peak(Alpha6)", "range(Theta6)"});
        StudySolver solver(plan, *program, std::make_unique<IgnoringPort>());
        // Backwards, so that a row that was left over from another combination would show.
        for (std::uint64_t number : {2U, 1U, 0U}) {
            LinkageModel edited = model;
            edited.Link5 = 6.0F + static_cast<float>(number);
            Derive_Geometry(edited);
            EXPECT_EQ(solver.Solve(number).values, Whole(plan, edited)) << "mode " << mode;
        }
    }
}

TEST_F(StudySolverTest, NumbersOfRandomLinkagesAreThoseOfTheWholeCalculation) {
    RandomLinkages random(5);
    int solved = 0, failed = 0;
    for (int linkage = 0; linkage < 400; ++linkage) {
        const bool watt = linkage % 2 == 0;
        random.Next(model, watt ? "W" : "S");
        Change_Catalog_Labels(program->catalogue, model.LinkageType);
        model.AngleRange = linkage % 3 == 0 ? "abs" : linkage % 3 == 1 ? "180" : "free";
        model.Omega2Start = random.Between(-20, 20);
        model.ThetaMinDeg = random.Between(-200, 200);
        model.ThetaMaxDeg = model.ThetaMinDeg + random.Between(5, 100);
        model.ThetaStepDeg = random.Between(0.5F, 7);
        const StudyPlan plan = Plan({"CouplerAC=3:3:1"}, kMotion);
        LinkageModel edited = model;
        edited.CouplerAC = 3;
        Derive_Geometry(edited);
        const StudyRow row = Solve(plan, 0);
        if (!row.Is_Ok()) {
            ++failed;
            continue;
        }
        ++solved;
        EXPECT_EQ(row.values, Whole(plan, edited)) << linkage;
    }
    EXPECT_GT(solved, 60);
    EXPECT_GT(failed, 60);
}

TEST_F(StudySolverTest, APositionThatDoesNotAssembleIsToldWithoutValues) {
    // Links 12, 8.625, 7 and 9.375: rows 10 to 26 of 37 do not assemble.
    const StudyPlan plan = Plan({"Link2=12:12:1"}, {"max(Omega6)", "min(Omega6)"});
    const StudyRow row = Solve(plan, 0);
    EXPECT_FALSE(row.Is_Ok());
    EXPECT_EQ(Study_Line(plan, row), "12,,,17 of 37 steps do not assemble\r\n");
}

TEST_F(StudySolverTest, AFaultIsToldWithTheProcedureItOccurredIn) {
    const StudyPlan plan = Plan({"Link2=0:2:2"}, {"max(Omega6)"});
    StudySolver solver(plan, *program, std::make_unique<IgnoringPort>());
    EXPECT_EQ(solver.Solve(0).outcome, "Division by zero in Calculate");
    EXPECT_EQ(solver.Solve(1).outcome, "ok") << "the one before leaves nothing behind";
}

TEST_F(StudySolverTest, ARefusedNumberOfStepsIsTold) {
    const StudyPlan plan = Plan({"ThetaStepDeg=0:0.1:0.1"}, {"max(Omega6)"});
    EXPECT_EQ(Solve(plan, 0).outcome, "refused: its number of steps");
    EXPECT_EQ(Solve(plan, 1).outcome, "refused: its number of steps");
}

TEST_F(StudySolverTest, SingularForcesAreTold) {
    // Without a length of link 5's arms to turn about, the equations of its moment are empty.
    model.LinkageType = "X";
    const StudyPlan plan = Plan({"Link2=2:2:1"}, {"peak(\"Torque 12\")"});
    EXPECT_EQ(Solve(plan, 0).outcome, "no forces from step 0 on");
}

TEST_F(StudySolverTest, HeadsAreQuotedWhereTheyHoldACommaOrAQuote) {
    EXPECT_EQ(
        Study_Heads(Plan({"Link2=1:2:1", "LinkCG(3,0)=1:2:1"}, {"max(Omega6)", "rms(\"F Shaking\":Mag)"})),
        "Link2,\"LinkCG(3,0)\",max(Omega6),\"rms(\"\"F Shaking\"\":Mag)\",Outcome\r\n");
}

TEST_F(StudySolverTest, MoreCombinationsThan64BitsCountAreNotCounted) {
    const std::string many = "=0:1000000:0.001";
    EXPECT_EQ(Plan({"Link2" + many, "Link3" + many}, {}).Combinations(), 1000000001ULL * 1000000001ULL);
    EXPECT_FALSE(Plan({"Link2" + many, "Link3" + many, "Link4" + many}, {}).Combinations());
}

}  // namespace
}  // namespace kervol
