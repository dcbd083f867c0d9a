// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/summary.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <sstream>
#include <string_view>
#include <vector>

#include "core/model_questions.h"
#include "core/number_text.h"
#include "dynamics/joint_forces.h"
#include "report/model_words.h"

namespace kervol {
namespace {

constexpr int kLabelWidth = 26;
constexpr int kShownRows = 13;
/// As many as a summary is read for.
constexpr int kDigits = 4;

using Out = std::ostringstream;

void Put_Line(Out& out, std::string_view label, const std::string& value) {
    out << "  " << std::left << std::setw(kLabelWidth) << label << value << '\n';
}

void Put_Lines(Out& out, const std::vector<NamedText>& lines) {
    for (const NamedText& line : lines) Put_Line(out, line.name, line.text);
}

/// Least and greatest value over the solved steps that assemble: "-1.2 at step 3 to 4 at step 20".
template <class Value>
std::string Range_Text(const ResultTables& tables, int solved_steps, Value&& value) {
    int low = -1, high = -1;
    for (int step = 0; step < solved_steps; ++step) {
        if (!tables.StepValid(step)) continue;
        if (low < 0 || value(step) < value(low)) low = step;
        if (high < 0 || value(step) > value(high)) high = step;
    }
    if (low < 0) return {};
    return Short_Number(value(low), kDigits) + " at step " + std::to_string(low) + " to " +
           Short_Number(value(high), kDigits) + " at step " + std::to_string(high);
}

void Put_Forces(Out& out, const Program& program, int solved_steps) {
    const ResultTables& tables = program.tables;
    const LinkageModel& model = program.model;
    const std::string torque =
        Range_Text(tables, solved_steps, [&](int step) { return double(tables.TorqueTable(step, 0)); });
    if (torque.empty()) return Put_Line(out, "Forces", "none; no step that assembles could be solved");
    Put_Line(out, "Driving torque", torque + " " + model.UnitText(9));
    const auto put_force = [&](const std::string& label, int entry) {
        const std::string force = Range_Text(tables, solved_steps, [&](int step) {
            const auto& vector = tables.ForceTable(step, entry);
            return std::hypot(double(vector(0)), double(vector(1)));
        });
        Put_Line(out, label, force + " " + model.UnitText(10));
    };
    for (const JointForce& joint : JointForces)
        put_force("Force at " + std::string(joint.Name(model)), joint.entry);
    put_force("Shaking force", ShakingForceEntry);
    if (solved_steps <= model.NumSteps)
        Put_Line(out, "Forces not solved", "from step " + std::to_string(solved_steps) + " on");
}

struct MotionColumn {
    std::string_view name, unit;
    float (*value)(const ResultTables&, int step);
};

constexpr std::array<MotionColumn, 9> kColumns = {{
    {"Theta2", "deg", [](const ResultTables& t, int s) { return t.Theta(s, 0); }},
    {"Theta3", "deg", [](const ResultTables& t, int s) { return t.Theta(s, 1); }},
    {"Theta4", "deg", [](const ResultTables& t, int s) { return t.Theta(s, 2); }},
    {"Theta5", "deg", [](const ResultTables& t, int s) { return t.Theta(s, 4); }},
    {"Theta6", "deg", [](const ResultTables& t, int s) { return t.Theta(s, 5); }},
    {"Omega6", "rad/s", [](const ResultTables& t, int s) { return t.Omega(s, 4); }},
    {"Alpha6", "rad/s^2", [](const ResultTables& t, int s) { return t.Alpha(s, 4); }},
    {"Trans 1", "deg", [](const ResultTables& t, int s) { return t.Theta(s, 6); }},
    {"Trans 2", "deg", [](const ResultTables& t, int s) { return t.Theta(s, 7); }},
}};

void Put_Motion(Out& out, const ResultTables& tables, int last) {
    out << "\n  Step" << std::right;
    for (const auto& column : kColumns) out << std::setw(12) << column.name;
    out << "\n      ";
    for (const auto& column : kColumns) out << std::setw(12) << column.unit;
    out << '\n';
    const int stride = std::max(1, (last + kShownRows - 2) / (kShownRows - 1));
    for (int step = 0; step <= last; step += stride) {
        out << std::setw(6) << step;
        if (tables.StepValid(step)) {
            for (const auto& column : kColumns)
                out << std::setw(12) << FNRoundStr(column.value(tables, step), 3);
        } else {
            out << "  does not assemble";
        }
        out << '\n';
    }
}

}  // namespace

std::string Summary(const Program& program, std::optional<int> solved_steps) {
    const LinkageModel& model = program.model;
    const int last = Last_Step(model);
    Out out;
    out << (model.ModelTitle.empty() ? model.ModelName : model.ModelTitle) << "\n\n";
    if (!model.ModelPath.empty()) Put_Line(out, "File", model.ModelPath);
    Put_Lines(out, Geometry_Lines(model));
    Put_Lines(out, Class_Lines(model));
    Put_Line(out, "Drive", Drive_Text(model));
    Put_Line(out, "Steps", std::to_string(std::max(last + 1, 0)));
    Put_Line(out, "Steps not assembled", Failed_Steps(program.tables, last));
    if (solved_steps) Put_Forces(out, program, *solved_steps);
    Put_Motion(out, program.tables, last);
    return out.str();
}

}  // namespace kervol
