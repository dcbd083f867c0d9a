// SPDX-License-Identifier: GPL-3.0-or-later
// Which files hold the later lines of the format, and files with more than one record.
#include "files/model_file.h"
#include "files/sample_lines.h"
#include "support/compare.h"
#include "support/program_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

class ReleaseGate : public ProgramTest {
  protected:
    ReadEnd Read(const std::vector<std::string>& lines) {
        ValueReader file(Joined(lines));
        return Readfile(*program, file);
    }
    void Expect_Success() { Expect_Box("File  successfully read.", Icon::Information); }
};

/// A file as an earlier release wrote it: 110 lines and the identity of that release.
std::vector<std::string> Earlier_File(const std::string& version, const std::string& release) {
    std::vector<std::string> lines = Model_File_Lines();
    lines.resize(110);
    lines[1] = version;
    lines[48] = release;
    return lines;
}

TEST_F(ReleaseGate, AFileOfAnEarlierReleaseEndsAfterLine110) {
    const struct {
        const char *version, *release;
    } cases[] = {
        {"\"7.0\"", "\"1.9\""},  {"\"7.0\"", "\"1\""},   {"\"7.0\"", "\"abc\""}, {"\"7.0\"", "\"\""},
        {"\"7.0\"", "\"-2\""},   {"\"6.9\"", "\"2.2\""}, {"\"6.9\"", "\"1.9\""}, {"\"8.0\"", "\"2.2\""},
        {"\" 7.0\"", "\"2.2\""}, {"\"\"", "\"2.2\""},    {"\"V7\"", "\"2.2\""},  {"\"7.0\"", "\"1.99999\""},
        {"\"7.0\"", "\"r2\""},
    };
    for (const auto& [version, release] : cases) {
        SCOPED_TRACE(std::string(version) + " " + release);
        Poison_All(*program, Model_Lines());
        EXPECT_EQ(Read(Earlier_File(version, release)), ReadEnd::Whole);
        Expect_Success();
        for (const SampleLine& line : Model_Lines()) {
            if (line.line == 21) continue;   // recomputed
            if (line.line == 111) continue;  // the same field as line 106
            EXPECT_TRUE(line.line <= 110 ? Holds(model, line) : Is_Poisoned(model, line)) << line.line;
        }
    }
}

TEST_F(ReleaseGate, AFileOfRelease2OrLaterIsReadToItsEnd) {
    const struct {
        const char *version, *release;
    } cases[] = {
        {"\"7.0\"", "\"2.2\""}, {"\"7.0\"", "\"2\""},    {"\"7\"", "\"2.0\""}, {"\"7.9\"", "\"10\""},
        {"\"70\"", "\" 2\""},   {"\"7.0\"", "\"2abc\""}, {"7.0", "2.2"},       {"\"7.0\"", "\"2E1\""},
    };
    for (const auto& [version, release] : cases) {
        SCOPED_TRACE(std::string(version) + " " + release);
        Poison_All(*program, Model_Lines());
        std::vector<std::string> lines = Model_File_Lines();
        lines[1] = version;
        lines[48] = release;
        EXPECT_EQ(Read(lines), ReadEnd::Whole);
        Expect_Success();
        for (const SampleLine& line : Model_Lines())
            EXPECT_TRUE(line.line == 21 || Holds(model, line)) << line.line;
        EXPECT_EQ(tables.DriveTheta(0), 10.5F);
        EXPECT_EQ(tables.Torque21Imported(0), 7.5F);
    }
}

TEST_F(ReleaseGate, DriveRowsAreNotReadFromAFileOfAnEarlierReleaseEvenWithDriveMode4) {
    Poison_Tables(tables);
    std::vector<std::string> lines = Earlier_File("\"7.0\"", "\"1.9\"");
    lines[38] = "4";
    EXPECT_EQ(Read(lines), ReadEnd::Whole);
    Expect_Success();
    EXPECT_EQ(model.CalcMode, 4);
    EXPECT_EQ(tables.DriveTheta(0), Poison);
    EXPECT_EQ(tables.Omega(0, 0), Poison);
}

