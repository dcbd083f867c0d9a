// SPDX-License-Identifier: GPL-3.0-or-later
// The model file (.kvl): reading, writing, and what opening and saving do beside that.
#pragma once

#include <string>

#include "core/program.h"
#include "files/output_file.h"
#include "files/read_report.h"
#include "files/value_reader.h"

namespace kervol {

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
