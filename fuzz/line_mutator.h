// SPDX-License-Identifier: GPL-3.0-or-later
// Changes texts by lines and values. Files that hold one value a line are hardly ever read beyond their first
// lines when single bytes are changed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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

/// Swaps, drops, doubles, moves and makes lines, and replaces values; now and then changes bytes as libFuzzer
/// itself does. Returns the size of the changed text, at most `max_size`.
std::size_t Mutate_Lines(const LineKind& kind, std::uint8_t* data, std::size_t size, std::size_t max_size,
                         unsigned seed);

/// Puts lines of the second text in the place of lines of the first, at the same place or another.
std::size_t Splice_Lines(std::string_view first, std::string_view second, std::uint8_t* out,
                         std::size_t max_size, unsigned seed);

}  // namespace kervol
