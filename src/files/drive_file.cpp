// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/drive_file.h"

#include <array>
#include <initializer_list>
#include <string>

#include "core/arithmetic.h"
#include "core/geometry.h"
#include "core/mathematics.h"
#include "core/number_text.h"
#include "core/report.h"
#include "files/imported_rows.h"
#include "files/model_layout.h"
#include "kinematics/sweep.h"

namespace kervol {
namespace {

using Model = LinkageModel;

/// Number of links of the program that wrote a cam file.
constexpr std::int16_t kCamAlone = 1;
constexpr std::int16_t kFourLinks = 4;

/// Empty lines of a link output file between its times and its rows.
constexpr int kReservedLines = 12;
constexpr std::size_t kPrintZone = 14;

/// Reads fields of which none is the release of the writer.
void Read_Plain_Fields(std::span<const FileField> fields, Model& model, ValueReader& file) {
    std::string no_release;
    Read_Fields(fields, model, file, no_release);
}

/// The file has -1 for open and 1 for crossed; another number leaves the assembly as it is.
void Read_Assembly(ValueReader& file, std::int16_t& code, std::int16_t& sign, std::string& text) {
    std::int16_t assembly = 0;
    file.Read(assembly);
    if (assembly == -1) code = 1;
    if (assembly == 1) code = 2;
    Set_Open_Sign(code, sign, text);
}

/// What no cam file holds but follows from it, or is nothing in a linkage that a cam drives.
void Complete_Linkage(Program& program) {
    Model& model = program.model;
    model.Theta2One = 0 - model.GroundAngleDeg;  // subtracted, since a level ground must not give -0
    model.Delta3Deg = 0;
    model.CouplerAC = 0;
    model.Delta5Deg = 0;
    model.Coupler2Length = 0;
    Set_Offset_Angles(model);
    Rotate(model.O4X, model.O4Y, model.GroundAngleDeg, -1, model.O4LocalX, model.O4LocalY);
    Derive_Geometry(program);
}

void Read_Linkage(Program& program, ValueReader& file) {
    static constexpr auto kStage1 = std::to_array<FileField>(
        {&Model::Link2, &Model::Link3, &Model::Link4, &Model::Link1, &Model::GroundAngleDeg});
    static constexpr auto kPivots =
        std::to_array<FileField>({&Model::O4X, &Model::O4Y, &Model::CamCentreX, &Model::CamCentreY});
    static constexpr auto kStage2 = std::to_array<FileField>({
        &Model::LinkO4D,
        &Model::Link5,
        &Model::Link6,
        &Model::O6LocalX,
        &Model::O6LocalY,
        &Model::Delta4Deg,
        &Model::O6X,
        &Model::O6Y,
    });
    Model& model = program.model;
    file.Read(model.DriveDatum);
    Read_Assembly(file, model.OpenCross1, model.OpenSign1, model.OpenCross1Text);
    Read_Plain_Fields(kStage1, model, file);
    model.GroundAngle = Single(model.GroundAngleDeg * RadiansPerDegree);
    Read_Plain_Fields(kPivots, model, file);
    Read_Assembly(file, model.OpenCross2, model.OpenSign2, model.OpenCross2Text);
    Read_Plain_Fields(kStage2, model, file);
    Complete_Linkage(program);
}

/// Mass data of links 2 to `last`; they are passed over where they hold nothing.
void Read_Mass_Data(Model& model, int last, ValueReader& file) {
    std::int16_t has_dynamics = 0;
    file.Read(has_dynamics);
    for (int link = 2; link <= last; ++link) {
        if (has_dynamics != -1) {
            file.Skip(4);
            continue;
        }
        file.Read(model.LinkMass(link));
        file.Read(model.LinkInertia(link));
        file.Read(model.LinkCG(link, 0));
        file.Read(model.LinkCG(link, 1));
    }
}

void Read_Cam_Fields(Program& program, std::int16_t source, ValueReader& file) {
    static constexpr auto kCam = std::to_array<FileField>({
        &Model::DriveScale,
        &Model::DriveOffset,
        &Model::DriveArmLength,
        &Model::CamBaseRadius,
        &Model::CamRollerRadius,
        &Model::TimeStart,
        &Model::TimeEnd,
        &Model::TimeStep,
        Reserved{9},
    });
    Read_Plain_Fields(kCam, program.model, file);
    if (source == kCamAlone) return;
    Read_Linkage(program, file);
    Read_Mass_Data(program.model, source, file);
    file.Skip(30);
}

/// The tables were those of another drive, and are mixed with this one where its reading stops half-way.
void Forget_Results(Model& model) {
    model.DataCalculated = false;
    model.DynamicsCalculated = false;
}

/// What follows on a drive that was read whole; `kind` names its data in the box.
void Show_Drive(Program& program, const std::string& kind, Icon icon) {
    if (program.model.StartingUp) return;
    program.port.Show_Message(
        {"File " + program.model.ModelPath + " of " + kind + " data successfully read.", icon});
    program.port.Show_Screen(ScreenId::frm_Inputnew, Modality::Modal);
}

/// Three numbers, each at the start of a print zone; one that fills its zone moves the next one on.
std::string Zoned_Line(std::initializer_list<float> numbers) {
    std::string line;
    for (const float number : numbers) {
        if (!line.empty()) line.resize((line.size() / kPrintZone + 1) * kPrintZone, ' ');
        line += With_Sign_Blank(number);
    }
    return line;
}

}  // namespace

ReadEnd Read_Cam_Data(Program& program, ValueReader& file) {
    LinkageModel& model = program.model;
    ReadEnd end = ReadEnd::Nothing;
    Procedure(program, "Read_Cam_Data", [&] {
        std::int16_t source = 0;
        file.Read(source);
        if (source == kFourLinks) {
            program.port.Show_Message(
                {"This file contains data for a Vostrel linkage.\nPlease import it to Program Vostrel "
                 "instead.",
                 Icon::Information});
            end = ReadEnd::Refused;
            return;
        }
        end = ReadEnd::Cut;
        Forget_Results(model);
        Read_Cam_Fields(program, source, file);
        file.Read(model.NumSteps);
        Read_Drive_Rows(program, file);
        model.CamDriven = true;
        model.CalcMode = 4;
        end = ReadEnd::Whole;
        Show_Drive(program, "Haldrix S-V-A", Icon::Information);
    });
    return end;
}

ReadEnd Import_Linkage_Data(Program& program, ValueReader& file) {
    static constexpr auto kTimes = std::to_array<FileField>(
        {&Model::TimeStart, &Model::TimeEnd, &Model::TimeStep, Reserved{kReservedLines}});
    LinkageModel& model = program.model;
    ReadEnd end = ReadEnd::Nothing;
    Procedure(program, "Import_Linkage_Data", [&] {
        file.Read(model.NumSteps);
        end = ReadEnd::Cut;
        Forget_Results(model);
        Read_Plain_Fields(kTimes, model, file);
        Read_Drive_Rows(program, file);
        model.LinkDriven = true;
        model.CalcMode = 5;
        end = ReadEnd::Whole;
        Show_Drive(program, "Linkage output", Icon::None);
    });
    return end;
}

bool Export_Link6_to_File(Program& program, OutputFile& file) {
    return Procedure(program, "Export_Link6_to_File", [&] {
        const LinkageModel& model = program.model;
        const ResultTables& tables = program.tables;
        const auto write_line = [&](const std::string& line) { file.Write(line + "\r\n"); };
        write_line(With_Sign_Blank(int{model.NumSteps}));
        for (const float time : {model.TimeStart, model.TimeEnd, model.TimeStep})
            write_line(With_Sign_Blank(time));
        for (int i = 0; i < kReservedLines; ++i) write_line("");
        for (int i = 0; i <= model.NumSteps; ++i)
            write_line(Zoned_Line({tables.Theta(i, 5), tables.Omega(i, 4), tables.Alpha(i, 4)}));
        file.Close();
        // Deliberate: the path follows on "Kervol" without a blank.
        program.port.Show_Message(
            {"The angular data for link 6 of this linkage has been written to " + model.ModelPath +
                 "\nThis file can be imported to program Vostrel or Kervol" + model.ModelPath +
                 "\nand used as input data to drive the next stage of a multibar linkage.",
             Icon::Information});
    });
}

}  // namespace kervol
