// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of plots as a text.
#include "plots/plot_sheets.h"

#include "plots/plot_fixture.h"

namespace kervol {
namespace {

class PlotValues : public PlotTest {
  protected:
    PlotValues() { model.NumSteps = 1; }
};

TEST_F(PlotValues, HaveALineOfTitlesAndOneForEachStep) {
    Choose_Plots({{"Theta3", "Mag"}, {"Theta2", "Mag"}});
    EXPECT_EQ(Plot_Values(*program, labels, 2), "\tTheta3 Mag\tTheta2 Mag\n0\t0.25\t0\n10\t1.25\t10\n");
}

TEST_F(PlotValues, OfALocalFrameTurnWithTheLinkOfTheirOwnPoint) {
    // A turns with link 2, which stands at 0 and 90 degrees; B with link 4, at 90 and 0.
    for (const std::int16_t step : Int16List{0, 1}) {
        tables.Theta(step, 0) = step == 0 ? 0.0F : 90.0F;
        tables.Theta(step, 2) = step == 0 ? 90.0F : 0.0F;
        for (const std::int16_t point : Int16List{0, 1}) {
            tables.PointVel(step, point, 0) = 3;
            tables.PointVel(step, point, 1) = 0;
        }
    }
    Choose_Plots({{"Veloc I 2,3", "X"}, {"Veloc I 3,4", "X"}});
    selections.LocalCoords = 2;
    EXPECT_EQ(Plot_Values(*program, labels, 2), "\tVeloc I 2,3 X\tVeloc I 3,4 X\n0\t3\t0\n90\t0\t3\n");
}

TEST_F(PlotValues, LeaveTheSelectionWithWhichTablesTurn) {
    Choose_Plots({{"Theta3", "Mag"}, {"Omega4", "Mag"}});
    selections.SelCurrent = 5;
    Plot_Values(*program, labels, 2);
    EXPECT_EQ(selections.SelCurrent, 5);
}

}  // namespace
}  // namespace kervol
