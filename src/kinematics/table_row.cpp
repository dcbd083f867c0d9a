// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/table_row.h"

#include "core/arithmetic.h"
#include "kinematics/derived.h"

namespace kervol {
namespace {

float User_Degrees(const LinkageModel& model, double local_radians) {
    return Single(local_radians * DegreesPerRadian + model.GroundAngleDeg);
}

void Put_Vector(Table<float, 2>& cell, Vec vector) {
    cell(0) = Single(vector.x);
    cell(1) = Single(vector.y);
}

void Put_Point(TableRow& row, int point, const PointMotion& motion) {
    Put_Vector(row.PointPos(point), motion.position);
    Put_Vector(row.PointVel(point), motion.velocity);
    Put_Vector(row.PointAcc(point), motion.acceleration);
}

void Put_Wrapped_Angles(const LinkageModel& model, ResultTables& tables, TableRow& row, const Stage1& stage) {
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

}  // namespace

TableRow::TableRow(ResultTables& tables, std::int16_t step)
    : Theta(tables.Theta(step)),
      Omega(tables.Omega(step)),
      Alpha(tables.Alpha(step)),
      PointPos(tables.PointPos(step)),
      PointVel(tables.PointVel(step)),
      PointAcc(tables.PointAcc(step)),
      VelRatio(tables.VelRatio(step)),
      MechAdv(tables.MechAdv(step)) {}

void Store_Angles(const LinkageModel& model, ResultTables& tables, TableRow& row, const Stage1& stage) {
    Put_Wrapped_Angles(model, tables, row, stage);
    row.Theta(6) = Transmission_Angle_1(row.Theta(6), row.Theta(1), row.Theta(2));
}

void Store_Speeds(const LinkageModel& model, TableRow& row, const Stage1& stage) {
    Put_Speed_Ratios(model.Omega2, stage.omega4, row.VelRatio(0), row.MechAdv(0));
    if (model.CalcMode < 4) {
        row.Omega(0) = model.Omega2;
        row.Alpha(0) = model.Alpha2;
    }
    row.Omega(1) = Single(stage.omega3);
    row.Omega(2) = Single(stage.omega4);
}

void Store_Angles(const LinkageModel& model, TableRow& row, const Stage2& stage) {
    row.Theta(3) = User_Degrees(model, stage.column3);
    row.Theta(4) = User_Degrees(model, stage.theta5);
    row.Theta(5) = User_Degrees(model, stage.theta6);
}

void Store_Speeds(TableRow& row, const Stage2& stage) {
    row.Omega(3) = Single(stage.omega5);
    row.Omega(4) = Single(stage.omega6);
}

void Store_Stage1(LinkageModel& model, ResultTables& tables, TableRow& row, const Stage1& stage) {
    Store_Angles(model, tables, row, stage);
    Store_Speeds(model, row, stage);
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

void Store_Stage2(LinkageModel& model, TableRow& row, const Stage2& stage) {
    Store_Angles(model, row, stage);
    Put_Point(row, 3, stage.start);
    Put_Point(row, 4, stage.end);
    Put_Point(row, 5, stage.coupler2);
    Store_Speeds(row, stage);
    row.Alpha(3) = Single(stage.alpha5);
    row.Alpha(4) = Single(stage.alpha6);

    model.Theta5Rad = Single(stage.relative5);
    model.Theta6Rad = Single(stage.relative6);
    model.Omega5Now = row.Omega(3);
    model.Omega6Now = row.Omega(4);
    model.Alpha5Now = row.Alpha(3);
    model.Alpha6Now = row.Alpha(4);
}

void Store_No_Stage2(const LinkageModel& model, TableRow& row) {
    Put_Point(row, 4, {});
    Put_Point(row, 5, {});
    row.Omega(3) = model.Omega5Now;
    row.Omega(4) = model.Omega6Now;
    row.Alpha(3) = model.Alpha5Now;
    row.Alpha(4) = model.Alpha6Now;
}

}  // namespace kervol
