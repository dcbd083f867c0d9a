// SPDX-License-Identifier: GPL-3.0-or-later
// What the lists of the selection screens offer. Each of these clears the list first; the text of its box is
// left alone.
#pragma once

#include <cstdint>

#include "core/controls.h"
#include "core/program.h"

namespace kervol {

/// The functions whose numbers are there: 35, with the dynamics 64, with the flywheel 65.
void Load_Variables(const Program& program, ComboBox& list);

/// The functions that are vectors, as a polar plot needs them.
void Load_Vector_Variables(const Program& program, ComboBox& list);

void Load_Components(const Program& program, ComboBox& list);

/// The presets of `count` functions, 2 or 4, whose numbers are there; any other count offers none.
void Load_Presets(Program& program, ComboBox& list, std::int16_t count);

/// Whether a selection screen has to load its lists at its opening: results have changed since it last did.
/// It then counts as loaded. Clears `NewData`, once every other screen knows.
bool Take_New_Data(Program& program, SelectionScreen screen);

}  // namespace kervol
