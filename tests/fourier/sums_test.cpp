// SPDX-License-Identifier: GPL-3.0-or-later
// The ways to sum harmonics against each other and against the definition.
#include <bit>
#include <cmath>
#include <cstdint>

#include "fourier/lanes.h"
#include "fourier/literal_transform.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

constexpr float kTiny = 1e-5F;

struct Sums {
    std::vector<double> real, imaginary;
};

Sums Summed(SumHarmonics sum, const std::vector<float>& samples, int harmonics) {
    const std::vector<double> held(samples.begin(), samples.end());
    // One more than is asked for, so that a way that writes too far is seen.
    Sums sums = {std::vector<double>(static_cast<std::size_t>(harmonics) + 1, -1.0),
                 std::vector<double>(static_cast<std::size_t>(harmonics) + 1, -1.0)};
    sum({held.data(), static_cast<int>(held.size()), harmonics, kTiny, sums.real.data(),
         sums.imaginary.data()});
    return sums;
}

bool Same_Bits(const std::vector<double>& left, const std::vector<double>& right) {
    if (left.size() != right.size()) return false;
    for (std::size_t i = 0; i < left.size(); ++i)
        if (std::bit_cast<std::uint64_t>(left[i]) != std::bit_cast<std::uint64_t>(right[i])) return false;
    return true;
}

TEST(LaneSines, StayWithinEightTenthsOfALastPlace) {
    double worst = 0;
    for (const int N : {1, 3, 36, 100, 359, 360, 720, 1023, 1024})
        for (int k = 0; k < N; ++k)
            for (int n = 0; n < N; n += 3) {
                const double angle = k * TwoPi * n / N;
                LaneVectors<2>::Doubles sine, cosine;
                LaneSines<2>::Sine_And_Cosine(LaneVectors<2>::Doubles{angle, angle}, sine, cosine);
                const auto error = [](double value, long double exact) {
                    if (value >= 0 && value <= 0) return static_cast<double>(std::fabs(exact)) * 1e300;
                    return static_cast<double>(std::fabs(value - exact) /
                                               std::ldexp(1.0L, std::ilogb(value) - 52));
                };
                worst = std::max({worst, error(cosine[0], std::cos(static_cast<long double>(angle))),
                                  angle > 0 ? error(sine[1], std::sin(static_cast<long double>(angle))) : 0});
            }
    EXPECT_LT(worst, 0.8);
}

TEST(LaneSines, AreExactAtZero) {
    LaneVectors<2>::Doubles sine, cosine;
    LaneSines<2>::Sine_And_Cosine(LaneVectors<2>::Doubles{0, 0}, sine, cosine);
    EXPECT_EQ(sine[0], 0);
    EXPECT_EQ(cosine[1], 1);
}

TEST(Sums, OfTwoAndOfFourLanesAreTheSameBits) {
    if (!Has_Four_Lanes()) GTEST_SKIP() << "this processor has no vectors of four doubles";
    for (const int N : {1, 2, 3, 4, 5, 36, 100, 101, 359, 360, 512, 1024})
        for (const int harmonics : {1, 2, 3, 4, 5, (N + 1) / 2}) {
            const std::vector<float> samples = Noise(N, 7U + static_cast<unsigned>(N), 1000);
            const Sums two = Summed(Sum_Two, samples, harmonics);
            const Sums four = Summed(Sum_Four, samples, harmonics);
            EXPECT_TRUE(Same_Bits(two.real, four.real)) << N << ", " << harmonics;
            EXPECT_TRUE(Same_Bits(two.imaginary, four.imaginary)) << N << ", " << harmonics;
            EXPECT_EQ(two.real.back(), -1) << "beyond the last harmonic";
            EXPECT_EQ(two.imaginary.back(), -1);
        }
}

TEST(Sums, AreCutWhereTheirSingleIsBelowTheThreshold) {
    // A single sample is the sum: the last single below the threshold goes, the threshold itself stays.
    const float below = std::nextafter(kTiny, 0.0F);
    for (const SumHarmonics sum : {Sum_Literally, Sum_Two}) {
        EXPECT_EQ(Summed(sum, {below}, 1).real[0], 0);
        EXPECT_EQ(Summed(sum, {kTiny}, 1).real[0], double(kTiny));
        EXPECT_EQ(Summed(sum, {-below}, 1).real[0], 0);
        EXPECT_EQ(Summed(sum, {-kTiny}, 1).real[0], -double(kTiny));
    }
    // Means of two samples between the two singles: what rounds up to the threshold stays, a half too.
    const double width = double(kTiny) - below;
    for (const double share : {0.25, 0.49, 0.5, 0.51, 0.75}) {
        const double wanted = below + share * width;
        const std::vector<double> samples = {wanted};
        for (const SumHarmonics sum : {Sum_Literally, Sum_Two}) {
            double real = -1, imaginary = -1;
            sum({samples.data(), 1, 1, kTiny, &real, &imaginary});
            EXPECT_EQ(real, share < 0.5 ? 0 : wanted) << share;
        }
    }
}

TEST(Sums, ThatPassNearZeroGoOnFromThere) {
    // 3, -3 and a rest below the threshold leave 0 after the second sample, then 2 alone.
    const std::vector<float> samples = {3, -3.00001F, 2};
    for (const SumHarmonics sum : {Sum_Literally, Sum_Two})
        EXPECT_EQ(Summed(sum, samples, 1).real[0], 2.0 / 3) << "the rest of -0.00001 / 3 is gone";
}

TEST(Sums, InLanesAreTheLiteralOnesInSinglePrecision) {
    const SumHarmonics fastest = Fastest_Sums();
    int sums = 0, of_double = 0, of_single = 0;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        const int N = 2 + static_cast<int>(seed * 37 % 300);
        const std::vector<float> samples = Noise(N, seed, std::pow(10.0, seed % 9 - 3.0));
        const Sums literal = Summed(Sum_Literally, samples, (N + 1) / 2);
        const Sums lanes = Summed(fastest, samples, (N + 1) / 2);
        for (std::size_t k = 0; k + 1 < literal.real.size(); ++k)
            for (const auto part : {&Sums::real, &Sums::imaginary}) {
                const double one = (literal.*part)[k], other = (lanes.*part)[k];
                ++sums;
                of_double += std::bit_cast<std::uint64_t>(one) != std::bit_cast<std::uint64_t>(other);
                of_single += std::bit_cast<std::uint32_t>(static_cast<float>(one)) !=
                             std::bit_cast<std::uint32_t>(static_cast<float>(other));
                EXPECT_NEAR(one, other, 1e-15 * std::pow(10.0, seed % 9 - 3.0));
            }
    }
    RecordProperty("sums", sums);
    RecordProperty("differ_as_doubles", of_double);
    RecordProperty("differ_as_singles", of_single);
    std::cout << of_single << " of " << sums << " sums differ from the literal ones as singles, " << of_double
              << " as doubles\n";
    EXPECT_EQ(of_single, 0);
}

}  // namespace
}  // namespace kervol
