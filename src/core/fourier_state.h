// SPDX-License-Identifier: GPL-3.0-or-later
// The Fourier transform that was computed last: its sums, and what is known of it; its numbers stand in
// `FFTTable`.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>

#include "core/constants.h"
#include "core/table.h"

namespace kervol {

/// Highest row of `FFTTable`.
inline constexpr std::int16_t MaxHarmonics = 512;

struct FourierState {
    // Written by `FFT_Compute`.
    Table<double, StepRows, 4> FFTWork;  ///< columns of `FFTTable` before doubling; row k of harmonic k - 1
    std::int16_t FFTHalf{};              ///< rows of `FFTTable` that are filled
    float FFTTiny{};                     ///< running sums below it become 0

    // Written by the Fourier screen.
    bool FFTReady{};                 ///< `FFTTable` holds a finished transform
    bool FFTScreenOpen{};            ///< that screen is in use
    std::int16_t NumPlots{};         ///< graphs on it
    std::int16_t NumHarmonics = 15;  ///< highest harmonic that tables and plots show
    std::string FFTFunctionName;     ///< function field of the Fourier screen
    std::string FFTUnit;             ///< unit of the transformed function
};

/// Last row of `FFTTable` that is shown: the harmonic asked for, as far as the table goes.
inline std::int16_t Last_Harmonic(const FourierState& fourier) {
    return std::clamp<std::int16_t>(fourier.NumHarmonics, 0, MaxHarmonics);
}

}  // namespace kervol
