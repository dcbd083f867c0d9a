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
#include "catalogue/slots.h"

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
/// False where nothing could be read.
bool Take_Model(BatchRun& run, const Source& source);

/// Names for the values of an option that takes an example.
std::vector<std::string> Example_Names();

/// An option that takes the name of a file, which may not be empty.
CLI::Option* Add_File_Option(CLI::App& command, const char* name, std::string& file, const char* help);
/// "-o FILE"
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

/// The output functions that a command is about: each named by itself, or those of a preset.
struct FunctionOptions {
    std::vector<std::string> functions;
    std::string preset;
    /// "global" or "local".
    std::string frame = "global";
};

void Add_Function_Options(CLI::App& command, FunctionOptions& options, const char* frame_help);
/// Refuses a command line that names neither functions nor a preset, or both; the same of the model.
/// "--function NAME MODEL": where no model is named, the last of several names may be the file of one.
void Require_Source_And_Functions(Source& source, FunctionOptions& options);

/// Chooses output functions of a calculated model by `choose`, which needs forces and flywheel only of those
/// who ask for them: computes them where the choice cannot be made without. Returns the objection that is
/// left, empty if none is.
std::string Choose_And_Compute(BatchRun& run, const std::function<std::string()>& choose);
/// The same for the functions, or the preset, and the frame that were named.
std::string Choose_And_Compute(BatchRun& run, const FunctionOptions& options, SlotLabels& labels);

}  // namespace kervol
