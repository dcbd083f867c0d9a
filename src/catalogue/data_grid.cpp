// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/data_grid.h"

#include <array>
#include <cmath>
#include <memory>

#include "catalogue/table_rows.h"
#include "catalogue/tabulation.h"
#include "core/arithmetic.h"
#include "core/constants.h"
#include "core/extremes.h"
#include "core/header.h"
#include "core/number_text.h"
#include "core/report.h"

namespace kervol {
namespace {

constexpr int kMinRow = 3, kAvgRow = 4, kMaxRow = 5;
constexpr double kUsableWidth = 0.94;

/// Values of the columns by selection and step, 0 where none was printed.
using Samples = Table<float, NumSlots + 1, StepRows>;

void Size_Grid(Program& program, Grid& grid) {
    TableOutput& output = program.output;
    output.GridCols = Int16(program.selections.NumSelected + 1.0);
    grid.column_width = static_cast<int>(grid.width * kUsableWidth) / output.GridCols;
    const double printed = Divide(Last_Row(program), Rows_Apart(program.model));
    const std::int16_t rows = Int16(std::floor(printed + GridHeadRows + 1));
    if (rows < output.GridRows) Clear_Grid(grid);
    output.GridRows = rows;
    grid.Resize(output.GridRows, output.GridCols);
}

void Put_State(Program& program, DataView& form) {
    Make_Headers(program);
    form.lbl_Header.caption = Put_Header(program.model);
    form.lbl_Header2.caption = program.output.HeaderLine1;
    form.lbl_Header3.caption = program.output.HeaderLine2;
    Put_Link_Labels(program.model, form);
    Put_Drive_Labels(program.model, form);
    Put_Coordinate_Labels(program.selections, form);
}

void Put_First_Heads(const Program& program, Grid& grid) {
    using Heads = std::array<const char*, 3>;
    static constexpr Heads kSpectrum = {"Harmonic", "Number", ""};
    static constexpr Heads kAngle = {"Crank", "Angle", "deg"};
    static constexpr Heads kTime = {"Time", "Step", "sec"};
    const Heads& drive = program.model.CalcMode == 3 ? kAngle : kTime;
    const Heads& heads = program.selections.SelFFT ? kSpectrum : drive;
    for (int row = 0; row < 3; ++row) grid(row, 0) = heads[static_cast<std::size_t>(row)];
}

void Put_Heads(const Program& program, const SlotLabels& labels, Grid& grid) {
    Put_First_Heads(program, grid);
    for (std::int16_t k = 1; k <= program.selections.NumSelected; ++k) {
        const ColumnHead head = Head_Of_Column(program, labels, k);
        grid(0, k) = head.function;
        grid(1, k) = head.component;
        grid(2, k) = head.unit;
    }
    grid(kMinRow, 0) = "Min";
    grid(kAvgRow, 0) = "Avg";
    grid(kMaxRow, 0) = "Max";
}

void Put_Data(const Program& program, Grid& grid, Samples& Y) {
    const std::int16_t decimals = program.output.DecimalPlaces;
    for (std::int16_t k = 1; k <= program.selections.NumSelected; ++k) {
        int row = GridHeadRows;
        For_Each_Printed_Step(program, [&](std::int16_t step) {
            Y(k, step) = Value_At(program, step, k);
            grid(row++, k) = FNRoundStr(Y(k, step), decimals);
        });
    }
    int row = GridHeadRows;
    For_Each_Printed_Step(program, [&](std::int16_t step) { grid(row++, 0) = Abscissa_Text(program, step); });
}

/// Deliberate: over all steps, so that steps that were not printed count as zeros.
void Put_Statistics(const Program& program, Grid& grid, const Samples& Y) {
    const std::int16_t last = Last_Row(program);
    const std::int16_t decimals = program.output.DecimalPlaces;
    for (std::int16_t k = 1; k <= program.selections.NumSelected; ++k) {
        float Max, Min, Avg;
        std::int16_t IMax = 0, IMin = 0;
        MaxMin2(Y, k, 0, last, Max, Min, IMax, IMin);
        Average2(0, last, Y, "Pointer_I", k, Avg);
        grid(kMinRow, k) = FNRoundStr(Min, decimals);
        grid(kAvgRow, k) = FNRoundStr(Avg, decimals);
        grid(kMaxRow, k) = FNRoundStr(Max, decimals);
    }
}

}  // namespace

void Fill_Grid(Program& program, const SlotLabels& labels, DataView& form) {
    Procedure(program, "Fill_Grid", [&] {
        Size_Grid(program, form.grd_Data);
        Put_State(program, form);
        Put_Heads(program, labels, form.grd_Data);
        const auto Y = std::make_unique<Samples>();
        Put_Data(program, form.grd_Data, *Y);
        Put_Statistics(program, form.grd_Data, *Y);
    });
}

}  // namespace kervol
