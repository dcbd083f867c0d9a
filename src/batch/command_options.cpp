// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/command_options.h"

#include <cmath>
#include <filesystem>

#include "batch/output_table.h"
#include "catalogue/names.h"
#include "core/number_text.h"
#include "kinematics/examples.h"

namespace kervol {
namespace {

/// The number that the text is as a whole; refused unless it is a single.
float Fluctuation(const std::string& text) {
    const bool is_number = !text.empty() && Number_Length(text) == text.size();
    const auto single = static_cast<float>(is_number ? To_Double(text) : HUGE_VAL);
    if (!std::isfinite(single))
        throw CLI::ValidationError("--fluct", "\"" + text + "\" is no number; try 0.05");
    return single;
}

void Part_Model_From_Functions(Source& source, std::vector<std::string>& functions) {
    if (source.Is_Named() || functions.size() < 2) return;
    std::error_code error;
    if (!std::filesystem::is_regular_file(functions.back(), error)) return;
    source.model = functions.back();
    functions.pop_back();
}

}  // namespace

void Add_Source_Options(CLI::App& command, Source& source) {
    command.add_option("MODEL", source.model, "model file (.kvl or .ikv)")->type_name("");
    command.add_option("--example", source.example, "a built-in linkage in place of MODEL")
        ->check(CLI::IsMember(Example_Names()))
        ->type_name("NAME");
}

void Require_One_Source(const Source& source) {
    if (source.model.empty() == source.example.empty())
        throw CLI::ValidationError("name one MODEL or one --example");
}

bool Take_Model(BatchRun& run, const Source& source) {
    return source.example.empty() ? run.Open(source.model) : run.Load(source.example);
}

std::vector<std::string> Example_Names() {
    std::vector<std::string> names;
    for (const Example& example : Examples()) names.emplace_back(example.name);
    return names;
}

CLI::Option* Add_File_Option(CLI::App& command, const char* name, std::string& file, const char* help) {
    return command.add_option(name, file, help)->type_name("FILE")->check([](const std::string& text) {
        return text.empty() ? "needs the name of a file" : "";
    });
}

CLI::Option* Add_Output_Option(CLI::App& command, std::string& file, const char* help) {
    return Add_File_Option(command, "-o", file, help);
}

void Add_Dynamics_Options(CLI::App& command, DynamicsOptions& options) {
    command.add_flag("--dynamics", options.dynamics, "forces and torques too, with the model's link data");
    command.add_flag("--flywheel", options.flywheel,
                     "pulses of the crank torque and the torque with a flywheel too");
    command
        .add_option_function<std::string>(
            "--fluct", [&](const std::string& text) { options.fluctuation = Fluctuation(text); },
            "coefficient of fluctuation of the flywheel, above 0 [0.05]")
        ->type_name("X");
}

FurtherTables Add_Further(BatchRun& run, const DynamicsOptions& options) {
    FurtherTables further;
    further.dynamics = options.dynamics;
    if (options.dynamics || options.flywheel) run.Add_Dynamics();
    if (options.flywheel) {
        if (options.fluctuation) run.Take_Fluctuation(*options.fluctuation);
        run.Add_Flywheel();
        further.flywheel = &run.crank_torque_areas();
    }
    return further;
}

void Add_Function_Options(CLI::App& command, FunctionOptions& options, const char* frame_help) {
    command.add_option("--function", options.functions, "up to four, each a name and its component")
        ->type_name("NAME[:X|Y|Mag|Ang]");
    command.add_option("--preset", options.preset, "the functions of a preset")->type_name("TITLE");
    command.add_option("--frame", options.frame, frame_help)
        ->check(CLI::IsMember({"global", "local"}))
        ->type_name("FRAME")
        ->capture_default_str();
}

void Require_Source_And_Functions(Source& source, FunctionOptions& options) {
    Part_Model_From_Functions(source, options.functions);
    Require_One_Source(source);
    if (options.functions.empty() == options.preset.empty())
        throw CLI::ValidationError("name --function or --preset, one of them");
}

std::string Choose_And_Compute(BatchRun& run, const std::function<std::string()>& choose) {
    Program& program = run.program();
    Change_Catalog_Labels(program.catalogue, program.model.LinkageType);
    std::string objection = choose();
    if (!objection.empty()) {
        run.Add_Dynamics();
        objection = choose();
    }
    if (!objection.empty()) {
        run.Add_Flywheel();
        objection = choose();
    }
    return objection;
}

std::string Choose_And_Compute(BatchRun& run, const FunctionOptions& options, SlotLabels& labels) {
    Program& program = run.program();
    std::string objection = Choose_And_Compute(run, [&] {
        return options.preset.empty() ? Choose_Functions(program, options.functions, labels)
                                      : Choose_Preset(program, options.preset, labels);
    });
    program.selections.LocalCoords = options.frame == "local" ? 2 : 0;
    return objection;
}

}  // namespace kervol
