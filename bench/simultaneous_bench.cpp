// SPDX-License-Identifier: GPL-3.0-or-later
// Linear equations of the size and sparsity that the forces of a linkage have.
#include <random>

#include "core/simultaneous.h"
#include "headless/recording_port.h"

#include <benchmark/benchmark.h>

namespace kervol::bench {
namespace {

void Solve_15_Equations(benchmark::State& state) {
    std::mt19937 random(15);
    std::uniform_real_distribution<double> value(-10, 10);
    SystemMatrix matrix;
    SystemVector right;
    for (int i = 1; i <= 15; ++i) {
        for (int j = 1; j <= 15; ++j)
            if (i == j || random() % 4 == 0) matrix(i, j) = value(random);
        right(i) = value(random);
    }
    RecordingPort port;
    std::int16_t error = 0;
    for (auto _ : state) {
        SystemMatrix A = matrix;
        SystemVector B = right;
        SimQ(port, 15, A, B, error);
        benchmark::DoNotOptimize(B);
    }
}
BENCHMARK(Solve_15_Equations);

}  // namespace
}  // namespace kervol::bench
