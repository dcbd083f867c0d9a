// SPDX-License-Identifier: GPL-3.0-or-later
// The equations of both chains written out once more, in double precision and independently of the solver,
// to compare it with.
#pragma once

#include <array>

#include "core/model.h"

namespace kervol {

using ReferenceVector = std::array<double, 2>;

/// What a row that held zeros must hold after the position is solved.
struct ReferenceRow {
    int failed_stage = 0;  ///< 1 or 2 where the position cannot be assembled
    double toggle1 = 0;    ///< sine between coupler and output: 0 at a toggle
    double toggle2 = 0;
    std::array<double, 8> Theta{};
    std::array<double, 5> Omega{}, Alpha{};
    std::array<ReferenceVector, 6> Pos{}, Vel{}, Acc{};
    std::array<double, 2> VelRatio{}, MechAdv{};
};

ReferenceRow Solve_By_Formulas(const LinkageModel& model);

}  // namespace kervol
