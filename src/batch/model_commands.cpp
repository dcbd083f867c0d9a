// SPDX-License-Identifier: GPL-3.0-or-later
// The commands about a model itself: what it is, and writing it as a file.
#include <memory>

#include "batch/command_options.h"
#include "batch/commands.h"
#include "batch/summary.h"
#include "core/path_text.h"
#include "core/text_encoding.h"

namespace kervol {
namespace {

struct Conversion {
    std::string from, to;
};

int Info(Console& console, const Source& source) {
    BatchRun run(Answer::Ignore);
    if (!Take_Model(run, source)) return console.Close(run);
    run.Calculate();
    run.Add_Dynamics();
    return console.Print(Summary(run.program(), run.solved_steps())) ? console.Close(run) : Failed;
}

int Convert(Console& console, const Conversion& files) {
    BatchRun run(Answer::Ignore);
    run.Open(files.from);
    return run.Outcome() == Done ? console.Save(run, files.to) : console.Close(run);
}

int Save_Example(Console& console, const Conversion& example) {
    BatchRun run(Answer::Ignore);
    run.Load(example.from);
    run.program().model.ModelName = StripFilename(Decoded(example.to));
    return console.Save(run, example.to);
}

}  // namespace

Command Info_Command(CLI::App& app) {
    const auto source = std::make_shared<Source>();
    CLI::App& command = *app.add_subcommand("info", "Calculate a model and tell what it is and how it moves");
    Add_Source_Options(command, *source);
    command.callback([source] { Require_One_Source(*source); });
    return {&command, [source](Console& console) { return Info(console, *source); }};
}

Command Convert_Command(CLI::App& app) {
    const auto files = std::make_shared<Conversion>();
    CLI::App& command =
        *app.add_subcommand("convert", "Read a model or legacy file and write it in the current format");
    command.add_option("OLD", files->from, "file to read (.kvl or .ikv)")->required()->type_name("");
    command.add_option("NEW", files->to, "file to write (.kvl)")->required()->type_name("");
    return {&command, [files](Console& console) { return Convert(console, *files); }};
}

Command Example_Command(CLI::App& app) {
    const auto example = std::make_shared<Conversion>();
    CLI::App& command = *app.add_subcommand("example", "Write a built-in linkage as a model file");
    command.add_option("NAME", example->from, "built-in linkage")
        ->required()
        ->check(CLI::IsMember(Example_Names()))
        ->type_name("");
    Add_Output_Option(command, example->to, "file to write (.kvl)")->required();
    return {&command, [example](Console& console) { return Save_Example(console, *example); }};
}

}  // namespace kervol
