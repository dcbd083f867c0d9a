// SPDX-License-Identifier: GPL-3.0-or-later
// Extremes and means: which index is kept, the direction of the two-dimensional forms, faults.
#include "core/extremes.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

#include "core/thrown_fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

constexpr float kHeld = -98765.0F;
constexpr std::int16_t kHeldIndex = -77;

/// What the extreme routines write, each with a value that tells whether it was written.
struct Outputs {
    float Max = kHeld, Min = kHeld;
    std::int16_t IMax = kHeldIndex, IMin = kHeldIndex;
};

template <std::size_t N>
Table<float, N> Filled(const float (&values)[N]) {
    Table<float, N> table;
    for (std::size_t i = 0; i < N; ++i) table(static_cast<std::ptrdiff_t>(i)) = values[i];
    return table;
}

/// 3 rows of 4; row 1 is 5 7 7 1, column 2 is 9 7 -4.
Table<float, 3, 4> Sample() {
    const float values[3][4] = {{0, 0, 9, 0}, {5, 7, 7, 1}, {0, 0, -4, 0}};
    Table<float, 3, 4> table;
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 4; ++j) table(i, j) = values[i][j];
    return table;
}

TEST(MaxMin1, CoversFirstToLastInclusive) {
    const auto A = Filled({100.0F, 3.0F, -2.0F, 8.0F, -100.0F});
    Outputs out;
    MaxMin1(A, 1, 3, out.Max, out.Min);
    EXPECT_EQ(out.Max, 8.0F);
    EXPECT_EQ(out.Min, -2.0F);
    MaxMin1(A, 0, 4, out.Max, out.Min);
    EXPECT_EQ(out.Max, 100.0F);
    EXPECT_EQ(out.Min, -100.0F);
}

TEST(MaxMin1, StartsAtTheElementAtFirstEvenIfLastLiesBefore) {
    const auto A = Filled({1.0F, 2.0F, 3.0F});
    Outputs out;
    MaxMin1(A, 2, 0, out.Max, out.Min);
    EXPECT_EQ(out.Max, 3.0F);
    EXPECT_EQ(out.Min, 3.0F);
}

TEST(MaxMin1, WritesNothingIfFirstIsOutside) {
    const auto A = Filled({1.0F, 2.0F, 3.0F});
    Outputs out;
    Expect_Thrown(9, "MaxMin1", [&] { MaxMin1(A, -1, 2, out.Max, out.Min); });
    Expect_Thrown(9, "MaxMin1", [&] { MaxMin1(A, 3, 3, out.Max, out.Min); });
    EXPECT_EQ(out.Max, kHeld);
    EXPECT_EQ(out.Min, kHeld);
}

TEST(MaxMin1, HasWrittenTheExtremesSoFarIfLastIsOutside) {
    const auto A = Filled({1.0F, 5.0F, -3.0F});
    Outputs out;
    Expect_Thrown(9, "MaxMin1", [&] { MaxMin1(A, 0, 3, out.Max, out.Min); });
    EXPECT_EQ(out.Max, 5.0F);
    EXPECT_EQ(out.Min, -3.0F);
}

TEST(MaxMin1, TakesTheHighestIndexThatSixteenBitsHold) {
    const auto A = Filled({1.0F, 5.0F});
    Outputs out;
    Expect_Thrown(9, "MaxMin1",
                  [&] { MaxMin1(A, 0, std::numeric_limits<std::int16_t>::max(), out.Max, out.Min); });
}

TEST(MaxMin2, RunsAlongARowAndTellsWhereTheFirstOfEqualExtremesStands) {
    Outputs out;
    MaxMin2(Sample(), 1, 0, 3, out.Max, out.Min, out.IMax, out.IMin);
    EXPECT_EQ(out.Max, 7.0F);
    EXPECT_EQ(out.Min, 1.0F);
    EXPECT_EQ(out.IMax, 1);
    EXPECT_EQ(out.IMin, 3);
}

TEST(MaxMin2A, RunsDownAColumn) {
    Outputs out;
    MaxMin2A(Sample(), 2, 1, 2, out.Max, out.Min, out.IMax, out.IMin);
    EXPECT_EQ(out.Max, 7.0F);
    EXPECT_EQ(out.Min, -4.0F);
    EXPECT_EQ(out.IMax, kHeldIndex);
    EXPECT_EQ(out.IMin, 2);
}

TEST(MaxMin2, KeepsTheIndexOfAnExtremeAtFirst) {
    Outputs highest_first, lowest_first, alone;
    MaxMin2(Sample(), 1, 2, 3, highest_first.Max, highest_first.Min, highest_first.IMax, highest_first.IMin);
    EXPECT_EQ(highest_first.IMax, kHeldIndex);
    EXPECT_EQ(highest_first.IMin, 3);
    MaxMin2(Sample(), 1, 0, 1, lowest_first.Max, lowest_first.Min, lowest_first.IMax, lowest_first.IMin);
    EXPECT_EQ(lowest_first.IMax, 1);
    EXPECT_EQ(lowest_first.IMin, kHeldIndex);
    MaxMin2(Sample(), 1, 3, 3, alone.Max, alone.Min, alone.IMax, alone.IMin);
    EXPECT_EQ(alone.Max, 1.0F);
    EXPECT_EQ(alone.Min, 1.0F);
    EXPECT_EQ(alone.IMax, kHeldIndex);
    EXPECT_EQ(alone.IMin, kHeldIndex);
}

