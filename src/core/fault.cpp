// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/fault.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kervol {

std::string_view Fault_Description(std::int32_t number) {
    static constexpr auto kDescriptions = std::to_array<std::pair<std::int32_t, std::string_view>>({
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {7, "Out of memory"},
        {9, "Subscript out of range"},
        {11, "Division by zero"},
        {13, "Type mismatch"},
        {28, "Out of stack space"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {57, "Device I/O error"},
        {61, "Disk full"},
        {62, "Input past end of file"},
        {64, "Bad file name"},
        {70, "Permission denied"},
        {71, "Disk not ready"},
        {75, "Path/File access error"},
        {76, "Path not found"},
    });
    const auto* found = std::find_if(kDescriptions.begin(), kDescriptions.end(),
                                     [&](const auto& entry) { return entry.first == number; });
    return found == kDescriptions.end() ? "Application-defined or object-defined error" : found->second;
}

void Raise(std::int32_t number) {
    throw Fault{number, {}};
}

}  // namespace kervol
