// SPDX-License-Identifier: GPL-3.0-or-later
// A design study on one processor: combinations of a full turn in steps of a degree, by what is measured.
#include <string>
#include <vector>

#include "catalogue/names.h"
#include "study/study.h"
#include "workload.h"

#include <benchmark/benchmark.h>

namespace kervol::bench {
namespace {

class IgnoringPort : public RecordingPort {
  public:
    Answer Show_Message(const MessageBox&) override { return Answer::Ignore; }
};

void Study(benchmark::State& state, const char* example, const std::vector<std::string>& measures) {
    Workload work(example);
    Program& program = *work.program;
    Change_Catalog_Labels(program.catalogue, program.model.LinkageType);
    program.model.ThetaStepDeg = 1;
    StudyPlan plan;
    // A hundredth of a length more or less leaves every position far from its limits.
    const double length = program.model.Link5;
    const std::string range = std::to_string(0.99 * length) + ":" + std::to_string(1.01 * length) + ":" +
                              std::to_string(0.001 * length);
    std::string objection = plan.variations.emplace_back().Parse("Link5=" + range);
    for (const std::string& text : measures) objection += plan.measures.emplace_back().Parse(text, program);
    if (!objection.empty()) return state.SkipWithError(objection.c_str());

    StudySolver solver(plan, program, std::make_unique<IgnoringPort>());
    std::uint64_t number = 0;
    std::int64_t steps = 0;
    for (auto _ : state) {
        const StudyRow row = solver.Solve(number);
        if (!row.Is_Ok()) return state.SkipWithError(row.outcome.c_str());
        steps += row.steps;
        number = (number + 1) % plan.variations[0].Count();
    }
    state.SetItemsProcessed(steps);
}
using Measures = std::vector<std::string>;
BENCHMARK_CAPTURE(Study, Watt_Angles, "watt", Measures{"range(Theta6)", "min(\"Trans Ang-2\")"});
BENCHMARK_CAPTURE(Study, Watt_Speeds, "watt", Measures{"max(Omega6)"});
BENCHMARK_CAPTURE(Study, Watt_Points, "watt", Measures{"peak(\"Accel CP-1\":Mag)"});
BENCHMARK_CAPTURE(Study, Watt_Forces, "watt", Measures{"peak(\"Torque 12\")"});
BENCHMARK_CAPTURE(Study, Stephenson_Angles, "double-dwell",
                  Measures{"range(Theta6)", "dwell(Theta6, 1 degree)"});
BENCHMARK_CAPTURE(Study, Stephenson_Speeds, "double-dwell", Measures{"max(Omega6)"});

}  // namespace
}  // namespace kervol::bench
