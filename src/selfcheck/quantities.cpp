// SPDX-License-Identifier: GPL-3.0-or-later
#include "selfcheck/quantities.h"

#include <cmath>

#include "catalogue/catalogue_table.h"
#include "catalogue/names.h"
#include "core/model_questions.h"

namespace kervol {
namespace {

using enum QuantityGroup;

Vec Scalar(double value) {
    return {value, 0};
}

/// How the functions of a table of the catalogue are read and compared.
struct TableReading {
    std::int16_t code;
    QuantityGroup group;
    RoundingScale scale;
    Vec (*read)(const RowValues& values, int index);
};

const TableReading* Reading_Of(std::int16_t code) {
    using enum RoundingScale;
    static constexpr TableReading kReadings[] = {
        {table_code::Theta, Motion, Itself,
         [](const RowValues& v, int i) { return Scalar(v.transmission(i - 6)); }},
        {table_code::Omega, Motion, Itself, [](const RowValues& v, int i) { return Scalar(v.omega(i)); }},
        {table_code::Alpha, Motion, Itself, [](const RowValues& v, int i) { return Scalar(v.alpha(i)); }},
        {table_code::PointVel, Motion, Itself, [](const RowValues& v, int i) { return v.velocity(i); }},
        {table_code::PointAcc, Motion, Itself, [](const RowValues& v, int i) { return v.acceleration(i); }},
        {table_code::PointPos, Motion, Length, [](const RowValues& v, int i) { return v.position(i); }},
        {table_code::VelRatio, Motion, Itself,
         [](const RowValues& v, int i) { return Scalar(v.VelRatio(i)); }},
        {table_code::MechAdv, Motion, Itself, [](const RowValues& v, int i) { return Scalar(v.MechAdv(i)); }},
        {table_code::TorqueTable, Forces, Moment,
         [](const RowValues& v, int i) { return Scalar(v.torque(i)); }},
        {table_code::ForceTable, Forces, Force, [](const RowValues& v, int i) { return v.force(i); }},
    };
    for (const TableReading& reading : kReadings)
        if (reading.code == code) return &reading;
    return nullptr;
}

bool Is_Of_Forces(const CatalogueRow& row, int index) {
    const bool is_table = row.code == table_code::ForceTable || row.code == table_code::TorqueTable;
    const bool is_point = row.code == table_code::PointVel || row.code == table_code::PointAcc;
    return is_table || (is_point && index >= 6);
}

bool Is_Of_Stage2(const CatalogueRow& row, int index) {
    switch (row.code) {
        case table_code::Theta:
            return index == 7;
        case table_code::VelRatio:
        case table_code::MechAdv:
            return index == 1;
        default:
            return index >= 3;
    }
}

/// The angles themselves are what everything else is held against; flywheel and transform follow from others.
bool Is_Compared(const CatalogueRow& row) {
    return Reading_Of(row.code) != nullptr && !(row.code == table_code::Theta && *row.column < 6);
}

/// In the order of the catalogue, kinematics before forces.
void Add_Functions(const LinkageModel& model, std::vector<Quantity>& list) {
    CatalogueNames names;
    Fill_Catalogue_Names(names);
    Change_Catalog_Labels(names, model.LinkageType);
    for (const QuantityGroup group : {Motion, Forces}) {
        for (int number = 1; number <= CatalogueRows; ++number) {
            const CatalogueRow& row = Catalogue_Row(number);
            if (!Is_Compared(row)) continue;
            const TableReading& reading = *Reading_Of(row.code);
            const int index = row.stage.value_or(*row.column);
            const bool of_forces = Is_Of_Forces(row, index);
            if (of_forces != (group == Forces)) continue;
            if (!Has_Stage2(model) && (of_forces || Is_Of_Stage2(row, index))) continue;
            list.push_back({.name = names.CatalogName(number),
                            .unit = model.UnitText(row.code),
                            .group = group,
                            .scale = reading.scale,
                            .is_vector = row.kind != FunctionClass::Scalar,
                            .needs_forces = of_forces,
                            .index = index,
                            .read = reading.read});
        }
    }
}

/// Names of the joints by their point in the tables; the coupler points are functions of the catalogue.
struct Joint {
    int point;
    const char* watt;
    const char* stephenson;
};
constexpr Joint kJoints[] = {{0, "A", "A"}, {1, "B", "B"}, {3, "D", "C"}, {4, "E", "D"}};

void Add_Loops(const LinkageModel& model, std::vector<Quantity>& list) {
    const bool both = Has_Stage2(model);
    for (int stage = 0; stage < (both ? 2 : 1); ++stage)
        list.push_back({.name = "Loop of Stage " + std::to_string(stage + 1) + " closes",
                        .unit = model.UnitText(6),
                        .group = Loops,
                        .scale = RoundingScale::Length,
                        .is_vector = true,
                        .is_residual = true,
                        .index = stage,
                        .read = [](const RowValues& v, int i) { return v.gap(i); }});
    for (const Joint& joint : kJoints) {
        if (joint.point >= 3 && !both) continue;
        list.push_back(
            {.name = std::string("Position ") + (model.LinkageType == "S" ? joint.stephenson : joint.watt),
             .unit = model.UnitText(6),
             .group = Loops,
             .scale = RoundingScale::Length,
             .is_vector = true,
             .index = joint.point,
             .read = [](const RowValues& v, int i) { return v.position(i); }});
    }
    if (!both) return;
    list.push_back({.name = model.LinkageType == "W" ? "Direction O4-D" : "Direction A-C",
                    .unit = model.UnitText(1),
                    .group = Loops,
                    .read = [](const RowValues& v, int) { return Scalar(v.input_line); }});
}

void Add_Balance(const LinkageModel& model, std::vector<Quantity>& list) {
    if (!Has_Stage2(model)) return;
    for (const int link : {2, 3, 4, 5, 6, 0}) {
        const std::string on = link == 0 ? "the whole" : "link " + std::to_string(link);
        list.push_back({.name = "Forces on " + on,
                        .unit = model.UnitText(10),
                        .group = Balance,
                        .scale = RoundingScale::Force,
                        .is_vector = true,
                        .needs_forces = true,
                        .is_residual = true,
                        .index = link,
                        .read = [](const RowValues& v, int i) { return v.open.force(i); }});
        list.push_back({.name = "Moments on " + on,
                        .unit = model.UnitText(9),
                        .group = Balance,
                        .scale = RoundingScale::Moment,
                        .needs_forces = true,
                        .is_residual = true,
                        .index = link,
                        .read = [](const RowValues& v, int i) { return Scalar(v.open.moment(i)); }});
    }
    list.push_back({.name = "Power of the drive",
                    .unit = model.UnitText(9) + "/sec",
                    .group = Balance,
                    .scale = RoundingScale::Power,
                    .needs_forces = true,
                    .read = [](const RowValues& v, int) { return Scalar(v.power); }});
}

}  // namespace

double Quantity::Size_Of(const RowValues& values) const {
    const Vec value = Of(values);
    return is_vector ? std::hypot(value.x, value.y) : value.x;
}

std::vector<Quantity> Quantities_Of(const LinkageModel& model) {
    std::vector<Quantity> list;
    Add_Loops(model, list);
    Add_Functions(model, list);
    Add_Balance(model, list);
    return list;
}

}  // namespace kervol
