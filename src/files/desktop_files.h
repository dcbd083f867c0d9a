// SPDX-License-Identifier: GPL-3.0-or-later
// The files that tell a desktop about the program, as they stand in packaging/ and are installed from there.
#pragma once

#include <string_view>

namespace kervol {

extern const std::string_view kDesktopEntry;  ///< starts `kervol`, wherever the shell finds it
extern const std::string_view kMimePackage;   ///< the type of model files
extern const std::string_view kProgramIcon;   ///< SVG, 64 by 64

}  // namespace kervol
