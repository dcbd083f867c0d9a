// SPDX-License-Identifier: GPL-3.0-or-later
// Stage 2: the second loop, driven by a line that Stage 1 carries.
#pragma once

#include <optional>

#include "core/model.h"
#include "kinematics/fourbar.h"
#include "kinematics/stage1.h"

namespace kervol {

/// One solved position. Angles in radians, double precision.
struct Stage2 {
    double column3;               ///< the line tabulated in `Theta` column 3, local frame
    double theta5, theta6;        ///< local frame
    double relative5, relative6;  ///< from the Stage 2 ground link
    double omega5, omega6;
    double alpha5, alpha6;
    PointMotion start;     ///< start of link 5: D (Watt), C (Stephenson)
    PointMotion end;       ///< end of link 5: E (Watt), D (Stephenson)
    PointMotion coupler2;  ///< coupler point 2
};

/// Watt: input line O4-D on link 4, ground link O4-O6. Nothing where the loop cannot be closed.
std::optional<Stage2> Solve_Watt(const LinkageModel& model, const Stage1& stage1);

/// Stephenson: input line O2-C, whose length changes with the step, ground link O2-O6. Nothing where the loop
/// cannot be closed.
std::optional<Stage2> Solve_Stephenson(const LinkageModel& model, const Stage1& stage1);

}  // namespace kervol
