// SPDX-License-Identifier: GPL-3.0-or-later
// Texts around a plot that all kinds of plots form alike.
#pragma once

#include <cstdint>
#include <string>

#include "catalogue/slots.h"
#include "catalogue/state_labels.h"
#include "core/program.h"

namespace kervol {

/// Caption of a slot, from 0; fault 9 for a slot that is not there.
const std::string& Slot_Caption(const std::array<Label, NumSlots>& labels, int slot);

/// Unit of selection k: that of its table, of the current Fourier function `spectrum`; "Deg" for a selection
/// whose `SelComp` is `angle`.
std::string Plot_Unit(const Program& program, std::int16_t k, const std::string& spectrum,
                      std::int16_t angle);

/// The header and the linkage.
void Put_Plot_State(const Program& program, StateLabels& form);

/// Title of the abscissa by the mode, with the labels of the drive: of modes 2, 4 and 5 the time, of mode 3
/// the crank angle or the harmonic. Any other mode leaves title and labels.
void Put_Abscissa_Title(const Program& program, StateLabels& form, std::string& title);

/// The text of `lbl_Header3`: what was transformed; empty for a function that is no transform.
std::string Frame_Text(const Program& program);

/// Time of a step in seconds, with two decimals.
std::string Time_Text(const LinkageModel& model, std::int16_t step);

/// Decimals of the labels at an axis that ends at this limit.
std::int16_t Label_Decimals(float limit);

}  // namespace kervol
