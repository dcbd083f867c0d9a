// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/commands.h"

#include <algorithm>
#include <array>
#include <exception>
#include <sstream>
#include <string>

#include "batch/command_options.h"
#include "startup/launch.h"

namespace kervol {
namespace {

/// In the order in which the help lists them.
constexpr auto kCommands = std::to_array<Command (*)(CLI::App& app)>({
    Tables_Command,
    Table_Command,
    Functions_Command,
    Info_Command,
    Convert_Command,
    Example_Command,
    Drive_Command,
    Export_Command,
    Draw_Command,
    Animate_Command,
    Dxf_Command,
    Plot_Command,
    Compare_Command,
    Report_Command,
    Limits_Command,
    Study_Command,
    Check_Command,
});

int Run_Chosen(const CLI::App& app, const std::vector<Command>& commands, Console& console) {
    const CLI::App* chosen = app.get_subcommands().front();
    const auto command = std::find_if(commands.begin(), commands.end(),
                                      [&](const Command& entry) { return entry.options == chosen; });
    return command->run(console);
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
    std::vector<Command> commands;
    commands.reserve(kCommands.size());
    for (const auto declare : kCommands) commands.push_back(declare(app));

    Console console(out, err);
    try {
        app.parse(argc, argv);
        return Run_Chosen(app, commands, console);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0)
            return console.Complain(WrongUse, std::string(error.what()) + "; see kervol-batch --help");
        std::ostringstream help;
        app.exit(error, help, help);
        return console.Print(help.str()) ? Done : Failed;
    } catch (const std::exception& error) {
        return console.Complain(Failed,
                                std::string(error.what()) + ": the model is too large for this machine");
    }
}

}  // namespace kervol
