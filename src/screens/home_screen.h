// SPDX-License-Identifier: GPL-3.0-or-later
// The hub: file operations, units, examples, and what is enabled when.
#pragma once

#include "screens/screens.h"

namespace kervol {

void Wire_Home_Screen(Screens& screens);

/// Each time the Home screen comes to the front.
void Home_Form_Activate(Screens& screens);

/// Menu entries and buttons that follow what is calculated.
void Update_Home_Menu(Screens& screens);
/// The buttons that need calculated data.
void Update_Home_Buttons(Screens& screens);

/// Asks for a name and writes the model there. Cancel changes nothing.
void SaveAs(Screens& screens);

/// Asks whether the program should end, after offering to save results that no file holds.
void Quit(Screens& screens);

}  // namespace kervol
