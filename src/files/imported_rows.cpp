// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/imported_rows.h"

namespace kervol {

void Read_Drive_Rows(Program& program, ValueReader& file) {
    ResultTables& tables = program.tables;
    for (int i = 0; i <= program.model.NumSteps; ++i) {
        file.Read(tables.DriveTheta(i));
        file.Read(tables.Omega(i, 0));
        file.Read(tables.Alpha(i, 0));
    }
}

void Read_Torque_Rows(Program& program, ValueReader& file) {
    for (int i = 0; i <= program.model.NumSteps; ++i) file.Read(program.tables.Torque21Imported(i));
}

}  // namespace kervol
