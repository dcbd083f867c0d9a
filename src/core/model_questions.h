// SPDX-License-Identifier: GPL-3.0-or-later
// What many layers ask of a model.
#pragma once

#include <algorithm>
#include <cstdint>

#include "core/constants.h"
#include "core/model.h"

namespace kervol {

/// A Watt or a Stephenson chain. A file may name another, of which Stage 1 alone is calculated.
inline bool Has_Stage2(const LinkageModel& model) {
    return model.LinkageType == "W" || model.LinkageType == "S";
}

/// Highest step that the tables hold; below 0 where they hold none.
inline std::int16_t Last_Step(const LinkageModel& model) {
    return std::min<std::int16_t>(model.NumSteps, MaxSteps);
}

}  // namespace kervol
