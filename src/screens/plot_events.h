// SPDX-License-Identifier: GPL-3.0-or-later
// The screens that show plots, and the way from a selection to them and back.
#pragma once

#include "screens/screens.h"

namespace kervol {

/// Names the events of the seven plot screens, and those of Next on the selections that lead to them.
void Wire_Plot_Screens(Screens& screens);

/// The selection that leads to a plot screen.
PlotSelectScreen& Selection_Of(Screens& screens, const PlotButtons& form);

/// Each time a plot screen opens: its number of plots, its buttons, then everything is drawn.
void Plot_Form_Activate(Screens& screens, ChartScreen& form);
void Plot_Form_Activate(Screens& screens, OwnPlotScreen& form);
void Plot_Form_Activate(Screens& screens, PolarPlotScreen& form);

}  // namespace kervol
