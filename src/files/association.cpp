// SPDX-License-Identifier: GPL-3.0-or-later
// The registration with a desktop that follows the freedesktop.org specifications.
#include "files/association.h"

#ifndef _WIN32

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <spawn.h>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

#include "core/fault.h"
#include "files/disk.h"
#include "files/output_file.h"

namespace kervol {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kIcon = R"svg(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="64" height="64" viewBox="0 0 64 64">
  <rect x="1" y="1" width="62" height="62" rx="12" fill="#18345c"/>
  <g fill="none" stroke="#96c8ff" stroke-width="5" stroke-linecap="round" stroke-linejoin="round">
    <path d="M14 48 20 26M50 48 46 16"/>
    <path d="M20 26 46 16 34 9Z" fill="#96c8ff" fill-opacity="0.43"/>
  </g>
  <path d="M8 55H56" stroke="#fff" stroke-width="4" stroke-linecap="round"/>
  <g fill="#18345c" stroke="#fff" stroke-width="2.5">
    <circle cx="14" cy="48" r="4.5"/>
    <circle cx="20" cy="26" r="4.5"/>
    <circle cx="46" cy="16" r="4.5"/>
    <circle cx="50" cy="48" r="4.5"/>
  </g>
</svg>
)svg";

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

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

std::string Mime_Type(const std::string& name) {
    return "application/x-" + Lower(name);
}

std::string Desktop_Entry(const std::string& program, const std::string& name) {
    return "[Desktop Entry]\nType=Application\nVersion=1.4\nName=" + name +
           "\nGenericName=Linkage Analysis\nComment=Kinematics and dynamics of planar six-bar "
           "linkages\nExec=" +
           Command_Word(program) + " %f\nTryExec=" + Entry_Text(program) + "\nIcon=" + Lower(name) +
           "\nTerminal=false\nCategories=Science;Engineering;\nMimeType=" + Mime_Type(name) +
           ";\nStartupNotify=true\nStartupWMClass=" + Lower(name) + "\n";
}

std::string Mime_Package(const std::string& name, const std::string& extension) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
           "  <mime-type type=\"" +
           Mime_Type(name) + "\">\n    <comment>" + name + " File</comment>\n" +
           "    <sub-class-of type=\"text/plain\"/>\n    <icon name=\"" + Lower(name) +
           "\"/>\n    <glob pattern=\"*." + extension + "\"/>\n  </mime-type>\n</mime-info>\n";
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

}  // namespace

UserDesktop Users_Desktop() {
    std::error_code error;
    return {fs::read_symlink("/proc/self/exe", error).string(), Data_Folder(), Start_Detached};
}

void Associate(const UserDesktop& desktop, const std::string& name, const std::string& extension) {
    if (desktop.program.empty() || desktop.data_folder.empty()) return;
    const std::string id = Lower(name);
    const fs::path data = desktop.data_folder;
    const fs::path applications = data / "applications";
    const fs::path mime = data / "mime";
    std::error_code error;
    Put_File(data / "icons/hicolor/scalable/apps" / (id + ".svg"), kIcon);
    const bool new_type = Put_File(mime / "packages" / (id + ".xml"), Mime_Package(name, extension));
    if (new_type || !fs::exists(mime / "mime.cache", error))
        desktop.start_tool("update-mime-database", mime.string());
    const bool new_entry = Put_File(applications / (id + ".desktop"), Desktop_Entry(desktop.program, name));
    if (new_entry || !fs::exists(applications / "mimeinfo.cache", error))
        desktop.start_tool("update-desktop-database", applications.string());
}

}  // namespace kervol

#endif
