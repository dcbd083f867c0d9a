// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of the screens on which output functions are chosen: what a pick does, what is enabled behind it,
// and where the focus goes. One set of rules for all of them.
#pragma once

#include "core/program.h"
#include "screens/selection_screens.h"

namespace kervol {

/// Names the events of the controls that all selection screens share, but for the buttons that leave it.
void Wire_Selection_Form(Program& program, SelectionForm& form);

/// Each time the screen opens: current lists, nothing chosen, presets before single functions, global frame.
void Selection_Form_Activate(Program& program, SelectionForm& form);

/// Whether the frame can be chosen; the choice itself stays.
void Toggle_Coordinate(SelectionForm& form, bool on);

}  // namespace kervol
