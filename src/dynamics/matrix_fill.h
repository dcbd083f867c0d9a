// SPDX-License-Identifier: GPL-3.0-or-later
// The force equations as the matrix screen shows them.
#pragma once

#include "core/program.h"
#include "dynamics/force_system.h"

namespace kervol {

/// Writes `Program::matrix` from a system that is formed and not yet reduced, column by column; each value
/// goes through single precision.
void Matrix_Fill(Program& program, const ForceSystem& system);

}  // namespace kervol
