// SPDX-License-Identifier: GPL-3.0-or-later
// Picking functions one by one: what is enabled after each act, where the focus goes, which gaps are told of.
#include "screens/selection_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kGap =
    "Something is wrong. \n\nYou are missing a plot selection.\n\nPlease leave no gaps between selections. \n"
    "Two functions should use Plots 1 and 2. \nThree functions should use Plots 1, 2, and 3.";

using SelectionRules = SelectionTest;

TEST_F(SelectionRules, PresetFormatsDisableAllSlotsAndTakeTheFocus) {
    for (SelectionForm* form : {static_cast<SelectionForm*>(&single), static_cast<SelectionForm*>(&print)}) {
        Open_Mix(*form);
        Confirm(*form, 1, "Theta3");
        port.trace.clear();
        Choose(form->opt_PrintSet, 0);
        EXPECT_EQ(Slots(*form), "------- ------- ------- -------");
        EXPECT_EQ(Chosen(*form), "|||");
        EXPECT_EQ(Boxes(*form), "|||");
        EXPECT_FALSE(form->cmd_Done.enabled);
        EXPECT_TRUE(form->cmb_Preset.enabled);
        EXPECT_THAT(Focus_Moves(), ElementsAre("cmb_Preset"));
    }
}

TEST_F(SelectionRules, MixAndMatchEmptiesEverythingAndOpensTheFirstSlot) {
    for (SelectionForm* form : {static_cast<SelectionForm*>(&four), static_cast<SelectionForm*>(&print)}) {
        Open(*form);
        Pick_Preset(*form, form->cmb_Preset.items.at(3));
        EXPECT_TRUE(form->cmd_Done.enabled);
        port.trace.clear();
        Choose(form->opt_PrintSet, 1);
        EXPECT_EQ(Slots(*form), "FvVcC-X ------- ------- -------");
        EXPECT_EQ(Chosen(*form), "|||");
        EXPECT_EQ(Boxes(*form), "|||");
        EXPECT_EQ(form->cmb_Preset.text, "");
        EXPECT_FALSE(form->cmb_Preset.enabled);
        EXPECT_FALSE(form->cmd_Done.enabled);
        EXPECT_THAT(Focus_Moves(), IsEmpty());
    }
}

struct Act {
    const char* what;  ///< "var" and "com" pick `text` in slot k, "ok" and "clear" press its buttons
    std::size_t k;
    const char* text;
    const char* slots;
    const char* chosen;
    bool done;
    bool frame;
    std::vector<std::string> focus;
};

void Do(SelectionForm& form, const Act& act) {
    const std::string what = act.what;
    if (what == "var" || what == "com") {
        ComboBox& box = (what == "var" ? form.cmb_Var : form.cmb_Com).at(act.k - 1);
        box.text = act.text;
        box.click();
    } else {
        (what == "ok" ? form.cmd_OK : form.cmd_Clear).at(act.k - 1).click();
    }
}

