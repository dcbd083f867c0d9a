// SPDX-License-Identifier: GPL-3.0-or-later
// The look that all windows share.
#pragma once

#include <QPalette>

namespace kervol {

/// The colours of what is disabled, strong enough to be read on the desktop's grounds: texts and the marked
/// row of a list. All other roles are unset, so that they go on following the desktop.
QPalette Readable_Roles(const QPalette& desktop);

/// A text's colour; on a dark ground as much lighter as it needs to be read there.
QColor Readable_Text(const QColor& text, const QColor& ground);

/// One style on every system, in the colours of the desktop but for the readable ones.
void Set_Look();

}  // namespace kervol
