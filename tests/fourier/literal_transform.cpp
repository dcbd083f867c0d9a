// SPDX-License-Identifier: GPL-3.0-or-later
#include "fourier/literal_transform.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <memory>
#include <random>

#include "catalogue/lists.h"
#include "catalogue/names.h"
#include "catalogue/selection.h"
#include "catalogue/table_rows.h"
#include "dynamics/crank_torque_areas.h"
#include "dynamics/solve_forces.h"
#include "headless/recording_port.h"
#include "kinematics/examples.h"
#include "kinematics/step_count.h"
#include "startup/launch.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

bool Is_0(double value) {
    return !(value < 0) && !(value > 0);
}

}  // namespace

Spectrum Literal_Transform(const std::vector<float>& samples) {
    const int N = static_cast<int>(samples.size());
    std::vector<std::array<double, 4>> work(samples.size() + 2);
    for (int k = 1; k <= N; ++k) {
        auto& row = work.at(static_cast<std::size_t>(k));
        for (int n = 1; n <= N; ++n) {
            const double x = samples.at(static_cast<std::size_t>(n - 1));
            const double a = ((k - 1) * 6.283185308) * (n - 1) / N;
            row[0] = row[0] + x * std::cos(a) / N;
            row[1] = row[1] - x * std::sin(a) / N;
            if (std::fabs(static_cast<float>(row[0])) < 1e-5F) row[0] = 0;
            if (std::fabs(static_cast<float>(row[1])) < 1e-5F) row[1] = 0;
        }
        row[2] = std::sqrt(row[1] * row[1] + row[0] * row[0]);
        const double re = static_cast<float>(row[0]), im = static_cast<float>(row[1]);
        double phase = Is_0(im) ? 0 : 1.570796327;
        if (!Is_0(re)) phase = std::atan(im / re);
        row[3] = phase * 57.29577950560105;
    }
    const int half = static_cast<int>(std::floor(N / 2.0 + 0.5));
    Spectrum table(static_cast<std::size_t>(half));
    for (std::size_t n = 0; n < table.size(); ++n)
        for (std::size_t c = 0; c < 4; ++c)
            table[n][c] = static_cast<float>(n == 0 ? work[1][c] : work[n + 1][c] + work[n + 1][c]);
    return table;
}

Spectrum Stored_Spectrum(const Program& program) {
    Spectrum table(static_cast<std::size_t>(std::max<int>(program.fourier.FFTHalf, 0)));
    for (std::size_t n = 0; n < table.size(); ++n)
        for (std::size_t c = 0; c < 4; ++c)
            table[n][c] = program.tables.FFTTable(static_cast<int>(n), static_cast<int>(c));
    return table;
}

int Differences(const Spectrum& left, const Spectrum& right) {
    EXPECT_EQ(left.size(), right.size());
    int count = 0;
    for (std::size_t n = 0; n < std::min(left.size(), right.size()); ++n)
        for (std::size_t c = 0; c < 4; ++c)
            count += std::bit_cast<std::uint32_t>(left[n][c]) != std::bit_cast<std::uint32_t>(right[n][c]);
    return count;
}

std::vector<float> Cosine(int N, int cycles, double amplitude, double degrees) {
    constexpr double kExactPi = 3.14159265358979323846;
    std::vector<float> samples;
    for (int n = 0; n < N; ++n)
        samples.push_back(static_cast<float>(
            amplitude * std::cos(2 * kExactPi * cycles * n / N + degrees * kExactPi / 180)));
    return samples;
}

std::vector<float> Noise(int N, unsigned seed, double size) {
    std::mt19937 random(seed);
    std::vector<float> samples;
    for (int n = 0; n < N; ++n)
        samples.push_back(static_cast<float>(size * (static_cast<double>(random()) / 2147483648.0 - 1)));
    return samples;
}

std::vector<Signal> Example_Signals() {
    std::vector<Signal> signals;
    for (const Example& example : Examples()) {
        RecordingPort port;
        const auto program = std::make_unique<Program>(port);
        Start_Fresh(*program);
        Load_Example(program->model, example);
        Calculate_Model(*program);
        Run_Dynamics(*program);
        FlywheelSizing sizing;
        Size_Flywheel(*program, sizing);
        Change_Catalog_Labels(program->catalogue, program->model.LinkageType);
        ComboBox functions;
        Load_Variables(*program, functions);
        EXPECT_EQ(functions.items.size(), 65U);
        for (const std::string& function : functions.items) {
            Set_Selection(program->catalogue, program->selections, function, 1);
            const int components = program->selections.SelScalar ? 1 : 4;
            for (int component = 0; component < components; ++component) {
                program->selections.SelComp(1) = static_cast<std::int16_t>(component);
                Signal signal{std::string(example.name) + " " + function + " " + std::to_string(component),
                              {}};
                for (std::int16_t step = 1; step <= program->model.NumSteps; ++step)
                    signal.samples.push_back(Value_At(*program, step, 1));
                signals.push_back(std::move(signal));
            }
        }
    }
    return signals;
}

}  // namespace kervol