TEST_F(SelectionRules, LeadFromPickToPickThroughAllSlotsOfATable) {
    // clang-format off
    const Act acts[] = {
        // A scalar locks its component and leads to OK.
        {"var", 1, "Theta3", "FvVc-OX ------- ------- -------", "|||", false, false, {"cmd_OK1"}},
        {"ok", 1, "", "FvVc-OX FvVcC-X ------- -------", "Theta3:Mag|||", true, false, {"cmd_OK1", "cmd_OK1"}},
        // A vector opens component and frame, and OK waits.
        {"var", 2, "Veloc I 2,3", "FvVc-OX FvVcC-X ------- -------", "Theta3:Mag|||", false, true, {"cmb_Com2"}},
        {"com", 2, "Y", "FvVc-OX FvVcCOX ------- -------", "Theta3:Mag|||", false, true, {"cmd_OK2"}},
        {"ok", 2, "", "FvVc-OX FvVcCOX FvVcC-X -------", "Theta3:Mag|Veloc I 2,3:Y||", true, true, {"cmb_Com2", "cmd_OK2"}},
        // A plain function opens the component alone.
        {"var", 3, "Cpler Pt-1", "FvVc-OX FvVcCOX FvVcC-X -------", "Theta3:Mag|Veloc I 2,3:Y||", false, false, {"cmb_Com3"}},
        {"com", 3, "Ang", "FvVc-OX FvVcCOX FvVcCOX -------", "Theta3:Mag|Veloc I 2,3:Y||", false, false, {"cmd_OK3"}},
        {"ok", 3, "", "FvVc-OX FvVcCOX FvVcCOX FvVcC-X", "Theta3:Mag|Veloc I 2,3:Y|Cpler Pt-1:Ang|", true, false, {"cmb_Com3", "cmd_OK3"}},
        // Another variable in a confirmed slot takes the confirmation back, and only that slot's.
        {"var", 2, "Omega4", "FvVc-OX FvVc-OX FvVcCOX FvVcC-X", "Theta3:Mag||Cpler Pt-1:Ang|", false, false, {"cmd_OK2"}},
        {"ok", 2, "", "FvVc-OX FvVc-OX FvVcCOX FvVcC-X", "Theta3:Mag|Omega4:Mag|Cpler Pt-1:Ang|", true, false, {"cmd_OK2", "cmd_OK2"}},
        {"var", 4, "Accel CP-2", "FvVc-OX FvVc-OX FvVcCOX FvVcC-X", "Theta3:Mag|Omega4:Mag|Cpler Pt-1:Ang|", false, true, {"cmb_Com4"}},
        {"com", 4, "X", "FvVc-OX FvVc-OX FvVcCOX FvVcCOX", "Theta3:Mag|Omega4:Mag|Cpler Pt-1:Ang|", false, true, {"cmd_OK4"}},
        {"ok", 4, "", "FvVc-OX FvVc-OX FvVcCOX FvVcCOX", "Theta3:Mag|Omega4:Mag|Cpler Pt-1:Ang|Accel CP-2:X", true, true, {"cmb_Com4", "cmd_OK4"}},
    };
    // clang-format on
    Open_Mix(print);
    for (const Act& act : acts) {
        SCOPED_TRACE(std::string(act.what) + std::to_string(act.k) + " " + act.text);
        Do(print, act);
        EXPECT_EQ(Slots(print), act.slots);
        EXPECT_EQ(Chosen(print), act.chosen);
        EXPECT_EQ(print.cmd_Done.enabled, act.done);
        EXPECT_EQ(Frame_Can_Be_Chosen(print), act.frame);
        EXPECT_EQ(Focus_Moves(), act.focus);
    }
    EXPECT_EQ(selections.NumSelected, 4);
}

TEST_F(SelectionRules, AnotherComponentTakesItsLabelBackAndKeepsTheFunctions) {
    Open_Mix(print);
    Confirm(print, 1, "Veloc I 2,3", "X");
    Pick_Component(print, 1, "Mag");
    EXPECT_EQ(Chosen(print), "Veloc I 2,3:|||");
    EXPECT_EQ(selections.SelComp(1), 2);
    EXPECT_EQ(selections.SelCompName(1), "Mag");
    EXPECT_TRUE(print.cmd_OK[0].enabled);
    EXPECT_TRUE(print.cmd_Done.enabled);
}

TEST_F(SelectionRules, AScalarShowsMagAndIsCalledMagnitude) {
    Open_Mix(print);
    Pick_Variable(print, 1, "Trans Ang-1");
    EXPECT_EQ(Boxes(print), "Trans Ang-1:Mag|||");
    EXPECT_EQ(selections.SelCompName(1), "Magnitude");
    print.cmd_OK[0].click();
    EXPECT_EQ(print.lbl_Component[0].caption, "Mag");
    EXPECT_EQ(selections.SelCompName(1), "Magnitude");
    EXPECT_EQ(selections.SelComp(1), 2);
    // A vector in another slot is not called so, nor this one once it holds a vector.
    Confirm(print, 2, "Veloc I 2,3", "Mag");
    Pick_Component(print, 2, "Mag");
    EXPECT_EQ(selections.SelCompName(2), "Mag");
    Confirm(print, 1, "Veloc I 3,4", "Mag");
    EXPECT_EQ(selections.SelCompName(1), "Mag");
}

TEST_F(SelectionRules, APickWritesItsOwnSelectionAtOnce) {
    Open_Mix(single);
    Confirm(single, 1, "Theta2");
    Pick_Variable(single, 2, "Accel CP-1");
    EXPECT_EQ(selections.SelTable(1), 1);
    EXPECT_EQ(selections.SelTable(2), 5);
    EXPECT_EQ(selections.SelIndex(2), 2);
    Pick_Component(single, 2, "Ang");
    EXPECT_EQ(selections.SelComp(2), 3);
    EXPECT_EQ(selections.SelCompName(2), "Ang");
}

