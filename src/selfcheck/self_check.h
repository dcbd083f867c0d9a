// SPDX-License-Identifier: GPL-3.0-or-later
// How far the numbers of the tables can be trusted: each is held against the rule by which the tables are
// filled, and against the mechanics of rigid links. Reads the tables and changes nothing.
#pragma once

#include <optional>
#include <vector>

#include "core/model.h"
#include "core/result_tables.h"
#include "selfcheck/quantities.h"
#include "selfcheck/row_values.h"
#include "selfcheck/rules.h"

namespace kervol {

enum class Verdict {
    Agrees,     ///< with the mechanics, to rounding
    OnPurpose,  ///< with its rule, and differs from the mechanics
    Differs,    ///< from its own rule: the value is damaged, or belongs to another model
};

/// The largest difference over all steps; step -1 where none was compared.
struct LargestDifference {
    int step = -1;
    double difference = 0;
    double allowed = 0;                  ///< what the rounding of the tables can make of it at that step
    double tabulated = 0, expected = 0;  ///< of a vector the magnitudes
};

struct CheckedValue {
    Quantity quantity;
    Verdict verdict = Verdict::Agrees;
    LargestDifference from_rule;        ///< largest as a share of what is allowed
    LargestDifference from_consistent;  ///< largest
    int steps_differing = 0;            ///< from the rule by more than is allowed
};

struct CheckedStep {
    int step;
    double theta2;  ///< degrees, user frame
    RowValues tabulated, consistent;
};

/// Over the steps with forces. Between steps values run straight.
struct DriveNeeds {
    double peak_torque = 0;  ///< with its sign
    int peak_step = -1;
    double rms_torque = 0, mean_torque = 0;
    double peak_power = 0;  ///< with its sign
    double mean_power = 0;
};

/// What one deviation does by itself to the consistent driving torque.
struct DeviationEffect {
    Deviation deviation;
    double torque_change = 0;  ///< largest, with its sign
    int step = -1;             ///< -1 where it changes nothing beyond rounding
};

struct SelfCheck {
    std::vector<CheckedValue> checks;  ///< those that need forces only where there are forces
    std::vector<CheckedStep> steps;
    int steps_with_forces = 0;
    std::vector<int> left_out;  ///< steps at a dead centre, where nothing can be compared
    int not_assembled = 0;

    DriveNeeds tabulated_drive, consistent_drive;
    std::vector<DeviationEffect> effects;  ///< in the order of `AllDeviations`
    /// Between the two ways to the consistent driving torque, equilibrium and work done, as a share of what
    /// adds up to it.
    double torque_ways_differ = 0;
    /// Stage 2 of a Stephenson chain: least size of the sine of angle 5 plus angle 6, local frame, at which
    /// tabulated speeds grow without limit; and its step.
    double least_speed_sine = 1;
    int least_speed_step = -1;

    int Count(Verdict verdict) const;
    /// No value differs from its own rule, and the check itself is sound.
    bool Tables_Hold() const;
};

/// Steps 0 to `NumSteps` of the last sweep, of which the first `solved_steps` have forces.
SelfCheck Check_Results(const LinkageModel& model, const ResultTables& tables, int solved_steps);

/// How many steps have forces, for a caller that did not solve them itself: none, or those before the first
/// that did not assemble, at which a solution may have ended.
int Steps_With_Forces(const LinkageModel& model, const ResultTables& tables);

}  // namespace kervol
