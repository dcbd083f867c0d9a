// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/step_count.h"

#include <cmath>
#include <limits>
#include <string>

#include "core/arithmetic.h"
#include "core/geometry.h"
#include "core/number_text.h"
#include "core/report.h"
#include "kinematics/assembly.h"
#include "kinematics/sweep.h"

namespace kervol {
namespace {

/// Number of steps of a range; false where there are too many. A count that fits 16 bits is stored either
/// way.
bool Count_Steps(LinkageModel& model, double range, double step) {
    const double count = std::floor(Divide(range, step) + 0.5);
    using Limits = std::numeric_limits<std::int16_t>;
    if (count >= Limits::min() && count <= Limits::max()) model.NumSteps = static_cast<std::int16_t>(count);
    return count <= MaxSteps;
}

void Refuse(Program& program, const std::string& text) {
    program.port.Show_Message({text, Icon::Exclamation});
}

Refusal Sweep_Or_Refuse(Program& program, Answer& response, Depth depth) {
    const std::int16_t mode = program.model.CalcMode;
    Refusal refusal = Refusal::None;
    if (mode == 1 || mode == 2) refusal = Count_Time_Steps(program);
    if (mode == 3) refusal = Count_Angle_Steps(program);
    if (refusal == Refusal::TooManyAngleSteps) response = Answer::Abort;
    if (refusal != Refusal::None) return refusal;
    if (mode == 4 || mode == 5) Calc_Drive_Data(program, response);
    if (mode >= 1 && mode <= 3) Run_Sweep(program, mode, response, Safe_Depth(program.model, depth));
    return refusal;
}

}  // namespace

bool Count_Angle_Range(LinkageModel& model) {
    return Count_Steps(model, double(model.ThetaMax) - model.ThetaMin, model.ThetaStep);
}

bool Count_Time_Range(LinkageModel& model) {
    return model.TimeStep > 0 && Count_Steps(model, double(model.TimeEnd) - model.TimeStart, model.TimeStep);
}

Refusal Count_Angle_Steps(Program& program) {
    LinkageModel& model = program.model;
    Set_Range_Angles(model);
    if (Is_Zero(model.ThetaStep)) {
        Refuse(program, "Cannot have a zero step size - Please check your data.");
        return Refusal::ZeroAngleStep;
    }
    const bool fits = Count_Angle_Range(model);
    model.Alpha2Const = 0;
    if (fits) return Refusal::None;
    Refuse(program, "Your angle steps are too small - Have > " + std::to_string(MaxSteps) +
                        " Points - Increase Delta Theta");
    return Refusal::TooManyAngleSteps;
}

Refusal Count_Time_Steps(Program& program) {
    LinkageModel& model = program.model;
    if (model.CalcMode == 2) {
        model.ThetaMinText = Plain_Number(model.TimeStart);
        model.ThetaMaxText = Plain_Number(model.TimeEnd);
        model.ThetaStepText = Plain_Number(model.TimeStep);
    }
    if (Count_Time_Range(model)) return Refusal::None;
    Refuse(program, "Your time steps are too small - Have > " + std::to_string(MaxSteps) +
                        " Points - Increase Delta Time or Reduce Finish Time");
    return Refusal::TimeSteps;
}

CalculationEnd Calculate_Model(Program& program, Depth depth) {
    LinkageModel& model = program.model;
    Answer response = Answer::None;
    model.DataCalculated = false;
    const Refusal refusal = Sweep_Or_Refuse(program, response, depth);
    if (response != Answer::Abort) {
        model.DataCalculated = true;
        model.DataFromFile = false;
        model.DynamicsCalculated = false;
        model.NewData = true;
    }
    if (refusal != Refusal::None) return CalculationEnd::Refused;
    if (model.CalcMode < 1 || model.CalcMode > 5) return CalculationEnd::NoMode;
    return response == Answer::Abort ? CalculationEnd::Abandoned : CalculationEnd::Done;
}

void Set_Preview_Range(Program& program) {
    LinkageModel& model = program.model;
    model.DataCalculated = false;
    Classify_Stage1(program);
    if (model.Stage1Class == "N") {
        // The limit angle itself is not used; what it shows on the way is.
        Procedure(program, "Check_Limit_Angles", [&] {
            Check_Limit_Angles(program.port, model.Link2, model.Link3, model.Link4, model.Link1);
        });
        model.ThetaMin = Single(-1 * RadiansPerDegree);
        model.ThetaMax = Single(1 * RadiansPerDegree);
    } else {
        model.ThetaMin = 0;
        model.ThetaMax = Single(6.283185308);
    }
    model.ThetaStep = Single((double(model.ThetaMax) - model.ThetaMin) / 10);
    Count_Angle_Range(model);
    Classify_Stage2(program);
}

}  // namespace kervol
