// SPDX-License-Identifier: GPL-3.0-or-later
// Whole studies: the same file from any number of solvers and shards, in order; ranking; ends before the end.
#include "study/study_run.h"

#include <algorithm>
#include <stdexcept>

#include "study/study_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

class StudyRunTest : public StudyTest {
  protected:
    /// 11 times 21 combinations, of which those with a long crank fail.
    StudyPlan Cranks() {
        model.ThetaStepDeg = 30;
        return Plan({"Link2=2:7:0.5", "Link5=6:8:0.1"}, {"max(Omega6)", "range(Theta6)"});
    }
    static double Value(const std::string& line, int field) {
        std::istringstream stream(line);
        std::string text;
        for (int i = 0; i <= field; ++i) std::getline(stream, text, ',');
        return std::stod(text);
    }
};

TEST_F(StudyRunTest, HasAHeadAndOneLineForEachCombinationInOrder) {
    const StudyPlan plan = Cranks();
    StudyProgress progress;
    const auto lines = Lines_Of(Run(plan, {.jobs = 3}, &progress));
    ASSERT_EQ(lines.size(), 232U);
    EXPECT_EQ(lines[0], "Link2,Link5,max(Omega6),range(Theta6),Outcome");
    StudySolver solver(plan, *program, std::make_unique<IgnoringPort>());
    for (std::uint64_t number = 0; number < 231; ++number)
        EXPECT_EQ(lines[number + 1] + "\r\n", Study_Line(plan, solver.Solve(number)));
    EXPECT_EQ(progress.combinations, 231U);
    EXPECT_EQ(progress.done, 231U);
    EXPECT_EQ(progress.steps, 231U * 13);
    const auto ok = std::count_if(lines.begin(), lines.end(),
                                  [](const std::string& line) { return line.ends_with(",ok"); });
    EXPECT_GT(ok, 0);
    EXPECT_EQ(progress.failed, 231U - static_cast<std::uint64_t>(ok));
    EXPECT_GT(progress.failed, 0U);
}

TEST_F(StudyRunTest, IsTheSameFileWithAnyNumberOfSolvers) {
    const StudyPlan plan = Cranks();
    const std::string one = Run(plan, {.jobs = 1});
    for (const unsigned jobs : {2U, 5U, 16U}) EXPECT_EQ(Run(plan, {.jobs = jobs}), one) << jobs;
}

TEST_F(StudyRunTest, ShardsOneBehindTheOtherAreTheWholeFile) {
    const StudyPlan plan = Cranks();
    const std::string whole = Run(plan, {.jobs = 2});
    for (const std::uint64_t shards : {1U, 2U, 7U, 231U, 500U}) {
        std::string joined;
        for (std::uint64_t shard = 1; shard <= shards; ++shard)
            joined += Run(plan, {.jobs = 2, .shard = shard, .shards = shards});
        EXPECT_EQ(joined, whole) << shards;
    }
}

TEST_F(StudyRunTest, TopKeepsTheBestByTheFirstMeasureBestFirst) {
    const StudyPlan plan = Cranks();
    for (const bool least : {false, true}) {
        auto lines = Lines_Of(Run(plan, {.jobs = 2}));
        lines.erase(lines.begin());
        std::erase_if(lines, [](const std::string& line) { return !line.ends_with(",ok"); });
        std::stable_sort(lines.begin(), lines.end(), [&](const std::string& left, const std::string& right) {
            return least ? Value(left, 2) < Value(right, 2) : Value(left, 2) > Value(right, 2);
        });
        lines.resize(5);
        auto top = Lines_Of(Run(plan, {.jobs = 2, .top = 5, .least_is_best = least}));
        ASSERT_EQ(top.size(), 6U);
        top.erase(top.begin());
        EXPECT_EQ(top, lines);
    }
}

TEST_F(StudyRunTest, TopOfFewerRowsHasThemAll) {
    const StudyPlan plan = Plan({"Link5=6:8:1"}, {"max(Omega6)"});
    EXPECT_EQ(Lines_Of(Run(plan, {.top = 100})).size(), 4U);
}

TEST_F(StudyRunTest, EqualValuesKeepTheOrderOfTheStudy) {
    const StudyPlan plan = Plan({"Coupler2Length=1:4:1"}, {"max(Omega6)"});
    auto top = Lines_Of(Run(plan, {.jobs = 4, .top = 3}));
    EXPECT_THAT(top[1], ::testing::StartsWith("1,"));
    EXPECT_THAT(top[2], ::testing::StartsWith("2,"));
    EXPECT_THAT(top[3], ::testing::StartsWith("3,"));
}

TEST_F(StudyRunTest, AWriteThatFailsEndsTheRun) {
    const StudyPlan plan = Plan({"Link5=6:8:0.0001"}, {"max(Omega6)"});
    StudySurroundings surroundings;
    surroundings.make_port = [] { return std::make_unique<IgnoringPort>(); };
    int writes = 0;
    surroundings.write = [&](std::string_view) {
        if (++writes == 4) throw std::runtime_error("no room");
    };
    EXPECT_THROW(Run_Study(plan, *program, {.jobs = 2}, surroundings), std::runtime_error);
    EXPECT_EQ(writes, 4);
}

TEST_F(StudyRunTest, ASolverThatCannotBeMadeEndsTheRun) {
    const StudyPlan plan = Plan({"Link5=6:8:0.01"}, {"max(Omega6)"});
    StudySurroundings surroundings;
    int made = 0;
    surroundings.make_port = [&]() -> std::unique_ptr<Port> {
        if (++made == 2) throw std::bad_alloc();
        return std::make_unique<IgnoringPort>();
    };
    surroundings.write = [](std::string_view) {};
    EXPECT_THROW(Run_Study(plan, *program, {.jobs = 2}, surroundings), std::bad_alloc);
}

TEST_F(StudyRunTest, ReportsItsProgressOnTheWay) {
    const StudyPlan plan = Plan({"Link5=6:8:0.00005"}, {"max(Omega6)"});
    StudySurroundings surroundings;
    surroundings.make_port = [] { return std::make_unique<IgnoringPort>(); };
    surroundings.write = [](std::string_view) {};
    std::vector<std::uint64_t> done;
    surroundings.progress = [&](const StudyProgress& progress) {
        EXPECT_EQ(progress.combinations, 40001U);
        done.push_back(progress.done);
    };
    const StudyProgress end = Run_Study(plan, *program, {.jobs = 1}, surroundings);
    EXPECT_TRUE(std::is_sorted(done.begin(), done.end()));
    // How many there are is a matter of the machine: none where it needs less than a fifth of a second.
    if (end.time > std::chrono::seconds(1)) {
        EXPECT_FALSE(done.empty());
    }
    EXPECT_EQ(end.done, 40001U);
}

}  // namespace
}  // namespace kervol
