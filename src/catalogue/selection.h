// SPDX-License-Identifier: GPL-3.0-or-later
// From the name of an output function to its number at a step. Behind `Set_Selection` a function is known by
// its selection number k alone.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/program.h"

namespace kervol {

/// Selection k takes the function of that name: the first of `CatalogName` that is equal decides. Writes
/// `SelTable`, then `SelIndex` and, for a ratio, `SelStage`, and the flags of the function's class. A text
/// that is no name clears the flags alone. Fault 9 for a k that an array does not have.
void Set_Selection(const CatalogueNames& names, Selections& selections, std::string_view name,
                   std::int16_t k);

/// `SelCompName` and `SelComp` of selection k from "X", "Y", "Mag" or "Ang"; any other text leaves both.
/// Fault 9 for k above 4.
void Set_Component(const CatalogueNames& names, Selections& selections, std::string_view text,
                   std::int16_t k);

/// The `Theta` column of the link that the point of selection `SelCurrent` turns with. Centres of gravity and
/// forces of an index above 5 leave the column as it was.
void Rotating_Column(const LinkageModel& model, const Selections& selections, std::int16_t& column);

/// The function's value at a step, of a vector the component `SelComp` in the frame of `LocalCoords`; an X or
/// Y below 0.0001 counts as 0, an angle is in degrees from -90 to 270. A table code that is not in use leaves
/// the value as it was. Fault 9 for an index outside its table goes to the caller.
void Select_Variable(const Program& program, std::int16_t step, std::int16_t k, float& value);

/// Magnitude and angle of a vector function at a step, as in `Select_Variable`; any other function leaves
/// both as they were. Faults are reported.
void Select_PolarVariable(Program& program, std::int16_t step, std::int16_t k, float& magnitude,
                          float& angle);

}  // namespace kervol
