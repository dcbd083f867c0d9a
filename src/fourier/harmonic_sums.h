// SPDX-License-Identifier: GPL-3.0-or-later
// The sums of the Fourier transform, and the ways to compute them: one by the definition, two that sum
// several harmonics at a time. Kept free of all other headers, for one of them is compiled for newer
// processors.
#pragma once

namespace kervol {

/// N samples, and where the sums of their first harmonics go. Harmonic k of sample n, both counted from 0,
/// has the angle k * `TwoPi` * n / N, evaluated in this order.
struct HarmonicSums {
    const double* samples;  ///< singles, held as doubles
    int N;
    int harmonics;
    float tiny;    ///< a running sum that is below it, rounded to single, becomes 0 and goes on from there
    double* real;  ///< of each harmonic the sum of sample * cos(angle) / N
    double* imaginary;  ///< the same of -sample * sin(angle) / N
};

/// Deliberate: not the exact value; it decides last bits of every spectrum.
inline constexpr double TwoPi = 6.283185308;

using SumHarmonics = void (*)(const HarmonicSums& sums);

/// One harmonic and one sample after the other, with the sines of the library: what the other ways are
/// measured by. They have sines of their own, so that their sums may differ from these in the last bits of a
/// double, which single precision does not keep.
void Sum_Literally(const HarmonicSums& sums);

/// Two and four harmonics at a time; the same bits in both, whatever library and processor. `Sum_Four` needs
/// a processor that `Has_Four_Lanes`.
void Sum_Two(const HarmonicSums& sums);
void Sum_Four(const HarmonicSums& sums);

bool Has_Four_Lanes();
/// The fastest way for this processor.
SumHarmonics Fastest_Sums();

}  // namespace kervol
