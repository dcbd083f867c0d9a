// SPDX-License-Identifier: GPL-3.0-or-later
// A study on all processors, its rows in their order.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

#include "study/study.h"

namespace kervol {

struct StudyOptions {
    unsigned jobs = 1;        ///< solvers at work at the same time
    std::uint64_t shard = 1;  ///< which of `shards` equal stretches of the combinations, from 1
    std::uint64_t shards = 1;
    std::uint64_t top = 0;       ///< only so many rows, the best by the first measure; 0 all in their order
    bool least_is_best = false;  ///< of the first measure
};

struct StudyProgress {
    std::uint64_t combinations = 0;  ///< of this shard
    std::uint64_t done = 0;
    std::uint64_t failed = 0;
    std::uint64_t steps = 0;  ///< positions that were solved
    std::chrono::duration<double> time{};
};

/// What a run needs of its surroundings.
struct StudySurroundings {
    /// A port for each solver, which answers a cannot-assemble box with Ignore.
    std::function<std::unique_ptr<Port>()> make_port;
    /// Takes the next piece of the file; what it throws ends the run.
    std::function<void(std::string_view)> write;
    /// Told a few times a second; may be empty.
    std::function<void(const StudyProgress&)> progress;
};

/// Runs the study and returns how it went. The heads stand in the first shard alone, so that the shards of a
/// study, one behind the other, are its file. Only a few rows for each job are held at a time; with `top` so
/// many more, and failed ones are left out.
StudyProgress Run_Study(const StudyPlan& plan, const Program& base, const StudyOptions& options,
                        const StudySurroundings& surroundings);

}  // namespace kervol
