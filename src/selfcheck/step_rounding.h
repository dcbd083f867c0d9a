// SPDX-License-Identifier: GPL-3.0-or-later
// A step by given rules, and how far the rounding of the tables to single precision may move each value.
#pragma once

#include <optional>
#include <vector>

#include "selfcheck/quantities.h"
#include "selfcheck/row_values.h"

namespace kervol {

struct StepWithRounding {
    RowValues values;
    std::vector<double> allowed;  ///< by quantity
};

/// Each tabulated angle is moved by what its rounding may be, and the moves of a value add up; so a step near
/// a dead centre, where speeds and forces hang on the last digits of an angle, is allowed as much as it
/// needs. Nothing where a value has no bound.
std::optional<StepWithRounding> Step_With_Rounding(const LinkageModel& model, const RowInput& row,
                                                   Rules rules, const std::vector<Quantity>& quantities);

}  // namespace kervol
