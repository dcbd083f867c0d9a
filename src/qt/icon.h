// SPDX-License-Identifier: GPL-3.0-or-later
// The icon of the program's windows.
#pragma once

#include <QIcon>

namespace kervol {

/// That of the desktop entry, a four-bar loop on its two pivots, drawn at the usual sizes.
QIcon Program_Icon();

}  // namespace kervol
