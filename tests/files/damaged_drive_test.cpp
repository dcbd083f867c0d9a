// SPDX-License-Identifier: GPL-3.0-or-later
// Drive files cut at every byte, with something else in place of a number, or full of noise: the fault's box
// or a whole read, never a crash, and what was not reached keeps its value.
#include <algorithm>
#include <random>

#include "files/drive_test.h"
#include "support/finite.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::AnyOf;
using ::testing::IsEmpty;

std::string Fault_Text(std::int32_t number, const std::string& name) {
    const std::string description = number == 6    ? "Overflow"
                                    : number == 13 ? "Type mismatch"
                                                   : "Input past end of file";
    return "Error " + std::to_string(number) + "   (" + description + ")  has occurred in " + name + "\r\r";
}

/// One of the two kinds of drive file.
struct Format {
    std::string name;
    std::string reader;
    std::span<const SampleLine> sample;
    std::vector<std::string> lines;
    std::vector<int> integers;  ///< lines of integers that are no field of the model
};

std::vector<Format> Formats() {
    return {{"cam file", "Read_Cam_Data", Cam_Lines(), Cam_File_Lines({}), {1, 20, 30, 39}},
            {"link output file", "Import_Linkage_Data", Link_Output_Lines(), Link_Output_File_Lines(), {}}};
}

class DamagedDrive : public DriveTest {
  protected:
    /// Reads into a poisoned program.
    ReadEnd Read_Poisoned(const Format& format, const std::string& content) {
        Poison_All(*program, format.sample);
        model.CamDriven = model.LinkDriven = false;
        model.CalcMode = 3;
        port.screens.clear();
        const ReadEnd end = format.reader == "Read_Cam_Data" ? Read_Cam(content) : Read_Link_Output(content);
        EXPECT_THAT(Not_Finite(*program), IsEmpty());
        return end;
    }

    void Expect_No_Drive() {
        EXPECT_FALSE(model.CamDriven || model.LinkDriven);
        EXPECT_EQ(model.CalcMode, 3);
        EXPECT_THAT(port.screens, IsEmpty());
    }

    /// Lines before `line` hold the sample, lines behind it what they held before.
    void Expect_Read_Up_To(const Format& format, int line, bool line_read) {
        for (const SampleLine& sample : format.sample) {
            if (sample.line < line || (sample.line == line && line_read)) {
                EXPECT_TRUE(Holds(model, sample)) << "line " << sample.line;
            } else if (sample.line > line) {
                EXPECT_TRUE(Is_Poisoned(model, sample)) << "line " << sample.line;
            }
        }
        const int first_row = static_cast<int>(format.lines.size()) - 2;
        for (int i = 0; i <= 2; ++i) {
            if (first_row + i < line) {
                EXPECT_EQ(tables.Alpha(i, 0), Row_Acceleration(i)) << "row " << i;
            } else if (first_row + i > line) {
                EXPECT_EQ(tables.DriveTheta(i), Poison) << "row " << i;
            }
        }
    }
};

/// Offsets at which the lines start; one more for the end of the file.
std::vector<std::size_t> Starts_Of(const std::vector<std::string>& lines) {
    std::vector<std::size_t> starts = {0};
    for (const std::string& line : lines) starts.push_back(starts.back() + line.size() + 2);
    return starts;
}

TEST_F(DamagedDrive, CutAtAnyByteKeepsWhatWasNotReached) {
    for (const Format& format : Formats()) {
        const std::string content = Joined(format.lines);
        const auto starts = Starts_Of(format.lines);
        const std::size_t last_value = content.rfind(',') + 2;  // behind the sign of the last number
        for (std::size_t length = 0; length <= last_value; ++length) {
            SCOPED_TRACE(format.name + " cut to " + std::to_string(length));
            const ReadEnd end = Read_Poisoned(format, content.substr(0, length));
            EXPECT_NE(end, ReadEnd::Whole);
            ASSERT_EQ(Boxes_Left(), 1U);
            EXPECT_THAT(Take_Box().text, AnyOf(Fault_Text(62, format.reader), Fault_Text(13, format.reader)));
            Expect_No_Drive();
            const auto next = std::upper_bound(starts.begin(), starts.end(), length == 0 ? 0 : length - 1);
            Expect_Read_Up_To(format, static_cast<int>(next - starts.begin()), length >= *next - 2);
            if (HasFailure()) return;  // one cut tells enough
        }
    }
}

TEST_F(DamagedDrive, WithOnlyPartOfItsLastNumberIsWhole) {
    for (const Format& format : Formats()) {
        const std::string content = Joined(format.lines);
        for (std::size_t length = content.rfind(',') + 3; length <= content.size(); ++length) {
            SCOPED_TRACE(format.name + " cut to " + std::to_string(length));
            EXPECT_EQ(Read_Poisoned(format, content.substr(0, length)), ReadEnd::Whole);
            EXPECT_THAT(Take_Box().text, ::testing::EndsWith(" data successfully read."));
            EXPECT_GT(model.CalcMode, 3);
        }
    }
}

