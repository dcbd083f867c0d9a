// SPDX-License-Identifier: GPL-3.0-or-later
// The read-only copy of linkage, drive and frame beside plots and tables.
#pragma once

class QVBoxLayout;

namespace kervol::form {

/// "Linkage Data", "Initial Conditions", "Coord System" and the header, one below the other.
QVBoxLayout* New_State_Column();

}  // namespace kervol::form
