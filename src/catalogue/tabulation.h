// SPDX-License-Identifier: GPL-3.0-or-later
// The selected functions as a table, one row a printed step, on paper and in a file; the grid on the screen
// is in catalogue/data_grid.h.
#pragma once

#include <string>

#include "catalogue/slots.h"
#include "core/printer.h"
#include "core/program.h"

namespace kervol {

/// The header texts for drive, frame and last selected function. Texts that none of these decides stay as
/// they were.
void Make_Headers(Program& program);

/// Appends the table to the text of a file, lines ended with CR LF, values with a tab. The heads of all four
/// slots are written, the values of `NumSelected`. After a fault, which is reported, the text stays as far as
/// it was written.
void Print_to_File(Program& program, const SlotLabels& labels, std::string& text);

/// Prints the table in pages of 60 rows, each under the header, and ends the document. After a fault, which
/// is reported, the document is not ended.
void Print_to_Printer(Program& program, const SlotLabels& labels, Printer& printer);

}  // namespace kervol
