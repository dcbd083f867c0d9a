// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/commands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <exception>
#include <filesystem>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "batch/batch_run.h"
#include "batch/exchange.h"
#include "batch/output_table.h"
#include "batch/summary.h"
#include "batch/tables_json.h"
#include "catalogue/names.h"
#include "catalogue/tabulation.h"
#include "core/number_text.h"
#include "core/path_text.h"
#include "core/report.h"
#include "core/text_encoding.h"
#include "files/model_file.h"
#include "files/output_file.h"
#include "kinematics/examples.h"
#include "startup/launch.h"

#include <CLI/CLI.hpp>

namespace kervol {
namespace {

const std::map<std::string, Answer> kOnFailure = {
    {"abort", Answer::Abort}, {"retry", Answer::Retry}, {"ignore", Answer::Ignore}};

/// What the command line gave; each command uses its own part.
struct Arguments {
    std::string model;
    std::string example;
    std::string output;
    std::string on_failure = "ignore";
    bool dynamics = false;
    bool flywheel = false;
    std::optional<float> fluctuation;
    std::vector<std::string> functions;
    std::string preset;
    std::string frame = "global";
    std::string format = "text";
    std::optional<std::int16_t> every;
    std::optional<std::int16_t> decimals;
    ExchangeFiles exchange;
};

std::string Table_Text(Program& program, const SlotLabels& labels, const std::string& format) {
    if (format == "text") return Table_Pages(program, labels);
    if (format == "csv") return Table_Csv(program, labels);
    std::string text;
    Print_to_File(program, labels, text);
    return text;
}

class Commands {
  public:
    Commands(std::ostream& out, std::ostream& err) : out_(out), err_(err) {}

    int Tables(const Arguments& arguments);
    int Table(const Arguments& arguments);
    int Functions(const Arguments& arguments);
    int Info(const Arguments& arguments);
    int Convert(const Arguments& arguments);
    int Save_Example(const Arguments& arguments);
    int Drive(const Arguments& arguments);
    int Export(const Arguments& arguments);
    /// Writes a complaint as one line and returns the code.
    int Complain(ExitCode code, std::string text);
    /// False, after a complaint, where standard output does not take it.
    bool Print(const std::string& text);

  private:
    static bool Take_Model(BatchRun& run, const Arguments& arguments);
    /// The tables that were asked for beside the kinematic ones.
    static FurtherTables Add_Further(BatchRun& run, const Arguments& arguments);
    int Close(const BatchRun& run);
    int Put_Out(BatchRun& run, const std::string& text, const Arguments& arguments);
    int Save(BatchRun& run, const std::string& path);

