// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/exchange.h"

#include <string_view>

#include "core/path_text.h"
#include "core/report.h"
#include "core/text_encoding.h"
#include "files/disk.h"
#include "files/drive_file.h"
#include "files/output_file.h"
#include "files/torque_file.h"
#include "files/value_reader.h"

namespace kervol {
namespace {

using Reader = ReadEnd (*)(Program& program, ValueReader& file);
using Writer = bool (*)(Program& program, OutputFile& file);

ReadReport Import_Drive(Program& program, const std::string& path, const char* extension, Reader reader) {
    LinkageModel& model = program.model;
    ReadReport report;
    Procedure(program, "mnu_Link_Data_Import_Click", [&] {
        model.ModelPath = Decoded(path);
        model.DriveFileName = StripFilename(model.ModelPath) + extension;
        ValueReader file(Read_Whole_File(path));
        report.end = reader(program, file);
        report.line = file.Line();
        model.DataSaved = false;
    });
    return report;
}

bool Export(Program& program, std::string_view handler, const std::string& path, Writer writer) {
    bool written = false;
    Procedure(program, handler, [&] {
        program.model.ModelPath = Decoded(path);
        OutputFile file(path);
        written = writer(program, file);
        if (written) program.model.DataSaved = true;
    });
    return written;
}

}  // namespace

ReadReport Import_Cam_Drive(Program& program, const std::string& path) {
    return Import_Drive(program, path, ".sva", Read_Cam_Data);
}

ReadReport Import_Linkage_Drive(Program& program, const std::string& path) {
    return Import_Drive(program, path, ".out", Import_Linkage_Data);
}

ReadEnd Import_Torque(Program& program, const std::string& path) {
    LinkageModel& model = program.model;
    model.ModelPath = Decoded(path);
    model.TorqueFileName = StripFilename(model.ModelPath) + ".trq";
    ValueReader file(Read_Whole_File(path));
    const ReadEnd end = Import_Torque_Data(program, file);
    if (end == ReadEnd::Refused) {
        model.TorqueImported = false;
        return end;
    }
    // Deliberate: also where a fault, which was shown, ended the reading.
    model.DataSaved = false;
    model.DynamicsCalculated = false;
    model.TorqueImported = true;
    program.port.Show_Message({"File " + model.ModelPath + " of Torque data successfully read."});
    return end;
}

bool Export_Link6(Program& program, const std::string& path) {
    return Export(program, "mnu_link4_Click", path, Export_Link6_to_File);
}

bool Export_Torque(Program& program, const std::string& path) {
    return Export(program, "mnu_Torque_export_Click", path, Export_Torque_Data);
}

}  // namespace kervol