class DamagedDriveLine : public DamagedDrive, public ::testing::WithParamInterface<const char*> {};

TEST_P(DamagedDriveLine, StopsTheReaderThere) {
    const std::string text = GetParam();
    for (const Format& format : Formats()) {
        for (const SampleLine& line : format.sample) {
            const bool is_integer =
                Kind_Of(line) == Kind::Int ||
                std::find(format.integers.begin(), format.integers.end(), line.line) != format.integers.end();
            if (Kind_Of(line) == Kind::Text && !is_integer) continue;
            if (text == "99999" && !is_integer) continue;
            SCOPED_TRACE(format.name + " line " + std::to_string(line.line) + ": " + text);
            std::vector<std::string> lines = format.lines;
            lines.at(static_cast<std::size_t>(line.line) - 1) = text;
            const std::int32_t fault = text == "1E+39" || text == "99999" ? 6 : 13;
            EXPECT_EQ(Read_Poisoned(format, Joined(lines)), line.line == 1 ? ReadEnd::Nothing : ReadEnd::Cut);
            Expect_Box(Fault_Text(fault, format.reader), Icon::Information);
            Expect_No_Drive();
            Expect_Read_Up_To(format, line.line, false);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, DamagedDriveLine,
                         ::testing::Values("abc", "\"abc\"", "99999", "1E+39", "", "nan", "-inf", "0x1F",
                                           "1.2.3", "#TRUE#"));

TEST_F(DamagedDrive, WithTextInARowStopsThere) {
    for (const Format& format : Formats())
        for (const char* row :
             {"x,1,2", "1.5,x,2", "1.5,101.25,x", "1.5,101.25,1E+39", "1.5;101.25;-1.125"}) {
            SCOPED_TRACE(format.name + ": " + row);
            std::vector<std::string> lines = format.lines;
            lines[lines.size() - 2] = row;
            EXPECT_EQ(Read_Poisoned(format, Joined(lines)), ReadEnd::Cut);
            EXPECT_THAT(Take_Box().text, AnyOf(Fault_Text(13, format.reader), Fault_Text(6, format.reader)));
            Expect_No_Drive();
            EXPECT_EQ(tables.Alpha(0, 0), Row_Acceleration(0));
            EXPECT_EQ(tables.DriveTheta(2), Poison);
        }
}

TEST_F(DamagedDrive, WithGeometryTooLargeIsReportedAndTaken) {
    // Each number fits single precision, the distance of the pivots does not.
    auto lines = Cam_File_Lines({});
    lines[33] = "3E+38";
    lines[25] = "-3E+38";
    lines[24] = "0";
    EXPECT_EQ(Read_Cam(Joined(lines)), ReadEnd::Whole);
    EXPECT_EQ(Take_Box().text, Fault_Text(6, "Derive_Geometry"));
    Expect_Cam_Box();
    EXPECT_THAT(Not_Finite(*program), IsEmpty());
}

TEST_F(DamagedDrive, OfNoiseNeverDoesMoreThanStopTheReader) {
    std::mt19937 bits(4714);
    // Bytes that numbers, texts and separators are made of, and some others.
    const std::string alphabet = "0123456789.,,,\r\n\r\n\"\"+-E #TRUEFALS\xFC" + std::string(1, '\0');
    for (const Format& format : Formats())
        for (int trial = 0; trial < 1000; ++trial) {
            SCOPED_TRACE(format.name + " trial " + std::to_string(trial));
            std::string noise = trial % 2 == 0 ? "6\r\n" : "1\r\n";
            for (int i = 0; i < 300; ++i) noise += alphabet[bits() % alphabet.size()];
            Read_Poisoned(format, noise);
            ASSERT_GE(Boxes_Left(), 1U);
            while (Boxes_Left() > 0) Take_Box();
            if (HasFailure()) return;
        }
}

TEST_F(DamagedDrive, WithBytesReplacedAnywhereNeverDoesMoreThanStopTheReader) {
    std::mt19937 bits(4715);
    for (const Format& format : Formats()) {
        const std::string content = Joined(format.lines);
        for (int trial = 0; trial < 700; ++trial) {
            SCOPED_TRACE(format.name + " trial " + std::to_string(trial));
            std::string damaged = content;
            for (int i = 0; i < 3; ++i) damaged[bits() % damaged.size()] = static_cast<char>(bits() & 0xFF);
            Read_Poisoned(format, damaged);
            ASSERT_GE(Boxes_Left(), 1U);
            while (Boxes_Left() > 0) Take_Box();
            if (HasFailure()) return;
        }
    }
}

}  // namespace
}  // namespace kervol
