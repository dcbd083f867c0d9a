// SPDX-License-Identifier: GPL-3.0-or-later
// The model file line by line: every line's number, text and place in the model.
#include "files/model_layout.h"

#include <cmath>
#include <complex>

#include "files/model_file.h"
#include "files/sample_lines.h"
#include "support/compare.h"
#include "support/program_test.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

class ModelLayout : public ProgramTest {
  protected:
    std::string Saved(const std::string& name = "model.kvl") {
        EXPECT_TRUE(Save_Model_As(*program, folder / name));
        Expect_Box("File was successfully written to \n" + folder / name, Icon::Information);
        return Content_Of(folder / name);
    }
    void Read(const std::string& content) {
        ValueReader file(content);
        EXPECT_EQ(Readfile(*program, file), ReadEnd::Whole);
        EXPECT_TRUE(file.At_End());
        Expect_Box("File " + model.ModelPath + " successfully read.", Icon::Information);
    }

    TemporaryFolder folder;
};

/// Texts of the lines of a file; the last line ends too.
std::vector<std::string> Lines_Of(const std::string& content) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = content.find("\r\n"); end != std::string::npos;
         end = content.find("\r\n", start)) {
        lines.push_back(content.substr(start, end - start));
        start = end + 2;
    }
    EXPECT_EQ(start, content.size()) << "the last line has no end";
    return lines;
}

TEST_F(ModelLayout, TheSampleNumbersItsLinesWithoutAGap) {
    int number = 0;
    for (const SampleLine& line : Model_Lines()) EXPECT_EQ(line.line, ++number);
    EXPECT_EQ(number, 117);
    number = 0;
    for (const SampleLine& line : Legacy_Lines()) EXPECT_EQ(line.line, ++number);
    EXPECT_EQ(number, 72);
}

TEST_F(ModelLayout, WritesEveryFieldOnItsLine) {
    Put_Sample(*program);
    const std::vector<std::string> written = Lines_Of(Saved());
    const std::vector<std::string> expected = Model_File_Lines();
    ASSERT_EQ(expected.size(), 220U);
    EXPECT_THAT(written, ElementsAreArray(expected));
}

TEST_F(ModelLayout, ReadsEveryLineIntoItsField) {
    Poison_All(*program, Model_Lines());
    Read(Joined(Model_File_Lines()));
    for (const SampleLine& line : Model_Lines()) {
        if (line.line == 21) continue;  // recomputed, see below
        EXPECT_TRUE(Holds(model, line)) << "line " << line.line;
    }
    EXPECT_EQ(tables.DriveTheta(1), 11.5F);
    EXPECT_EQ(tables.Omega(1, 0), -20.5F);
    EXPECT_EQ(tables.Alpha(1, 0), 2E7F);
    EXPECT_EQ(tables.DriveTheta(2), -12.5F);
    EXPECT_EQ(tables.Alpha(2, 0), 1.1754944E-38F);
    EXPECT_EQ(tables.Torque21Imported(0), 7.5F);
    EXPECT_EQ(tables.Torque21Imported(2), 9999999.0F);
}

TEST_F(ModelLayout, ReadsNothingIntoTheOtherTables) {
    Poison_All(*program, Model_Lines());
    ResultTables expected = tables;
    Read(Joined(Model_File_Lines()));
    for (int i = 0; i <= 2; ++i) {
        expected.DriveTheta(i) = tables.DriveTheta(i);
        expected.Omega(i, 0) = tables.Omega(i, 0);
        expected.Alpha(i, 0) = tables.Alpha(i, 0);
        expected.Torque21Imported(i) = tables.Torque21Imported(i);
    }
    EXPECT_EQ(tables.DriveTheta, expected.DriveTheta);
    EXPECT_EQ(tables.Torque21Imported, expected.Torque21Imported);
    EXPECT_EQ(tables.Omega, expected.Omega);
    EXPECT_EQ(tables.Alpha, expected.Alpha);
    EXPECT_EQ(tables.Theta, expected.Theta);
    EXPECT_EQ(tables.PointPos, expected.PointPos);
    EXPECT_EQ(tables.TorqueTable, expected.TorqueTable);
}

TEST_F(ModelLayout, RebuildsWhatTheFileDoesNotHold) {
    Poison_All(*program, Model_Lines());
    Read(Joined(Model_File_Lines()));

    constexpr double kFactor = 3.141592654 / 180;
    EXPECT_FLOAT_EQ(model.Delta3, static_cast<float>(-8.5 * kFactor));
    EXPECT_FLOAT_EQ(model.Delta4, static_cast<float>(-30.5 * kFactor));
    EXPECT_FLOAT_EQ(model.Delta5, static_cast<float>(80 * kFactor));
    EXPECT_FLOAT_EQ(model.ThetaMin, static_cast<float>(30 * kFactor));
    EXPECT_FLOAT_EQ(model.ThetaMax, static_cast<float>(390 * kFactor));
    EXPECT_FLOAT_EQ(model.ThetaStep, static_cast<float>(4.5 * kFactor));
    EXPECT_EQ(model.Delta3Text, "-8.5");
    EXPECT_EQ(model.Delta4Text, "-30.5");
    EXPECT_EQ(model.Delta5Text, "80");
    EXPECT_EQ(model.ThetaMinText, "30");
    EXPECT_EQ(model.ThetaMaxText, "390");
    EXPECT_EQ(model.ThetaStepText, "4.5");

    // O4 = (3, -4) turned back by its file's ground angle, -53.125 degrees.
    const std::complex<double> o4 = std::complex<double>(3, -4) * std::polar(1.0, 53.125 * kFactor);
    const std::complex<double> o6(8, 4);
    EXPECT_NEAR(model.O4LocalX, o4.real(), 1e-6);
    EXPECT_NEAR(model.O4LocalY, o4.imag(), 1e-6);
    EXPECT_NEAR(model.O4O6X, (o6 - o4).real(), 1e-6);
    EXPECT_NEAR(model.O4O6Y, (o6 - o4).imag(), 1e-6);
    EXPECT_NEAR(model.O4O6Length, std::abs(o6 - o4), 1e-6);
    EXPECT_NEAR(model.O4O6Angle, std::arg(o6 - o4), 1e-6);
    EXPECT_NEAR(model.O2O6Length, std::abs(o6), 1e-6);
    EXPECT_NEAR(model.O2O6AngleDeg, std::arg(o6) / kFactor, 1e-5);
    EXPECT_NEAR(model.O2O6Angle, std::arg(o6), 1e-6);
    const float lengths[] = {8.75F, 5, 2.5F, 8.64F, 7.4F, 6.1F, 1.75F, 3.25F, model.O2O6Length};
    EXPECT_THAT(std::vector<float>(model.LinkTable.begin(), model.LinkTable.end()),
                ElementsAreArray(lengths));
}

