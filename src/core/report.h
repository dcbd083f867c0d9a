// SPDX-License-Identifier: GPL-3.0-or-later
// The failure path: a procedure catches its fault, reports it under its own name and ends; its caller goes
// on.
#pragma once

#include <cstdint>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "core/fault.h"
#include "core/program.h"

namespace kervol {

/// Shows the fault in the program's words, after number 7 the Home screen too, and puts the pointer back.
///
/// Within a sweep a fault of the same number and name is shown once, unless the port shows them all.
void Report_Error(Program& program, std::int32_t number, std::string_view name);

/// Runs the body of a procedure. A fault is reported under the procedure's name, or under that of the small
/// routine which raised it, and the procedure is left with its outputs as far as they were written. False
/// after a fault.
template <class Body>
bool Procedure(Program& program, std::string_view name, Body&& body) {
    try {
        std::forward<Body>(body)();
        return true;
    } catch (const Fault& fault) {
        Report_Error(program, fault.number, fault.routine.empty() ? name : std::string_view(fault.routine));
    } catch (const std::bad_alloc&) {
        Report_Error(program, fault::OutOfMemory, name);
    }
    return false;
}

/// The same for the few procedures that first say themselves that there was an error.
template <class Body>
bool Announced_Procedure(Program& program, std::string_view name, Body&& body) {
    return Procedure(program, name, [&] {
        try {
            std::forward<Body>(body)();
        } catch (...) {
            program.port.Show_Message({"An error has occurred in the " + std::string(name) + " routine"});
            throw;
        }
    });
}

/// Marks the time of one sweep, over which repeated faults count as one.
class SweepFaultScope {
  public:
    explicit SweepFaultScope(Program& program);
    ~SweepFaultScope();
    SweepFaultScope(const SweepFaultScope&) = delete;
    SweepFaultScope& operator=(const SweepFaultScope&) = delete;

  private:
    FaultLog& faults_;
};

}  // namespace kervol
