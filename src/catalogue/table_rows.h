// SPDX-License-Identifier: GPL-3.0-or-later
// Rows, columns and heads that tables of the selected functions have in common, wherever they go.
#pragma once

#include <cstdint>
#include <string>

#include "catalogue/slots.h"
#include "core/program.h"

namespace kervol {

/// The last row that a table may have: `NumSteps`, of the current Fourier function its last harmonic.
std::int16_t Last_Row(const Program& program);

/// `PrintStep`, 1 where it is below that.
std::int16_t Rows_Apart(const LinkageModel& model);

/// Runs the body for step 0 and every `PrintStep`th behind it. A last step off that pattern is left out.
template <class Body>
void For_Each_Printed_Step(const Program& program, Body&& body) {
    const int last = Last_Row(program);
    const int apart = Rows_Apart(program.model);
    for (int step = 0; step <= last; step += apart) body(static_cast<std::int16_t>(step));
}

/// What a table has in its first column at a step: the crank angle in degrees, in drives over time the time.
double Abscissa(const Program& program, std::int16_t step);

/// The same as text; of the current Fourier function the number of the harmonic.
std::string Abscissa_Text(const Program& program, std::int16_t step);

/// The function of selection k at a step; 0 where the selection was never used.
float Value_At(const Program& program, std::int16_t step, std::int16_t k);

/// The same as text.
std::string Value_Text(const Program& program, std::int16_t step, std::int16_t k);

/// Unit of selection k's table, empty where it was never used; of the current Fourier function that of the
/// function behind it.
const std::string& Table_Unit(const Program& program, std::int16_t k);

/// Title of a table or plot of the current Fourier function.
std::string Transform_Title(const Program& program);

struct ColumnHead {
    std::string function;
    std::string component;
    std::string unit;  ///< that of the table, but "deg" below the component "Ang"
};

/// Head of the column of selection k, 1 to 4; fault 9 for any other.
ColumnHead Head_Of_Column(const Program& program, const SlotLabels& labels, std::int16_t k);

}  // namespace kervol
