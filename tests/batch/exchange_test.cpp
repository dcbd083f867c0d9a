// SPDX-License-Identifier: GPL-3.0-or-later
// Driving one linkage by another, or by a cam, and handing motion and torque on.
#include <filesystem>
#include <sstream>

#include "batch/command_run.h"
#include "files/full_disk.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

/// A cam alone that turns the crank by ten degrees a row.
std::string Cam_Alone(int count = 2) {
    std::string text = "1\r\n10\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0.1\r\n";
    for (int i = 0; i < 9; ++i) text += "\"\"\r\n";
    text += std::to_string(count) + "\r\n";
    for (int i = 0; i <= count; ++i) text += std::to_string(i) + ",5,-1\r\n";
    return text;
}

TEST(Drive, ByLink6OfAnotherLinkageTurnsTheCrankAsThatLinkTurned) {
    const TemporaryFolder folder;
    const CommandRun exported = Batch({"export", "--example", "watt", "--link6", folder / "a.out"});
    EXPECT_EQ(exported.code, 0) << exported.err;
    EXPECT_EQ(exported.out, "Data for the next linkage were written to " + (folder / "a.out") + "\n");
    const auto first = Batch({"tables", "--example", "watt"}).Json();
    const CommandRun run = Batch({"drive", "--example", "watt", "--out", folder / "a.out"});
    EXPECT_EQ(run.code, 0) << run.err;
    const auto driven = run.Json();
    EXPECT_EQ(driven["NumSteps"], 36);
    EXPECT_EQ(driven["model"]["CalcMode"], 5);
    EXPECT_EQ(driven["model"]["LinkDriven"], true);
    EXPECT_EQ(driven["model"]["DriveFileName"], "a.out");
    for (std::size_t i = 0; i <= 36; ++i) {
        EXPECT_NEAR(driven["Theta"][i][0].get<double>(), first["Theta"][i][5].get<double>(), 2e-5) << i;
        EXPECT_EQ(driven["Omega"][i][0], first["Omega"][i][4]) << i;
        EXPECT_EQ(driven["Alpha"][i][0], first["Alpha"][i][4]) << i;
    }
}

