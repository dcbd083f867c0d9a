// SPDX-License-Identifier: GPL-3.0-or-later
// The command that writes a design report.
#include <memory>
#include <string>
#include <vector>

#include "batch/command_options.h"
#include "batch/commands.h"
#include "core/report.h"
#include "report/report_page.h"

namespace kervol {
namespace {

struct ReportWish {
    Source source;
    std::string file;
};

int Report(Console& console, const ReportWish& wish) {
    BatchRun run(Answer::Ignore);
    if (!Take_Model(run, wish.source)) return console.Close(run);
    run.Calculate();
    if (run.Outcome() == GivenUp) return console.Close(run);
    run.Add_Dynamics();
    std::vector<MessageBox> boxes;
    for (const auto& shown : run.port().messages) boxes.push_back(shown.box);
    std::string page;
    if (!Procedure(run.program(), "Report", [&] {
            page = Report_Page(run.program(), {boxes, run.solved_steps().value_or(0)});
        }))
        return console.Close(run);
    const int code = console.Put_Out(run, page, wish.file);
    if (code == Failed || wish.file.empty()) return code;
    return console.Print("The report was written to " + wish.file + "\n") ? code : Failed;
}

}  // namespace

Command Report_Command(CLI::App& app) {
    const auto wish = std::make_shared<ReportWish>();
    CLI::App& command =
        *app.add_subcommand("report", "Calculate a model and write all about it as a page (HTML)");
    command.footer(
        "The page needs nothing beside itself: data with units, the linkage in motion, plots, extremes, "
        "forces,\n"
        "flywheel, spectrum of the torque, the self-check and messages. It follows a dark screen and prints "
        "well.");
    Add_Source_Options(command, wish->source);
    Add_Output_Option(command, wish->file, "file to write (.html), else standard output");
    command.callback([wish] { Require_One_Source(wish->source); });
    return {&command, [wish](Console& console) { return Report(console, *wish); }};
}

}  // namespace kervol
