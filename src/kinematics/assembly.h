// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a loop can turn, and what happens where it cannot be closed.
#pragma once

#include <cstdint>
#include <string>

#include "core/program.h"

namespace kervol {

/// Grashof class of a loop: "Y", "N" or "SC" in `out_class`, and in words in `StageText`(index). `l2` must be
/// the coupler, since the double rocker is told by it. The solver never looks at the class.
void Classify_Stage(LinkageModel& model, float l1, float l2, float l3, float l4, int index,
                    std::string& out_class);

/// Classify the program's Stage 1, and Stage 2 of a Watt chain; a Stephenson chain has no Stage 2 class. A
/// fault is reported under the name of `Classify_Stage`; the caller goes on.
void Classify_Stage1(Program& program);
void Classify_Stage2(Program& program);

/// Angle in degrees at which a loop of input a, coupler b, output c and ground d reaches its limit.
double Check_Limit_Angles(Port& port, float a, float b, float c, float d);

/// Marks row `step` as failed and zeroes it and the working state, after asking how to go on unless
/// `response` is Ignore already. `Theta` column 0, column 1 of the ratios, points 6 to 10 and an imported
/// drive stay.
void Cannot_Assemble(Program& program, int stage, std::int16_t step, float Theta2Rad, Answer& response);

}  // namespace kervol
