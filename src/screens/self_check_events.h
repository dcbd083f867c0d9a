// SPDX-License-Identifier: GPL-3.0-or-later
// The screen that tells how far the calculated numbers can be trusted.
#pragma once

#include "screens/screens.h"

namespace kervol {

void Wire_Self_Check_Screen(Screens& screens);

/// Checks the tables as they stand and shows the report. Changes none of them.
void Self_Check_Form_Activate(Screens& screens);

}  // namespace kervol
