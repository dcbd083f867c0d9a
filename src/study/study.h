// SPDX-License-Identifier: GPL-3.0-or-later
// A design study: every combination of values for some fields of a model, and what each is worth.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/program.h"
#include "kinematics/depth.h"
#include "study/measure.h"
#include "study/variation.h"

namespace kervol {

/// What is varied and what is measured. The first field varies slowest.
struct StudyPlan {
    std::vector<Variation> variations;
    std::vector<Measure> measures;

    /// How many combinations there are; nothing above what 64 bits count.
    std::optional<std::uint64_t> Combinations() const;
};

/// One combination.
struct StudyRow {
    std::uint64_t number = 0;
    std::string outcome;        ///< "ok", or why there are no values
    std::vector<float> values;  ///< of the measures; empty where it failed
    int steps = 0;              ///< positions that were solved for it

    bool Is_Ok() const { return !values.empty(); }
};

/// Solves combinations one after the other on a program of its own. `base` is the model as it was read, with
/// its imported drive or torque; the port must answer a cannot-assemble box with Ignore.
class StudySolver {
  public:
    StudySolver(const StudyPlan& plan, const Program& base, std::unique_ptr<Port> port);

    /// With the numbers that the tables of a model with these values hold, bit for bit.
    StudyRow Solve(std::uint64_t number);

  private:
    void Set_Model(std::uint64_t number);
    /// Why there is nothing to measure; empty where there is.
    std::string Calculate();
    std::string Add_Forces();

    const StudyPlan& plan_;
    const Program& base_;
    std::unique_ptr<Port> port_;
    std::unique_ptr<Program> program_;
    Depth depth_ = Depth::Angles;
    Scope scope_ = Scope::Motion;
    std::vector<float> series_;
};

/// The study as comma-separated values, lines ended with CR LF: fields, measures, outcome.
std::string Study_Heads(const StudyPlan& plan);
std::string Study_Line(const StudyPlan& plan, const StudyRow& row);

}  // namespace kervol
