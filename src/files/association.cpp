// SPDX-License-Identifier: GPL-3.0-or-later
// The registration with a desktop that follows the freedesktop.org specifications.
#include "files/association.h"

#ifndef _WIN32

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <spawn.h>
#include <sstream>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "core/fault.h"
#include "files/desktop_files.h"
#include "files/disk.h"
#include "files/output_file.h"

namespace kervol {
namespace {

namespace fs = std::filesystem;

/// The text with `mark` before each of those characters.
std::string Marked(std::string_view text, std::string_view characters, char mark) {
    std::string marked;
    for (const char c : text) {
        if (characters.find(c) != std::string_view::npos) marked += mark;
        marked += c;
    }
    return marked;
}

/// A value of a desktop entry, which stands on one line.
std::string Entry_Text(std::string_view text) {
    std::string value;
    for (const char c : text) {
        if (c == '\n')
            value += "\\n";
        else if (c == '\r')
            value += "\\r";
        else
            value += c == '\\' ? "\\\\" : std::string(1, c);
    }
    return value;
}

/// A program as the first word of a desktop entry's command: quoted there, and the whole then a value.
std::string Command_Word(std::string_view program) {
    return Entry_Text("\"" + Marked(Marked(program, "\"`$\\", '\\'), "%", '%') + "\"");
}

/// The installed entry starts the program that the shell finds; a user's own starts this one.
std::string Desktop_Entry(const std::string& program) {
    std::string entry(kDesktopEntry);
    for (const auto& [line, own] :
         {std::pair("\nExec=kervol %f\n", "\nExec=" + Command_Word(program) + " %f\n"),
          std::pair("\nTryExec=kervol\n", "\nTryExec=" + Entry_Text(program) + "\n")})
        entry.replace(entry.find(line), std::string_view(line).size(), own);
    return entry;
}

bool Holds(const fs::path& path, std::string_view content) {
    try {
        return Read_Whole_File(path.string()) == content;
    } catch (const Fault&) {
        return false;
    }
}

/// Puts the content there unless it stands there; whether anything was written.
bool Put_File(const fs::path& path, std::string_view content) {
    if (Holds(path, content)) return false;
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    try {
        OutputFile file(path.string());
        file.Write(content);
        file.Close();
        return true;
    } catch (const Fault&) {
        return false;  // who lacks the rights starts the program as usual
    }
}

/// Starts a tool in the background; the shell that does it ends at once.
void Start_Detached(const std::string& tool, const std::string& folder) {
    const std::string script = "\"$0\" \"$1\" </dev/null >/dev/null 2>&1 &";
    std::array<const char*, 6> words = {"sh", "-c", script.c_str(), tool.c_str(), folder.c_str(), nullptr};
    pid_t shell = 0;
    if (posix_spawn(&shell, "/bin/sh", nullptr, nullptr, const_cast<char* const*>(words.data()), environ) ==
        0)
        static_cast<void>(waitpid(shell, nullptr, 0));
}

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

/// A relative folder counts as none.
std::string Data_Folder() {
    std::string data = Variable("XDG_DATA_HOME");
    if (fs::path(data).is_absolute()) return data;
    const std::string home = Variable("HOME");
    return fs::path(home).is_absolute() ? home + "/.local/share" : "";
}

std::vector<std::string> System_Folders() {
    const std::string listed = Variable("XDG_DATA_DIRS");
    std::istringstream list(listed.empty() ? "/usr/local/share:/usr/share" : listed);
    std::vector<std::string> folders;
    for (std::string folder; std::getline(list, folder, ':');)
        if (fs::path(folder).is_absolute()) folders.push_back(folder);
    return folders;
}

/// A file of a registration, below a data folder.
struct Registered {
    const char* file;
    std::string_view installed;  ///< what an installation puts there
    std::string own;             ///< what a user's own file holds
    const char* tool;            ///< that renews the cache after a change; none where there is no cache
    const char* folder;          ///< of the cache
    const char* cache;
};

/// What an installation has put into a folder of the system the user needs no copy of. A file of the user's
/// own hides the system's, so it is kept up to date all the same.
bool Is_Installed(const UserDesktop& desktop, const Registered& entry) {
    std::error_code error;
    if (fs::exists(fs::path(desktop.data_folder) / entry.file, error)) return false;
    return std::any_of(
        desktop.system_folders.begin(), desktop.system_folders.end(),
        [&](const std::string& folder) { return Holds(fs::path(folder) / entry.file, entry.installed); });
}

}  // namespace

UserDesktop Users_Desktop() {
    std::error_code error;
    return {fs::read_symlink("/proc/self/exe", error).string(), Data_Folder(), Start_Detached,
            System_Folders()};
}

void Associate(const UserDesktop& desktop) {
    if (desktop.program.empty() || desktop.data_folder.empty()) return;
    const std::array<Registered, 3> entries = {{
        {"icons/hicolor/scalable/apps/kervol.svg", kProgramIcon, std::string(kProgramIcon), nullptr, "", ""},
        {"mime/packages/kervol.xml", kMimePackage, std::string(kMimePackage), "update-mime-database", "mime",
         "mime.cache"},
        {"applications/kervol.desktop", kDesktopEntry, Desktop_Entry(desktop.program),
         "update-desktop-database", "applications", "mimeinfo.cache"},
    }};
    const fs::path data = desktop.data_folder;
    std::error_code error;
    for (const Registered& entry : entries) {
        if (Is_Installed(desktop, entry)) continue;
        const bool is_new = Put_File(data / entry.file, entry.own);
        const fs::path folder = data / entry.folder;
        if (entry.tool != nullptr && (is_new || !fs::exists(folder / entry.cache, error)))
            desktop.start_tool(entry.tool, folder.string());
    }
}

}  // namespace kervol

#endif
