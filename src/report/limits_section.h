// SPDX-License-Identifier: GPL-3.0-or-later
// The section of the report on how far the crank turns and what a designer should heed.
#pragma once

#include <string>

#include "core/model.h"

namespace kervol {

/// "Range and limits": what `Find_Limits` finds and its warnings; of a model that has no position at all, a
/// sentence that says so.
std::string Limits_Section(const LinkageModel& model);

}  // namespace kervol
