// SPDX-License-Identifier: GPL-3.0-or-later
// The self-check as one JSON object.
#pragma once

#include <string>

#include "core/model.h"
#include "selfcheck/self_check.h"

namespace kervol {

/// Members: what was compared, every value with its verdict and its largest differences, the deviations that
/// apply with their effect on the driving torque, the needs of the drive, and step by step the tabulated and
/// the consistent value of all that differs on purpose.
std::string Self_Check_Json(const LinkageModel& model, const SelfCheck& result);

}  // namespace kervol