    std::ostream& out_;
    std::ostream& err_;
};

int Commands::Complain(ExitCode code, std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    if (!text.empty()) err_ << "kervol-batch: " << text << '\n';
    return code;
}

bool Commands::Print(const std::string& text) {
    out_ << text << std::flush;
    if (!out_) Complain(Failed, "standard output: cannot be written; check where it goes");
    return static_cast<bool>(out_);
}

int Commands::Close(const BatchRun& run) {
    return Complain(run.Outcome(), run.Complaint());
}

bool Commands::Take_Model(BatchRun& run, const Arguments& arguments) {
    return arguments.example.empty() ? run.Open(arguments.model) : run.Load(arguments.example);
}

FurtherTables Commands::Add_Further(BatchRun& run, const Arguments& arguments) {
    FurtherTables further;
    further.dynamics = arguments.dynamics;
    if (arguments.dynamics || arguments.flywheel) run.Add_Dynamics();
    if (arguments.flywheel) {
        if (arguments.fluctuation) run.Take_Fluctuation(*arguments.fluctuation);
        run.Add_Flywheel();
        further.flywheel = &run.crank_torque_areas();
    }
    return further;
}

int Commands::Put_Out(BatchRun& run, const std::string& text, const Arguments& arguments) {
    if (arguments.output.empty()) return Print(text) ? Close(run) : Failed;
    const bool written = Procedure(run.program(), "Put_Out", [&] {
        OutputFile file(arguments.output);
        file.Write(text);
        file.Close();
    });
    return written ? Close(run) : Complain(Failed, run.Write_Complaint(arguments.output));
}

int Commands::Tables(const Arguments& arguments) {
    BatchRun run(kOnFailure.at(arguments.on_failure));
    if (!Take_Model(run, arguments)) return Close(run);
    run.Calculate();
    const FurtherTables further = Add_Further(run, arguments);
    return Put_Out(run, Tables_Json(run.program(), run.port(), further), arguments);
}

int Commands::Table(const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    if (!Take_Model(run, arguments)) return Close(run);
    run.Calculate();
    if (run.Outcome() == GivenUp) return Close(run);

    Program& program = run.program();
    Change_Catalog_Labels(program.catalogue, program.model.LinkageType);
    SlotLabels labels;
    const auto choose = [&] {
        return arguments.preset.empty() ? Choose_Functions(program, arguments.functions, labels)
                                        : Choose_Preset(program, arguments.preset, labels);
    };
    // Forces and flywheel are computed for those who ask for them.
    std::string objection = choose();
    if (!objection.empty()) {
        run.Add_Dynamics();
        objection = choose();
    }
    if (!objection.empty()) {
        run.Add_Flywheel();
        objection = choose();
    }
    if (!objection.empty()) return Complain(WrongUse, objection);
    program.selections.LocalCoords = arguments.frame == "local" ? 2 : 0;
    program.model.PrintStep = arguments.every.value_or(program.model.PrintStep);
    program.output.DecimalPlaces = arguments.decimals.value_or(program.output.DecimalPlaces);
    return Put_Out(run, Table_Text(program, labels, arguments.format), arguments);
}

int Commands::Functions(const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    const bool named = !arguments.model.empty() || !arguments.example.empty();
    if (named && !Take_Model(run, arguments)) return Close(run);
    Program& program = run.program();
    Change_Catalog_Labels(program.catalogue, program.model.LinkageType);
    return Print(Function_List(program)) ? Close(run) : Failed;
}

int Commands::Info(const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    if (!Take_Model(run, arguments)) return Close(run);
    run.Calculate();
    run.Add_Dynamics();
    return Print(Summary(run.program(), run.solved_steps())) ? Close(run) : Failed;
}

int Commands::Convert(const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    run.Open(arguments.model);
    return run.Outcome() == Done ? Save(run, arguments.output) : Close(run);
}

int Commands::Save_Example(const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    run.Load(arguments.example);
    run.program().model.ModelName = StripFilename(Decoded(arguments.output));
    return Save(run, arguments.output);
}

int Commands::Drive(const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    Take_Model(run, arguments);
    if (run.Outcome() != Done || !Take_Drive(run, arguments.exchange)) return Close(run);
    const std::string& path = arguments.exchange.save;
    if (!path.empty() && !Save_Model_As(run.program(), path))
        return Complain(Failed, run.Write_Complaint(path));
    run.Calculate();
    const FurtherTables further = Add_Further(run, arguments);
    if (!path.empty() && arguments.output.empty())
        return Print("The driven model was written to " + path + "\n") ? Close(run) : Failed;
    return Put_Out(run, Tables_Json(run.program(), run.port(), further), arguments);
}

int Commands::Export(const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    Take_Model(run, arguments);
    if (run.Outcome() != Done) return Close(run);
    if (!Calculate_For_Export(run, arguments.exchange))
        return Complain(run.Outcome() == Failed ? Failed : GivenUp, run.Complaint());
    const std::string& path = Export_Path(arguments.exchange);
    if (!Write_Export(run.program(), arguments.exchange)) return Complain(Failed, run.Write_Complaint(path));
    return Print("Data for the next linkage were written to " + path + "\n") ? Close(run) : Failed;
}

int Commands::Save(BatchRun& run, const std::string& path) {
    if (!Save_Model_As(run.program(), path)) return Complain(Failed, run.Write_Complaint(path));
    return Print(run.port().messages.back().box.text + "\n") ? Done : Failed;
}

/// Options that the command line already knows by name, for what this release does not compute.
struct LaterOption {
    const char* name;
    const char* value;
};
constexpr auto kLaterOptions = std::to_array<LaterOption>({
    {"--fft", "FUNCTION"},
    {"--component", "X|Y|Mag|Ang"},
});

void Add_Later_Options(CLI::App& command) {
    for (const LaterOption& later : kLaterOptions)
        command.add_option(later.name, "not available yet")->type_name(later.value)->expected(1);
}

/// The number that the text is as a whole; refused unless it is a single.
float Fluctuation(const std::string& text) {
    const bool is_number = !text.empty() && Number_Length(text) == text.size();
    const auto single = static_cast<float>(is_number ? To_Double(text) : HUGE_VAL);
    if (!std::isfinite(single))
        throw CLI::ValidationError("--fluct", "\"" + text + "\" is no number; try 0.05");
    return single;
}

std::vector<std::string> Example_Names() {
    std::vector<std::string> names;
    for (const Example& example : Examples()) names.emplace_back(example.name);
    return names;
}

void Add_Source_Options(CLI::App& command, Arguments& arguments) {
    command.add_option("MODEL", arguments.model, "model file (.kvl or .ikv)")->type_name("");
    command.add_option("--example", arguments.example, "a built-in linkage in place of MODEL")
        ->check(CLI::IsMember(Example_Names()))
        ->type_name("NAME");
}

void Require_One_Source(const Arguments& arguments) {
    if (arguments.model.empty() == arguments.example.empty())
        throw CLI::ValidationError("name one MODEL or one --example");
}

void Add_Source(CLI::App& command, Arguments& arguments) {
    Add_Source_Options(command, arguments);
    command.callback([&arguments] { Require_One_Source(arguments); });
}

CLI::Option* Add_Output(CLI::App& command, Arguments& arguments, const char* help) {
    return command.add_option("-o", arguments.output, help)
        ->type_name("FILE")
        ->check([](const std::string& name) { return name.empty() ? "needs the name of a file" : ""; });
}

void Add_Dynamics(CLI::App& command, Arguments& arguments) {
    command.add_flag("--dynamics", arguments.dynamics, "forces and torques too, with the model's link data");
    command.add_flag("--flywheel", arguments.flywheel,
                     "pulses of the crank torque and the torque with a flywheel too");
    command
        .add_option_function<std::string>(
            "--fluct", [&](const std::string& text) { arguments.fluctuation = Fluctuation(text); },
            "coefficient of fluctuation of the flywheel, above 0 [0.05]")
        ->type_name("X");
}

/// "--function NAME MODEL": what stands behind the names may be the model.
void Part_Model_From_Functions(Arguments& arguments) {
    auto& functions = arguments.functions;
    if (!arguments.model.empty() || !arguments.example.empty() || functions.size() < 2) return;
    std::error_code error;
    if (!std::filesystem::is_regular_file(functions.back(), error)) return;
    arguments.model = functions.back();
    functions.pop_back();
}

void Check_Table_Arguments(Arguments& arguments) {
    Part_Model_From_Functions(arguments);
    Require_One_Source(arguments);
    if (arguments.functions.empty() == arguments.preset.empty())
        throw CLI::ValidationError("name --function or --preset, one of them");
    if (arguments.format == "csv" && (arguments.every || arguments.decimals))
        throw CLI::ValidationError("csv has every step in full; leave --every and --decimals out");
}

void Add_Table(CLI::App& app, Arguments& arguments) {
    auto* table = app.add_subcommand("table", "Calculate a model and write chosen functions as a table");
    Add_Source_Options(*table, arguments);
    table->add_option("--function", arguments.functions, "up to four, each a name and its component")
        ->type_name("NAME[:X|Y|Mag|Ang]");
    table->add_option("--preset", arguments.preset, "the functions of a preset")->type_name("TITLE");
    table
        ->add_option(
            "--frame", arguments.frame,
            "frame of vectors; a local one turns with the crank, in csv points turn with their own link")
        ->check(CLI::IsMember({"global", "local"}))
        ->type_name("FRAME")
        ->capture_default_str();
    table->add_option("--every", arguments.every, "steps from row to row, else the model's (dat, text)")
        ->check(CLI::Range(1, MaxSteps))
        ->type_name("N");
    table->add_option("--decimals", arguments.decimals, "decimals, else 3 (dat, text)")
        ->check(CLI::Range(0, 6))
        ->type_name("N");
    table
        ->add_option("--format", arguments.format,
                     "dat as the program writes it, csv for a spreadsheet, text as it prints it")
        ->check(CLI::IsMember({"dat", "csv", "text"}))
        ->type_name("FORMAT")
        ->capture_default_str();
    Add_Output(*table, arguments, "write there instead of to standard output");
    table->callback([&arguments] { Check_Table_Arguments(arguments); });

    auto* functions = app.add_subcommand("functions", "List the functions and presets with their units");
    Add_Source_Options(*functions, arguments);
}

void Add_Commands(CLI::App& app, Arguments& arguments) {
    auto* tables = app.add_subcommand("tables", "Calculate a model and write all tables as JSON");
    Add_Source(*tables, arguments);
    tables->add_option("--on-failure", arguments.on_failure, "answer where a position does not assemble")
        ->check(CLI::IsMember({"abort", "retry", "ignore"}))
        ->type_name("ANSWER")
        ->capture_default_str();
    Add_Dynamics(*tables, arguments);
    Add_Output(*tables, arguments, "write there instead of to standard output");
    Add_Later_Options(*tables);

    Add_Table(app, arguments);

    auto* info = app.add_subcommand("info", "Calculate a model and tell what it is and how it moves");
    Add_Source(*info, arguments);

    auto* convert =
        app.add_subcommand("convert", "Read a model or legacy file and write it in the current format");
    convert->add_option("OLD", arguments.model, "file to read (.kvl or .ikv)")->required()->type_name("");
    convert->add_option("NEW", arguments.output, "file to write (.kvl)")->required()->type_name("");

    auto* example = app.add_subcommand("example", "Write a built-in linkage as a model file");
    example->add_option("NAME", arguments.example, "built-in linkage")
        ->required()
        ->check(CLI::IsMember(Example_Names()))
        ->type_name("");
    Add_Output(*example, arguments, "file to write (.kvl)")->required();

    auto* drive = app.add_subcommand("drive", "Calculate a model under an imported drive");
    Add_Source_Options(*drive, arguments);
    Add_Drive_Options(*drive, arguments.exchange);
    Add_Dynamics(*drive, arguments);
    Add_Output(*drive, arguments, "write the tables there instead of to standard output");
    drive->callback([&arguments] {
        Require_One_Source(arguments);
        Require_One_Drive(arguments.exchange);
    });

    auto* export_command =
        app.add_subcommand("export", "Calculate a model and write what drives or loads another one");
    Add_Source_Options(*export_command, arguments);
    Add_Export_Options(*export_command, arguments.exchange);
    export_command->callback([&arguments] {
        Require_One_Source(arguments);
        Require_One_Export(arguments.exchange);
    });
}

int Run_Command(Commands& commands, const CLI::App& app, const Arguments& arguments) {
    const std::string name = app.get_subcommands().front()->get_name();
    if (name == "table") return commands.Table(arguments);
    if (name == "functions") return commands.Functions(arguments);
    if (name == "info") return commands.Info(arguments);
    if (name == "convert") return commands.Convert(arguments);
    if (name == "example") return commands.Save_Example(arguments);
    if (name == "drive") return commands.Drive(arguments);
    if (name == "export") return commands.Export(arguments);
    for (const LaterOption& later : kLaterOptions)
        if (app.get_subcommand("tables")->count(later.name) > 0)
            return commands.Complain(
                WrongUse,
                std::string(later.name) + " is not available yet; leave it out for the kinematic tables");
    return commands.Tables(arguments);
}

}  // namespace

int Run_Commands(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    LinkageModel identity;
    Set_Program_Values(identity);
    CLI::App app("Kinematics and dynamics of planar six-bar linkages, without a display.", "kervol-batch");
    app.set_version_flag("--version", identity.ProgramTitle + " " + identity.VersionText + ", Rev. " +
                                          identity.ReleaseText + " (" + identity.ProgramDate + ")");
    app.require_subcommand(1);
    app.footer(
        "Exit codes: 0 done; 1 wrong use; 2 a file could not be read whole or written, or a numeric fault;\n"
        "3 done, but some step did not assemble; 4 refused or given up.");
    Arguments arguments;
    Add_Commands(app, arguments);

    Commands commands(out, err);
    try {
        app.parse(argc, argv);
        return Run_Command(commands, app, arguments);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0)
            return commands.Complain(WrongUse, std::string(error.what()) + "; see kervol-batch --help");
        std::ostringstream help;
        app.exit(error, help, help);
        return commands.Print(help.str()) ? Done : Failed;
    } catch (const std::exception& error) {
        return commands.Complain(Failed,
                                 std::string(error.what()) + ": the model is too large for this machine");
    }
}

}  // namespace kervol
