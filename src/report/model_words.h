// SPDX-License-Identifier: GPL-3.0-or-later
// A model in words: what it is made of, how it is driven, what came out of its calculation.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"

namespace kervol {

/// A line of a list: what is told, and what there is to tell.
struct NamedText {
    std::string name;
    std::string text;
};

/// Chain, links, angles and pivots with their units.
std::vector<NamedText> Geometry_Lines(const LinkageModel& model);

std::string Drive_Text(const LinkageModel& model);

/// The classes of the stages in words.
std::vector<NamedText> Class_Lines(const LinkageModel& model);

/// "3 to 7, 12": the steps from 0 to `last` that did not assemble, else "none".
std::string Failed_Steps(const ResultTables& tables, int last);

}  // namespace kervol
