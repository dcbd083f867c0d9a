// SPDX-License-Identifier: GPL-3.0-or-later
// Linear equations of the size and sparsity that the forces of a linkage have, beside a general linear
// solver.
#include <Eigen/LU>
#include <random>

#include "core/simultaneous.h"
#include "headless/recording_port.h"

#include <benchmark/benchmark.h>

namespace kervol::bench {
namespace {

constexpr int kOrder = 15;

/// A quarter of the elements beside the diagonal are not zero.
struct Equations15 {
    Equations15() {
        std::mt19937 random(kOrder);
        std::uniform_real_distribution<double> value(-10, 10);
        for (int i = 1; i <= kOrder; ++i) {
            for (int j = 1; j <= kOrder; ++j)
                if (i == j || random() % 4 == 0) matrix(i, j) = value(random);
            right(i) = value(random);
        }
    }

    SystemMatrix matrix;
    SystemVector right;
};

void Solve_15_Equations(benchmark::State& state) {
    const Equations15 equations;
    RecordingPort port;
    std::int16_t error = 0;
    for (auto _ : state) {
        SystemMatrix A = equations.matrix;
        SystemVector B = equations.right;
        SimQ(port, kOrder, A, B, error);
        benchmark::DoNotOptimize(B);
    }
}
BENCHMARK(Solve_15_Equations);

void Solve_15_With_Eigen(benchmark::State& state) {
    using Matrix = Eigen::Matrix<double, kOrder, kOrder>;
    using Vector = Eigen::Matrix<double, kOrder, 1>;
    const Equations15 equations;
    Matrix matrix;
    Vector right;
    for (int i = 0; i < kOrder; ++i) {
        right(i) = equations.right(i + 1);
        for (int j = 0; j < kOrder; ++j) matrix(i, j) = equations.matrix(i + 1, j + 1);
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(matrix);
        const Vector solution = matrix.partialPivLu().solve(right);
        benchmark::DoNotOptimize(solution);
    }
}
BENCHMARK(Solve_15_With_Eigen);

}  // namespace
}  // namespace kervol::bench
