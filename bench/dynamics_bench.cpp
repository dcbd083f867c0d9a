// SPDX-License-Identifier: GPL-3.0-or-later
// The forces of a whole sweep, beside the same run with a general linear solver in place of `SimQ`.
#include <Eigen/LU>

#include "dynamics/force_results.h"
#include "dynamics/solve_forces.h"
#include "kinematics/sweep.h"
#include "workload.h"

#include <benchmark/benchmark.h>

namespace kervol::bench {
namespace {

/// An example, swept, with loads on every link.
struct LoadedSweep : Workload {
    explicit LoadedSweep(std::string_view example) : Workload(example) {
        LinkageModel& model = program->model;
        for (int link = 3; link <= NumLinks; ++link) {
            model.ForceMag(link) = 2.5F;
            model.ForceAngle(link) = 70.0F;
            model.ForcePointDist(link) = 1.5F;
            model.ForcePointAngle(link) = 20.0F;
            model.LinkTorque(link) = -3.0F;
            model.LinkFriction(link) = 0.5F;
        }
        Answer response = Answer::None;
        Run_Sweep(*program, 3, response);
        Run_Dynamics(*program);
    }
};

void Forces(benchmark::State& state, const char* example) {
    LoadedSweep work(example);
    for (auto _ : state) {
        Solve_Forces(*work.program);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * (MaxSteps + 1));
}
BENCHMARK_CAPTURE(Forces, Watt, "watt");
BENCHMARK_CAPTURE(Forces, Stephenson, "double-dwell");

using Matrix15 = Eigen::Matrix<double, NumEquations, NumEquations>;
using Vector15 = Eigen::Matrix<double, NumEquations, 1>;

void Solve_With_Eigen(ForceSystem& system) {
    Matrix15 A;
    Vector15 B;
    for (int i = 1; i <= NumEquations; ++i) {
        B(i - 1) = system.VectorB(i);
        for (int j = 1; j <= NumEquations; ++j) A(i - 1, j - 1) = system.MatrixA(i, j);
    }
    const Vector15 X = A.partialPivLu().solve(B);
    for (int i = 1; i <= NumEquations; ++i) system.VectorB(i) = X(i - 1);
}

void Forces_With_Eigen(benchmark::State& state, const char* example) {
    LoadedSweep work(example);
    Program& program = *work.program;
    for (auto _ : state) {
        for (int step = 0; step <= program.model.NumSteps; ++step) {
            StepEquations equations = Form_Step_Equations(program.model, program.tables, step);
            Solve_With_Eigen(equations.system);
            Put_Force_Results(program.tables, step, equations.loads, equations.system.VectorB);
        }
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * (MaxSteps + 1));
}
BENCHMARK_CAPTURE(Forces_With_Eigen, Watt, "watt");
BENCHMARK_CAPTURE(Forces_With_Eigen, Stephenson, "double-dwell");

/// All but the solution, which both share.
void Equations(benchmark::State& state, const char* example) {
    LoadedSweep work(example);
    Program& program = *work.program;
    for (auto _ : state) {
        for (int step = 0; step <= program.model.NumSteps; ++step) {
            const StepEquations equations = Form_Step_Equations(program.model, program.tables, step);
            Put_Force_Results(program.tables, step, equations.loads, equations.system.VectorB);
        }
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * (MaxSteps + 1));
}
BENCHMARK_CAPTURE(Equations, Watt, "watt");
BENCHMARK_CAPTURE(Equations, Stephenson, "double-dwell");

}  // namespace
}  // namespace kervol::bench
