// SPDX-License-Identifier: GPL-3.0-or-later
// The four built-in linkages.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/model.h"

namespace kervol {

/// One example; a field without a value keeps what the model held. Lengths in the model's unit, angles in
/// degrees. The ground link lies on +x in all of them, so user and local coordinates agree.
struct Example {
    std::string_view name;  ///< as the command line calls it
    std::string_view ModelTitle, LinkageType;
    float Link2, Link3, Link4, Link1;
    std::optional<float> LinkO4D;
    float Link5, Link6, O6X, O6Y;
    float CouplerAC, Delta3Deg;
    std::optional<float> Delta4Deg;
    float Coupler2Length, Delta5Deg;
    std::int16_t OpenCross2;  ///< Stage 1 is open in all of them
    std::string_view OpenText;
    float Omega2Start, ThetaMinDeg, ThetaMaxDeg, ThetaStepDeg;
};

/// Watt test, Roberts, Hoeken single dwell, double dwell.
std::span<const Example> Examples();

/// Nothing where no example has that name.
const Example* Find_Example(std::string_view name);

/// Writes the example into the model and derives the geometry. Does not touch the ground angle, `CalcMode`,
/// `NumSteps`, the link data or the tables.
void Load_Example(LinkageModel& model, const Example& example);

}  // namespace kervol
