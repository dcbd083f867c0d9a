// SPDX-License-Identifier: GPL-3.0-or-later
// What the controls of the Animation screen do.
#pragma once

#include "screens/screens.h"

namespace kervol {

/// Names the events of the Animation screen's controls.
void Wire_Animate_Screen(Screens& screens);

/// Fills the screen each time it opens.
void Animate_Form_Activate(Screens& screens);

}  // namespace kervol