TEST(Drive, SavesTheDrivenModelForTheStageBehindIt) {
    const TemporaryFolder folder;
    Batch({"export", "--example", "watt", "--link6", folder / "a.out"});
    const CommandRun run =
        Batch({"drive", "--example", "watt", "--out", folder / "a.out", "--save", folder / "b.kvl"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "The driven model was written to " + (folder / "b.kvl") + "\n");
    const auto driven = Batch({"drive", "--example", "watt", "--out", folder / "a.out"}).Json();
    const auto saved = Batch({"tables", folder / "b.kvl"}).Json();
    EXPECT_EQ(saved["Theta"], driven["Theta"]);
    EXPECT_EQ(saved["Alpha"], driven["Alpha"]);

    EXPECT_EQ(Batch({"export", folder / "b.kvl", "--link6", folder / "b.out"}).code, 0);
    const auto third = Batch({"drive", "--example", "watt", "--out", folder / "b.out"}).Json();
    for (std::size_t i = 0; i <= 36; ++i)
        EXPECT_NEAR(third["Theta"][i][0].get<double>(), driven["Theta"][i][5].get<double>(), 2e-5) << i;
}

TEST(Drive, ByACamTurnsTheCrankByItsScale) {
    const TemporaryFolder folder;
    const std::string cam = folder.Put("cam.sva", Cam_Alone());
    const CommandRun run = Batch({"drive", "--example", "watt", "--sva", cam, "--dynamics"});
    EXPECT_EQ(run.code, 0) << run.err;
    const auto tables = run.Json();
    EXPECT_EQ(tables["model"]["CalcMode"], 4);
    EXPECT_EQ(tables["NumSteps"], 2);
    EXPECT_EQ(tables["TorqueTable"].size(), 3U);
    for (std::size_t i = 0; i <= 2; ++i)
        EXPECT_NEAR(tables["Theta"][i][0].get<double>(), 10.0 * static_cast<double>(i), 1e-4) << i;
    EXPECT_EQ(tables["messages"][0]["text"], "File " + cam + " of Haldrix S-V-A data successfully read.");
}

TEST(Drive, WritesItsTablesToAFileBesideTheModel) {
    const TemporaryFolder folder;
    const std::string cam = folder.Put("cam.sva", Cam_Alone());
    const CommandRun run = Batch(
        {"drive", "--example", "watt", "--sva", cam, "--save", folder / "b.kvl", "-o", folder / "b.json"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(Content_Of(folder / "b.json"), StartsWith("{"));
    EXPECT_THAT(Content_Of(folder / "b.kvl"), HasSubstr("\r\n1,5,-1\r\n2,5,-1\r\n"));
}

TEST(Drive, ThatCannotBeReadWholeIsOneLineAndNoTables) {
    const TemporaryFolder folder;
    struct Case {
        const char* name;
        std::string content;
        const char* complaint;
    };
    const std::string cam = Cam_Alone();
    for (const Case& c : {
             Case{"empty", "", "line 1: Input past end of file: "},
             Case{"cut", cam.substr(0, cam.size() - 6), "line 22: Input past end of file: "},
             Case{"text", "1\r\nabc\r\n", "line 2: Type mismatch: a number"},
             Case{"binary", std::string("\0\xFF\x01PK", 5), "line 1: Type mismatch: a number"},
             Case{"huge", "1\r\n1E+39\r\n", "line 2: Overflow: a number there is too large"},
             Case{"long", Cam_Alone(361), "line 381: Subscript out of range: a drive has at most 361 rows"},
             Case{"refused", "4\r\n",
                  "This file contains data for a Vostrel linkage. Please import it to Program Vostrel "
                  "instead."},
         }) {
        SCOPED_TRACE(c.name);
        const std::string path = folder.Put(std::string(c.name) + ".sva", c.content);
        const CommandRun run = Batch({"drive", "--example", "watt", "--sva", path, "--save",
                                      folder / "driven.kvl", "-o", folder / "driven.json"});
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.out, "");
        Expect_One_Line(run.err);
        EXPECT_THAT(run.err, StartsWith("kervol-batch: " + path + ": " + c.complaint));
        EXPECT_FALSE(std::filesystem::exists(folder / "driven.kvl"));
        EXPECT_FALSE(std::filesystem::exists(folder / "driven.json"));
    }
}

TEST(Drive, NamesTheFileThatIsMissing) {
    const TemporaryFolder folder;
    const CommandRun drive = Batch({"drive", "--example", "watt", "--out", folder / "none.out"});
    EXPECT_EQ(drive.code, 2);
    EXPECT_EQ(drive.err, "kervol-batch: " + (folder / "none.out") + ": File not found: check the name\n");
    const CommandRun model = Batch({"drive", folder / "none.kvl", "--out", folder / "none.out"});
    EXPECT_EQ(model.code, 2);
    EXPECT_EQ(model.err, "kervol-batch: " + (folder / "none.kvl") + ": File not found: check the name\n");
    const std::string cam = folder.Put("cam.sva", Cam_Alone());
    const CommandRun save =
        Batch({"drive", "--example", "watt", "--sva", cam, "--save", folder / "no/b.kvl"});
    EXPECT_EQ(save.code, 2);
    EXPECT_EQ(save.err, "kervol-batch: " + (folder / "no/b.kvl") + ": Path not found: check the folder\n");
}

TEST(Drive, TellsOfStepsThatDoNotAssemble) {
    const TemporaryFolder folder;
    std::string cam = Cam_Alone();
    cam.replace(cam.find("\r\n10\r\n"), 6, "\r\n90\r\n");  // 0, 90 and 180 degrees
    const CommandRun run = Batch({"drive", Long_Crank_File(folder), "--sva", folder.Put("cam.sva", cam)});
    EXPECT_EQ(run.code, 3);
    EXPECT_THAT(run.err, HasSubstr("long.kvl: 1 of 3 steps do not assemble"));
}

TEST(Exchange, NeedsOneFileOfTwoAndOneModel) {
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
             {"drive", "--example", "watt"},
             {"drive", "--example", "watt", "--sva", "a", "--out", "b"},
             {"drive", "--sva", "a"},
             {"drive", "--example", "watt", "--sva", ""},
             {"export", "--example", "watt"},
             {"export", "--example", "watt", "--link6", "a", "--torque", "b"},
             {"export", "--link6", "a"},
         }) {
        const CommandRun run = Batch(words);
        EXPECT_EQ(run.code, 1) << words.back();
        Expect_One_Line(run.err);
    }
}

