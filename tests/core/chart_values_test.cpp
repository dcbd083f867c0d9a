// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/chart_values.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

Chart Two_Sets() {
    Chart chart;
    chart.Put_NumSets(2);
    chart.Put_NumPoints(2);
    chart.look.BottomTitle = "Crank Angle (Deg)";
    const float values[2][2] = {{0.1F, -2}, {1e-7F, 12345678}};
    for (chart.ThisSet = 1; chart.ThisSet <= 2; ++chart.ThisSet) {
        chart.Set().LegendText = "f" + std::to_string(chart.ThisSet);
        for (chart.ThisPoint = 1; chart.ThisPoint <= 2; ++chart.ThisPoint) {
            chart.Put_GraphData(values[chart.ThisSet - 1][chart.ThisPoint - 1]);
            chart.Put_LabelText(std::to_string(10 * chart.ThisPoint));
        }
    }
    return chart;
}

TEST(ChartValues, AreLabelsAndTheValuesOfAllSetsInFull) {
    EXPECT_EQ(Chart_Values(Two_Sets().look),
              "Crank Angle (Deg)\tf1\tf2\n10\t0.1\t1E-07\n20\t-2\t1.2345678E+07\n");
}

TEST(ChartValues, OfOneCurveAreTitledByTheChart) {
    Chart chart = Two_Sets();
    chart.Put_NumSets(1);
    chart.look.GraphTitle = "Omega3  (rad/sec)";
    EXPECT_EQ(Chart_Values(chart.look), "Crank Angle (Deg)\tOmega3  (rad/sec) f1\n10\t0.1\n20\t-2\n");
}

TEST(ChartValues, OfSetsThatWereNeverFilledAreLeftOut) {
    Chart chart = Two_Sets();
    chart.Put_NumSets(3);
    EXPECT_EQ(Chart_Values(chart.look), Chart_Values(Two_Sets().look));
}

TEST(ChartValues, OfAPolarChartAreTwoForEachPoint) {
    Chart chart = Two_Sets();
    chart.Put_NumSets(1);
    chart.look.polar = true;
    chart.look.sets[0].XPosData = {3, 0};
    EXPECT_EQ(Chart_Values(chart.look), "Crank Angle (Deg)\tf1 X\tf1 Y\n10\t3\t0.1\n20\t0\t-2\n");
}

}  // namespace
}  // namespace kervol
