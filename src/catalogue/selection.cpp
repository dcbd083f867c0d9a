// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/selection.h"

#include <cmath>

#include "catalogue/catalogue_table.h"
#include "catalogue/preset_table.h"
#include "core/mathematics.h"
#include "core/report.h"

namespace kervol {
namespace {

/// Components of a vector below this size are taken as 0.
constexpr double kTolerance = 0.0001;

using Pair = Table<float, 2>;

/// The number of a function that has no components; nothing for any other table code.
const float* Stored_Number(const ResultTables& tables, const Selections& selections, std::int16_t step,
                           std::int16_t k) {
    switch (selections.SelTable(k)) {
        case table_code::Theta:
            return &tables.Theta(step, selections.SelIndex(k));
        case table_code::Omega:
            return &tables.Omega(step, selections.SelIndex(k));
        case table_code::Alpha:
            return &tables.Alpha(step, selections.SelIndex(k));
        case table_code::VelRatio:
            return &tables.VelRatio(step, selections.SelStage(k));
        case table_code::MechAdv:
            return &tables.MechAdv(step, selections.SelStage(k));
        case table_code::TorqueTable:
            return &tables.TorqueTable(step, selections.SelIndex(k));
        case table_code::FFTTable:
            return &tables.FFTTable(step, selections.SelComp(k));
        case table_code::FlywheelTorque:
            return &tables.FlywheelTorque(step);
        default:
            return nullptr;
    }
}

/// X and Y of a vector function, local frame; nothing for any other table code.
const Pair* Stored_Vector(const ResultTables& tables, const Selections& selections, std::int16_t step,
                          std::int16_t k) {
    switch (selections.SelTable(k)) {
        case table_code::PointVel:
            return &tables.PointVel(step, selections.SelIndex(k));
        case table_code::PointAcc:
            return &tables.PointAcc(step, selections.SelIndex(k));
        case table_code::PointPos:
            return &tables.PointPos(step, selections.SelIndex(k));
        case table_code::ForceTable:
            return &tables.ForceTable(step, selections.SelIndex(k));
        default:
            return nullptr;
    }
}

float Cleaned(float part) {
    return std::abs(part) < kTolerance ? 0.0F : part;
}

/// X, Y, magnitude and angle in the chosen frame, numbered as `SelComp`. `column` is that of the link with
/// which a local frame turns.
Table<float, 4> Components(const Program& program, std::int16_t step, std::int16_t column,
                           const Pair& stored) {
    float x, y;
    Rotate(stored(0), stored(1), program.model.GroundAngleDeg, 1, x, y);
    if (program.selections.LocalCoords != 0) Rotate(x, y, program.tables.Theta(step, column), -1, x, y);
    Table<float, 4> parts;
    parts(0) = Cleaned(x);
    parts(1) = Cleaned(y);
    Cart_to_Polar(parts(0), parts(1), parts(2), parts(3));
    return parts;
}

}  // namespace

void Set_Selection(const CatalogueNames& names, Selections& selections, std::string_view name,
                   std::int16_t k) {
    selections.SelFFT = false;
    selections.SelScalar = false;
    selections.SelVector = false;
    int number = 1;
    while (number <= CatalogueRows && names.CatalogName(number) != name) ++number;
    if (number > CatalogueRows) return;

    const CatalogueRow& row = Catalogue_Row(number);
    selections.SelTable(k) = row.code;
    if (row.column) selections.SelIndex(k) = *row.column;
    if (row.stage) selections.SelStage(k) = *row.stage;
    selections.SelFFT = row.code == table_code::FFTTable;
    selections.SelScalar = row.kind == FunctionClass::Scalar;
    selections.SelVector = row.kind == FunctionClass::Vector;
}

void Set_Component(const CatalogueNames& names, Selections& selections, std::string_view text,
                   std::int16_t k) {
    for (std::int16_t entry = component::X; entry <= component::Ang; ++entry) {
        if (names.ComponentName(entry) != text) continue;
        selections.SelCompName(k) = text;
        selections.SelComp(k) = static_cast<std::int16_t>(entry - component::X);
    }
}

void Rotating_Column(const LinkageModel& model, const Selections& selections, std::int16_t& column) {
    switch (selections.SelIndex(selections.SelCurrent)) {
        case 0:
            column = 0;
            break;
        case 1:
            column = 2;
            break;
        case 2:
            column = 1;
            break;
        case 3:
            if (model.LinkageType == "W") column = 3;
            if (model.LinkageType == "S") column = 1;
            break;
        case 4:
            column = 5;
            break;
        case 5:
            column = 4;
            break;
        default:
            // Deliberate: what lies behind the points of the links does not turn with its own link.
            break;
    }
}

void Select_Variable(const Program& program, std::int16_t step, std::int16_t k, float& value) {
    std::int16_t column = 0;
    // Deliberate: also for a number without a frame, so that a `SelCurrent` outside its range is a fault.
    Rotating_Column(program.model, program.selections, column);
    if (const float* number = Stored_Number(program.tables, program.selections, step, k))
        value = *number;
    else if (const Pair* pair = Stored_Vector(program.tables, program.selections, step, k))
        value = Components(program, step, column, *pair)(program.selections.SelComp(k));
}

void Select_PolarVariable(Program& program, std::int16_t step, std::int16_t k, float& magnitude,
                          float& angle) {
    Procedure(program, "Select_PolarVariable", [&] {
        const Pair* pair = Stored_Vector(program.tables, program.selections, step, k);
        if (pair == nullptr) return;
        std::int16_t column = 0;
        Rotating_Column(program.model, program.selections, column);
        const Table<float, 4> parts = Components(program, step, column, *pair);
        magnitude = parts(2);
        angle = parts(3);
    });
}

}  // namespace kervol
