// SPDX-License-Identifier: GPL-3.0-or-later
// Confirming function slots one by one and by presets.
#include "catalogue/slots.h"

#include <algorithm>
#include <sstream>
#include <vector>

#include "catalogue/expected_tables.h"
#include "catalogue/names.h"
#include "support/program_test.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

class Slots : public ProgramTest {
  protected:
    const ExpectedFunction& Function(std::string_view name) {
        const auto rows = Expected_Functions();
        const auto found = std::find_if(rows.begin(), rows.end(),
                                        [&](const ExpectedFunction& row) { return row.name == name; });
        EXPECT_NE(found, rows.end()) << name;
        return *found;
    }

    /// What a click on a preset must leave: boxes and selection records as picked one by one.
    template <std::size_t Count>
    void Expect_Applied(const ExpectedPreset& preset, const std::array<SlotBoxes, Count>& boxes) {
        ASSERT_EQ(preset.functions.size(), Count);
        std::istringstream parts{std::string(preset.components)};
        for (std::size_t slot = 0; slot < Count; ++slot) {
            const auto k = static_cast<std::int16_t>(slot + 1);
            const ExpectedFunction& row = Function(preset.functions[slot]);
            std::string part;
            parts >> part;
            const auto number = std::string("X  Y  MagAng").find(part) / 3;
            EXPECT_EQ(boxes[slot].variable, row.name);
            EXPECT_EQ(boxes[slot].component, part);
            EXPECT_EQ(selections.SelTable(k), row.code);
            if (row.column >= 0) {
                EXPECT_EQ(selections.SelIndex(k), row.column);
            }
            if (row.stage >= 0) {
                EXPECT_EQ(selections.SelStage(k), row.stage);
            }
            EXPECT_EQ(selections.SelComp(k), number);
            EXPECT_EQ(selections.SelCompName(k), row.kind == "scalar" ? "Magnitude" : part);
        }
        const ExpectedFunction& last = Function(preset.functions.back());
        EXPECT_EQ(selections.SelVector, last.kind == "vector");
        EXPECT_EQ(selections.SelScalar, last.kind == "scalar");
        EXPECT_EQ(selections.SelFFT, last.number == 66);
        EXPECT_EQ(selections.SelCount, static_cast<int>(Count));
    }

    Selections& selections = program->selections;
};

TEST_F(Slots, LockAScalarToItsMagnitude) {
    for (const char* component : {"", "X", "Mag", "Ang"}) {
        SlotBoxes boxes = {"Theta4", component};
        selections.SelComp(2) = 0;
        Confirm_Slot(program->catalogue, selections, boxes, 2);
        EXPECT_EQ(boxes.component, "Mag");
        EXPECT_EQ(selections.SelComp(2), 2);
        EXPECT_EQ(selections.SelCompName(2), "Magnitude");
    }
}

TEST_F(Slots, TakeTheComponentOfVectorsAndPlainFunctionsAsItStands) {
    for (const char* name : {"Veloc CP-1", "Veloc CG 2", "Cpler Pt-2", "Flywl Torque", "Current FFT"}) {
        SlotBoxes boxes = {name, "Ang"};
        Confirm_Slot(program->catalogue, selections, boxes, 1);
        EXPECT_EQ(boxes.component, "Ang") << name;
        EXPECT_EQ(selections.SelComp(1), 3) << name;
        EXPECT_EQ(selections.SelCompName(1), "Ang") << name;
    }
}

TEST_F(Slots, ConfirmedEmptyKeepTheirRecord) {
    SlotBoxes boxes = {"Force 12", "Y"};
    Confirm_Slot(program->catalogue, selections, boxes, 1);
    boxes = {};
    Confirm_Slot(program->catalogue, selections, boxes, 1);
    EXPECT_EQ(selections.SelTable(1), 10);
    EXPECT_EQ(selections.SelComp(1), 1);
    EXPECT_EQ(selections.SelCompName(1), "Y");
    EXPECT_FALSE(selections.SelVector);
}

