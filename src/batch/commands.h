// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of `kervol-batch`.
#pragma once

#include <ostream>

namespace kervol {

/// Runs the command that the arguments name and returns its exit code. Results go to `out`, complaints to
/// `err`, one line each.
int Run_Commands(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

}  // namespace kervol
