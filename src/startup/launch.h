// SPDX-License-Identifier: GPL-3.0-or-later
// What happens between the start of the program and its first screen.
#pragma once

#include <string>

#include "core/program.h"

namespace kervol {

/// The program-wide values of a run: identity, release, first model name, unit system.
void Set_Program_Values(LinkageModel& model);

/// A fresh model: defaults, the first example, its link data. Fields that no default is named for keep their
/// values.
void Initialize(Program& program);

/// `Set_Program_Values`, `Initialize` and the unit texts: the state in which a run without a file begins.
void Start_Fresh(Program& program);

/// Opens the model file that the command line names, taken as one string: not split, quotes not removed.
void Open_Clicked_File(Program& program, const std::string& command_line);

}  // namespace kervol
