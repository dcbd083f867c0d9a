// SPDX-License-Identifier: GPL-3.0-or-later
// What the selection lists offer, by what has been computed.
#include "catalogue/lists.h"

#include <string>
#include <vector>

#include "catalogue/names.h"
#include "support/program_test.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Lists : public ProgramTest {
  protected:
    Lists() {
        list.items = {"old"};
        list.text = "picked";
    }

    template <std::size_t N>
    static std::vector<std::string> Range(const Table<std::string, N>& texts,
                                          std::initializer_list<std::pair<int, int>> ranges) {
        std::vector<std::string> items;
        for (const auto& [first, last] : ranges)
            for (int i = first; i <= last; ++i) items.push_back(texts(i));
        return items;
    }
    std::vector<std::string> Presets(int count) {
        Load_Presets(*program, list, static_cast<std::int16_t>(count));
        return list.items;
    }

    const CatalogueNames& names = program->catalogue;
    ComboBox list;
};

TEST_F(Lists, OfferTheFunctionsWhoseNumbersAreThere) {
    Load_Variables(*program, list);
    EXPECT_EQ(list.items, Range(names.CatalogName, {{1, 35}}));
    model.DynamicsCalculated = true;
    Load_Variables(*program, list);
    EXPECT_EQ(list.items, Range(names.CatalogName, {{1, 64}}));
    model.FlywheelCalculated = true;
    Load_Variables(*program, list);
    EXPECT_EQ(list.items, Range(names.CatalogName, {{1, 65}}));
    model.DynamicsCalculated = false;
    Load_Variables(*program, list);
    EXPECT_EQ(list.items, Range(names.CatalogName, {{1, 65}}));
    EXPECT_EQ(list.text, "picked");
}

TEST_F(Lists, OfferVectorsForPolarPlots) {
    Load_Vector_Variables(*program, list);
    EXPECT_EQ(list.items, Range(names.CatalogName, {{18, 31}}));
    model.FlywheelCalculated = true;
    Load_Vector_Variables(*program, list);
    EXPECT_EQ(list.items, Range(names.CatalogName, {{18, 31}}));
    model.DynamicsCalculated = true;
    Load_Vector_Variables(*program, list);
    EXPECT_EQ(list.items, Range(names.CatalogName, {{18, 31}, {36, 53}, {60, 64}}));
}

TEST_F(Lists, OfferTheComponentsInTheirOrder) {
    Load_Components(*program, list);
    EXPECT_THAT(list.items, ElementsAre("X", "Y", "Mag", "Ang"));
}

TEST_F(Lists, OfferPresetsOfTwoFunctionsByWhatIsThere) {
    EXPECT_EQ(Presets(2), Range(names.PresetTitle2, {{1, 23}}));
    model.DynamicsCalculated = true;
    EXPECT_EQ(Presets(2), Range(names.PresetTitle2, {{1, 47}}));
    model.FlywheelCalculated = true;
    EXPECT_EQ(Presets(2), Range(names.PresetTitle2, {{1, 48}}));
    program->fourier.FFTReady = true;
    EXPECT_EQ(Presets(2), Range(names.PresetTitle2, {{1, 47}, {49, 50}, {48, 48}}));
    model.DynamicsCalculated = false;
    EXPECT_EQ(Presets(2), Range(names.PresetTitle2, {{1, 23}, {49, 50}, {48, 48}}));
}

TEST_F(Lists, OfferPresetsOfFourFunctionsByWhatIsThere) {
    model.FlywheelCalculated = true;
    EXPECT_EQ(Presets(4), Range(names.PresetTitle4, {{1, 17}}));
    model.DynamicsCalculated = true;
    EXPECT_EQ(Presets(4), Range(names.PresetTitle4, {{1, 41}}));
    program->fourier.FFTReady = true;
    EXPECT_EQ(Presets(4), Range(names.PresetTitle4, {{1, 42}}));
}

TEST_F(Lists, OfferNoPresetOfAnyOtherCount) {
    model.DynamicsCalculated = model.FlywheelCalculated = program->fourier.FFTReady = true;
    for (const int count : {0, 1, 3, 5, -2}) EXPECT_THAT(Presets(count), IsEmpty()) << count;
}

TEST_F(Lists, OfferTheNamesOfTheChain) {
    Change_Catalog_Labels(program->catalogue, "W");
    Load_Variables(*program, list);
    EXPECT_EQ(list.items.at(19), "Veloc I 4,5");
    Change_Catalog_Labels(program->catalogue, "S");
    Load_Variables(*program, list);
    EXPECT_EQ(list.items.at(19), "Veloc I 3,5");
}

constexpr SelectionScreen kScreens[] = {SelectionScreen::frm_PlotSelect1, SelectionScreen::frm_PlotSelect2,
                                        SelectionScreen::frm_PlotSelect3, SelectionScreen::frm_PlotSelect4,
                                        SelectionScreen::frm_PrintSelect};

TEST_F(Lists, AreLoadedByEveryScreenOnceAfterResultsHaveChanged) {
    for (int change = 0; change < 2; ++change) {
        model.NewData = true;
        for (const SelectionScreen screen : kScreens) {
            EXPECT_TRUE(Take_New_Data(*program, screen));
            EXPECT_FALSE(model.NewData);
            EXPECT_FALSE(Take_New_Data(*program, screen));
        }
    }
}

TEST_F(Lists, AreStaleAgainForAScreenThatHadLoadedThemBeforeTheChange) {
    model.NewData = true;
    EXPECT_TRUE(Take_New_Data(*program, kScreens[0]));
    model.NewData = true;
    EXPECT_TRUE(Take_New_Data(*program, kScreens[4]));
    EXPECT_TRUE(Take_New_Data(*program, kScreens[0]));
    EXPECT_FALSE(Take_New_Data(*program, kScreens[4]));
}

}  // namespace
}  // namespace kervol
