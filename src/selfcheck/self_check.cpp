// SPDX-License-Identifier: GPL-3.0-or-later
#include "selfcheck/self_check.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/arithmetic.h"
#include "core/model_questions.h"
#include "selfcheck/step_rounding.h"

namespace kervol {
namespace {

/// The two ways are double precision throughout and near a dead centre lose a few more digits.
constexpr double kWaysAgree = 1e-8;

/// Crank motion of each step: by the rules of the tables, and as the drive of the model has it.
class CrankOfSteps {
  public:
    CrankOfSteps(const LinkageModel& model, const ResultTables& tables)
        : model_(model), tables_(tables), time_(model.TimeStart) {}

    /// Steps come in their order, each once.
    void Put(int step, RowInput& row) {
        const double start = model_.Omega2Start;
        switch (model_.CalcMode) {
            case 1:
                row.crank = {start, model_.Alpha2};
                row.true_alpha = model_.Alpha2Const;
                break;
            case 2:
                row.crank = {Single(double(model_.Alpha2Const) * time_ + start), model_.Alpha2};
                row.true_alpha = model_.Alpha2Const;
                time_ = Single(double(time_) + model_.TimeStep);
                break;
            case 3:
                row.crank = {start, model_.Alpha2};
                row.true_alpha = 0;
                break;
            default:
                row.crank = {tables_.Omega(step, 0), tables_.Alpha(step, 0)};
                row.true_alpha = row.crank.alpha;
        }
    }

  private:
    const LinkageModel& model_;
    const ResultTables& tables_;
    float time_;
};

double Difference(const Quantity& quantity, const RowValues& left, const RowValues& right) {
    const Vec difference = quantity.Of(left) - quantity.Of(right);
    return std::hypot(difference.x, difference.y);
}

/// As a share of what is allowed; above 1 for a difference that is not.
double Share(double difference, double allowed) {
    if (allowed > 0) return difference / allowed;
    return difference > 0 ? std::numeric_limits<double>::infinity() : 0;
}

void Note_Rule(CheckedValue& check, const CheckedStep& row, const RowValues& expected, double allowed) {
    const double difference = Difference(check.quantity, row.tabulated, expected);
    LargestDifference& largest = check.from_rule;
    if (difference > allowed) ++check.steps_differing;
    const bool is_larger = Share(difference, allowed) > Share(largest.difference, largest.allowed);
    if (largest.step >= 0 && !is_larger) return;
    largest = {row.step, difference, allowed, check.quantity.Size_Of(row.tabulated),
               check.quantity.Size_Of(expected)};
}

void Note_Consistent(CheckedValue& check, const CheckedStep& row, double allowed) {
    const double difference = Difference(check.quantity, row.tabulated, row.consistent);
    if (difference > allowed && check.verdict == Verdict::Agrees) check.verdict = Verdict::OnPurpose;
    LargestDifference& largest = check.from_consistent;
    if (largest.step >= 0 && difference <= largest.difference) return;
    largest = {row.step, difference, allowed, check.quantity.Size_Of(row.tabulated),
               check.quantity.Size_Of(row.consistent)};
}

/// One sweep under check.
class Run {
  public:
    Run(const LinkageModel& model, SelfCheck& result)
        : model_(model), result_(result), quantities_(Quantities_Of(model)) {
        for (const Quantity& quantity : quantities_)
            result.checks.push_back({quantity, Verdict::Agrees, {}, {}});
        for (const Deviation deviation : AllDeviations) result.effects.push_back({deviation});
    }

    void Add(int step, const RowInput& input) {
        const auto rule = Step_With_Rounding(model_, input, Rules::Tabulated(), quantities_);
        const auto consistent = Step_With_Rounding(model_, input, Rules::Consistent(), quantities_);
        if (!rule || !consistent) return result_.left_out.push_back(step);
        result_.steps.push_back({step, input.degrees(0), input.tabulated, consistent->values});
        const CheckedStep& row = result_.steps.back();
        for (std::size_t i = 0; i < quantities_.size(); ++i) {
            if (quantities_[i].needs_forces && !input.has_forces) continue;
            Note_Rule(result_.checks[i], row, rule->values, rule->allowed[i]);
            Note_Consistent(result_.checks[i], row, rule->allowed[i] + consistent->allowed[i]);
        }
        if (model_.LinkageType == "S") Note_Speed_Sine(step, input);
        if (!input.has_forces) return;
        ++result_.steps_with_forces;
        Note_Ways(row, input);
        Note_Effects(row, input, *consistent);
    }

