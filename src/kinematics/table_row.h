// SPDX-License-Identifier: GPL-3.0-or-later
// How a solved position goes into its row of the tables. Each value is rounded at its store; what lies before
// a fault stays.
#pragma once

#include <cstdint>

#include "core/model.h"
#include "core/result_tables.h"
#include "kinematics/stage1.h"
#include "kinematics/stage2.h"

namespace kervol {

/// Row `step` of the tables, taken once so that its bounds are checked once.
struct TableRow {
    TableRow(ResultTables& tables, std::int16_t step);

    Table<float, 8>& Theta;
    Table<float, 5>& Omega;
    Table<float, 5>& Alpha;
    Table<float, 11, 2>& PointPos;
    Table<float, 11, 2>& PointVel;
    Table<float, 11, 2>& PointAcc;
    Table<float, 2>& VelRatio;
    Table<float, 2>& MechAdv;
};

/// Columns 0 to 2 and 6 of `Theta` for the crank's angle in the model, wrapped.
void Store_Angles(const LinkageModel& model, ResultTables& tables, TableRow& row, const Stage1& stage);
/// Column 0 of the ratios, columns 0 to 2 of `Omega`, and the crank's acceleration; an imported drive stays.
void Store_Speeds(const LinkageModel& model, TableRow& row, const Stage1& stage);
/// Columns 3 to 5 of `Theta`.
void Store_Angles(const LinkageModel& model, TableRow& row, const Stage2& stage);
/// Columns 3 and 4 of `Omega`.
void Store_Speeds(TableRow& row, const Stage2& stage);

/// All of a stage, and the working state.
void Store_Stage1(LinkageModel& model, ResultTables& tables, TableRow& row, const Stage1& stage);
void Store_Stage2(LinkageModel& model, TableRow& row, const Stage2& stage);
/// A chain without a Stage 2 has no points there and tabulates the motion left from an earlier one.
void Store_No_Stage2(const LinkageModel& model, TableRow& row);

}  // namespace kervol
