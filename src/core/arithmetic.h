// SPDX-License-Identifier: GPL-3.0-or-later
// Checked arithmetic: where a plain operation would give an infinity, a not-a-number or a truncated integer,
// these raise the fault instead.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "core/fault.h"

namespace kervol {

/// Exact comparison with zero, without a tolerance, on purpose.
inline bool Is_Zero(double value) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wfloat-equal"
    return value == 0.0;
#pragma GCC diagnostic pop
}

/// Exact equality, without a tolerance, on purpose.
inline bool Is_Same(double left, double right) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wfloat-equal"
    return left == right;
#pragma GCC diagnostic pop
}

/// The value itself; fault 6 if it is infinite or not a number.
inline double Finite(double value) {
    if (!std::isfinite(value)) [[unlikely]]
        Raise(fault::Overflow);
    return value;
}

/// Rounded to single precision; fault 6 beyond its range.
inline float Single(double value) {
    const auto single = static_cast<float>(value);
    if (!std::isfinite(single)) [[unlikely]]
        Raise(fault::Overflow);
    return single;
}

/// Quotient; fault 11 for a zero divisor, fault 6 where the quotient is not finite.
inline double Divide(double dividend, double divisor) {
    if (Is_Zero(divisor)) [[unlikely]]
        Raise(fault::DivisionByZero);
    return Finite(dividend / divisor);
}

/// Square root; fault 5 for a negative number.
inline double Root(double value) {
    if (value < 0.0) [[unlikely]]
        Raise(fault::InvalidCall);
    return std::sqrt(Finite(value));
}

/// Rounded to the nearest integer of the type, a half to the even neighbour; fault 6 beyond its range.
template <class Integer>
Integer Rounded(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        Raise(fault::Overflow);
    return static_cast<Integer>(rounded);
}

inline std::int16_t Int16(double value) {
    return Rounded<std::int16_t>(value);
}

inline std::int32_t Int32(double value) {
    return Rounded<std::int32_t>(value);
}

}  // namespace kervol
