// SPDX-License-Identifier: GPL-3.0-or-later
// What the drawing of the linkage remembers between positions.
#pragma once

#include <cstdint>

#include "core/colours.h"

namespace kervol {

/// Lengths and coordinates are in world units of the picture, user frame.
struct AnimationState {
    ColourTable colours{};         ///< filled at each set-up
    std::int16_t CurrentStep = 0;  ///< position of the step bar and the Step button
    float PlotMin = 0;             ///< the picture's square window, the same for x and y
    float PlotMax = 0;
    float PlotY0 = 0;  ///< sum of both: the picture's y is this minus y, since its axis points down
    float RadiusSmall = 0;
    float RadiusCoupler = 0;
    float RadiusPivot = 0;
    Colour LinkColour{};  ///< of the next drawing pass
    bool EndRun = false;  ///< the person wants the run to end
    float PathX = 0;      ///< last point of a coupler path
    float PathY = 0;
};

}  // namespace kervol
