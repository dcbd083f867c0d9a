// SPDX-License-Identifier: GPL-3.0-or-later
// The sums of the Fourier transform of the longest sweep. The literal loop sums all 1024 harmonics; the table
// needs 512 of them, which is what the program computes.
#include <vector>

#include "core/constants.h"
#include "fourier/harmonic_sums.h"
#include "fourier/transform.h"
#include "workload.h"

#include <benchmark/benchmark.h>

namespace kervol::bench {
namespace {

void Sum(benchmark::State& state, SumHarmonics sum, int harmonics) {
    std::vector<double> samples(MaxSteps), real(samples.size()), imaginary(samples.size());
    for (std::size_t n = 0; n < samples.size(); ++n) samples[n] = static_cast<double>(n * n % 1009) - 500;
    for (auto _ : state) {
        sum({samples.data(), MaxSteps, harmonics, 1e-5F, real.data(), imaginary.data()});
        benchmark::DoNotOptimize(real.data());
        benchmark::ClobberMemory();
    }
}

void Spectrum_Literal_Loop(benchmark::State& state) {
    Sum(state, Sum_Literally, MaxSteps);
}
BENCHMARK(Spectrum_Literal_Loop)->Unit(benchmark::kMillisecond);

void Spectrum_Two_Lanes(benchmark::State& state) {
    Sum(state, Sum_Two, MaxHarmonics);
}
BENCHMARK(Spectrum_Two_Lanes)->Unit(benchmark::kMillisecond);

void Spectrum_Four_Lanes(benchmark::State& state) {
    if (!Has_Four_Lanes()) return state.SkipWithError("this processor has no vectors of four doubles");
    Sum(state, Sum_Four, MaxHarmonics);
}
BENCHMARK(Spectrum_Four_Lanes)->Unit(benchmark::kMillisecond);

/// With the fetch of the samples and the table.
void Spectrum_Of_A_Function(benchmark::State& state) {
    Workload work("watt");
    work.program->model.NumSteps = MaxSteps;
    for (auto _ : state) Transform_Function(*work.program, "Veloc CP-1", "Mag");
}
BENCHMARK(Spectrum_Of_A_Function)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kervol::bench
