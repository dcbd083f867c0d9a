// SPDX-License-Identifier: GPL-3.0-or-later
// Comparing and poisoning the program's records.
#pragma once

#include <string>
#include <vector>

#include "core/model.h"
#include "core/result_tables.h"

namespace kervol {

/// Names of the model's fields that differ.
std::vector<std::string> Differing_Fields(const LinkageModel& left, const LinkageModel& right);

/// A value that no calculation gives, for "left untouched".
inline constexpr float Poison = -98765.0F;

/// Fills every result table with `Poison`.
void Poison_Tables(ResultTables& tables);

}  // namespace kervol
