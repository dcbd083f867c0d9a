// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of imported drives and torques, which stand in the files of sibling programs and in model files alike.
#pragma once

#include "core/program.h"
#include "files/value_reader.h"

namespace kervol {

/// Angle, speed and acceleration of rows 0 to `NumSteps` into `DriveTheta` and column 0 of `Omega` and
/// `Alpha`. A row above 360 is fault 9; the rows before it stay.
void Read_Drive_Rows(Program& program, ValueReader& file);

/// `Torque21Imported` of rows 0 to `NumSteps`.
void Read_Torque_Rows(Program& program, ValueReader& file);

}  // namespace kervol
