// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that write chosen output functions as a table, and list what can be chosen.
#include <memory>
#include <optional>

#include "batch/command_options.h"
#include "batch/commands.h"
#include "batch/output_table.h"
#include "catalogue/names.h"
#include "catalogue/tabulation.h"
#include "core/constants.h"

namespace kervol {
namespace {

struct Arguments {
    Source source;
    FunctionOptions functions;
    std::string format = "text";
    std::optional<std::int16_t> every;
    std::optional<std::int16_t> decimals;
    std::string output;
};

std::string Table_Text(Program& program, const SlotLabels& labels, const std::string& format) {
    if (format == "text") return Table_Pages(program, labels);
    if (format == "csv") return Table_Csv(program, labels);
    std::string text;
    Print_to_File(program, labels, text);
    return text;
}

int Write_Table(Console& console, const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    if (!Take_Model(run, arguments.source)) return console.Close(run);
    run.Calculate();
    if (run.Outcome() == GivenUp) return console.Close(run);

    Program& program = run.program();
    SlotLabels labels;
    const std::string objection = Choose_And_Compute(run, arguments.functions, labels);
    if (!objection.empty()) return console.Complain(WrongUse, objection);
    program.model.PrintStep = arguments.every.value_or(program.model.PrintStep);
    program.output.DecimalPlaces = arguments.decimals.value_or(program.output.DecimalPlaces);
    return console.Put_Out(run, Table_Text(program, labels, arguments.format), arguments.output);
}

void Check_Table_Arguments(Arguments& arguments) {
    Require_Source_And_Functions(arguments.source, arguments.functions);
    if (arguments.format == "csv" && (arguments.every || arguments.decimals))
        throw CLI::ValidationError("csv has every step in full; leave --every and --decimals out");
}

int Functions(Console& console, const Source& source) {
    BatchRun run(Answer::Ignore);
    if (source.Is_Named() && !Take_Model(run, source)) return console.Close(run);
    Program& program = run.program();
    Change_Catalog_Labels(program.catalogue, program.model.LinkageType);
    return console.Print(Function_List(program)) ? console.Close(run) : Failed;
}

}  // namespace

Command Table_Command(CLI::App& app) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& command =
        *app.add_subcommand("table", "Calculate a model and write chosen functions as a table");
    Add_Source_Options(command, arguments->source);
    Add_Function_Options(
        command, arguments->functions,
        "frame of vectors; a local one turns with the crank, in csv points turn with their own link");
    command.add_option("--every", arguments->every, "steps from row to row, else the model's (dat, text)")
        ->check(CLI::Range(1, MaxSteps))
        ->type_name("N");
    command.add_option("--decimals", arguments->decimals, "decimals, else 3 (dat, text)")
        ->check(CLI::Range(0, 6))
        ->type_name("N");
    command
        .add_option("--format", arguments->format,
                    "dat as the program writes it, csv for a spreadsheet, text as it prints it")
        ->check(CLI::IsMember({"dat", "csv", "text"}))
        ->type_name("FORMAT")
        ->capture_default_str();
    Add_Output_Option(command, arguments->output, "write there instead of to standard output");
    command.callback([arguments] { Check_Table_Arguments(*arguments); });
    return {&command, [arguments](Console& console) { return Write_Table(console, *arguments); }};
}

Command Functions_Command(CLI::App& app) {
    const auto source = std::make_shared<Source>();
    CLI::App& command = *app.add_subcommand("functions", "List the functions and presets with their units");
    Add_Source_Options(command, *source);
    return {&command, [source](Console& console) { return Functions(console, *source); }};
}

}  // namespace kervol
