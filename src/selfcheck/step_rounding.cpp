// SPDX-License-Identifier: GPL-3.0-or-later
#include "selfcheck/step_rounding.h"

#include <algorithm>
#include <cmath>

namespace kervol {
namespace {

/// Of a single: one unit in the last of its 24 binary digits.
constexpr double kUnit = 1.0 / (1 << 23);

/// How many roundings of its own a value has behind it, beside that of the angles: its store, and those of
/// arms, loads, ground link and sines that enter it. Half of this does for 600 random linkages.
constexpr double kRoundings = 4;

/// An angle is rounded as radians, as degrees and with the angle of the ground added, and may have been
/// turned by 360 degrees.
double Angle_Rounding(const LinkageModel& model, double degrees) {
    return kUnit * (std::abs(degrees) + std::abs(double(model.GroundAngleDeg)) + 180);
}

double Size(Vec vector) {
    return std::hypot(vector.x, vector.y);
}

/// The largest numbers of each kind that a step works with.
struct Scales {
    double length = 0, force = 0, moment = 0, omega = 0;
};

Scales Scales_Of(const LinkageModel& model, const RowInput& row, const RowValues& values) {
    Scales scales;
    scales.omega = std::abs(row.crank.omega);
    for (const double length :
         {double(model.Link1), double(model.Link2), double(model.Link3), double(model.Link4),
          double(model.LinkO4D), double(model.Link5), double(model.Link6), double(model.CouplerAC),
          double(model.Coupler2Length), Size(Local_O6(model))})
        scales.length = std::max(scales.length, std::abs(length));
    for (int link = 2; link <= NumLinks; ++link) {
        scales.length = std::max({scales.length, std::abs(double(model.LinkCG(link, 0))),
                                  std::abs(double(model.ForcePointDist(link)))});
        scales.force = std::max({scales.force, std::abs(double(model.ForceMag(link))),
                                 std::abs(double(model.LinkFriction(link)))});
        scales.moment = std::max({scales.moment, std::abs(double(model.LinkTorque(link))),
                                  std::abs(model.LinkInertia(link) * values.alpha(link - 2))});
    }
    for (const Vec& force : values.force) scales.force = std::max(scales.force, Size(force));
    for (const double torque : values.torque) scales.moment = std::max(scales.moment, std::abs(torque));
    scales.moment += scales.force * scales.length + std::abs(row.torque6);
    return scales;
}

double Own_Rounding(const Quantity& quantity, const RowValues& values, const Scales& scales) {
    switch (quantity.scale) {
        case RoundingScale::Length:
            return kRoundings * kUnit * scales.length;
        case RoundingScale::Force:
            return kRoundings * kUnit * scales.force;
        case RoundingScale::Moment:
            return kRoundings * kUnit * scales.moment;
        case RoundingScale::Power:
            return kRoundings * kUnit * scales.moment * scales.omega;
        case RoundingScale::Itself:
            break;
    }
    return kRoundings * kUnit * Size(quantity.Of(values));
}

}  // namespace

std::optional<StepWithRounding> Step_With_Rounding(const LinkageModel& model, const RowInput& row,
                                                   Rules rules, const std::vector<Quantity>& quantities) {
    const auto values = Row_By_Rules(model, row, rules);
    if (!values) return std::nullopt;
    StepWithRounding step = {*values, {}};
    const Scales scales = Scales_Of(model, row, *values);
    for (const Quantity& quantity : quantities)
        step.allowed.push_back(Own_Rounding(quantity, *values, scales));
    for (const int column : {0, 1, 2, 4, 5}) {
        RowInput moved = row;
        moved.degrees(column) += Angle_Rounding(model, row.degrees(column));
        const auto there = Row_By_Rules(model, moved, rules);
        if (!there) return std::nullopt;
        for (std::size_t i = 0; i < quantities.size(); ++i)
            step.allowed[i] += Size(quantities[i].Of(*there) - quantities[i].Of(*values));
    }
    if (!std::all_of(step.allowed.begin(), step.allowed.end(), [](double a) { return std::isfinite(a); }))
        return std::nullopt;
    return step;
}

}  // namespace kervol