TEST_F(ModelLayout, SetsTheSignsOfAssemblyFromTheCodesOfTheFile) {
    Read(Joined(Model_File_Lines()));  // Stage 1 crossed, Stage 2 open
    EXPECT_EQ(model.OpenSign1, 1);
    EXPECT_EQ(model.OpenCross1Text, "Crossed");
    EXPECT_EQ(model.OpenSign2, -1);
    EXPECT_EQ(model.OpenCross2Text, "Open");
}

TEST_F(ModelLayout, PutsTheUnitsOfTheFile) {
    Read(Joined(Model_File_Lines()));  // system 3
    EXPECT_EQ(model.UnitText(4), "m/sec");
    EXPECT_EQ(model.UnitText(6), "m");
    EXPECT_EQ(model.UnitText(9), "N-m");
    EXPECT_EQ(model.UnitText(14), "kg");
    EXPECT_EQ(model.UnitText(15), "kg-m^2");
    EXPECT_EQ(model.UnitText(18), "N-m");
}

TEST_F(ModelLayout, WritesWhatItReadButForTheRecomputedGroundLink) {
    Read(Joined(Model_File_Lines()));
    std::vector<std::string> expected = Model_File_Lines();
    std::vector<std::string> written = Lines_Of(Saved());
    ASSERT_GT(written.size(), 20U);
    // Line 21 held a length that does not follow from the pivots.
    EXPECT_NEAR(std::strtod(written[20].c_str(), nullptr), 5, 1e-3);
    written[20] = expected[20];
    EXPECT_THAT(written, ElementsAreArray(expected));
}

TEST_F(ModelLayout, WritesTheIdentityOfTheRunningProgramWhateverFileWasRead) {
    std::vector<std::string> lines = Model_File_Lines();
    lines[1] = "\"7.9\"";
    lines[48] = "\"3.1\"";
    Read(Joined(lines));
    lines = Lines_Of(Saved());
    EXPECT_EQ(lines[0], "\"KERVOL for Windows\"");
    EXPECT_EQ(lines[1], "\"7.0\"");
    EXPECT_EQ(lines[48], "\"2.2\"");
}

TEST_F(ModelLayout, TheSecondCopyOfATwiceWrittenFieldStays) {
    std::vector<std::string> lines = Model_File_Lines();
    lines[7] = "\"first title\"";
    lines[45] = "\"second title\"";
    lines[105] = "1.25";
    lines[110] = "2.25";
    Read(Joined(lines));
    EXPECT_EQ(model.ModelTitle, "second title");
    EXPECT_EQ(model.DriveArmLength, 2.25F);
}

TEST_F(ModelLayout, ReadsTheSameFileWithOtherLineEndsAndAByteOrderMark) {
    Read(Joined(Model_File_Lines()));
    const LinkageModel expected = model;
    for (const std::string& content :
         {Joined(Model_File_Lines(), "\n"), Joined(Model_File_Lines(), "\r"),
          "\xEF\xBB\xBF" + Joined(Model_File_Lines()), Joined(Model_File_Lines(), ",")}) {
        Poison_All(*program, Model_Lines());
        Read(content);
        EXPECT_THAT(Differing_Fields(model, expected), IsEmpty());
    }
}

TEST_F(ModelLayout, ATitleWithACommaSurvives) {
    model.ModelTitle = "crank, coupler, rocker";
    const std::string content = Saved();
    model.ModelTitle = "?";
    Read(content);
    EXPECT_EQ(model.ModelTitle, "crank, coupler, rocker");
}

TEST_F(ModelLayout, ATitleWithADoubleQuoteDoesNotSurvive) {
    model.ModelTitle = "a \"quoted\" word";
    const std::string content = Saved();
    Read(content);
    EXPECT_EQ(model.ModelTitle, "a ");
}

TEST_F(ModelLayout, TextsBeyondAsciiAreWrittenAsUtf8WithoutAMark) {
    model.UserName = "M\xC3\xBCller";
    const std::string content = Saved();
    EXPECT_EQ(content.substr(0, 8), "\"KERVOL ");
    EXPECT_EQ(Lines_Of(content)[3], "\"M\xC3\xBCller\"");
}

}  // namespace
}  // namespace kervol
