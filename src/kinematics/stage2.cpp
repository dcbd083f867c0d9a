// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/stage2.h"

#include <cmath>

#include "core/arithmetic.h"
#include "core/mathematics.h"

namespace kervol {
namespace {

/// The loop's closed form for an input line at angle phi and a ground link at angle g, both local. A zero
/// leading coefficient is a fault here, not a failed assembly.
std::optional<CouplerOutput> Relative_Angles(const LinkageModel& model, double input, double phi,
                                             double ground, double g) {
    const LoopConstants K(input, model.Link5, model.Link6, ground);
    const double sin_input = std::sin(phi - g);
    const double cos_input = std::cos(phi - g);

    const auto equation6 = Output_Equation(K, sin_input, cos_input);
    if (equation6.discriminant < 0) return std::nullopt;
    const double relative6 = equation6.Angle(model.OpenSign2);

    const auto equation5 = Coupler_Equation(K, sin_input, cos_input);
    if (equation5.discriminant < 0) return std::nullopt;
    return CouplerOutput{equation5.Angle(model.OpenSign2), relative6};
}

}  // namespace

Line Watt_Input(const LinkageModel& model, double theta4) {
    return {model.LinkO4D, model.Delta4 + theta4};
}

Line Stephenson_Input(Vec C) {
    float length, degrees;
    Cart_to_Polar(Single(C.x), Single(C.y), length, degrees);
    return {length, degrees * RadiansPerDegree};
}

StephensonRates::StephensonRates(const Arm& link5, const Arm& link6)
    : p(-link5.length * link5.sin),
      q(-link6.length * link6.sin),
      r(link5.length * link5.cos),
      s(-link6.length * link6.cos),
      rq_by_p(Divide(r * q, p)) {}

CouplerOutput StephensonRates::Speeds(Vec VC) const {
    const double omega6 = Divide(Divide(r * VC.x, p) - VC.y, s - rq_by_p);
    return {Divide(-q * omega6 - VC.x, p), omega6};
}

CouplerOutput StephensonRates::Accelerations(Vec AC, const CouplerOutput& omega) const {
    const double omega5 = omega.coupler, omega6 = omega.output;
    const double X = AC.x - r * omega5 * omega5 - s * omega6 * omega6;
    const double Y = AC.y + p * omega5 * omega5 - q * omega6 * omega6;
    const double alpha6 = Divide(Divide(X * r, p) - Y, Divisor());
    return {Divide(alpha6 * q - X, p), alpha6};
}

std::optional<Stage2> Solve_Watt(const LinkageModel& model, const Stage1& stage1) {
    const Arm input(Watt_Input(model, stage1.theta4));
    const auto relative =
        Relative_Angles(model, input.length, input.angle, model.O4O6Length, model.O4O6Angle);
    if (!relative) return std::nullopt;
    const Arm link5(model.Link5, relative->coupler + model.O4O6Angle);
    const Arm link6(model.Link6, relative->output + model.O4O6Angle);

    const auto omega = Loop_Speeds(input, link5, link6, ToggleSines(link5, link6), stage1.omega4);
    const auto alpha = LoopAccelerations(input, link5, link6, stage1.omega4, stage1.alpha4, omega).Solve();

    const auto O4 = Fixed_Pivot(model.Link1, 0.0);
    const auto O6 = Fixed_Pivot(double(model.O4O6X) + model.Link1, model.O4O6Y);
    Stage2 stage;
    stage.column3 = input.angle;
    stage.theta5 = link5.angle;
    stage.theta6 = link6.angle;
    stage.relative5 = relative->coupler;
    stage.relative6 = relative->output;
    stage.omega5 = omega.coupler;
    stage.omega6 = omega.output;
    stage.alpha5 = alpha.coupler;
    stage.alpha6 = alpha.output;
    stage.start = Point_On_Arm(input, stage1.omega4, stage1.alpha4, O4);
    stage.end = Point_On_Arm(link6, omega.output, alpha.output, O6);
    stage.coupler2 = Point_On_Arm(Arm(model.Coupler2Length, link5.angle + model.Delta5), omega.coupler,
                                  alpha.coupler, stage.start);
    return stage;
}

std::optional<Stage2> Solve_Stephenson(const LinkageModel& model, const Stage1& stage1) {
    const Line input = Stephenson_Input(stage1.C.position);
    const auto relative =
        Relative_Angles(model, input.length, input.angle, model.O2O6Length, model.O2O6Angle);
    if (!relative) return std::nullopt;
    const Arm link5(model.Link5, relative->coupler + model.O2O6Angle);
    const Arm link6(model.Link6, relative->output + model.O2O6Angle);
    const StephensonRates rates(link5, link6);
    const auto omega = rates.Speeds(stage1.C.velocity);
    const auto alpha = rates.Accelerations(stage1.C.acceleration, omega);

    const auto O6 = Fixed_Pivot(model.O6LocalX, model.O6LocalY);
    Stage2 stage;
    stage.column3 = stage1.theta3 + model.Delta3;
    stage.theta5 = link5.angle;
    stage.theta6 = link6.angle;
    stage.relative5 = relative->coupler;
    stage.relative6 = relative->output;
    stage.omega5 = omega.coupler;
    stage.omega6 = omega.output;
    stage.alpha5 = alpha.coupler;
    stage.alpha6 = alpha.output;
    stage.start = stage1.C;
    stage.end = Point_On_Arm(link6, omega.output, alpha.output, O6);
    stage.coupler2 = Point_On_Arm(Arm(model.Coupler2Length, link5.angle + model.Delta5), omega.coupler,
                                  alpha.coupler, stage.start);
    return stage;
}

}  // namespace kervol
