// SPDX-License-Identifier: GPL-3.0-or-later
#include "dynamics/force_results.h"

#include "dynamics/force_system.h"

namespace kervol {
namespace {

/// Entries of `ForceTable` that more than one line here names.
constexpr int kForce12 = 5, kForce14 = 6, kShaking = 7, kForce16 = 10;

struct JointEntry {
    int column;  ///< of the unknown
    int entry;   ///< of `ForceTable`
};
constexpr JointEntry kJoints[] = {
    {unknown::F12, kForce12}, {unknown::F32, 0}, {unknown::F43, 1},        {unknown::F14, kForce14},
    {unknown::F54, 8},        {unknown::F65, 9}, {unknown::F16, kForce16},
};

/// Entry of `ForceTable` for the inertia of a link, by link number.
constexpr int kInertiaEntry[] = {-1, -1, 3, 2, 4, 11, 12};

void Put_Forces(Table<float, 13, 2>& force, const StepLoads& loads, const SystemVector& solution) {
    for (const auto& [column, entry] : kJoints) {
        force(entry, 0) = Single(solution(column));
        force(entry, 1) = Single(solution(column + 1));
    }
    for (int link = 2; link <= NumLinks; ++link) {
        force(kInertiaEntry[link], 0) = Single(-loads(link).inertia_force.x);
        force(kInertiaEntry[link], 1) = Single(-loads(link).inertia_force.y);
    }
    for (int part = 0; part <= 1; ++part)
        force(kShaking, part) =
            Single(-(double(force(kForce14, part)) + force(kForce12, part) + force(kForce16, part)));
}

/// Torque on a link beside that of the joint forces.
float Torque_On(const LinkLoads& load) {
    return Single(double(load.external_torque) + load.moment - load.inertia_torque);
}

void Put_Torques(Table<float, 7>& torque, const StepLoads& loads, double T12) {
    torque(0) = Single(T12);
    torque(1) = Torque_On(loads(3));
    torque(2) = Torque_On(loads(4));
    torque(3) = -torque(0);
    torque(4) = Torque_On(loads(5));
    torque(5) = Torque_On(loads(6));
}

}  // namespace

void Put_Force_Results(ResultTables& tables, int step, const StepLoads& loads, const SystemVector& solution) {
    Put_Forces(tables.ForceTable(step), loads, solution);
    Put_Torques(tables.TorqueTable(step), loads, solution(unknown::T12));
}

}  // namespace kervol
