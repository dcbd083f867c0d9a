// SPDX-License-Identifier: GPL-3.0-or-later
// Checked tables: every bound of every dimension, and what rows, fills and comparisons do.
#include "core/table.h"

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

#include "core/thrown_fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

constexpr std::ptrdiff_t kLowest = std::numeric_limits<std::ptrdiff_t>::min();
constexpr std::ptrdiff_t kHighest = std::numeric_limits<std::ptrdiff_t>::max();

TEST(Table, HoldsZerosAtFirst) {
    const Table<float, 2, 3> numbers;
    const Table<std::string, 2> texts;
    for (int i = 0; i < 2; ++i) {
        for (int j = 0; j < 3; ++j) EXPECT_EQ(numbers(i, j), 0.0F);
        EXPECT_EQ(texts(i), "");
    }
}

TEST(Table, TakesEveryIndexOfOneDimension) {
    Table<int, 5> table;
    for (int i = 0; i < 5; ++i) table(i) = 10 * i;
    for (int i = 0; i < 5; ++i) EXPECT_EQ(table(i), 10 * i);
}

TEST(Table, RaisesFault9OutsideOneDimension) {
    Table<int, 5> table;
    const Table<int, 5>& constant = table;
    for (const std::ptrdiff_t i : {kLowest, std::ptrdiff_t{-1}, std::ptrdiff_t{5}, kHighest}) {
        Expect_Thrown(9, "", [&] { table(i) = 1; });
        Expect_Thrown(9, "", [&] { (void)constant(i); });
    }
}

TEST(Table, KeepsEveryElementOfThreeDimensionsApart) {
    Table<int, 2, 3, 4> table;
    for (int i = 0; i < 2; ++i)
        for (int j = 0; j < 3; ++j)
            for (int k = 0; k < 4; ++k) table(i, j, k) = 100 * i + 10 * j + k;
    for (int i = 0; i < 2; ++i)
        for (int j = 0; j < 3; ++j)
            for (int k = 0; k < 4; ++k) EXPECT_EQ(table(i, j, k), 100 * i + 10 * j + k);
}

// The second index 3 of a row of three would still lie inside the whole of the storage.
TEST(Table, RaisesFault9OutsideEachOfThreeDimensions) {
    Table<int, 2, 3, 4> table;
    const Table<int, 2, 3, 4>& constant = table;
    const int outside[][3] = {{-1, 0, 0}, {2, 0, 0},  {0, -1, 0}, {0, 3, 0},
                              {1, 3, 0},  {0, 0, -1}, {0, 0, 4},  {1, 2, 4}};
    for (const auto& [i, j, k] : outside) {
        Expect_Thrown(9, "", [&, i = i, j = j, k = k] { table(i, j, k) = 1; });
        Expect_Thrown(9, "", [&, i = i, j = j, k = k] { (void)constant(i, j, k); });
    }
}

TEST(Table, LeavesEveryElementAsItWasAfterAFault) {
    Table<int, 2, 2> table;
    table.Fill(7);
    Expect_Thrown(9, "", [&] { table(0, 2) = 1; });
    Expect_Thrown(9, "", [&] { table(1, -1) = 1; });
    Table<int, 2, 2> sevens;
    sevens.Fill(7);
    EXPECT_TRUE(table == sevens);
}

TEST(Table, GivesARowThatIsItselfChecked) {
    Table<int, 2, 3> table;
    auto& row = table(1);
    row(2) = 5;
    EXPECT_EQ(table(1, 2), 5);
    EXPECT_EQ(table(0, 2), 0);
    Expect_Thrown(9, "", [&] { row(3) = 1; });
    Expect_Thrown(9, "", [&] { row(-1) = 1; });
    Expect_Thrown(9, "", [&] { (void)table(2); });
}

TEST(Table, FillsAllDimensions) {
    Table<float, 3, 2, 2> table;
    table.Fill(1.5F);
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 2; ++j)
            for (int k = 0; k < 2; ++k) EXPECT_EQ(table(i, j, k), 1.5F);
}

TEST(Table, ComparesElementByElement) {
    Table<int, 2, 2> left, right;
    EXPECT_TRUE(left == right);
    right(1, 1) = 1;
    EXPECT_FALSE(left == right);
}

TEST(Table, TellsItsSizeAndRunsFromFirstToLast) {
    Table<int, 3> table;
    for (int i = 0; i < 3; ++i) table(i) = i + 1;
    EXPECT_EQ(table.Size(), 3U);
    EXPECT_EQ(std::vector<int>(table.begin(), table.end()), (std::vector<int>{1, 2, 3}));
}

}  // namespace
}  // namespace kervol
