// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/crank_circle.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "core/arithmetic.h"
#include "core/constants.h"
#include "core/model_questions.h"
#include "kinematics/stage1.h"
#include "kinematics/stage2.h"

namespace kervol {
namespace {

constexpr int kPositions = 3600;
constexpr double kTurn = 360;
/// As near as a crank angle in single precision can be told.
constexpr double kNear = 2e-5;

double Length(Vec vector) {
    return std::hypot(vector.x, vector.y);
}

/// The angle between two lines, whatever their direction: 0 to 90 degrees.
double Acute_Degrees(double angle) {
    const double folded = std::fmod(std::abs(angle), std::numbers::pi);
    return std::min(folded, std::numbers::pi - folded) * DegreesPerRadian;
}

void Put_Links(StageProbe& probe, Vec driven_end, double coupler, double output) {
    probe.closes = true;
    probe.along = driven_end.x * std::cos(coupler) + driven_end.y * std::sin(coupler);
    probe.acute = Acute_Degrees(output - coupler);
    probe.output = output * DegreesPerRadian;
}

/// From the pivot of link 6 to the driven end of link 5.
Vec From_O6(const LinkageModel& model, const Stage1& stage1) {
    if (model.LinkageType == "S")
        return stage1.C.position + Vec{-double(model.O6LocalX), -double(model.O6LocalY)};
    return Arm(Watt_Input(model, stage1.theta4)).Position() + Vec{-double(model.O4O6X), -double(model.O4O6Y)};
}

void Probe_Stage2(const LinkageModel& model, const Stage1& stage1, StageProbe& probe) {
    probe.distance = Length(From_O6(model, stage1));
    const auto stage2 =
        model.LinkageType == "W" ? Solve_Watt(model, stage1) : Solve_Stephenson(model, stage1);
    if (stage2) Put_Links(probe, stage2->start.velocity, stage2->theta5, stage2->theta6);
}

}  // namespace

int Probe::Failing(int stages) const {
    for (int number = 1; number <= stages; ++number)
        if (!stage[static_cast<std::size_t>(number) - 1].closes) return number;
    return 0;
}

CrankCircle::CrankCircle(const LinkageModel& model) : model_(model) {
    const bool watt = model.LinkageType == "W";
    stages_ = Has_Stage2(model) ? 2 : 1;
    model_.Omega2 = 1;
    model_.Alpha2 = 0;
    static_cast<void>(LoopConstants(model.Link2, model.Link3, model.Link4, model.Link1));
    if (stages_ == 1) return;
    // The input line of a Stephenson chain has a length that changes.
    const double input = watt ? model.LinkO4D : model.Link5;
    static_cast<void>(LoopConstants(input, model.Link5, model.Link6, model.O2O6Length));
}

Probe CrankCircle::At(double crank) const {
    LinkageModel model = model_;
    model.Theta2Rad = Single(crank * RadiansPerDegree);
    Probe probe;
    probe.crank = crank;
    const Vec A = Arm(model.Link2, model.Theta2Rad).Position();
    probe.stage[0].distance = Length(A + Vec{-double(model.Link1), 0.0});
    try {
        const auto stage1 = Solve_Stage1(model);
        if (!stage1) return probe;
        Put_Links(probe.stage[0], stage1->A.velocity, stage1->theta3, stage1->theta4);
        if (stages_ == 2) Probe_Stage2(model, *stage1, probe.stage[1]);
    } catch (const Fault&) {
        // What has been found up to here tells which stage it is.
    }
    return probe;
}

double CrankCircle::Sum(std::size_t stage) const {
    return stage == 0 ? double(model_.Link3) + model_.Link4 : double(model_.Link5) + model_.Link6;
}

double CrankCircle::Difference(std::size_t stage) const {
    return std::abs(stage == 0 ? double(model_.Link3) - model_.Link4 : double(model_.Link5) - model_.Link6);
}

double CrankCircle::Margin(const StageProbe& probe, std::size_t stage) const {
    return std::min(Sum(stage) - *probe.distance, *probe.distance - Difference(stage));
}

std::vector<Probe> CrankCircle::Positions() const {
    std::vector<Probe> grid;
    for (int i = 0; i <= kPositions; ++i) grid.push_back(At(i * kTurn / kPositions));
    std::vector<Probe> between;
    for (std::size_t stage = 0; stage < static_cast<std::size_t>(stages_); ++stage)
        for (std::size_t i = 0; i < kPositions; ++i) {
            const std::array<const Probe*, 3> three = {&grid[i == 0 ? kPositions - 1 : i - 1], &grid[i],
                                                       &grid[i + 1]};
            if (!std::all_of(three.begin(), three.end(),
                             [&](const Probe* probe) { return probe->stage[stage].distance; }))
                continue;
            const auto margin = [&](const Probe& probe) { return Margin(probe.stage[stage], stage); };
            // Towards the other side: the least margin of a loop that closes, the greatest of one that does
            // not.
            const double side = margin(*three[1]) >= 0 ? 1 : -1;
            const double middle = side * margin(*three[1]);
            if (side * margin(*three[0]) < middle || side * margin(*three[2]) < middle) continue;
            const auto value = [&](const Probe& probe) {
                return probe.stage[stage].distance ? side * margin(probe)
                                                   : std::numeric_limits<double>::infinity();
            };
            const double step = kTurn / kPositions;
            Probe found = Least(grid[i].crank - step, grid[i].crank + step, value);
            if (found.stage[stage].closes == three[1]->stage[stage].closes) continue;
            if (found.crank < 0) found = At(found.crank + kTurn);
            between.push_back(found);
        }
    grid.insert(grid.end(), between.begin(), between.end());
    std::sort(grid.begin(), grid.end(),
              [](const Probe& left, const Probe& right) { return left.crank < right.crank; });
    return grid;
}

Probe CrankCircle::Change(Probe first, Probe second, const std::function<bool(const Probe&)>& state) const {
    const bool before = state(first);
    while (second.crank - first.crank > kNear) {
        const Probe middle = At((first.crank + second.crank) / 2);
        (state(middle) == before ? first : second) = middle;
    }
    return first;
}

Probe CrankCircle::Least(double first, double second, const Value& value) const {
    const double golden = (std::sqrt(5.0) - 1) / 2;
    Probe low = At(second - golden * (second - first));
    Probe high = At(first + golden * (second - first));
    while (second - first > kNear) {
        if (value(low) <= value(high)) {
            second = high.crank;
            high = low;
            low = At(second - golden * (second - first));
        } else {
            first = low.crank;
            low = high;
            high = At(first + golden * (second - first));
        }
    }
    return value(low) <= value(high) ? low : high;
}

}  // namespace kervol
