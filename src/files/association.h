// SPDX-License-Identifier: GPL-3.0-or-later
// Registers the program for its model files, so that a double click on one opens it: with a desktop by the
// user's own desktop entry, MIME type and icon, on Windows in the class registry.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kervol {

/// Where a user's registrations stand.
struct UserDesktop {
    std::string program;      ///< whole path of the running program; nothing is registered without one
    std::string data_folder;  ///< of the user's own desktop files; nothing is registered without one
    /// Starts a tool of the desktop on a folder and does not wait for it. The tool may not be installed.
    std::function<void(const std::string& tool, const std::string& folder)> start_tool;
    /// Data folders of the system. What an installation has put there the user needs no copy of.
    std::vector<std::string> system_folders = {};
};

/// That of the user who runs the program.
UserDesktop Users_Desktop();

/// Registers the program, under the name "Kervol", for files of the extension "kvl". Files are written only
/// where they differ from what stands there, earlier content is kept, and the desktop's caches are renewed
/// only after a change or where they are missing, so that a second start writes nothing. Nor is anything
/// written where an installation has registered the program for all users, unless the user has files of their
/// own, which hide the system's: those follow the program that was started last. Whatever cannot be written
/// is left: who lacks the rights starts the program as usual.
void Associate(const UserDesktop& desktop);

}  // namespace kervol
