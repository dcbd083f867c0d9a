// SPDX-License-Identifier: GPL-3.0-or-later
// The way to a plot: its kind, then its functions.
#pragma once

#include "screens/screens.h"

namespace kervol {

/// Names the events of the plot type screen and of the four plot selections.
void Wire_Plot_Select_Screens(Screens& screens);

/// Opens the plot type screen on the kind that was picked last.
void Plot_Type_Form_Activate(Screens& screens);

/// Opens the single-window selection.
void Plot_Select1_Form_Activate(Screens& screens);

}  // namespace kervol
