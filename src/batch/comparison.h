// SPDX-License-Identifier: GPL-3.0-or-later
// Two models side by side: which fields differ, how far apart their functions are.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "batch/batch_run.h"

namespace kervol {

struct ChangedField {
    std::string name, first, second;
};

/// The fields of a model file that differ, but for the file's own name and date. Link arrays by link number.
std::vector<ChangedField> Changed_Fields(const LinkageModel& first, const LinkageModel& second);

/// Steps of two sweeps that belong together.
struct StepPairs {
    std::vector<std::pair<std::int16_t, std::int16_t>> pairs;  ///< both assembled
    std::string words;                                         ///< how they were paired
};

/// By step number where both have as many; else by the crank angles, of two drives over time by the times,
/// that both have. None in common gives no pairs, and words that say so.
StepPairs Paired_Steps(const Program& first, const Program& second);

struct FunctionChange {
    std::string function, component, unit;
    double largest = 0;  ///< second less first, with its sign; of angles the short way round
    double rms = 0;
    std::int16_t step = 0;  ///< of the first model, where the largest is
};

/// Every function of the catalogue in all its components, as far as both models have it, in the global frame.
/// `solved` is how many steps have forces in both. Leaves selection 1 changed.
std::vector<FunctionChange> Function_Changes(Program& first, Program& second, const StepPairs& steps,
                                             int solved);

/// Both linkages at a pair of steps and all their coupler paths as an SVG file.
std::string Overlay_Svg(const Program& first, const Program& second,
                        std::pair<std::int16_t, std::int16_t> steps);

}  // namespace kervol
