// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit's painting leaves the upper halves of the processor's wide registers in use, and ordinary
// arithmetic behind it runs up to ten times slower until they are cleared.
#pragma once

namespace kervol {

/// Clears them where the processor has them. No value in use is lost.
void Clear_Wide_Registers();

}  // namespace kervol
