// SPDX-License-Identifier: GPL-3.0-or-later
// All numbers of one step side by side with those of the tables: as tabulated, and as they follow from the
// tabulated link angles.
#pragma once

#include <optional>

#include "core/model.h"
#include "core/result_tables.h"
#include "selfcheck/row_forces.h"
#include "selfcheck/row_motion.h"

namespace kervol {

/// In the shapes and the units of the tables; angles in degrees, user frame.
struct RowValues {
    Table<Vec, 2> gap;    ///< of the loop of each stage
    double input_line{};  ///< `Theta` column 3
    Table<double, 2> transmission, VelRatio, MechAdv;
    Table<double, 5> omega, alpha;
    Table<Vec, 11> position, velocity, acceleration;  ///< `position` has points 0 to 5 alone

    Table<Vec, 13> force;
    Table<double, 6> torque;
    /// What the tabulated forces leave open; see `Imbalance`.
    Imbalance open;
    double power{};          ///< of the driving torque
    double kinetic_power{};  ///< rate of the kinetic energy
    double load_power{};
};

/// A step as it comes out of the tables.
struct RowInput {
    Table<double, 6> degrees;  ///< `Theta` columns 0 to 5
    Rates crank;               ///< by the rules of the tables
    double true_alpha{};       ///< of the drive
    double torque6{};          ///< external torque on link 6
    bool has_forces{};
    bool was_cleared{};  ///< before it was calculated, once
    RowValues tabulated;
};

/// Reads row `step`. The crank rates and whether it was cleared are left to the caller.
RowInput Tabulated_Row(const LinkageModel& model, const ResultTables& tables, int step, bool has_forces);

/// What the step holds by these rules. The tabulated values serve for what the rules leave as it stood, and
/// for `open`. Nothing at a dead centre and where a number grows beyond all bounds.
std::optional<RowValues> Row_By_Rules(const LinkageModel& model, const RowInput& row, Rules rules);

/// The driving torque that the work of consistent motion asks for, apart from all forces in the joints; and
/// the size of all that adds up to it. Nothing at a dead centre.
struct TorqueByWork {
    double torque, gross;
};
std::optional<TorqueByWork> Torque_By_Work(const LinkageModel& model, const RowInput& row);

}  // namespace kervol
