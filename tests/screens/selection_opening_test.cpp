// SPDX-License-Identifier: GPL-3.0-or-later
// What the selection screens offer when they open, and what a preset does.
#include "catalogue/names.h"
#include "catalogue/preset_table.h"
#include "screens/selection_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

using SelectionOpening = SelectionTest;

TEST_F(SelectionOpening, BeginsWithPresetsTheGlobalFrameAndNothingChosen) {
    for (SelectionForm* form : {static_cast<SelectionForm*>(&single), static_cast<SelectionForm*>(&four),
                                static_cast<SelectionForm*>(&print)}) {
        selections.LocalCoords = 2;
        Open(*form);
        EXPECT_EQ(selections.LocalCoords, 0);
        EXPECT_FALSE(Frame_Can_Be_Chosen(*form));
        EXPECT_TRUE(form->opt_PrintSet[0].on);
        EXPECT_FALSE(form->opt_PrintSet[1].on);
        EXPECT_EQ(Slots(*form), "------- ------- ------- -------");
        EXPECT_EQ(Chosen(*form), "|||");
        EXPECT_FALSE(form->cmd_Done.enabled);
        EXPECT_TRUE(form->cmd_Cancel.enabled);
        EXPECT_THAT(Focus_Moves(), ElementsAre("cmb_Preset"));
    }
}

TEST_F(SelectionOpening, ThePolarScreenHasNoPresetsAndBeginsWithItsFirstSlot) {
    Open(polar);
    EXPECT_EQ(Slots(polar), "FvVcC-X ------- ------- -------");
    EXPECT_THAT(polar.cmb_Preset.items, IsEmpty());
    Pick_Variable(polar, 1, "Veloc I 2,3");
    EXPECT_THAT(Focus_Moves(), ElementsAre("cmb_Com1"));
}

TEST_F(SelectionOpening, CaptionsNameTheParts) {
    for (const SelectionForm* form : All_Forms()) {
        for (std::size_t i = 0; i < form->kind.functions; ++i) {
            EXPECT_EQ(form->fra_Function.at(i).caption, "Function " + std::to_string(i + 1));
            EXPECT_EQ(form->lbl_Var.at(i).caption, "Variable");
            EXPECT_EQ(form->lbl_Comp.at(i).caption, "Component");
            EXPECT_EQ(form->cmd_OK.at(i).caption, "&OK");
            EXPECT_EQ(form->cmd_Clear.at(i).caption, "&Clear");
        }
        EXPECT_EQ(form->opt_PrintSet[0].caption, "Preset Formats");
        EXPECT_EQ(form->opt_PrintSet[1].caption, "Mix and Match");
        EXPECT_EQ(form->fra_Preset.caption, "Select from Preset Formats");
        EXPECT_EQ(form->cmd_ClearPreset.caption, "&Clear");
        EXPECT_EQ(form->fra_Coord.caption, "Coordinate System");
    }
}

struct OfferedCase {
    bool dynamics, flywheel, fourier;
    std::size_t functions, vectors, presets2, presets4;
    const char *last, *last_vector, *last2, *last4;
};

TEST_F(SelectionOpening, OffersWhatHasBeenCalculated) {
    // clang-format off
    const OfferedCase cases[] = {
        {false, false, false, 35, 14, 23, 17, "MchAdv-2", "Cpler Pt-2",
         "Mechanical Advantages for Stages 1 and 2", "Coupler Point Coordinates  Stage 2 -  X, Y, Mag, Ang Coordinates"},
        {true, false, false, 64, 37, 47, 41, "F Inertia L6", "F Inertia L6",
         "Torques 12 and 16", "Inertia Force on Link 6  -  X, Y, Mag, Ang Coordinates"},
        {true, true, false, 65, 37, 48, 41, "Flywl Torque", "F Inertia L6",
         "Torque 12 and Flywheel-Smoothed Torque 12 Compared", "Inertia Force on Link 6  -  X, Y, Mag, Ang Coordinates"},
        {false, true, false, 65, 14, 24, 17, "Flywl Torque", "Cpler Pt-2",
         "Torque 12 and Flywheel-Smoothed Torque 12 Compared", "Coupler Point Coordinates  Stage 2 -  X, Y, Mag, Ang Coordinates"},
        {true, true, true, 65, 37, 50, 42, "Flywl Torque", "F Inertia L6",
         "Torque 12 and Flywheel-Smoothed Torque 12 Compared", "Current FFT - Real, Imag, Mag, Phase"},
        {false, false, true, 35, 14, 25, 18, "MchAdv-2", "Cpler Pt-2",
         "Current FFT - Mag, Phase", "Current FFT - Real, Imag, Mag, Phase"},
    };
    // clang-format on
    for (const OfferedCase& given : cases) {
        SCOPED_TRACE(given.functions);
        model.DynamicsCalculated = given.dynamics;
        model.FlywheelCalculated = given.flywheel;
        program->fourier.FFTReady = given.fourier;
        for (SelectionForm* form : All_Forms()) {
            Open(*form);
            const bool vectors = form == &polar;
            for (std::size_t i = 0; i < form->kind.functions; ++i) {
                const auto& names = form->cmb_Var.at(i).items;
                ASSERT_EQ(names.size(), vectors ? given.vectors : given.functions);
                EXPECT_EQ(names.front(), vectors ? "Veloc I 2,3" : "Theta2");
                EXPECT_EQ(names.back(), vectors ? given.last_vector : given.last);
                EXPECT_THAT(names, Not(Contains("Current FFT")));
                EXPECT_THAT(form->cmb_Com.at(i).items, ElementsAre("X", "Y", "Mag", "Ang"));
            }
            if (vectors) continue;
            const auto& titles = form->cmb_Preset.items;
            ASSERT_EQ(titles.size(), form == &two ? given.presets2 : given.presets4);
            EXPECT_EQ(titles.back(), form == &two ? given.last2 : given.last4);
        }
    }
}

