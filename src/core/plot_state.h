// SPDX-License-Identifier: GPL-3.0-or-later
// What the plots share: how many stand on a screen, the limits of the one drawn last, the tips of a polar
// plot.
#pragma once

#include <cstdint>

#include "core/constants.h"
#include "core/table.h"

namespace kervol {

struct PlotState {
    std::int16_t PlotCount{};  ///< pictures or charts of the screen: 1, 2 or 4
    float PlotLimit{};         ///< largest absolute value of the function drawn last
    float PlotBase{};          ///< sum of the y bounds of its window
    bool WindowFailed{};       ///< the picture refused the window that was set last

    bool ShowVectors{};                     ///< polar plots draw a ray for each step
    bool ShowEnvelope{};                    ///< polar plots join the tips of the rays
    std::int16_t PolarStyle{};              ///< 1 envelope, 2 rays, 3 both; 0 before the first plot
    Table<float, StepRows> PolarX, PolarY;  ///< tips by step, in the unit of the function
};

}  // namespace kervol
