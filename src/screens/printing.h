// SPDX-License-Identifier: GPL-3.0-or-later
// The warning that comes before a screen is printed.
#pragma once

#include "core/port.h"

namespace kervol {

/// Asks whether the screen should be sent to the printer; on the Animation screen without the first line.
bool Confirm_Printing(Port& port, ScreenId screen);

}  // namespace kervol
