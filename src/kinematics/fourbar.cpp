// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/fourbar.h"

namespace kervol {

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
