// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/calculate.h"

#include "core/arithmetic.h"
#include "core/report.h"
#include "kinematics/assembly.h"
#include "kinematics/derived.h"
#include "kinematics/stage1.h"
#include "kinematics/stage2.h"

namespace kervol {
namespace {

/// Row `step` of the tables, taken once so that its bounds are checked once.
struct Row {
    Row(ResultTables& tables, std::int16_t step)
        : Theta(tables.Theta(step)),
          Omega(tables.Omega(step)),
          Alpha(tables.Alpha(step)),
          PointPos(tables.PointPos(step)),
          PointVel(tables.PointVel(step)),
          PointAcc(tables.PointAcc(step)),
          VelRatio(tables.VelRatio(step)),
          MechAdv(tables.MechAdv(step)) {}

    Table<float, 8>& Theta;
    Table<float, 5>& Omega;
    Table<float, 5>& Alpha;
    Table<float, 11, 2>& PointPos;
    Table<float, 11, 2>& PointVel;
    Table<float, 11, 2>& PointAcc;
    Table<float, 2>& VelRatio;
    Table<float, 2>& MechAdv;
};

float User_Degrees(const LinkageModel& model, double local_radians) {
    return Single(local_radians * DegreesPerRadian + model.GroundAngleDeg);
}

void Put_Vector(Table<float, 2>& cell, Vec vector) {
    cell(0) = Single(vector.x);
    cell(1) = Single(vector.y);
}

void Put_Point(Row& row, int point, const PointMotion& motion) {
    Put_Vector(row.PointPos(point), motion.position);
    Put_Vector(row.PointVel(point), motion.velocity);
    Put_Vector(row.PointAcc(point), motion.acceleration);
}

void Put_Wrapped_Angles(const LinkageModel& model, ResultTables& tables, Row& row, const Stage1& stage) {
    row.Theta(0) = User_Degrees(model, model.Theta2Rad);
    row.Theta(1) = User_Degrees(model, stage.theta3);
    row.Theta(2) = User_Degrees(model, stage.theta4);
    for (int column = 0; column <= 2; ++column)
        row.Theta(column) = Wrap_Angle(row.Theta(column), model.AngleRange);
    // Deliberate: only row 0 turns a full turn into 0, so that a sweep from 0 to 360 starts at 0 and ends at
    // 360.
    float& first = tables.Theta(0, 0);
    if (model.AngleRange == "abs" && Is_Same(first, 360)) first = 0;
}

void Store_Stage1(LinkageModel& model, ResultTables& tables, Row& row, const Stage1& stage) {
    Put_Wrapped_Angles(model, tables, row, stage);
    row.Theta(6) = Transmission_Angle_1(row.Theta(6), row.Theta(1), row.Theta(2));
    Put_Speed_Ratios(model.Omega2, stage.omega4, row.VelRatio(0), row.MechAdv(0));
    if (model.CalcMode < 4) {
        row.Omega(0) = model.Omega2;
        row.Alpha(0) = model.Alpha2;
    }
    row.Omega(1) = Single(stage.omega3);
    row.Omega(2) = Single(stage.omega4);
    row.Alpha(1) = Single(stage.alpha3);
    row.Alpha(2) = Single(stage.alpha4);
    Put_Point(row, 0, stage.A);
    Put_Point(row, 1, stage.B);
    Put_Point(row, 2, stage.C);

    model.Theta3Rad = Single(stage.theta3);
    model.Theta4Rad = Single(stage.theta4);
    model.Omega3Now = row.Omega(1);
    model.Omega4Now = row.Omega(2);
    model.Alpha3Now = row.Alpha(1);
    model.Alpha4Now = row.Alpha(2);
}

void Store_Stage2(LinkageModel& model, Row& row, const Stage2& stage) {
    row.Theta(3) = User_Degrees(model, stage.column3);
    row.Theta(4) = User_Degrees(model, stage.theta5);
    row.Theta(5) = User_Degrees(model, stage.theta6);
    Put_Point(row, 3, stage.start);
    Put_Point(row, 4, stage.end);
    Put_Point(row, 5, stage.coupler2);
    row.Omega(3) = Single(stage.omega5);
    row.Omega(4) = Single(stage.omega6);
    row.Alpha(3) = Single(stage.alpha5);
    row.Alpha(4) = Single(stage.alpha6);

    model.Theta5Rad = Single(stage.relative5);
    model.Theta6Rad = Single(stage.relative6);
    model.Omega5Now = row.Omega(3);
    model.Omega6Now = row.Omega(4);
    model.Alpha5Now = row.Alpha(3);
    model.Alpha6Now = row.Alpha(4);
}

/// A chain without a Stage 2 has no points there and tabulates the motion left from an earlier one.
void Store_No_Stage2(const LinkageModel& model, Row& row) {
    Put_Point(row, 4, {});
    Put_Point(row, 5, {});
    row.Omega(3) = model.Omega5Now;
    row.Omega(4) = model.Omega6Now;
    row.Alpha(3) = model.Alpha5Now;
    row.Alpha(4) = model.Alpha6Now;
}

}  // namespace

void Calculate(Program& program, std::int16_t step, Answer& response) {
    Procedure(program, "Calculate", [&] {
        LinkageModel& model = program.model;
        program.tables.StepValid(step) = true;
        Row row(program.tables, step);

        const auto stage1 = Solve_Stage1(model);
        if (!stage1) return Cannot_Assemble(program, 1, step, model.Theta2Rad, response);
        Store_Stage1(model, program.tables, row, *stage1);

        const bool watt = model.LinkageType == "W";
        double omega6 = model.Omega6Now;
        if (watt || model.LinkageType == "S") {
            const auto stage2 = watt ? Solve_Watt(model, *stage1) : Solve_Stephenson(model, *stage1);
            if (!stage2) return Cannot_Assemble(program, 2, step, model.Theta2Rad, response);
            Store_Stage2(model, row, *stage2);
            omega6 = stage2->omega6;
        } else {
            Store_No_Stage2(model, row);
        }
        row.Theta(7) = Transmission_Angle_2(row.Theta(4), row.Theta(5));
        Put_Speed_Ratios(model.Omega2, omega6, row.VelRatio(1), row.MechAdv(1));

        model.DataCalculated = true;
        model.DataFromFile = false;
    });
}

}  // namespace kervol
