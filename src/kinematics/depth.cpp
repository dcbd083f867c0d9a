// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/depth.h"

#include <algorithm>
#include <cmath>

#include "core/model_questions.h"

namespace kervol {
namespace {

// With these limits the speeds of Stage 1 stay below 1e8 rad/s and its accelerations below 1e21 rad/s^2;
// those of Stage 2 below 1e12 and 1e31, and what a point does, at most some 1e6 times as much, below 1e38: a
// single reaches 3.4e38.
constexpr double kLongest = 1e6, kShortest = 1e-4;
constexpr double kLongestByShortest = 100;
constexpr double kFastest = 1e4;                // rad/s
constexpr double kGreatestAcceleration = 1e10;  // rad/s^2
constexpr double kFastestStephenson = 1e8;      // rad/s
constexpr double kLeastSine = 0.01;

}  // namespace

Depth Safe_Depth(const LinkageModel& model, Depth wanted) {
    if (!Has_Stage2(model)) return Depth::All;
    const bool watt = model.LinkageType == "W";
    // By these the closed form divides. The input line of a Stephenson chain changes with the position.
    const auto [shortest, longest_divisor] = std::minmax({model.Link2, model.Link3, model.Link4, model.Link5,
                                                          model.Link6, watt ? model.LinkO4D : model.Link5});
    const double longest =
        std::max({double(longest_divisor), std::abs(double(model.Link1)), std::abs(double(model.CouplerAC)),
                  std::abs(double(model.Coupler2Length)), std::abs(double(model.O6LocalX)),
                  std::abs(double(model.O6LocalY))});
    const bool safe =
        shortest >= kShortest && longest <= kLongest && longest <= kLongestByShortest * shortest;
    return safe ? wanted : Depth::All;
}

bool Is_Ordinary_Crank(double omega2, double alpha2) {
    return std::abs(omega2) <= kFastest && std::abs(alpha2) <= kGreatestAcceleration;
}

bool Is_Ordinary_Loop(const ToggleSines& toggle) {
    return std::abs(toggle.coupler_output) >= kLeastSine;
}

bool Are_Ordinary_Rates(double sine5, double divisor, const CouplerOutput& omega) {
    return std::abs(sine5) >= kLeastSine && std::abs(divisor) >= kLeastSine &&
           std::abs(omega.coupler) <= kFastestStephenson && std::abs(omega.output) <= kFastestStephenson;
}

}  // namespace kervol