TEST(MaxMin2A, KeepsTheIndexOfAnExtremeAtFirst) {
    Outputs out;
    MaxMin2A(Sample(), 2, 0, 2, out.Max, out.Min, out.IMax, out.IMin);
    EXPECT_EQ(out.Max, 9.0F);
    EXPECT_EQ(out.Min, -4.0F);
    EXPECT_EQ(out.IMax, kHeldIndex);
    EXPECT_EQ(out.IMin, 2);
}

TEST(MaxMin2, FaultsUnderItsOwnNameOutsideTheTable) {
    Outputs out;
    const auto A = Sample();
    Expect_Thrown(9, "MaxMin2", [&] { MaxMin2(A, 3, 0, 3, out.Max, out.Min, out.IMax, out.IMin); });
    Expect_Thrown(9, "MaxMin2", [&] { MaxMin2(A, -1, 0, 3, out.Max, out.Min, out.IMax, out.IMin); });
    EXPECT_EQ(out.Max, kHeld);
    Expect_Thrown(9, "MaxMin2", [&] { MaxMin2(A, 1, 0, 4, out.Max, out.Min, out.IMax, out.IMin); });
    EXPECT_EQ(out.Max, 7.0F);
    EXPECT_EQ(out.IMin, 3);
}

TEST(MaxMin2A, FaultsUnderItsOwnNameOutsideTheTable) {
    Outputs out;
    const auto A = Sample();
    Expect_Thrown(9, "MaxMin2A", [&] { MaxMin2A(A, 4, 0, 2, out.Max, out.Min, out.IMax, out.IMin); });
    EXPECT_EQ(out.Max, kHeld);
    Expect_Thrown(9, "MaxMin2A", [&] { MaxMin2A(A, 2, 0, 3, out.Max, out.Min, out.IMax, out.IMin); });
    EXPECT_EQ(out.Min, -4.0F);
    EXPECT_EQ(out.IMin, 2);
}

TEST(Average2, TakesAColumnOrARowByItsMode) {
    float avg = kHeld;
    Average2(0, 2, Sample(), "I_Pointer", 2, avg);
    EXPECT_EQ(avg, 4.0F);
    Average2(0, 3, Sample(), "Pointer_I", 1, avg);
    EXPECT_EQ(avg, 5.0F);
    Average2(2, 3, Sample(), "Pointer_I", 1, avg);
    EXPECT_EQ(avg, 4.0F);
}

TEST(Average2, GivesZeroForAnyOtherMode) {
    for (const std::string_view mode : {"", "i_pointer", "I_Pointer ", "Pointer"}) {
        float avg = kHeld;
        Average2(0, 2, Sample(), mode, 2, avg);
        EXPECT_EQ(avg, 0.0F) << mode;
    }
}

TEST(Average2, GivesTheSumWhereThereAreNoElements) {
    float avg = kHeld;
    Average2(2, 1, Sample(), "I_Pointer", 2, avg);
    EXPECT_EQ(avg, 0.0F);
}

// 2^24 + 1 is no single: a sum in double precision would keep the two ones.
TEST(Average2, SumsInSinglePrecision) {
    Table<float, 1, 4> A;
    A(0, 0) = 16777216.0F;
    A(0, 1) = 1.0F;
    A(0, 2) = 1.0F;
    float avg = kHeld;
    Average2(0, 3, A, "Pointer_I", 0, avg);
    EXPECT_EQ(avg, 4194304.0F);
}

TEST(Average2, FaultsUnderItsOwnNameAndLeavesTheMean) {
    float avg = kHeld;
    Expect_Thrown(9, "Average2", [&] { Average2(0, 3, Sample(), "I_Pointer", 2, avg); });
    Expect_Thrown(9, "Average2", [&] { Average2(0, 3, Sample(), "Pointer_I", 3, avg); });
    Table<float, 2, 1> large;
    large.Fill(std::numeric_limits<float>::max());
    Expect_Thrown(6, "Average2", [&] { Average2(0, 1, large, "I_Pointer", 0, avg); });
    EXPECT_EQ(avg, kHeld);
}

TEST(GlobalMax, IsTheLargestOfTheFourAbsoluteExtremes) {
    const struct {
        float a[2], b[2], max;
    } cases[] = {
        {{4, -1}, {2, -3}, 4},    // maximum of the first
        {{4, -9}, {2, -3}, 9},    // minimum of the first
        {{4, -1}, {12, -3}, 12},  // maximum of the second
        {{4, -1}, {2, -30}, 30},  // minimum of the second
        {{-4, -1}, {-2, -3}, 4}, {{0, 0}, {0, 0}, 0},
    };
    for (const auto& c : cases) {
        float max = kHeld;
        GlobalMax(Filled(c.a), Filled(c.b), 0, 1, max);
        EXPECT_EQ(max, c.max);
    }
}

TEST(GlobalMax, CoversFirstToLastInclusive) {
    const auto A = Filled({50.0F, 1.0F, 2.0F, 50.0F});
    const auto B = Filled({-50.0F, 1.0F, -3.0F, 50.0F});
    float max = kHeld;
    GlobalMax(A, B, 1, 2, max);
    EXPECT_EQ(max, 3.0F);
}

// The extremes are those of MaxMin1, which reports under its own name.
TEST(GlobalMax, LeavesItsResultAfterAFault) {
    const auto A = Filled({1.0F, 2.0F, 3.0F});
    const auto B = Filled({1.0F, 2.0F});
    float max = kHeld;
    Expect_Thrown(9, "MaxMin1", [&] { GlobalMax(A, B, 0, 2, max); });
    EXPECT_EQ(max, kHeld);
}

}  // namespace
}  // namespace kervol
