// SPDX-License-Identifier: GPL-3.0-or-later
// What the self-check compares: the output functions by the names of the catalogue, and beside them what the
// tables hold under no name, the closing of the loops, the equilibrium of the links and the power.
#pragma once

#include <string>
#include <vector>

#include "core/model.h"
#include "selfcheck/row_values.h"

namespace kervol {

enum class QuantityGroup { Loops, Motion, Forces, Balance };

/// What the rounding of loads and arms to single precision counts against, beside that of the angles.
enum class RoundingScale { Itself, Length, Force, Moment, Power };

struct Quantity {
    std::string name, unit;
    QuantityGroup group;
    RoundingScale scale = RoundingScale::Itself;
    bool is_vector = false;
    bool needs_forces = false;                        ///< written by the dynamics
    bool is_residual = false;                         ///< 0 where all is well
    int index = 0;                                    ///< into what `read` takes it from
    Vec (*read)(const RowValues& values, int index);  ///< a scalar stands in x

    Vec Of(const RowValues& values) const { return read(values, index); }
    /// A scalar as it stands, a vector's magnitude.
    double Size_Of(const RowValues& values) const;
};

/// All that applies to the chain, in the order of the groups and of the catalogue.
std::vector<Quantity> Quantities_Of(const LinkageModel& model);

}  // namespace kervol
