// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of the tests that import drives.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "files/drive_file.h"
#include "files/drive_samples.h"
#include "support/compare.h"
#include "support/program_test.h"

namespace kervol {

class DriveTest : public ProgramTest {
  protected:
    ReadEnd Read_Cam(const std::string& content) {
        ValueReader file(content);
        return Read_Cam_Data(*program, file);
    }
    ReadEnd Read_Cam_File(const CamFile& file = {}) { return Read_Cam(Joined(Cam_File_Lines(file))); }
    ReadEnd Read_Link_Output(const std::string& content) {
        ValueReader file(content);
        return Import_Linkage_Data(*program, file);
    }

    void Expect_Cam_Box() {
        Expect_Box("File " + model.ModelPath + " of Haldrix S-V-A data successfully read.",
                   Icon::Information);
    }
    void Expect_Link_Output_Box() {
        Expect_Box("File " + model.ModelPath + " of Linkage output data successfully read.");
    }

    /// Rows 0 to `last` hold the sample, the one behind them is as it was.
    void Expect_Rows(int last) {
        for (int i = 0; i <= last; ++i) {
            EXPECT_EQ(tables.DriveTheta(i), Row_Angle(i)) << i;
            EXPECT_EQ(tables.Omega(i, 0), Row_Speed(i)) << i;
            EXPECT_EQ(tables.Alpha(i, 0), Row_Acceleration(i)) << i;
        }
        EXPECT_EQ(tables.Omega(last + 1, 0), Poison);
        EXPECT_EQ(tables.Alpha(last + 1, 0), Poison);
    }
    bool Has_No_Rows() const {
        return std::count(tables.DriveTheta.begin(), tables.DriveTheta.end(), Poison) ==
               std::ptrdiff_t{DriveRows};
    }
    /// The lines `first` to `last` of a cam file are in the model.
    void Expect_Cam_Lines(int first, int last) {
        for (const SampleLine& line : Cam_Lines())
            if (line.line >= first && line.line <= last) {
                EXPECT_TRUE(Holds(model, line)) << "line " << line.line;
            }
    }
};

}  // namespace kervol
