// SPDX-License-Identifier: GPL-3.0-or-later
// Input files of the older program: every field, what is worked out from it, and what keeps its value.
#include "files/legacy_file.h"

#include <cmath>

#include "files/model_file.h"
#include "files/sample_lines.h"
#include "support/compare.h"
#include "support/program_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class LegacyFile : public ProgramTest {
  protected:
    ReadEnd Read(const std::vector<std::string>& lines) { return Read(Joined(lines)); }
    ReadEnd Read(const std::string& content) {
        ValueReader file(content);
        return Readfile(*program, file);
    }
    void Expect_Success() { Expect_Box("File  successfully read.", Icon::Information); }
    /// Reads the sample cut to that many lines.
    void Read_Cut(std::size_t count) {
        std::vector<std::string> lines = Legacy_File_Lines();
        lines.resize(count);
        EXPECT_EQ(Read(lines), ReadEnd::Cut);
        Expect_Box("Error 62   (Input past end of file)  has occurred in Read_Oldfile_6\r\r",
                   Icon::Information);
        Expect_Success();
    }
    /// Reads the sample with one line replaced.
    ReadEnd Read_With(std::size_t line, const std::string& text) {
        std::vector<std::string> lines = Legacy_File_Lines();
        lines.at(line - 1) = text;
        return Read(lines);
    }
};

TEST_F(LegacyFile, ReadsEveryLineIntoItsField) {
    Poison_All(*program, Legacy_Lines());
    EXPECT_EQ(Read(Legacy_File_Lines()), ReadEnd::Whole);
    Expect_Success();
    for (const SampleLine& line : Legacy_Lines()) {
        if (line.line == 19) continue;  // the length of O4-O6 is recomputed
        EXPECT_TRUE(Holds(model, line)) << "line " << line.line;
    }
    EXPECT_THAT(port.screens, ::testing::ElementsAre(ScreenId::frm_Inputnew));
}

TEST_F(LegacyFile, ConvertsTheOffsetAnglesToDegreesWithTwoDecimalsInTheirTexts) {
    Read(Legacy_File_Lines());
    Expect_Success();
    // 0.5, -0.25 and 1.125 radians by 180 / 3.141592654.
    EXPECT_EQ(model.Delta3, 0.5F);
    EXPECT_FLOAT_EQ(model.Delta3Deg, 28.647890F);
    EXPECT_EQ(model.Delta3Text, "28.65");
    EXPECT_EQ(model.Delta4, -0.25F);
    EXPECT_FLOAT_EQ(model.Delta4Deg, -14.323945F);
    EXPECT_EQ(model.Delta4Text, "-14.32");
    EXPECT_EQ(model.Delta5, 1.125F);
    EXPECT_FLOAT_EQ(model.Delta5Deg, 64.457752F);
    EXPECT_EQ(model.Delta5Text, "64.46");
}

TEST_F(LegacyFile, TakesTheRangeFromItsTextsAndRoundsTheRadiansToThreePlaces) {
    Read(Legacy_File_Lines());
    Expect_Success();
    EXPECT_EQ(model.ThetaMinText, "36.5");
    EXPECT_EQ(model.ThetaMinDeg, 36.5F);
    EXPECT_EQ(model.ThetaMin, 0.637F);  // 0.637045...
    EXPECT_EQ(model.ThetaMaxText, " 396.5 deg") << "the text stays, its number counts";
    EXPECT_EQ(model.ThetaMaxDeg, 396.5F);
    EXPECT_EQ(model.ThetaMax, 6.92F);  // 6.92023...
    EXPECT_EQ(model.ThetaStepText, "4.5");
    EXPECT_EQ(model.ThetaStepDeg, 4.5F);
    EXPECT_EQ(model.ThetaStep, 0.079F);  // 0.0785398...
}

TEST_F(LegacyFile, ARangeAngleMayBeNegativeOrNoNumberAtAll) {
    Read_With(42, "\"-90\"");  // -1.570796 radians
    Expect_Success();
    EXPECT_EQ(model.ThetaMin, -1.571F);
    Read_With(42, "no number");
    Expect_Success();
    EXPECT_EQ(model.ThetaMinDeg, 0);
    EXPECT_EQ(model.ThetaMin, 0);
    EXPECT_EQ(model.ThetaMinText, "no number");
}

