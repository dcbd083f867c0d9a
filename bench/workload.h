// SPDX-License-Identifier: GPL-3.0-or-later
// The programs that the benchmarks run on: an example set to as many steps as the tables hold.
#pragma once

#include <memory>
#include <string_view>

#include "core/program.h"
#include "headless/recording_port.h"
#include "kinematics/examples.h"
#include "startup/launch.h"

namespace kervol::bench {

struct Workload {
    explicit Workload(std::string_view example) : program(std::make_unique<Program>(port)) {
        Start_Fresh(*program);
        program->model.StartingUp = true;
        Load_Example(program->model, *Find_Example(example));
        program->model.ThetaStep = (program->model.ThetaMax - program->model.ThetaMin) / MaxSteps;
        program->model.NumSteps = MaxSteps;
    }

    RecordingPort port;
    std::unique_ptr<Program> program;
};

}  // namespace kervol::bench
