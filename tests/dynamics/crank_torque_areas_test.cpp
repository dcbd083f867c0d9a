// SPDX-License-Identifier: GPL-3.0-or-later
// The energies of the crank torque as a table, and the torque that a flywheel leaves.
#include "dynamics/crank_torque_areas.h"

#include <string>
#include <vector>

#include "support/compare.h"
#include "support/program_test.h"

namespace kervol {
namespace {

using Lines = std::vector<std::string>;

class CrankTorque : public ProgramTest {
  protected:
    void SetUp() override {
        model.ThetaStep = 1;
        model.CoefFluct = 0.25F;
    }

    void Put_Torque(const std::vector<float>& torque) {
        model.NumSteps = static_cast<std::int16_t>(torque.size() - 1);
        for (std::size_t i = 0; i < torque.size(); ++i)
            tables.TorqueTable(static_cast<std::ptrdiff_t>(i), 0) = torque[i];
        tables.FlywheelTorque.Fill(Poison);
        Crank_Torque_Areas(*program, areas);
    }

    /// Above zero for even steps, below for odd ones, about a mean of 0 for an odd count of steps.
    static std::vector<float> Wave(int steps) {
        std::vector<float> torque;
        for (int i = 0; i < steps; ++i) torque.push_back(i % 2 == 0 ? 8.0F : -8.0F);
        return torque;
    }

    /// The lines from the heading on.
    Lines Table() const { return {areas.Text.begin() + 7, areas.Text.end()}; }

