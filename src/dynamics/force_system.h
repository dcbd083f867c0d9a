// SPDX-License-Identifier: GPL-3.0-or-later
// The fifteen equations of one step: for each of links 2 to 6 the force along x, along y and the moment about
// the centre of gravity.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/model.h"
#include "core/simultaneous.h"
#include "dynamics/link_motion.h"
#include "dynamics/loads.h"

namespace kervol {

inline constexpr std::int16_t NumEquations = 15;

/// Columns of the unknowns, x before y. A force named ab acts as it is on link b and reversed on link a. "54"
/// acts on link 4 of a Watt chain and on link 3 of a Stephenson chain; "65" acts as it is on link 5.
namespace unknown {
inline constexpr int F12 = 1;
inline constexpr int F32 = 3;
inline constexpr int F43 = 5;
inline constexpr int F14 = 7;
inline constexpr int T12 = 9;  ///< driving torque on link 2
inline constexpr int F54 = 10;
inline constexpr int F65 = 12;
inline constexpr int F16 = 14;
}  // namespace unknown

/// Captions of the unknowns by column; index 0 is empty.
inline constexpr std::array<std::string_view, NumEquations + 1> UnknownNames = {
    "",     "F12x", "F12y", "F32x", "F32y", "F43x", "F43y", "F14x",
    "F14y", "T12",  "F54x", "F54y", "F65x", "F65y", "F16x", "F16y"};

struct ForceSystem {
    SystemMatrix MatrixA;
    SystemVector VectorB;  ///< inertia less the known loads
};

/// Puts the system of one step into `system`, which holds zeros. A chain that is neither "W" nor "S" has no
/// coefficients. Arms are singles.
///
/// Deliberate: the arm to D of a Watt chain is as long as `Link6`, not `LinkO4D`; the arm to C of a
/// Stephenson chain lies along link 3, without `Delta3`.
void Form_Force_System(const LinkageModel& model, const LinkMotion& motion, const StepLoads& loads,
                       ForceSystem& system);

}  // namespace kervol
