// SPDX-License-Identifier: GPL-3.0-or-later
// The 66 output functions: place of each in the result tables, class, bounds.
#include "catalogue/catalogue_table.h"

#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <tuple>

#include "catalogue/expected_tables.h"
#include "core/result_tables.h"
#include "core/thrown_fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

std::string_view Name_Of(FunctionClass kind) {
    switch (kind) {
        case FunctionClass::Plain:
            return "plain";
        case FunctionClass::Scalar:
            return "scalar";
        case FunctionClass::Vector:
            return "vector";
    }
    return "";
}

int Or_None(const std::optional<std::int16_t>& column) {
    return column ? *column : -1;
}

TEST(CatalogueTable, HasThePlaceAndTheClassOfEveryFunction) {
    ASSERT_EQ(Expected_Functions().size(), 66U);
    for (const ExpectedFunction& expected : Expected_Functions()) {
        SCOPED_TRACE(expected.number);
        const CatalogueRow& row = Catalogue_Row(expected.number);
        EXPECT_EQ(row.code, expected.code);
        EXPECT_EQ(Or_None(row.column), expected.column);
        EXPECT_EQ(Or_None(row.stage), expected.stage);
        EXPECT_EQ(Name_Of(row.kind), expected.kind);
    }
}

TEST(CatalogueTable, NamesEveryFunctionAsTheWattChainDoes) {
    const std::map<int, std::string_view> other = {{20, "Veloc I 4,5"}, {26, "Accel I 4,5"}};
    for (const ExpectedFunction& expected : Expected_Functions()) {
        const auto found = other.find(expected.number);
        EXPECT_EQ(Catalogue_Row(expected.number).name, found == other.end() ? expected.name : found->second);
    }
}

TEST(CatalogueTable, HasNoNameAndNoPlaceTwice) {
    std::set<std::string_view> names;
    std::set<std::tuple<int, int, int>> places;
    for (int number = 1; number <= 66; ++number) {
        const CatalogueRow& row = Catalogue_Row(number);
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        EXPECT_TRUE(places.insert({row.code, Or_None(row.column), Or_None(row.stage)}).second) << row.name;
    }
}

/// Reads the row's place at step 0; nothing to check for the two tables without columns.
float Read_Place(const ResultTables& results, const CatalogueRow& row) {
    const int column = Or_None(row.column), stage = Or_None(row.stage);
    if (row.code == 1) return results.Theta(0, column);
    if (row.code == 2) return results.Omega(0, column);
    if (row.code == 3) return results.Alpha(0, column);
    if (row.code == 4) return results.PointVel(0, column, 1);
    if (row.code == 5) return results.PointAcc(0, column, 1);
    if (row.code == 6) return results.PointPos(0, column, 1);
    if (row.code == 7) return results.VelRatio(0, stage);
    if (row.code == 8) return results.MechAdv(0, stage);
    if (row.code == 9) return results.TorqueTable(0, column);
    if (row.code == 10) return results.ForceTable(0, column, 1);
    return 0;
}

TEST(CatalogueTable, ReadsNoColumnThatItsResultTableLacks) {
    const auto results = std::make_unique<ResultTables>();
    for (int number = 1; number <= 66; ++number) {
        const CatalogueRow& row = Catalogue_Row(number);
        EXPECT_EQ(Thrown([&] { (void)Read_Place(*results, row); }).number, 0) << row.name;
    }
}

TEST(CatalogueTable, KeepsTheVelocityOfTheCrankCentreOfGravityPlainAmongVectors) {
    EXPECT_EQ(Catalogue_Row(36).name, "Veloc CG 2");
    EXPECT_EQ(Catalogue_Row(36).kind, FunctionClass::Plain);
    for (int number = 37; number <= 45; ++number)
        EXPECT_EQ(Catalogue_Row(number).kind, FunctionClass::Vector) << number;
}

TEST(CatalogueTable, KeepsTheFlywheelTorquePlainThoughItHasNoComponents) {
    EXPECT_EQ(Catalogue_Row(65).name, "Flywl Torque");
    EXPECT_EQ(Catalogue_Row(65).kind, FunctionClass::Plain);
    EXPECT_EQ(Catalogue_Row(65).column, std::nullopt);
}

TEST(CatalogueTable, RaisesFault9OutsideRows1To66) {
    constexpr auto kLowest = std::numeric_limits<std::ptrdiff_t>::min();
    constexpr auto kHighest = std::numeric_limits<std::ptrdiff_t>::max();
    for (const std::ptrdiff_t number :
         {kLowest, std::ptrdiff_t{-1}, std::ptrdiff_t{0}, std::ptrdiff_t{67}, kHighest})
        Expect_Thrown(9, "", [&] { (void)Catalogue_Row(number); });
    EXPECT_EQ(Catalogue_Row(1).name, "Theta2");
    EXPECT_EQ(Catalogue_Row(66).name, "Current FFT");
}

}  // namespace
}  // namespace kervol
