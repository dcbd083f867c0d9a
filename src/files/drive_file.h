// SPDX-License-Identifier: GPL-3.0-or-later
// Motion handed from program to program: the s-v-a file of a cam (.sva), which drives link 2, and the link
// output file (.out), written from link 6 of one linkage to drive the next.
#pragma once

#include "core/program.h"
#include "files/output_file.h"
#include "files/read_report.h"
#include "files/value_reader.h"

namespace kervol {

/// Takes a cam's drive, and with it the linkage and its mass data where the file has them; mode 4 from then
/// on. Shows that it was read and opens the Input screen, unless the program is starting up. A file for the
/// sibling program with four links is refused with a box and changes nothing. A fault leaves what was read
/// until then, the mode and `CamDriven` as they were. Results of before count as out of date from the first
/// number that was taken.
ReadEnd Read_Cam_Data(Program& program, ValueReader& file);

/// Takes the link output of another linkage as the drive; mode 5 from then on. Boxes, screen and faults as
/// with a cam.
ReadEnd Import_Linkage_Data(Program& program, ValueReader& file);

/// Writes count, time range and the motion of link 6, and says so: degrees in the user frame, rad/s, rad/s^2.
/// Three numbers of a row stand in print zones of 14 columns. False after a fault; the file then stays as far
/// as it was written.
bool Export_Link6_to_File(Program& program, OutputFile& file);

}  // namespace kervol
