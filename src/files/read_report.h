// SPDX-License-Identifier: GPL-3.0-or-later
// How the reading of a file ended.
#pragma once

#include <cstddef>

namespace kervol {

/// How far a file was read.
enum class ReadEnd {
    Nothing,  ///< the file could not be read, or ends before the first record: what the user gave is as it
              ///< was
    Refused,  ///< a file of another kind: the model is as it was
    Cut,      ///< a fault in the middle; fields not reached keep their values
    Whole,
};

struct ReadReport {
    ReadEnd end = ReadEnd::Nothing;
    std::size_t line = 0;  ///< where reading stopped, 0 for a file that could not be opened
};

}  // namespace kervol
