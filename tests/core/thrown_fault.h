// SPDX-License-Identifier: GPL-3.0-or-later
// The fault that a call ends with, for routines that throw instead of reporting.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <utility>

#include "core/fault.h"

#include <gtest/gtest.h>

namespace kervol {

/// The fault thrown by the body; number 0 if it ends without one.
template <class Body>
Fault Thrown(Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (const Fault& fault) {
        return fault;
    }
    return {0, {}};
}

/// The body must end with this fault under this routine's name.
template <class Body>
void Expect_Thrown(std::int32_t number, const std::string& routine, Body&& body) {
    const Fault fault = Thrown(std::forward<Body>(body));
    EXPECT_EQ(fault.number, number);
    EXPECT_EQ(fault.routine, routine);
}

}  // namespace kervol
