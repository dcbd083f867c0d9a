// SPDX-License-Identifier: GPL-3.0-or-later
// The table on the screen: heads, numbers, statistics, sizes.
#include "catalogue/data_grid.h"

#include <vector>

#include "catalogue/table_fixture.h"
#include "core/header.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

class DataGrid : public TableTest {
  protected:
    void Fill() { Fill_Grid(*program, labels, form); }

    std::vector<std::string> Row(int row) const {
        std::vector<std::string> texts;
        for (int column = 0; column < grid.Columns(); ++column) texts.push_back(grid(row, column));
        return texts;
    }
    void Expect_Rows(const std::vector<std::vector<std::string>>& rows) const {
        ASSERT_EQ(grid.Rows(), static_cast<int>(rows.size()));
        for (std::size_t row = 0; row < rows.size(); ++row)
            EXPECT_EQ(Row(static_cast<int>(row)), rows[row]) << row;
    }

    DataView form;
    Grid& grid = form.grd_Data;
};

TEST_F(DataGrid, ShowsHeadsStatisticsAndRowsOfAnAngleDrive) {
    Choose({{"Theta3", "Mag"}, {"Veloc I 2,3", "Ang"}});
    Fill();
    // Over 37 steps of which 4 count: 61 / 37 = 1.6486, 3 * 53.1301 / 37 = 4.3079.
    Expect_Rows({{"Crank", "Theta3", "Veloc I 2,3"},
                 {"Angle", "Mag", "Ang"},
                 {"deg", "degrees", "deg"},
                 {"Min", "0.000", "0.000"},
                 {"Avg", "1.649", "4.308"},
                 {"Max", "30.250", "53.130"},
                 {"0.000", "0.250", "0.000"},
                 {"100.000", "10.250", "53.130"},
                 {"200.000", "20.250", "53.130"},
                 {"300.000", "30.250", "53.130"}});
}

TEST_F(DataGrid, ShowsHeadsStatisticsAndRowsOfATimeDrive) {
    model.LinkageType = "S";
    model.NumSteps = 3;
    model.PrintStep = 1;
    program->output.DecimalPlaces = 1;
    for (const int mode : {1, 2, 4, 5}) {
        model.CalcMode = static_cast<std::int16_t>(mode);
        Choose({{"Omega4", "Mag"}});
        Fill();
        Expect_Rows({{"Time", "Omega4"},
                     {"Step", "Mag"},
                     {"sec", "rad/sec"},
                     {"Min", "-3,000.0"},
                     {"Avg", "-1,500.0"},
                     {"Max", "0.0"},
                     {"1.0", "0.0"},
                     {"1.3", "-1,000.0"},  // 1.25: a half away from zero
                     {"1.5", "-2,000.0"},
                     {"1.8", "-3,000.0"}});
    }
}

TEST_F(DataGrid, CountsStepsThatWereNotPrintedAsZeros) {
    for (int step = 0; step <= 36; ++step) tables.Theta(step, 1) = 5;
    Choose({{"Theta3", "Mag"}});
    Fill();
    EXPECT_THAT(Row(3), ElementsAre("Min", "0.000"));
    EXPECT_THAT(Row(4), ElementsAre("Avg", "0.541"));  // 4 * 5 / 37
    EXPECT_THAT(Row(5), ElementsAre("Max", "5.000"));
    for (int step = 0; step <= 36; ++step) tables.Theta(step, 1) = -5;
    Fill();
    EXPECT_THAT(Row(3), ElementsAre("Min", "-5.000"));
    EXPECT_THAT(Row(5), ElementsAre("Max", "0.000"));
    model.PrintStep = 1;
    Fill();
    EXPECT_THAT(Row(4), ElementsAre("Avg", "-5.000"));
    EXPECT_THAT(Row(5), ElementsAre("Max", "-5.000"));
}

TEST_F(DataGrid, OfOnePositionHasOneRow) {
    model.NumSteps = 0;
    Choose({{"Theta3", "Mag"}});
    Fill();
    ASSERT_EQ(grid.Rows(), 7);
    EXPECT_THAT(Row(4), ElementsAre("Avg", "0.250"));
    EXPECT_THAT(Row(6), ElementsAre("0.000", "0.250"));
}

