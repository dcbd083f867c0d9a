// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds `Calculate` one crank state after the other over rows 0 to `NumSteps`.
#pragma once

#include <cstdint>
#include <string>

#include "core/program.h"
#include "kinematics/depth.h"

namespace kervol {

/// Sign of the root and its text for an assembly code: 1 is -1 "Open", 2 is +1 "Crossed"; other codes change
/// nothing.
void Set_Open_Sign(std::int16_t code, std::int16_t& sign, std::string& text);

/// `Set_Open_Sign` for both stages of the model.
void Set_Open_Signs(LinkageModel& model);

/// Sweep of the calculated modes 1 to 3; other modes sweep nothing. Sets the open signs, classifies the
/// stages and clears `DynamicsCalculated`. `response` is Abort where the user gave up; `DataCalculated` is
/// clear then. `depth` as `Calculate` takes it, here and below.
void Run_Sweep(Program& program, std::int16_t CalcMode, Answer& response, Depth depth = Depth::All);

/// Mode 1: the one position `Theta2One`, row 0.
void Calc_One_Position(Program& program, Answer& response, Depth depth = Depth::All);

/// Mode 2: constant acceleration from time 0. Deliberate: `Alpha2`, with which each position is solved, is
/// not set.
void Calc_Time_Steps(Program& program, Answer& response, Depth depth = Depth::All);

/// Mode 3: constant speed from `ThetaMin` to `ThetaMax`, or back for a negative speed. Clears the tables
/// first.
void Calc_Angle_Steps(Program& program, Answer& response, Depth depth = Depth::All);

/// Modes 4 and 5: the imported drive. An answer of Abort does not stop it. A row above 360 is a fault.
void Calc_Drive_Data(Program& program, Answer& response);

}  // namespace kervol
