// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/sweep.h"

#include <optional>

#include "core/arithmetic.h"
#include "core/number_text.h"
#include "core/report.h"
#include "kinematics/assembly.h"
#include "kinematics/calculate.h"
#include "kinematics/outline.h"

namespace kervol {
namespace {

/// The rows of a sweep: each calculated at once where all of it is wanted, else in outline when there are
/// enough of them.
class SweepRows {
  public:
    SweepRows(Program& program, Answer& response, Depth depth) : program_(program), response_(response) {
        if (depth != Depth::All) outline_.emplace(program, depth);
    }

    /// Solves one row; false where the user abandoned the sweep.
    bool Solve(int step) {
        const auto row = static_cast<std::int16_t>(step);
        if (outline_)
            outline_->Take(row, response_);
        else
            Calculate(program_, row, response_);
        if (response_ != Answer::Abort) return true;
        program_.model.DataCalculated = false;
        return false;
    }
    void Finish() {
        if (outline_) outline_->Finish(response_);
    }

  private:
    Program& program_;
    Answer& response_;
    std::optional<OutlineRows> outline_;
};

void Start_Sweep(LinkageModel& model) {
    model.DataCalculated = false;
    model.DynamicsCalculated = false;
    model.NewData = true;
}

}  // namespace

void Set_Open_Sign(std::int16_t code, std::int16_t& sign, std::string& text) {
    if (code == 1) {
        sign = -1;
        text = "Open";
    } else if (code == 2) {
        sign = 1;
        text = "Crossed";
    }
}

void Set_Open_Signs(LinkageModel& model) {
    Set_Open_Sign(model.OpenCross1, model.OpenSign1, model.OpenCross1Text);
    Set_Open_Sign(model.OpenCross2, model.OpenSign2, model.OpenCross2Text);
}

void Run_Sweep(Program& program, std::int16_t CalcMode, Answer& response, Depth depth) {
    const SweepFaultScope faults(program);
    Procedure(program, "Run_Sweep", [&] {
        Start_Sweep(program.model);
        Set_Open_Signs(program.model);
        Classify_Stage1(program);
        Classify_Stage2(program);
        if (CalcMode == 1) Calc_One_Position(program, response, depth);
        if (CalcMode == 2) Calc_Time_Steps(program, response, depth);
        if (CalcMode == 3) Calc_Angle_Steps(program, response, depth);
    });
}

void Calc_One_Position(Program& program, Answer& response, Depth depth) {
    Procedure(program, "Calc_One_Position", [&] {
        LinkageModel& model = program.model;
        model.SomeStepFailed = false;
        response = Answer::Retry;
        model.Omega2 = model.Omega2Start;
        model.NumSteps = 0;
        model.Theta2Rad = Single((double(model.Theta2One) - model.GroundAngleDeg) * RadiansPerDegree);
        model.ThetaMinText = Plain_Number(FNRound(model.Theta2One, 1));
        model.ThetaMaxText = model.ThetaMinText;
        model.ThetaStepText = "0";
        SweepRows rows(program, response, depth);
        rows.Solve(0);
        rows.Finish();
    });
}

void Calc_Time_Steps(Program& program, Answer& response, Depth depth) {
    Procedure(program, "Calc_Time_Steps", [&] {
        LinkageModel& model = program.model;
        model.SomeStepFailed = false;
        response = Answer::Retry;
        model.CurrentTime = model.TimeStart;
        SweepRows rows(program, response, depth);
        for (int step = 0; step <= model.NumSteps; ++step) {
            const double t = model.CurrentTime;
            model.Omega2 = Single(model.Alpha2Const * t + model.Omega2Start);
            const double theta =
                model.Alpha2Const * t * t / 2 + model.Omega2Start * t + model.Theta2One * RadiansPerDegree;
            model.Theta2Rad = Single(theta - model.GroundAngle);
            if (!rows.Solve(step)) return;
            model.CurrentTime = Single(double(model.CurrentTime) + model.TimeStep);
        }
        rows.Finish();
    });
}

void Calc_Angle_Steps(Program& program, Answer& response, Depth depth) {
    Procedure(program, "Calc_Angle_Steps", [&] {
        LinkageModel& model = program.model;
        model.SomeStepFailed = false;
        model.CamDriven = false;
        response = Answer::Retry;
        model.Omega2 = model.Omega2Start;
        model.Alpha2Const = 0;
        const float low = Single(double(model.ThetaMin) - model.GroundAngle);
        const float high = Single(double(model.ThetaMax) - model.GroundAngle);
        model.Theta2Rad = model.Omega2Start > 0 ? low : high;
        const float end = model.Omega2Start > 0 ? high : low;
        Clear_Tables(program);
        SweepRows rows(program, response, depth);
        for (int step = 0; step <= model.NumSteps; ++step) {
            if (!rows.Solve(step)) return;
            if (Is_Zero(model.Omega2)) continue;
            const bool forward = model.Omega2 > 0;
            if (forward ? model.Theta2Rad > end : model.Theta2Rad < end) {
                model.Theta2Rad = end;
                rows.Solve(step);
                break;
            }
            model.Theta2Rad =
                Single(double(model.Theta2Rad) + (forward ? model.ThetaStep : -model.ThetaStep));
        }
        rows.Finish();
    });
}

void Calc_Drive_Data(Program& program, Answer& response) {
    const SweepFaultScope faults(program);
    Procedure(program, "Calc_Drive_Data", [&] {
        LinkageModel& model = program.model;
        ResultTables& tables = program.tables;
        Start_Sweep(model);
        model.SomeStepFailed = false;
        for (int step = 0; step <= model.NumSteps; ++step) {
            const double imported = tables.DriveTheta(step);
            const double angle = model.CalcMode == 4 ? model.DriveScale * imported + model.DriveOffset +
                                                           model.Theta2One - model.DriveDatum
                                                     : imported - model.GroundAngleDeg + model.DriveDatum;
            model.Theta2Rad = Single(angle * RadiansPerDegree);
            model.Omega2 = tables.Omega(step, 0);
            model.Alpha2 = tables.Alpha(step, 0);
            Calculate(program, static_cast<std::int16_t>(step), response);
        }
    });
}

}  // namespace kervol