TEST_F(ReleaseGate, DriveRowsBehindAnEarlierFileStartASecondRecord) {
    std::vector<std::string> lines = Earlier_File("\"7.0\"", "\"1.9\"");
    lines.emplace_back("10.5,20.25,5");
    // The row's numbers go into the name, the user and the design number of a second record, which is cut.
    EXPECT_EQ(Read(lines), ReadEnd::Cut);
    Expect_Fault(62, "");
    Expect_Success();
    EXPECT_EQ(model.ModelName, "10.5");
    EXPECT_EQ(model.UserName, "20.25");
    EXPECT_EQ(model.DesignNumber, 5);
    EXPECT_EQ(model.DateText, "2026-03-04") << "of the first record";
}

TEST_F(ReleaseGate, TextBehindTheLastFieldIsReadAgainFromLine3On) {
    std::vector<std::string> lines = Model_File_Lines();
    const std::vector<std::string> first = lines;
    lines.insert(lines.end(), first.begin() + 2, first.end());
    lines[220] = "\"second\"";  // line 3 of the second record
    lines[220 + 11] = "6.125";  // line 14
    lines[220 + 217] = "99.5";  // the last torque
    EXPECT_EQ(Read(lines), ReadEnd::Whole);
    Expect_Success();
    EXPECT_EQ(model.ModelName, "second");
    EXPECT_EQ(model.Link2, 6.125F);
    EXPECT_EQ(tables.Torque21Imported(2), 99.5F);
    EXPECT_EQ(model.Link3, 8.64F);
}

TEST_F(ReleaseGate, ASecondRecordThatIsCutOverwritesOnlyWhatItHolds) {
    std::vector<std::string> lines = Model_File_Lines();
    lines.insert(lines.end(), {"\"second\"", "\"other user\"", "43"});
    EXPECT_EQ(Read(lines), ReadEnd::Cut);
    Expect_Fault(62, "");
    Expect_Success();
    EXPECT_EQ(model.ModelName, "second");
    EXPECT_EQ(model.UserName, "other user");
    EXPECT_EQ(model.DesignNumber, 43);
    EXPECT_EQ(model.DateText, "2026-03-04");
}

TEST_F(ReleaseGate, AnEmptyLineBehindTheLastFieldStartsAnotherRecord) {
    std::vector<std::string> lines = Model_File_Lines();
    lines.emplace_back();
    EXPECT_EQ(Read(lines), ReadEnd::Cut);
    Expect_Fault(62, "");
    Expect_Success();
    EXPECT_EQ(model.ModelName, "") << "the empty line is the name of the second record";
    EXPECT_EQ(model.UserName, "A. User, Project 9");
}

TEST_F(ReleaseGate, AFileOfTwoLinesHasNoRecordAndChangesOnlyWhatIsRebuilt) {
    const LinkageModel before = model;
    EXPECT_EQ(Read({"\"KERVOL for Windows\"", "\"7.0\""}), ReadEnd::Nothing);
    Expect_Success();
    EXPECT_THAT(Differing_Fields(model, before),
                ::testing::UnorderedElementsAre("DataFromFile", "OpenCross1Text", "OpenCross2Text"));
}

TEST_F(ReleaseGate, EachRecordHasAGateOfItsOwn) {
    std::vector<std::string> lines = Earlier_File("\"7.0\"", "\"1.9\"");
    const std::vector<std::string> second = Model_File_Lines();
    lines.insert(lines.end(), second.begin() + 2, second.end());
    Poison_All(*program, Model_Lines());
    EXPECT_EQ(Read(lines), ReadEnd::Whole);
    Expect_Success();
    EXPECT_EQ(model.CamBaseRadius, 112.5F);
    EXPECT_EQ(tables.DriveTheta(0), 10.5F);
}

}  // namespace
}  // namespace kervol
