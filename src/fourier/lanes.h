// SPDX-License-Identifier: GPL-3.0-or-later
// Several harmonics at a time in the lanes of one vector of doubles. Each lane does the same plain operations
// in the same order whatever their number, so that all widths give the same bits.
//
// Templates alone, which differ by their vector: nothing here may be shared between files that are compiled
// for different processors.
#pragma once

#include <bit>

#include "fourier/harmonic_sums.h"

namespace kervol {

/// `Bits` are the doubles of the vector as they are stored.
template <int lanes>
struct LaneVectors;
template <>
struct LaneVectors<2> {
    using Doubles = double __attribute__((vector_size(16)));
    using Bits = unsigned long long __attribute__((vector_size(16)));
};
template <>
struct LaneVectors<4> {
    using Doubles = double __attribute__((vector_size(32)));
    using Bits = unsigned long long __attribute__((vector_size(32)));
};

/// Sine and cosine of angles from 0 to 10,000, within 0.8 units in the last place. What remains beside the
/// nearest multiple of a right angle goes, with what its rounding lost, into the power series.
template <int lanes>
struct LaneSines {
    using Doubles = typename LaneVectors<lanes>::Doubles;
    using Bits = typename LaneVectors<lanes>::Bits;

    static void Sine_And_Cosine(const Doubles& angle, Doubles& sine, Doubles& cosine) {
        // A right angle in two parts, the first of 41 bits: its multiples are exact.
        constexpr double kRight = 0x1.921fb54442p+0, kRightRest = 0x1.a308d313198a3p-41;
        constexpr double kPerRight = 0x1.45f306dc9c883p-1;
        constexpr double kRounder = 0x1.8p+52;  // adding it leaves an integer in the lowest bits

        const Doubles rounded = angle * kPerRight + kRounder;
        const Doubles turns = rounded - kRounder;
        const Doubles near = angle - turns * kRight;
        const Doubles correction = turns * kRightRest;
        const Doubles r = near - correction;
        const Doubles rest = (near - r) - correction;
        const Doubles z = r * r;

        const Doubles of_sine = r + (r * z * Sine_Series(z) + rest * (1.0 - 0.5 * z));
        const Doubles half = 0.5 * z;
        const Doubles lead = 1.0 - half;
        const Doubles of_cosine = lead + (((1.0 - lead) - half) + (z * z * Cosine_Series(z) - r * rest));

        // Each right angle swaps the two and turns the sign of one.
        const Bits quadrant = std::bit_cast<Bits>(rounded);
        const Bits swapped = -(quadrant & 1);
        const Bits s = std::bit_cast<Bits>(of_sine), c = std::bit_cast<Bits>(of_cosine);
        sine = std::bit_cast<Doubles>(((s & ~swapped) | (c & swapped)) ^ ((quadrant & 2) << 62));
        cosine = std::bit_cast<Doubles>(((c & ~swapped) | (s & swapped)) ^ (((quadrant + 1) & 2) << 62));
    }

  private:
    /// (sin r - r) / r^3 for z = r^2.
    static Doubles Sine_Series(const Doubles& z) {
        Doubles sum = z * (1.0 / 355687428096000) - 1.0 / 1307674368000;
        sum = sum * z + 1.0 / 6227020800;
        sum = sum * z - 1.0 / 39916800;
        sum = sum * z + 1.0 / 362880;
        sum = sum * z - 1.0 / 5040;
        sum = sum * z + 1.0 / 120;
        return sum * z - 1.0 / 6;
    }
    /// (cos r - 1 + r^2 / 2) / r^4.
    static Doubles Cosine_Series(const Doubles& z) {
        Doubles sum = z * (-1.0 / 6402373705728000) + 1.0 / 20922789888000;
        sum = sum * z - 1.0 / 87178291200;
        sum = sum * z + 1.0 / 479001600;
        sum = sum * z - 1.0 / 3628800;
        sum = sum * z + 1.0 / 40320;
        sum = sum * z - 1.0 / 720;
        return sum * z + 1.0 / 24;
    }
};

template <int lanes>
struct LaneSums {
    using Doubles = typename LaneVectors<lanes>::Doubles;
    using Bits = typename LaneVectors<lanes>::Bits;

    static void Sum(const HarmonicSums& sums) {
        const double limit = Cut_Limit(sums.tiny);
        for (int first = 0; first < sums.harmonics; first += lanes) {
            Doubles real, imaginary;
            Sum_Lanes(sums, first, limit, real, imaginary);
            for (int lane = 0; lane < lanes && first + lane < sums.harmonics; ++lane) {
                sums.real[first + lane] = real[lane];
                sums.imaginary[first + lane] = imaginary[lane];
            }
        }
    }

  private:
    /// Doubles of this size and above are not below `tiny` once they are rounded to single: half-way between
    /// it and the single before it, where it has an even last bit.
    static double Cut_Limit(float tiny) {
        const auto before = std::bit_cast<float>(std::bit_cast<unsigned>(tiny) - 1U);
        return (static_cast<double>(before) + static_cast<double>(tiny)) / 2;
    }

    /// Cut to 0 where the sums are below the limit.
    static void Cut(Doubles& sum, double limit) {
        const auto small = (sum < limit) & (sum > -limit);
        sum = std::bit_cast<Doubles>(std::bit_cast<Bits>(sum) & ~std::bit_cast<Bits>(small));
    }

    static void Sum_Lanes(const HarmonicSums& sums, int first, double limit, Doubles& real,
                          Doubles& imaginary) {
        Doubles harmonic;
        for (int lane = 0; lane < lanes; ++lane) harmonic[lane] = first + lane;
        const Doubles turns = harmonic * TwoPi;
        const double N = sums.N;
        real = imaginary = Doubles{};
        for (int n = 0; n < sums.N; ++n) {
            Doubles sine, cosine;
            LaneSines<lanes>::Sine_And_Cosine(turns * static_cast<double>(n) / N, sine, cosine);
            real = real + sums.samples[n] * cosine / N;
            imaginary = imaginary - sums.samples[n] * sine / N;
            Cut(real, limit);
            Cut(imaginary, limit);
        }
    }
};

}  // namespace kervol
