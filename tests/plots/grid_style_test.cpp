// SPDX-License-Identifier: GPL-3.0-or-later
// Grid and style of charts by the boxes beside them.
#include "plots/grid_style.h"

#include <array>

#include <gtest/gtest.h>

namespace kervol {
namespace {

struct BoxCase {
    bool first, second;
    std::int16_t code;
};

TEST(GridStyle, HasACodeForEachPairOfGridBoxes) {
    for (const BoxCase& given : {BoxCase{false, false, 0}, BoxCase{true, false, 1}, BoxCase{false, true, 2},
                                 BoxCase{true, true, 3}}) {
        GridStyleBoxes boxes;
        boxes.chk_HGrid.on = given.first;
        boxes.chk_VGrid.on = given.second;
        std::array<Chart, 1> chart;
        SetGridstyle(boxes, chart);
        EXPECT_EQ(chart[0].look.GridStyle, given.code);
        EXPECT_EQ(chart[0].look.GraphStyle, 0);
    }
}

TEST(GridStyle, HasACodeForEachPairOfStyleBoxes) {
    for (const BoxCase& given : {BoxCase{false, false, 0}, BoxCase{true, false, 2}, BoxCase{false, true, 4},
                                 BoxCase{true, true, 6}}) {
        GridStyleBoxes boxes;
        boxes.chk_Line.on = given.first;
        boxes.chk_Sticks.on = given.second;
        std::array<Chart, 1> chart;
        SetGridstyle(boxes, chart);
        EXPECT_EQ(chart[0].look.GraphStyle, given.code);
        EXPECT_EQ(chart[0].look.GridStyle, 0);
    }
}

TEST(GridStyle, HoldsForAllChartsThatAreGivenAndNoOther) {
    GridStyleBoxes boxes;
    boxes.chk_HGrid.on = boxes.chk_VGrid.on = boxes.chk_Line.on = boxes.chk_Sticks.on = true;
    std::array<Chart, 3> charts;
    SetGridstyle(boxes, std::span(charts).first(2));
    for (const std::size_t set : {0U, 1U}) {
        EXPECT_EQ(charts.at(set).look.GridStyle, 3);
        EXPECT_EQ(charts.at(set).look.GraphStyle, 6);
    }
    EXPECT_EQ(charts[2].look.GridStyle, 0);
    EXPECT_EQ(charts[2].look.GraphStyle, 0);
}

}  // namespace
}  // namespace kervol
