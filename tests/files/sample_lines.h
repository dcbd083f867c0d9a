// SPDX-License-Identifier: GPL-3.0-or-later
// Sample files as tables: each line's number and text beside the place of the model that it stands for.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/program.h"

namespace kervol {

struct LinkPlace {
    LinkArray LinkageModel::*array;
    int link;
};
struct CGPlace {
    int link;
    int part;
};
/// Where a line's value stands in the model; nothing for lines that are written and not kept.
using Place = std::variant<std::monostate, std::string LinkageModel::*, std::int16_t LinkageModel::*,
                           std::int32_t LinkageModel::*, float LinkageModel::*, bool LinkageModel::*,
                           LinkPlace, CGPlace>;

struct SampleLine {
    int line;
    std::string_view text;
    Place place;
};

/// What a line takes.
enum class Kind { Text, Int, Long, Single, Flag };
Kind Kind_Of(const SampleLine& line);

/// Lines 1 to 117 of a model file, in which each field has a value of its own: drive rows 0 to 2 and imported
/// torque follow.
std::span<const SampleLine> Model_Lines();
/// Lines 1 to 72 of a legacy file, in which each field has a value of its own.
std::span<const SampleLine> Legacy_Lines();

/// The rows that stand behind line 214.
std::span<const std::string_view> Drive_Rows();
std::span<const std::string_view> Torque_Rows();

/// Texts of all lines of the sample model file, lines 118 to 214 and the rows included.
std::vector<std::string> Model_File_Lines();
std::vector<std::string> Legacy_File_Lines();

/// Each line with an end behind it.
std::string Joined(const std::vector<std::string>& lines, std::string_view line_end = "\r\n");

/// Puts the line's value into the model, by a conversion of the tests' own.
void Put_Line(const SampleLine& line, LinkageModel& model);
/// Puts the values of the sample, drive and torque rows included, into the program.
void Put_Sample(Program& program);

/// Whether the model's place holds the line's value.
bool Holds(const LinkageModel& model, const SampleLine& line);

/// Puts into the line's place a value that no sample has.
void Poison_Line(const SampleLine& line, LinkageModel& model);
bool Is_Poisoned(const LinkageModel& model, const SampleLine& line);
/// Poisons the places of all lines but the identity, and all tables.
void Poison_All(Program& program, std::span<const SampleLine> lines);

}  // namespace kervol