TEST_F(SelectionOpening, EveryScreenLoadsItsListsOnceAfterAChange) {
    for (SelectionForm* form : All_Forms()) Reopen(*form);
    EXPECT_FALSE(model.NewData);
    model.DynamicsCalculated = true;
    for (SelectionForm* form : All_Forms()) {
        Reopen(*form);
        EXPECT_LE(form->cmb_Var[0].items.size(), 35U) << "nothing says that results have changed";
    }
    model.NewData = true;
    for (SelectionForm* form : All_Forms()) {
        Reopen(*form);
        EXPECT_GE(form->cmb_Var[0].items.size(), 37U) << "each for itself";
    }
}

TEST_F(SelectionOpening, EarlierPicksAreGone) {
    Open_Mix(print);
    Confirm(print, 1, "Theta3");
    Reopen(print);
    EXPECT_EQ(Chosen(print) + Boxes(print), "||||||");
    Pick_Preset(print, print.cmb_Preset.items.at(0));
    Open(print);
    EXPECT_EQ(Chosen(print) + Boxes(print), "||||||");
    EXPECT_EQ(print.cmb_Preset.text, "");
    EXPECT_FALSE(print.cmd_Done.enabled);
}

TEST_F(SelectionOpening, NamesFollowTheChain) {
    Change_Catalog_Labels(program->catalogue, "W");
    Open(single);
    EXPECT_EQ(single.cmb_Var[0].items.at(19), "Veloc I 4,5");
    Change_Catalog_Labels(program->catalogue, "S");
    Open(single);
    EXPECT_EQ(single.cmb_Var[0].items.at(19), "Veloc I 3,5");
    EXPECT_EQ(single.cmb_Preset.items.at(5), "Velocity of Instant Center 3-5 -  X, Y, Mag, Ang Coordinates");
}

TEST_F(SelectionOpening, TheSingleWindowScreenMarksItself) {
    selections.PlotFlag = 0;
    for (SelectionForm* form : {static_cast<SelectionForm*>(&two), static_cast<SelectionForm*>(&print)}) {
        Open(*form);
        EXPECT_EQ(selections.PlotFlag, 0);
    }
    Open(single);
    EXPECT_EQ(selections.PlotFlag, 1);
}

TEST_F(SelectionOpening, PlotStyleIsThatOfTheScreen) {
    EXPECT_EQ(selections.PlotStyle, 1);
    Open(two);
    EXPECT_EQ(two.opt_Plotstyle[0].caption, "Annotated");
    EXPECT_EQ(two.opt_Plotstyle[1].caption, "Aligned");
    Choose(two.opt_Plotstyle, 1);
    EXPECT_EQ(selections.PlotStyle, 2);
    Open(four);
    EXPECT_EQ(selections.PlotStyle, 1);
    Open(polar);
    EXPECT_EQ(selections.PlotStyle, 2) << "the program's own polar plot";
    Open(two);
    EXPECT_EQ(selections.PlotStyle, 2) << "as it was left";
    Choose(two.opt_Plotstyle, 0);
    EXPECT_EQ(selections.PlotStyle, 1);
}

using Presets = SelectionTest;

/// What picks by hand leave behind.
struct Record {
    std::vector<std::int16_t> table, index, stage, comp;
    std::vector<std::string> name;
    std::string chosen;
    bool scalar, vector, fourier, frame, done;

    bool operator==(const Record&) const = default;
};

