// SPDX-License-Identifier: GPL-3.0-or-later
// Writing the moving linkage.
#include <algorithm>
#include <filesystem>
#include <gif_lib.h>

#include "batch/command_run.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// Hundredths of a second of each frame.
std::vector<int> Delays(const std::string& path) {
    int error = 0;
    GifFileType* file = DGifOpenFileName(path.c_str(), &error);
    EXPECT_NE(file, nullptr) << path;
    EXPECT_EQ(DGifSlurp(file), GIF_OK);
    std::vector<int> delays;
    for (int i = 0; i < file->ImageCount; ++i) {
        GraphicsControlBlock control;
        EXPECT_EQ(DGifSavedExtensionToGCB(file, i, &control), GIF_OK);
        delays.push_back(control.DelayTime);
    }
    DGifCloseFile(file, &error);
    return delays;
}

int Sum(const std::vector<int>& numbers) {
    int sum = 0;
    for (const int number : numbers) sum += number;
    return sum;
}

TEST(Animate, WritesAnSvgInRealTime) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"animate", "--example", "watt", "-o", folder / "a.svg"});
    EXPECT_EQ(run.code, 0) << run.err;
    // 2 pi at 10 rad/s.
    EXPECT_EQ(run.out, "The animation (37 positions, a cycle in 0.63 s, real time) was written to " +
                           (folder / "a.svg") + "\n");
    EXPECT_THAT(Content_Of(folder / "a.svg"), HasSubstr("dur=\"0.6283s\""));
}

TEST(Animate, WritesAGifWithAFrameForEachPosition) {
    const TemporaryFolder folder;
    const CommandRun run =
        Batch({"animate", "--example", "watt", "--speed", "0.1", "--size", "120", "-o", folder / "a.gif"});
    EXPECT_EQ(run.code, 0) << run.err;
    const std::vector<int> delays = Delays(folder / "a.gif");
    EXPECT_EQ(delays.size(), 36U);  // the 37th position is the first one
    EXPECT_EQ(Sum(delays), 628);    // 6.283 s
}

TEST(Animate, LeavesOutFramesThatNoViewerWouldShow) {
    const TemporaryFolder folder;
    EXPECT_EQ(Batch({"animate", "--example", "hoeken", "--size", "100", "-o", folder / "a.gif"}).code, 0);
    const std::vector<int> delays = Delays(folder / "a.gif");
    EXPECT_EQ(delays.size(), 24U);  // of 72 positions in 0.628 s each third, 0.026 s apart
    EXPECT_EQ(Sum(delays), 63);
    EXPECT_GE(*std::min_element(delays.begin(), delays.end()), 2);
}

TEST(Animate, LetsAStandingCrankTurn) {
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "still.kvl", [](Program& program) { program.model.Omega2Start = 0; });
    const CommandRun run = Batch({"animate", model, "-o", folder / "a.svg"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(run.out, StartsWith("The animation (37 positions, a cycle in 4 s) was"));
}

TEST(Animate, OfAPositionAloneStands) {
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "one.kvl", [](Program& program) { program.model.CalcMode = 1; });
    EXPECT_EQ(Batch({"animate", model, "-o", folder / "a.svg"}).code, 0);
    EXPECT_THAT(Content_Of(folder / "a.svg"), Not(HasSubstr("<animate")));
    EXPECT_EQ(Batch({"animate", model, "-o", folder / "a.gif", "--size", "100"}).code, 0);
    EXPECT_EQ(Delays(folder / "a.gif").size(), 1U);
}

TEST(Animate, PassesOverStepsThatDoNotAssemble) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"animate", Long_Crank_File(folder), "-o", folder / "a.svg"});
    EXPECT_EQ(run.code, 3);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.out, StartsWith("The animation (20 positions"));  // 37 rows without 10 to 26
}

TEST(Animate, WritesNothingWhereNothingAssembles) {
    // A stands 7.375 at least from O4, links 3 and 4 reach 7.1.
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "never.kvl", [](Program& program) { program.model.Link3 = 0.1F; });
    const CommandRun run = Batch({"animate", model, "-o", folder / "a.svg"});
    EXPECT_EQ(run.code, 4);
    Expect_One_Line(run.err);
    EXPECT_FALSE(std::filesystem::exists(folder / "a.svg"));
}

TEST(Animate, KeepsTheFileBeforeIt) {
    const TemporaryFolder folder;
    const std::string file = folder.Put("a.svg", "older");
    EXPECT_EQ(Batch({"animate", "--example", "watt", "-o", file}).code, 0);
    EXPECT_EQ(Content_Of(file + "~"), "older");
}

TEST(Animate, RefusesWrongUse) {
    const TemporaryFolder folder;
    const std::string svg = folder / "a.svg";
    for (const std::vector<std::string>& words :
         std::vector<std::vector<std::string>>{{"animate", "--example", "watt"},
                                               {"animate", "-o", svg},
                                               {"animate", "--example", "watt", "-o", folder / "a.png"},
                                               {"animate", "--example", "watt", "-o", svg, "--speed", "0"},
                                               {"animate", "--example", "watt", "-o", svg, "--speed", "fast"},
                                               {"animate", "--example", "watt", "-o", svg, "--size", "10"}}) {
        const CommandRun run = Batch(words);
        EXPECT_EQ(run.code, 1) << words.back();
        Expect_One_Line(run.err);
    }
    EXPECT_FALSE(std::filesystem::exists(svg));
}

TEST(Animate, ComplainsOfAFolderThatIsNotThere) {
    const CommandRun run = Batch({"animate", "--example", "watt", "-o", "/nowhere/a.svg"});
    EXPECT_EQ(run.code, 2);
    Expect_One_Line(run.err);
    EXPECT_EQ(run.out, "");
}

TEST(Animate, TellsOfItsTimeInTheHelp) {
    const CommandRun run = Batch({"animate", "--help"});
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.out, HasSubstr("A crank without speed takes 4 s for its range"));
}

}  // namespace
}  // namespace kervol
