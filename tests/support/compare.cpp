// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/compare.h"

#include <functional>
#include <variant>

#include "core/model_fields.h"

namespace kervol {

std::vector<std::string> Differing_Fields(const LinkageModel& left, const LinkageModel& right) {
    std::vector<std::string> names;
    for (const ModelField& field : Model_Fields()) {
        const bool same = std::visit(
            [&](auto member) { return std::equal_to<>{}(left.*member, right.*member); }, field.member);
        if (!same) names.emplace_back(field.name);
    }
    return names;
}

void Poison_Tables(ResultTables& tables) {
    tables.Theta.Fill(Poison);
    tables.Omega.Fill(Poison);
    tables.Alpha.Fill(Poison);
    tables.PointPos.Fill(Poison);
    tables.PointVel.Fill(Poison);
    tables.PointAcc.Fill(Poison);
    tables.VelRatio.Fill(Poison);
    tables.MechAdv.Fill(Poison);
    tables.ForceTable.Fill(Poison);
    tables.TorqueTable.Fill(Poison);
    tables.FlywheelTorque.Fill(Poison);
    tables.FFTTable.Fill(Poison);
    tables.DriveTheta.Fill(Poison);
    tables.Torque21Imported.Fill(Poison);
}

}  // namespace kervol
