// SPDX-License-Identifier: GPL-3.0-or-later
// Texts of the program, UTF-8, as those of the toolkit.
#pragma once

#include <QString>
#include <string_view>

namespace kervol {

inline QString Qt_Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// As a widget shows it: with line breaks of one kind.
inline QString Qt_Lines(std::string_view text) {
    return Qt_Text(text).replace("\r\n", "\n").replace('\r', '\n');
}

}  // namespace kervol
