// SPDX-License-Identifier: GPL-3.0-or-later
// The command that tells how far the tables of a model can be trusted.
#include <memory>

#include "batch/check_json.h"
#include "batch/command_options.h"
#include "batch/commands.h"
#include "selfcheck/self_check.h"
#include "selfcheck/self_check_summary.h"
#include "selfcheck/self_check_text.h"

namespace kervol {
namespace {

struct Arguments {
    Source source;
    bool json = false;
    std::string output;
};

int Check_Model(Console& console, const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    if (!Take_Model(run, arguments.source)) return console.Close(run);
    run.Calculate();
    if (run.Outcome() == GivenUp) return console.Close(run);
    run.Add_Dynamics();
    const Program& program = run.program();
    const SelfCheck result = Check_Results(program.model, program.tables, run.solved_steps().value_or(0));
    const std::string text =
        arguments.json ? Self_Check_Json(program.model, result) : Self_Check_Text(program.model, result);
    const int code = console.Put_Out(run, text, arguments.output);
    // What the run itself has to complain about comes first.
    if (code != Done && code != SomeFailed) return code;
    return result.Tables_Hold() ? code : console.Complain(Failed, Self_Check_Complaint(result));
}

}  // namespace

Command Check_Command(CLI::App& app) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& command =
        *app.add_subcommand("check", "Calculate a model and tell how far its numbers can be trusted");
    Add_Source_Options(command, arguments->source);
    command.add_flag("--json", arguments->json, "as JSON, with the consistent values of every step");
    Add_Output_Option(command, arguments->output, "write there instead of to standard output");
    command.callback([arguments] { Require_One_Source(arguments->source); });
    return {&command, [arguments](Console& console) { return Check_Model(console, *arguments); }};
}

}  // namespace kervol
