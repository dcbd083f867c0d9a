// SPDX-License-Identifier: GPL-3.0-or-later
// The command `study`: its numbers are those of `tables`, its shards join, its complaints are clear.
#include <cmath>

#include "batch/command_run.h"
#include "core/geometry.h"
#include "core/number_text.h"
#include "files/full_disk.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

std::vector<std::string> Fields_Of(const std::string& line) {
    std::vector<std::string> fields;
    std::istringstream stream(line);
    for (std::string field; std::getline(stream, field, ',');) fields.push_back(field);
    return fields;
}

std::vector<std::string> Lines_Of(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        EXPECT_TRUE(line.ends_with('\r'));
        line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

CommandRun Study(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"study", "--example", "watt"});
    return Batch(arguments);
}

const std::vector<std::string> kSmall = {"--vary", "Link2=2:7:0.5", "--measure", "max(Omega6)"};

std::vector<std::string> With(std::vector<std::string> arguments, const std::vector<std::string>& more) {
    arguments.insert(arguments.end(), more.begin(), more.end());
    return arguments;
}

TEST(Study, HasTheNumbersOfTables) {
    const TemporaryFolder folder;
    const CommandRun run = Study({"--vary", "Link2=1.5:2.5:0.5", "--vary", "LinkMass(6)=0.01:0.02:0.01",
                                  "--measure", "max(Omega6)", "--measure", "min(\"Trans Ang-1\")",
                                  "--measure", "peak(\"Torque 12\")", "--measure", "rms(\"F Shaking\":Mag)"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.err, "");
    const auto lines = Lines_Of(run.out);
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[0],
              "Link2,LinkMass(6),max(Omega6),\"min(\"\"Trans Ang-1\"\")\",\"peak(\"\"Torque 12\"\")\","
              "\"rms(\"\"F Shaking\"\":Mag)\",Outcome");
    for (std::size_t row = 0; row < 6; ++row) {
        const std::string file = Model_File(folder, "a.kvl", [&](Program& program) {
            program.model.Link2 = 1.5F + 0.5F * static_cast<float>(row / 2);
            program.model.LinkMass(6) = row % 2 == 0 ? 0.01F : 0.02F;
        });
        const auto json = Batch({"tables", file, "--dynamics"}).Json();
        float omega = -INFINITY, angle = INFINITY, torque = 0;
        double squares = 0;
        for (std::size_t step = 0; step <= 36; ++step) {
            omega = std::max(omega, json["Omega"][step][4].get<float>());
            angle = std::min(angle, json["Theta"][step][6].get<float>());
            torque = std::max(torque, std::abs(json["TorqueTable"][step][0].get<float>()));
            const double x = json["ForceTable"][step][7][0], y = json["ForceTable"][step][7][1];
            squares += x * x + y * y;
        }
        const auto fields = Fields_Of(lines[row + 1]);
        ASSERT_EQ(fields.size(), 7U);
        EXPECT_EQ(fields[2], Plain_Number(omega));
        EXPECT_EQ(fields[3], Plain_Number(angle));
        EXPECT_EQ(fields[4], Plain_Number(torque));
        // The magnitude of a function is rounded, components below 0.0001 count as 0.
        EXPECT_NEAR(std::stod(fields[5]), std::sqrt(squares / 37), 1e-6 * std::sqrt(squares / 37));
        EXPECT_EQ(fields[6], "ok");
    }
}

TEST(Study, MarksWhatFails) {
    const auto lines = Lines_Of(Study(kSmall).out);
    ASSERT_EQ(lines.size(), 12U);
    EXPECT_THAT(lines[1], ::testing::EndsWith(",ok"));
    EXPECT_THAT(lines[11], ::testing::EndsWith("steps do not assemble"));
    EXPECT_THAT(lines[11], StartsWith("7,,"));
}

TEST(Study, ShardsJoinedAreTheFile) {
    const TemporaryFolder folder;
    std::string joined;
    for (const char* shard : {"1/3", "2/3", "3/3"}) {
        const CommandRun run = Study(With(kSmall, {"--shard", shard, "-o", folder / "part.csv"}));
        EXPECT_EQ(run.code, 0);
        joined += Content_Of(folder / "part.csv");
    }
    EXPECT_EQ(joined, Study(kSmall).out);
}

