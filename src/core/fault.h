// SPDX-License-Identifier: GPL-3.0-or-later
// The one kind of failure that is thrown: a numbered fault, caught by `Procedure` (core/report.h) alone.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kervol {

/// Numbers of the faults that the program raises or has something to say about.
namespace fault {
inline constexpr std::int32_t InvalidCall = 5;
inline constexpr std::int32_t Overflow = 6;
inline constexpr std::int32_t OutOfMemory = 7;
inline constexpr std::int32_t Subscript = 9;
inline constexpr std::int32_t DivisionByZero = 11;
inline constexpr std::int32_t TypeMismatch = 13;
inline constexpr std::int32_t OutOfStack = 28;
inline constexpr std::int32_t BadFileNameOrNumber = 52;
inline constexpr std::int32_t FileNotFound = 53;
inline constexpr std::int32_t DeviceIO = 57;
inline constexpr std::int32_t DiskFull = 61;
inline constexpr std::int32_t InputPastEnd = 62;
inline constexpr std::int32_t BadFileName = 64;
inline constexpr std::int32_t PermissionDenied = 70;
inline constexpr std::int32_t DiskNotReady = 71;
inline constexpr std::int32_t PathFileAccess = 75;
inline constexpr std::int32_t PathNotFound = 76;
inline constexpr std::int32_t ControlOutOfMemory = 32678;
}  // namespace fault

struct Fault {
    std::int32_t number;
    /// Set where a small routine reports under its own name; empty leaves the name to the procedure around
    /// it.
    std::string routine;
};

/// The customary description of a fault number, as it stands in the heading of `Report_Error`.
std::string_view Fault_Description(std::int32_t number);

[[noreturn]] void Raise(std::int32_t number);

/// Runs a body that may be refused: true if it raised the fault of that number. Any other goes on.
template <class Body>
bool Refuses(std::int32_t number, Body&& body) {
    try {
        body();
        return false;
    } catch (const Fault& fault) {
        if (fault.number != number) throw;
        return true;
    }
}

/// Runs the body of a small routine whose faults carry the routine's own name instead of its caller's.
template <class Body>
decltype(auto) Routine(const char* name, Body&& body) {
    try {
        return body();
    } catch (Fault& fault) {
        if (fault.routine.empty()) fault.routine = name;
        throw;
    }
}

}  // namespace kervol