TEST_F(SelectionRules, ALocalFrameStaysChosenWhenAScalarTakesTheChoiceAway) {
    Open_Mix(single);
    Confirm(single, 1, "Veloc I 2,3", "X");
    Choose(single.opt_Coord, 1);
    Confirm(single, 2, "Theta3");
    EXPECT_FALSE(Frame_Can_Be_Chosen(single));
    EXPECT_TRUE(single.opt_Coord[1].on);
    Confirm(single, 3, "Veloc I 3,4", "X");
    EXPECT_TRUE(Frame_Can_Be_Chosen(single));
    EXPECT_TRUE(single.opt_Coord[1].on);
}

TEST_F(SelectionRules, ClearingEmptiesTheSlotAndOnlyTheMiddleOnesLockTheirOk) {
    for (std::size_t k = 1; k <= 4; ++k) {
        SCOPED_TRACE(k);
        Open_Mix(print);
        for (std::size_t slot = 1; slot <= 4; ++slot) Confirm(print, slot, "Veloc I 2,3", "X");
        port.trace.clear();
        print.cmd_Clear.at(k - 1).click();
        EXPECT_EQ(print.cmb_Var.at(k - 1).text + print.cmb_Com.at(k - 1).text, "");
        EXPECT_EQ(print.lbl_Function.at(k - 1).caption + print.lbl_Component.at(k - 1).caption, "");
        const bool middle = k == 2 || k == 3;
        EXPECT_EQ(print.cmd_OK.at(k - 1).enabled, !middle);
        EXPECT_EQ(print.cmd_Done.enabled, !middle);
        EXPECT_EQ(selections.NumSelected, k == 4 ? 3 : 4);
        EXPECT_THAT(Focus_Moves(), IsEmpty());
    }
}

TEST_F(SelectionRules, TheLastFunctionThatIsClearedTakesNextAway) {
    for (SelectionForm* form : All_Forms()) {
        Open_Mix(*form);
        Confirm(*form, 1, "Veloc I 2,3", "X");
        form->cmd_Clear[0].click();
        EXPECT_FALSE(form->cmd_Done.enabled) << form->kind.functions;
        EXPECT_EQ(selections.*form->kind.count, 0);
    }
}

TEST_F(SelectionRules, AGapBetweenFunctionsIsToldOfOnTheSingleWindowScreen) {
    Open_Mix(single);
    Confirm(single, 1, "Theta3");
    Confirm(single, 2, "Theta4");
    Confirm(single, 3, "Theta5");
    EXPECT_EQ(selections.SelCount, 3);
    single.cmd_Clear[1].click();
    Expect_Box(kGap, Icon::None);
    EXPECT_EQ(selections.SelCount, 3);
    EXPECT_FALSE(single.cmd_Done.enabled);
    EXPECT_THAT(port.hidden, IsEmpty()) << "the screen stays";
    // Filling it closes the gap.
    Confirm(single, 2, "Theta6");
    EXPECT_TRUE(single.cmd_Done.enabled);
    // A slot that lost its confirmation to another pick is a gap too.
    Pick_Variable(single, 1, "Omega2");
    single.cmd_OK[2].click();
    Expect_Box(kGap, Icon::None);
    EXPECT_EQ(selections.SelCount, 3);
}

TEST_F(SelectionRules, NothingChosenIsNoGap) {
    Open_Mix(single);
    for (Button& clear : single.cmd_Clear) clear.click();
    EXPECT_FALSE(single.cmd_Done.enabled);
    EXPECT_EQ(selections.SelCount, 0);
}

TEST_F(SelectionRules, TheOtherScreensCountWithoutABox) {
    for (SelectionForm* form : {static_cast<SelectionForm*>(&four), static_cast<SelectionForm*>(&polar),
                                static_cast<SelectionForm*>(&print)}) {
        Open_Mix(*form);
        for (std::size_t k = 1; k <= 3; ++k) Confirm(*form, k, "Veloc I 2,3", "X");
        form->cmd_Clear[0].click();
        EXPECT_EQ(selections.*form->kind.count, 3);
    }
}

TEST_F(SelectionRules, EachScreenCountsForItsOwnOutput) {
    for (SelectionForm* form : All_Forms()) {
        selections.SelCount = selections.NumSelected = -1;
        Open_Mix(*form);
        Confirm(*form, 1, "Veloc I 2,3", "X");
        const bool table = form == &print;
        EXPECT_EQ(selections.SelCount, table ? -1 : 1);
        EXPECT_EQ(selections.NumSelected, table ? 1 : -1);
    }
}

