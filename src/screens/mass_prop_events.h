// SPDX-License-Identifier: GPL-3.0-or-later
// What the controls of the Dynamics screen do.
#pragma once

#include "screens/screens.h"

namespace kervol {

/// Names the events of the Dynamics screen's controls.
void Wire_Mass_Prop_Screen(Screens& screens);

/// Fills the screen each time it opens, and on return from the matrix, which leaves its buttons as they are.
void Mass_Prop_Form_Activate(Screens& screens);

/// Shows the link data of the model in their fields.
void Put_Link_Data(const LinkageModel& model, MassPropScreen& screen);

/// What was solved is no longer that of the fields: turns the buttons off that need a solution. The results
/// and their flag stay.
void Data_Changed(MassPropScreen& screen);

/// Tells in three boxes how the loads of a link are entered.
void Forcehelp(Port& port);

}  // namespace kervol
