// SPDX-License-Identifier: GPL-3.0-or-later
#include "selfcheck/row_values.h"

#include <algorithm>
#include <cmath>

#include "core/arithmetic.h"

namespace kervol {
namespace {

/// Column of `Theta` by link number.
constexpr int kThetaColumn[] = {-1, -1, 0, 1, 2, 4, 5};
/// Entry of `ForceTable` for the inertia of a link, column of `TorqueTable` for the torque on it.
constexpr int kInertiaEntry[] = {-1, -1, 3, 2, 4, 11, 12};
constexpr int kTorqueColumn[] = {-1, -1, -1, 1, 2, 4, 5};

LinkAngles Angles_Of(const LinkageModel& model, const RowInput& row) {
    LinkAngles theta;
    for (int link = 2; link <= NumLinks; ++link)
        theta(link) = row.degrees(kThetaColumn[link]) * RadiansPerDegree - model.GroundAngle;
    return theta;
}

/// An angle between two lines, 0 to 90 degrees.
double Acute(double degrees) {
    const double turned = std::fmod(std::abs(degrees), 180.0);
    return std::min(turned, 180 - turned);
}

/// A plain difference, or what the row held before less a half turn if that was above 90 degrees; which of
/// the two, and of what angle, only a row that was cleared and calculated once tells.
double Stage1_Transmission(const RowInput& row) {
    return row.was_cleared ? std::abs(row.degrees(2) - row.degrees(1)) : row.tabulated.transmission(0);
}

double Stage2_Transmission(const RowInput& row) {
    const double plain = std::abs(row.degrees(5) - row.degrees(4));
    return plain > 90 ? std::abs(180 - plain) : plain;
}

void Put_Transmission(const RowInput& row, Rules rules, RowValues& values) {
    const bool tabulated = rules.Has(Deviation::Transmission);
    values.transmission(0) = tabulated ? Stage1_Transmission(row) : Acute(row.degrees(2) - row.degrees(1));
    values.transmission(1) = tabulated ? Stage2_Transmission(row) : Acute(row.degrees(5) - row.degrees(4));
}

/// Where a ratio has no value the cell keeps what it held.
void Put_Ratios(const RowInput& row, RowValues& values) {
    const double omega2 = values.omega(0);
    for (int stage = 0; stage < 2; ++stage) {
        const double output = values.omega(stage == 0 ? 2 : 4);
        values.VelRatio(stage) = Is_Zero(omega2) ? row.tabulated.VelRatio(stage) : output / omega2;
        values.MechAdv(stage) = Is_Zero(output) ? row.tabulated.MechAdv(stage) : omega2 / output;
    }
}

void Put_Motion(const LinkageModel& model, const RowInput& row, const LinkAngles& theta,
                const RowMotion& motion, RowValues& values) {
    for (int stage = 0; stage < 2; ++stage) values.gap(stage) = motion.gap(stage);
    const double line = model.LinkageType == "W" ? theta(4) + model.Delta4 : theta(3) + model.Delta3;
    const double degrees = line * DegreesPerRadian + model.GroundAngleDeg;
    // A turn more or less is the same line.
    values.input_line = degrees + 360 * std::nearbyint((row.degrees(3) - degrees) / 360);
    for (int link = 2; link <= NumLinks; ++link) {
        values.omega(link - 2) = motion.link(link).omega;
        values.alpha(link - 2) = motion.link(link).alpha;
        values.velocity(link + 4) = motion.cg(link).velocity;
        values.acceleration(link + 4) = motion.cg(link).acceleration;
    }
    for (int point = 0; point < 6; ++point) {
        values.position(point) = motion.point(point).position;
        values.velocity(point) = motion.point(point).velocity;
        values.acceleration(point) = motion.point(point).acceleration;
    }
}

JointForces Tabulated_Joints(const RowValues& values) {
    const auto& force = values.force;
    return {.F12 = force(5),
            .F32 = force(0),
            .F43 = force(1),
            .F14 = force(6),
            .F54 = force(8),
            .F65 = force(9),
            .F16 = force(10),
            .T12 = values.torque(0)};
}

void Put_Joints(const JointForces& joints, RowValues& values) {
    auto& force = values.force;
    force(0) = joints.F32;
    force(1) = joints.F43;
    force(5) = joints.F12;
    force(6) = joints.F14;
    force(7) = -1.0 * (joints.F12 + joints.F14 + joints.F16);
    force(8) = joints.F54;
    force(9) = joints.F65;
    force(10) = joints.F16;
    values.torque(0) = joints.T12;
    values.torque(3) = -joints.T12;
}

void Put_Loads(const RowLoads& loads, RowValues& values) {
    for (int link = 2; link <= NumLinks; ++link) {
        const LinkLoad& load = loads(link);
        values.force(kInertiaEntry[link]) = -1.0 * load.inertia;
        if (kTorqueColumn[link] >= 0)
            values.torque(kTorqueColumn[link]) = load.torque + load.external_moment - load.inertia_torque;
    }
}

bool Put_Forces(const LinkageModel& model, const RowInput& row, const LinkAngles& theta,
                const RowMotion& motion, Rules rules, RowValues& values) {
    const RowLoads loads = Loads_Of_Row(model, theta, motion, row.torque6, rules);
    const auto joints = Solve_Joints(model, theta, motion, loads, rules);
    if (!joints) return false;
    Put_Joints(*joints, values);
    Put_Loads(loads, values);
    values.open = Imbalance_Of(model, theta, motion, loads, Tabulated_Joints(row.tabulated), rules);
    const RowPower power = Power_Of(motion, loads);
    values.kinetic_power = power.kinetic;
    values.load_power = power.loads;
    values.power = joints->T12 * motion.link(2).omega;
    return true;
}

}  // namespace

RowInput Tabulated_Row(const LinkageModel& model, const ResultTables& tables, int step, bool has_forces) {
    RowInput row;
    RowValues& values = row.tabulated;
    const auto vector = [](const Table<float, 2>& cell) { return Vec{cell(0), cell(1)}; };
    for (int column = 0; column < 6; ++column) row.degrees(column) = tables.Theta(step, column);
    values.input_line = row.degrees(3);
    for (int stage = 0; stage < 2; ++stage) {
        values.transmission(stage) = tables.Theta(step, 6 + stage);
        values.VelRatio(stage) = tables.VelRatio(step, stage);
        values.MechAdv(stage) = tables.MechAdv(step, stage);
    }
    for (int column = 0; column < 5; ++column) {
        values.omega(column) = tables.Omega(step, column);
        values.alpha(column) = tables.Alpha(step, column);
    }
    for (int point = 0; point < 11; ++point) {
        values.position(point) = vector(tables.PointPos(step, point));
        values.velocity(point) = vector(tables.PointVel(step, point));
        values.acceleration(point) = vector(tables.PointAcc(step, point));
    }
    row.has_forces = has_forces;
    if (!has_forces) return row;
    for (int entry = 0; entry < 13; ++entry) values.force(entry) = vector(tables.ForceTable(step, entry));
    for (int column = 0; column < 6; ++column) values.torque(column) = tables.TorqueTable(step, column);
    values.power = values.torque(0) * values.omega(0);
    row.torque6 = model.TorqueImported ? tables.Torque21Imported(step) : model.LinkTorque(6);
    return row;
}

std::optional<RowValues> Row_By_Rules(const LinkageModel& model, const RowInput& row, Rules rules) {
    const LinkAngles theta = Angles_Of(model, row);
    Rates crank = row.crank;
    if (!rules.Has(Deviation::CrankAlpha)) crank.alpha = row.true_alpha;
    const auto motion = Motion_Of_Row(model, theta, crank, rules);
    if (!motion) return std::nullopt;
    RowValues values;
    Put_Motion(model, row, theta, *motion, values);
    Put_Transmission(row, rules, values);
    Put_Ratios(row, values);
    if (row.has_forces && !Put_Forces(model, row, theta, *motion, rules, values)) return std::nullopt;
    return values;
}

std::optional<TorqueByWork> Torque_By_Work(const LinkageModel& model, const RowInput& row) {
    const LinkAngles theta = Angles_Of(model, row);
    const Rules rules = Rules::Consistent();
    const auto motion = Motion_Of_Row(model, theta, {row.crank.omega, row.true_alpha}, rules);
    const auto unit_speed = Motion_Of_Row(model, theta, {1, 0}, rules);
    if (!motion || !unit_speed) return std::nullopt;
    const RowPower power = Power_Of(*unit_speed, Loads_Of_Row(model, theta, *motion, row.torque6, rules));
    return TorqueByWork{power.kinetic - power.loads, power.gross};
}

}  // namespace kervol
