// SPDX-License-Identifier: GPL-3.0-or-later
// A calculated model in words, for a person at a terminal.
#pragma once

#include <string>

#include "core/program.h"

namespace kervol {

/// Title, chain, lengths, classes, drive, steps and failed ranges, then a short table of the motion.
std::string Summary(const Program& program);

}  // namespace kervol
