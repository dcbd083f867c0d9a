// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/catalogue_table.h"

#include <array>

#include "core/fault.h"

namespace kervol {
namespace {

using namespace table_code;
using enum FunctionClass;

// clang-format off
constexpr auto kRows = std::to_array<CatalogueRow>({
    // Angles and rates of the links, from row 1
    {"Theta2", Theta, 0, {}, Scalar},
    {"Theta3", Theta, 1, {}, Scalar},
    {"Theta4", Theta, 2, {}, Scalar},
    {"Theta5", Theta, 4, {}, Scalar},
    {"Theta6", Theta, 5, {}, Scalar},
    {"Trans Ang-1", Theta, 6, {}, Scalar},
    {"Trans Ang-2", Theta, 7, {}, Scalar},
    {"Omega2", Omega, 0, {}, Scalar},
    {"Omega3", Omega, 1, {}, Scalar},
    {"Omega4", Omega, 2, {}, Scalar},
    {"Omega5", Omega, 3, {}, Scalar},
    {"Omega6", Omega, 4, {}, Scalar},
    {"Alpha2", Alpha, 0, {}, Scalar},
    {"Alpha3", Alpha, 1, {}, Scalar},
    {"Alpha4", Alpha, 2, {}, Scalar},
    {"Alpha5", Alpha, 3, {}, Scalar},
    {"Alpha6", Alpha, 4, {}, Scalar},
    // Velocities and accelerations of points, from row 18
    {"Veloc I 2,3", PointVel, 0, {}, Vector},
    {"Veloc I 3,4", PointVel, 1, {}, Vector},
    {"Veloc I 4,5", PointVel, 3, {}, Vector},
    {"Veloc I 5,6", PointVel, 4, {}, Vector},
    {"Veloc CP-1", PointVel, 2, {}, Vector},
    {"Veloc CP-2", PointVel, 5, {}, Vector},
    {"Accel I 2,3", PointAcc, 0, {}, Vector},
    {"Accel I 3,4", PointAcc, 1, {}, Vector},
    {"Accel I 4,5", PointAcc, 3, {}, Vector},
    {"Accel I 5,6", PointAcc, 4, {}, Vector},
    {"Accel CP-1", PointAcc, 2, {}, Vector},
    {"Accel CP-2", PointAcc, 5, {}, Vector},
    // Positions of the coupler points, from row 30
    {"Cpler Pt-1", PointPos, 2, {}, Plain},
    {"Cpler Pt-2", PointPos, 5, {}, Plain},
    // Ratios of the two stages, from row 32
    {"V-Ratio-1", VelRatio, 0, 0, Scalar},
    {"V-Ratio-2", VelRatio, 0, 1, Scalar},
    {"MchAdv-1", MechAdv, 0, 0, Scalar},
    {"MchAdv-2", MechAdv, 0, 1, Scalar},
    // Centres of gravity, from row 36
    // Deliberate: CG 2 is plain in its velocity alone.
    {"Veloc CG 2", PointVel, 6, {}, Plain},
    {"Veloc CG 3", PointVel, 7, {}, Vector},
    {"Veloc CG 4", PointVel, 8, {}, Vector},
    {"Veloc CG 5", PointVel, 9, {}, Vector},
    {"Veloc CG 6", PointVel, 10, {}, Vector},
    {"Accel CG 2", PointAcc, 6, {}, Vector},
    {"Accel CG 3", PointAcc, 7, {}, Vector},
    {"Accel CG 4", PointAcc, 8, {}, Vector},
    {"Accel CG 5", PointAcc, 9, {}, Vector},
    {"Accel CG 6", PointAcc, 10, {}, Vector},
    // Forces, from row 46
    {"Force 12", ForceTable, 5, {}, Vector},
    {"Force 14", ForceTable, 6, {}, Vector},
    {"Force 16", ForceTable, 10, {}, Vector},
    {"Force 32", ForceTable, 0, {}, Vector},
    {"Force 43", ForceTable, 1, {}, Vector},
    {"Force 54", ForceTable, 8, {}, Vector},
    {"Force 56", ForceTable, 9, {}, Vector},
    {"F Shaking", ForceTable, 7, {}, Plain},
    // Torques, from row 54
    {"Torque 12", TorqueTable, 0, {}, Scalar},
    {"Torque 21", TorqueTable, 3, {}, Scalar},
    {"Torque L3", TorqueTable, 1, {}, Scalar},
    {"Torque L4", TorqueTable, 2, {}, Scalar},
    {"Torque L5", TorqueTable, 4, {}, Scalar},
    {"Torque L6", TorqueTable, 5, {}, Scalar},
    // Inertia forces, from row 60
    {"F Inertia L2", ForceTable, 3, {}, Vector},
    {"F Inertia L3", ForceTable, 2, {}, Vector},
    {"F Inertia L4", ForceTable, 4, {}, Vector},
    {"F Inertia L5", ForceTable, 11, {}, Vector},
    {"F Inertia L6", ForceTable, 12, {}, Vector},
    // Flywheel, and the function that was transformed last, from row 65
    // Deliberate: plain, so that a component is asked for though it does nothing.
    {"Flywl Torque", FlywheelTorque, {}, {}, Plain},
    {"Current FFT", FFTTable, {}, {}, Plain},
});
// clang-format on
static_assert(kRows.size() == CatalogueRows);

}  // namespace

const CatalogueRow& Catalogue_Row(std::ptrdiff_t number) {
    if (number < 1 || number > CatalogueRows) Raise(fault::Subscript);
    return kRows[static_cast<std::size_t>(number) - 1];
}

bool Is_One_Number(const CatalogueRow& row) {
    return row.kind == FunctionClass::Scalar || row.code == table_code::FlywheelTorque;
}

}  // namespace kervol
