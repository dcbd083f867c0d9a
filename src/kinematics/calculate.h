// SPDX-License-Identifier: GPL-3.0-or-later
// One position of the whole linkage.
#pragma once

#include <cstdint>

#include "core/program.h"

namespace kervol {

/// Solves the crank state `Theta2Rad`, `Omega2`, `Alpha2` and writes row `step` of the kinematic tables and
/// the working state. Assembly is chosen by the open signs alone, so a step does not depend on the step
/// before it.
///
/// A position that cannot be assembled goes to `Cannot_Assemble` with `response`. A numeric fault is reported
/// once; the cells of the row not yet reached keep their values and `StepValid` stays set. In drive modes 4
/// and 5 column 0 of `Omega` and `Alpha`, the imported drive, is left alone.
void Calculate(Program& program, std::int16_t step, Answer& response);

}  // namespace kervol
