// SPDX-License-Identifier: GPL-3.0-or-later
// What the controls of the flywheel screen do.
#pragma once

#include "screens/screens.h"

namespace kervol {

/// Names the events of the flywheel screen's controls.
void Wire_Flywheel_Screen(Screens& screens);

/// Each time the screen opens: the coefficient as it stands, nothing calculated.
void Flywheel_Form_Activate(Screens& screens);

}  // namespace kervol
