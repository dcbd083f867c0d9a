// SPDX-License-Identifier: GPL-3.0-or-later
// Linear equations by Gaussian elimination with partial pivoting.
#pragma once

#include <cstdint>

#include "core/table.h"

namespace kervol {

class Port;

/// Row first; row and column 0 stay unused, so that indices are those of the equations.
using SystemMatrix = Table<double, 16, 16>;
using SystemVector = Table<double, 16>;

/// Solves A X = B for N unknowns, 1 to 15. B is overwritten with the solution, A is destroyed. `Ierror` is 0,
/// or the column whose pivots are all exactly 0, after a box; both arrays then stay half eliminated. The last
/// pivot is not tested: where it is 0, B(N) stays as it was.
void SimQ(Port& port, std::int16_t N, SystemMatrix& A, SystemVector& B, std::int16_t& Ierror);

}  // namespace kervol
