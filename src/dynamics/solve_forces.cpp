// SPDX-License-Identifier: GPL-3.0-or-later
#include "dynamics/solve_forces.h"

#include "core/number_text.h"
#include "core/report.h"
#include "dynamics/force_results.h"
#include "dynamics/link_data.h"
#include "dynamics/link_motion.h"
#include "dynamics/matrix_fill.h"

namespace kervol {
namespace {

/// False, after a box, where the equations are singular.
bool Solve_Step(Program& program, int step) {
    StepEquations equations = Form_Step_Equations(program.model, program.tables, step);
    auto& [MatrixA, VectorB] = equations.system;
    if (step == 0) Matrix_Fill(program, equations.system);
    std::int16_t Ierror = 0;
    SimQ(program.port, NumEquations, MatrixA, VectorB, Ierror);
    if (Ierror != 0) {
        program.port.Show_Message(
            {"Error in Computing Simultaneous Equations at step   " + With_Sign_Blank(step), Icon::Question});
        return false;
    }
    Put_Force_Results(program.tables, step, equations.loads, VectorB);
    return true;
}

}  // namespace

StepEquations Form_Step_Equations(LinkageModel& model, ResultTables& tables, int step) {
    const LinkMotion motion = Motion_Of_Links(model, tables, step);
    Put_CG_Velocities(motion, tables, step);
    Put_CG_Accelerations(motion, tables, step);
    if (model.TorqueImported) model.LinkTorque(6) = tables.Torque21Imported(step);
    StepEquations equations;
    equations.loads = Loads_Of_Step(model, tables, motion, step);
    Form_Force_System(model, motion, equations.loads, equations.system);
    return equations;
}

int Solve_Forces(Program& program) {
    LinkageModel& model = program.model;
    int solved = 0;
    Procedure(program, "Solve_Forces", [&] {
        for (; solved <= model.NumSteps; ++solved)
            if (!Solve_Step(program, solved)) return;
        model.DynamicsCalculated = true;
        model.FlywheelCalculated = false;
    });
    return solved;
}

int Run_Dynamics(Program& program) {
    LinkageModel& model = program.model;
    Resolve_External_Forces(model);
    const int solved = Solve_Forces(program);
    if (model.TorqueImported) model.LinkTorque(6) = 0;
    model.DynamicsCalculated = true;
    return solved;
}

}  // namespace kervol
