// SPDX-License-Identifier: GPL-3.0-or-later
// The 66 output functions: under which name each is offered, and where its numbers stand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kervol {

inline constexpr int CatalogueRows = 66;

/// Codes of the result tables that a function is read from; also the index of its unit in `UnitText`, but for
/// `FFTTable`, whose unit is that of the transformed function.
namespace table_code {
inline constexpr std::int16_t Theta = 1;
inline constexpr std::int16_t Omega = 2;
inline constexpr std::int16_t Alpha = 3;
inline constexpr std::int16_t PointVel = 4;
inline constexpr std::int16_t PointAcc = 5;
inline constexpr std::int16_t PointPos = 6;
inline constexpr std::int16_t VelRatio = 7;
inline constexpr std::int16_t MechAdv = 8;
inline constexpr std::int16_t TorqueTable = 9;
inline constexpr std::int16_t ForceTable = 10;
inline constexpr std::int16_t FFTTable = 14;
inline constexpr std::int16_t FlywheelTorque = 18;
}  // namespace table_code

/// What a pick of the function opens on a selection screen: of a scalar no component is asked for, of a
/// vector the frame too, of a plain one the component alone.
enum class FunctionClass { Plain, Scalar, Vector };

struct CatalogueRow {
    std::string_view name;  ///< the one of the Watt chain where it depends on the chain
    std::int16_t code;      ///< one of `table_code`
    /// Column of the table or index of the point; nothing where the table has no column of the row's own.
    std::optional<std::int16_t> column;
    /// Column of `VelRatio` or `MechAdv`; nothing for all other tables.
    std::optional<std::int16_t> stage;
    FunctionClass kind;
};

/// Row 1 to 66; fault 9 outside.
const CatalogueRow& Catalogue_Row(std::ptrdiff_t number);

/// A function without components: a scalar, and the crank torque with a flywheel.
bool Is_One_Number(const CatalogueRow& row);

}  // namespace kervol
