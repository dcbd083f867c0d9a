// SPDX-License-Identifier: GPL-3.0-or-later
// The look that all windows share.
#pragma once

namespace kervol {

/// One style on every system, in the colours of the desktop; disabled texts dark enough to be read.
void Set_Look();

}  // namespace kervol
