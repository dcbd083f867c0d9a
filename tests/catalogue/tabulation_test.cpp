// SPDX-License-Identifier: GPL-3.0-or-later
// Tables in files and on paper: headers, heads, units, rows, page breaks.
#include "catalogue/tabulation.h"

#include <algorithm>
#include <vector>

#include "catalogue/table_fixture.h"
#include "headless/text_printer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class Tabulation : public TableTest {
  protected:
    /// The table as file text, date and time replaced by DATE and TIME.
    std::string File() {
        std::string text;
        Print_to_File(*program, labels, text);
        return Without_Clock(text);
    }
    /// The printed pages, likewise.
    std::vector<std::string> Pages() {
        PrintedDocument document;
        TextPrinter printer(document);
        Print_to_Printer(*program, labels, printer);
        EXPECT_TRUE(document.ended);
        for (std::string& page : document.pages) page = Without_Clock(page);
        return document.pages;
    }
    std::string Without_Clock(std::string text) {
        const DateAndTime now = port.Short_Date_And_Time();
        Replace(text, now.date, "DATE------");  // as wide as a date
        Replace(text, now.time, "TIME-");
        return text;
    }
    static void Replace(std::string& text, const std::string& old, const std::string& with) {
        for (std::size_t at = text.find(old); at != std::string::npos; at = text.find(old, at))
            text.replace(at, old.size(), with);
    }

    TableOutput& output = program->output;
};

std::string Lines_From(const std::string& text, int first) {
    std::size_t at = 0;
    for (int line = 0; line < first; ++line) at = text.find('\n', at) + 1;
    return text.substr(at);
}

TEST_F(Tabulation, NamesItsFirstColumnByTheDrive) {
    for (const int mode : {1, 2, 3, 4, 5}) {
        model.CalcMode = static_cast<std::int16_t>(mode);
        Make_Headers(*program);
        EXPECT_EQ(output.HeaderLine1, "Selected Linkage Parameters");
        EXPECT_EQ(output.HeaderLine2, "");
        EXPECT_EQ(output.HeaderLine3, mode == 3 ? "Angle" : "Time");
        EXPECT_EQ(output.HeaderLine4, "Step");
        EXPECT_EQ(output.HeaderLine5, mode == 3 ? "Deg" : "Sec");
    }
}

TEST_F(Tabulation, KeepsHeadersThatNothingDecides) {
    output.HeaderLine2 = "kept";
    output.HeaderLine3 = "kept";
    program->selections.LocalCoords = 1;
    model.CalcMode = 6;
    Make_Headers(*program);
    EXPECT_EQ(output.HeaderLine2, "kept");
    EXPECT_EQ(output.HeaderLine3, "kept");
    EXPECT_EQ(output.HeaderLine5, "Sec");
    program->selections.LocalCoords = 2;
    Make_Headers(*program);
    EXPECT_EQ(output.HeaderLine2, "");
}

TEST_F(Tabulation, NamesTheTransformedFunction) {
    program->fourier.FFTFunctionName = "Omega4";
    program->selections.SelFFT = true;
    Make_Headers(*program);
    EXPECT_EQ(output.HeaderLine2, "Fourier Transform of  Omega4");
}

TEST_F(Tabulation, WritesTheWholeFileOfAnAngleDrive) {
    Choose({{"Theta3", "Mag"}, {"Veloc I 2,3", "Ang"}});
    // Title and "File " in zones of 14; four heads whatever is selected; the angle in the unit of its table.
    EXPECT_EQ(File(),
              "KERVOL for Windows          File \tfour\t\tDesign #\t7\r\n"
              "Ann\t\tDATE------\t\tTIME-\r\n"
              "\r\n"
              "   Selected Linkage Parameters\r\n"
              "   \r\n"
              "\r\n"
              "Angle\tTheta3\tVeloc I 2,3\t\t\t\r\n"
              "\r\n"
              "Step\tMag\tAng\t\t\t\r\n"
              "\r\n"
              "Deg\tdegrees\tin/sec\t\t\t\r\n"
              "\r\n"
              "0.000\t0.250\t0.000\t\r\n"
              "100.000\t10.250\t53.130\t\r\n"
              "200.000\t20.250\t53.130\t\r\n"
              "300.000\t30.250\t53.130\t\r\n");
}

TEST_F(Tabulation, WritesTheWholeFileOfAStephensonChainOverTime) {
    model.LinkageType = "S";
    for (const int mode : {2, 4, 5}) {
        model.CalcMode = static_cast<std::int16_t>(mode);
        model.NumSteps = 2;
        model.PrintStep = 1;
        output.DecimalPlaces = 2;
        Choose({{"Veloc I 2,3", "X"}, {"Veloc I 2,3", "Y"}, {"Veloc I 2,3", "Mag"}, {"Omega4", "Mag"}});
        EXPECT_EQ(Lines_From(File(), 6),
                  "Time\tVeloc I 2,3\tVeloc I 2,3\tVeloc I 2,3\tOmega4\t\r\n"
                  "\r\n"
                  "Step\tX\tY\tMag\tMag\t\r\n"
                  "\r\n"
                  "Sec\tin/sec\tin/sec\tin/sec\trad/sec\t\r\n"
                  "\r\n"
                  "1.00\t0.00\t0.00\t0.00\t0.00\t\r\n"
                  "1.25\t3.00\t4.00\t5.00\t-1,000.00\t\r\n"
                  "1.50\t6.00\t8.00\t10.00\t-2,000.00\t\r\n");
    }
}

