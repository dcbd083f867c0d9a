// SPDX-License-Identifier: GPL-3.0-or-later
// The named drawing colours.
#pragma once

#include "core/picture.h"

namespace kervol {

struct ColourTable {
    Colour red, green, blue, purple, white, black, cyan, yellow, grey, magenta;
};

inline constexpr ColourTable NamedColours = {
    .red = {255, 0, 0},
    .green = {0, 255, 0},
    .blue = {0, 0, 255},
    .purple = {128, 0, 128},
    .white = {255, 255, 255},
    .black = {0, 0, 0},
    .cyan = {0, 255, 255},
    .yellow = {255, 255, 0},
    .grey = {128, 128, 128},
    .magenta = {255, 0, 255},
};

}  // namespace kervol
