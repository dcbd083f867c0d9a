// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/model_file.h"

#include "core/geometry.h"
#include "core/mathematics.h"
#include "core/number_text.h"
#include "core/path_text.h"
#include "core/report.h"
#include "core/units.h"
#include "files/disk.h"
#include "files/legacy_file.h"
#include "files/model_layout.h"
#include "kinematics/sweep.h"

namespace kervol {
namespace {

/// Identity of the legacy format.
constexpr std::string_view kLegacyIdentity = "KERVOL";

void Set_Angles(LinkageModel& model) {
    Set_Angle(model.Delta3Deg, model.Delta3, model.Delta3Text);
    Set_Angle(model.Delta4Deg, model.Delta4, model.Delta4Text);
    Set_Angle(model.Delta5Deg, model.Delta5, model.Delta5Text);
    Set_Angle(model.ThetaMinDeg, model.ThetaMin, model.ThetaMinText);
    Set_Angle(model.ThetaMaxDeg, model.ThetaMax, model.ThetaMaxText);
    Set_Angle(model.ThetaStepDeg, model.ThetaStep, model.ThetaStepText);
}

void Rebuild(LinkageModel& model) {
    // No file holds O4 in the local frame.
    Rotate(model.O4X, model.O4Y, model.GroundAngleDeg, -1, model.O4LocalX, model.O4LocalY);
    Derive_Geometry(model);
    Set_Open_Signs(model);
    Put_Units(model);
}

bool Has_Release2_Fields(const std::string& version, const std::string& release) {
    return version.starts_with('7') && Val(release) >= 2;
}

void Read_Record(Program& program, ValueReader& file, const std::string& version) {
    LinkageModel& model = program.model;
    ResultTables& tables = program.tables;
    std::string release;
    Read_Fields(Common_Fields(), model, file, release);
    if (!Has_Release2_Fields(version, release)) return;
    Read_Fields(Release2_Fields(), model, file, release);
    for (int i = 0; model.CalcMode > 3 && i <= model.NumSteps; ++i) {
        file.Read(tables.DriveTheta(i));
        file.Read(tables.Omega(i, 0));
        file.Read(tables.Alpha(i, 0));
    }
    for (int i = 0; model.TorqueImported && i <= model.NumSteps; ++i) file.Read(tables.Torque21Imported(i));
}

void Write_Values(const Program& program, ValueWriter& file) {
    const LinkageModel& model = program.model;
    const ResultTables& tables = program.tables;
    file.Write(model.ProgramTitle);
    file.Write(model.VersionText);
    Write_Fields(Common_Fields(), model, file);
    Write_Fields(Release2_Fields(), model, file);
    for (int i = 0; model.CalcMode > 3 && i <= model.NumSteps; ++i)
        file.Write_Row(tables.DriveTheta(i), tables.Omega(i, 0), tables.Alpha(i, 0));
    for (int i = 0; model.TorqueImported && i <= model.NumSteps; ++i) file.Write(tables.Torque21Imported(i));
}

}  // namespace

ReadEnd Readfile(Program& program, ValueReader& file) {
    LinkageModel& model = program.model;
    ReadEnd end = ReadEnd::Nothing;
    Procedure(program, "Readfile", [&] {
        std::string identity, version;
        file.Read(identity);
        file.Read(version);
        if (identity == model.ProgramTitle) {
            end = Read_Model_Fields(program, file, version);
            Set_Angles(model);
        } else if (identity == kLegacyIdentity) {
            end = Read_Oldfile_6(program, file);
        } else {
            program.port.Show_Message(
                {"This data file is not compatible with this version of " + model.ProgramTitle + ". "});
            return;
        }
        model.Loading = true;
        model.DataFromFile = true;
        Rebuild(model);
        model.DataCalculated = false;
        model.DynamicsCalculated = false;
        model.Loading = false;
        program.port.Set_Pointer(Pointer::Default);
        if (model.StartingUp) return;
        program.port.Show_Message({"File " + model.ModelPath + " successfully read.", Icon::Information});
        program.port.Show_Screen(ScreenId::frm_Inputnew, Modality::Modal);
    });
    return end;
}

ReadEnd Read_Model_Fields(Program& program, ValueReader& file, const std::string& version) {
    ReadEnd end = ReadEnd::Nothing;
    // Deliberate: this reader reports without a name.
    Procedure(program, "", [&] {
        while (!file.At_End()) {
            end = ReadEnd::Cut;
            Read_Record(program, file, version);
            end = ReadEnd::Whole;
        }
    });
    return end;
}

bool Writefile(Program& program, OutputFile& file) {
    return Procedure(program, "Writefile", [&] {
        ValueWriter writer(file);
        Write_Values(program, writer);
        file.Flush();
        program.port.Show_Message(
            {"File was successfully written to \n" + program.model.ModelPath, Icon::Information});
    });
}

ReadReport Open_Model(Program& program, const std::string& path) {
    ReadReport report;
    Procedure(program, "frm_Homescreen.Open", [&] {
        program.model.ModelPath = path;
        ValueReader file(Read_Whole_File(path));
        report.end = Readfile(program, file);
        report.line = file.Line();
        program.model.ModelName = StripFilename(program.model.ModelPath);
    });
    return report;
}

bool Save_Model_As(Program& program, const std::string& path) {
    bool written = false;
    Procedure(program, "frm_Homescreen.SaveAs", [&] {
        program.model.ModelPath = path;
        OutputFile file(path);
        written = Writefile(program, file);
        if (written) program.model.DataSaved = true;
        program.model.ModelName = StripFilename(path);
    });
    return written;
}

}  // namespace kervol
