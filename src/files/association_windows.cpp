// SPDX-License-Identifier: GPL-3.0-or-later
// The registration in the class registry of Windows. Deliberate: no result is checked, so that a user
// without the rights to write the keys starts the program as usual.
#include "files/association.h"

#ifdef _WIN32

#include <cstdint>
#include <variant>
#include <windows.h>

namespace kervol {
namespace {

/// Room for a path in the system's 8-bit form.
constexpr DWORD kLongestPath = 260;

/// Makes the key below the root.
void Create_Key(const std::string& key, HKEY root) {
    HKEY created = nullptr;
    RegCreateKeyExA(root, key.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &created,
                    nullptr);
    RegCloseKey(created);
}

/// Gives a value of a key below the classes root: a text with its terminating zero, in the system's 8-bit
/// code page (type 1), or a 32-bit integer (type 4). An empty name is the key's default.
void SetKeyValue(const std::string& key, const std::string& value_name,
                 const std::variant<std::string, std::int32_t>& value) {
    HKEY opened = nullptr;
    RegOpenKeyExA(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_ALL_ACCESS, &opened);
    if (const auto* text = std::get_if<std::string>(&value))
        RegSetValueExA(opened, value_name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text->c_str()),
                       static_cast<DWORD>(text->size() + 1));
    else
        RegSetValueExA(opened, value_name.c_str(), 0, REG_DWORD,
                       reinterpret_cast<const BYTE*>(&std::get<std::int32_t>(value)), sizeof(std::int32_t));
    RegCloseKey(opened);
}

void Put_Key(const std::string& key, const std::string& text) {
    Create_Key(key, HKEY_CLASSES_ROOT);
    SetKeyValue(key, "", text);
}

}  // namespace

UserDesktop Users_Desktop() {
    char path[kLongestPath] = {};
    const DWORD length = GetModuleFileNameA(nullptr, path, kLongestPath);
    return {std::string(path, length), {}, {}, {}};
}

void Associate(const UserDesktop& desktop) {
    const std::string name = "Kervol";
    const std::string document = name + ".Document";
    const std::string folder = desktop.program.substr(0, desktop.program.find_last_of('\\'));
    Put_Key(".kvl", document);
    Put_Key(document, name + " File");
    Put_Key(document + "\\shell\\open\\command", folder + "\\" + name + ".exe %1");
}

}  // namespace kervol

#endif