TEST(Export, WritesTheCrankTorqueOfEveryStep) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"export", "--example", "watt", "--torque", folder / "a.trq"});
    EXPECT_EQ(run.code, 0) << run.err;
    const auto tables = Batch({"tables", "--example", "watt", "--dynamics"}).Json();
    std::istringstream file(Content_Of(folder / "a.trq"));
    int count = -1;
    file >> count;
    EXPECT_EQ(count, 36);
    for (std::size_t i = 0; i <= 36; ++i) {
        float torque = 0;
        ASSERT_TRUE(file >> torque) << i;
        EXPECT_EQ(torque, tables["TorqueTable"][i][0].get<float>()) << i;
    }
    std::string rest;
    EXPECT_FALSE(file >> rest);
}

TEST(Export, WritesFailedStepsAsZeroAndSaysSo) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"export", Long_Crank_File(folder), "--link6", folder / "a.out"});
    EXPECT_EQ(run.code, 3);
    EXPECT_THAT(run.err, HasSubstr("17 of 37 steps do not assemble and are zero"));
    EXPECT_THAT(Content_Of(folder / "a.out"), HasSubstr("\r\n 0             0             0\r\n"));
}

TEST(Export, OfWhatIsNotThereWritesNothing) {
    const TemporaryFolder folder;
    const std::string refused =
        Model_File(folder, "refused.kvl", [](Program& program) { program.model.ThetaStepDeg = 0; });
    const CommandRun link6 = Batch({"export", refused, "--link6", folder / "a.out"});
    EXPECT_EQ(link6.code, 4);
    Expect_One_Line(link6.err);
    EXPECT_FALSE(std::filesystem::exists(folder / "a.out"));
    // All links at one point: no forces can be solved for.
    const std::string flat = Model_File(folder, "flat.kvl", [](Program& program) {
        for (float LinkageModel::*link : {&LinkageModel::Link2, &LinkageModel::Link5, &LinkageModel::Link6})
            program.model.*link = 0;
        program.model.LinkCG.Fill(0);
    });
    const CommandRun torque = Batch({"export", flat, "--torque", folder / "a.trq"});
    EXPECT_THAT(torque.code, ::testing::AnyOf(2, 4));
    Expect_One_Line(torque.err);
    EXPECT_FALSE(std::filesystem::exists(folder / "a.trq"));
}

TEST(Exchange, KeepsWhatItOverwrites) {
    const TemporaryFolder folder;
    const std::string cam = folder.Put("cam.sva", Cam_Alone());
    const std::string path = folder / "written";
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
             {"export", "--example", "watt", "--torque", path},
             {"export", "--example", "watt", "--link6", path},
             {"drive", "--example", "watt", "--sva", cam, "--save", path},
             {"drive", "--example", "watt", "--sva", cam, "-o", path},
         }) {
        SCOPED_TRACE(words[3]);
        folder.Put("written", "earlier");
        EXPECT_EQ(Batch(words).code, 0);
        EXPECT_GT(Content_Of(path).size(), 300U);
        EXPECT_EQ(Content_Of(path + "~"), "earlier");
    }
}

TEST(Exchange, OnAFullDiskIsOneLineAndKeepsWhatStoodThere) {
    const TemporaryFolder folder;
    const std::string cam = folder.Put("cam.sva", Cam_Alone());
    const std::string path = folder / "written";
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
             {"export", "--example", "watt", "--torque", path},
             {"export", "--example", "watt", "--link6", path},
             {"drive", "--example", "watt", "--sva", cam, "--save", path, "-o", folder / "tables.json"},
             {"drive", "--example", "watt", "--sva", cam, "-o", path},
         }) {
        SCOPED_TRACE(words[3]);
        folder.Put("written", "earlier");
        CommandRun run;
        {
            const FullDisk full(100);
            run = Batch(words);
        }
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.err, "kervol-batch: " + path + ": Disk full: make room, then write again\n");
        EXPECT_EQ(Content_Of(path + "~"), "earlier");
        EXPECT_FALSE(std::filesystem::exists(folder / "tables.json"));
    }
}

TEST(Export, ToAPlaceThatCannotBeWrittenIsOneLine) {
    const TemporaryFolder folder;
    for (const char* kind : {"--link6", "--torque"}) {
        const CommandRun run = Batch({"export", "--example", "watt", kind, folder.path().string()});
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.err, "kervol-batch: " + folder.path().string() +
                               ": Path/File access error: name a plain file, not a folder or device\n");
    }
}

}  // namespace
}  // namespace kervol
