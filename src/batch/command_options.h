// SPDX-License-Identifier: GPL-3.0-or-later
// What commands of `kervol-batch` are made of, and the options that several of them share.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "batch/batch_run.h"
#include "batch/console.h"
#include "batch/tables_json.h"

#include <CLI/CLI.hpp>

namespace kervol {

/// A command: its part of the command line, and what it does once that has been read.
struct Command {
    CLI::App* options;
    std::function<int(Console& console)> run;
};

/// The model that a command is about: a file or an example.
struct Source {
    std::string model;
    std::string example;

    bool Is_Named() const { return !model.empty() || !example.empty(); }
};

void Add_Source_Options(CLI::App& command, Source& source);
/// Refuses a command line that names none of the two, or both.
void Require_One_Source(const Source& source);
/// "--function NAME MODEL": where no model is named, the last of several names may be the file of one.
void Part_Model_From_Functions(Source& source, std::vector<std::string>& functions);
/// False where nothing could be read.
bool Take_Model(BatchRun& run, const Source& source);

/// Names for the values of an option that takes an example.
std::vector<std::string> Example_Names();

CLI::Option* Add_Output_Option(CLI::App& command, std::string& file, const char* help);

/// The tables that are asked for beside the kinematic ones.
struct DynamicsOptions {
    bool dynamics = false;
    bool flywheel = false;
    std::optional<float> fluctuation;
};

void Add_Dynamics_Options(CLI::App& command, DynamicsOptions& options);
/// Computes what was asked for.
FurtherTables Add_Further(BatchRun& run, const DynamicsOptions& options);

/// Chooses output functions, which needs forces and flywheel only of those who ask for them: computes them
/// where the choice cannot be made without. Returns the objection that is left.
std::string Choose_And_Compute(BatchRun& run, const std::function<std::string()>& choose);

}  // namespace kervol
