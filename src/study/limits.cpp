// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/limits.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <tuple>

#include "core/arithmetic.h"
#include "core/constants.h"
#include "study/crank_circle.h"

namespace kervol {
namespace {

constexpr double kTurn = 360;
/// Ranges below this are not told from a single position.
constexpr double kResolution = 0.01;
/// Share of the greatest speed along a coupler that still counts as none.
constexpr double kStandstill = 1e-3;
/// What two angles may differ by where they are the ends of one turn.
constexpr double kRounding = 1e-9;

using Positions = std::vector<Probe>;

double Within_Turn(double degrees) {
    const double rest = std::fmod(degrees, kTurn);
    return rest < 0 ? rest + kTurn : rest;
}

/// Neighbouring positions with the same failing stage; 0 is usable. Local frame, ascending through one turn;
/// the first may begin below 0.
struct Run {
    int failing;
    double from, to;

    double Width() const { return to - from; }
};

std::vector<Run> Runs_Of(const CrankCircle& circle, const Positions& positions) {
    const auto failing = [&](const Probe& probe) { return probe.Failing(circle.Stages()); };
    std::vector<Run> runs = {{failing(positions.front()), 0, 0}};
    for (std::size_t i = 1; i < positions.size(); ++i) {
        Probe first = positions[i - 1];
        const Probe& second = positions[i];
        while (failing(first) != failing(second)) {
            const int before = failing(first);
            const Probe last =
                circle.Change(first, second, [&](const Probe& probe) { return failing(probe) == before; });
            runs.back().to = last.crank;
            first = circle.At(std::min(last.crank + kResolution / 100, second.crank));
            if (first.crank >= second.crank) first = second;
            runs.push_back({failing(first), first.crank, first.crank});
        }
        runs.back().to = second.crank;
    }
    if (runs.size() > 1 && runs.front().failing == runs.back().failing) {
        runs.front().from = runs.back().from - kTurn;
        runs.pop_back();
    }
    return runs;
}

/// Analysis of one linkage.
class LimitFinder {
  public:
    explicit LimitFinder(const LinkageModel& model)
        : model_(model),
          circle_(model),
          positions_(circle_.Positions()),
          runs_(Runs_Of(circle_, positions_)) {}

    Limits Find() {
        Limits limits;
        limits.stages.resize(static_cast<std::size_t>(circle_.Stages()));
        Take_Out_Narrow_Runs(limits);
        for (std::size_t stage = 0; stage < limits.stages.size(); ++stage) {
            StageLimits& found = limits.stages[stage];
            Put_Usable(stage, found);
            Put_Obstacles(stage, found);
            Put_Dead_Centres(stage, found);
            Put_Transmission(stage, found);
            Put_Driven(stage, found);
        }
        return limits;
    }

  private:
    double User(double local) const { return Within_Turn(local + model_.GroundAngleDeg); }

    /// The range of a run in the user frame, its ends on the side given by `inwards`.
    CrankRange User_Range(const Run& run) const {
        if (run.Width() >= kTurn - kResolution) return {0, kTurn};
        const double from = std::ceil((run.from + model_.GroundAngleDeg) / kResolution - kRounding);
        const double to = std::floor((run.to + model_.GroundAngleDeg) / kResolution + kRounding);
        const double start = Within_Turn(from * kResolution);
        return {std::round(start / kResolution) * kResolution,
                std::round(start / kResolution) * kResolution + std::max(to - from, 0.0) * kResolution};
    }

