// SPDX-License-Identifier: GPL-3.0-or-later
// Whole outputs compared byte by byte with those of tests/golden, at each of which a person has looked. With
// KERVOL_REGENERATE=1 in the environment they are written anew: look at what changed before you keep it.
#pragma once

#include <string>

namespace kervol {

/// The output must be that of tests/golden/<name>. One that differs is left in actual_output/ beside the test
/// program.
void Expect_Golden(const std::string& name, const std::string& output);

}  // namespace kervol