TEST_F(LegacyFile, TheSecondDriveModeStays) {
    Read_With(46, "5");
    Expect_Success();
    EXPECT_EQ(model.CalcMode, 2);
    Read_Cut(70);  // between the two
    EXPECT_EQ(model.CalcMode, 1);
}

TEST_F(LegacyFile, FieldsThatAreNotInTheFormatKeepTheirValues) {
    // Everything that the format holds or that is rebuilt from it.
    const std::vector<std::string> touched = {
        "ModelName",      "UserName",       "DesignNumber", "DateText",      "TimeText",     "Link1",
        "Link2",          "Link3",          "Link4",        "CouplerAC",     "Delta3",       "Delta3Deg",
        "Delta3Text",     "ModelTitle",     "LinkageType",  "LinkO4D",       "Link5",        "Link6",
        "Delta4",         "Delta4Deg",      "Delta4Text",   "Coupler2Spare", "Delta5",       "Delta5Deg",
        "Delta5Text",     "Coupler2Length", "O6X",          "O6LocalY",      "OpenCross1",   "TimeStart",
        "TimeEnd",        "TimeStep",       "Theta2One",    "Omega2Start",   "Alpha2Const",  "ThetaMinText",
        "ThetaMinDeg",    "ThetaMin",       "ThetaMaxText", "ThetaMaxDeg",   "ThetaMax",     "ThetaStepText",
        "ThetaStepDeg",   "ThetaStep",      "CalcMode",     "ShowTrace",     "StepMode",     "HideLinks",
        "AngleRange",     "PrintStep",      "O4O6Y",        "O4O6Length",    "O4O6AngleDeg", "O4O6Angle",
        "O2O6Length",     "O2O6AngleDeg",   "O2O6Angle",    "LinkTable",     "OpenSign1",    "OpenCross1Text",
        "OpenCross2Text", "DataFromFile"};
    const LinkageModel before = model;
    Read(Legacy_File_Lines());
    Expect_Success();
    EXPECT_THAT(Differing_Fields(model, before), ::testing::UnorderedElementsAreArray(touched));
    EXPECT_EQ(model.O6LocalX, 14.375F);
    EXPECT_EQ(model.O4X, 9.375F);
    EXPECT_EQ(model.O6Y, 2);
    EXPECT_EQ(model.GroundAngleDeg, 0);
    EXPECT_EQ(model.LinkMass(2), 0.003F);
}

TEST_F(LegacyFile, TheLengthOfTheGroundLinkStaysBesideTheOldPivot) {
    Read(Legacy_File_Lines());
    Expect_Success();
    EXPECT_EQ(model.Link1, 6.05F);
    EXPECT_EQ(model.O4X, 9.375F);
    EXPECT_EQ(model.O4LocalX, 9.375F);
    EXPECT_EQ(model.LinkTable(1), 6.05F);
    // O6 is half the file's and half the model's: (14.375, -2.25) from O4 at (9.375, 0).
    EXPECT_EQ(model.O4O6X, 5);
    EXPECT_EQ(model.O4O6Y, -2.25F);
    EXPECT_FLOAT_EQ(model.O4O6Length, std::hypot(5.0F, 2.25F));
}

TEST_F(LegacyFile, O4InTheLocalFrameIsTurnedByTheGroundAngleThatStands) {
    model.GroundAngleDeg = 90;
    Read(Legacy_File_Lines());
    Expect_Success();
    EXPECT_NEAR(model.O4LocalX, 0, 1e-6);
    EXPECT_FLOAT_EQ(model.O4LocalY, -9.375F);
}

TEST_F(LegacyFile, SetsTheSignsOfAssembly) {
    Read(Legacy_File_Lines());
    Expect_Success();
    EXPECT_EQ(model.OpenSign1, 1);
    EXPECT_EQ(model.OpenCross1Text, "Crossed");
    EXPECT_EQ(model.OpenSign2, -1);
    EXPECT_EQ(model.OpenCross2Text, "Open");
}

TEST_F(LegacyFile, ACutIsReportedUnderTheReadersName) {
    Read_Cut(20);
}

