// SPDX-License-Identifier: GPL-3.0-or-later
// How far a position is solved. Whoever reads a few columns alone leaves out the rest, which is most of the
// work.
#pragma once

#include "core/model.h"
#include "kinematics/fourbar.h"

namespace kervol {

enum class Depth {
    Angles,  ///< `Theta`
    Speeds,  ///< `Omega` and the ratios of speeds too
    All,     ///< accelerations and points too
};

/// The depth to which a model may be solved in place of `wanted`: `All` where its lengths are so far apart
/// that what is left out might exceed the range of a single and be missed as a fault.
Depth Safe_Depth(const LinkageModel& model, Depth wanted);

// Where these hold, and the lengths pass `Safe_Depth`, nothing that is left out can be a fault.

/// Speed and acceleration of the crank.
bool Is_Ordinary_Crank(double omega2, double alpha2);
/// Half a degree and more away from a toggle position.
bool Is_Ordinary_Loop(const ToggleSines& toggle);
/// Stage 2 of a Stephenson chain: the sine of link 5 and that sum by which its accelerations are divided, for
/// a link 6 of length 1, and its speeds.
bool Are_Ordinary_Rates(double sine5, double divisor, const CouplerOutput& omega);

}  // namespace kervol
