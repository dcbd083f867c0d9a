// SPDX-License-Identifier: GPL-3.0-or-later
// The presets: sentences that stand for two or four functions with their components.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kervol {

inline constexpr int TwoFunctionPresets = 50;
inline constexpr int FourFunctionPresets = 42;

/// Entries of `ComponentName`; the numbers of `SelComp` are one less.
namespace component {
inline constexpr std::int16_t X = 1;
inline constexpr std::int16_t Y = 2;
inline constexpr std::int16_t Mag = 3;
inline constexpr std::int16_t Ang = 4;
}  // namespace component

/// Slot k of a selection screen takes function and component k - 1.
template <std::size_t Slots>
struct Preset {
    std::string_view title;  ///< the one of the Watt chain where it depends on the chain
    /// Rows of the catalogue, not names, so that a preset follows the names of the chain.
    std::array<std::int16_t, Slots> functions;
    std::array<std::int16_t, Slots> components;  ///< entries of `component`
};

/// Row 1 to 50; fault 9 outside.
const Preset<2>& Two_Function_Preset(std::ptrdiff_t row);

/// Row 1 to 42; fault 9 outside.
const Preset<4>& Four_Function_Preset(std::ptrdiff_t row);

}  // namespace kervol
