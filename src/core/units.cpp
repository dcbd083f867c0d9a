// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/units.h"

#include <array>

#include "core/arithmetic.h"

namespace kervol {
namespace {

struct UnitLabels {
    std::string length, force, mass, inertia;
};

UnitLabels Labels_Of(std::int16_t system) {
    static const std::array<UnitLabels, 5> kSystems = {{
        {"in", "lb", "bl", "in-lb-s^2"},
        {"ft", "lb", "sl", "ft-lb-^2"},  // deliberate: no "s" here
        {"m", "N", "kg", "kg-m^2"},
        {"cm", "dyn", "g", "g-cm^2"},
        {"mm", "kN", "kg", "kg-mm^2"},
    }};
    if (system < 1 || system > 5) return {};
    return kSystems[static_cast<std::size_t>(system) - 1];
}

}  // namespace

void Put_Units(std::int16_t system, Table<std::string, 19>& table, std::int16_t count) {
    const auto [length, force, mass, inertia] = Labels_Of(system);
    const std::string torque = force + "-" + length;
    const std::array<std::string, 18> texts = {
        "degrees",          // 1: Theta
        "rad/sec",          // 2: Omega
        "rad/sec^2",        // 3: Alpha
        length + "/sec",    // 4: PointVel
        length + "/sec^2",  // 5: PointAcc
        length,             // 6: PointPos and lengths of all screens
        "ratio",            // 7: VelRatio
        "ratio",            // 8: MechAdv
        torque,             // 9: TorqueTable
        force,              // 10: ForceTable
        force,              // 11
        torque,             // 12
        force,              // 13
        mass,               // 14
        inertia,            // 15
        "rad/sec^3",        // 16
        length + "/sec^3",  // 17
        torque,             // 18: FlywheelTorque
    };
    for (int i = 1; i <= count; ++i) {
        std::string& entry = table(i);
        entry = texts.at(static_cast<std::size_t>(i) - 1);
    }
}

void Put_Units(LinkageModel& model) {
    Put_Units(model.UnitSystem, model.UnitText, Int16(model.UnitCount + 1.0));
}

}  // namespace kervol
