// SPDX-License-Identifier: GPL-3.0-or-later
// The screens on which output functions are chosen for plots and tables, and the one that shows a table, as
// records of their controls.
#pragma once

#include <array>
#include <cstdint>

#include "catalogue/data_grid.h"
#include "catalogue/slots.h"
#include "core/controls.h"
#include "core/port.h"
#include "core/selections.h"

namespace kervol {

struct PlotTypeScreen {
    PlotTypeScreen();

    std::array<OptionButton, 4> opt_PickPlot;
    std::array<PictureBox, 8> pct_PickPlot;  ///< two of each option: 2 i and 2 i + 1
    Button cmd_PickPlotDone, cmd_CancelPickPlot;
};

/// Which slots have to be confirmed before a selection screen goes on.
enum class SlotsNeeded { Any, WithoutGaps, All };

/// What tells one selection screen from another.
struct SelectionKind {
    SelectionScreen lists;
    ScreenId screen;
    std::size_t functions = NumSlots;  ///< how many slots it has, and each of its presets
    SlotsNeeded needed = SlotsNeeded::Any;
    bool has_styles = false;
    bool vectors_only = false;                                ///< such a screen has no presets
    std::int16_t Selections::*count = &Selections::SelCount;  ///< takes the last confirmed slot
};

/// What all selection screens share. Entry i of an array belongs to slot i + 1, by whose number the controls
/// are called: `cmb_Var1`, ... Entries beyond the slots of its kind are not in the list of controls.
struct SelectionForm : SlotLabels {
    explicit SelectionForm(const SelectionKind& the_kind);

    SelectionKind kind;
    std::array<Frame, NumSlots> fra_Function;
    std::array<Label, NumSlots> lbl_Var, lbl_Comp;
    std::array<ComboBox, NumSlots> cmb_Var, cmb_Com;
    std::array<Button, NumSlots> cmd_OK, cmd_Clear;
    std::array<OptionButton, 2> opt_PrintSet;
    Frame fra_Preset;
    ComboBox cmb_Preset;
    Button cmd_ClearPreset;
    Frame fra_Coord;
    std::array<OptionButton, 2> opt_Coord;
    std::array<OptionButton, 2> opt_Plotstyle;
    Button cmd_Done, cmd_Cancel;
};

struct PlotSelectScreen : SelectionForm {
    using SelectionForm::SelectionForm;
};

inline constexpr SelectionKind kPlotSelect1 = {.lists = SelectionScreen::frm_PlotSelect1,
                                               .screen = ScreenId::frm_PlotSelect1,
                                               .needed = SlotsNeeded::WithoutGaps};
inline constexpr SelectionKind kPlotSelect2 = {.lists = SelectionScreen::frm_PlotSelect2,
                                               .screen = ScreenId::frm_PlotSelect2,
                                               .functions = 2,
                                               .needed = SlotsNeeded::All,
                                               .has_styles = true};
inline constexpr SelectionKind kPlotSelect3 = {.lists = SelectionScreen::frm_PlotSelect3,
                                               .screen = ScreenId::frm_PlotSelect3,
                                               .needed = SlotsNeeded::All,
                                               .has_styles = true};
inline constexpr SelectionKind kPlotSelect4 = {.lists = SelectionScreen::frm_PlotSelect4,
                                               .screen = ScreenId::frm_PlotSelect4,
                                               .has_styles = true,
                                               .vectors_only = true};
inline constexpr SelectionKind kPrintSelect = {.lists = SelectionScreen::frm_PrintSelect,
                                               .screen = ScreenId::frm_PrintSelect,
                                               .count = &Selections::NumSelected};

struct PrintSelectScreen : SelectionForm {
    PrintSelectScreen();

    std::array<OptionButton, 3> opt_Whereto;
    ComboBox cmb_Step, cmb_Decimal;
};

struct PrintDataScreen : DataView {
    PrintDataScreen();

    Button cmd_PrintForm, cmd_Copy, cmd_Cancel;
};

}  // namespace kervol
