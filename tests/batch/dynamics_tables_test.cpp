// SPDX-License-Identifier: GPL-3.0-or-later
// Forces and flywheel in the JSON of the tables command: what is asked for, its numbers, how it ends.

#include "batch/command_run.h"
#include "dynamics/crank_torque_areas.h"
#include "dynamics/solve_forces.h"
#include "kinematics/examples.h"
#include "kinematics/step_count.h"
#include "support/program_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using nlohmann::json;
using ::testing::HasSubstr;

class DynamicsTables : public ProgramTest {
  protected:
    void Calculate_Example(const char* example) {
        Load_Example(model, *Find_Example(example));
        ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
        ASSERT_EQ(Run_Dynamics(*program), model.NumSteps + 1);
    }
};

TEST_F(DynamicsTables, HaveTheForcesAndTorquesOfEveryStep) {
    for (const char* example : {"watt", "roberts", "hoeken", "double-dwell"}) {
        Calculate_Example(example);
        const json result = Batch({"tables", "--example", example, "--dynamics"}).Json();
        ASSERT_EQ(result["ForceTable"].size(), static_cast<std::size_t>(model.NumSteps) + 1);
        ASSERT_EQ(result["TorqueTable"].size(), static_cast<std::size_t>(model.NumSteps) + 1);
        for (int step = 0; step <= model.NumSteps; ++step) {
            const json& force = result["ForceTable"][static_cast<std::size_t>(step)];
            const json& torque = result["TorqueTable"][static_cast<std::size_t>(step)];
            ASSERT_EQ(force.size(), 13U);
            ASSERT_EQ(torque.size(), 7U);
            for (std::size_t i = 0; i < 13; ++i)
                for (std::size_t part = 0; part < 2; ++part)
                    EXPECT_EQ(force[i][part].get<float>(),
                              tables.ForceTable(step, static_cast<int>(i), static_cast<int>(part)));
            for (std::size_t i = 0; i < 7; ++i)
                EXPECT_EQ(torque[i].get<float>(), tables.TorqueTable(step, static_cast<int>(i)));
            for (std::size_t point = 6; point <= 10; ++point)
                EXPECT_EQ(result["PointAcc"][static_cast<std::size_t>(step)][point][0].get<float>(),
                          tables.PointAcc(step, static_cast<int>(point), 0));
        }
        EXPECT_EQ(result["model"]["DynamicsCalculated"], true);
        EXPECT_EQ(result["messages"], json::array());
    }
}

TEST_F(DynamicsTables, AreThereWhereTheyAreAskedFor) {
    const struct {
        std::vector<std::string> options;
        bool forces, flywheel;
    } cases[] = {{{}, false, false},
                 {{"--dynamics"}, true, false},
                 {{"--flywheel"}, false, true},
                 {{"--flywheel", "--fluct", "0.5"}, false, true},
                 {{"--flywheel", "--dynamics"}, true, true}};
    for (const auto& [options, forces, flywheel] : cases) {
        std::vector<std::string> words = {"tables", "--example", "watt"};
        words.insert(words.end(), options.begin(), options.end());
        const json result = Batch(words).Json();
        EXPECT_EQ(result.contains("ForceTable"), forces);
        EXPECT_EQ(result.contains("TorqueTable"), forces);
        EXPECT_EQ(result.contains("FlywheelTorque"), flywheel);
        EXPECT_EQ(result.contains("Flywheel"), flywheel);
        EXPECT_EQ(result["model"]["FlywheelCalculated"], flywheel);
    }
}

TEST_F(DynamicsTables, UseTheLinkDataOfTheModel) {
    const TemporaryFolder folder;
    const std::string path = Model_File(folder, "a.kvl", [](Program& file) {
        file.model.LinkMass.Fill(0);
        file.model.LinkInertia.Fill(0);
        file.model.ForceMag(4) = 10;
        file.model.ForceAngle(4) = 90;
        file.model.LinkTorque(6) = -4;
    });
    const json result = Batch({"tables", path, "--dynamics"}).Json();
    EXPECT_NEAR(result["model"]["ForceY"][4].get<double>(), 10, 1e-6);
    for (const json& step : result["TorqueTable"]) EXPECT_EQ(step[5], -4);
    // With no masses the ground bears the load alone.
    for (const json& step : result["ForceTable"]) EXPECT_NEAR(step[7][1].get<double>(), 10, 1e-4);
}

