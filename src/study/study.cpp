// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/study.h"

#include <algorithm>

#include "core/geometry.h"
#include "core/number_text.h"
#include "core/report.h"
#include "dynamics/crank_torque_areas.h"
#include "dynamics/solve_forces.h"
#include "kinematics/step_count.h"

namespace kervol {
namespace {

std::string Fault_Text(const Program& program) {
    const ReportedFault& fault = program.faults.entries.front();
    return std::string(Fault_Description(fault.number)) + " in " + fault.procedure;
}

std::string Failed_Steps_Text(const Program& program) {
    int failed = 0;
    for (int step = 0; step <= program.model.NumSteps; ++step)
        if (!program.tables.StepValid(step)) ++failed;
    if (failed == 0) return {};
    return std::to_string(failed) + " of " + std::to_string(program.model.NumSteps + 1) +
           " steps do not assemble";
}

/// A field of comma-separated values; quoted where it has to be.
std::string Csv_Field(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

}  // namespace

std::optional<std::uint64_t> StudyPlan::Combinations() const {
    std::uint64_t count = 1;
    for (const Variation& variation : variations)
        if (__builtin_mul_overflow(count, variation.Count(), &count)) return std::nullopt;
    return count;
}

StudySolver::StudySolver(const StudyPlan& plan, const Program& base, std::unique_ptr<Port> port)
    : plan_(plan), base_(base), port_(std::move(port)), program_(std::make_unique<Program>(*port_)) {
    program_->catalogue = base.catalogue;
    program_->tables = base.tables;
    for (const Measure& measure : plan.measures) {
        depth_ = std::max(depth_, measure.Needed_Depth());
        scope_ = std::max(scope_, measure.Needed_Scope());
    }
}

StudyRow StudySolver::Solve(std::uint64_t number) {
    StudyRow row;
    row.number = number;
    program_->faults.entries.clear();
    const bool whole = Procedure(*program_, "Study", [&] {
        Set_Model(number);
        row.outcome = Calculate();
        row.steps = program_->model.NumSteps + 1;
        if (row.outcome.empty() && scope_ != Scope::Motion) row.outcome = Add_Forces();
        if (!row.outcome.empty()) return;
        for (const Measure& measure : plan_.measures) row.values.push_back(measure.Of(*program_, series_));
        row.outcome = "ok";
    });
    if (!whole) {
        row.values.clear();
        row.outcome = Fault_Text(*program_);
    }
    return row;
}

void StudySolver::Set_Model(std::uint64_t number) {
    LinkageModel& model = program_->model;
    model = base_.model;
    // An angle sweep clears its rows itself; other drives find what was read, or nothing.
    if (model.CalcMode != 3) program_->tables = base_.tables;
    for (std::size_t i = plan_.variations.size(); i-- > 0;) {
        const Variation& variation = plan_.variations[i];
        variation.Set(model, number % variation.Count());
        number /= variation.Count();
    }
    for (const Variation& variation : plan_.variations) variation.Follow(model);
    Derive_Geometry(model);
}

std::string StudySolver::Calculate() {
    const CalculationEnd end = Calculate_Model(*program_, depth_);
    if (!program_->faults.entries.empty()) return Fault_Text(*program_);
    if (end == CalculationEnd::Refused) return "refused: its number of steps";
    if (end == CalculationEnd::NoMode) return "refused: its drive mode";
    return Failed_Steps_Text(*program_);
}

std::string StudySolver::Add_Forces() {
    const int solved = Run_Dynamics(*program_);
    if (program_->faults.entries.empty() && solved <= program_->model.NumSteps)
        return "no forces from step " + std::to_string(solved) + " on";
    if (scope_ == Scope::Flywheel) {
        FlywheelSizing sizing;
        Size_Flywheel(*program_, sizing);
    }
    return program_->faults.entries.empty() ? "" : Fault_Text(*program_);
}

std::string Study_Heads(const StudyPlan& plan) {
    std::string line;
    for (const Variation& variation : plan.variations) line += Csv_Field(variation.Field()) + ",";
    for (const Measure& measure : plan.measures) line += Csv_Field(measure.Text()) + ",";
    return line + "Outcome\r\n";
}

std::string Study_Line(const StudyPlan& plan, const StudyRow& row) {
    std::vector<std::string> fields(plan.variations.size());
    std::uint64_t number = row.number;
    for (std::size_t i = plan.variations.size(); i-- > 0;) {
        const Variation& variation = plan.variations[i];
        fields[i] = variation.Value_Text(number % variation.Count());
        number /= variation.Count();
    }
    std::string line;
    for (const std::string& field : fields) line += field + ",";
    for (std::size_t i = 0; i < plan.measures.size(); ++i)
        line += (row.Is_Ok() ? Plain_Number(row.values[i]) : "") + ",";
    return line + row.outcome + "\r\n";
}

}  // namespace kervol