TEST_F(Tabulation, PrintsOneRowForOnePosition) {
    model.CalcMode = 1;
    model.NumSteps = 0;
    Choose({{"Theta3", "Mag"}});
    EXPECT_THAT(File(), EndsWith("Sec\tdegrees\t\t\t\t\r\n\r\n1.000\t0.250\t\r\n"));
}

TEST_F(Tabulation, AppendsToWhatTheFileHolds) {
    Choose({{"Theta3", "Mag"}});
    std::string text = "before";
    Print_to_File(*program, labels, text);
    EXPECT_THAT(text, StartsWith("beforeKERVOL for Windows"));
}

TEST_F(Tabulation, ShowsTheUnitOfWhatASlotHeldBefore) {
    Choose({{"Omega4", "Mag"}, {"Theta3", "Mag"}, {"Veloc I 2,3", "X"}});
    Choose({{"Omega4", "Mag"}});
    EXPECT_THAT(File(), HasSubstr("Step\tMag\t\t\t\t\r\n\r\nDeg\trad/sec\tdegrees\tin/sec\t\t\r\n\r\n"));
}

TEST_F(Tabulation, CountsAPrintStepBelow1As1) {
    model.NumSteps = 2;
    Choose({{"Theta3", "Mag"}});
    for (const int apart : {0, -5}) {
        model.PrintStep = static_cast<std::int16_t>(apart);
        EXPECT_EQ(Lines_From(File(), 12), "0.000\t0.250\t\r\n10.000\t1.250\t\r\n20.000\t2.250\t\r\n");
    }
}

TEST_F(Tabulation, LeavesOutALastStepOffThePattern) {
    Choose({{"Theta3", "Mag"}});
    model.NumSteps = 40;
    EXPECT_THAT(File(), EndsWith("\n400.000\t40.250\t\r\n"));
    model.NumSteps = 39;
    EXPECT_THAT(File(), EndsWith("\n300.000\t30.250\t\r\n"));
}

TEST_F(Tabulation, TurnsALocalFrameByTheSelectionThatWasPlottedLast) {
    model.LinkageType = "W";
    model.NumSteps = 0;
    program->selections.LocalCoords = 2;
    tables.PointVel(0, 1, 0) = 1;
    tables.Theta(0, 0) = 90;
    tables.Theta(0, 2) = 180;
    Choose({{"Veloc I 2,3", "X"}, {"Veloc I 3,4", "X"}, {"Veloc I 3,4", "Y"}});
    // Selection 0 was never used: turned with the crank by -90 degrees, (1, 0) becomes (0, -1).
    EXPECT_THAT(File(), EndsWith("\n90.000\t0.000\t0.000\t-1.000\t\r\n"));
    program->selections.SelCurrent = 2;  // turned with link 4
    EXPECT_THAT(File(), EndsWith("\n90.000\t0.000\t-1.000\t0.000\t\r\n"));
}

TEST_F(Tabulation, WritesTheSpectrumByHarmonics) {
    Choose_Spectrum();
    EXPECT_EQ(Lines_From(File(), 3),
              "   Selected Linkage Parameters\r\n"
              "   Fourier Transform of  Omega4\r\n"
              "\r\n"
              "Angle\tCurrent FFT\tCurrent FFT\tCurrent FFT\tCurrent FFT\t\r\n"
              "\r\n"
              "Step\tX\tY\tMag\tAng\t\r\n"
              "\r\n"
              "Deg\trad/sec\trad/sec\trad/sec\trad/sec\t\r\n"
              "\r\n"
              "0\t0.000\t0.000\t0.000\t0.000\t\r\n"
              "1\t1.000\t2.000\t3.000\t4.000\t\r\n"
              "2\t2.000\t4.000\t6.000\t8.000\t\r\n"
              "3\t3.000\t6.000\t9.000\t12.000\t\r\n");
    program->fourier.NumHarmonics = 900;
    EXPECT_THAT(File(), EndsWith("\n512\t512.000\t1,024.000\t1,536.000\t2,048.000\t\r\n"));
}

TEST_F(Tabulation, OfTooManyStepsWritesWhatThereIsAndReportsTheFault) {
    model.CalcMode = 2;
    model.NumSteps = 1030;
    model.PrintStep = 1;
    Choose({{"Theta3", "Mag"}});
    const std::string text = File();
    Expect_Fault(9, "Print_to_File");
    EXPECT_THAT(text, EndsWith("\n257.000\t1,024.250\t\r\n257.250\t"));
}

constexpr const char* kPageHeader =
    "KERVOL for Windows          File: four    Design #7     Page 1\n"
    "By: Ann       DATE------    TIME-\n"
    "Selected Linkage Parameters\n"
    "\n"
    "Angle         Theta3        Veloc I 2,3\n"
    "Step          Mag           Ang\n"
    "Deg           degrees       deg\n"
    "\n"
    "\n";