    /// What is too narrow for a range belongs to its neighbour. Where a stage does not close there, but on
    /// both sides, its links stand in line.
    void Take_Out_Narrow_Runs(Limits& limits) {
        const std::size_t count = runs_.size();
        for (std::size_t i = 0; i < count; ++i) {
            Run& run = runs_[i];
            if (run.Width() >= kResolution) continue;
            const Run& before = runs_[(i + count - 1) % count];
            const Run& behind = runs_[(i + 1) % count];
            const auto stage = static_cast<std::size_t>(run.failing) - 1;
            if (run.failing > 0 && Closes(before, stage) && Closes(behind, stage)) {
                const double at = User((run.from + run.to) / 2);
                limits.stages[stage].obstacles.push_back({run.failing, Misfit::InLine, {at, at}, 0, 0, at});
            }
            run.failing = before.failing;
        }
    }

    bool Closes(const Run& run, std::size_t stage) const {
        return run.failing == 0 || run.failing > static_cast<int>(stage) + 1;
    }

    /// Joins neighbouring runs that are alike, round the turn.
    template <class Alike>
    std::vector<Run> Joined(Alike&& alike) const {
        std::vector<Run> joined;
        bool open = false;
        for (const Run& run : runs_) {
            if (!alike(run)) {
                open = false;
                continue;
            }
            if (open)
                joined.back().to = run.to;
            else
                joined.push_back(run);
            open = true;
        }
        const bool round = joined.size() > 1 && alike(runs_.front()) && alike(runs_.back());
        if (round) {
            joined.back().to = joined.front().to + kTurn;
            joined.erase(joined.begin());
        }
        return joined;
    }

    void Put_Usable(std::size_t stage, StageLimits& found) const {
        for (const Run& run : Joined([&](const Run& each) { return Closes(each, stage); }))
            if (run.Width() >= kResolution) found.usable.push_back(User_Range(run));
    }

    void Put_Obstacles(std::size_t stage, StageLimits& found) const {
        const int number = static_cast<int>(stage) + 1;
        for (const Run& run : Joined([&](const Run& each) { return each.failing == number; })) {
            const Probe* worst = nullptr;
            for (const Probe& probe : positions_) {
                if (!Is_In(run, probe.crank) || !probe.stage[stage].distance) continue;
                if (worst == nullptr || Margin(probe, stage) < Margin(*worst, stage)) worst = &probe;
            }
            if (worst == nullptr) continue;
            const double distance = *worst->stage[stage].distance;
            const bool too_short = distance > circle_.Sum(stage);
            const bool too_long = distance < circle_.Difference(stage);
            const Misfit why = too_short ? Misfit::TooShort : too_long ? Misfit::TooLong : Misfit::InLine;
            const double reach = too_short ? circle_.Sum(stage) : circle_.Difference(stage);
            found.obstacles.push_back({number, why, User_Range(run), reach, distance, User(worst->crank)});
        }
    }

    static bool Is_In(const Run& run, double crank) {
        for (const double turn : {-kTurn, 0.0, kTurn})
            if (crank + turn >= run.from && crank + turn <= run.to) return true;
        return false;
    }

    double Margin(const Probe& probe, std::size_t stage) const {
        return circle_.Margin(probe.stage[stage], stage);
    }

    void Put_Dead_Centres(std::size_t stage, StageLimits& found) const {
        double fastest = 0;
        for (const Probe& probe : positions_) fastest = std::max(fastest, std::abs(probe.stage[stage].along));
        const auto backwards = [&](const Probe& probe) { return probe.stage[stage].along < 0; };
        for (std::size_t i = 1; i < positions_.size(); ++i) {
            const Probe &first = positions_[i - 1], &second = positions_[i];
            if (!first.stage[stage].closes || !second.stage[stage].closes) continue;
            if (backwards(first) == backwards(second)) continue;
            const Probe at = circle_.Change(first, second, backwards);
            // Where a loop passes through a line it may jump from one side to the other.
            if (std::abs(at.stage[stage].along) > kStandstill * fastest) continue;
            found.dead_centres.push_back({User(at.crank), User(at.stage[stage].output)});
        }
    }

