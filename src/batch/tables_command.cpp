// SPDX-License-Identifier: GPL-3.0-or-later
// The command that writes all tables of a model.
#include <array>
#include <map>
#include <memory>

#include "batch/command_options.h"
#include "batch/commands.h"

namespace kervol {
namespace {

const std::map<std::string, Answer> kOnFailure = {
    {"abort", Answer::Abort}, {"retry", Answer::Retry}, {"ignore", Answer::Ignore}};

/// Options that the command line already knows by name, for what this release does not compute.
struct LaterOption {
    const char* name;
    const char* value;
};
constexpr auto kLaterOptions = std::to_array<LaterOption>({
    {"--fft", "FUNCTION"},
    {"--component", "X|Y|Mag|Ang"},
});

struct Arguments {
    Source source;
    std::string on_failure = "ignore";
    DynamicsOptions dynamics;
    std::string output;
};

int Write_Tables(Console& console, const Arguments& arguments) {
    BatchRun run(kOnFailure.at(arguments.on_failure));
    if (!Take_Model(run, arguments.source)) return console.Close(run);
    run.Calculate();
    const FurtherTables further = Add_Further(run, arguments.dynamics);
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
    for (const LaterOption& later : kLaterOptions)
        command.add_option(later.name, "not available yet")->type_name(later.value)->expected(1);
    command.callback([arguments] { Require_One_Source(arguments->source); });
    return {&command, [arguments, &command](Console& console) {
                for (const LaterOption& later : kLaterOptions)
                    if (command.count(later.name) > 0)
                        return console.Complain(WrongUse, std::string(later.name) +
                                                              " is not available yet; leave it out for the "
                                                              "kinematic tables");
                return Write_Tables(console, *arguments);
            }};
}

}  // namespace kervol
