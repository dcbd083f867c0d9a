// SPDX-License-Identifier: GPL-3.0-or-later
// The order of the fields in a model file: one list that both saves and loads.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>

#include "core/model.h"
#include "files/value_reader.h"
#include "files/value_writer.h"

namespace kervol {

/// One link's value of a link array.
struct LinkValue {
    LinkArray LinkageModel::*array;
    int link;
};

/// Distance (part 0) or angle (part 1) of a link's centre of gravity.
struct LinkCGValue {
    int link;
    int part;
};

/// A count that is raised to 1 where the file holds less.
struct PositiveCount {
    std::int16_t LinkageModel::*member;
};

/// Text of the program that writes; on reading it goes to the reader and not into the model.
struct WriterRelease {};

/// Texts written empty and skipped on reading.
struct Reserved {
    int count;
};

using FileField =
    std::variant<float LinkageModel::*, std::int16_t LinkageModel::*, std::int32_t LinkageModel::*,
                 bool LinkageModel::*, std::string LinkageModel::*, LinkValue, LinkCGValue, PositiveCount,
                 WriterRelease, Reserved>;

/// Lines 3 to 110, which every model file has.
std::span<const FileField> Common_Fields();

/// Lines 111 to 214, which files of version 7, release 2 and later have.
std::span<const FileField> Release2_Fields();

/// Reads the fields in their order; the release of the writer goes to `release`.
void Read_Fields(std::span<const FileField> fields, LinkageModel& model, ValueReader& file,
                 std::string& release);

void Write_Fields(std::span<const FileField> fields, const LinkageModel& model, ValueWriter& file);

}  // namespace kervol
