// SPDX-License-Identifier: GPL-3.0-or-later
// Tables of the selected functions: where they go, and the screen that shows one.
#pragma once

#include "screens/screens.h"

namespace kervol {

/// Names the events of the print selection and of the output screen.
void Wire_Print_Select_Screens(Screens& screens);

/// Opens the print selection.
void Print_Select_Form_Activate(Screens& screens);

}  // namespace kervol
