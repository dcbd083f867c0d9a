// SPDX-License-Identifier: GPL-3.0-or-later
// Drive files made by hand: each field has a value of its own, written out beside its place in the model.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "files/sample_lines.h"

namespace kervol {

/// Lines 1 to 90 of a cam file of a linkage of six links with mass data: from the source to the count.
std::span<const SampleLine> Cam_Lines();

/// Which cam file.
struct CamFile {
    int source = 6;         ///< 1 is a cam alone; else mass data of links 2 to this
    int has_dynamics = -1;  ///< otherwise texts stand in place of the mass data
    int assembly1 = 1;
    int assembly2 = -1;
    int count = 2;
};

/// All lines of the file, one row a line, rows 0 to `count`.
std::vector<std::string> Cam_File_Lines(const CamFile& file);

/// Lines 1 to 4 of a link output file of rows 0 to 2; twelve empty lines and the rows follow.
std::span<const SampleLine> Link_Output_Lines();
std::vector<std::string> Link_Output_File_Lines(int count = 2);

/// Row i of either file: angle, speed and acceleration.
std::string Drive_Row(int i);
float Row_Angle(int i);
float Row_Speed(int i);
float Row_Acceleration(int i);

}  // namespace kervol
