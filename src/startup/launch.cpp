// SPDX-License-Identifier: GPL-3.0-or-later
#include "startup/launch.h"

#include "catalogue/names.h"
#include "core/path_text.h"
#include "core/report.h"
#include "core/text_encoding.h"
#include "core/units.h"
#include "dynamics/link_data.h"
#include "files/disk.h"
#include "files/model_file.h"
#include "kinematics/examples.h"
#include "kinematics/step_count.h"
#include "kinematics/sweep.h"

namespace kervol {
namespace {

void Set_Motion_Defaults(LinkageModel& model) {
    model.OpenCross1 = 1;
    model.OpenCross2 = 1;
    Set_Open_Signs(model);
    model.CalcMode = 3;
    model.Theta2One = 0;
    model.Omega2Start = 10;
    model.Alpha2Const = -5;
    model.TimeStart = 0;
    model.TimeEnd = 5;
    model.TimeStep = 0.05F;
}

void Set_Display_Defaults(LinkageModel& model) {
    model.AnimDelay = 16383;
    model.AnimCycles = 1;
    model.AnimWait = 10;
    model.ShowPoints = "N";
    model.ShowCoupler = "Y";
    model.PrintStep = 10;
    model.CoefFluct = 0.05F;
    model.UnitCount = 17;
}

}  // namespace

void Set_Program_Values(LinkageModel& model) {
    model.ProgramTitle = "KERVOL for Windows";
    model.VersionText = "7.0";
    model.ProgramDate = "5/5/04";
    model.ReleaseText = "2.2";
    model.CaptionTail = "   " + model.ProgramTitle + " " + model.VersionText + ", Rev. " + model.ReleaseText;
    model.StartingUp = true;
    model.ModelPath.clear();
    model.ModelName = "Model_1";
    model.DesignNumber = 1;
    model.UnitSystem = 1;
}

void Initialize(Program& program) {
    LinkageModel& model = program.model;
    Procedure(program, "Initialize", [&] {
        model.NewData = true;
        model.DataCalculated = false;
        model.DynamicsCalculated = false;
        model.FlywheelCalculated = false;
        model.DesignNumber = 1;
        Set_Motion_Defaults(model);
        Set_Display_Defaults(model);
        Fill_Catalogue_Names(program.catalogue);
        Load_Example(model, Examples().front());
        Default_Mass_Properties(model);
        Count_Angle_Range(model);
        model.AngleRange = "abs";
        model.ModelPath.clear();
        model.ModelName = "Model_1";
        const DateAndTime now = program.port.Short_Date_And_Time();
        model.DateText = now.date;
        model.TimeText = now.time;
    });
}

void Start_Fresh(Program& program) {
    Set_Program_Values(program.model);
    Initialize(program);
    Put_Units(program.model);
}

void Open_Clicked_File(Program& program, const std::string& command_line) {
    if (command_line.empty()) return;
    Procedure(program, " in Open_Clicked_File", [&] {
        const std::string long_path = program.port.Long_Path(command_line);
        const std::string& path = long_path.empty() ? command_line : long_path;
        program.model.ModelPath = Decoded(path);
        ValueReader file(Read_Whole_File(path));
        Readfile(program, file);
        program.model.ModelName = StripFilename(program.model.ModelPath);
        program.port.Set_Pointer(Pointer::Default);
    });
}

}  // namespace kervol
