// SPDX-License-Identifier: GPL-3.0-or-later
// The moving linkage as a GIF file.
#pragma once

#include <string>

#include "animation/real_time.h"

namespace kervol {

/// The frames of the cycle in the look of the moving SVG, without texts; `size` is the longer side in pixels.
/// A cycle without rows gives an empty text.
std::string Moving_Gif(const Program& program, const TimedCycle& cycle, int size);

}  // namespace kervol
