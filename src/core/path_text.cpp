// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/path_text.h"

#include <filesystem>

namespace kervol {
namespace {

/// Start of the UTF-8 character before `at`.
std::size_t Previous_Character(std::string_view text, std::size_t at) {
    do --at;
    while (at > 0 && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80);
    return at;
}

}  // namespace

std::string StripFilename(std::string_view path) {
    std::size_t point = path.size();
    for (int i = 0; i < 4; ++i) {
        if (point == 0) return {};
        point = Previous_Character(path, point);
    }
    if (path[point] != '.') return {};
    const std::string_view stem = path.substr(0, point);
    const std::size_t separator = stem.find_last_of("\\/");
    return std::string(separator == std::string_view::npos ? stem : stem.substr(separator + 1));
}

std::string Long_Path_Of(const std::string& path) {
    std::error_code error;
    const auto whole = std::filesystem::absolute(path, error);
    if (error || !std::filesystem::exists(whole, error)) return {};
    // Behind a link ".." leads elsewhere than its text says.
    const auto plain = whole.lexically_normal();
    return std::filesystem::equivalent(whole, plain, error) ? plain.string() : whole.string();
}

}  // namespace kervol
