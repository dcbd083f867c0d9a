// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of catalogue and presets: those of a fresh program, and those that follow the chain.
#include "catalogue/names.h"

#include <map>
#include <string>
#include <utility>

#include "catalogue/expected_tables.h"
#include "core/thrown_fault.h"
#include "startup/launch.h"
#include "support/program_test.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

/// All texts by table and row, entries 0 too.
using Texts = std::map<std::pair<std::string, int>, std::string>;

Texts All_Texts(const CatalogueNames& names) {
    Texts texts;
    const auto add = [&](const std::string& table, const auto& entries) {
        int row = 0;
        for (const std::string& entry : entries) texts[{table, row++}] = entry;
    };
    add("function", names.CatalogName);
    add("component", names.ComponentName);
    add("two", names.PresetTitle2);
    add("four", names.PresetTitle4);
    return texts;
}

Texts Start_Texts() {
    Texts texts = {{{"function", 0}, ""},     {{"two", 0}, ""},         {{"four", 0}, ""},
                   {{"component", 0}, ""},    {{"component", 1}, "X"},  {{"component", 2}, "Y"},
                   {{"component", 3}, "Mag"}, {{"component", 4}, "Ang"}};
    for (const ExpectedFunction& row : Expected_Functions()) texts[{"function", row.number}] = row.name;
    for (const ExpectedPreset& row : Expected_Two_Function_Presets()) texts[{"two", row.row}] = row.title;
    for (const ExpectedPreset& row : Expected_Four_Function_Presets()) texts[{"four", row.row}] = row.title;
    return texts;
}

// clang-format off
const Texts kWattTexts = {
    {{"function", 20}, "Veloc I 4,5"},
    {{"function", 26}, "Accel I 4,5"},
    {{"function", 51}, "Force 54"},
    {{"two", 10}, "Velocity of Instant Center 4-5  -  X, Y components"},
    {{"two", 16}, "Acceleration of Instant Ctr 4-5  -  X, Y components"},
    {{"two", 39}, "Force of Link 5 on 4  -  X, Y components"},
    {{"four", 6}, "Velocity of Instant Center 4-5 -  X, Y, Mag, Ang Coordinates"},
    {{"four", 12}, "Acceleration of Instant Ctr 4-5-  X, Y, Mag, Ang Coordinates"},
    {{"four", 33}, "Force of Link 5 on 4  -  X, Y, Mag, Ang Coordinates"},
};
const Texts kStephensonTexts = {
    {{"function", 20}, "Veloc I 3,5"},
    {{"function", 26}, "Accel I 3,5"},
    {{"function", 51}, "Force 53"},
    {{"two", 10}, "Velocity of Instant Center 3-5  -  X, Y components"},
    {{"two", 16}, "Acceleration of Instant Ctr 3-5  -  X, Y components"},
    {{"two", 39}, "Force of Link 5 on 3  -  X, Y components"},
    {{"four", 6}, "Velocity of Instant Center 3-5 -  X, Y, Mag, Ang Coordinates"},
    {{"four", 12}, "Acceleration of Instant Ctr 3-5-  X, Y, Mag, Ang Coordinates"},
    {{"four", 33}, "Force of Link 5 on 3  -  X, Y, Mag, Ang Coordinates"},
};
// clang-format on

/// The texts of a fresh program but for those given.
Texts Start_Texts_But(const Texts& others) {
    Texts texts = Start_Texts();
    for (const auto& [place, text] : others) texts[place] = text;
    return texts;
}

CatalogueNames Filled() {
    CatalogueNames names;
    Fill_Catalogue_Names(names);
    return names;
}

TEST(CatalogueNames, HaveEveryTextOfAFreshProgram) {
    ASSERT_EQ(Start_Texts().size(), 67U + 5U + 51U + 43U);
    EXPECT_EQ(All_Texts(Filled()), Start_Texts());
}

