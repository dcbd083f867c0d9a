// SPDX-License-Identifier: GPL-3.0-or-later
// The two screens of the dynamics, as records of their controls: link data and loads, and the force equations
// of the first position.
#pragma once

#include <array>
#include <cstddef>

#include "core/constants.h"
#include "core/controls.h"
#include "dynamics/force_system.h"

namespace kervol {

/// One field for each link number; a screen shows those of links 2 to 6, or 3 to 6 for what acts on a link
/// from outside.
using LinkFields = std::array<TextField, NumLinks + 1>;

inline constexpr std::array kMovingLinks = {2, 3, 4, 5, 6};
inline constexpr std::array kLoadedLinks = {3, 4, 5, 6};

struct MassPropScreen {
    MassPropScreen();

    Label lbl_Header;
    LinkFields txt_Mass, txt_Inertia;       ///< links 2 to 6
    LinkFields txt_DistCG, txt_AngCG;       ///< links 2 to 6; the angle in degrees
    LinkFields txt_MagForce, txt_AngForce;  ///< links 3 to 6
    LinkFields txt_DistP, txt_AngP;         ///< links 3 to 6
    LinkFields txt_Torque, txt_Frict;       ///< links 3 to 6
    std::array<Label, NumLinks + 1> lbl_Segment;

    // Units of the columns, from 1 in the order of the columns.
    Label lbl_MassUnit, lbl_InertiaUnit, lbl_TorqueUnit;
    std::array<Label, 3> Lbl_DistUnit;   ///< centre of gravity, force point
    std::array<Label, 3> lbl_ForceUnit;  ///< external force, friction
    std::array<Label, 4> lbl_AngUnit;    ///< centre of gravity, external force, force point

    CheckBox chk_Torque;
    Button cmd_Solve, cmd_Matrix, cmd_Done, cmd_Cancel, cmd_Print, cmd_Copy;
    Button cmd_Help;  ///< how to enter forces

    bool FromMatrix = false;  ///< the matrix screen stands over this one
};

/// Index 0 of rows and columns stays unused.
struct MatrixScreen {
    static constexpr std::size_t kEnd = NumEquations + 1;

    MatrixScreen();

    Label lbl_Header;
    std::array<std::array<Label, kEnd>, kEnd> lbl_A;  ///< coefficients, row first
    std::array<Label, kEnd> lbl_B;                    ///< right-hand side by row
    std::array<Label, 2 * kEnd - 1> lbl_Var;          ///< heads of columns 1 to 15, then of rows 1 to 15
    Label Label4;
    Button cmd_Done, cmd_Back, cmd_Copy, cmd_Print;
};

}  // namespace kervol
