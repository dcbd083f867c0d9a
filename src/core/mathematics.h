// SPDX-License-Identifier: GPL-3.0-or-later
// Vectors and angles. The arc tangents do not return the principal value and the constants are not the exact
// pi: both stages, the forces and the plots rest on these very conventions.
#pragma once

#include <cstdint>

namespace kervol {

class Port;

/// Arc cosine in radians. Deliberate: 1 at both x = 1 and x = -1. Beyond that range a box is shown and 0
/// returned.
double FNArcCos(Port& port, float x);

/// Angle of a vector in radians, -pi/2 to 3pi/2, never normalised; 0 for the zero vector.
double Atan2(float x, float y);

/// `Atan2` in degrees.
double Atan2D(float x, float y);

/// Magnitude and angle, -90 to 270 degrees; the angle is written first.
void Cart_to_Polar(float x, float y, float& r, float& theta);

/// Turns a point by Sign times Angle degrees about the origin.
void Rotate(float x, float y, float Angle, std::int16_t Sign, float& xr, float& yr);

/// Turns a negative value positive, with a warning.
void Check_Positive(Port& port, float& value);
void Warn_Positive(Port& port);

}  // namespace kervol
