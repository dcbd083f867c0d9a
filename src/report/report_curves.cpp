// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/report_curves.h"

#include <cmath>
#include <utility>

#include "core/model_questions.h"
#include "dynamics/joint_forces.h"
#include "report/page_parts.h"

namespace kervol {
namespace {

/// A curve of the steps that assembled.
template <class Value>
Curve Curve_Of(const Program& program, std::string name, Value&& value) {
    Curve curve{std::move(name), {}};
    for (int step = 0; step <= Last_Step(program.model); ++step) {
        curve.values.emplace_back();
        if (program.tables.StepValid(step)) curve.values.back() = double(value(step));
    }
    return curve;
}

/// Curves of columns of a table, named by their links; those of Stage 1 first.
struct LinkColumn {
    const char* name;
    int column;
    bool stage2;
};

template <class StepTable>
std::vector<Curve> Columns(const Program& program, const StepTable& table,
                           std::initializer_list<LinkColumn> columns) {
    std::vector<Curve> curves;
    for (const LinkColumn& column : columns) {
        if (column.stage2 && !Has_Stage2(program.model)) continue;
        curves.push_back(
            Curve_Of(program, column.name, [&](int step) { return table(step, column.column); }));
    }
    return curves;
}

template <class StepTable>
Curve Magnitude(const Program& program, std::string name, const StepTable& table, int entry) {
    return Curve_Of(program, std::move(name), [&](int step) {
        const auto& vector = table(step, entry);
        return std::hypot(double(vector(0)), double(vector(1)));
    });
}

template <class StepTable>
std::vector<Curve> Coupler_Points(const Program& program, const StepTable& table) {
    std::vector<Curve> curves = {Magnitude(program, "Coupler point 1", table, 2)};
    if (Has_Stage2(program.model)) curves.push_back(Magnitude(program, "Coupler point 2", table, 5));
    return curves;
}

std::vector<Curve> Joints(const Program& program, std::size_t first, std::size_t count) {
    std::vector<Curve> curves;
    for (std::size_t i = first; i < first + count; ++i)
        curves.push_back(Magnitude(program, std::string(JointForces.at(i).Name(program.model)),
                                   program.tables.ForceTable, JointForces.at(i).entry));
    return curves;
}

/// Differences from step to step, each taken the short way round.
std::vector<double> Unwound_Crank(const Program& program) {
    std::vector<double> angles;
    for (int step = 0; step <= Last_Step(program.model); ++step) {
        const double angle = program.tables.Theta(step, 0);
        angles.push_back(angles.empty() ? angle
                                        : angles.back() + std::remainder(angle - angles.back(), 360.0));
    }
    return angles;
}

}  // namespace

std::vector<CurveGroup> Motion_Curves(const Program& program) {
    const LinkageModel& model = program.model;
    const ResultTables& tables = program.tables;
    std::vector<CurveGroup> groups;
    groups.push_back(
        {"Link angles", "deg",
         Columns(program, tables.Theta,
                 {{"Link 3", 1, false}, {"Link 4", 2, false}, {"Link 5", 4, true}, {"Link 6", 5, true}}),
         true});
    groups.push_back({TransmissionAngles, "deg",
                      Columns(program, tables.Theta, {{"Stage 1", 6, false}, {"Stage 2", 7, true}})});
    groups.push_back(
        {"Angular velocities", model.UnitText(2),
         Columns(program, tables.Omega,
                 {{"Link 3", 1, false}, {"Link 4", 2, false}, {"Link 5", 3, true}, {"Link 6", 4, true}})});
    groups.push_back(
        {"Angular accelerations", model.UnitText(3),
         Columns(program, tables.Alpha,
                 {{"Link 3", 1, false}, {"Link 4", 2, false}, {"Link 5", 3, true}, {"Link 6", 4, true}})});
    groups.push_back(
        {"Velocities of coupler points", model.UnitText(4), Coupler_Points(program, tables.PointVel)});
    groups.push_back(
        {"Accelerations of coupler points", model.UnitText(5), Coupler_Points(program, tables.PointAcc)});
    return groups;
}

std::vector<CurveGroup> Force_Curves(const Program& program, int solved_steps) {
    const LinkageModel& model = program.model;
    const ResultTables& tables = program.tables;
    std::vector<CurveGroup> groups;
    if (!model.DynamicsCalculated) return groups;
    CurveGroup torque = {DrivingTorque, model.UnitText(9), {}};
    torque.curves.push_back(
        Curve_Of(program, "without a flywheel", [&](int step) { return tables.TorqueTable(step, 0); }));
    if (model.FlywheelCalculated)
        torque.curves.push_back(
            Curve_Of(program, "with a flywheel", [&](int step) { return tables.FlywheelTorque(step); }));
    groups.push_back(std::move(torque));
    groups.push_back({ShakingForce,
                      model.UnitText(10),
                      {Magnitude(program, ShakingForce, tables.ForceTable, ShakingForceEntry)}});
    groups.push_back({"Pin forces of Stage 1", model.UnitText(10), Joints(program, 0, Stage1Joints)});
    if (Has_Stage2(model))
        groups.push_back({"Pin forces of Stage 2", model.UnitText(10),
                          Joints(program, Stage1Joints, JointForces.size() - Stage1Joints)});
    for (CurveGroup& group : groups)
        for (Curve& curve : group.curves)
            for (std::size_t step = 0; step < curve.values.size(); ++step)
                if (static_cast<int>(step) >= solved_steps) curve.values[step].reset();
    return groups;
}

Abscissae Sweep_Abscissae(const Program& program) {
    const LinkageModel& model = program.model;
    if (model.CalcMode == 1 || model.CalcMode == 3) return {"Crank angle, deg", true, Unwound_Crank(program)};
    Abscissae times = {"Time, s", false, {}};
    for (int step = 0; step <= Last_Step(model); ++step)
        times.values.push_back(double(model.TimeStart) + step * double(model.TimeStep));
    return times;
}

std::string Group_Charts(const std::vector<CurveGroup>& groups, const Abscissae& abscissae) {
    std::string text;
    for (const CurveGroup& group : groups)
        text += Element("figure", Chart_Svg({.title = group.title,
                                             .x_label = abscissae.label,
                                             .y_label = group.unit,
                                             .abscissae = abscissae.values,
                                             .curves = group.curves,
                                             .kind = ChartKind::Lines,
                                             .turns_x = abscissae.is_angle,
                                             .turns_y = group.turns}));
    return text;
}

std::optional<Extremes> Extremes_Of(const Curve& curve) {
    std::optional<Extremes> found;
    int step = 0;
    for (const auto& value : curve.values) {
        if (value && !found) found = Extremes{*value, *value, step, step};
        if (value && *value < found->low) {
            found->low = *value;
            found->low_step = step;
        }
        if (value && *value > found->high) {
            found->high = *value;
            found->high_step = step;
        }
        ++step;
    }
    return found;
}

}  // namespace kervol
