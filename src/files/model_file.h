// SPDX-License-Identifier: GPL-3.0-or-later
// The model file (.kvl): reading, writing, and what opening and saving do beside that.
#pragma once

#include <cstddef>
#include <string>

#include "core/program.h"
#include "files/output_file.h"
#include "files/value_reader.h"

namespace kervol {

/// How far a file was read.
enum class ReadEnd {
    Nothing,  ///< the file could not be read, or ends before the first record: the model is as it was
    Refused,  ///< a file of another kind: the model is as it was
    Cut,      ///< a fault in the middle; fields not reached keep their values
    Whole,
};

struct ReadReport {
    ReadEnd end = ReadEnd::Nothing;
    std::size_t line = 0;  ///< where reading stopped, 0 for a file that could not be opened
};

/// Reads a model file or a legacy file, told by its first line, and rebuilds all that follows from the
/// fields. Shows that it was read, unless the program is starting up, or that the file is of another kind.
ReadEnd Readfile(Program& program, ValueReader& file);

/// Reads the lines behind the second one into the model, again and again while the file lasts. `version` is
/// the file's second line.
ReadEnd Read_Model_Fields(Program& program, ValueReader& file, const std::string& version);

/// Writes the model and says so. False after a fault; the file then stays as far as it was written.
bool Writefile(Program& program, OutputFile& file);

/// Opens a model file or legacy file by name. The tables are the caller's to clear first.
ReadReport Open_Model(Program& program, const std::string& path);

/// Writes the model to the file in use. False after a fault.
bool Save_Model(Program& program);

/// Writes the model to a file of that name, which becomes the file in use. False after a fault.
bool Save_Model_As(Program& program, const std::string& path);

}  // namespace kervol
