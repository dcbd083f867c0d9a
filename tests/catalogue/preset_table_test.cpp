// SPDX-License-Identifier: GPL-3.0-or-later
// The presets of two and of four functions: titles, functions by name, components, bounds, the odd rows.
#include "catalogue/preset_table.h"

#include <limits>
#include <set>
#include <string>
#include <vector>

#include "catalogue/catalogue_table.h"
#include "catalogue/expected_tables.h"
#include "catalogue/names.h"
#include "core/thrown_fault.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

class Presets : public ::testing::Test {
  protected:
    Presets() { Fill_Catalogue_Names(names); }

    template <std::size_t Slots>
    std::vector<std::string> Functions(const Preset<Slots>& preset) const {
        std::vector<std::string> texts;
        for (const std::int16_t function : preset.functions) texts.push_back(names.CatalogName(function));
        return texts;
    }

    template <std::size_t Slots>
    std::string Components(const Preset<Slots>& preset) const {
        std::string text;
        for (const std::int16_t part : preset.components)
            text += (text.empty() ? "" : " ") + names.ComponentName(part);
        return text;
    }

    template <std::size_t Slots>
    void Expect_Preset(const Preset<Slots>& preset, const ExpectedPreset& expected) const {
        SCOPED_TRACE(expected.row);
        EXPECT_EQ(preset.title, expected.title);
        EXPECT_THAT(Functions(preset), ElementsAreArray(expected.functions));
        EXPECT_EQ(Components(preset), expected.components);
    }

    CatalogueNames names;
};

TEST_F(Presets, OfTwoFunctionsAreAsListed) {
    ASSERT_EQ(Expected_Two_Function_Presets().size(), 50U);
    for (const ExpectedPreset& expected : Expected_Two_Function_Presets())
        Expect_Preset(Two_Function_Preset(expected.row), expected);
}

TEST_F(Presets, OfFourFunctionsAreAsListed) {
    ASSERT_EQ(Expected_Four_Function_Presets().size(), 42U);
    for (const ExpectedPreset& expected : Expected_Four_Function_Presets())
        Expect_Preset(Four_Function_Preset(expected.row), expected);
}

TEST_F(Presets, HoldOnlyFunctionsAndComponentsThatExist) {
    const auto check = [](const auto& preset) {
        for (const std::int16_t function : preset.functions)
            EXPECT_EQ(Thrown([&] { (void)Catalogue_Row(function); }).number, 0) << preset.title;
        for (const std::int16_t part : preset.components) {
            EXPECT_GE(part, 1) << preset.title;
            EXPECT_LE(part, 4) << preset.title;
        }
    };
    for (int row = 1; row <= 50; ++row) check(Two_Function_Preset(row));
    for (int row = 1; row <= 42; ++row) check(Four_Function_Preset(row));
}

// A choice of components of a scalar is disabled at "Mag", so a preset may not ask for another one.
TEST_F(Presets, AskForTheMagnitudeOfScalars) {
    const auto check = [](const auto& preset) {
        for (std::size_t slot = 0; slot < preset.functions.size(); ++slot)
            if (Catalogue_Row(preset.functions[slot]).kind == FunctionClass::Scalar) {
                EXPECT_EQ(preset.components[slot], component::Mag) << preset.title;
            }
    };
    for (int row = 1; row <= 50; ++row) check(Two_Function_Preset(row));
    for (int row = 1; row <= 42; ++row) check(Four_Function_Preset(row));
}

// Before the dynamics a list offers titles up to 23 and up to 17.
TEST_F(Presets, OfferedBeforeTheDynamicsHoldKinematicFunctionsAlone) {
    for (int row = 1; row <= 23; ++row)
        for (const std::int16_t function : Two_Function_Preset(row).functions) EXPECT_LE(function, 35) << row;
    for (int row = 1; row <= 17; ++row)
        for (const std::int16_t function : Four_Function_Preset(row).functions)
            EXPECT_LE(function, 35) << row;
}

TEST_F(Presets, HaveNoTitleTwice) {
    std::set<std::string_view> two, four;
    for (int row = 1; row <= 50; ++row) EXPECT_TRUE(two.insert(Two_Function_Preset(row).title).second) << row;
    for (int row = 1; row <= 42; ++row)
        EXPECT_TRUE(four.insert(Four_Function_Preset(row).title).second) << row;
}

TEST_F(Presets, Rows30And31ShowTheNextLink) {
    EXPECT_EQ(Two_Function_Preset(30).title, "Acceleration of CG of Link 3  -  X, Y components");
    EXPECT_THAT(Functions(Two_Function_Preset(30)), ElementsAre("Accel CG 4", "Accel CG 4"));
    EXPECT_EQ(Two_Function_Preset(31).title, "Acceleration of CG of Link 4  -  X, Y components");
    EXPECT_THAT(Functions(Two_Function_Preset(31)), ElementsAre("Accel CG 5", "Accel CG 5"));
}

TEST_F(Presets, Row32ShowsLink6BesideLink5) {
    EXPECT_EQ(Two_Function_Preset(32).title, "Acceleration of CG of Link 5  -  X, Y components");
    EXPECT_THAT(Functions(Two_Function_Preset(32)), ElementsAre("Accel CG 6", "Accel CG 5"));
}

TEST_F(Presets, Row33ShowsAForceBesideLink5) {
    EXPECT_EQ(Two_Function_Preset(33).title, "Acceleration of CG of Link 6  -  X, Y components");
    EXPECT_THAT(Functions(Two_Function_Preset(33)), ElementsAre("Force 12", "Accel CG 5"));
}

TEST_F(Presets, Row47Says16AndShowsTheTorqueOfLink6) {
    EXPECT_EQ(Two_Function_Preset(47).title, "Torques 12 and 16");
    EXPECT_THAT(Functions(Two_Function_Preset(47)), ElementsAre("Torque 12", "Torque L6"));
}

TEST_F(Presets, FollowTheNamesOfTheChain) {
    Change_Catalog_Labels(names, "W");
    EXPECT_THAT(Functions(Two_Function_Preset(10)), ElementsAre("Veloc I 4,5", "Veloc I 4,5"));
    EXPECT_THAT(Functions(Two_Function_Preset(16)), ElementsAre("Accel I 4,5", "Accel I 4,5"));
    EXPECT_THAT(Functions(Four_Function_Preset(33)), ::testing::Each("Force 54"));
    Change_Catalog_Labels(names, "S");
    EXPECT_THAT(Functions(Two_Function_Preset(39)), ElementsAre("Force 53", "Force 53"));
    EXPECT_THAT(Functions(Four_Function_Preset(6)), ::testing::Each("Veloc I 3,5"));
    EXPECT_THAT(Functions(Four_Function_Preset(12)), ::testing::Each("Accel I 3,5"));
}

TEST_F(Presets, RaiseFault9OutsideTheirRows) {
    constexpr auto kLowest = std::numeric_limits<std::ptrdiff_t>::min();
    constexpr auto kHighest = std::numeric_limits<std::ptrdiff_t>::max();
    for (const std::ptrdiff_t row :
         {kLowest, std::ptrdiff_t{-1}, std::ptrdiff_t{0}, std::ptrdiff_t{51}, kHighest})
        Expect_Thrown(9, "", [&] { (void)Two_Function_Preset(row); });
    for (const std::ptrdiff_t row :
         {kLowest, std::ptrdiff_t{-1}, std::ptrdiff_t{0}, std::ptrdiff_t{43}, kHighest})
        Expect_Thrown(9, "", [&] { (void)Four_Function_Preset(row); });
}

}  // namespace
}  // namespace kervol
