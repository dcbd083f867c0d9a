// SPDX-License-Identifier: GPL-3.0-or-later
// What the controls of the Input screen do.
#pragma once

#include "screens/screens.h"

namespace kervol {

/// Names the events of the Input screen's controls.
void Wire_Input_Screen(Screens& screens);

/// Fills the screen each time it opens.
void Input_Form_Activate(Screens& screens);

/// The classification in words, and the time steps, which a linkage that cannot turn does not have.
void Show_Classes(Screens& screens);
/// Output buttons off and the picture cleared; `DataCalculated` clear.
void Disable_Outputs(Screens& screens);
/// Output buttons on; `DataCalculated` set.
void Enable_Outputs(Screens& screens);

}  // namespace kervol
