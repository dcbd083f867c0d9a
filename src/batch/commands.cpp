// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/commands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <exception>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "batch/batch_run.h"
#include "batch/summary.h"
#include "batch/tables_json.h"
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
    float fluctuation = 0;  ///< 0 where none was given
};

class Commands {
  public:
    Commands(std::ostream& out, std::ostream& err) : out_(out), err_(err) {}

    int Tables(const Arguments& arguments);
    int Info(const Arguments& arguments);
    int Convert(const Arguments& arguments);
    int Save_Example(const Arguments& arguments);
    /// Writes a complaint as one line and returns the code.
    int Complain(ExitCode code, std::string text);
    /// False, after a complaint, where standard output does not take it.
    bool Print(const std::string& text);

  private:
    static bool Take_Model(BatchRun& run, const Arguments& arguments);
    /// The tables that were asked for beside the kinematic ones.
    static FurtherTables Add_Further(BatchRun& run, const Arguments& arguments);
    int Close(const BatchRun& run);
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
        if (arguments.fluctuation > 0) Take_Coef_Fluct(run.program().model, arguments.fluctuation);
        run.Add_Flywheel();
        further.flywheel = &run.crank_torque_areas();
    }
    return further;
}

int Commands::Tables(const Arguments& arguments) {
    BatchRun run(kOnFailure.at(arguments.on_failure));
    if (!Take_Model(run, arguments)) return Close(run);
    run.Calculate();
    const FurtherTables further = Add_Further(run, arguments);
    const std::string json = Tables_Json(run.program(), run.port(), further);
    if (arguments.output.empty()) return Print(json) ? Close(run) : Failed;
    const bool written = Procedure(run.program(), "tables", [&] {
        OutputFile file(arguments.output);
        file.Write(json);
        file.Close();
    });
    return written ? Close(run) : Complain(Failed, run.Write_Complaint(arguments.output));
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

/// The number that the text is as a whole; refused unless it is a positive single.
float Fluctuation(const std::string& text) {
    const bool is_number = !text.empty() && Number_Length(text) == text.size();
    const double value = is_number ? To_Double(text) : 0.0;
    const auto single = static_cast<float>(value);
    if (!(single > 0) || !std::isfinite(single))
        throw CLI::ValidationError("--fluct", "\"" + text + "\" is no number above 0; try 0.05");
    return single;
}

std::vector<std::string> Example_Names() {
    std::vector<std::string> names;
    for (const Example& example : Examples()) names.emplace_back(example.name);
    return names;
}

void Add_Source(CLI::App& command, Arguments& arguments) {
    command.add_option("MODEL", arguments.model, "model file (.kvl or .ikv)")->type_name("");
    command.add_option("--example", arguments.example, "a built-in linkage in place of MODEL")
        ->check(CLI::IsMember(Example_Names()))
        ->type_name("NAME");
    command.callback([&arguments] {
        if (arguments.model.empty() == arguments.example.empty())
            throw CLI::ValidationError("name one MODEL or one --example");
    });
}

CLI::Option* Add_Output(CLI::App& command, Arguments& arguments, const char* help) {
    return command.add_option("-o", arguments.output, help)
        ->type_name("FILE")
        ->check([](const std::string& name) { return name.empty() ? "needs the name of a file" : ""; });
}

void Add_Dynamics(CLI::App& command, Arguments& arguments) {
    command.add_flag("--dynamics", arguments.dynamics, "forces and torques too, with the model's link data");
    auto* flywheel = command.add_flag("--flywheel", arguments.flywheel,
                                      "pulses of the crank torque and the torque with a flywheel too");
    command
        .add_option_function<std::string>(
            "--fluct", [&](const std::string& text) { arguments.fluctuation = Fluctuation(text); },
            "coefficient of fluctuation of the flywheel, above 0 [0.05]")
        ->needs(flywheel)
        ->type_name("X");
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
}

int Run_Command(Commands& commands, const CLI::App& app, const Arguments& arguments) {
    const std::string name = app.get_subcommands().front()->get_name();
    if (name == "info") return commands.Info(arguments);
    if (name == "convert") return commands.Convert(arguments);
    if (name == "example") return commands.Save_Example(arguments);
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
