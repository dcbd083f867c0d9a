// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/preset_table.h"

#include "core/fault.h"

namespace kervol {
namespace {

using namespace component;

constexpr std::array<std::int16_t, 2> kMags = {Mag, Mag};
constexpr std::array<std::int16_t, 2> kParts = {X, Y};
constexpr std::array<std::int16_t, 2> kPolar = {Mag, Ang};
constexpr std::array<std::int16_t, 4> kFourMags = {Mag, Mag, Mag, Mag};
constexpr std::array<std::int16_t, 4> kAllParts = {X, Y, Mag, Ang};

constexpr std::array<std::int16_t, 2> Twice(std::int16_t function) {
    return {function, function};
}
constexpr std::array<std::int16_t, 4> Four_Times(std::int16_t function) {
    return {function, function, function, function};
}

// clang-format off
constexpr auto kTwo = std::to_array<Preset<2>>({
    {"Theta3 and Theta4 Magnitudes", {2, 3}, kMags},
    {"Theta5 and Theta6 Magnitudes", {4, 5}, kMags},
    {"Trans ang Stage 1 and Trans ang Stage 2 Magnitudes", {6, 7}, kMags},
    {"Omega3 and Omega4 Magnitudes", {9, 10}, kMags},
    {"Omega5 and Omega6 Magnitudes", {11, 12}, kMags},
    {"Alpha3 and Alpha4 Magnitudes", {14, 15}, kMags},
    {"Alpha5 and Alpha6 Magnitudes", {16, 17}, kMags},
    {"Velocity of Instant Center 2-3  -  X, Y components", Twice(18), kParts},
    {"Velocity of Instant Center 3-4  -  X, Y components", Twice(19), kParts},
    {"Velocity of Instant Center 4-5  -  X, Y components", Twice(20), kParts},
    {"Velocity of Instant Center 5-6  -  X, Y components", Twice(21), kParts},
    {"Velocity of Coupler Point Stage 1  -  X, Y components", Twice(22), kParts},
    {"Velocity of Coupler Point Stage 2 -  X, Y components", Twice(23), kParts},
    {"Acceleration of Instant Ctr 2-3  -  X, Y components", Twice(24), kParts},
    {"Acceleration of Instant Ctr 3-4  -  X, Y components", Twice(25), kParts},
    {"Acceleration of Instant Ctr 4-5  -  X, Y components", Twice(26), kParts},
    {"Acceleration of Instant Ctr 5-6  -  X, Y components", Twice(27), kParts},
    {"Acceleration of Coupler Point  Stage 1 -  X, Y components", Twice(28), kParts},
    {"Acceleration of Coupler Point  Stage 2 -  X, Y components", Twice(29), kParts},
    {"Coupler Point Coordinates  Stage 1 -  X, Y components", Twice(30), kParts},
    {"Coupler Point Coordinates  Stage 2 -  X, Y components", Twice(31), kParts},
    {"Velocity Ratios for Stages 1 and 2", {32, 33}, kMags},
    {"Mechanical Advantages for Stages 1 and 2", {34, 35}, kMags},
    {"Velocity of CG of Link 2  -  X, Y components", Twice(36), kParts},
    {"Velocity of CG of Link 3  -  X, Y components", Twice(37), kParts},
    {"Velocity of CG of Link 4  -  X, Y components", Twice(38), kParts},
    {"Velocity of CG of Link 5  -  X, Y components", Twice(39), kParts},
    {"Velocity of CG of Link 6  -  X, Y components", Twice(40), kParts},
    {"Acceleration of CG of Link 2  -  X, Y components", Twice(41), kParts},
    // Deliberate: rows 30 and 31 show the link after the one of their title, "Accel CG 4" and "Accel CG 5".
    {"Acceleration of CG of Link 3  -  X, Y components", Twice(43), kParts},
    {"Acceleration of CG of Link 4  -  X, Y components", Twice(44), kParts},
    // Deliberate: "Accel CG 6" beside "Accel CG 5", not twice CG 5.
    {"Acceleration of CG of Link 5  -  X, Y components", {45, 44}, kParts},
    // Deliberate: "Force 12" beside "Accel CG 5", not twice "Accel CG 6".
    {"Acceleration of CG of Link 6  -  X, Y components", {46, 44}, kParts},
    {"Force of Link 1 on 2  -  X, Y components", Twice(46), kParts},
    {"Force of Link 1 on 4 -  X, Y components", Twice(47), kParts},
    {"Force of Link 1 on 6  -  X, Y components", Twice(48), kParts},
    {"Force of Link 3 on 2  -  X, Y components", Twice(49), kParts},
    {"Force of Link 4 on 3  -  X, Y components", Twice(50), kParts},
    {"Force of Link 5 on 4  -  X, Y components", Twice(51), kParts},
    {"Force of Link 5 on 6  -  X, Y components", Twice(52), kParts},
    {"Shaking Force -  X, Y components", Twice(53), kParts},
    {"DAlembert Inertia Force on Link 2  -  X, Y components", Twice(60), kParts},
    {"DAlembert Inertia Force on Link 3  -  X, Y components", Twice(61), kParts},
    {"DAlembert Inertia Force on Link 4  -  X, Y components", Twice(62), kParts},
    {"DAlembert Inertia Force on Link 5  -  X, Y components", Twice(63), kParts},
    {"DAlembert Inertia Force on Link 6  -  X, Y components", Twice(64), kParts},
    // Deliberate: the title says 16, the function is "Torque L6".
    {"Torques 12 and 16", {54, 59}, kMags},
    {"Torque 12 and Flywheel-Smoothed Torque 12 Compared", {54, 65}, kMags},
    {"Current FFT - Real, Imag", Twice(66), kParts},
    {"Current FFT - Mag, Phase", Twice(66), kPolar},
});

constexpr auto kFour = std::to_array<Preset<4>>({
    {"Theta magnitudes for links 3, 4, 5, 6", {2, 3, 4, 5}, kFourMags},
    {"Omega magnitudes for links 3, 4, 5, 6", {9, 10, 11, 12}, kFourMags},
    {"Alpha magnitudes for links 3, 4, 5, 6", {14, 15, 16, 17}, kFourMags},
    {"Velocity of Instant Center 2-3  -  X, Y, Mag, Ang Coordinates", Four_Times(18), kAllParts},
    {"Velocity of Instant Center 3-4  -  X, Y, Mag, Ang Coordinates", Four_Times(19), kAllParts},
    {"Velocity of Instant Center 4-5 -  X, Y, Mag, Ang Coordinates", Four_Times(20), kAllParts},
    {"Velocity of Instant Center 5-6 -  X, Y, Mag, Ang Coordinates", Four_Times(21), kAllParts},
    {"Velocity of Coupler Point Stage 1 -  X, Y, Mag, Ang Coordinates", Four_Times(22), kAllParts},
    {"Velocity of Coupler Point Stage 2 -  X, Y, Mag, Ang Coordinates", Four_Times(23), kAllParts},
    {"Acceleration of Instant Ctr 2-3  -  X, Y, Mag, Ang Coordinates", Four_Times(24), kAllParts},
    {"Acceleration of Instant Ctr 3-4  -  X, Y, Mag, Ang Coordinates", Four_Times(25), kAllParts},
    {"Acceleration of Instant Ctr 4-5-  X, Y, Mag, Ang Coordinates", Four_Times(26), kAllParts},
    {"Acceleration of Instant Ctr 5-6-  X, Y, Mag, Ang Coordinates", Four_Times(27), kAllParts},
    {"Acceleration of Coupler Point  Stage 1 -  X, Y, Mag, Ang Coordinates", Four_Times(28), kAllParts},
    {"Acceleration of Coupler Point  Stage 2 -  X, Y, Mag, Ang Coordinates", Four_Times(29), kAllParts},
    {"Coupler Point Coordinates Stage 1  -  X, Y, Mag, Ang Coordinates", Four_Times(30), kAllParts},
    {"Coupler Point Coordinates  Stage 2 -  X, Y, Mag, Ang Coordinates", Four_Times(31), kAllParts},
    {"Velocity of CG of Link 2  -  X, Y, Mag, Ang Coordinates", Four_Times(36), kAllParts},
    {"Velocity of CG of Link 3  -  X, Y, Mag, Ang Coordinates", Four_Times(37), kAllParts},
    {"Velocity of CG of Link 4  -  X, Y, Mag, Ang Coordinates", Four_Times(38), kAllParts},
    {"Velocity of CG of Link 5  -  X, Y, Mag, Ang Coordinates", Four_Times(39), kAllParts},
    {"Velocity of CG of Link 6  -  X, Y, Mag, Ang Coordinates", Four_Times(40), kAllParts},
    {"Acceleration of CG of Link 2  -  X, Y, Mag, Ang Coordinates", Four_Times(41), kAllParts},
    {"Acceleration of CG of Link 3  -  X, Y, Mag, Ang Coordinates", Four_Times(42), kAllParts},
    {"Acceleration of CG of Link 4  -  X, Y, Mag, Ang Coordinates", Four_Times(43), kAllParts},
    {"Acceleration of CG of Link 5  -  X, Y, Mag, Ang Coordinates", Four_Times(44), kAllParts},
    {"Acceleration of CG of Link 6 -  X, Y, Mag, Ang Coordinates", Four_Times(45), kAllParts},
    {"Force of Link 1 on 2  -  X, Y, Mag, Ang Coordinates", Four_Times(46), kAllParts},
    {"Force of Link 1 on 4  -  X, Y, Mag, Ang Coordinates", Four_Times(47), kAllParts},
    {"Force of Link 1 on 6  -  X, Y, Mag, Ang Coordinates", Four_Times(48), kAllParts},
    {"Force of Link 3 on 2  -  X, Y, Mag, Ang Coordinates", Four_Times(49), kAllParts},
    {"Force of Link 4 on 3  -  X, Y, Mag, Ang Coordinates", Four_Times(50), kAllParts},
    {"Force of Link 5 on 4  -  X, Y, Mag, Ang Coordinates", Four_Times(51), kAllParts},
    {"Force of Link 5 on 6  -  X, Y, Mag, Ang Coordinates", Four_Times(52), kAllParts},
    {"Shaking Force  -  X, Y, Mag, Ang Coordinates", Four_Times(53), kAllParts},
    {"Torque Magnitudes for links 2, 4, 5, 6", {54, 57, 58, 59}, kFourMags},
    {"Inertia Force on Link 2  -  X, Y, Mag, Ang Coordinates", Four_Times(60), kAllParts},
    {"Inertia Force on Link 3  -  X, Y, Mag, Ang Coordinates", Four_Times(61), kAllParts},
    {"Inertia Force on Link 4  -  X, Y, Mag, Ang Coordinates", Four_Times(62), kAllParts},
    {"Inertia Force on Link 5  -  X, Y, Mag, Ang Coordinates", Four_Times(63), kAllParts},
    {"Inertia Force on Link 6  -  X, Y, Mag, Ang Coordinates", Four_Times(64), kAllParts},
    {"Current FFT - Real, Imag, Mag, Phase", Four_Times(66), kAllParts},
});
// clang-format on
static_assert(kTwo.size() == TwoFunctionPresets);
static_assert(kFour.size() == FourFunctionPresets);

template <std::size_t Slots, std::size_t Rows>
const Preset<Slots>& Row_Of(const std::array<Preset<Slots>, Rows>& presets, std::ptrdiff_t row) {
    if (row < 1 || static_cast<std::size_t>(row) > Rows) Raise(fault::Subscript);
    return presets[static_cast<std::size_t>(row) - 1];
}

}  // namespace

const Preset<2>& Two_Function_Preset(std::ptrdiff_t row) {
    return Row_Of(kTwo, row);
}

const Preset<4>& Four_Function_Preset(std::ptrdiff_t row) {
    return Row_Of(kFour, row);
}

}  // namespace kervol
