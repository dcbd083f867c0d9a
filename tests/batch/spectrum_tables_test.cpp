// SPDX-License-Identifier: GPL-3.0-or-later
// The Fourier transform beside the tables.
#include "batch/command_run.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using nlohmann::json;
using ::testing::HasSubstr;

json Spectrum_Of(std::vector<std::string> options) {
    options.insert(options.begin(), {"tables", "--example", "watt", "--fft"});
    const CommandRun run = Batch(options);
    EXPECT_EQ(run.code, 0) << run.err;
    return run.Json();
}

/// Mean of a column of the tables over the steps that are transformed.
double Mean(const json& tables, const char* table, const std::function<double(const json&)>& value) {
    const auto& rows = tables[table];
    double sum = 0;
    for (std::size_t step = 1; step < rows.size(); ++step) sum += value(rows[step]);
    return sum / double(rows.size() - 1);
}

TEST(SpectrumTables, AreThereOnlyWhenAskedFor) {
    const json tables = Batch({"tables", "--example", "watt"}).Json();
    EXPECT_FALSE(tables.contains("FFTTable"));
    EXPECT_FALSE(tables.contains("FFTHalf"));
}

TEST(SpectrumTables, HaveFourColumnsForHalfAsManyHarmonicsAsSteps) {
    const json tables = Spectrum_Of({"Theta3"});
    ASSERT_EQ(tables["NumSteps"], 36);
    EXPECT_EQ(tables["FFTHalf"], 18);
    ASSERT_EQ(tables["FFTTable"].size(), 18U);
    for (const json& row : tables["FFTTable"]) EXPECT_EQ(row.size(), 4U);
    const double mean = Mean(tables, "Theta", [](const json& row) { return row[1].get<double>(); });
    EXPECT_NEAR(tables["FFTTable"][0][0].get<double>(), mean, 1e-4);
}

TEST(SpectrumTables, AreOfTheComponentThatWasNamed) {
    const auto point = [](std::size_t coordinate) {
        return [coordinate](const json& row) { return row[2][coordinate].get<double>(); };
    };
    const json of_x = Spectrum_Of({"Cpler Pt-1"});
    EXPECT_NEAR(of_x["FFTTable"][0][0].get<double>(), Mean(of_x, "PointPos", point(0)), 1e-4);
    const json of_y = Spectrum_Of({"Cpler Pt-1", "--component", "Y"});
    EXPECT_NEAR(of_y["FFTTable"][0][0].get<double>(), Mean(of_y, "PointPos", point(1)), 1e-4);
}

TEST(SpectrumTables, ComputeForcesAndFlywheelForAFunctionThatNeedsThem) {
    const auto torque = [](const json& row) { return row[0].get<double>(); };
    const json of_torque = Spectrum_Of({"Torque 12", "--dynamics"});
    const double mean = Mean(of_torque, "TorqueTable", torque);
    EXPECT_NEAR(of_torque["FFTTable"][0][0].get<double>(), mean, 1e-5 * std::abs(mean));
    const json unasked = Spectrum_Of({"Torque 12"});
    EXPECT_EQ(unasked["FFTTable"], of_torque["FFTTable"]);
    EXPECT_FALSE(unasked.contains("TorqueTable"));
    // What a flywheel leaves has a twentieth of every harmonic of the torque, and the same mean over all
    // steps.
    const json with_flywheel = Spectrum_Of({"Flywl Torque"});
    const double whole = of_torque["FFTTable"][1][2].get<double>();
    EXPECT_NEAR(with_flywheel["FFTTable"][1][2].get<double>(), whole / 20, 1e-4 * whole);
}

TEST(SpectrumTables, OfAStephensonChainKnowItsNames) {
    const CommandRun run = Batch({"tables", "--example", "hoeken", "--fft", "Force 53"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(Batch({"tables", "--example", "watt", "--fft", "Force 53"}).code, 1);
}

TEST(SpectrumTables, OfAFunctionThatIsNoneAreWrongUse) {
    const std::pair<const char*, const char*> cases[] = {
        {"Theta 99", "\"Theta 99\" is no function of this chain"},
        {"theta3", "\"theta3\" is no function of this chain"},
        {"Current FFT", "\"Current FFT\" needs results that are not there yet"},
        {"", "needs the name of a function"},
    };
    for (const auto& [name, complaint] : cases) {
        const CommandRun run = Batch({"tables", "--example", "watt", "--fft", name});
        EXPECT_EQ(run.code, 1) << name;
        EXPECT_EQ(run.out, "") << name;
        Expect_One_Line(run.err);
        EXPECT_THAT(run.err, HasSubstr(complaint));
    }
}

TEST(SpectrumTables, AComponentNeedsAFunctionAndAName) {
    for (const std::vector<std::string>& options :
         {std::vector<std::string>{"--component", "Mag"}, {"--fft", "Theta3", "--component", "Z"}}) {
        std::vector<std::string> arguments = {"tables", "--example", "watt"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const CommandRun run = Batch(arguments);
        EXPECT_EQ(run.code, 1);
        Expect_One_Line(run.err);
        EXPECT_THAT(run.err, HasSubstr("--component"));
    }
}

TEST(SpectrumTables, OfOnePositionHaveNoRows) {
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "one.kvl", [](Program& program) { program.model.CalcMode = 1; });
    const json tables = Batch({"tables", model, "--fft", "Theta3"}).Json();
    EXPECT_EQ(tables["FFTHalf"], 0);
    EXPECT_EQ(tables["FFTTable"].size(), 0U);
}

TEST(SpectrumTables, OfACalculationThatWasGivenUpHaveNoRows) {
    const TemporaryFolder folder;
    const CommandRun run =
        Batch({"tables", Long_Crank_File(folder), "--on-failure", "abort", "--fft", "Theta3"});
    EXPECT_EQ(run.code, 4);
    EXPECT_EQ(run.Json()["FFTHalf"], 0);
    EXPECT_EQ(run.Json()["FFTTable"].size(), 0U);
}

TEST(SpectrumTables, OfTheLongestSweepHave512Rows) {
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "fine.kvl", [](Program& program) { program.model.ThetaStepDeg = 0.3515625F; });
    const json tables = Batch({"tables", model, "--fft", "Veloc CP-1", "--component", "Mag"}).Json();
    ASSERT_EQ(tables["NumSteps"], 1024);
    EXPECT_EQ(tables["FFTHalf"], 512);
    EXPECT_EQ(tables["FFTTable"].size(), 512U);
}

}  // namespace
}  // namespace kervol
