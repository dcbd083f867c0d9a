// SPDX-License-Identifier: GPL-3.0-or-later
// Converting model files and writing the built-in ones.
#include <filesystem>
#include <sstream>

#include "batch/command_run.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

/// A Watt chain as the older program saved it, without offset angles.
std::string Legacy_File() {
    std::string text;
    for (const char* value : {"\"KERVOL\"", "\"6.0\"",
                              "\"OLD\"",    "\"Somebody\"",
                              "3",          "\"1-2-93\"",
                              "\"10:11\"",  "2",
                              "8.625",      "7",
                              "9.375",      "6",
                              "0",          "\"An old model\"",
                              "\"W\"",      "8",
                              "7",          "8",
                              "5.3851648",  "0",
                              "12.5",       "0",
                              "6",          "14.375",
                              "2",          "1",
                              "1",          "0",
                              "0",          "0",
                              "0",          "0",
                              "0",          "0",
                              "0",          "0",
                              "5",          ".05",
                              "0",          "10",
                              "-5",         "\"0\"",
                              "\"360\"",    "\"20\"",
                              "0",          "3",
                              "0",          "0",
                              "0",          "0",
                              "0",          "0",
                              "0",          "0",
                              "0",          "0",
                              "0",          "0",
                              "0",          "0",
                              "0",          "\"N\"",
                              "\"Y\"",      "\"N\"",
                              "0",          "0",
                              "0",          "0",
                              "\"abs\"",    "0",
                              "3",          "5"})
        text += std::string(value) + "\r\n";
    return text;
}

/// The JSON without what names the file and its reading.
nlohmann::json Without_Identity(nlohmann::json tables) {
    tables.erase("messages");
    for (const char* field : {"ModelPath", "ModelName", "DateText", "TimeText"}) tables["model"].erase(field);
    return tables;
}

TEST(Convert, WritesALegacyFileInTheCurrentFormat) {
    const TemporaryFolder folder;
    const std::string old = folder.Put("old.ikv", Legacy_File());
    const std::string path = folder / "new.kvl";
    const CommandRun run = Batch({"convert", old, path});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "File was successfully written to \n" + path + "\n");
    EXPECT_THAT(Content_Of(path),
                StartsWith("\"KERVOL for Windows\"\r\n\"7.0\"\r\n\"old\"\r\n\"Somebody\"\r\n3\r\n"));
    EXPECT_EQ(Content_Of(old), Legacy_File());

    const nlohmann::json before = Batch({"tables", old}).Json();
    const nlohmann::json after = Batch({"tables", path}).Json();
    EXPECT_EQ(before["NumSteps"], 18);
    EXPECT_EQ(after["model"]["ModelTitle"], "An old model");
    EXPECT_EQ(after["model"]["Coupler2Spare"], 12.5);
    EXPECT_EQ(Without_Identity(after)["Theta"], Without_Identity(before)["Theta"]);
    EXPECT_EQ(after["PointAcc"], before["PointAcc"]);
}

TEST(Convert, WritesACurrentFileWithTheSameModel) {
    const TemporaryFolder folder;
    const std::string old = Long_Crank_File(folder);
    EXPECT_EQ(Batch({"convert", old, folder / "new.kvl"}).code, 0) << "converting does not calculate";
    EXPECT_EQ(Without_Identity(Batch({"tables", old}).Json()),
              Without_Identity(Batch({"tables", folder / "new.kvl"}).Json()));
}

TEST(Convert, MayWriteOverTheOldFileWhichIsKept) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("model.ikv", Legacy_File());
    EXPECT_EQ(Batch({"convert", path, path}).code, 0);
    EXPECT_THAT(Content_Of(path), StartsWith("\"KERVOL for Windows\"\r\n"));
    EXPECT_EQ(Content_Of(path + "~"), Legacy_File());
}

TEST(Convert, AnUnwritablePlaceIsExitCode2) {
    const TemporaryFolder folder;
    const std::string old = folder.Put("old.ikv", Legacy_File());
    const struct {
        std::string path;
        const char* complaint;
    } cases[] = {{folder / "no folder/new.kvl", "Path not found"},
                 {folder.path().string(), "Path/File access error"},
                 {old + "/new.kvl", "Path not found"}};
    for (const auto& [path, complaint] : cases)
        for (const auto& arguments :
             {std::vector<std::string>{"convert", old, path}, {"example", "watt", "-o", path}}) {
            const CommandRun run = Batch(arguments);
            EXPECT_EQ(run.code, 2);
            EXPECT_EQ(run.out, "");
            Expect_One_Line(run.err);
            EXPECT_THAT(run.err, StartsWith("kervol-batch: " + path + ": " + complaint));
        }
}

TEST(Convert, ACutLegacyFileIsNotWritten) {
    const TemporaryFolder folder;
    const std::string old = folder.Put("old.ikv", Legacy_File().substr(0, Legacy_File().find("14.375")));
    const CommandRun run = Batch({"convert", old, folder / "new.kvl"});
    EXPECT_EQ(run.code, 2);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("Input past end of file"));
    EXPECT_FALSE(std::filesystem::exists(folder / "new.kvl"));
}

class BuiltIn : public ::testing::TestWithParam<const char*> {};

TEST_P(BuiltIn, ExampleReadsBackToTheSameTables) {
    const TemporaryFolder folder;
    const std::string name = GetParam();
    const std::string path = folder / (name + ".kvl");
    const CommandRun run = Batch({"example", name, "-o", path});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "File was successfully written to \n" + path + "\n");
    const CommandRun from_file = Batch({"tables", path});
    EXPECT_EQ(from_file.code, 0);
    EXPECT_EQ(Without_Identity(from_file.Json()),
              Without_Identity(Batch({"tables", "--example", name}).Json()));
    EXPECT_EQ(from_file.Json()["model"]["ModelName"], name);
}

/// The lines of a model file without those of the date and the time.
std::vector<std::string> Lasting_Lines(const std::string& path) {
    std::istringstream content(Content_Of(path));
    std::vector<std::string> lines;
    std::string line;
    for (int number = 1; std::getline(content, line); ++number)
        if (number != 6 && number != 7) lines.push_back(line);
    return lines;
}

TEST_P(BuiltIn, FileOfTheExamplesFolderIsWhatTheProgramWrites) {
    const TemporaryFolder folder;
    const std::string file = std::string(GetParam()) + ".kvl";
    ASSERT_EQ(Batch({"example", GetParam(), "-o", folder / file}).code, 0);
    const std::vector<std::string> written = Lasting_Lines(folder / file);
    EXPECT_EQ(written.size(), 212U);
    EXPECT_EQ(Lasting_Lines(std::string(KERVOL_EXAMPLES) + "/" + file), written);
}

INSTANTIATE_TEST_SUITE_P(Examples, BuiltIn, ::testing::Values("watt", "roberts", "hoeken", "double-dwell"),
                         [](const auto& example) {
                             std::string name = example.param;
                             std::erase(name, '-');
                             return name;
                         });

}  // namespace
}  // namespace kervol
