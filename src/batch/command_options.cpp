// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/command_options.h"

#include <cmath>
#include <filesystem>

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

void Part_Model_From_Functions(Source& source, std::vector<std::string>& functions) {
    if (source.Is_Named() || functions.size() < 2) return;
    std::error_code error;
    if (!std::filesystem::is_regular_file(functions.back(), error)) return;
    source.model = functions.back();
    functions.pop_back();
}

bool Take_Model(BatchRun& run, const Source& source) {
    return source.example.empty() ? run.Open(source.model) : run.Load(source.example);
}

std::vector<std::string> Example_Names() {
    std::vector<std::string> names;
    for (const Example& example : Examples()) names.emplace_back(example.name);
    return names;
}

CLI::Option* Add_Output_Option(CLI::App& command, std::string& file, const char* help) {
    return command.add_option("-o", file, help)->type_name("FILE")->check([](const std::string& name) {
        return name.empty() ? "needs the name of a file" : "";
    });
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

std::string Choose_And_Compute(BatchRun& run, const std::function<std::string()>& choose) {
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

}  // namespace kervol
