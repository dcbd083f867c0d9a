// SPDX-License-Identifier: GPL-3.0-or-later
// The transform word by word, over all of its sums; signals to try it on.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/program.h"

namespace kervol {

using Spectrum = std::vector<std::array<float, 4>>;

/// Rows 0 to `FFTHalf` - 1 of the table of these samples, by the two nested loops.
Spectrum Literal_Transform(const std::vector<float>& samples);

/// The rows that a program's table holds.
Spectrum Stored_Spectrum(const Program& program);

/// Entries that are not the same bits.
int Differences(const Spectrum& left, const Spectrum& right);

struct Signal {
    std::string name;
    std::vector<float> samples;
};

std::vector<float> Cosine(int N, int cycles, double amplitude, double degrees = 0);
std::vector<float> Noise(int N, unsigned seed, double size = 1);

/// Every function of the catalogue that can be transformed, in every component, of the four examples.
std::vector<Signal> Example_Signals();

}  // namespace kervol
