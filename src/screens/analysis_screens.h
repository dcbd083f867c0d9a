// SPDX-License-Identifier: GPL-3.0-or-later
// The screens that work a calculated function further, as records of their controls: its spectrum, and what a
// flywheel makes of the crank torque.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/chart.h"
#include "core/controls.h"
#include "plots/grid_style.h"

namespace kervol {

struct FFTScreen : GridStyleBoxes {
    FFTScreen();

    static constexpr std::size_t graphs = 4;

    Label lbl_Header;
    Label lbl_Header2;  ///< never shown
    Frame fra_Function1;
    Label lbl_Var1, lbl_Com1, lbl_Harmonics;
    ComboBox cmb_Var1, cmb_Com1, cmb_Harmonics;
    Frame fra_Grid, fra_Style;  ///< around the check boxes
    std::array<Chart, graphs>
        grf_Plot;  ///< real and imaginary part, magnitude, phase in degrees, by harmonic
    std::array<Label, graphs> lbl_Graph;
    Button cmd_Clear1, cmd_Calc, cmd_Done, cmd_Cancel, cmd_Print, cmd_Copy;

    std::int16_t MaxTicks = 15;
    bool Loading = false;  ///< held while a list is filled: its picks do nothing
};

struct FlywheelScreen {
    FlywheelScreen();

    Label lbl_Header;
    Frame fra_Energy, fra_Fluct, fra_Without, fra_With;
    Label pct_Pict1;  ///< the energies as lines of text, in columns of equally wide characters
    TextField txt_Fluct;
    /// Maximum without and with the flywheel, then minimum; name, value, unit.
    std::array<Label, 4> lbl_Right2, lbl_Torque, lbl_Unit;
    std::array<Chart, 2> grf_Plot;  ///< crank torque without and with the flywheel
    Button cmd_Calc, cmd_Done, cmd_Cancel, cmd_Print, cmd_copy;

    bool FluctChanged = false;  ///< the coefficient was edited and not taken yet
};

}  // namespace kervol
