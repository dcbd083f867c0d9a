// SPDX-License-Identifier: GPL-3.0-or-later
// Random linkages for laws that every linkage must obey: the same ones in every run.
#pragma once

#include <cstdint>
#include <random>
#include <string_view>

#include "core/model.h"

namespace kervol {

/// Puts the pivots, given in the user frame, into the model with all geometry that follows from them.
void Place_Pivots(LinkageModel& model, float O4X, float O4Y, float O6X, float O6Y);

class RandomLinkages {
  public:
    explicit RandomLinkages(std::uint32_t seed) : source_(seed) {}

    /// Makes the model a linkage of the chain "W" or "S" of any lengths, offsets, assemblies and ground
    /// angle, with a crank speed and acceleration. Whether it can be assembled is left to chance.
    void Next(LinkageModel& model, std::string_view chain);

    float Between(float low, float high);
    /// -1 or +1.
    std::int16_t Sign();
    /// 0 to below `count`.
    std::size_t Below(std::size_t count) { return source_() % count; }

  private:
    std::mt19937 source_;
};

/// The longest length that takes part in a loop.
float Longest_Link(const LinkageModel& model);

}  // namespace kervol