TEST_F(DynamicsTables, HaveTheFlywheelOfTheCoefficientGiven) {
    Calculate_Example("watt");
    const struct {
        std::vector<std::string> options;
        float fluctuation;
    } cases[] = {{{}, 0.05F}, {{"--fluct", "0.2"}, 0.2F}, {{"--fluct", "3"}, 3}};
    for (const auto& [options, fluctuation] : cases) {
        std::vector<std::string> words = {"tables", "--example", "watt", "--flywheel"};
        words.insert(words.end(), options.begin(), options.end());
        const json result = Batch(words).Json();
        model.CoefFluct = fluctuation;
        CrankTorqueAreas areas;
        Crank_Torque_Areas(*program, areas);
        EXPECT_EQ(result["model"]["CoefFluct"].get<float>(), fluctuation);
        const json& flywheel = result["Flywheel"];
        EXPECT_EQ(flywheel.size(), 6U);
        EXPECT_EQ(flywheel["Average"].get<float>(), areas.Average);
        EXPECT_EQ(flywheel["FirstSign"], areas.FirstSign);
        EXPECT_EQ(flywheel["NPulses"], areas.NPulses);
        EXPECT_EQ(flywheel["Text"], areas.Text);
        ASSERT_EQ(flywheel["PosArea"].size(), 11U);
        ASSERT_EQ(flywheel["NegArea"].size(), 11U);
        for (std::size_t i = 0; i <= 10; ++i) {
            EXPECT_EQ(flywheel["PosArea"][i].get<float>(), areas.PosArea(static_cast<int>(i)));
            EXPECT_EQ(flywheel["NegArea"][i].get<float>(), areas.NegArea(static_cast<int>(i)));
        }
        ASSERT_EQ(result["FlywheelTorque"].size(), 37U);
        for (std::size_t step = 0; step <= 36; ++step)
            EXPECT_EQ(result["FlywheelTorque"][step].get<float>(),
                      tables.FlywheelTorque(static_cast<int>(step)));
    }
}

TEST_F(DynamicsTables, EndAtASingularStepThatDoesNotAssemble) {
    const TemporaryFolder folder;
    const std::string path = Model_File(folder, "long.kvl", [](Program& file) {
        file.model.Link2 = 12;
        for (int link = 2; link <= NumLinks; ++link) file.model.LinkCG(link, 1) = 0;
    });
    const CommandRun run = Batch({"tables", path, "--dynamics"});
    EXPECT_EQ(run.code, 3);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("17 of 37 steps do not assemble"));
    EXPECT_THAT(run.err, HasSubstr("the force equations of step 10 have no solution"));
    const json result = run.Json();
    const json& messages = result["messages"];
    ASSERT_EQ(messages.size(), 4U) << "read, not assembled, singular, stopped";
    EXPECT_THAT(messages[2]["text"], HasSubstr("There is a zero value on diagonal in column "));
    EXPECT_EQ(messages[2]["icon"], "none");
    EXPECT_EQ(messages[3], json({{"text", "Error in Computing Simultaneous Equations at step    10"},
                                 {"icon", "question"},
                                 {"buttons", "OK"},
                                 {"answer", 1}}));
    EXPECT_NE(result["TorqueTable"][9][0], 0);
    for (std::size_t step = 10; step <= 36; ++step) EXPECT_EQ(result["TorqueTable"][step][0], 0);
    EXPECT_EQ(result["model"]["DynamicsCalculated"], true);
}

TEST_F(DynamicsTables, AreGivenUpForAChainWithoutEquations) {
    const TemporaryFolder folder;
    const std::string path = Model_File(folder, "a.kvl", [](Program& file) { file.model.LinkageType = "X"; });
    EXPECT_EQ(Batch({"tables", path}).code, 0);
    const CommandRun run = Batch({"tables", path, "--dynamics"});
    EXPECT_EQ(run.code, 4);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("the force equations of step 0 have no solution"));
}

TEST_F(DynamicsTables, StayZeroWhereTheMotionWasGivenUp) {
    const TemporaryFolder folder;
    const CommandRun run =
        Batch({"tables", Long_Crank_File(folder), "--dynamics", "--flywheel", "--on-failure", "abort"});
    EXPECT_EQ(run.code, 4);
    const json result = run.Json();
    EXPECT_EQ(result["ForceTable"].size(), 37U);
    EXPECT_EQ(result["TorqueTable"][0][0], 0);
    EXPECT_EQ(result["Flywheel"]["Text"], json::array());
    EXPECT_EQ(result["model"]["DynamicsCalculated"], false);
    EXPECT_EQ(result["messages"].size(), 2U);
}

TEST_F(DynamicsTables, ANumberTooLargeIsANumericFault) {
    const TemporaryFolder folder;
    const std::string path =
        Model_File(folder, "a.kvl", [](Program& file) { file.model.LinkMass(4) = 3e38F; });
    const CommandRun run = Batch({"tables", path, "--dynamics"});
    EXPECT_EQ(run.code, 2);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("Overflow in Solve_Forces"));
}

TEST_F(DynamicsTables, TooManyPulsesAreTold) {
    const TemporaryFolder folder;
    // Twenty turns: more pulses than the table has entries.
    const std::string path = Model_File(folder, "a.kvl", [](Program& file) {
        file.model.ThetaMaxDeg = 7200;
        file.model.ThetaStepDeg = 20;
    });
    const CommandRun run = Batch({"tables", path, "--flywheel"});
    EXPECT_EQ(run.code, 2);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("Flywheel"));
    EXPECT_THAT(run.err, HasSubstr("reduce the range to one cycle"));
    EXPECT_EQ(run.Json()["Flywheel"]["NPulses"], 0);
    EXPECT_EQ(run.Json()["model"]["FlywheelCalculated"], true);
}

}  // namespace
}  // namespace kervol
