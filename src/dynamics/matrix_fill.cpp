// SPDX-License-Identifier: GPL-3.0-or-later
#include "dynamics/matrix_fill.h"

#include "core/arithmetic.h"
#include "core/number_text.h"
#include "core/report.h"

namespace kervol {
namespace {

constexpr std::int16_t kDecimals = 3;
constexpr Colour kGrey = {128, 128, 128};
constexpr Colour kRed = {255, 0, 0};

void Show_Number(MatrixCell& cell, double number) {
    const float value = Single(number);
    cell.caption = FNRoundStr(value, kDecimals);
    cell.colour = Is_Zero(FNRound(value, kDecimals)) ? kGrey : kRed;
}

}  // namespace

void Matrix_Fill(Program& program, const ForceSystem& system) {
    Procedure(program, "Matrix_Fill", [&] {
        MatrixDisplay& display = program.matrix;
        for (int i = 1; i <= NumEquations; ++i) {
            for (int row = 1; row <= NumEquations; ++row)
                Show_Number(display.lbl_A(row, i), system.MatrixA(row, i));
            Show_Number(display.lbl_B(i), system.VectorB(i));
        }
    });
}

}  // namespace kervol
