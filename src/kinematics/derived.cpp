// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/derived.h"

#include <cmath>

#include "core/arithmetic.h"

namespace kervol {

float Wrap_Angle(float degrees, std::string_view range) {
    if (range == "abs" && degrees < 0) return Single(double(degrees) + 360);
    if (range == "180" && degrees > 180) return Single(double(degrees) - 360);
    return degrees;
}

float Transmission_Angle_1(float previous, float theta3, float theta4) {
    return Single(previous > 90 ? std::abs(180 - double(previous)) : std::abs(double(theta4) - theta3));
}

float Transmission_Angle_2(float theta5, float theta6) {
    const float angle = Single(std::abs(double(theta6) - theta5));
    return angle > 90 ? Single(std::abs(180 - double(angle))) : angle;
}

void Put_Speed_Ratios(double omega2, double omega_output, float& velocity_ratio,
                      float& mechanical_advantage) {
    if (!Is_Zero(omega2)) velocity_ratio = Single(Divide(omega_output, omega2));
    if (!Is_Zero(omega_output)) mechanical_advantage = Single(Divide(omega2, omega_output));
}

}  // namespace kervol
