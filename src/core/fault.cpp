// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/fault.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kervol {

std::string_view Fault_Description(std::int32_t number) {
    static constexpr auto kDescriptions = std::to_array<std::pair<std::int32_t, std::string_view>>({
        {fault::InvalidCall, "Invalid procedure call or argument"},
        {fault::Overflow, "Overflow"},
        {fault::OutOfMemory, "Out of memory"},
        {fault::Subscript, "Subscript out of range"},
        {fault::DivisionByZero, "Division by zero"},
        {fault::TypeMismatch, "Type mismatch"},
        {fault::OutOfStack, "Out of stack space"},
        {fault::BadFileNameOrNumber, "Bad file name or number"},
        {fault::FileNotFound, "File not found"},
        {fault::DeviceIO, "Device I/O error"},
        {fault::DiskFull, "Disk full"},
        {fault::InputPastEnd, "Input past end of file"},
        {fault::BadFileName, "Bad file name"},
        {fault::PermissionDenied, "Permission denied"},
        {fault::DiskNotReady, "Disk not ready"},
        {fault::PathFileAccess, "Path/File access error"},
        {fault::PathNotFound, "Path not found"},
    });
    const auto* found = std::find_if(kDescriptions.begin(), kDescriptions.end(),
                                     [&](const auto& entry) { return entry.first == number; });
    return found == kDescriptions.end() ? "Application-defined or object-defined error" : found->second;
}

void Raise(std::int32_t number) {
    throw Fault{number, {}};
}

}  // namespace kervol
