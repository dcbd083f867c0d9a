// SPDX-License-Identifier: GPL-3.0-or-later
// What the controls of the Matrix screen do.
#pragma once

#include "screens/screens.h"

namespace kervol {

/// Names the events of the Matrix screen's controls.
void Wire_Matrix_Screen(Screens& screens);

/// Shows the force equations that the last run of the dynamics left, each time the screen opens.
void Matrix_Form_Activate(Screens& screens);

}  // namespace kervol
