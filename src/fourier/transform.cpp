// SPDX-License-Identifier: GPL-3.0-or-later
#include "fourier/transform.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "catalogue/selection.h"
#include "core/arithmetic.h"
#include "core/report.h"
#include "fourier/harmonic_sums.h"

namespace kervol {
namespace {

constexpr float kTiny = 1e-5F;

/// Deliberate: not corrected for the quadrant, and a quarter turn for every imaginary number.
double Phase(double real, double imaginary) {
    const double re = Single(real);
    const double im = Single(imaginary);
    if (Is_Zero(re)) return Is_Zero(im) ? 0 : HalfPi;
    return std::atan(im / re);
}

/// The samples 1 to N, and a clean row of `FFTWork` for each and for the mean.
std::vector<double> Take_Samples(Program& program, std::int16_t N) {
    auto& FFTWork = program.fourier.FFTWork;
    FFTWork(1).Fill(0);
    std::vector<double> samples;
    for (int i = 1; i <= N; ++i) {
        float value = 0;
        Select_Variable(program, static_cast<std::int16_t>(i), 1, value);
        FFTWork(i).Fill(0);
        samples.push_back(value);
    }
    return samples;
}

void Sum_Rows(FourierState& fourier, const std::vector<double>& samples) {
    std::array<double, MaxHarmonics> real, imaginary;
    Fastest_Sums()({.samples = samples.data(),
                    .N = static_cast<int>(samples.size()),
                    .harmonics = fourier.FFTHalf,
                    .tiny = fourier.FFTTiny,
                    .real = real.data(),
                    .imaginary = imaginary.data()});
    for (std::size_t k = 0; static_cast<int>(k) < fourier.FFTHalf; ++k) {
        const double re = real.at(k), im = imaginary.at(k);
        auto& row = fourier.FFTWork(static_cast<int>(k) + 1);
        row(0) = re;
        row(1) = im;
        row(2) = std::sqrt(im * im + re * re);
        row(3) = Phase(re, im) * DegreesPerRadian;
    }
}

/// Deliberate: the phase is doubled with the amplitudes.
void Fold(const FourierState& fourier, ResultTables& tables) {
    for (int column = 0; column <= 3; ++column) {
        tables.FFTTable(0, column) = Single(fourier.FFTWork(1, column));
        for (int n = 1; n < fourier.FFTHalf; ++n) {
            const double half = fourier.FFTWork(n + 1, column);
            tables.FFTTable(n, column) = Single(half + half);
        }
    }
}

}  // namespace

void FFT_Compute(Program& program, std::int16_t N) {
    Procedure(program, "FFT_Compute", [&] {
        FourierState& fourier = program.fourier;
        fourier.FFTHalf = static_cast<std::int16_t>(std::floor(N / 2.0 + 0.5));
        fourier.FFTTiny = kTiny;
        Sum_Rows(fourier, Take_Samples(program, N));
        Fold(fourier, program.tables);
    });
}

void FFT_Clear_Table(Program& program, std::int16_t Last) {
    for (int i = 0; i <= std::min(Last, MaxHarmonics); ++i) program.tables.FFTTable(i).Fill(0);
}

void FFT_Clear_Work(Program& program, std::int16_t Last) {
    for (int i = 0; i <= Last; ++i) program.fourier.FFTWork(i).Fill(0);
}

void Transform_Function(Program& program, std::string_view function, std::string_view component) {
    Selections& selections = program.selections;
    Set_Selection(program.catalogue, selections, function, 1);
    program.fourier.FFTUnit = program.model.UnitText(selections.SelTable(1));
    Set_Component(program.catalogue, selections, component, 1);
    FFT_Compute(program, program.model.NumSteps);
    program.fourier.FFTReady = true;
}

}  // namespace kervol
