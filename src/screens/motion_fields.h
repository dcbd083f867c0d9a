// SPDX-License-Identifier: GPL-3.0-or-later
// The drive of the crank between the model and the fields of the Input and Animation screens.
#pragma once

#include "screens/screens.h"

namespace kervol {

/// Fields of mode 3: the angle range, on both screens.
void Put_Calc_Angles(Screens& screens);
/// Fields of mode 2: the time range, on both screens.
void Put_Time_Data(Screens& screens);
/// Speed, acceleration and angle at time 0: fields 3 to 5.
void Put_Omega_Alpha(const LinkageModel& model, LinkageScreen& screen);
/// Fields 0 to 3 from the texts of the range.
void Put_SavedAngles(const LinkageModel& model, LinkageScreen& screen);
/// The fields of the model's mode on a screen.
void Put_InitialCond(Screens& screens, LinkageScreen& screen);
/// Captions, units and visible fields of the model's mode on a screen.
void Show_InitialFields(const LinkageModel& model, LinkageScreen& screen);

/// The animation's settings as a file or a fresh start has them.
void Put_Settings(const LinkageModel& model, AnimateScreen& screen);
void Put_Speed_And_Cycles(const LinkageModel& model, AnimateScreen& screen);
/// What drives the linkage, where that is a file.
void Show_Driven_By(const LinkageModel& model, LinkageScreen& screen);

/// Checks and stores the range fields of the model's mode; a refused entry is shown and put back.
void Get_InitialCond(Screens& screens, LinkageScreen& screen);

/// Whether the picture can show that step. A count beyond the tables, refused or read from a file, has no
/// positions, and the Step button may stand behind the last row.
bool Can_Draw(const LinkageModel& model, std::int16_t step);

/// Mode 3: last checks, then the sweep. `response` is Abort where it was refused for too many steps or
/// abandoned.
void AngleStepDone(Screens& screens, Answer& response);
/// Modes 1 and 2: the same.
void TimeStepDone(Screens& screens, Answer& response);

}  // namespace kervol