    CrankTorqueAreas areas;
};

// The mean of 2, 12, 14, 8, 4, 12, 4 is 8, the deviations are -6, 4, 6, 0, -4, 4, -4: areas 5, 3, -2, 0, 0.
TEST_F(CrankTorque, ListsThePulsesInTheirOrder) {
    Put_Torque({2, 12, 14, 8, 4, 12, 4});
    EXPECT_EQ(areas.Average, 8);
    EXPECT_EQ(areas.FirstSign, 1);
    EXPECT_EQ(areas.NPulses, 5);
    const Lines expected = {"",
                            " Areas of Crank Torque",
                            " Pulses in Order over 1 cycle ",
                            "",
                            "    in Energy Units of :",
                            "     lb-in - radians",
                            "",
                            " Order Pos Area   Neg Area",
                            "",
                            "   1   8         -2",
                            "   2   0         0",
                            "   3   0         0",
                            "",
                            "    Average Torque:",
                            "   8  lb-in"};
    EXPECT_EQ(areas.Text, expected);
}

// Mean 0.09: deviations -0.04, -10.84, -5.24, 16.12 about; areas -8.04 and 5.44.
TEST_F(CrankTorque, PutsTheNegativePulsesFirstWhereTheyComeFirst) {
    model.UnitText(9) = "N-m";
    Put_Torque({0.05F, -10.75F, -5.15F, 16.21F});
    EXPECT_EQ(areas.FirstSign, -1);
    const Lines expected = {" Order Neg Area   Pos Area",
                            "",
                            "   1   -8        5.4",
                            "   2   0         0",
                            "",
                            "    Average Torque:",
                            "   0.09  N-m"};
    EXPECT_EQ(Table(), expected);
}

// Means of 0. The columns of numbers begin at 8 and 18.
TEST_F(CrankTorque, ANumberThatReachesTheNextColumnIsPartedByABlank) {
    Put_Torque({-2e9F, 1e9F, 1e9F, 0});  // areas of 1E+09 and, up to the deviation 0, 5E+08
    EXPECT_EQ(Table()[2], "   1   1.5E+09   0");
    Put_Torque({2469135, -1234567.5F, -1234567.5F});
    EXPECT_EQ(Table()[2], "   1   -1234567.5 0");
    model.ThetaStep = 0.123456F;
    Put_Torque({-2e9F, 1e9F, 1e9F, 0});
    EXPECT_EQ(Table()[2], "   1   1.85184E+08 0");
}

TEST_F(CrankTorque, AConstantTorqueIsTwoPulsesOfNothingAndStays) {
    Put_Torque({8, 8, 8, 8, 8});
    EXPECT_EQ(areas.FirstSign, 1);
    EXPECT_EQ(areas.NPulses, 2);
    const Lines expected = {
        " Order Pos Area   Neg Area", "",           "   1   0         0", "   2   0         0", "",
        "    Average Torque:",        "   8  lb-in"};
    EXPECT_EQ(Table(), expected);
    for (int i = 0; i <= 4; ++i) EXPECT_EQ(tables.FlywheelTorque(i), 8);
    EXPECT_EQ(tables.FlywheelTorque(5), Poison);
}

TEST_F(CrankTorque, OneOrTwoStepsHaveNoHeadingAndNoRows) {
    for (const std::vector<float>& few : {std::vector<float>{3}, {2, 4}}) {
        Put_Torque(few);
        EXPECT_EQ(areas.FirstSign, 0);
        EXPECT_EQ(Table(), (Lines{"", "", "    Average Torque:", "   3  lb-in"}));
    }
    EXPECT_EQ(tables.FlywheelTorque(0), 2.75F);
    EXPECT_EQ(tables.FlywheelTorque(1), 3.25F);
}

TEST_F(CrankTorque, ScalesTheDeviationFromTheMean) {
    Put_Torque({2, 12, 14, 8, 4, 12, 4});
    const float expected[] = {6.5F, 9, 9.5F, 8, 7, 9, 7};
    for (int i = 0; i <= 6; ++i) EXPECT_EQ(tables.FlywheelTorque(i), expected[i]) << i;
}

TEST_F(CrankTorque, ACoefficientOf1LeavesTheTorque) {
    model.CoefFluct = 1;
    Put_Torque({2.1F, 12.7F, -14.3F, 0.8F});
    for (int i = 0; i <= 3; ++i) EXPECT_EQ(tables.FlywheelTorque(i), tables.TorqueTable(i, 0)) << i;
}

TEST_F(CrankTorque, HalfARowRoundsToTheEvenCount) {
    // Steps 1 to `last` are one pulse each but for step 1, and a pulse more is counted for the sign not met.
    const struct { int steps, pulses, rows; } cases[] = {{3, 2, 2}, {5, 4, 2}, {7, 6, 4}, {9, 8, 4}};
    for (const auto& [steps, pulses, rows] : cases) {
        Put_Torque(Wave(steps));
        EXPECT_EQ(areas.NPulses, pulses);
        EXPECT_EQ(Table().size(), static_cast<std::size_t>(rows) + 5) << steps;
    }
}

TEST_F(CrankTorque, ElevenPulsesOfASignLeaveNoRowsAndTheRestIsDone) {
    Put_Torque(Wave(25));
    Expect_Fault(fault::Subscript, "Flywheel");
    EXPECT_EQ(areas.NPulses, 0);
    EXPECT_EQ(Table().size(), 5U);
    EXPECT_EQ(Table()[0], " Order Pos Area   Neg Area");
    EXPECT_NE(tables.FlywheelTorque(24), Poison);
}

// Ten pulses of each sign, the last one just begun for the other: 21 in all make eleven rows of ten entries.
TEST_F(CrankTorque, TwentyOnePulsesEndTheTableWithItsLastEntry) {
    Put_Torque(Wave(22));
    Expect_Fault(fault::Subscript, "Crank_Torque_Areas");
    EXPECT_EQ(areas.NPulses, 21);
    EXPECT_EQ(areas.Text.back().substr(0, 8), "   10  0");
    EXPECT_EQ(tables.FlywheelTorque(0), Poison);
}

TEST_F(CrankTorque, StartsAnewEvenBehindAFault) {
    Put_Torque(Wave(25));
    Take_Box();
    Put_Torque({3});
    EXPECT_EQ(areas.FirstSign, 0);
    for (int i = 0; i <= 10; ++i) {
        EXPECT_EQ(areas.PosArea(i), 0) << i;
        EXPECT_EQ(areas.NegArea(i), 0) << i;
    }
    EXPECT_EQ(Table(), (Lines{"", "", "    Average Torque:", "   3  lb-in"}));
}

class Sizing : public CrankTorque {};

TEST_F(Sizing, FindsTheExtremesWithAndWithoutAFlywheel) {
    Put_Torque({2, 12, 14, 8, 4, 12, 4});
    FlywheelSizing sizing;
    Size_Flywheel(*program, sizing);
    EXPECT_EQ(sizing.without.Tmax, 14);
    EXPECT_EQ(sizing.without.Tmin, 2);
    EXPECT_EQ(sizing.with.Tmax, 9.5F);
    EXPECT_EQ(sizing.with.Tmin, 6.5F);
    EXPECT_EQ(sizing.areas.Text, areas.Text);
    EXPECT_TRUE(model.FlywheelCalculated);
}

TEST_F(Sizing, IsDoneEvenWithTooManyPulses) {
    Put_Torque(Wave(25));
    Take_Box();
    FlywheelSizing sizing;
    Size_Flywheel(*program, sizing);
    Expect_Fault(fault::Subscript, "Flywheel");
    EXPECT_TRUE(model.FlywheelCalculated);
    EXPECT_EQ(sizing.without.Tmax, 8);
}

TEST(CoefficientOfFluctuation, IsTakenAboveZero) {
    LinkageModel model;
    model.CoefFluct = 0.05F;
    EXPECT_TRUE(Take_Coef_Fluct(model, 0.5F));
    EXPECT_EQ(model.CoefFluct, 0.5F);
    for (const float refused : {0.0F, -0.5F}) {
        EXPECT_FALSE(Take_Coef_Fluct(model, refused));
        EXPECT_EQ(model.CoefFluct, 0.05F);
        model.CoefFluct = 0.5F;
    }
}

TEST(CoefficientOfFluctuation, IsTakenAbove1OnceAndTheNextIsRefused) {
    LinkageModel model;
    model.CoefFluct = 0.05F;
    EXPECT_TRUE(Take_Coef_Fluct(model, 1));
    EXPECT_TRUE(Take_Coef_Fluct(model, 2));
    EXPECT_EQ(model.CoefFluct, 2);
    EXPECT_FALSE(Take_Coef_Fluct(model, 0.5F));
    EXPECT_EQ(model.CoefFluct, 0.05F);
}

}  // namespace
}  // namespace kervol
