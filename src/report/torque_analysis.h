// SPDX-License-Identifier: GPL-3.0-or-later
// What follows from the driving torque: a flywheel's energies and the spectrum.
#pragma once

#include <memory>
#include <vector>

#include "core/program.h"
#include "dynamics/crank_torque_areas.h"
#include "headless/recording_port.h"

namespace kervol {

/// Computed on a copy of the program, whose own tables and screens stay as they are; boxes go to a list.
class TorqueAnalysis {
  public:
    /// Of a sweep of angles with forces at every step; of any other nothing is computed.
    TorqueAnalysis(const Program& program, int solved_steps);

    const FlywheelSizing& flywheel() const { return flywheel_; }
    /// With the torque under a flywheel of the model's coefficient of fluctuation.
    const Program& program() const { return *copy_; }
    /// Amplitudes of harmonics 0, 1, ...; empty where nothing was computed.
    const std::vector<double>& spectrum() const { return spectrum_; }
    std::vector<MessageBox> Boxes() const;

  private:
    RecordingPort port_;
    std::unique_ptr<Program> copy_;
    FlywheelSizing flywheel_;
    std::vector<double> spectrum_;
};

}  // namespace kervol
