// SPDX-License-Identifier: GPL-3.0-or-later
// The forces of one step written out once more, number by number, independently of the solver, to compare it
// with bit for bit.
#pragma once

#include <array>

#include "core/model.h"
#include "core/result_tables.h"

namespace kervol {

struct ReferenceForces {
    double A[16][16] = {};  ///< as formed; row and column 0 unused
    double B[16] = {};
    int Ierror = 0;
    double X[16] = {};  ///< the solution, where Ierror is 0

    float velocity[5][2] = {};  ///< centres of gravity of links 2 to 6
    float acceleration[5][2] = {};
    float force[13][2] = {};
    float torque[6] = {};
};

/// What row `s` of the tables must give. Reads the angles, rates and points 0 to 5 of the row alone.
ReferenceForces Forces_By_Formulas(const LinkageModel& model, const ResultTables& tables, int s);

}  // namespace kervol
