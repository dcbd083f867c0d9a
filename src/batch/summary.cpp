// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/summary.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iomanip>
#include <sstream>
#include <string_view>

#include "core/number_text.h"

namespace kervol {
namespace {

constexpr int kLabelWidth = 26;
constexpr int kShownRows = 13;

using Out = std::ostringstream;

void Put_Line(Out& out, std::string_view label, const std::string& value) {
    out << "  " << std::left << std::setw(kLabelWidth) << label << value << '\n';
}

void Put_Number(Out& out, std::string_view label, float value, std::string_view unit) {
    Put_Line(out, label, Plain_Number(value) + " " + std::string(unit));
}

std::string Chain_Name(const LinkageModel& model) {
    if (model.LinkageType == "W") return "Watt";
    if (model.LinkageType == "S") return "Stephenson";
    return "\"" + model.LinkageType + "\", Stage 1 alone";
}

std::string Point_Text(float x, float y, const std::string& unit) {
    return Plain_Number(x) + ", " + Plain_Number(y) + " " + unit;
}

void Put_Geometry(Out& out, const LinkageModel& model) {
    const bool watt = model.LinkageType == "W";
    const std::string& length = model.UnitText(6);
    Put_Line(out, "Chain",
             Chain_Name(model) + ", Stage 1 " + model.OpenCross1Text + ", Stage 2 " + model.OpenCross2Text);
    Put_Number(out, "Link 1 (O2-O4)", model.Link1, length);
    Put_Number(out, "Link 2 (O2-A)", model.Link2, length);
    Put_Number(out, "Link 3 (A-B)", model.Link3, length);
    Put_Number(out, "Link 4 (O4-B)", model.Link4, length);
    if (watt) Put_Number(out, "Link O4-D", model.LinkO4D, length);
    if (watt) Put_Number(out, "Angle Delta4", model.Delta4Deg, "deg");
    Put_Number(out, watt ? "Link 5 (D-E)" : "Link 5 (C-D)", model.Link5, length);
    Put_Number(out, watt ? "Link 6 (O6-E)" : "Link 6 (O6-D)", model.Link6, length);
    Put_Number(out, "Coupler A-C", model.CouplerAC, length);
    Put_Number(out, "Angle Delta3", model.Delta3Deg, "deg");
    Put_Number(out, "Coupler point 2", model.Coupler2Length, length);
    Put_Number(out, "Angle Delta5", model.Delta5Deg, "deg");
    Put_Line(out, "Pivot O4", Point_Text(model.O4X, model.O4Y, length));
    Put_Line(out, "Pivot O6", Point_Text(model.O6X, model.O6Y, length));
    Put_Number(out, "Angle to ground", model.GroundAngleDeg, "deg");
}

std::string Drive_Text(const LinkageModel& model) {
    const std::string speed = Plain_Number(model.Omega2Start) + " rad/s";
    switch (model.CalcMode) {
        case 1:
            return "one position at " + Plain_Number(model.Theta2One) + " deg, " + speed;
        case 2:
            return "time steps from " + Plain_Number(model.TimeStart) + " to " + Plain_Number(model.TimeEnd) +
                   " by " + Plain_Number(model.TimeStep) + " s, starting at " +
                   Plain_Number(model.Theta2One) + " deg, " + speed + ", " + Plain_Number(model.Alpha2Const) +
                   " rad/s^2";
        case 3:
            return "angle steps from " + Plain_Number(model.ThetaMinDeg) + " to " +
                   Plain_Number(model.ThetaMaxDeg) + " by " + Plain_Number(model.ThetaStepDeg) + " deg, " +
                   speed;
        case 4:
            return "cam s-v-a data of " + model.DriveFileName;
        case 5:
            return "linkage data of " + model.DriveFileName;
        default:
            return "none (mode " + std::to_string(model.CalcMode) + ")";
    }
}

/// "3 to 7, 12": the steps that did not assemble.
std::string Failed_Steps(const ResultTables& tables, int last) {
    std::string text;
    for (int step = 0; step <= last; ++step) {
        if (tables.StepValid(step)) continue;
        const int first = step;
        while (step < last && !tables.StepValid(step + 1)) ++step;
        text += (text.empty() ? "" : ", ") + std::to_string(first);
        if (step > first) text += " to " + std::to_string(step);
    }
    return text.empty() ? "none" : text;
}

/// The class in words, as the classification put it or, where none ran, as the file has it.
std::string Class_Text(const std::string& text, const std::string& stage_class) {
    const std::size_t words = std::string_view("Stage  1  ").size();
    if (text.size() > words) return text.substr(words);
    if (stage_class == "Y") return "is Grashof";
    if (stage_class == "N") return "is Non - Grashof";
    return stage_class == "SC" ? "is Special Case Grashof" : "not classified";
}

void Put_Classes(Out& out, const LinkageModel& model) {
    Put_Line(out, "Stage 1", Class_Text(model.StageText(0), model.Stage1Class));
    if (model.LinkageType == "W") Put_Line(out, "Stage 2", Class_Text(model.StageText(1), model.Stage2Class));
}

/// In four digits, which is as much as a summary is read for.
std::string Short_Number(double value) {
    std::array<char, 32> text;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, 4);
    return Plain_Number(To_Double({text.data(), static_cast<std::size_t>(end.ptr - text.data())}));
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
    return Short_Number(value(low)) + " at step " + std::to_string(low) + " to " + Short_Number(value(high)) +
           " at step " + std::to_string(high);
}

struct ForceLine {
    std::string_view label;  ///< the one of the Watt chain
    std::string_view stephenson_label;
    int entry;  ///< of `ForceTable`
};

constexpr std::array<ForceLine, 8> kForces = {{
    {"Force at O2", "Force at O2", 5},
    {"Force at A", "Force at A", 0},
    {"Force at B", "Force at B", 1},
    {"Force at O4", "Force at O4", 6},
    {"Force at D", "Force at C", 8},
    {"Force at E", "Force at D", 9},
    {"Force at O6", "Force at O6", 10},
    {"Shaking force", "Shaking force", 7},
}};

void Put_Forces(Out& out, const Program& program, int solved_steps) {
    const ResultTables& tables = program.tables;
    const LinkageModel& model = program.model;
    const std::string torque =
        Range_Text(tables, solved_steps, [&](int step) { return double(tables.TorqueTable(step, 0)); });
    if (torque.empty()) return Put_Line(out, "Forces", "none; no step that assembles could be solved");
    Put_Line(out, "Driving torque", torque + " " + model.UnitText(9));
    for (const ForceLine& line : kForces) {
        const std::string force = Range_Text(tables, solved_steps, [&](int step) {
            const auto& vector = tables.ForceTable(step, line.entry);
            return std::hypot(double(vector(0)), double(vector(1)));
        });
        Put_Line(out, model.LinkageType == "S" ? line.stephenson_label : line.label,
                 force + " " + model.UnitText(10));
    }
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
    const int last = std::min<int>(model.NumSteps, MaxSteps);
    Out out;
    out << (model.ModelTitle.empty() ? model.ModelName : model.ModelTitle) << "\n\n";
    if (!model.ModelPath.empty()) Put_Line(out, "File", model.ModelPath);
    Put_Geometry(out, model);
    Put_Classes(out, model);
    Put_Line(out, "Drive", Drive_Text(model));
    Put_Line(out, "Steps", std::to_string(std::max(last + 1, 0)));
    Put_Line(out, "Steps not assembled", Failed_Steps(program.tables, last));
    if (solved_steps) Put_Forces(out, program, *solved_steps);
    Put_Motion(out, program.tables, last);
    return out.str();
}

}  // namespace kervol
