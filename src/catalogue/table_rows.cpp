// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/table_rows.h"

#include <algorithm>

#include "catalogue/catalogue_table.h"
#include "catalogue/selection.h"
#include "core/arithmetic.h"
#include "core/number_text.h"

namespace kervol {

std::int16_t Last_Row(const Program& program) {
    return program.selections.SelFFT ? Last_Harmonic(program.fourier) : program.model.NumSteps;
}

std::int16_t Rows_Apart(const LinkageModel& model) {
    return std::max<std::int16_t>(model.PrintStep, 1);
}

double Abscissa(const Program& program, std::int16_t step) {
    const LinkageModel& model = program.model;
    if (model.CalcMode == 3) return program.tables.Theta(step, 0);
    return step * double(model.TimeStep) + model.TimeStart;
}

std::string Abscissa_Text(const Program& program, std::int16_t step) {
    if (program.selections.SelFFT) return std::to_string(step);
    return FNRoundStr(Abscissa(program, step), program.output.DecimalPlaces);
}

float Value_At(const Program& program, std::int16_t step, std::int16_t k) {
    float value = 0;
    Select_Variable(program, step, k, value);
    return value;
}

std::string Value_Text(const Program& program, std::int16_t step, std::int16_t k) {
    return FNRoundStr(Value_At(program, step, k), program.output.DecimalPlaces);
}

const std::string& Table_Unit(const Program& program, std::int16_t k) {
    const std::int16_t code = program.selections.SelTable(k);
    return code == table_code::FFTTable ? program.fourier.FFTUnit : program.model.UnitText(code);
}

std::string Transform_Title(const Program& program) {
    return "Fourier Transform of  " + program.fourier.FFTFunctionName;
}

ColumnHead Head_Of_Column(const Program& program, const SlotLabels& labels, std::int16_t k) {
    if (k < 1 || k > static_cast<int>(NumSlots)) Raise(fault::Subscript);
    const auto slot = static_cast<std::size_t>(k) - 1;
    const std::string& component = labels.lbl_Component[slot].caption;
    const bool spectrum = program.selections.SelTable(k) == table_code::FFTTable;
    const bool angle = component == "Ang" && !spectrum;
    return {labels.lbl_Function[slot].caption, component, angle ? "deg" : Table_Unit(program, k)};
}

}  // namespace kervol
