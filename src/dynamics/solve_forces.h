// SPDX-License-Identifier: GPL-3.0-or-later
// Joint forces and driving torque of every step of the last sweep.
#pragma once

#include "core/program.h"
#include "dynamics/force_system.h"
#include "dynamics/loads.h"

namespace kervol {

/// What is known of a step before its equations are solved.
struct StepEquations {
    StepLoads loads;
    ForceSystem system;
};

/// Writes points 6 to 10 of row `step` and forms its equations. With an imported torque `LinkTorque(6)`
/// becomes that of the step.
StepEquations Form_Step_Equations(LinkageModel& model, ResultTables& tables, int step);

/// Solves steps 0 to `NumSteps` and writes points 6 to 10 of `PointVel` and `PointAcc`, `ForceTable` and
/// `TorqueTable`; the equations of step 0 go to `Matrix_Fill`. Nothing is allocated for a step. A step that
/// did not assemble is solved like any other.
///
/// After the last step sets `DynamicsCalculated` and clears `FlywheelCalculated`. A singular system shows its
/// boxes and ends the run, as a fault does: the rows before it keep their results, the flags and the rows
/// from it on what they held, but for its points 6 to 10. Returns how many steps were solved.
int Solve_Forces(Program& program);

/// The whole of what the Solve button does with the link data of the model: resolves the external forces and
/// runs `Solve_Forces`. Then an imported torque leaves `LinkTorque(6)` at 0. Deliberate: `DynamicsCalculated`
/// is set even where the run stopped. Returns how many steps were solved.
int Run_Dynamics(Program& program);

}  // namespace kervol
