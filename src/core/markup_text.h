// SPDX-License-Identifier: GPL-3.0-or-later
// Texts and numbers as SVG and HTML take them.
#pragma once

#include <string>
#include <string_view>

#include "core/picture.h"

namespace kervol {

/// UTF-8 text made safe within elements and quoted attributes. Characters that no XML may hold become blanks.
std::string Markup_Text(std::string_view text);

/// Fixed form without trailing zeros, the same in every locale.
std::string Fixed_Number(double value, int decimals = 2);

/// "#rrggbb".
std::string Colour_Text(Colour colour);

}  // namespace kervol
