// SPDX-License-Identifier: GPL-3.0-or-later
// Base names of files.
#pragma once

#include <string>
#include <string_view>

namespace kervol {

/// The file's name without folder and extension; "\" and "/" separate folders. Deliberate: empty unless the
/// extension has exactly three characters.
std::string StripFilename(std::string_view path);

}  // namespace kervol
