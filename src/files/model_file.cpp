// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/model_file.h"

#include "core/geometry.h"
#include "core/number_text.h"
#include "core/path_text.h"
#include "core/report.h"
#include "core/text_encoding.h"
#include "core/units.h"
#include "files/disk.h"
#include "files/imported_rows.h"
#include "files/legacy_file.h"
#include "files/model_layout.h"
#include "kinematics/sweep.h"

namespace kervol {
namespace {

/// Identity of the legacy format.
constexpr std::string_view kLegacyIdentity = "KERVOL";

/// Holds `Loading` set, also where a fault ends the reading.
class LoadingScope {
  public:
    explicit LoadingScope(LinkageModel& model) : model_(model) { model_.Loading = true; }
    ~LoadingScope() { model_.Loading = false; }
    LoadingScope(const LoadingScope&) = delete;
    LoadingScope& operator=(const LoadingScope&) = delete;

  private:
    LinkageModel& model_;
};

void Rebuild(Program& program) {
    LinkageModel& model = program.model;
    // No file holds O4 in the local frame.
    Derive_Local_O4(model);
    Derive_Geometry(program);
    Set_Open_Signs(model);
    Put_Units(model);
}

bool Has_Release2_Fields(const std::string& version, const std::string& release) {
    return version.starts_with('7') && Val(release) >= 2;
}

void Read_Record(Program& program, ValueReader& file, const std::string& version) {
    LinkageModel& model = program.model;
    std::string release;
    Read_Fields(Common_Fields(), model, file, release);
    if (!Has_Release2_Fields(version, release)) return;
    Read_Fields(Release2_Fields(), model, file, release);
    if (model.CalcMode > 3) Read_Drive_Rows(program, file);
    if (model.TorqueImported) Read_Torque_Rows(program, file);
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
            Set_Offset_Angles(model);
            Set_Range_Angles(model);
        } else if (identity == kLegacyIdentity) {
            end = Read_Oldfile_6(program, file);
        } else {
            program.port.Show_Message(
                {"This data file is not compatible with this version of " + model.ProgramTitle + ". "});
            end = ReadEnd::Refused;
            return;
        }
        model.DataFromFile = true;
        {
            const LoadingScope loading(model);
            Rebuild(program);
            model.DataCalculated = false;
            model.DynamicsCalculated = false;
            program.port.Fill_Screens();
        }
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
        file.Close();
        program.port.Show_Message(
            {"File was successfully written to \n" + program.model.ModelPath, Icon::Information});
    });
}

ReadReport Open_Model(Program& program, const std::string& path) {
    ReadReport report;
    Procedure(program, "frm_Homescreen.Open", [&] {
        program.model.ModelPath = Decoded(path);
        ValueReader file(Read_Whole_File(path));
        report.end = Readfile(program, file);
        report.line = file.Line();
        program.model.ModelName = StripFilename(program.model.ModelPath);
    });
    return report;
}

bool Save_Model(Program& program) {
    bool written = false;
    Procedure(program, "frm_Homescreen.Save", [&] {
        OutputFile file(program.model.ModelPath);
        written = Writefile(program, file);
    });
    return written;
}

bool Save_Model_As(Program& program, const std::string& path) {
    bool written = false;
    Procedure(program, "frm_Homescreen.SaveAs", [&] {
        program.model.ModelPath = Decoded(path);
        OutputFile file(path);
        written = Writefile(program, file);
        if (written) program.model.DataSaved = true;
        program.model.ModelName = StripFilename(program.model.ModelPath);
    });
    return written;
}

}  // namespace kervol
