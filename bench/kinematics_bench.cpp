// SPDX-License-Identifier: GPL-3.0-or-later
// One position and whole sweeps, beside the floor that they are measured by.
#include <vector>

#include "floor_kernel.h"
#include "kinematics/calculate.h"
#include "kinematics/sweep.h"
#include "workload.h"

#include <benchmark/benchmark.h>

namespace kervol::bench {
namespace {

void One_Position(benchmark::State& state, const char* example) {
    Workload work(example);
    work.program->model.Theta2Rad = 1.0F;
    work.program->model.Omega2 = 10.0F;
    Answer response = Answer::Retry;
    for (auto _ : state) {
        Calculate(*work.program, 0, response);
        benchmark::ClobberMemory();
    }
}
BENCHMARK_CAPTURE(One_Position, Watt, "watt");
BENCHMARK_CAPTURE(One_Position, Stephenson, "double-dwell");

void Sweep(benchmark::State& state, const char* example, Depth depth) {
    Workload work(example);
    Answer response = Answer::None;
    for (auto _ : state) {
        Run_Sweep(*work.program, 3, response, depth);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * (MaxSteps + 1));
}
BENCHMARK_CAPTURE(Sweep, Watt, "watt", Depth::All);
BENCHMARK_CAPTURE(Sweep, Watt_Speeds, "watt", Depth::Speeds);
BENCHMARK_CAPTURE(Sweep, Watt_Angles, "watt", Depth::Angles);
BENCHMARK_CAPTURE(Sweep, Stephenson, "double-dwell", Depth::All);
BENCHMARK_CAPTURE(Sweep, Stephenson_Speeds, "double-dwell", Depth::Speeds);
BENCHMARK_CAPTURE(Sweep, Stephenson_Angles, "double-dwell", Depth::Angles);

using Kernel = void (*)(const LinkageModel&, double, double, int, double*);

void Floor(benchmark::State& state, const char* example, Kernel kernel) {
    Workload work(example);
    LinkageModel& model = work.program->model;
    model.Omega2 = model.Omega2Start;
    constexpr int kRows = MaxSteps + 1;
    std::vector<double> out(std::size_t{kRows} * kFloorOutputs);
    for (auto _ : state) {
        kernel(model, model.ThetaMin, model.ThetaStep, kRows, out.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kRows);
}
BENCHMARK_CAPTURE(Floor, Watt, "watt", Floor_Watt);
BENCHMARK_CAPTURE(Floor, Stephenson, "double-dwell", Floor_Stephenson);

}  // namespace
}  // namespace kervol::bench
