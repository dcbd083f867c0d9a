// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/torque_file.h"

#include "core/report.h"
#include "files/imported_rows.h"
#include "files/value_writer.h"

namespace kervol {

ReadEnd Import_Torque_Data(Program& program, ValueReader& file) {
    ReadEnd end = ReadEnd::Nothing;
    Announced_Procedure(program, "Import_Torque_Data", [&] {
        std::int16_t count = 0;
        file.Read(count);
        if (count != program.model.NumSteps) {
            program.port.Show_Message(
                {"This file has a different number of data than your current model and is incompatible",
                 Icon::Exclamation});
            end = ReadEnd::Refused;
            return;
        }
        end = ReadEnd::Cut;
        Read_Torque_Rows(program, file);
        end = ReadEnd::Whole;
    });
    return end;
}

bool Export_Torque_Data(Program& program, OutputFile& file) {
    return Procedure(program, "Export_Torque_Data", [&] {
        const LinkageModel& model = program.model;
        ValueWriter writer(file);
        writer.Write(std::int32_t{model.NumSteps});
        for (int i = 0; i <= model.NumSteps; ++i) writer.Write(program.tables.TorqueTable(i, 0));
        file.Close();
    });
}

}  // namespace kervol
