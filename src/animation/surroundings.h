// SPDX-License-Identifier: GPL-3.0-or-later
// What frames the motion and stays still in it: the window, the pivots, the axes, the paths of the coupler
// points.
#pragma once

#include "core/program.h"

namespace kervol {

/// Sets `PlotMin` and `PlotMax`, the square window that holds the whole motion with a margin. Rows that did
/// not assemble count with their zeros.
void Autoscale6(Program& program);

/// The fixed pivots, of a cam drive the cam's too.
void Drawpivots(Program& program, Picture& picture);

/// Two lines, each shorter than the window.
void Axes(Program& program, Picture& picture);

/// Path of coupler point 1 for `which` 0, of coupler point 2 above. Rows that did not assemble leave a gap.
void DrawCouplerCurve(Program& program, int which, Picture& picture);

/// Both paths, where the model shows them.
void Draw_Coupler_Curves(Program& program, Picture& picture);

}  // namespace kervol
