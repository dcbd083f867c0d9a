// SPDX-License-Identifier: GPL-3.0-or-later
// The files that go from one linkage to the next: their options, and what is done with them.
#pragma once

#include <string>

#include "batch/batch_run.h"

namespace CLI {
class App;
}

namespace kervol {

/// Names of files, empty where none was given.
struct ExchangeFiles {
    std::string sva;     ///< drive of a cam
    std::string out;     ///< drive of another linkage
    std::string save;    ///< the driven model
    std::string link6;   ///< motion of link 6
    std::string torque;  ///< crank torque
};

void Add_Drive_Options(CLI::App& command, ExchangeFiles& files);
void Add_Export_Options(CLI::App& command, ExchangeFiles& files);

/// Refuse a command line that names none of two, or both.
void Require_One_Drive(const ExchangeFiles& files);
void Require_One_Export(const ExchangeFiles& files);

/// Takes the drive that was named; false where it could not be taken whole.
bool Take_Drive(BatchRun& run, const ExchangeFiles& files);

/// Calculates what the export needs; false where it is not all there.
bool Calculate_For_Export(BatchRun& run, const ExchangeFiles& files);

const std::string& Export_Path(const ExchangeFiles& files);
/// Writes the file; false after a fault.
bool Write_Export(Program& program, const ExchangeFiles& files);

}  // namespace kervol
