// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/outline.h"

#include <cmath>

#include "core/arithmetic.h"
#include "kinematics/calculate.h"
#include "kinematics/derived.h"
#include "kinematics/table_row.h"

namespace kervol {

OutlineRows::OutlineRows(Program& program, Depth depth)
    : program_(program),
      model_(program.model),
      depth_(depth),
      watt_(model_.LinkageType == "W"),
      K1_(model_.Link2, model_.Link3, model_.Link4, model_.Link1),
      K2_(watt_ ? LoopConstants(model_.LinkO4D, model_.Link5, model_.Link6, model_.O4O6Length) : K1_) {}

void OutlineRows::Take(std::int16_t step, Answer& response) {
    // A row that is taken twice is also written twice.
    const bool again = taken_ > 0 && lanes_[taken_ - 1].step == step;
    if (again || taken_ == kLanes) Finish(response);
    Lane& lane = lanes_[taken_];
    lane.step = step;
    lane.Theta2Rad = model_.Theta2Rad;
    lane.Omega2 = model_.Omega2;
    left_out_[taken_++] = false;
}

void OutlineRows::Finish(Answer& response) {
    const float Theta2Rad = model_.Theta2Rad, Omega2 = model_.Omega2;
    try {
        Solve();
    } catch (const Fault&) {
        // Whose it is will show where each is calculated whole.
        left_out_.fill(true);
    }
    for (std::size_t i = 0; i < taken_; ++i) {
        if (!left_out_[i]) Store(lanes_[i]);
    }
    for (std::size_t i = 0; i < taken_; ++i) {
        if (!left_out_[i]) continue;
        Set_Crank(lanes_[i]);
        Calculate(program_, lanes_[i].step, response);
    }
    program_.model.Theta2Rad = Theta2Rad;
    program_.model.Omega2 = Omega2;
    taken_ = 0;
}

template <class Work>
void OutlineRows::Do(Work&& work) {
    for (std::size_t i = 0; i < taken_; ++i)
        if (!left_out_[i]) left_out_[i] = !work(lanes_[i]);
}

void OutlineRows::Solve() {
    Do([this](Lane& lane) { return Turn_Crank(lane); });
    Do([this](Lane& lane) { return Close_Stage1(lane); });
    Do([this](Lane& lane) { return Move_Stage1(lane); });
    if (watt_) {
        Do([this](Lane& lane) { return Close_Watt(lane); });
        Do([this](Lane& lane) { return Move_Watt(lane); });
    } else {
        Do([this](Lane& lane) { return Find_C(lane); });
        Do([this](Lane& lane) { return Close_Stephenson(lane); });
        Do([this](Lane& lane) { return Move_Stephenson(lane); });
    }
}

bool OutlineRows::Turn_Crank(Lane& lane) const {
    lane.crank = Arm(model_.Link2, lane.Theta2Rad);
    return Is_Ordinary_Crank(lane.Omega2, model_.Alpha2);
}

bool OutlineRows::Close_Stage1(Lane& lane) const {
    const auto equation4 = Output_Equation(K1_, lane.crank.sin, lane.crank.cos);
    const auto equation3 = Coupler_Equation(K1_, lane.crank.sin, lane.crank.cos);
    if (!Can_Be_Solved(equation4) || !Can_Be_Solved(equation3)) return false;
    lane.rocker = {model_.Link4, equation4.Angle(model_.OpenSign1)};
    lane.coupler = {model_.Link3, equation3.Angle(model_.OpenSign1)};
    lane.stage1.theta3 = lane.coupler.angle;
    lane.stage1.theta4 = lane.rocker.angle;
    return true;
}

bool OutlineRows::Move_Stage1(Lane& lane) const {
    const ToggleSines toggle(lane.coupler, lane.rocker);
    if (!Is_Ordinary_Loop(toggle)) return false;
    if (watt_ && depth_ == Depth::Angles) return true;
    const auto omega = Loop_Speeds(lane.crank, lane.coupler, lane.rocker, toggle, lane.Omega2);
    lane.stage1.omega3 = omega.coupler;
    lane.stage1.omega4 = omega.output;
    return true;
}

bool OutlineRows::Find_C(Lane& lane) const {
    Stage1& stage = lane.stage1;
    const Arm AC(model_.CouplerAC, lane.coupler.angle + model_.Delta3);
    stage.A = Point_On_Arm(lane.crank, lane.Omega2, model_.Alpha2, Fixed_Pivot(0.0, 0.0));
    stage.C = Point_On_Arm(AC, stage.omega3, stage.alpha3, stage.A);
    return true;
}

bool OutlineRows::Close_Stage2(Lane& lane, const LoopConstants& K, float g) const {
    const Arm from_ground(lane.input.length, lane.input.angle - g);
    const auto equation6 = Output_Equation(K, from_ground.sin, from_ground.cos);
    const auto equation5 = Coupler_Equation(K, from_ground.sin, from_ground.cos);
    if (equation6.discriminant < 0 || equation5.discriminant < 0) return false;
    lane.link6 = {model_.Link6, equation6.Angle(model_.OpenSign2) + g};
    lane.link5 = {model_.Link5, equation5.Angle(model_.OpenSign2) + g};
    lane.stage2.theta5 = lane.link5.angle;
    lane.stage2.theta6 = lane.link6.angle;
    return true;
}

bool OutlineRows::Close_Watt(Lane& lane) const {
    lane.input = Watt_Input(model_, lane.rocker.angle);
    lane.stage2.column3 = lane.input.angle;
    return Close_Stage2(lane, K2_, model_.O4O6Angle);
}

bool OutlineRows::Close_Stephenson(Lane& lane) const {
    lane.input = Stephenson_Input(lane.stage1.C.position);
    lane.stage2.column3 = lane.coupler.angle + model_.Delta3;
    const LoopConstants K(lane.input.length, model_.Link5, model_.Link6, model_.O2O6Length);
    return Close_Stage2(lane, K, model_.O2O6Angle);
}

bool OutlineRows::Move_Watt(Lane& lane) const {
    const ToggleSines toggle(lane.link5, lane.link6);
    if (!Is_Ordinary_Loop(toggle)) return false;
    if (depth_ == Depth::Angles) return true;
    const auto omega = Loop_Speeds(lane.input, lane.link5, lane.link6, toggle, lane.stage1.omega4);
    lane.stage2.omega5 = omega.coupler;
    lane.stage2.omega6 = omega.output;
    return true;
}

bool OutlineRows::Move_Stephenson(Lane& lane) const {
    const Arm link5(lane.link5), link6(lane.link6);
    const StephensonRates rates(link5, link6);
    const auto omega = rates.Speeds(lane.stage1.C.velocity);
    lane.stage2.omega5 = omega.coupler;
    lane.stage2.omega6 = omega.output;
    return Are_Ordinary_Rates(link5.sin, rates.Divisor() / link6.length, omega);
}

void OutlineRows::Store(const Lane& lane) {
    Set_Crank(lane);
    program_.tables.StepValid(lane.step) = true;
    TableRow row(program_.tables, lane.step);
    Store_Angles(model_, program_.tables, row, lane.stage1);
    Store_Angles(model_, row, lane.stage2);
    row.Theta(7) = Transmission_Angle_2(row.Theta(4), row.Theta(5));
    if (depth_ == Depth::Speeds) {
        Store_Speeds(model_, row, lane.stage1);
        Store_Speeds(row, lane.stage2);
        Put_Speed_Ratios(model_.Omega2, lane.stage2.omega6, row.VelRatio(1), row.MechAdv(1));
    }
    program_.model.DataCalculated = true;
    program_.model.DataFromFile = false;
}

void OutlineRows::Set_Crank(const Lane& lane) {
    program_.model.Theta2Rad = lane.Theta2Rad;
    program_.model.Omega2 = lane.Omega2;
}

}  // namespace kervol
