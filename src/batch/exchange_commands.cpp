// SPDX-License-Identifier: GPL-3.0-or-later
// The commands for the files that go from one linkage to the next.
#include <memory>

#include "batch/command_options.h"
#include "batch/commands.h"
#include "batch/exchange.h"
#include "files/model_file.h"

namespace kervol {
namespace {

struct Arguments {
    Source source;
    ExchangeFiles files;
    DynamicsOptions dynamics;
    std::string output;
};

int Drive(Console& console, const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    Take_Model(run, arguments.source);
    if (run.Outcome() != Done || !Take_Drive(run, arguments.files)) return console.Close(run);
    const std::string& path = arguments.files.save;
    if (!path.empty() && !Save_Model_As(run.program(), path))
        return console.Complain(Failed, run.Write_Complaint(path));
    run.Calculate();
    const FurtherTables further = Add_Further(run, arguments.dynamics);
    if (!path.empty() && arguments.output.empty())
        return console.Print("The driven model was written to " + path + "\n") ? console.Close(run) : Failed;
    return console.Put_Out(run, Tables_Json(run.program(), run.port(), further), arguments.output);
}

int Export(Console& console, const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    Take_Model(run, arguments.source);
    if (run.Outcome() != Done) return console.Close(run);
    if (!Calculate_For_Export(run, arguments.files))
        return console.Complain(run.Outcome() == Failed ? Failed : GivenUp, run.Complaint());
    const std::string& path = Export_Path(arguments.files);
    if (!Write_Export(run.program(), arguments.files))
        return console.Complain(Failed, run.Write_Complaint(path));
    return console.Print("Data for the next linkage were written to " + path + "\n") ? console.Close(run)
                                                                                     : Failed;
}

}  // namespace

Command Drive_Command(CLI::App& app) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& command = *app.add_subcommand("drive", "Calculate a model under an imported drive");
    Add_Source_Options(command, arguments->source);
    Add_Drive_Options(command, arguments->files);
    Add_Dynamics_Options(command, arguments->dynamics);
    Add_Output_Option(command, arguments->output, "write the tables there instead of to standard output");
    command.callback([arguments] {
        Require_One_Source(arguments->source);
        Require_One_Drive(arguments->files);
    });
    return {&command, [arguments](Console& console) { return Drive(console, *arguments); }};
}

Command Export_Command(CLI::App& app) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& command =
        *app.add_subcommand("export", "Calculate a model and write what drives or loads another one");
    Add_Source_Options(command, arguments->source);
    Add_Export_Options(command, arguments->files);
    command.callback([arguments] {
        Require_One_Source(arguments->source);
        Require_One_Export(arguments->files);
    });
    return {&command, [arguments](Console& console) { return Export(console, *arguments); }};
}

}  // namespace kervol
