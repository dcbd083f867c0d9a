// SPDX-License-Identifier: GPL-3.0-or-later
// The self-check in a few sentences and figures.
#pragma once

#include <string>
#include <vector>

#include "core/model.h"
#include "selfcheck/self_check.h"

namespace kervol {

/// Stands above the deviations on purpose.
inline constexpr const char* Why_They_Stay =
    "Tables, files and sibling programs agree on these rules, so they stay. The values that rigid links "
    "would "
    "have are called consistent here.";

/// Paragraphs without line breaks: what was compared, what came of it, what a motor is to be sized on. The
/// model must be the one that was checked.
std::vector<std::string> Self_Check_Summary(const LinkageModel& model, const SelfCheck& result);

struct DriveLine {
    std::string name, unit;
    double tabulated, consistent;
};
/// Torque and power of the drive, where there are forces.
std::vector<DriveLine> Drive_Lines(const LinkageModel& model, const SelfCheck& result);

/// Stands below them.
inline constexpr const char* Of_Steps_Alone =
    "These are figures of the steps alone: between two of them a peak may be higher. Divide more finely "
    "where it is "
    "sharp.";

/// How closely the consistent driving torque was met on two ways.
std::string Two_Ways_Text(const SelfCheck& result);

/// One line for a person who must not rely on the tables; empty where they hold.
std::string Self_Check_Complaint(const SelfCheck& result);

}  // namespace kervol
