// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/stage1.h"

namespace kervol {

std::optional<Stage1> Solve_Stage1(const LinkageModel& model) {
    const double omega2 = model.Omega2;
    const double alpha2 = model.Alpha2;
    const LoopConstants K(model.Link2, model.Link3, model.Link4, model.Link1);
    const Arm crank(model.Link2, model.Theta2Rad);

    const auto equation4 = Output_Equation(K, crank.sin, crank.cos);
    if (!Can_Be_Solved(equation4)) return std::nullopt;
    const Arm rocker(model.Link4, equation4.Angle(model.OpenSign1));

    const auto equation3 = Coupler_Equation(K, crank.sin, crank.cos);
    if (!Can_Be_Solved(equation3)) return std::nullopt;
    const Arm coupler(model.Link3, equation3.Angle(model.OpenSign1));

    const Arm AC(model.CouplerAC, coupler.angle + model.Delta3);
    const ToggleSines toggle(coupler, rocker);
    if (Is_Zero(toggle.coupler_output) || Is_Zero(toggle.output_coupler)) return std::nullopt;
    const auto omega = Loop_Speeds(crank, coupler, rocker, toggle, omega2);

    const LoopAccelerations equations(crank, coupler, rocker, omega2, alpha2, omega);
    if (Is_Zero(equations.determinant)) return std::nullopt;
    const auto alpha = equations.Solve();

    Stage1 stage;
    stage.theta3 = coupler.angle;
    stage.theta4 = rocker.angle;
    stage.omega3 = omega.coupler;
    stage.omega4 = omega.output;
    stage.alpha3 = alpha.coupler;
    stage.alpha4 = alpha.output;
    stage.A = Point_On_Arm(crank, omega2, alpha2, Fixed_Pivot(0.0, 0.0));
    stage.B = Point_On_Arm(rocker, omega.output, alpha.output, Fixed_Pivot(model.Link1, 0.0));
    stage.C = Point_On_Arm(AC, omega.coupler, alpha.coupler, stage.A);
    return stage;
}

}  // namespace kervol
