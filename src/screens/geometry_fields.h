// SPDX-License-Identifier: GPL-3.0-or-later
// The linkage between the model and the geometry fields of the Input and Animation screens.
#pragma once

#include "screens/screens.h"

namespace kervol {

/// All fields of the Input screen to the model, and all that follows from them. Negative lengths are turned
/// positive, with a warning. Clears `DataCalculated`.
void Get_Input_Geometry(Screens& screens);
void Put_Input_Geometry(Screens& screens);

/// The same for the Animation screen, where fields 4 and 5 show the element from which Stage 2 hangs: the arm
/// O4-D of a Watt chain, the coupler A-C of a Stephenson chain. The other coupler fields stay as they were.
void Get_Calc_Geometry(Screens& screens);
void Put_Calc_Geometry(Screens& screens);

/// The assembly options of a screen to the model, and back.
void Read_OpenCross(LinkageModel& model, const LinkageScreen& screen);
void Put_OpenCross(const LinkageModel& model, LinkageScreen& screen);

/// Takes the chain from its options and relabels the Input screen for it.
void Change_Labels(Screens& screens);

}  // namespace kervol
