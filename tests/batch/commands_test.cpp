// SPDX-License-Identifier: GPL-3.0-or-later
// The command line: help, version, wrong use, exit codes with their one line of complaint.
#include "batch/commands.h"

#include <filesystem>
#include <ostream>
#include <sys/stat.h>

#include "batch/command_run.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

TEST(Help, IsThereForTheProgramAndForEachCommand) {
    const CommandRun program = Batch({"--help"});
    EXPECT_EQ(program.code, 0);
    EXPECT_EQ(program.err, "");
    for (const char* command : {"tables", "table", "functions", "info", "convert", "example"}) {
        EXPECT_THAT(program.out, HasSubstr(command));
        const CommandRun run = Batch({command, "--help"});
        EXPECT_EQ(run.code, 0) << command;
        EXPECT_EQ(run.err, "") << command;
        EXPECT_THAT(run.out, HasSubstr(std::string("kervol-batch ") + command));
        EXPECT_NE(run.out, program.out) << command;
    }
}

TEST(Help, NamesEveryOptionOfTables) {
    const std::string help = Batch({"tables", "--help"}).out;
    for (const char* option : {"MODEL", "--example", "--dynamics", "--flywheel", "--fluct", "--fft",
                               "--component", "--on-failure", "-o"})
        EXPECT_THAT(help, HasSubstr(option));
}

TEST(Help, TellsTheExitCodes) {
    const std::string help = Batch({"--help"}).out;
    for (const char* code : {"0 done", "1 wrong use", "2 a file", "3 done", "4 refused"})
        EXPECT_THAT(help, HasSubstr(code));
}

TEST(Version, NamesTheProgramItsReleaseAndRevision) {
    const CommandRun run = Batch({"--version"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, HasSubstr("KERVOL for Windows"));
    EXPECT_THAT(run.out, HasSubstr("7.0"));
    EXPECT_THAT(run.out, HasSubstr("2.2"));
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 1);
}

TEST(WrongUse, EndsWithExitCode1AndOneLine) {
    const TemporaryFolder folder;
    const std::string model = Model_File(folder, "a.kvl", [](Program&) {});
    const std::vector<std::string> cases[] = {
        {},
        {""},
        {"unknown"},
        {"--unknown"},
        {"tables"},
        {"tables", ""},
        {"tables", "--unknown", model},
        {"tables", model, "another.kvl"},
        {"tables", model, "--example", "watt"},
        {"tables", "--example"},
        {"tables", "--example", "nobody"},
        {"tables", "--example", "Watt"},
        {"tables", "--example", "wa\ntt"},
        {"tables", model, "--on-failure"},
        {"tables", model, "--on-failure", "Abort"},
        {"tables", model, "--on-failure", "3"},
        {"tables", model, "--on-failure", "ok"},
        {"tables", model, "--on-failure", ""},
        {"tables", model, "-o"},
        {"tables", model, "-o", ""},
        {"info"},
        {"info", model, "--example", "watt"},
        {"info", model, "--on-failure", "abort"},
        {"info", "--example", "nobody"},
        {"convert"},
        {"convert", model},
        {"convert", model, folder / "b.kvl", "c.kvl"},
        {"example"},
        {"example", "watt"},
        {"example", "nobody", "-o", folder / "b.kvl"},
        {"example", "watt", folder / "b.kvl"},
        {"example", "watt", "-o", ""},
        {"tables", "info", model},
    };
    for (const auto& arguments : cases) {
        SCOPED_TRACE(::testing::PrintToString(arguments));
        const CommandRun run = Batch(arguments);
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(run.out, "");
        Expect_One_Line(run.err);
        EXPECT_FALSE(std::filesystem::exists(folder / "b.kvl"));
    }
}

TEST(WrongUse, ACoefficientOfFluctuationMustBeANumber) {
    for (const char* text : {"", "x", "0.05x", "nan", "inf", "0x1", "1e99"}) {
        const CommandRun run = Batch({"tables", "--example", "watt", "--flywheel", "--fluct", text});
        EXPECT_EQ(run.code, 1) << text;
        EXPECT_EQ(run.out, "") << text;
        Expect_One_Line(run.err);
        EXPECT_THAT(run.err, HasSubstr("is no number")) << text;
    }
    EXPECT_EQ(Batch({"tables", "--example", "watt", "--fluct", "0.1"}).code, 0);
}

TEST(Fluctuation, ThatIsNotAboveZeroIsRefusedInABoxAndBecomesTheCustomaryOne) {
    for (const char* text : {"0", "-0.5"}) {
        const CommandRun run = Batch({"tables", "--example", "watt", "--flywheel", "--fluct", text});
        EXPECT_EQ(run.code, 0) << text;
        EXPECT_EQ(run.Json()["model"]["CoefFluct"].get<float>(), 0.05F);
        EXPECT_EQ(run.Json()["messages"][0]["text"],
                  " Coefficient of fluctuation must be between zero and one - Try .05 ");
    }
}

