// SPDX-License-Identifier: GPL-3.0-or-later
// The command `limits`.
#include "batch/command_run.h"
#include "support/golden.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;

TEST(LimitsCommand, TellsRangesAndWhatEndsThem) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"limits", Long_Crank_File(folder)});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out,
                HasSubstr("Usable                    266.88 to 93.12 deg over 0, 186.24 deg wide\n"));
    EXPECT_THAT(run.out,
                HasSubstr("link 3 and link 4 together, 15.625 in, are too short for the distance A-O4, "
                          "which grows to 21.375 in at 180.00 deg"));
    EXPECT_THAT(run.out, HasSubstr("The drive from 0 to 360 deg leaves the usable range."));
}

TEST(LimitsCommand, OfTheExamplesReadsAsOneHasSeenIt) {
    for (const char* example : {"watt", "hoeken"}) {
        const CommandRun run = Batch({"limits", "--example", example});
        EXPECT_EQ(run.code, 0);
        Expect_Golden(std::string("limits_") + example + ".txt", run.out);
    }
}

TEST(LimitsCommand, AgreesWithTheSweepOnWhichStepsAssemble) {
    const TemporaryFolder folder;
    const std::string model = Long_Crank_File(folder);
    const auto limits = Batch({"limits", model, "--json"}).Json();
    const auto tables = Batch({"tables", model}).Json();
    for (std::size_t step = 0; step <= 36; ++step) {
        const double crank = 10.0 * static_cast<double>(step);
        bool usable = false;
        for (const auto& range : limits["Stages"][1]["Usable"])
            for (const double turned : {crank, crank + 360})
                usable =
                    usable || (turned >= range["From"].get<double>() && turned <= range["To"].get<double>());
        EXPECT_EQ(usable, tables["StepValid"][step].get<bool>()) << crank;
    }
}

TEST(LimitsCommand, GivesTheSameAsJson) {
    const TemporaryFolder folder;
    const auto json = Batch({"limits", Long_Crank_File(folder), "--json"}).Json();
    ASSERT_EQ(json["Stages"].size(), 2U);
    const auto stage = json["Stages"][0];
    ASSERT_EQ(stage["Obstacles"].size(), 1U);
    EXPECT_EQ(stage["Obstacles"][0]["Cause"], "too short");
    EXPECT_FLOAT_EQ(stage["Obstacles"][0]["Reach"].get<float>(), 15.625F);
    EXPECT_FLOAT_EQ(stage["Usable"][0]["From"].get<float>(), 266.88F);
    EXPECT_FLOAT_EQ(stage["Usable"][0]["To"].get<float>(), 453.12F);
    EXPECT_EQ(stage["LeastTransmission"]["Angle"], 0);
    EXPECT_FALSE(json["Warnings"].empty());
}

TEST(LimitsCommand, WritesToTheNamedFile) {
    Expect_Same_In_File({"limits", "--example", "watt"});
}

TEST(LimitsCommand, OfALengthOfZeroIsExitCode2) {
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "zero.kvl", [](Program& program) { program.model.Link2 = 0; });
    const CommandRun run = Batch({"limits", model});
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, "");
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("Division by zero in Find_Limits"));
}

TEST(LimitsCommand, WithoutAModelOrWithoutAReadableOneFails) {
    EXPECT_EQ(Batch({"limits"}).code, 1);
    const CommandRun run = Batch({"limits", "nowhere/missing.kvl"});
    EXPECT_EQ(run.code, 2);
    Expect_One_Line(run.err);
}

}  // namespace
}  // namespace kervol
