// SPDX-License-Identifier: GPL-3.0-or-later
// Texts from outside made valid UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace kervol {

/// UTF-8 of a text whose bytes that are not valid UTF-8 are Windows-1252.
std::string Decoded(std::string_view bytes);

}  // namespace kervol
