// SPDX-License-Identifier: GPL-3.0-or-later
// What a flywheel does to the crank torque: the energies to size it by, and the torque that it leaves.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/program.h"
#include "dynamics/flywheel.h"

namespace kervol {

/// Pulses of the crank torque over one sweep, in units of torque by radians.
struct CrankTorqueAreas {
    float Average = 0;           ///< mean crank torque
    std::int16_t FirstSign = 0;  ///< 1 if the first pulse is positive, -1 if negative, 0 if there is none
    PulseAreas PosArea, NegArea;
    std::int16_t NPulses = 0;       ///< of both signs; 0 where there were too many
    std::vector<std::string> Text;  ///< the picture's lines: the energies as a table, the mean
};

/// Writes `areas` anew and `FlywheelTorque` for steps 0 to `NumSteps`: the crank torque with its deviation
/// from the mean scaled by `CoefFluct`.
///
/// More than ten pulses of one sign are fault 9 of `Flywheel`; the rest is done all the same. Twenty-one in
/// all are too many for the table: it ends before the row that has no entry, and `FlywheelTorque` is left
/// alone.
void Crank_Torque_Areas(Program& program, CrankTorqueAreas& areas);

/// Extremes of the crank torque.
struct TorqueRange {
    float Tmax = 0, Tmin = 0;
};

struct FlywheelSizing {
    CrankTorqueAreas areas;
    TorqueRange without, with;
};

/// The whole of what the Calculate button of the flywheel does; sets `FlywheelCalculated`.
void Size_Flywheel(Program& program, FlywheelSizing& sizing);

inline constexpr const char* FluctuationRefused =
    " Coefficient of fluctuation must be between zero and one - Try .05 ";

/// Takes a new coefficient of fluctuation; one of 0 or below restores 0.05 and is refused. Deliberate: the
/// upper limit of 1 is tested on the coefficient before, so that a greater one is taken once and the next is
/// refused.
bool Take_Coef_Fluct(LinkageModel& model, float value);

}  // namespace kervol
