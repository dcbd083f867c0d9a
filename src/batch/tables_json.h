// SPDX-License-Identifier: GPL-3.0-or-later
// The model and its result tables as one JSON object.
#pragma once

#include <string>

#include "core/program.h"
#include "dynamics/crank_torque_areas.h"
#include "headless/recording_port.h"

namespace kervol {

/// What stands behind the kinematic tables where it was asked for.
struct FurtherTables {
    bool dynamics = false;
    const CrankTorqueAreas* flywheel = nullptr;
    bool spectrum = false;
};

std::string Tables_Json(const Program& program, const RecordingPort& port, const FurtherTables& further);

}  // namespace kervol
