// SPDX-License-Identifier: GPL-3.0-or-later
// What the commands that write picture files share.
#pragma once

#include <string>

#include "batch/command_options.h"
#include "core/sheet.h"

namespace kervol {

struct PictureFile {
    std::string path;
    PictureFormat format = PictureFormat::Svg;
};

/// "-o FILE.svg|png|pdf", which must be given; another ending is refused.
void Add_Picture_File(CLI::App& command, PictureFile& file);

/// Pixels along one side of a picture.
inline constexpr int LeastSide = 64, LargestSide = 16384;

/// Writes the rendered sheet and closes the run.
int Put_Picture(Console& console, BatchRun& run, const Sheet& sheet, const PictureFile& file);

}  // namespace kervol
