// SPDX-License-Identifier: GPL-3.0-or-later
// Single positions of the linkage on a screen that shows it.
#pragma once

#include <cstdint>

#include "core/controls.h"
#include "core/program.h"

namespace kervol {

/// The controls that every screen with the moving linkage carries.
struct LinkageView {
    Picture* Picture1 = nullptr;
    ScrollBar hsc_step;
    Label lbl_StepLabel, lbl_StepUnit, lbl_StepNumber;
    CheckBox chk_autoscale;
    Label lbl_Header;
};

/// The settings of the animation, which stand on the animation screen alone.
struct AnimationSettings {
    ScrollBar hsc_speed;
    TextField txt_Cycles;
    CheckBox chk_Showlinks, chk_Trace;
};

/// Reads delay, cycles, hidden links and trace, in this order, from the controls. A text without a number
/// counts as 0 cycles; a count beyond 16 bits is a fault, after which the caller goes on.
void Check_Parameters(Program& program, const AnimationSettings& settings);

/// Colours, settings, window, radii, scale and header. Clears the picture where `StepMode` is "N". A window
/// without an extent is a fault, and scale, header and `PlotY0` stay as they were.
void Animate_Setup(Program& program, LinkageView& view, const AnimationSettings& settings);

/// Draws row `step` and shows its crank angle or time. Earlier positions stay unless `StepMode` is "N".
void Step(Program& program, LinkageView& view, const AnimationSettings& settings, std::int16_t step);

/// The Step button: draws the current step, from 0 again behind the last, and moves on. `busy` is set while
/// the step bar is written, so that its change does not draw a second time.
void Step_Setup(Program& program, LinkageView& view, const AnimationSettings& settings, bool& busy);

/// The Reset button: draws step 0; the next step is 1.
void Step_Reset(Program& program, LinkageView& view, const AnimationSettings& settings);

}  // namespace kervol
