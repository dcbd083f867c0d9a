// SPDX-License-Identifier: GPL-3.0-or-later
// Files as wholes, and the fault numbers of what the system refuses.
#pragma once

#include <cstdint>
#include <string>

namespace kervol {

/// Fault number of a system error (errno) at work on a file.
std::int32_t Fault_Of_System_Error(int error);

/// Content of a file. Only a regular file is read: a folder or a device is fault 75.
std::string Read_Whole_File(const std::string& path);

}  // namespace kervol
