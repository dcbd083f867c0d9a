// SPDX-License-Identifier: GPL-3.0-or-later
// What is read off the values of a function over a sweep.
#pragma once

#include <span>
#include <vector>

namespace kervol {

// Of at least one value.
float Greatest(std::span<const float> values);
float Least(std::span<const float> values);
/// Greatest less least.
float Range_Of(std::span<const float> values);
/// As `Average2` sums it.
float Mean_Of(std::span<const float> values);
float Root_Mean_Square(std::span<const float> values);
/// Greatest size, whatever the sign.
float Peak_Of(std::span<const float> values);

/// Puts a jump of more than half a turn from a value to the next back by full turns. Degrees.
void Follow_Over_Turns(std::vector<float>& degrees);

/// The greatest rotation of the crank over which the values stay within `tolerance` of each other. Where the
/// crank makes one full turn, a dwell goes on over its ends. `crank`, in degrees, must not jump.
float Longest_Dwell(std::span<const float> values, std::span<const float> crank, double tolerance);

}  // namespace kervol
