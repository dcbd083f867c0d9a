// SPDX-License-Identifier: GPL-3.0-or-later
// The force equations as the matrix screen shows them.
#include "dynamics/matrix_fill.h"

#include <string>

#include "core/number_text.h"
#include "dynamics/dynamics_fixture.h"
#include "dynamics/reference_forces.h"

namespace kervol {
namespace {

constexpr Colour kGrey = {128, 128, 128};
constexpr Colour kRed = {255, 0, 0};

class MatrixFill : public DynamicsTest {
  protected:
    void Fill(double value) {
        ForceSystem system;
        system.MatrixA(3, 9) = value;
        system.VectorB(15) = value;
        Matrix_Fill(*program, system);
    }

    void Expect_Cell(const MatrixCell& cell, std::string_view caption, Colour colour) {
        EXPECT_EQ(cell.caption, caption);
        EXPECT_TRUE(cell.colour == colour) << caption;
    }
};

TEST_F(MatrixFill, ShowsThreeDecimalsInRedAndZeroInGrey) {
    const struct {
        double value;
        const char* caption;
        Colour colour;
    } cases[] = {
        {0, "0.000", kGrey},        {1, "1.000", kRed},
        {-1, "-1.000", kRed},       {1234.5678, "1,234.568", kRed},
        {0.00049, "0.000", kGrey},  {0.00051, "0.001", kRed},
        {-0.00049, "0.000", kGrey}, {-0.00051, "-0.001", kRed},
        {-0.0, "0.000", kGrey},
    };
    for (const auto& [value, caption, colour] : cases) {
        Fill(value);
        Expect_Cell(program->matrix.lbl_A(3, 9), caption, colour);
        Expect_Cell(program->matrix.lbl_B(15), caption, colour);
        Expect_Cell(program->matrix.lbl_A(9, 3), "0.000", kGrey);
    }
}

TEST_F(MatrixFill, ValuesGoThroughSinglePrecision) {
    Fill(16777217.0);  // 2^24 + 1 is no single
    EXPECT_EQ(program->matrix.lbl_B(15).caption, "16,777,216.000");
}

TEST_F(MatrixFill, ANumberTooLargeIsItsOwnFaultAndKeepsTheLabelsBefore) {
    Fill(7);
    ForceSystem system;
    system.MatrixA(3, 9) = 8;
    system.VectorB(9) = 1e39;
    system.VectorB(15) = 8;
    Matrix_Fill(*program, system);
    Expect_Fault(fault::Overflow, "Matrix_Fill");
    EXPECT_EQ(program->matrix.lbl_A(3, 9).caption, "8.000") << "column 9 stands before its right side";
    EXPECT_EQ(program->matrix.lbl_B(15).caption, "7.000");
}

TEST_F(MatrixFill, HoldsTheSystemOfTheFirstPositionAsFormed) {
    RandomLinkages random(8);
    Put_Random_Position(random, "S");
    while (Boxes_Left() > 0) Take_Box();
    const ReferenceForces expected = Forces_By_Formulas(model, tables, 0);
    model.NumSteps = 0;
    ASSERT_EQ(Solve_Forces(*program), 1);
    for (int row = 1; row <= 15; ++row) {
        for (int column = 1; column <= 15; ++column)
            EXPECT_EQ(program->matrix.lbl_A(row, column).caption, FNRoundStr(expected.A[row][column], 3));
        EXPECT_EQ(program->matrix.lbl_B(row).caption, FNRoundStr(static_cast<float>(expected.B[row]), 3));
    }
}

TEST_F(MatrixFill, IsNotRepeatedForLaterSteps) {
    RandomLinkages random(9);
    Put_Random_Position(random, "W");
    tables.Theta(1) = tables.Theta(0);
    tables.Theta(1, 0) += 90;
    model.NumSteps = 1;
    ASSERT_EQ(Solve_Forces(*program), 2);
    const std::string shown = program->matrix.lbl_A(3, 4).caption;
    EXPECT_EQ(shown, FNRoundStr(Forces_By_Formulas(model, tables, 0).A[3][4], 3));
    EXPECT_NE(shown, FNRoundStr(Forces_By_Formulas(model, tables, 1).A[3][4], 3));
}

}  // namespace
}  // namespace kervol
