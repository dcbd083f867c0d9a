// SPDX-License-Identifier: GPL-3.0-or-later
// The command that writes all tables of a model.
#include <map>
#include <memory>

#include "batch/command_options.h"
#include "batch/commands.h"
#include "batch/output_table.h"
#include "fourier/transform.h"

namespace kervol {
namespace {

const std::map<std::string, Answer> kOnFailure = {
    {"abort", Answer::Abort}, {"retry", Answer::Retry}, {"ignore", Answer::Ignore}};

struct Arguments {
    Source source;
    std::string on_failure = "ignore";
    DynamicsOptions dynamics;
    std::string function;
    std::string component = "X";
    std::string output;
};

/// What is wrong with the function, empty if nothing is. Where nothing was calculated there is no spectrum.
std::string Add_Spectrum(BatchRun& run, const Arguments& arguments, FurtherTables& further) {
    Program& program = run.program();
    further.spectrum = true;
    if (!run.Is_Calculated()) return {};
    SlotLabels labels;
    std::string objection = Choose_And_Compute(run, [&] {
        return Choose_Functions(program, {arguments.function + ":" + arguments.component}, labels);
    });
    if (objection.empty()) Transform_Function(program, arguments.function, arguments.component);
    return objection;
}

int Write_Tables(Console& console, const Arguments& arguments) {
    BatchRun run(kOnFailure.at(arguments.on_failure));
    if (!Take_Model(run, arguments.source)) return console.Close(run);
    run.Calculate();
    FurtherTables further = Add_Further(run, arguments.dynamics);
    if (!arguments.function.empty()) {
        const std::string objection = Add_Spectrum(run, arguments, further);
        if (!objection.empty()) return console.Complain(WrongUse, objection);
    }
    return console.Put_Out(run, Tables_Json(run.program(), run.port(), further), arguments.output);
}

}  // namespace

Command Tables_Command(CLI::App& app) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& command = *app.add_subcommand("tables", "Calculate a model and write all tables as JSON");
    Add_Source_Options(command, arguments->source);
    command.add_option("--on-failure", arguments->on_failure, "answer where a position does not assemble")
        ->check(CLI::IsMember({"abort", "retry", "ignore"}))
        ->type_name("ANSWER")
        ->capture_default_str();
    Add_Dynamics_Options(command, arguments->dynamics);
    Add_Output_Option(command, arguments->output, "write there instead of to standard output");
    CLI::Option* function =
        command.add_option("--fft", arguments->function, "the Fourier transform of an output function too")
            ->type_name("FUNCTION")
            ->check(
                [](const std::string& name) { return name.empty() ? "needs the name of a function" : ""; });
    command.add_option("--component", arguments->component, "which component of a vector is transformed")
        ->check(CLI::IsMember({"X", "Y", "Mag", "Ang"}))
        ->type_name("X|Y|Mag|Ang")
        ->capture_default_str()
        ->needs(function);
    command.callback([arguments] { Require_One_Source(arguments->source); });
    return {&command, [arguments](Console& console) { return Write_Tables(console, *arguments); }};
}

}  // namespace kervol
