// SPDX-License-Identifier: GPL-3.0-or-later
// The joint forces by the names that a designer knows them by.
#pragma once

#include <array>
#include <string_view>

#include "core/program.h"

namespace kervol {

struct JointForce {
    std::string_view watt, stephenson;  ///< name of the joint in each chain
    int entry;                          ///< of `ForceTable`

    std::string_view Name(const LinkageModel& model) const {
        return model.LinkageType == "S" ? stephenson : watt;
    }
};

/// Joints of Stage 1, then those of Stage 2.
inline constexpr std::array<JointForce, 7> JointForces = {{
    {"O2", "O2", 5},
    {"A", "A", 0},
    {"B", "B", 1},
    {"O4", "O4", 6},
    {"D", "C", 8},
    {"E", "D", 9},
    {"O6", "O6", 10},
}};
inline constexpr std::size_t Stage1Joints = 4;

/// Entry of `ForceTable` for the force with which the linkage shakes its ground.
inline constexpr int ShakingForceEntry = 7;

}  // namespace kervol
