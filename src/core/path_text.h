// SPDX-License-Identifier: GPL-3.0-or-later
// Names of files: the base name, the whole path.
#pragma once

#include <string>
#include <string_view>

namespace kervol {

/// The file's name without folder and extension; "\" and "/" separate folders. Deliberate: empty unless the
/// extension has exactly three characters.
std::string StripFilename(std::string_view path);

/// The whole path of an existing file, without "." and ".." where links allow; empty if there is no such
/// file.
std::string Long_Path_Of(const std::string& path);

}  // namespace kervol
