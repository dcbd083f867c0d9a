// SPDX-License-Identifier: GPL-3.0-or-later
// The two screens that show and edit the linkage, as records of their controls. Fields have the same indices
// on both.
#pragma once

#include <array>

#include "animation/stepping.h"
#include "core/controls.h"

namespace kervol {

/// Indices of `txt_Linkout`.
enum LinkField {
    Field_Link1 = 0,  // a result, not read
    Field_Link2 = 1,
    Field_Link3 = 2,
    Field_Link4 = 3,
    Field_LinkO4D = 4,
    Field_Delta4 = 5,
    Field_Link5 = 6,
    Field_Link6 = 7,
    Field_O6X = 8,
    Field_O6Y = 9,
    Field_CouplerAC = 10,
    Field_Delta3 = 11,
    Field_Coupler2 = 12,
    Field_Delta5 = 13,
    Field_Ground = 14,  // a result, not read
    Field_O4X = 15,
    Field_O4Y = 16,
};
inline constexpr int NumLinkFields = 17;
inline constexpr int NumInitialFields = 6;

inline constexpr std::array kLengthFields = {0, 1, 2, 3, 4, 6, 7, 8, 9, 10, 12, 15, 16};
inline constexpr std::array kAngleFields = {5, 11, 13, 14};

/// What both screens carry. Labels and units stand beside the field of the same index; entries that a screen
/// does not show are not in its list of controls.
struct LinkageScreen : LinkageView {
    std::array<TextField, NumLinkFields> txt_Linkout;
    std::array<Label, NumLinkFields> lbl_Left;
    std::array<Label, NumLinkFields> lbl_Units;    ///< unit of length, beside lengths
    std::array<Label, NumLinkFields> lbl_Degrees;  ///< beside angles
    std::array<TextField, NumInitialFields> txt_Initial;
    std::array<Label, NumInitialFields> lbl_Initial;
    std::array<Label, NumInitialFields> lbl_Unit;
    std::array<OptionButton, 2> opt_OpenCross1, opt_OpenCross2;
    Label lbl_cw, lbl_ccw, lbl_time;  ///< ends of the step bar
    Label lbl_camdriven;
    TextField txt_header;
    Button cmd_Step, cmd_Reset;

    bool GeometryEdited = false;
    bool Filling = false;   ///< held while the screen is filled: option clicks do not calculate
    bool Stepping = false;  ///< held while the step bar is written
};

struct InputScreen : LinkageScreen {
    InputScreen();

    std::array<OptionButton, 2> opt_SteveWatt;
    std::array<OptionButton, 3> opt_Calctype;
    Frame frm_calcmode;
    CheckBox chk_autocalc;
    Button cmd_Calc, cmd_Draw, cmd_Next, cmd_Animate, cmd_Cancel, cmd_Print;
    std::array<Label, 2> Pnl_Grashof;
    Label lbl_directions;
    Label lbl_Chain;     ///< name of the chain above the fields
    Label lbl_Linkout2;  ///< beside field 12

    bool LinkoutChanged = false;  ///< a geometry field was changed since it got the focus
};

struct AnimateScreen : LinkageScreen, AnimationSettings {
    AnimateScreen();

    ComboBox cmb_wait;
    CheckBox chk_Coupler, chk_Points;
    Button cmd_Run, cmd_Recalc, cmd_Copy, cmd_Done, cmd_Back;
};

}  // namespace kervol