TEST_F(Slots, TakeEveryPresetOfTwoFunctions) {
    for (const ExpectedPreset& preset : Expected_Two_Function_Presets()) {
        SCOPED_TRACE(preset.title);
        program->selections = {};
        std::array<SlotBoxes, 2> boxes;
        Apply_Preset2(*program, preset.title, boxes);
        Expect_Applied(preset, boxes);
        EXPECT_EQ(selections.NumSelected, 0);
    }
}

TEST_F(Slots, TakeEveryPresetOfFourFunctions) {
    for (const ExpectedPreset& preset : Expected_Four_Function_Presets()) {
        SCOPED_TRACE(preset.title);
        program->selections = {};
        std::array<SlotBoxes, 4> boxes;
        Apply_Preset4(*program, preset.title, boxes);
        Expect_Applied(preset, boxes);
        EXPECT_EQ(selections.NumSelected, 4);
    }
}

TEST_F(Slots, TakeThePresetsOfTheChainByTheirTitlesOfIt) {
    std::array<SlotBoxes, 2> boxes;
    Change_Catalog_Labels(program->catalogue, "S");
    Apply_Preset2(*program, "Velocity of Instant Center 4-5  -  X, Y components", boxes);
    EXPECT_EQ(boxes[0].variable, "");
    Apply_Preset2(*program, "Velocity of Instant Center 3-5  -  X, Y components", boxes);
    EXPECT_EQ(boxes[0].variable, "Veloc I 3,5");
    Change_Catalog_Labels(program->catalogue, "W");
    Apply_Preset2(*program, "Velocity of Instant Center 4-5  -  X, Y components", boxes);
    EXPECT_EQ(boxes[1].variable, "Veloc I 4,5");
    EXPECT_EQ(selections.SelTable(1), 4);
    EXPECT_EQ(selections.SelIndex(1), 3);
}

TEST_F(Slots, TakeTheFirstPresetOfATitle) {
    program->catalogue.PresetTitle2(40) = program->catalogue.PresetTitle2(5);
    std::array<SlotBoxes, 2> boxes;
    EXPECT_TRUE(Put_Preset(program->catalogue, program->catalogue.PresetTitle2(40), boxes));
    EXPECT_EQ(boxes[0].variable, "Omega5");
}

TEST_F(Slots, AreConfirmedAsTheyStandWhereTheTextIsNoTitle) {
    std::array<SlotBoxes, 4> boxes = {{{"Theta3", ""}, {"Force 12", "Y"}, {}, {"F Shaking", "Ang"}}};
    Apply_Preset4(*program, "Theta3 and Theta4 Magnitudes", boxes);  // of two functions
    EXPECT_EQ(boxes[0].variable, "Theta3");
    EXPECT_EQ(boxes[0].component, "Mag");
    EXPECT_EQ(boxes[1].component, "Y");
    EXPECT_EQ(selections.SelTable(1), 1);
    EXPECT_EQ(selections.SelTable(2), 10);
    EXPECT_EQ(selections.SelTable(3), 0);
    EXPECT_EQ(selections.SelIndex(4), 7);
    EXPECT_EQ(selections.SelComp(4), 3);
    EXPECT_EQ(selections.SelCount, 4);
    EXPECT_EQ(selections.NumSelected, 4);
}

struct Gaps {
    std::vector<int> filled;
    int last, count;
};

TEST_F(Slots, AreCountedUpToTheLastOneWithItsGaps) {
    const Gaps cases[] = {{{}, 0, 0},        {{1}, 1, 1},      {{1, 2}, 2, 2},       {{1, 3}, 3, 2},
                          {{2}, 2, 1},       {{4}, 4, 1},      {{1, 2, 3, 4}, 4, 4}, {{1, 2, 4}, 4, 3},
                          {{1, 2, 3}, 3, 3}, {{2, 3, 4}, 4, 3}};
    for (const auto& [filled, last, count] : cases) {
        SlotLabels labels;
        for (const int slot : filled)
            labels.lbl_Function.at(static_cast<std::size_t>(slot - 1)).caption = "f";
        const SlotCount found = Count_Slots(labels);
        EXPECT_EQ(found.last, last);
        EXPECT_EQ(found.filled, count);
    }
}

}  // namespace
}  // namespace kervol
