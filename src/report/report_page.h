// SPDX-License-Identifier: GPL-3.0-or-later
// A design report: one page of HTML that needs nothing beside itself, for the screen, in light and dark, and
// for paper.
#pragma once

#include <span>
#include <string>

#include "core/program.h"

namespace kervol {

/// What a report is told beside the program.
struct ReportNotes {
    std::span<const MessageBox> boxes;  ///< that were raised on the way
    int solved_steps = MaxSteps + 1;    ///< that have forces, where a singular step ended them
};

/// The report of a calculated model: its data, the linkage in motion, classes, plots, extremes, with the
/// dynamics torque and forces too, their flywheel and spectrum, and the boxes of the notes. Of a model that
/// was not calculated its data alone. Changes nothing; a fault goes to the caller.
std::string Report_Page(const Program& program, const ReportNotes& notes = {});

/// Writes the report to a file, keeping what stood there as `OutputFile` does. False after a fault, which is
/// reported.
bool Write_Report(Program& program, const std::string& path, const ReportNotes& notes = {});

}  // namespace kervol
