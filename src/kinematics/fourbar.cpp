// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/fourbar.h"

#include <cmath>

#include "core/arithmetic.h"

namespace kervol {

Arm::Arm(const Line& line) : Line(line), sin(std::sin(line.angle)), cos(std::cos(line.angle)) {}

LoopConstants::LoopConstants(double a, double b, double c, double d)
    : K1(Divide(d, a)),
      K2(Divide(d, c)),
      K3(Divide(a * a - b * b + c * c + d * d, 2 * a * c)),
      K4(Divide(d, b)),
      K5(Divide(c * c - d * d - a * a - b * b, 2 * a * b)) {}

HalfTangentEquation::HalfTangentEquation(double p, double q, double r)
    : P(p), Q(q), R(r), discriminant(Finite(q * q - 4 * p * r)) {}

double HalfTangentEquation::Angle(int sign) const {
    return 2 * std::atan(Divide(-Q + sign * Root(discriminant), 2 * P));
}

HalfTangentEquation Output_Equation(const LoopConstants& K, double sin_input, double cos_input) {
    return {K.K3 + cos_input - K.K1 - K.K2 * cos_input, -2 * sin_input, K.K3 + K.K1 - (K.K2 + 1) * cos_input};
}

HalfTangentEquation Coupler_Equation(const LoopConstants& K, double sin_input, double cos_input) {
    return {(K.K4 + 1) * cos_input + K.K5 - K.K1, -2 * sin_input, (K.K4 - 1) * cos_input + K.K5 + K.K1};
}

// A sine is odd to its last bit, and so is a difference.
ToggleSines::ToggleSines(const Line& coupler, const Line& output)
    : coupler_output(std::sin(coupler.angle - output.angle)), output_coupler(-coupler_output) {}

CouplerOutput Loop_Speeds(const Line& input, const Line& coupler, const Line& output,
                          const ToggleSines& toggle, double omega_input) {
    const double speed = input.length * omega_input;
    return {
        Divide(Divide(speed, coupler.length) * std::sin(output.angle - input.angle), toggle.coupler_output),
        Divide(Divide(speed, output.length) * std::sin(input.angle - coupler.angle), toggle.output_coupler)};
}

LoopAccelerations::LoopAccelerations(const Arm& input, const Arm& coupler, const Arm& output,
                                     double omega_input, double alpha_input, const CouplerOutput& omega)
    : Pa(output.length * output.sin),
      Pb(coupler.length * coupler.sin),
      Pd(output.length * output.cos),
      Pe(coupler.length * coupler.cos) {
    const double square_input = omega_input * omega_input;
    const double square_coupler = omega.coupler * omega.coupler;
    const double square_output = omega.output * omega.output;
    Pc = input.length * alpha_input * input.sin + input.length * square_input * input.cos +
         coupler.length * square_coupler * coupler.cos - output.length * square_output * output.cos;
    Pf = input.length * alpha_input * input.cos - input.length * square_input * input.sin -
         coupler.length * square_coupler * coupler.sin + output.length * square_output * output.sin;
    determinant = Finite(Pe * Pa - Pd * Pb);
}

CouplerOutput LoopAccelerations::Solve() const {
    return {Divide(Pd * Pc - Pf * Pa, determinant), Divide(Pe * Pc - Pb * Pf, determinant)};
}

}  // namespace kervol