TEST(Study, IntoAFileTellsHowManyThereAre) {
    const TemporaryFolder folder;
    const CommandRun run = Study(With(kSmall, {"-o", folder / "study.csv", "--jobs", "3"}));
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.out, StartsWith("11 combinations, "));
    EXPECT_THAT(run.out, HasSubstr(" of which failed, were written to " + folder / "study.csv"));
    EXPECT_EQ(Content_Of(folder / "study.csv"), Study(kSmall).out);
}

TEST(Study, TopIsOrderedByTheFirstMeasure) {
    double before = INFINITY;
    const auto lines = Lines_Of(Study(With(kSmall, {"--top", "3"})).out);
    ASSERT_EQ(lines.size(), 4U);
    for (std::size_t row = 1; row < 4; ++row) {
        const double value = std::stod(Fields_Of(lines[row])[1]);
        EXPECT_LE(value, before);
        before = value;
    }
    const auto least = Lines_Of(Study(With(kSmall, {"--top", "1", "--least"})).out);
    EXPECT_LE(std::stod(Fields_Of(least[1])[1]), before);
}

TEST(Study, WrongUseIsOneLineThatSaysWhatIsWrong) {
    const std::vector<std::string> vary = {"--vary", "Link2=1:2:1"}, measure = {"--measure", "max(Omega6)"};
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {vary, "--measure"},
        {measure, "--vary"},
        {With(measure, {"--vary", "Link9=1:2:1"}), "\"Link9\" is no field of a model"},
        {With(measure, {"--vary", "Link2=2:1:1"}), "the range is empty"},
        {With(measure, {"--vary", "Link2=1:2:1", "--vary", "Link2=3:4:1"}), "\"Link2\" is varied twice"},
        {With(vary, {"--measure", "max(Omega7)"}), "\"Omega7\" is no function of this chain"},
        {With(vary, {"--measure", "best(Omega6)"}), "\"best\" is no measure"},
        {With(measure, {"--vary", "Link2=0:1000000:0.001", "--vary", "Link3=0:1000000:0.001", "--vary",
                        "Link4=0:1000000:0.001"}),
         "more combinations than can be counted"},
        {With(kSmall, {"--shard", "0/3"}), "--shard \"0/3\" is not I/N"},
        {With(kSmall, {"--shard", "4/3"}), "--shard \"4/3\" is not I/N"},
        {With(kSmall, {"--shard", "3"}), "is not I/N"},
        {With(kSmall, {"--shard", "a/b"}), "is not I/N"},
        {With(kSmall, {"--shard", ""}), "--shard"},
        {With(kSmall, {"--jobs", "0"}), "--jobs"},
        {With(kSmall, {"--top", "0"}), "--top"},
        {With(kSmall, {"--top", "x"}), "--top"},
        {With(kSmall, {"--least"}), "--least"},
    };
    for (const auto& [arguments, complaint] : cases) {
        const CommandRun run = Study(arguments);
        EXPECT_EQ(run.code, 1) << complaint;
        EXPECT_EQ(run.out, "") << complaint;
        Expect_One_Line(run.err);
        EXPECT_THAT(run.err, HasSubstr(complaint));
    }
}

TEST(Study, AFileThatCannotBeWrittenIsExitCode2) {
    const TemporaryFolder folder;
    const CommandRun run = Study(With(kSmall, {"-o", folder / "no folder/a.csv"}));
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, "");
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, HasSubstr("Path not found"));
}

TEST(Study, ADiskThatFillsUpIsExitCode2AndLeavesWhatWasWritten) {
    const TemporaryFolder folder;
    const FullDisk disk(100'000);
    const CommandRun run =
        Study({"--vary", "Link5=6:8:0.0002", "--measure", "max(Omega6)", "-o", folder / "study.csv"});
    EXPECT_EQ(run.code, 2);
    Expect_One_Line(run.err);
    EXPECT_THAT(run.err, StartsWith("kervol-batch: " + folder / "study.csv"));
    EXPECT_THAT(Content_Of(folder / "study.csv"), StartsWith("Link5,max(Omega6),Outcome\r\n6,"));
}

TEST(Study, StandardOutputThatTakesNothingIsExitCode2) {
    const std::vector<const char*> words = {"kervol-batch", "study",     "--example",   "watt", "--vary",
                                            "Link2=1:2:1",  "--measure", "max(Omega6)", nullptr};
    std::ostream closed(nullptr);
    std::ostringstream err;
    EXPECT_EQ(Run_Commands(static_cast<int>(words.size()) - 1, words.data(), closed, err), 2);
    Expect_One_Line(err.str());
}

}  // namespace
}  // namespace kervol
