// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes in the place of each file that the program reads: a model file or a legacy file, the drive of a
// cam or of another linkage, a torque. What was read is calculated, solved, written and read again.
#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <string>

#include "core/model_fields.h"
#include "core/report.h"
#include "demand.h"
#include "dynamics/solve_forces.h"
#include "files/exchange.h"
#include "files/model_file.h"
#include "headless/recording_port.h"
#include "kinematics/step_count.h"
#include "line_mutator.h"
#include "startup/launch.h"
#include "support/compare.h"
#include "support/temporary_folder.h"

namespace kervol {
namespace {

using Opener = ReadEnd (*)(Program& program, const std::string& path);

struct FileKind {
    const char* name;
    Opener open;
};

ReadEnd Open_Torque(Program& program, const std::string& path) {
    ReadEnd end = ReadEnd::Nothing;
    Procedure(program, "Torque", [&] { end = Import_Torque(program, path); });
    return end;
}

constexpr auto kKinds = std::to_array<FileKind>({
    {"Open_Model", [](Program& program, const std::string& path) { return Open_Model(program, path).end; }},
    {"Import_Cam_Drive",
     [](Program& program, const std::string& path) { return Import_Cam_Drive(program, path).end; }},
    {"Import_Linkage_Drive",
     [](Program& program, const std::string& path) { return Import_Linkage_Drive(program, path).end; }},
    {"Import_Torque", Open_Torque},
});

/// A program with its port, calculated in twelve steps.
struct Run {
    Run() : program(port) {
        port.clock = DateAndTime{"2026-01-02", "03:04"};
        Start_Fresh(program);
        program.model.StartingUp = false;
        program.model.ThetaStepDeg = 30;
        Calculate_Model(program);
    }

    RecordingPort port;
    Program program;
};

const Run& Fresh() {
    static const auto run = std::make_unique<const Run>();
    return *run;
}

/// Begins anew, which is much faster than to make one.
void Begin(Run& run) {
    run.program.model = Fresh().program.model;
    run.program.tables = Fresh().program.tables;
    run.program.matrix = Fresh().program.matrix;
    run.program.faults = {};
    run.port.messages.clear();
}

/// Of one procedure at most one fault in all that belongs to one file.
void Demand_Single_Faults(const FaultLog& faults, std::string_view where) {
    std::set<std::string> procedures;
    for (const ReportedFault& fault : faults.entries)
        Demand(procedures.insert(fault.procedure).second, fault.procedure + " failed twice", where);
}

/// What reading must leave alone where nothing was taken. The name of the file is taken before it is opened,
/// and a model file without a record counts as read, so that results are out of date.
void Demand_Untouched(const LinkageModel& model, LinkageModel before, std::string_view where) {
    before.ModelPath = model.ModelPath;
    before.ModelName = model.ModelName;
    before.DriveFileName = model.DriveFileName;
    before.TorqueFileName = model.TorqueFileName;
    before.TorqueImported = model.TorqueImported;
    before.DataSaved = model.DataSaved;
    before.DynamicsCalculated = model.DynamicsCalculated;
    before.DataCalculated = model.DataCalculated;
    before.DataFromFile = model.DataFromFile;
    for (const std::string& name : Differing_Fields(model, before))
        Demand(false, name + " was changed by a file that was not taken", where);
}

/// Quotes within a text are not guarded in a file, so such a model cannot come back.
bool Has_Quotes(const LinkageModel& model) {
    const auto has_quotes = [&](const ModelField& field) {
        const auto* text = std::get_if<std::string LinkageModel::*>(&field.member);
        return text != nullptr && (model.**text).find('"') != std::string::npos;
    };
    const auto fields = Model_Fields();
    return std::any_of(fields.begin(), fields.end(), has_quotes);
}

std::string Written(Program& program, const TemporaryFolder& folder) {
    const std::string path = folder / "written.kvl";
    std::filesystem::remove(path);
    OutputFile file(path);
    return Writefile(program, file) ? Content_Of(path) : std::string();
}

/// A model that is written and read is the same model.
void Demand_Round_Trip(Program& program, const TemporaryFolder& folder, std::string_view where) {
    const std::string content = Written(program, folder);
    if (content.empty() || Has_Quotes(program.model)) return;
    static const auto second = std::make_unique<Run>();
    Begin(*second);
    ValueReader file(content);
    const ReadEnd end = Readfile(second->program, file);
    Demand(end == ReadEnd::Whole, "what was written could not be read", where);
    Demand(second->program.faults.entries.empty(), "what was written was read with a fault", where);
    Demand(Written(second->program, folder) == content, "what was written came back as another model", where);
}

void Read_As(const FileKind& kind, const std::string& path, const TemporaryFolder& folder) {
    static const auto run = std::make_unique<Run>();
    Begin(*run);
    Program& program = run->program;
    const ReadEnd end = kind.open(program, path);
    Demand_Finite(program, kind.name);
    Demand_Single_Faults(program.faults, kind.name);
    if (end == ReadEnd::Nothing || end == ReadEnd::Refused)
        return Demand_Untouched(program.model, Fresh().program.model, kind.name);
    Demand(!program.model.Loading, "the model counts as loading", kind.name);
    if (program.faults.entries.empty()) Demand_Round_Trip(program, folder, kind.name);
    Calculate_Model(program);
    Demand_Finite(program, "after the calculation");
    if (!program.model.DataCalculated) return;
    Run_Dynamics(program);
    Demand_Finite(program, "after the dynamics");
}

}  // namespace

LineKind Lines_Of_Input() {
    return {",\t ", [](FuzzRandom& random) {
                std::string line = Edge_Value(random);
                while (Below(random, 4) == 0) line += "," + Edge_Value(random);
                return line;
            }};
}

}  // namespace kervol

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const kervol::TemporaryFolder folder;
    const std::string path = folder.Put("input", {reinterpret_cast<const char*>(data), size});
    for (const kervol::FileKind& kind : kervol::kKinds) kervol::Read_As(kind, path, folder);
    return 0;
}
