// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/sheet.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace kervol {

std::optional<PictureFormat> Picture_Format(std::string_view path) {
    std::string name(path);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    constexpr auto kEndings = std::to_array<std::pair<std::string_view, PictureFormat>>(
        {{".svg", PictureFormat::Svg}, {".png", PictureFormat::Png}, {".pdf", PictureFormat::Pdf}});
    for (const auto& [ending, format] : kEndings)
        if (name.ends_with(ending)) return format;
    return std::nullopt;
}

}  // namespace kervol
