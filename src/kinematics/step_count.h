// SPDX-License-Identifier: GPL-3.0-or-later
// How many steps a calculation has, what is refused before it starts, and the calculation as a whole.
#pragma once

#include "core/program.h"
#include "kinematics/depth.h"

namespace kervol {

enum class Refusal { None, ZeroAngleStep, TooManyAngleSteps, TimeSteps };

/// Fixes `NumSteps` from the angle range in radians; false where there are more than `MaxSteps`. A count
/// beyond 16 bits, either way, leaves the old one.
bool Count_Angle_Range(LinkageModel& model);

/// The same from the time range. Without a positive step nothing is counted and the answer is false.
bool Count_Time_Range(LinkageModel& model);

/// Takes the angle range of mode 3 from its degree fields and fixes `NumSteps`, or shows why it is refused.
Refusal Count_Angle_Steps(Program& program);

/// Fixes `NumSteps` from the time range of modes 1 and 2, or shows why it is refused. In mode 2 the range's
/// texts become times.
Refusal Count_Time_Steps(Program& program);

enum class CalculationEnd {
    Done,
    Refused,    ///< the number of steps
    NoMode,     ///< the mode is none of 1 to 5
    Abandoned,  ///< by the user, at a position that cannot be assembled
};

/// The whole calculation of the model's mode, as the Calculate button does it: refusals, sweep or drive data,
/// closing flags. A refusal other than for too many angle steps closes like a sweep, deliberately, over the
/// old tables.
///
/// A sweep goes as deep as `Safe_Depth` takes `depth` for the model; an imported drive is always calculated
/// whole.
CalculationEnd Calculate_Model(Program& program, Depth depth = Depth::All);

/// Range of a quick preview over the whole travel in ten steps: a full turn, or a degree to either side of 0
/// where Stage 1 is non-Grashof. The user's range in degrees and its texts stay.
void Set_Preview_Range(Program& program);

}  // namespace kervol
