// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/exchange.h"

#include "batch/command_options.h"
#include "files/exchange.h"

namespace kervol {
namespace {

void Require_One(const std::string& first, const std::string& second, const char* objection) {
    if (first.empty() == second.empty()) throw CLI::ValidationError(objection);
}

}  // namespace

void Add_Drive_Options(CLI::App& command, ExchangeFiles& files) {
    Add_File_Option(command, "--sva", files.sva, "drive of a cam (.sva)");
    Add_File_Option(command, "--out", files.out, "drive by link 6 of another linkage (.out)");
    Add_File_Option(command, "--save", files.save,
                    "write the driven model there (.kvl); tables then only with -o");
}

void Add_Export_Options(CLI::App& command, ExchangeFiles& files) {
    Add_File_Option(command, "--link6", files.link6, "write the motion of link 6 there (.out)");
    Add_File_Option(command, "--torque", files.torque, "write the driving torque of link 2 there (.trq)");
}

void Require_One_Drive(const ExchangeFiles& files) {
    Require_One(files.sva, files.out, "name --sva or --out, one of them");
}

void Require_One_Export(const ExchangeFiles& files) {
    Require_One(files.link6, files.torque, "name --link6 or --torque, one of them");
}

bool Take_Drive(BatchRun& run, const ExchangeFiles& files) {
    return files.sva.empty() ? run.Import_Drive(files.out, Import_Linkage_Drive)
                             : run.Import_Drive(files.sva, Import_Cam_Drive);
}

bool Calculate_For_Export(BatchRun& run, const ExchangeFiles& files) {
    run.Calculate();
    if (!files.torque.empty()) run.Add_Dynamics();
    const ExitCode outcome = run.Outcome();
    return (outcome == Done || outcome == SomeFailed) && !run.Forces_Stopped();
}

const std::string& Export_Path(const ExchangeFiles& files) {
    return files.link6.empty() ? files.torque : files.link6;
}

bool Write_Export(Program& program, const ExchangeFiles& files) {
    return files.link6.empty() ? Export_Torque(program, files.torque) : Export_Link6(program, files.link6);
}

}  // namespace kervol
