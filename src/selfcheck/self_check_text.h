// SPDX-License-Identifier: GPL-3.0-or-later
// The self-check in plain words and tables, for a person.
#pragma once

#include <string>

#include "core/model.h"
#include "selfcheck/self_check.h"

namespace kervol {

/// Lines of at most 110 characters, to be read in a font of one width. The model must be the one that was
/// checked.
std::string Self_Check_Text(const LinkageModel& model, const SelfCheck& result);

}  // namespace kervol
