// SPDX-License-Identifier: GPL-3.0-or-later
// The command that writes a design report.
#include <filesystem>

#include "batch/command_run.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

TEST(Report, IsWrittenForEveryExample) {
    const TemporaryFolder folder;
    for (const std::string name : {"watt", "roberts", "hoeken", "double-dwell"}) {
        const std::string file = folder / (name + ".html");
        const CommandRun run = Batch({"report", "--example", name, "-o", file});
        EXPECT_EQ(run.code, 0) << run.err;
        EXPECT_EQ(run.out, "The report was written to " + file + "\n");
        EXPECT_THAT(Content_Of(file), HasSubstr("<h2>Spectrum of the torque</h2>")) << name;
    }
}

TEST(Report, GoesToStandardOutputWithoutAFile) {
    const CommandRun run = Batch({"report", "--example", "watt"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(run.out, StartsWith("<!DOCTYPE html>"));
    EXPECT_TRUE(run.out.ends_with("</html>\n"));
}

TEST(Report, TellsOfStepsThatFailedAndOfTheBoxes) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"report", Long_Crank_File(folder)});
    EXPECT_EQ(run.code, 3);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.out, HasSubstr("<td>10 to 26</td>"));
    EXPECT_THAT(run.out, HasSubstr("<h2>Messages</h2>"));
    EXPECT_THAT(run.out, HasSubstr("successfully read."));
}

TEST(Report, IsNotWrittenForWhatIsRefused) {
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "fine.kvl", [](Program& program) { program.model.ThetaStepDeg = 0.1F; });
    const CommandRun run = Batch({"report", model, "-o", folder / "r.html"});
    EXPECT_EQ(run.code, 4);
    Expect_One_Line(run.err);
    EXPECT_FALSE(std::filesystem::exists(folder / "r.html"));
}

TEST(Report, KeepsTheOneBeforeIt) {
    const TemporaryFolder folder;
    const std::string file = folder.Put("r.html", "older");
    EXPECT_EQ(Batch({"report", "--example", "watt", "-o", file}).code, 0);
    EXPECT_EQ(Content_Of(file + "~"), "older");
}

TEST(Report, OfTimeStepsHasNoFlywheel) {
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "time.kvl", [](Program& program) { program.model.CalcMode = 2; });
    const CommandRun run = Batch({"report", model});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("Time, s"));
    EXPECT_THAT(run.out, ::testing::Not(HasSubstr("<h2>Flywheel</h2>")));
}

}  // namespace
}  // namespace kervol
