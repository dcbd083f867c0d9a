// SPDX-License-Identifier: GPL-3.0-or-later
// The grid of texts: size, clearing, bounds.
#include "core/grid.h"

#include "core/thrown_fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

TEST(Grid, HasNoCellAtFirst) {
    Grid grid;
    EXPECT_EQ(grid.Rows(), 0);
    EXPECT_EQ(grid.Columns(), 0);
    Expect_Thrown(9, "", [&] { (void)grid(0, 0); });
}

TEST(Grid, KeepsTheTextsOfCellsThatStayWhenItIsResized) {
    Grid grid;
    grid.Resize(2, 3);
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 3; ++column)
            grid(row, column) = std::to_string(row) + std::to_string(column);
    grid.Resize(3, 2);
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_EQ(grid.Columns(), 2);
    EXPECT_EQ(grid(0, 1), "01");
    EXPECT_EQ(grid(1, 0), "10");
    EXPECT_EQ(grid(1, 1), "11");
    EXPECT_EQ(grid(2, 0), "");
    grid.Resize(2, 3);
    EXPECT_EQ(grid(0, 0), "00");
    EXPECT_EQ(grid(0, 2), "") << "the third column was given up";
}

TEST(Grid, IsEmptyInItsOldSizeWhenItIsCleared) {
    Grid grid;
    grid.Resize(2, 2);
    grid(1, 1) = "text";
    Clear_Grid(grid);
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Columns(), 2);
    EXPECT_EQ(grid(1, 1), "");
}

TEST(Grid, RaisesFault9OutsideItsCells) {
    Grid grid;
    grid.Resize(2, 3);
    for (const auto& [row, column] : {std::pair{-1, 0}, {0, -1}, {2, 0}, {0, 3}})
        Expect_Thrown(9, "", [&, r = row, c = column] { (void)grid(r, c); });
    EXPECT_EQ(grid(1, 2), "");
}

TEST(Grid, RefusesANegativeSize) {
    Grid grid;
    grid.Resize(1, 1);
    Expect_Thrown(5, "", [&] { grid.Resize(-1, 1); });
    Expect_Thrown(5, "", [&] { grid.Resize(1, -1); });
    EXPECT_EQ(grid.Rows(), 1);
}

}  // namespace
}  // namespace kervol
