// SPDX-License-Identifier: GPL-3.0-or-later
// What is read off a series of values, against numbers worked out by hand.
#include "study/series.h"

#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using Values = std::vector<float>;

TEST(Series, HasExtremesRangeMeanAndRootMeanSquare) {
    const Values values = {3, -5, 1, 1};
    EXPECT_EQ(Greatest(values), 3);
    EXPECT_EQ(Least(values), -5);
    EXPECT_EQ(Range_Of(values), 8);
    EXPECT_EQ(Mean_Of(values), 0);
    EXPECT_EQ(Root_Mean_Square(values), 3);  // (9 + 25 + 1 + 1) / 4 = 9
    EXPECT_EQ(Peak_Of(values), 5);
    EXPECT_EQ(Peak_Of(Values{-1, 4}), 4);
}

TEST(Series, OfOneValueIsThatValue) {
    const Values one = {-2};
    EXPECT_EQ(Greatest(one), -2);
    EXPECT_EQ(Range_Of(one), 0);
    EXPECT_EQ(Mean_Of(one), -2);
    EXPECT_EQ(Root_Mean_Square(one), 2);
    EXPECT_EQ(Longest_Dwell(one, Values{10}, 1), 0);
}

TEST(Turns, AreFollowedOverAJump) {
    Values up = {350, 355, 0, 5, 355};
    Follow_Over_Turns(up);
    EXPECT_THAT(up, ::testing::ElementsAre(350, 355, 360, 365, 355));
    Values down = {-170, 170, 100, -50};
    Follow_Over_Turns(down);
    EXPECT_THAT(down, ::testing::ElementsAre(-170, -190, -260, -410));
    Values still = {10, 100, 200, 30};
    Follow_Over_Turns(still);
    EXPECT_THAT(still, ::testing::ElementsAre(10, 100, 200, 30));
}

TEST(Dwell, IsTheLongestStretchOfTheCrankWithinTheTolerance) {
    const Values crank = {0, 10, 20, 30, 40, 50};
    EXPECT_EQ(Longest_Dwell(Values{0, 1, 1.5F, 1, 5, 5}, crank, 0.5), 20);  // steps 1 to 3
    EXPECT_EQ(Longest_Dwell(Values{0, 1, 2, 3, 4, 5}, crank, 0.5), 0);
    EXPECT_EQ(Longest_Dwell(Values{0, 1, 2, 3, 4, 5}, crank, 2), 20);
    EXPECT_EQ(Longest_Dwell(Values{7, 7, 7, 7, 7, 7}, crank, 0), 50);
}

TEST(Dwell, OfAFullTurnGoesOnOverItsEnds) {
    Values crank, values;
    for (int i = 0; i <= 36; ++i) {
        crank.push_back(static_cast<float>(10 * i));
        values.push_back(i <= 3 || i >= 33 ? 0.0F : 9.0F + static_cast<float>(i));
    }
    EXPECT_EQ(Longest_Dwell(values, crank, 0.5), 60);  // 330 over 0 to 30
    crank.pop_back();
    values.pop_back();
    EXPECT_EQ(Longest_Dwell(values, crank, 0.5), 30);  // no full turn: 0 to 30 alone
}

TEST(Dwell, OfAConstantOverAFullTurnIsAFullTurn) {
    Values crank;
    for (int i = 0; i <= 36; ++i) crank.push_back(static_cast<float>(-10 * i));
    EXPECT_EQ(Longest_Dwell(Values(37, 4.0F), crank, 0), 360);
}

TEST(Dwell, IsTheSameAsBySearchingAllStretches) {
    Values crank, values;
    for (int i = 0; i < 200; ++i) {
        crank.push_back(static_cast<float>(1.5 * i));
        values.push_back(static_cast<float>(std::sin(i * 0.11) * 5 + std::sin(i * 0.77)));
    }
    for (const double tolerance : {0.0, 0.3, 1.0, 2.5, 7.0}) {
        float longest = 0;
        for (std::size_t first = 0; first < values.size(); ++first)
            for (std::size_t last = first; last < values.size(); ++last) {
                const std::span<const float> stretch(values.data() + first, last - first + 1);
                if (double(Greatest(stretch)) - Least(stretch) <= tolerance)
                    longest = std::max(longest, crank[last] - crank[first]);
            }
        EXPECT_EQ(Longest_Dwell(values, crank, tolerance), longest) << tolerance;
    }
}

}  // namespace
}  // namespace kervol
