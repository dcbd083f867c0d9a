// SPDX-License-Identifier: GPL-3.0-or-later
#include "fourier/harmonic_sums.h"

#include <cmath>

namespace kervol {

void Sum_Literally(const HarmonicSums& sums) {
    for (int k = 0; k < sums.harmonics; ++k) {
        double& real = sums.real[k];
        double& imaginary = sums.imaginary[k];
        real = imaginary = 0;
        for (int n = 0; n < sums.N; ++n) {
            const double a = k * TwoPi * n / sums.N;
            real = real + sums.samples[n] * std::cos(a) / sums.N;
            imaginary = imaginary - sums.samples[n] * std::sin(a) / sums.N;
            if (std::abs(static_cast<float>(real)) < sums.tiny) real = 0;
            if (std::abs(static_cast<float>(imaginary)) < sums.tiny) imaginary = 0;
        }
    }
}

bool Has_Four_Lanes() {
#if defined(__x86_64__)
    return __builtin_cpu_supports("avx2") != 0;
#else
    return false;
#endif
}

SumHarmonics Fastest_Sums() {
    return Has_Four_Lanes() ? Sum_Four : Sum_Two;
}

}  // namespace kervol
