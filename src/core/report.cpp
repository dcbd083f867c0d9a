// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/report.h"

#include <algorithm>
#include <array>
#include <string>

namespace kervol {
namespace {

struct Advice {
    std::int32_t number;
    std::string_view text;
    Icon icon;
};

constexpr auto kAdvice = std::to_array<Advice>({
    {fault::OutOfMemory,
     "You should try to save your model from the Home Screen's 'File' pulldown menu, \r"
     "then Quit this program and restart it to clear the memory.\r"
     "It may help to close other programs that are running at the same time.\r"
     "Good luck! ",
     Icon::None},
    {fault::OutOfStack,
     "You should try to save your model from the Home Screen's 'File' pulldown menu, \r"
     "then Quit this program and restart it to clear the stacks.\r"
     "It may help to close other programs that are running at the same time.\r"
     "Good luck! ",
     Icon::Information},
    {fault::BadFileNameOrNumber,
     "The filename clicked on has a problem.  Try opening it from within the program.", Icon::Information},
    {fault::FileNotFound, "There are no files with your chosen name in the selected directory",
     Icon::Information},
    {fault::DeviceIO, "Device I/O error- bad drive or disk - please try another", Icon::Information},
    {fault::DiskFull, " The floppy disk in the drive is full - please substitute another", Icon::Information},
    {fault::BadFileName, "There are no files with your chosen name in the selected directory",
     Icon::Information},
    {fault::DiskNotReady, "Disk not ready - is the drive empty or its door open?", Icon::Information},
    {fault::ControlOutOfMemory, "Out of memory.  Close other programs and retry.", Icon::Information},
});

/// Whether the running sweep has met this fault before and the port shows such a one once.
bool Is_Repeated(const Program& program, const ReportedFault& fault) {
    const FaultLog& faults = program.faults;
    if (!faults.sweep_start || program.port.Shows_Repeated_Faults()) return false;
    const auto start = faults.entries.begin() + static_cast<std::ptrdiff_t>(*faults.sweep_start);
    return std::find(start, faults.entries.end(), fault) != faults.entries.end();
}

void Show_Fault(Port& port, const ReportedFault& fault) {
    MessageBox box;
    box.text = "Error " + std::to_string(fault.number) + "   (" +
               std::string(Fault_Description(fault.number)) + ")  has occurred in " + fault.procedure +
               "\r\r";
    box.icon = Icon::Information;
    const auto* advice = std::find_if(kAdvice.begin(), kAdvice.end(),
                                      [&](const Advice& entry) { return entry.number == fault.number; });
    if (advice != kAdvice.end()) {
        box.text += advice->text;
        box.icon = advice->icon;
    }
    port.Show_Message(box);
    if (fault.number == fault::OutOfMemory) port.Show_Screen(ScreenId::frm_HomeScreen, Modality::Modeless);
}

}  // namespace

void Report_Error(Program& program, std::int32_t number, std::string_view name) {
    const ReportedFault fault = {number, std::string(name)};
    if (!Is_Repeated(program, fault)) {
        program.faults.entries.push_back(fault);
        Show_Fault(program.port, fault);
    }
    program.port.Set_Pointer(Pointer::Default);
}

SweepFaultScope::SweepFaultScope(Program& program) : faults_(program.faults) {
    faults_.sweep_start = faults_.entries.size();
}

SweepFaultScope::~SweepFaultScope() {
    faults_.sweep_start.reset();
}

}  // namespace kervol