  private:
    void Note_Speed_Sine(int step, const RowInput& input) {
        const double sum = input.degrees(4) + input.degrees(5) - 2.0 * model_.GroundAngleDeg;
        const double sine = std::abs(std::sin(sum * RadiansPerDegree));
        if (result_.least_speed_step >= 0 && sine >= result_.least_speed_sine) return;
        result_.least_speed_sine = sine;
        result_.least_speed_step = step;
    }

    void Note_Ways(const CheckedStep& row, const RowInput& input) {
        const auto work = Torque_By_Work(model_, input);
        if (!work || Is_Zero(work->gross)) return;
        const double share = std::abs(row.consistent.torque(0) - work->torque) / work->gross;
        result_.torque_ways_differ = std::max(result_.torque_ways_differ, share);
    }

    void Note_Effects(const CheckedStep& row, const RowInput& input, const StepWithRounding& consistent) {
        const auto torque = std::find_if(quantities_.begin(), quantities_.end(),
                                         [](const Quantity& q) { return q.name == "Torque 12"; });
        const double allowed = consistent.allowed[static_cast<std::size_t>(torque - quantities_.begin())];
        for (DeviationEffect& effect : result_.effects) {
            const auto values = Row_By_Rules(model_, input, Rules::Only(effect.deviation));
            if (!values) continue;
            const double change = values->torque(0) - row.consistent.torque(0);
            if (std::abs(change) <= std::max(allowed, std::abs(effect.torque_change))) continue;
            effect.torque_change = change;
            effect.step = row.step;
        }
    }

    const LinkageModel& model_;
    SelfCheck& result_;
    const std::vector<Quantity> quantities_;
};

void Close_Verdicts(SelfCheck& result) {
    for (CheckedValue& check : result.checks)
        if (check.steps_differing > 0) check.verdict = Verdict::Differs;
    std::erase_if(result.checks, [](const CheckedValue& check) { return check.from_rule.step < 0; });
}

/// Means over the steps by the trapezoidal rule, so that the two ends of a full turn count once. A step
/// without neighbours counts as a whole.
DriveNeeds Needs_Of(const SelfCheck& result, RowValues CheckedStep::*of) {
    DriveNeeds needs;
    const auto& steps = result.steps;
    const auto count = static_cast<std::size_t>(result.steps_with_forces);
    double weights = 0, squares = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double torque = (steps[i].*of).torque(0);
        const double power = (steps[i].*of).power;
        const bool before = i > 0 && steps[i - 1].step == steps[i].step - 1;
        const bool behind = i + 1 < count && steps[i + 1].step == steps[i].step + 1;
        const double weight = !before && !behind ? 1 : 0.5 * (before + behind);
        if (needs.peak_step < 0 || std::abs(torque) > std::abs(needs.peak_torque)) {
            needs.peak_torque = torque;
            needs.peak_step = steps[i].step;
        }
        if (std::abs(power) > std::abs(needs.peak_power)) needs.peak_power = power;
        weights += weight;
        squares += weight * torque * torque;
        needs.mean_torque += weight * torque;
        needs.mean_power += weight * power;
    }
    if (Is_Zero(weights)) return needs;
    needs.rms_torque = std::sqrt(squares / weights);
    needs.mean_torque /= weights;
    needs.mean_power /= weights;
    return needs;
}

}  // namespace

int SelfCheck::Count(Verdict verdict) const {
    return static_cast<int>(std::count_if(
        checks.begin(), checks.end(), [&](const CheckedValue& check) { return check.verdict == verdict; }));
}

bool SelfCheck::Tables_Hold() const {
    return Count(Verdict::Differs) == 0 && torque_ways_differ <= kWaysAgree;
}

SelfCheck Check_Results(const LinkageModel& model, const ResultTables& tables, int solved_steps) {
    SelfCheck result;
    Run run(model, result);
    CrankOfSteps crank(model, tables);
    const int last = Last_Step(model);
    for (int step = 0; step <= last; ++step) {
        RowInput input = Tabulated_Row(model, tables, step, Has_Stage2(model) && step < solved_steps);
        crank.Put(step, input);
        // The last row of a range that its steps do not divide is calculated twice.
        input.was_cleared = model.CalcMode == 3 && step < last;
        if (!tables.StepValid(step))
            ++result.not_assembled;
        else
            run.Add(step, input);
    }
    Close_Verdicts(result);
    result.tabulated_drive = Needs_Of(result, &CheckedStep::tabulated);
    result.consistent_drive = Needs_Of(result, &CheckedStep::consistent);
    return result;
}

int Steps_With_Forces(const LinkageModel& model, const ResultTables& tables) {
    if (!model.DynamicsCalculated) return 0;
    int step = 0;
    const int last = Last_Step(model);
    while (step <= last && tables.StepValid(step)) ++step;
    return step;
}

}  // namespace kervol
