// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/result_tables.h"

#include "core/model_questions.h"
#include "core/program.h"
#include "core/report.h"

namespace kervol {

void Clear_Tables(Program& program) {
    Procedure(program, "Clear_Tables", [&] {
        ResultTables& tables = program.tables;
        // A count that was refused stays in the model.
        const int last = Last_Step(program.model);
        for (int step = 0; step <= last; ++step) {
            tables.Theta(step).Fill(0);
            tables.Omega(step).Fill(0);
            tables.Alpha(step).Fill(0);
            tables.PointPos(step).Fill(0);
            tables.PointVel(step).Fill(0);
            tables.PointAcc(step).Fill(0);
            tables.VelRatio(step).Fill(0);
            tables.MechAdv(step).Fill(0);
            tables.Torque21Imported(step) = 0;
        }
        program.model.TorqueImported = false;
    });
}

}  // namespace kervol
