// SPDX-License-Identifier: GPL-3.0-or-later
// What was computed, one row a step from 0 to `MaxSteps`, grouped under the procedure that writes it. Results
// are single precision.
#pragma once

#include "core/constants.h"
#include "core/table.h"

namespace kervol {

struct Program;

struct ResultTables {
    // Written by `Calculate`; zeroed, but for StepValid, by `Clear_Tables` and, for a row, by
    // `Cannot_Assemble`.

    /// The linkage assembled at the step.
    Table<bool, StepRows> StepValid;
    /// Degrees, user frame: links 2, 3, 4; Stage 2 input line (A-C Stephenson, O4-D Watt); links 5, 6; then
    /// the transmission angles of Stage 1 and 2. Columns 0 to 2 are wrapped by `AngleRange`.
    Table<float, StepRows, 8> Theta;
    /// rad/s, links 2 to 6. Column 0 is the imported drive in modes 4 and 5.
    Table<float, StepRows, 5> Omega;
    /// rad/s^2, links 2 to 6. Column 0 is the imported drive in modes 4 and 5.
    Table<float, StepRows, 5> Alpha;
    /// X, Y in length, local frame: A, B, coupler point 1, D (Watt) or C, E (Watt) or D, coupler point 2.
    /// Points 6 to 10 stay 0.
    Table<float, StepRows, 11, 2> PointPos;
    /// X, Y in length/s, local frame; points 6 to 10 are the centres of gravity of links 2 to 6, written by
    /// the dynamics.
    Table<float, StepRows, 11, 2> PointVel;
    /// X, Y in length/s^2, local frame; points as in `PointVel`.
    Table<float, StepRows, 11, 2> PointAcc;
    /// Output speed of Stage 1 and 2 by crank speed.
    Table<float, StepRows, 2> VelRatio;
    /// Crank speed by output speed of Stage 1 and 2.
    Table<float, StepRows, 2> MechAdv;

    // Written by the dynamics, local frame.

    /// X, Y in force: 32, 43, inertia 3, 2, 4, 12, 14, shaking, 54, 56, 16, inertia 5, 6.
    Table<float, StepRows, 13, 2> ForceTable;
    /// Torque: 12, link 3, link 4, 21, link 5, link 6; column 6 is never written.
    Table<float, StepRows, 7> TorqueTable;
    /// Crank torque with the flywheel.
    Table<float, StepRows> FlywheelTorque;

    // Written by the Fourier transform.
    Table<float, 513, 4> FFTTable;

    // Written by the file readers.

    /// Imported drive angle, degrees.
    Table<float, DriveRows> DriveTheta;
    /// Imported torque on link 6.
    Table<float, StepRows> Torque21Imported;
};

/// Zeroes the kinematic tables and the imported torque for steps 0 to `NumSteps` and clears `TorqueImported`.
/// A negative `NumSteps` clears the flag alone.
void Clear_Tables(Program& program);

}  // namespace kervol
