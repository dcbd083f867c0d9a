// SPDX-License-Identifier: GPL-3.0-or-later
// The chart as a store: where values go, what a change of numbers keeps, what is refused.
#include "core/chart.h"

#include <string>
#include <vector>

#include "core/thrown_fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

TEST(ChartTest, ANewChartHasOneEmptySetOfOnePoint) {
    const Chart chart;
    EXPECT_EQ(chart.NumSets(), 1);
    EXPECT_EQ(chart.NumPoints(), 1);
    EXPECT_EQ(chart.look.sets[0].GraphData, std::vector{0.0F});
}

TEST(ChartTest, ValuesGoToTheCurrentPointOfTheCurrentSet) {
    Chart chart;
    chart.Put_NumSets(2);
    chart.Put_NumPoints(3);
    chart.ThisSet = 2;
    chart.ThisPoint = 3;
    chart.Put_GraphData(1.5F);
    chart.Put_XPosData(-2);
    chart.Put_LabelText("90");
    EXPECT_EQ(chart.look.sets[0].GraphData, (std::vector{0.0F, 0.0F, 0.0F}));
    EXPECT_EQ(chart.look.sets[1].GraphData, (std::vector{0.0F, 0.0F, 1.5F}));
    EXPECT_EQ(chart.look.sets[1].XPosData, (std::vector{0.0F, 0.0F, -2.0F}));
    EXPECT_EQ(chart.look.LabelText, (std::vector<std::string>{"", "", "90"}));
}

TEST(ChartTest, WhatStaysAfterAChangeOfNumbersKeepsItsValues) {
    Chart chart;
    chart.Put_GraphData(7);
    chart.Put_NumPoints(2);
    chart.Put_NumSets(2);
    EXPECT_EQ(chart.look.sets[0].GraphData, (std::vector{7.0F, 0.0F}));
    EXPECT_EQ(chart.look.sets[1].GraphData, (std::vector{0.0F, 0.0F}));
}

TEST(ChartTest, ClearingKeepsTheNumbersOfSetsAndPoints) {
    Chart chart;
    chart.Put_NumPoints(2);
    chart.Put_GraphData(7);
    chart.Put_LabelText("x");
    chart.Clear_Data();
    EXPECT_EQ(chart.look.sets[0].GraphData, (std::vector{0.0F, 0.0F}));
    EXPECT_EQ(chart.look.LabelText, (std::vector<std::string>{"", ""}));
}

TEST(ChartTest, PlacesThatAreNotThereAreRefused) {
    Chart chart;
    chart.ThisPoint = 2;
    Expect_Thrown(9, "", [&] { chart.Put_GraphData(1); });
    chart.ThisPoint = 0;
    Expect_Thrown(9, "", [&] { chart.Put_LabelText("x"); });
    chart.ThisSet = 2;
    Expect_Thrown(9, "", [&] { (void)chart.Set(); });
    chart.FontUse = 5;
    Expect_Thrown(9, "", [&] { (void)chart.Font(); });
    Expect_Thrown(5, "", [&] { chart.Put_NumSets(0); });
    Expect_Thrown(5, "", [&] { chart.Put_NumPoints(0); });
}

}  // namespace
}  // namespace kervol
