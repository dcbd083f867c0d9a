// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of `kervol-batch`.
#pragma once

#include <ostream>

namespace CLI {
class App;
}

namespace kervol {

struct Command;

/// Runs the command that the arguments name and returns its exit code. Results go to `out`, complaints to
/// `err`, one line each.
int Run_Commands(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

/// The commands, each declared in the file of its topic; see the list in commands.cpp.
Command Tables_Command(CLI::App& app);
Command Table_Command(CLI::App& app);
Command Functions_Command(CLI::App& app);
Command Info_Command(CLI::App& app);
Command Convert_Command(CLI::App& app);
Command Example_Command(CLI::App& app);
Command Drive_Command(CLI::App& app);
Command Export_Command(CLI::App& app);
Command Draw_Command(CLI::App& app);
Command Animate_Command(CLI::App& app);
Command Dxf_Command(CLI::App& app);
Command Plot_Command(CLI::App& app);
Command Compare_Command(CLI::App& app);
Command Report_Command(CLI::App& app);
Command Limits_Command(CLI::App& app);
Command Study_Command(CLI::App& app);
Command Check_Command(CLI::App& app);

}  // namespace kervol