TEST_F(SelectionRules, NextNeedsEverySlotOfTwoAndFourWindows) {
    for (SelectionForm* form : All_Forms()) {
        SCOPED_TRACE(static_cast<int>(form->kind.screen));
        Open_Mix(*form);
        const bool needs_all = form == &two || form == &four;
        for (std::size_t k = 1; k <= form->kind.functions; ++k) {
            Confirm(*form, k, "Veloc I 2,3", "X");
            EXPECT_EQ(form->cmd_Done.enabled, !needs_all || k == form->kind.functions) << k;
        }
        form->cmd_Clear.at(form->kind.functions - 1).click();
        EXPECT_EQ(form->cmd_Done.enabled, !needs_all);
    }
}

TEST_F(SelectionRules, TheLastSlotHasNoNext) {
    Open_Mix(two);
    Confirm(two, 1, "Theta3");
    Confirm(two, 2, "Theta4");
    EXPECT_EQ(Slots(two), "FvVc-OX FvVc-OX");
    EXPECT_EQ(Slot(two, 3), Slot(two, 4)) << "slots that the screen does not have stay as they were";
}

TEST_F(SelectionRules, TheNextSlotOpensWithItsOkWhereItsBoxesHoldAChoice) {
    Open_Mix(single);
    Confirm(single, 1, "Theta3");
    Confirm(single, 2, "Veloc I 2,3", "X");
    Confirm(single, 3, "Veloc I 3,4", "Y");
    Pick_Variable(single, 3, "Veloc I 5,6");
    EXPECT_FALSE(single.cmd_OK[2].enabled) << "waits for the component";
    single.cmd_OK[1].click();
    EXPECT_EQ(Slot(single, 3), "FvVcCOX") << "which is there: Y";
}

TEST_F(SelectionRules, ADoubleClickOnTheLastMissingVariableGoesOn) {
    int done = 0;
    print.cmd_Done.click = [&done] { ++done; };
    Open_Mix(print);
    for (std::size_t k = 1; k <= 3; ++k) {
        print.cmb_Var.at(k - 1).text = "Theta3";
        print.cmb_Var.at(k - 1).double_click();
        EXPECT_EQ(done, 0) << "not all are filled";
        EXPECT_EQ(print.lbl_Function.at(k - 1).caption, "") << "picked, not confirmed";
        print.cmd_OK.at(k - 1).click();
    }
    print.cmb_Var[3].text = "Theta6";
    print.cmb_Var[3].double_click();
    EXPECT_EQ(done, 1);
    EXPECT_EQ(Chosen(print), "Theta3:Mag|Theta3:Mag|Theta3:Mag|Theta6:Mag");
    EXPECT_EQ(selections.NumSelected, 4);
}

TEST_F(SelectionRules, ADoubleClickStaysWhereAnotherSlotIsNotConfirmed) {
    int done = 0;
    single.cmd_Done.click = [&done] { ++done; };
    Open_Mix(single);
    for (std::size_t k = 1; k <= 4; ++k) Confirm(single, k, "Theta3");
    Pick_Variable(single, 1, "Theta4");
    single.cmb_Var[3].text = "Theta6";
    single.cmb_Var[3].double_click();
    EXPECT_NE(Take_Box().text.find("You are missing a plot selection."), std::string::npos);
    EXPECT_EQ(done, 0);
    single.cmd_OK[0].click();
    single.cmb_Var[3].double_click();
    EXPECT_EQ(done, 1);
}

TEST_F(SelectionRules, ThePlainOnesAmongCentresOfGravityAndFlywheelOpenTheirComponents) {
    Open_Mix(print);
    for (const char* plain : {"Veloc CG 2", "Flywl Torque", "F Shaking", "Cpler Pt-2"}) {
        Pick_Variable(print, 1, plain);
        EXPECT_EQ(Slot(print, 1), "FvVcC-X") << plain;
        EXPECT_FALSE(Frame_Can_Be_Chosen(print)) << plain;
    }
    for (const char* vector : {"Veloc CG 3", "Accel CG 2", "Force 12"}) {
        Pick_Variable(print, 1, vector);
        EXPECT_TRUE(Frame_Can_Be_Chosen(print)) << vector;
    }
}

}  // namespace
}  // namespace kervol
