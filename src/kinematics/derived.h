// SPDX-License-Identifier: GPL-3.0-or-later
// Quantities by which designers judge a position: wrapped angles, transmission angles, ratios of speeds.
#pragma once

#include <string_view>

namespace kervol {

/// An angle in degrees brought into the range by one turn: "abs" lifts negative angles, "180" lowers those
/// above 180, any other range leaves it. More than a turn out of range stays out of range.
float Wrap_Angle(float degrees, std::string_view range);

/// Transmission angle of Stage 1 in degrees from the tabulated angles of links 3 and 4. Deliberate: the fold
/// looks at the cell's previous content and not at the new angle.
float Transmission_Angle_1(float previous, float theta3, float theta4);

/// Transmission angle of Stage 2 in degrees from the tabulated angles of links 5 and 6, folded once above 90.
float Transmission_Angle_2(float theta5, float theta6);

/// Writes the output's speed by the crank's, and the reverse. A cell whose divisor is exactly 0 keeps its
/// content.
void Put_Speed_Ratios(double omega2, double omega_output, float& velocity_ratio, float& mechanical_advantage);

}  // namespace kervol
