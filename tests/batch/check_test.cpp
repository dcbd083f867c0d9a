// SPDX-License-Identifier: GPL-3.0-or-later
// The command that tells how far the tables of a model can be trusted.
#include <cmath>

#include "batch/command_run.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

const nlohmann::json& Value_Named(const nlohmann::json& report, const std::string& name) {
    for (const auto& value : report["values"])
        if (value["name"] == name) return value;
    throw std::runtime_error("no value " + name);
}

TEST(CheckCommand, WritesAReport) {
    const CommandRun run = Batch({"check", "--example", "watt"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, StartsWith("Self-check of Kervol Watts Chain with Two Coupler Curves\n"));
    EXPECT_THAT(run.out, HasSubstr("none is damaged."));
}

TEST(CheckCommand, GivesTheTabulatedAndTheConsistentValuesOfEveryStepAsJson) {
    for (const char* example : {"watt", "roberts", "hoeken", "double-dwell"}) {
        const auto report = Batch({"check", "--example", example, "--json"}).Json();
        const auto tables = Batch({"tables", "--example", example, "--dynamics"}).Json();
        EXPECT_TRUE(report["tables_hold"]);
        EXPECT_EQ(report["complaint"], "");
        EXPECT_EQ(report["steps"].size(), tables["Theta"].size());
        const auto& torque = Value_Named(report, "Torque 12");
        EXPECT_EQ(torque["verdict"], "on purpose");
        ASSERT_EQ(torque["tabulated"].size(), tables["TorqueTable"].size());
        for (std::size_t step = 0; step < tables["TorqueTable"].size(); ++step) {
            EXPECT_EQ(torque["tabulated"][step].get<float>(), tables["TorqueTable"][step][0].get<float>());
            // Driving torque by crank speed is the rate of the kinetic energy less the power of the loads.
            const double drive = report["drive_power"][step];
            const double needed =
                report["kinetic_power"][step].get<double>() - report["load_power"][step].get<double>();
            EXPECT_NEAR(drive, needed, 1e-9 * (1 + std::abs(drive)));
            EXPECT_NEAR(drive,
                        torque["consistent"][step].get<double>() * tables["Omega"][step][0].get<double>(),
                        1e-9 * (1 + std::abs(drive)));
        }
        EXPECT_FALSE(Value_Named(report, "Omega3").contains("consistent")) << "agrees, so the tables have it";
        EXPECT_EQ(Value_Named(report, "Accel CG 5")["consistent"][0].size(), 2U) << "a vector";
    }
}

TEST(CheckCommand, NamesTheDeviationsOfTheModel) {
    const auto report = Batch({"check", "--example", "hoeken", "--json"}).Json();
    std::vector<std::string> names;
    for (const auto& deviation : report["deviations"]) names.push_back(deviation["name"]);
    EXPECT_THAT(names, ::testing::ElementsAre("Stage2Speeds", "Link5CG", "Transmission"));
    EXPECT_GT(std::abs(report["deviations"][1]["torque_change"].get<double>()), 0);
}

TEST(CheckCommand, WritesToAFileOnRequest) {
    Expect_Same_In_File({"check", "--example", "watt"});
}

TEST(CheckCommand, ReportsAModelOfWhichSomeStepsDoNotAssemble) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"check", Long_Crank_File(folder)});
    EXPECT_EQ(run.code, 3);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.out, HasSubstr("20 steps compared, 17 left out that do not assemble"));
}

TEST(CheckCommand, ReportsNothingWhereTheCalculationIsRefused) {
    const TemporaryFolder folder;
    const std::string path =
        Model_File(folder, "a.kvl", [](Program& program) { program.model.CalcMode = 9; });
    const CommandRun run = Batch({"check", path});
    EXPECT_EQ(run.code, 4);
    EXPECT_EQ(run.out, "");
    Expect_One_Line(run.err);
}

TEST(CheckCommand, NeedsOneModel) {
    EXPECT_EQ(Batch({"check"}).code, 1);
    EXPECT_EQ(Batch({"check", "a.kvl", "--example", "watt"}).code, 1);
    EXPECT_EQ(Batch({"check", "no such file.kvl"}).code, 2);
}

}  // namespace
}  // namespace kervol
