// SPDX-License-Identifier: GPL-3.0-or-later
// What a solved step leaves in the tables.
#pragma once

#include "core/result_tables.h"
#include "core/simultaneous.h"
#include "dynamics/loads.h"

namespace kervol {

/// Writes row `step` of `ForceTable` and columns 0 to 5 of `TorqueTable`, each value rounded at its store:
/// joint forces, inertia forces reversed, the shaking force from the stored forces on the ground, torques.
/// Column 6 of `TorqueTable` is left alone.
void Put_Force_Results(ResultTables& tables, int step, const StepLoads& loads, const SystemVector& solution);

}  // namespace kervol