TEST_F(LegacyFile, AnOffsetAngleIsConvertedAsSoonAsItsGroupOfFieldsIsRead) {
    const float old3 = model.Delta3Deg, old4 = model.Delta4Deg, old5 = model.Delta5Deg;
    Read_Cut(12);
    EXPECT_EQ(model.Delta3Deg, old3);
    Read_Cut(13);
    EXPECT_FLOAT_EQ(model.Delta3Deg, 28.647890F);
    Read_Cut(20);  // the angle itself has been read, the distance behind it has not
    EXPECT_EQ(model.Delta4, -0.25F);
    EXPECT_EQ(model.Delta4Deg, old4);
    EXPECT_EQ(model.Delta4Text, "-30");
    Read_Cut(21);
    EXPECT_FLOAT_EQ(model.Delta4Deg, -14.323945F);
    EXPECT_EQ(model.Delta5Deg, old5);
    Read_Cut(22);
    EXPECT_FLOAT_EQ(model.Delta5Deg, 64.457752F);
}

TEST_F(LegacyFile, AnAngleTooLargeForSinglePrecisionStopsTheReader) {
    EXPECT_EQ(Read_With(13, "1E+38"), ReadEnd::Cut);
    Expect_Box("Error 6   (Overflow)  has occurred in Read_Oldfile_6\r\r", Icon::Information);
    Expect_Success();
    EXPECT_NE(model.ModelTitle, "Old title") << "a field behind the angle";
    EXPECT_EQ(Read_With(43, "\"1E+39\""), ReadEnd::Cut);
    Expect_Fault(6, "Read_Oldfile_6");
    Expect_Success();
    EXPECT_EQ(model.ThetaMinDeg, 36.5F);
    EXPECT_NE(model.ThetaStepText, "4.5");
}

TEST_F(LegacyFile, WhatFollowsTheLastFieldIsAnotherRecord) {
    std::vector<std::string> lines = Legacy_File_Lines();
    const std::vector<std::string> first = lines;
    lines.insert(lines.end(), first.begin() + 2, first.end());
    lines[72] = "\"SECOND\"";
    lines[72 + 70 - 1] = "9";
    EXPECT_EQ(Read(lines), ReadEnd::Whole);
    Expect_Success();
    EXPECT_EQ(model.ModelName, "SECOND");
    EXPECT_EQ(model.PrintStep, 9);

    lines.resize(74);
    EXPECT_EQ(Read(lines), ReadEnd::Cut);
    Expect_Fault(62, "Read_Oldfile_6");
    Expect_Success();
    EXPECT_EQ(model.ModelName, "SECOND");
    EXPECT_EQ(model.PrintStep, 8) << "of the first record";
}

TEST_F(LegacyFile, ATrailingBlankInTheIdentityIsRefused) {
    const LinkageModel before = model;
    EXPECT_EQ(Read_With(1, "\"KERVOL \""), ReadEnd::Refused);
    Expect_Box("This data file is not compatible with this version of KERVOL for Windows. ");
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
}

TEST_F(LegacyFile, TheVersionLineIsNotLookedAt) {
    for (const char* version : {"\"7.0\"", "6", "\"\"", "anything"}) {
        EXPECT_EQ(Read_With(2, version), ReadEnd::Whole) << version;
        Expect_Success();
    }
}

TEST_F(LegacyFile, DataOfTheOldModelCountAsNotCalculated) {
    model.DataCalculated = model.DynamicsCalculated = true;
    Read(Legacy_File_Lines());
    Expect_Success();
    EXPECT_TRUE(model.DataFromFile);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_FALSE(model.DynamicsCalculated);
    EXPECT_FALSE(model.Loading);
}

TEST_F(LegacyFile, StartingUpSilencesItToo) {
    model.StartingUp = true;
    EXPECT_EQ(Read(Legacy_File_Lines()), ReadEnd::Whole);
    EXPECT_EQ(Boxes_Left(), 0U);
}

TEST_F(LegacyFile, TextsOfTheOldCodePageBecomeUtf8) {
    Read_With(4, "\"M\xFCller & S\xF6hne\"");
    Expect_Success();
    EXPECT_EQ(model.UserName, "M\xC3\xBCller & S\xC3\xB6hne");
}

}  // namespace
}  // namespace kervol