class PresetPath : public SelectionTest {
  protected:
    Record State(const SelectionForm& form) const {
        Record record;
        for (int k = 1; k <= static_cast<int>(form.kind.functions); ++k) {
            record.table.push_back(selections.SelTable(k));
            record.index.push_back(selections.SelIndex(k));
            record.stage.push_back(selections.SelStage(k));
            record.comp.push_back(selections.SelComp(k));
            record.name.push_back(selections.SelCompName(k));
        }
        record.chosen = Chosen(form);
        record.scalar = selections.SelScalar;
        record.vector = selections.SelVector;
        record.fourier = selections.SelFFT;
        record.frame = Frame_Can_Be_Chosen(form);
        record.done = form.cmd_Done.enabled;
        return record;
    }
    /// Every preset of a screen once by its title and once by hand.
    template <class Row>
    void Compare(SelectionForm& form, int presets, Row row) {
        for (int number = 1; number <= presets; ++number) {
            const auto& preset = row(number);
            SCOPED_TRACE(preset.title);
            selections = {};
            Open(form);
            Pick_Preset(form, std::string(preset.title));
            const Record by_preset = State(form);
            EXPECT_EQ(selections.SelCount, static_cast<int>(form.kind.functions));
            EXPECT_EQ(selections.NumSelected, form.kind.functions == 4 ? 4 : 0);
            selections = {};
            Open_Mix(form);
            for (std::size_t slot = 0; slot < form.kind.functions; ++slot) {
                const std::string function = program->catalogue.CatalogName(preset.functions.at(slot));
                const std::string component = program->catalogue.ComponentName(preset.components.at(slot));
                Pick_Variable(form, slot + 1, function.c_str());
                if (form.cmb_Com.at(slot).enabled) Pick_Component(form, slot + 1, component.c_str());
                form.cmd_OK.at(slot).click();
            }
            EXPECT_EQ(by_preset, State(form));
        }
    }
};

TEST_F(PresetPath, EveryPresetOfTwoFunctionsDoesWhatClicksDo) {
    Change_Catalog_Labels(program->catalogue, "W");
    Compare(two, TwoFunctionPresets,
            [](int number) -> const Preset<2>& { return Two_Function_Preset(number); });
}

TEST_F(PresetPath, EveryPresetOfFourFunctionsDoesWhatClicksDo) {
    Change_Catalog_Labels(program->catalogue, "W");
    for (SelectionForm* form : {static_cast<SelectionForm*>(&single), static_cast<SelectionForm*>(&four),
                                static_cast<SelectionForm*>(&print)})
        Compare(*form, FourFunctionPresets,
                [](int number) -> const Preset<4>& { return Four_Function_Preset(number); });
}

TEST_F(Presets, AVectorPresetOpensTheFrameAndMovesNoFocus) {
    Open(print);
    port.trace.clear();
    Pick_Preset(print, "Velocity of Instant Center 2-3  -  X, Y, Mag, Ang Coordinates");
    EXPECT_EQ(Chosen(print), "Veloc I 2,3:X|Veloc I 2,3:Y|Veloc I 2,3:Mag|Veloc I 2,3:Ang");
    EXPECT_TRUE(Frame_Can_Be_Chosen(print));
    EXPECT_TRUE(print.cmd_Done.enabled);
    EXPECT_THAT(Focus_Moves(), IsEmpty());
    Pick_Preset(print, "Theta magnitudes for links 3, 4, 5, 6");
    EXPECT_FALSE(Frame_Can_Be_Chosen(print));
}

TEST_F(Presets, TheOddPresetTakesTheForceThatItsTitleDoesNotName) {
    model.DynamicsCalculated = true;
    Open(two);
    Pick_Preset(two, "Acceleration of CG of Link 6  -  X, Y components");
    EXPECT_EQ(Chosen(two), "Force 12:X|Accel CG 5:Y");
    model.DynamicsCalculated = false;
    Open(two);
    EXPECT_THAT(two.cmb_Preset.items, Not(Contains("Acceleration of CG of Link 6  -  X, Y components")));
}

TEST_F(Presets, TheTransformIsChosenThoughNoListOfFunctionsHasIt) {
    program->fourier.FFTReady = true;
    Open(two);
    Pick_Preset(two, "Current FFT - Mag, Phase");
    EXPECT_EQ(Chosen(two), "Current FFT:Mag|Current FFT:Ang");
    EXPECT_TRUE(selections.SelFFT);
}

TEST_F(Presets, ClearingThePresetTakesEverythingBackAndStaysInItsMode) {
    Open(print);
    Pick_Preset(print, print.cmb_Preset.items.at(5));
    print.cmd_ClearPreset.click();
    EXPECT_EQ(Chosen(print) + Boxes(print) + print.cmb_Preset.text, "||||||");
    EXPECT_FALSE(print.cmd_Done.enabled);
    EXPECT_TRUE(print.opt_PrintSet[0].on);
    Pick_Preset(print, print.cmb_Preset.items.at(5));
    EXPECT_TRUE(print.cmd_Done.enabled);
}

TEST_F(Presets, ADoubleClickAppliesItToo) {
    Open(print);
    print.cmb_Preset.text = "Omega magnitudes for links 3, 4, 5, 6";
    print.cmb_Preset.double_click();
    EXPECT_EQ(Chosen(print), "Omega3:Mag|Omega4:Mag|Omega5:Mag|Omega6:Mag");
}

}  // namespace
}  // namespace kervol
