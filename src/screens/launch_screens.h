// SPDX-License-Identifier: GPL-3.0-or-later
// The start of the program with screens, and the flow from one screen to the next.
#pragma once

#include <string>
#include <string_view>

#include "screens/screens.h"

namespace kervol {

/// Captions that never change, and what each control does. Once, before anything is shown.
void Wire_Screens(Screens& screens);

/// The screen's own name, such as "frm_Title".
std::string_view Screen_Name(ScreenId screen);

/// What a screen does each time it opens or comes to the front.
void Activate_Screen(Screens& screens, ScreenId screen);

/// What the close box or Escape of a screen's window does.
void Close_Screen(Screens& screens, ScreenId screen);

/// Text of a screen's title bar.
std::string Screen_Caption(const Screens& screens, ScreenId screen);

/// Fills the fields of the screens from the model, after it was read or replaced.
void Fill_Screens(Screens& screens);

/// From the command line to the Home screen: program values, fresh model, named file, title screen.
void Launch(Screens& screens, const std::string& command_line);

}  // namespace kervol
