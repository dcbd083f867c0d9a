// SPDX-License-Identifier: GPL-3.0-or-later
// A calculated model in words, for a person at a terminal.
#pragma once

#include <optional>
#include <string>

#include "core/program.h"

namespace kervol {

/// Title, chain, lengths, classes, drive, steps and failed ranges, the extremes of driving torque and joint
/// forces over the first `solved_steps` (nothing where no forces were asked for), then a short table of the
/// motion.
std::string Summary(const Program& program, std::optional<int> solved_steps);

}  // namespace kervol