    /// The least acute angle among the positions and near the one that has it, of those that count; with the
    /// sign -1 the greatest.
    std::optional<Transmission> Extreme(std::size_t stage, double sign, const Positions& positions,
                                        const std::function<bool(const Probe&)>& counts) const {
        const auto value = [&](const Probe& probe) {
            return probe.stage[stage].closes && counts(probe) ? sign * probe.stage[stage].acute : kTurn;
        };
        const auto best =
            std::min_element(positions.begin(), positions.end(),
                             [&](const Probe& a, const Probe& b) { return value(a) < value(b); });
        if (value(*best) >= kTurn) return std::nullopt;
        const double step = kTurn / static_cast<double>(positions_.size());
        const Probe refined = circle_.Least(best->crank - step, best->crank + step, value);
        const Probe& chosen = value(refined) < value(*best) ? refined : *best;
        return Transmission{chosen.stage[stage].acute, User(chosen.crank)};
    }

    void Put_Transmission(std::size_t stage, StageLimits& found) const {
        const auto everywhere = [](const Probe&) { return true; };
        found.least = Extreme(stage, 1, positions_, everywhere);
        found.greatest = Extreme(stage, -1, positions_, everywhere);
        // A stage that reaches its limit is in line there.
        for (const Obstacle& obstacle : found.obstacles)
            if (found.least && obstacle.why != Misfit::InLine)
                found.least = {0, Within_Turn(obstacle.range.from)};
    }

    void Put_Driven(std::size_t stage, StageLimits& found) const {
        const auto drive = Driven_Range(model_);
        if (!drive) return;
        Positions positions = positions_;
        for (const double end : {drive->from, drive->to})
            positions.push_back(circle_.At(Within_Turn(end - model_.GroundAngleDeg)));
        found.least_driven = Extreme(stage, 1, positions, [&](const Probe& probe) {
            return Holds(*drive, probe.crank + model_.GroundAngleDeg);
        });
        for (const Obstacle& obstacle : found.obstacles)
            for (const double end : {obstacle.range.to, obstacle.range.from})
                if (found.least_driven && obstacle.why != Misfit::InLine && Holds(*drive, end))
                    found.least_driven = {0, Within_Turn(end)};
    }

    const LinkageModel& model_;
    const CrankCircle circle_;
    const Positions positions_;
    std::vector<Run> runs_;
};

}  // namespace

bool Is_Full_Turn(const CrankRange& range) {
    return range.Width() >= kTurn - kResolution;
}

bool Holds(const CrankRange& range, double crank) {
    const double beyond = Within_Turn(crank - range.from);
    return Is_Full_Turn(range) || beyond <= range.Width() + kRounding || beyond >= kTurn - kRounding;
}

std::optional<CrankRange> Driven_Range(const LinkageModel& model) {
    double low = model.Theta2One, high = low;
    if (model.CalcMode == 2) {
        const double speed = model.Omega2Start, acceleration = model.Alpha2Const;
        const auto [first, last] = std::minmax({double(model.TimeStart), double(model.TimeEnd)});
        const auto take = [&](double t) {
            const double turned = (speed + acceleration * t / 2) * t * DegreesPerRadian + model.Theta2One;
            low = std::min(low, turned);
            high = std::max(high, turned);
        };
        low = std::numeric_limits<double>::infinity();
        high = -low;
        take(first);
        take(last);
        // There it turns back.
        if (!Is_Zero(acceleration)) take(std::clamp(-speed / acceleration, first, last));
    } else if (model.CalcMode == 3) {
        std::tie(low, high) = std::minmax({double(model.ThetaMinDeg), double(model.ThetaMaxDeg)});
    } else if (model.CalcMode != 1) {
        return std::nullopt;
    }
    const double from = Within_Turn(low);
    return CrankRange{from, from + std::min(high - low, kTurn)};
}

Limits Find_Limits(const LinkageModel& model) {
    Limits limits = LimitFinder(model).Find();
    limits.warnings = Limit_Warnings(model, limits);
    return limits;
}

}  // namespace kervol
