// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of the Fourier transform that was computed last; its numbers stand in `FFTTable`.
#pragma once

#include <cstdint>
#include <string>

namespace kervol {

/// Highest row of `FFTTable`.
inline constexpr std::int16_t MaxHarmonics = 512;

struct FourierState {
    bool FFTReady{};                 ///< `FFTTable` holds a finished transform
    std::int16_t NumHarmonics = 15;  ///< highest harmonic that tables and plots show
    std::string FFTFunctionName;     ///< function field of the Fourier screen
    std::string FFTUnit;             ///< unit of the transformed function
};

}  // namespace kervol
