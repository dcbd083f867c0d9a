// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/finite.h"

#include <cmath>
#include <type_traits>
#include <variant>

#include "core/model_fields.h"

namespace kervol {
namespace {

template <class T>
bool All_Finite(const T& value) {
    if constexpr (std::is_floating_point_v<T>)
        return std::isfinite(value);
    else if constexpr (requires { value.begin() != value.end(); }) {
        for (const auto& element : value)
            if (!All_Finite(element)) return false;
    }
    return true;
}

}  // namespace

std::vector<std::string> Not_Finite(const LinkageModel& model) {
    std::vector<std::string> names;
    for (const ModelField& field : Model_Fields()) {
        const bool finite = std::visit([&](auto member) { return All_Finite(model.*member); }, field.member);
        if (!finite) names.emplace_back(field.name);
    }
    return names;
}

std::vector<std::string> Not_Finite(const Program& program) {
    std::vector<std::string> names = Not_Finite(program.model);
    const auto check = [&](const char* name, const auto& values) {
        if (!All_Finite(values)) names.emplace_back(name);
    };
    const ResultTables& tables = program.tables;
    check("Theta", tables.Theta);
    check("Omega", tables.Omega);
    check("Alpha", tables.Alpha);
    check("PointPos", tables.PointPos);
    check("PointVel", tables.PointVel);
    check("PointAcc", tables.PointAcc);
    check("VelRatio", tables.VelRatio);
    check("MechAdv", tables.MechAdv);
    check("ForceTable", tables.ForceTable);
    check("TorqueTable", tables.TorqueTable);
    check("FlywheelTorque", tables.FlywheelTorque);
    check("FFTTable", tables.FFTTable);
    check("DriveTheta", tables.DriveTheta);
    check("Torque21Imported", tables.Torque21Imported);
    check("FFTWork", program.fourier.FFTWork);
    check("PolarX", program.plots.PolarX);
    check("PolarY", program.plots.PolarY);
    check("PlotLimit", program.plots.PlotLimit);
    check("PlotBase", program.plots.PlotBase);
    check("PlotMin", program.animation.PlotMin);
    check("PlotMax", program.animation.PlotMax);
    check("PlotY0", program.animation.PlotY0);
    check("PathX", program.animation.PathX);
    check("PathY", program.animation.PathY);
    return names;
}

}  // namespace kervol
