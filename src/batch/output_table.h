// SPDX-License-Identifier: GPL-3.0-or-later
// Tables of chosen output functions, and the list of what can be chosen.
#pragma once

#include <string>
#include <vector>

#include "catalogue/slots.h"
#include "core/program.h"

namespace kervol {

/// Confirms functions given as "NAME" or "NAME:COMPONENT" in the slots of a table, in this order, as the
/// print selection does it. A component that is left out is X. Returns what is wrong with the choice, empty
/// if nothing is.
std::string Choose_Functions(Program& program, const std::vector<std::string>& functions, SlotLabels& labels);

/// The same for the functions of the preset of that title, which must be one that the lists offer now.
std::string Choose_Preset(Program& program, const std::string& title, SlotLabels& labels);

/// The table as comma-separated values with one header line: every step, full single precision, lines ended
/// with CR LF. In a local frame a point's vector turns with the point's own link, that of a centre of
/// gravity with the crank, a force as its column does in the charts. After a fault, which is
/// reported, the text ends where it was met.
std::string Table_Csv(Program& program, const SlotLabels& labels);

/// The table as the printer would have it, pages parted by form feeds. After a fault, which is reported, the
/// text ends where it was met.
std::string Table_Pages(Program& program, const SlotLabels& labels);

/// All output functions with their components and units in the model's unit system.
std::string Function_List(const Program& program);

}  // namespace kervol
