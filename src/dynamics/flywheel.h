// SPDX-License-Identifier: GPL-3.0-or-later
// The energy under each pulse of a torque curve about its mean.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/arithmetic.h"
#include "core/constants.h"
#include "core/report.h"
#include "core/table.h"

namespace kervol {

/// Energies of the pulses of one sign in the order found, from 1; element 0 stays unused.
using PulseAreas = Table<float, 11>;

/// Deviation of a curve from its mean, by step.
using DeviationCurve = Table<float, StepRows>;

/// Sums D(1) to D(Last) into pulses, trapezoid by trapezoid; the interval in which the sign changes belongs
/// to the new sign. Deliberate: the interval from 0 to 1 is left out.
///
/// Entries 1 to `NPulses` of both arrays are cleared first. `FirstSign` is 1 or -1 by the first interval and
/// keeps its value where there is none. `NPulses` counts the pulses of both signs, each at least one. More
/// than ten of one sign are fault 9; `NPulses` then keeps its value.
void Integrate_Pulses(const DeviationCurve& D, std::int16_t Last, float DeltaX, PulseAreas& NegArea,
                      PulseAreas& PosArea, std::int16_t& NPulses, std::int16_t& FirstSign);

/// `Integrate_Pulses` for the deviation from `Average` of column `Key` of the data for the mode "I_Pointer",
/// of row `Key` for "Pointer_I". For any other mode the deviation is 0. `DeltaX` is the step in radians.
template <std::size_t Rows, std::size_t Columns>
void Flywheel(Program& program, const Table<float, Rows, Columns>& Data, std::int16_t First,
              std::int16_t Last, float DeltaX, float Average, PulseAreas& NegArea, PulseAreas& PosArea,
              std::int16_t& NPulses, std::int16_t& FirstSign, std::int16_t Key, std::string_view Mode) {
    Procedure(program, "Flywheel", [&] {
        DeviationCurve D;
        for (int i = First; i <= Last; ++i) {
            if (Mode == "I_Pointer") D(i) = Single(double(Data(i, Key)) - Average);
            if (Mode == "Pointer_I") D(i) = Single(double(Data(Key, i)) - Average);
        }
        Integrate_Pulses(D, Last, DeltaX, NegArea, PosArea, NPulses, FirstSign);
    });
}

}  // namespace kervol
