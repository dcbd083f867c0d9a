// SPDX-License-Identifier: GPL-3.0-or-later
// A screen as an image: printed, after a warning, or copied to the clipboard.
#pragma once

#include "core/port.h"

namespace kervol {

/// Asks whether the screen should be sent to the printer; on the Animation screen without the first line.
bool Confirm_Printing(Port& port, ScreenId screen);

/// Prints the screen once that is confirmed.
void Print_Form(Port& port, ScreenId screen);

/// Puts an image of the screen on the clipboard, and says by which keys many desktops do so.
void Copy_Form(Port& port, ScreenId screen, Icon icon = Icon::Information);

}  // namespace kervol
