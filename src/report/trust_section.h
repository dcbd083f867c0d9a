// SPDX-License-Identifier: GPL-3.0-or-later
// The self-check as a section of the report: its summary, the deviations on purpose with their figures, what
// the drive needs, and tabulated beside consistent curves.
#pragma once

#include <string>
#include <vector>

#include "core/program.h"
#include "report/report_curves.h"
#include "selfcheck/self_check.h"

namespace kervol {

/// Of the tables of a calculated program, of which at most `solved_steps` steps have forces.
SelfCheck Check_Of_Report(const Program& program, int solved_steps);

/// Pairs of curves, "Tables" and "Consistent", of what differs: a group for each family of functions. Vectors
/// by their sizes; gaps where a step was not compared.
std::vector<CurveGroup> Deviating_Curves(const LinkageModel& model, const SelfCheck& check);

/// Empty where nothing was compared.
std::string Trust_Section(const LinkageModel& model, const SelfCheck& check, const Abscissae& abscissae);

/// How many values are those of rigid links, and the consistent peak torque where the tabulated one is not,
/// in one line.
std::string Trust_In_Short(const LinkageModel& model, const SelfCheck& check);

}  // namespace kervol
