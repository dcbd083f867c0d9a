// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/study_run.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <iterator>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace kervol {
namespace {

using Clock = std::chrono::steady_clock;

/// Combinations that a solver takes at a time.
constexpr std::uint64_t kChunk = 32;
/// Chunks for each job by which solvers may be ahead of the file.
constexpr std::uint64_t kAhead = 8;
constexpr auto kBetweenReports = std::chrono::milliseconds(200);

struct Stretch {
    std::uint64_t first, count;
};

/// The part of `count` that belongs to a shard; all differ by one at most.
Stretch Shard_Of(std::uint64_t count, std::uint64_t shard, std::uint64_t shards) {
    const std::uint64_t each = count / shards, more = count % shards;
    const std::uint64_t before = shard - 1;
    return {before * each + std::min(before, more), each + (before < more ? 1 : 0)};
}

/// The best rows so far.
class Ranking {
  public:
    Ranking(std::uint64_t places, bool least_is_best) : places_(places), least_(least_is_best) {}

    void Take(StudyRow&& row) {
        if (!row.Is_Ok()) return;
        const float value = row.values.front();
        rows_.emplace(std::pair(least_ ? value : -value, row.number), std::move(row));
        if (rows_.size() > places_) rows_.erase(std::prev(rows_.end()));
    }
    template <class Body>
    void For_Each(Body&& body) const {
        for (const auto& [key, row] : rows_) body(row);
    }

  private:
    std::uint64_t places_;
    bool least_;
    /// By value, then in the order of the study.
    std::map<std::pair<float, std::uint64_t>, StudyRow> rows_;
};

/// What comes of a chunk: the text of its rows, or where they are ranked the rows themselves.
struct Harvest {
    std::string text;
    std::vector<StudyRow> rows;
    std::uint64_t done = 0, failed = 0, steps = 0;
};

/// Hands out chunks and collects what comes of them in order.
class Queue {
  public:
    Queue(Stretch stretch, unsigned jobs)
        : stretch_(stretch), chunks_((stretch.count + kChunk - 1) / kChunk), ahead_(kAhead * jobs) {}

    /// The next chunk to solve; nothing once there is none or the run has ended.
    std::optional<std::uint64_t> Next() {
        std::unique_lock lock(mutex_);
        room_.wait(lock, [&] { return ended_ || next_ == chunks_ || next_ < taken_ + ahead_; });
        if (ended_ || next_ == chunks_) return std::nullopt;
        return next_++;
    }
    Stretch Combinations_Of(std::uint64_t chunk) const {
        const std::uint64_t offset = chunk * kChunk;
        return {stretch_.first + offset, std::min(kChunk, stretch_.count - offset)};
    }
    void Put(std::uint64_t chunk, Harvest harvest) {
        const std::lock_guard lock(mutex_);
        solved_.emplace(chunk, std::move(harvest));
        arrived_.notify_one();
    }
    /// Ends the run; an exception comes out of `Take`.
    void End(const std::exception_ptr& exception = nullptr) {
        const std::lock_guard lock(mutex_);
        ended_ = true;
        if (exception && !exception_) exception_ = exception;
        room_.notify_all();
        arrived_.notify_one();
    }
    bool Has_More() const { return taken_ < chunks_; }
    /// The harvest that comes next, if it arrives before it is time for a report.
    std::optional<Harvest> Take() {
        std::unique_lock lock(mutex_);
        arrived_.wait_for(lock, kBetweenReports, [&] { return exception_ || solved_.count(taken_) > 0; });
        if (exception_) std::rethrow_exception(exception_);
        const auto found = solved_.find(taken_);
        if (found == solved_.end()) return std::nullopt;
        Harvest harvest = std::move(found->second);
        solved_.erase(found);
        ++taken_;
        room_.notify_all();
        return harvest;
    }

  private:
    const Stretch stretch_;
    const std::uint64_t chunks_, ahead_;
    std::mutex mutex_;
    std::condition_variable room_, arrived_;
    std::uint64_t next_ = 0;   ///< chunk to hand out
    std::uint64_t taken_ = 0;  ///< chunk that the file waits for
    std::map<std::uint64_t, Harvest> solved_;
    bool ended_ = false;
    std::exception_ptr exception_;
};

Harvest Harvest_Of(Stretch stretch, StudySolver& solver, const StudyPlan& plan, bool ranked) {
    Harvest harvest;
    for (std::uint64_t number = stretch.first; number < stretch.first + stretch.count; ++number) {
        StudyRow row = solver.Solve(number);
        ++harvest.done;
        harvest.steps += static_cast<std::uint64_t>(row.steps);
        if (!row.Is_Ok()) ++harvest.failed;
        if (ranked)
            harvest.rows.push_back(std::move(row));
        else
            harvest.text += Study_Line(plan, row);
    }
    return harvest;
}

void Work(Queue& queue, const StudyPlan& plan, const Program& base, std::unique_ptr<Port> port, bool ranked) {
    try {
        StudySolver solver(plan, base, std::move(port));
        while (const auto chunk = queue.Next())
            queue.Put(*chunk, Harvest_Of(queue.Combinations_Of(*chunk), solver, plan, ranked));
    } catch (...) {
        queue.End(std::current_exception());
    }
}

/// Solvers at work; they are sent home and waited for, whatever happens.
class Crew {
  public:
    explicit Crew(Queue& queue) : queue_(queue) {}
    ~Crew() { queue_.End(); }
    Crew(const Crew&) = delete;
    Crew& operator=(const Crew&) = delete;

    void Hire(const StudyPlan& plan, const Program& base, std::unique_ptr<Port> port, bool ranked) {
        threads_.emplace_back(Work, std::ref(queue_), std::cref(plan), std::cref(base), std::move(port),
                              ranked);
    }

  private:
    Queue& queue_;
    std::vector<std::jthread> threads_;
};

}  // namespace

StudyProgress Run_Study(const StudyPlan& plan, const Program& base, const StudyOptions& options,
                        const StudySurroundings& surroundings) {
    const auto begin = Clock::now();
    const Stretch stretch = Shard_Of(plan.Combinations().value_or(0), options.shard, options.shards);
    StudyProgress progress;
    progress.combinations = stretch.count;
    Queue queue(stretch, options.jobs);
    Ranking ranking(options.top, options.least_is_best);
    auto reported = begin;
    if (options.shard == 1) surroundings.write(Study_Heads(plan));

    Crew crew(queue);
    const bool ranked = options.top > 0;
    for (unsigned job = 0; job < options.jobs; ++job) crew.Hire(plan, base, surroundings.make_port(), ranked);
    while (queue.Has_More()) {
        if (std::optional<Harvest> harvest = queue.Take()) {
            progress.done += harvest->done;
            progress.failed += harvest->failed;
            progress.steps += harvest->steps;
            for (StudyRow& row : harvest->rows) ranking.Take(std::move(row));
            if (!harvest->text.empty()) surroundings.write(harvest->text);
        }
        const auto now = Clock::now();
        progress.time = now - begin;
        if (now - reported < kBetweenReports || !surroundings.progress) continue;
        surroundings.progress(progress);
        reported = now;
    }
    ranking.For_Each([&](const StudyRow& row) { surroundings.write(Study_Line(plan, row)); });
    progress.time = Clock::now() - begin;
    return progress;
}

}  // namespace kervol
