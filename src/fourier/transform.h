// SPDX-License-Identifier: GPL-3.0-or-later
// The Fourier transform of an output function: every harmonic is summed from every sample, whose number need
// not be a power of two.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/program.h"

namespace kervol {

/// Transforms the function of selection 1 at steps 1 to N. Deliberate: step 0 is left out, so that of a full
/// turn the last sample, which repeats the first position, is the one that is kept.
///
/// Writes `FFTHalf`, `FFTTiny`, `FFTWork` and rows 0 to `FFTHalf` - 1 of `FFTTable`, row 0 always; further
/// rows are left as they were. Of `FFTWork` the rows that the table takes are computed, the others to N are
/// 0. A fault, so one of more than 1024 samples, is reported.
void FFT_Compute(Program& program, std::int16_t N);

/// Zeroes rows 0 to `Last` of `FFTTable`, which ends at row 512 whatever `Last` says.
void FFT_Clear_Table(Program& program, std::int16_t Last);

/// Zeroes rows 0 to `Last` of `FFTWork`. Fault 9 above 1024.
void FFT_Clear_Work(Program& program, std::int16_t Last);

/// Selects function and component as selection 1 and transforms it over the whole sweep: sets `FFTUnit` and
/// `FFTReady`. A text that is no name leaves the selection that was there.
void Transform_Function(Program& program, std::string_view function, std::string_view component);

}  // namespace kervol
