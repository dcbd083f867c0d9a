// SPDX-License-Identifier: GPL-3.0-or-later
// The constants that the whole program rests on.
#pragma once

#include <cstddef>

namespace kervol {

/// Deliberate: not the exact pi and its quotients. Tables, files and sibling programs agree on these values.
inline constexpr double Pi = 3.141592654;
inline constexpr double HalfPi = 1.570796327;
inline constexpr double DegreesPerRadian = 57.29577950560105;     // 180 / 3.141592654
inline constexpr double RadiansPerDegree = 0.017453292522222223;  // 3.141592654 / 180

/// Highest step index of a sweep, so that a sweep has at most 1025 positions.
inline constexpr int MaxSteps = 1024;
inline constexpr std::size_t StepRows = MaxSteps + 1;
/// Rows of an imported drive, 0 to 360.
inline constexpr std::size_t DriveRows = 361;

/// Highest link number; link arrays run from 0 to this.
inline constexpr int NumLinks = 6;

}  // namespace kervol