TEST(ExitCode, IsZeroWithoutAComplaintWhereAllIsWell) {
    const TemporaryFolder folder;
    const std::string model = Model_File(folder, "a.kvl", [](Program&) {});
    for (const auto& arguments : {std::vector<std::string>{"tables", model},
                                  {"info", model},
                                  {"tables", "--example", "hoeken"},
                                  {"tables", "--example", "hoeken", "--dynamics", "--flywheel"},
                                  {"info", "--example", "roberts"},
                                  {"convert", model, folder / "b.kvl"},
                                  {"example", "double-dwell", "-o", folder / "c.kvl"},
                                  {"tables", model, "-o", folder / "a.json"}}) {
        const CommandRun run = Batch(arguments);
        EXPECT_EQ(run.code, 0) << arguments[0];
        EXPECT_EQ(run.err, "") << arguments[0];
    }
}

struct Unreadable {
    std::string path;
    const char* complaint;
};

std::vector<Unreadable> Unreadable_Files(const TemporaryFolder& folder) {
    EXPECT_EQ(mkfifo((folder / "pipe.kvl").c_str(), 0666), 0);
    return {
        {folder / "missing.kvl", "File not found"},
        {folder / "no folder/a.kvl", "Path not found"},
        {folder.path().string(), "Path/File access error"},
        {folder / "pipe.kvl", "Path/File access error"},
        {folder.Put("empty.kvl", ""), "Input past end of file"},
        {folder.Put("one.kvl", "\"KERVOL for Windows\"\r\n"), "Input past end of file"},
        {folder.Put("other.kvl", "\"KERVOL for DOS\"\r\n\"7.0\"\r\n"), "not a model of this program"},
        {folder.Put("noise.kvl", std::string("\x7F") + "ELF\x02\x01\x01\nnoise\n"),
         "not a model of this program"},
        {folder.Put("two.kvl", "\"KERVOL for Windows\"\r\n\"7.0\"\r\n"), "no model"},
    };
}

TEST(ExitCode, IsTwoWithoutOutputWhereNothingCouldBeRead) {
    const TemporaryFolder folder;
    for (const auto& [path, complaint] : Unreadable_Files(folder))
        for (const char* command : {"tables", "info", "convert"}) {
            SCOPED_TRACE(std::string(command) + " " + path);
            std::vector<std::string> arguments = {command, path};
            if (arguments[0] == "convert") arguments.push_back(folder / "new.kvl");
            const CommandRun run = Batch(arguments);
            EXPECT_EQ(run.code, 2);
            EXPECT_EQ(run.out, "");
            Expect_One_Line(run.err);
            EXPECT_THAT(run.err, StartsWith("kervol-batch: " + path + ": "));
            EXPECT_THAT(run.err, HasSubstr(complaint));
            EXPECT_FALSE(std::filesystem::exists(folder / "new.kvl"));
        }
}

TEST(ExitCode, IsTwoForACutFileWhichIsShownAsFarAsItGoes) {
    const TemporaryFolder folder;
    const std::string model = Model_File(folder, "a.kvl", [](Program&) {});
    const std::string cut = folder.Put("cut.kvl", Content_Of(model).substr(0, 400));
    const std::string content = Content_Of(cut);
    const auto lines = std::count(content.begin(), content.end(), '\n');
    const CommandRun run = Batch({"tables", cut});
    EXPECT_EQ(run.code, 2);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("line " + std::to_string(lines + 1) + ": Input past end of file"));
    const auto json = run.Json();
    EXPECT_EQ(json["messages"].size(), 2U);
    EXPECT_EQ(json["NumSteps"], 36);
    EXPECT_EQ(Batch({"convert", cut, folder / "new.kvl"}).code, 2);
    EXPECT_FALSE(std::filesystem::exists(folder / "new.kvl"));
}

TEST(ExitCode, TwoNamesTheLineThatHoldsTheWrongKind) {
    const TemporaryFolder folder;
    std::string content = Content_Of(Model_File(folder, "a.kvl", [](Program&) {}));
    content.replace(content.find("\r\n8.625\r\n"), 9, "\r\nlong\r\n");  // line 15
    const CommandRun run = Batch({"info", folder.Put("bad.kvl", content)});
    EXPECT_EQ(run.code, 2);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("line 15: Type mismatch"));
}

TEST(ExitCode, IsTwoForANumericFaultOfWhichEveryOneIsRecorded) {
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "zero.kvl", [](Program& program) { program.model.Link2 = 0; });
    const CommandRun run = Batch({"tables", model});
    EXPECT_EQ(run.code, 2);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("Division by zero in Calculate"));
    const auto messages = run.Json()["messages"];
    EXPECT_GE(messages.size(), 1U + 37U);
    EXPECT_EQ(messages[1]["text"], "Error 11   (Division by zero)  has occurred in Calculate\r\r");
}

TEST(ExitCode, IsTwoForTooManyDriveRows) {
    const TemporaryFolder folder;
    std::string content = Content_Of(Model_File(folder, "a.kvl", [](Program& program) {
        program.model.CalcMode = 4;
        program.model.NumSteps = 360;
    }));
    content.replace(content.find("\r\n360\r\n\"\"\r\n\"\"\r\n"), 7, "\r\n400\r\n");  // line 52
    for (int i = 361; i <= 400; ++i) content += "1,2,3\r\n";
    const CommandRun run = Batch({"tables", folder.Put("many.kvl", content)});
    EXPECT_EQ(run.code, 2);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("Subscript out of range"));
}

