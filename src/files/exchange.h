// SPDX-License-Identifier: GPL-3.0-or-later
// Imports and exports by the name of their file: what the menu entries do once a name was chosen. The file
// becomes the one in use, so that a later Save writes the model over it, as with every file chosen.
#pragma once

#include <string>

#include "core/program.h"
#include "files/read_report.h"

namespace kervol {

/// Opens a cam's s-v-a file; see `Read_Cam_Data`. `DriveFileName` takes its name whatever comes of it.
ReadReport Import_Cam_Drive(Program& program, const std::string& path);

/// Opens a link output file; see `Import_Linkage_Data`.
ReadReport Import_Linkage_Drive(Program& program, const std::string& path);

/// Opens a torque file for link 6; see `Import_Torque_Data`. `TorqueImported` is cleared for a file that was
/// refused and set for every other; one that was read is told. Raises the fault of a file that cannot be
/// opened: the handler of the screen reports it.
ReadEnd Import_Torque(Program& program, const std::string& path);

/// Writes the motion of link 6. False after a fault; `DataSaved` is set otherwise.
bool Export_Link6(Program& program, const std::string& path);

/// Writes the crank torque. False after a fault; `DataSaved` is set otherwise.
bool Export_Torque(Program& program, const std::string& path);

}  // namespace kervol