TEST_F(Tabulation, PrintsTheWholePageOfAnAngleDrive) {
    Choose({{"Theta3", "Mag"}, {"Veloc I 2,3", "Ang"}});
    EXPECT_THAT(Pages(), ElementsAre(std::string(kPageHeader) + "0.000         0.250         0.000\n"
                                                                "100.000       10.250        53.130\n"
                                                                "200.000       20.250        53.130\n"
                                                                "300.000       30.250        53.130\n"));
}

TEST_F(Tabulation, PrintsTheWholePageOfATimeDrive) {
    model.CalcMode = 2;
    model.NumSteps = 1;
    model.PrintStep = 1;
    Choose({{"Veloc I 2,3", "X"}, {"Veloc I 2,3", "Y"}, {"Veloc I 2,3", "Mag"}, {"Omega4", "Mag"}});
    ASSERT_EQ(Pages().size(), 1U);
    EXPECT_EQ(Lines_From(Pages()[0], 2),
              "Selected Linkage Parameters\n"
              "\n"
              "Time          Veloc I 2,3   Veloc I 2,3   Veloc I 2,3   Omega4\n"
              "Step          X             Y             Mag           Mag\n"
              "Sec           in/sec        in/sec        in/sec        rad/sec\n"
              "\n"
              "\n"
              "1.000         0.000         0.000         0.000         0.000\n"
              "1.250         3.000         4.000         5.000         -1,000.000\n");
}

TEST_F(Tabulation, BreaksThePageBehind60Rows) {
    model.PrintStep = 1;
    Choose({{"Theta3", "Mag"}, {"Veloc I 2,3", "Ang"}});
    const auto rows = [](const std::string& page) {
        return std::count(page.begin(), page.end(), '\n') -
               std::count(kPageHeader, kPageHeader + std::string(kPageHeader).size(), '\n');
    };
    std::string second_header = kPageHeader;
    Replace(second_header, "Page 1", "Page 2");
    const struct {
        int steps;
        std::vector<long> rows;  // with the two empty lines of a full page
    } cases[] = {{58, {59}}, {59, {62, 0}}, {60, {62, 1}}, {119, {62, 62, 0}}, {149, {62, 62, 30}}};
    for (const auto& [steps, expected] : cases) {
        model.NumSteps = static_cast<std::int16_t>(steps);
        const std::vector<std::string> pages = Pages();
        ASSERT_EQ(pages.size(), expected.size()) << steps;
        for (std::size_t page = 0; page < pages.size(); ++page)
            EXPECT_EQ(rows(pages[page]), expected[page]) << steps;
        EXPECT_THAT(pages[0], StartsWith(kPageHeader));
        if (pages.size() < 2) continue;
        EXPECT_THAT(pages[0], EndsWith("590.000       59.250        53.130\n\n\n"));
        EXPECT_THAT(pages[1], StartsWith(second_header));
    }
    EXPECT_THAT(Lines_From(Pages()[1], 9), StartsWith("600.000       60.250        53.130\n"));
    EXPECT_THAT(Pages()[2], HasSubstr("Page 3\n"));
}

TEST_F(Tabulation, MovesATextThatFillsItsZoneOnByOne) {
    model.UserName = "0123456789";  // "By: " makes it 14 wide
    Choose({{"Theta3", "Mag"}});
    EXPECT_THAT(Pages()[0], HasSubstr("\nBy: 0123456789              DATE------    TIME-\n"));
    model.UserName = "J\xC3\xBCrgen";  // one letter of two bytes
    EXPECT_THAT(Pages()[0], HasSubstr("\nBy: J\xC3\xBCrgen    DATE------    TIME-\n"));
}

TEST_F(Tabulation, PrintsTheSpectrumByHarmonics) {
    Choose_Spectrum();
    EXPECT_EQ(Lines_From(Pages()[0], 2),
              "Selected Linkage Parameters\n"
              "Fourier Transform of  Omega4\n"
              "Angle         Current FFT   Current FFT   Current FFT   Current FFT\n"
              "Step          X             Y             Mag           Ang\n"
              "Deg           rad/sec       rad/sec       rad/sec       rad/sec\n"
              "\n"
              "\n"
              "0             0.000         0.000         0.000         0.000\n"
              "1             1.000         2.000         3.000         4.000\n"
              "2             2.000         4.000         6.000         8.000\n"
              "3             3.000         6.000         9.000         12.000\n");
}

TEST_F(Tabulation, OfTooManyStepsIsReportedAndItsDocumentNotEnded) {
    model.CalcMode = 2;
    model.NumSteps = 1030;
    Choose({{"Theta3", "Mag"}});
    PrintedDocument document;
    TextPrinter printer(document);
    Print_to_Printer(*program, labels, printer);
    Expect_Fault(9, "Print_to_Printer");
    EXPECT_FALSE(document.ended);
    EXPECT_THAT(document.pages.back(), EndsWith("\n256.000       1,020.250\n"));
}

}  // namespace
}  // namespace kervol