TEST(CatalogueNames, NameTheJointOfAFreshProgramAsStephensonAndItsForceAndTitlesAsWatt) {
    const CatalogueNames names = Filled();
    EXPECT_EQ(names.CatalogName(20), "Veloc I 3,5");
    EXPECT_EQ(names.CatalogName(26), "Accel I 3,5");
    EXPECT_EQ(names.CatalogName(51), "Force 54");
    EXPECT_EQ(names.PresetTitle2(10), "Velocity of Instant Center 4-5  -  X, Y components");
    EXPECT_EQ(names.PresetTitle4(12), "Acceleration of Instant Ctr 4-5-  X, Y, Mag, Ang Coordinates");
}

TEST(CatalogueNames, OfTheWattChainReplaceNineTextsAtMost) {
    CatalogueNames names = Filled();
    Change_Catalog_Labels(names, "W");
    EXPECT_EQ(All_Texts(names), Start_Texts_But(kWattTexts));
}

TEST(CatalogueNames, OfTheStephensonChainReplaceNineTextsAtMost) {
    CatalogueNames names = Filled();
    Change_Catalog_Labels(names, "S");
    EXPECT_EQ(All_Texts(names), Start_Texts_But(kStephensonTexts));
}

TEST(CatalogueNames, FollowTheChainThereAndBack) {
    CatalogueNames names = Filled();
    for (int turn = 0; turn < 2; ++turn) {
        Change_Catalog_Labels(names, "S");
        EXPECT_EQ(All_Texts(names), Start_Texts_But(kStephensonTexts));
        Change_Catalog_Labels(names, "W");
        EXPECT_EQ(All_Texts(names), Start_Texts_But(kWattTexts));
    }
}

TEST(CatalogueNames, OfTheSameChainAgainAreTheSame) {
    for (const char* chain : {"W", "S"}) {
        CatalogueNames names = Filled();
        Change_Catalog_Labels(names, chain);
        const Texts once = All_Texts(names);
        Change_Catalog_Labels(names, chain);
        EXPECT_EQ(All_Texts(names), once);
    }
}

TEST(CatalogueNames, OfAnyOtherChainStay) {
    for (const char* chain : {"", "w", "s", "WS", "X", " W"}) {
        CatalogueNames names = Filled();
        Change_Catalog_Labels(names, "S");
        Change_Catalog_Labels(names, chain);
        EXPECT_EQ(All_Texts(names), Start_Texts_But(kStephensonTexts)) << chain;
    }
}

TEST(CatalogueNames, RaiseFault9OutsideTheirTables) {
    CatalogueNames names = Filled();
    for (const int below : {-1, -1000}) {
        Expect_Thrown(9, "", [&] { (void)names.CatalogName(below); });
        Expect_Thrown(9, "", [&] { (void)names.ComponentName(below); });
        Expect_Thrown(9, "", [&] { (void)names.PresetTitle2(below); });
        Expect_Thrown(9, "", [&] { (void)names.PresetTitle4(below); });
    }
    Expect_Thrown(9, "", [&] { (void)names.CatalogName(67); });
    Expect_Thrown(9, "", [&] { (void)names.ComponentName(5); });
    Expect_Thrown(9, "", [&] { (void)names.PresetTitle2(51); });
    Expect_Thrown(9, "", [&] { (void)names.PresetTitle4(43); });
}

class InitializedNames : public ProgramTest {};

TEST_F(InitializedNames, AreThoseOfAFreshProgramThoughTheFirstExampleIsAWattChain) {
    EXPECT_EQ(model.LinkageType, "W");
    EXPECT_EQ(All_Texts(program->catalogue), Start_Texts());
}

TEST_F(InitializedNames, ArePutAgainWhenTheModelIsMadeNew) {
    Change_Catalog_Labels(program->catalogue, "S");
    program->catalogue.ComponentName(3) = "other";
    program->catalogue.PresetTitle4(42) = "other";
    Initialize(*program);
    EXPECT_EQ(All_Texts(program->catalogue), Start_Texts());
}

}  // namespace
}  // namespace kervol