TEST(ExitCode, IsThreeWhereSomeStepDoesNotAssemble) {
    const TemporaryFolder folder;
    const std::string model = Long_Crank_File(folder);
    for (const auto& arguments : {std::vector<std::string>{"tables", model},
                                  {"tables", model, "--on-failure", "ignore"},
                                  {"tables", model, "--on-failure", "retry"},
                                  {"info", model}}) {
        const CommandRun run = Batch(arguments);
        EXPECT_EQ(run.code, 3);
        EXPECT_NE(run.out, "");
        Expect_One_Line(run.err);
        EXPECT_THAT(run.err, HasSubstr("17 of 37 steps"));
    }
}

TEST(ExitCode, IsFourWhereTheCalculationIsAbandoned) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"tables", Long_Crank_File(folder), "--on-failure", "abort"});
    EXPECT_EQ(run.code, 4);
    Expect_One_Line(run.err);
    EXPECT_FALSE(run.Json()["DataCalculated"]);
}

TEST(ExitCode, IsFourWithTheTextOfTheRefusal) {
    const TemporaryFolder folder;
    const std::string angle = "Your angle steps are too small - Have > 1024 Points - Increase Delta Theta";
    const std::string time =
        "Your time steps are too small - Have > 1024 Points - Increase Delta Time or Reduce Finish Time";
    const std::string zero = "Cannot have a zero step size - Please check your data.";
    const struct {
        std::int16_t mode;
        float angle_step, time_step;
        std::string text;
    } cases[] = {{3, 0, 0.05F, zero}, {3, 0.1F, 0.05F, angle}, {2, 10, 0, time},
                 {2, 10, -1, time},   {2, 10, 0.001F, time},   {1, 10, 0, time}};
    for (const auto& [mode, angle_step, time_step, text] : cases) {
        const std::string model =
            Model_File(folder, "a.kvl", [&, &m = mode, &a = angle_step, &t = time_step](Program& program) {
                program.model.CalcMode = m;
                program.model.ThetaStepDeg = a;
                program.model.TimeStep = t;
            });
        const CommandRun run = Batch({"tables", model});
        EXPECT_EQ(run.code, 4) << text;
        Expect_One_Line(run.err);
        EXPECT_THAT(run.err, HasSubstr(text));
        const auto box = run.Json()["messages"].back();
        EXPECT_EQ(box["text"], text);
        EXPECT_EQ(box["icon"], "exclamation");
        EXPECT_EQ(box["buttons"], "OK");
        EXPECT_EQ(box["answer"], 1);
        // Only too many angle steps skip the closing work of a calculation.
        EXPECT_EQ(run.Json()["DataCalculated"], text != angle);
    }
}

TEST(Output, GoesToTheNamedFileInPlaceOfStandardOutput) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"tables", "--example", "watt", "-o", folder / "watt.json"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, "");
    CommandRun printed = Batch({"tables", "--example", "watt"});
    auto expected = printed.Json();
    auto json = nlohmann::json::parse(Content_Of(folder / "watt.json"));
    for (const char* stamp : {"DateText", "TimeText"}) {  // the minute may have turned
        expected["model"].erase(stamp);
        json["model"].erase(stamp);
    }
    EXPECT_EQ(json, expected);
}

TEST(Output, KeepsTheEarlierContentOfTheNamedFile) {
    const TemporaryFolder folder;
    folder.Put("watt.json", "earlier");
    EXPECT_EQ(Batch({"tables", "--example", "watt", "-o", folder / "watt.json"}).code, 0);
    EXPECT_EQ(Content_Of(folder / "watt.json~"), "earlier");
}

TEST(Output, IsExitCode2WhereItCannotBeWritten) {
    const TemporaryFolder folder;
    const struct {
        std::string path;
        const char* complaint;
    } cases[] = {{folder / "no folder/a.json", "Path not found"},
                 {folder.path().string(), "Path/File access error"}};
    for (const auto& [path, complaint] : cases) {
        const CommandRun run = Batch({"tables", "--example", "watt", "-o", path});
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.out, "");
        Expect_One_Line(run.err);
        EXPECT_THAT(run.err, StartsWith("kervol-batch: " + path + ": "));
        EXPECT_THAT(run.err, HasSubstr(complaint));
    }
}

TEST(Output, IsExitCode2WhereStandardOutputTakesNothing) {
    for (const auto& words :
         {std::vector<const char*>{"kervol-batch", "tables", "--example", "watt", nullptr},
          {"kervol-batch", "info", "--example", "watt", nullptr},
          {"kervol-batch", "--help", nullptr}}) {
        std::ostream closed(nullptr);
        std::ostringstream err;
        EXPECT_EQ(Run_Commands(static_cast<int>(words.size()) - 1, words.data(), closed, err), 2);
        Expect_One_Line(err.str());
    }
}

}  // namespace
}  // namespace kervol
