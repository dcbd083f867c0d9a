// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/calculate.h"

#include "core/report.h"
#include "kinematics/assembly.h"
#include "kinematics/derived.h"
#include "kinematics/table_row.h"

namespace kervol {

void Calculate(Program& program, std::int16_t step, Answer& response) {
    Procedure(program, "Calculate", [&] {
        LinkageModel& model = program.model;
        program.tables.StepValid(step) = true;
        TableRow row(program.tables, step);

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
