// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of tests on the screens on which functions are chosen: their states as short texts, and the hand
// that picks.
#pragma once

#include <string>
#include <vector>

#include "screens/screens_fixture.h"

namespace kervol {

class SelectionTest : public ScreensTest {
  protected:
    /// A swept model of mode 3, as the Home screen has it when a selection opens.
    SelectionTest() {
        model.CalcMode = 3;
        model.DataCalculated = true;
        model.NewData = true;
    }

    /// Opens the screen as Home or the plot type screen does, with its lists loaded.
    void Open(SelectionForm& form) {
        model.NewData = true;
        Reopen(form);
    }
    void Reopen(SelectionForm& form) { port.Show_Screen(form.kind.screen, Modality::Modal); }
    /// Opens the screen and chooses to pick each function for itself.
    void Open_Mix(SelectionForm& form) {
        Open(form);
        if (!form.kind.vectors_only) Choose(form.opt_PrintSet, 1);
        port.trace.clear();
    }

    static void Pick_Variable(SelectionForm& form, std::size_t k, const char* name) {
        form.cmb_Var.at(k - 1).text = name;
        form.cmb_Var.at(k - 1).click();
    }
    static void Pick_Component(SelectionForm& form, std::size_t k, const char* name) {
        form.cmb_Com.at(k - 1).text = name;
        form.cmb_Com.at(k - 1).click();
    }
    /// Picks a function and its component, and presses OK. A scalar has no component to pick.
    static void Confirm(SelectionForm& form, std::size_t k, const char* name, const char* component = "") {
        Pick_Variable(form, k, name);
        if (*component != '\0') Pick_Component(form, k, component);
        form.cmd_OK.at(k - 1).click();
    }
    static void Pick_Preset(SelectionForm& form, const std::string& title) {
        form.cmb_Preset.text = title;
        form.cmb_Preset.click();
    }

    /// What is enabled in slot k: F frame, v and c the labels, V and C the boxes, O and X for OK and Clear.
    static std::string Slot(const SelectionForm& form, std::size_t k) {
        const std::size_t i = k - 1;
        std::string state;
        const auto add = [&state](const Control& control, char letter) {
            state += control.enabled ? letter : '-';
        };
        add(form.fra_Function.at(i), 'F');
        add(form.lbl_Var.at(i), 'v');
        add(form.cmb_Var.at(i), 'V');
        add(form.lbl_Comp.at(i), 'c');
        add(form.cmb_Com.at(i), 'C');
        add(form.cmd_OK.at(i), 'O');
        add(form.cmd_Clear.at(i), 'X');
        return state;
    }
    /// All slots that the screen has, parted by blanks.
    static std::string Slots(const SelectionForm& form) {
        std::string state;
        for (std::size_t k = 1; k <= form.kind.functions; ++k) state += (k > 1 ? " " : "") + Slot(form, k);
        return state;
    }
    /// The confirmed choices: "Theta3:Mag|Omega4:Mag||".
    static std::string Chosen(const SelectionForm& form) {
        std::string text;
        for (std::size_t i = 0; i < form.kind.functions; ++i) {
            if (i > 0) text += "|";
            if (form.lbl_Function.at(i).caption.empty() && form.lbl_Component.at(i).caption.empty()) continue;
            text += form.lbl_Function.at(i).caption + ":" + form.lbl_Component.at(i).caption;
        }
        return text;
    }
    /// The same of what stands in the boxes.
    static std::string Boxes(const SelectionForm& form) {
        std::string text;
        for (std::size_t i = 0; i < form.kind.functions; ++i) {
            if (i > 0) text += "|";
            if (form.cmb_Var.at(i).text.empty() && form.cmb_Com.at(i).text.empty()) continue;
            text += form.cmb_Var.at(i).text + ":" + form.cmb_Com.at(i).text;
        }
        return text;
    }
    static bool Frame_Can_Be_Chosen(const SelectionForm& form) {
        EXPECT_EQ(form.fra_Coord.enabled, form.opt_Coord[0].enabled);
        EXPECT_EQ(form.fra_Coord.enabled, form.opt_Coord[1].enabled);
        return form.fra_Coord.enabled;
    }

    /// Where the focus went since the last call.
    std::vector<std::string> Focus_Moves() {
        std::vector<std::string> moves;
        for (const std::string& entry : port.trace)
            if (entry.starts_with("focus ")) moves.push_back(entry.substr(entry.find('.') + 1));
        port.trace.clear();
        return moves;
    }

    std::vector<SelectionForm*> All_Forms() {
        return {&screens->frm_PlotSelect1, &screens->frm_PlotSelect2, &screens->frm_PlotSelect3,
                &screens->frm_PlotSelect4, &screens->frm_PrintSelect};
    }

    Selections& selections = program->selections;
    PlotSelectScreen& single = screens->frm_PlotSelect1;
    PlotSelectScreen& two = screens->frm_PlotSelect2;
    PlotSelectScreen& four = screens->frm_PlotSelect3;
    PlotSelectScreen& polar = screens->frm_PlotSelect4;
    PrintSelectScreen& print = screens->frm_PrintSelect;
};

}  // namespace kervol
