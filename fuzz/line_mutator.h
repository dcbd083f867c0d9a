// SPDX-License-Identifier: GPL-3.0-or-later
// The mutator of all fuzzers, which changes texts by lines and values. Files that hold one value a line are
// hardly ever read beyond their first lines when single bytes are changed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <string_view>

namespace kervol {

using FuzzRandom = std::minstd_rand;

/// 0 to below `count`, which is positive.
std::size_t Below(FuzzRandom& random, std::size_t count);

/// A value at the edge of what a number, a flag or a text can be, or beyond it.
std::string Edge_Value(FuzzRandom& random);

/// How lines of one kind of input are made and changed.
struct LineKind {
    /// In the middle of a line: its values stand between them.
    std::string_view separators;
    /// A new line, without an end.
    std::function<std::string(FuzzRandom&)> new_line;
};

/// Each fuzzer says here of what its input consists.
LineKind Lines_Of_Input();

}  // namespace kervol