TEST_F(DataGrid, TakesEveryStepOfTheLongestSweep) {
    model.NumSteps = 1024;
    model.PrintStep = 1;
    Choose({{"Theta3", "Mag"}, {"Veloc I 2,3", "X"}});
    Fill();
    ASSERT_EQ(grid.Rows(), 1031);
    EXPECT_THAT(Row(1030), ElementsAre("10,240.000", "1,024.250", "3,072.000"));
    EXPECT_THAT(Row(4), ElementsAre("Avg", "512.250", "1,536.000"));
}

TEST_F(DataGrid, ShowsTheSpectrumByHarmonics) {
    Choose_Spectrum();
    Fill();
    Expect_Rows({{"Harmonic", "Current FFT", "Current FFT", "Current FFT", "Current FFT"},
                 {"Number", "X", "Y", "Mag", "Ang"},
                 {"", "rad/sec", "rad/sec", "rad/sec", "rad/sec"},
                 {"Min", "0.000", "0.000", "0.000", "0.000"},
                 {"Avg", "1.500", "3.000", "4.500", "6.000"},
                 {"Max", "3.000", "6.000", "9.000", "12.000"},
                 {"0", "0.000", "0.000", "0.000", "0.000"},
                 {"1", "1.000", "2.000", "3.000", "4.000"},
                 {"2", "2.000", "4.000", "6.000", "8.000"},
                 {"3", "3.000", "6.000", "9.000", "12.000"}});
    EXPECT_EQ(form.lbl_Header3.caption, "Fourier Transform of  Omega4");
    program->fourier.NumHarmonics = 600;
    Fill();
    EXPECT_EQ(grid.Rows(), 512 + 7);
}

TEST_F(DataGrid, ClearsTheOldTableBeforeAShorterOneOnly) {
    // A fault in the first number keeps the rest of the grid as it was.
    const auto fill_to_the_first_fault = [&] {
        program->selections.SelIndex(1) = 99;
        Fill();
        Expect_Fault(9, "Fill_Grid");
    };
    Choose({{"Theta3", "Mag"}});
    Fill();
    EXPECT_EQ(program->output.GridRows, 10);
    EXPECT_EQ(program->output.GridCols, 2);
    model.NumSteps = 50;
    fill_to_the_first_fault();
    EXPECT_EQ(grid.Rows(), 12);
    EXPECT_EQ(grid(9, 1), "30.250");
    EXPECT_EQ(grid(11, 1), "");
    fill_to_the_first_fault();
    EXPECT_EQ(grid(9, 1), "30.250") << "as long as the last one";
    model.NumSteps = 40;
    fill_to_the_first_fault();
    EXPECT_EQ(grid.Rows(), 11);
    EXPECT_EQ(grid(9, 1), "");
    EXPECT_EQ(grid(0, 1), "Theta3");
}

TEST_F(DataGrid, SharesItsWidthAmongItsColumns) {
    grid.width = 1000;
    Choose({{"Theta3", "Mag"}, {"Omega4", "Mag"}});
    Fill();
    EXPECT_EQ(grid.column_width, 313);  // 940 / 3
    grid.width = 101;
    Choose({{"Theta3", "Mag"}});
    Fill();
    EXPECT_EQ(grid.column_width, 47);  // 94.94 cut, then halved
}

TEST_F(DataGrid, PutsHeadersAndStateBesideTheTable) {
    Choose({{"Theta3", "Mag"}});
    program->selections.LocalCoords = 2;
    Fill();
    EXPECT_EQ(form.lbl_Header.caption, Put_Header(model));
    EXPECT_EQ(form.lbl_Header2.caption, "Selected Linkage Parameters");
    EXPECT_EQ(form.lbl_Header3.caption, "");
    EXPECT_EQ(form.lbl_Left[4].caption, "Link O4-D");
    EXPECT_EQ(form.lbl_Initial[0].caption, "Min Theta");
    EXPECT_EQ(form.lbl_Coord.caption, "Local Rotating");
}

TEST_F(DataGrid, OfTooManyStepsIsReported) {
    model.NumSteps = 1025;
    Choose({{"Theta3", "Mag"}});
    model.PrintStep = 1;
    Fill();
    Expect_Fault(9, "Fill_Grid");
    EXPECT_EQ(grid(1030, 1), "1,024.250");
    EXPECT_EQ(grid(3, 1), "") << "no statistics of a table that is not whole";
}

}  // namespace
}  // namespace kervol
