// SPDX-License-Identifier: GPL-3.0-or-later
// The linkage at any crank angle of a full turn, and the angles at which something about it changes.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "core/model.h"

namespace kervol {

/// How one stage stands at a crank angle.
struct StageProbe {
    bool closes = false;
    /// Between the far ends of coupler and output; not known where the stage before does not close.
    std::optional<double> distance;
    double along = 0;   ///< speed of the coupler's driven end along the coupler: 0 at a dead centre
    double acute = 0;   ///< between coupler and output, degrees
    double output = 0;  ///< angle of the output, degrees, local frame
};

/// Angles are in degrees, local frame.
struct Probe {
    double crank = 0;
    std::array<StageProbe, 2> stage;

    /// The stage that does not close, 1 or 2; 0 where all do.
    int Failing(int stages) const;
};

class CrankCircle {
  public:
    /// Raises the fault of a model that has no position at all (a length of 0).
    explicit CrankCircle(const LinkageModel& model);

    /// A position with a fault counts as one that does not close.
    Probe At(double crank) const;
    int Stages() const { return stages_; }
    /// What coupler and output of a stage (0 or 1) span: sum and difference of their lengths.
    double Sum(std::size_t stage) const;
    double Difference(std::size_t stage) const;
    /// Length by which a distance fits a stage; negative where it does not.
    double Margin(const StageProbe& probe, std::size_t stage) const;

    /// Positions round the turn, ascending from 0: every tenth of a degree, and between two of them where a
    /// loop closes or opens only there.
    std::vector<Probe> Positions() const;

    using Value = std::function<double(const Probe&)>;
    /// The position between two at which a state changes, on the side that has the state of the first.
    Probe Change(Probe first, Probe second, const std::function<bool(const Probe&)>& state) const;
    /// The position of the least value between two.
    Probe Least(double first, double second, const Value& value) const;

  private:
    LinkageModel model_;
    int stages_;
};

}  // namespace kervol
