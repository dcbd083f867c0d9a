// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/torque_analysis.h"

#include <algorithm>

#include "fourier/transform.h"

namespace kervol {
namespace {

constexpr int kMagnitude = 2;  // column of `FFTTable`
constexpr int kShownHarmonics = 20;
constexpr std::int16_t kFewestSamples = 4;

}  // namespace

TorqueAnalysis::TorqueAnalysis(const Program& program, int solved_steps)
    : copy_(std::make_unique<Program>(port_)) {
    copy_->model = program.model;
    copy_->tables = program.tables;
    copy_->catalogue = program.catalogue;
    LinkageModel& model = copy_->model;
    if (!model.DynamicsCalculated) return;
    model.FlywheelCalculated = false;
    if (model.CalcMode != 3 || model.NumSteps < kFewestSamples || solved_steps <= model.NumSteps) return;
    Size_Flywheel(*copy_, flywheel_);
    Transform_Function(*copy_, "Torque 12", "Mag");
    if (!copy_->fourier.FFTReady) return;
    const int shown = std::min<int>(copy_->fourier.FFTHalf, kShownHarmonics + 1);
    for (int harmonic = 0; harmonic < shown; ++harmonic)
        spectrum_.push_back(copy_->tables.FFTTable(harmonic, kMagnitude));
}

std::vector<MessageBox> TorqueAnalysis::Boxes() const {
    std::vector<MessageBox> boxes;
    for (const auto& shown : port_.messages) boxes.push_back(shown.box);
    return boxes;
}

}  // namespace kervol
