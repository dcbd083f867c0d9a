// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/legacy_file.h"

#include <array>

#include "core/arithmetic.h"
#include "core/number_text.h"
#include "core/report.h"
#include "files/model_layout.h"

namespace kervol {
namespace {

using Model = LinkageModel;

/// Degrees, and their text to two decimals, of an offset angle in radians.
void Convert_Offset_Angle(float radians, float& degrees, std::string& text) {
    degrees = Single(radians * DegreesPerRadian);
    text = FNRoundStr(degrees, 2);
}

/// Takes an angle of the range from its text in degrees. The radians are rounded to three places.
void Read_Range_Angle(ValueReader& file, std::string& text, float& degrees, float& radians) {
    file.Read(text);
    degrees = Single(Val(text));
    radians = Single(FNRound(Single(degrees * RadiansPerDegree), 3));
}

void Read_Record(Model& model, ValueReader& file) {
    static constexpr auto kStage1 = std::to_array<FileField>({
        &Model::ModelName,
        &Model::UserName,
        &Model::DesignNumber,
        &Model::DateText,
        &Model::TimeText,
        &Model::Link2,
        &Model::Link3,
        &Model::Link4,
        &Model::Link1,
        &Model::CouplerAC,
        &Model::Delta3,
    });
    static constexpr auto kStage2 = std::to_array<FileField>({
        &Model::ModelTitle,
        &Model::LinkageType,
        &Model::LinkO4D,
        &Model::Link5,
        &Model::Link6,
        &Model::O4O6Length,
        &Model::Delta4,
        &Model::Coupler2Spare,
    });
    static constexpr auto kLink5 = std::to_array<FileField>({&Model::Delta5});
    static constexpr auto kMotion = std::to_array<FileField>({
        &Model::Coupler2Length,
        &Model::O6X,  // one coordinate of O6 in each frame, as the format has it
        &Model::O6LocalY,
        &Model::OpenCross1,
        &Model::OpenCross2,
        Reserved{8},
        &Model::TimeStart,
        &Model::TimeEnd,
        &Model::TimeStep,
        &Model::Theta2One,
        &Model::Omega2Start,
        &Model::Alpha2Const,
    });
    static constexpr auto kSettings = std::to_array<FileField>({
        Reserved{1},
        &Model::CalcMode,
        Reserved{15},
        &Model::ShowTrace,
        &Model::StepMode,
        &Model::HideLinks,
        Reserved{4},
        &Model::AngleRange,
        Reserved{1},
        &Model::CalcMode,  // a second time; this one stays
        &Model::PrintStep,
    });
    std::string no_release;
    const auto read = [&](std::span<const FileField> fields) {
        Read_Fields(fields, model, file, no_release);
    };

    read(kStage1);
    Convert_Offset_Angle(model.Delta3, model.Delta3Deg, model.Delta3Text);
    read(kStage2);
    Convert_Offset_Angle(model.Delta4, model.Delta4Deg, model.Delta4Text);
    read(kLink5);
    Convert_Offset_Angle(model.Delta5, model.Delta5Deg, model.Delta5Text);
    read(kMotion);
    Read_Range_Angle(file, model.ThetaMinText, model.ThetaMinDeg, model.ThetaMin);
    Read_Range_Angle(file, model.ThetaMaxText, model.ThetaMaxDeg, model.ThetaMax);
    Read_Range_Angle(file, model.ThetaStepText, model.ThetaStepDeg, model.ThetaStep);
    read(kSettings);
}

}  // namespace

ReadEnd Read_Oldfile_6(Program& program, ValueReader& file) {
    ReadEnd end = ReadEnd::Nothing;
    Procedure(program, "Read_Oldfile_6", [&] {
        while (!file.At_End()) {
            end = ReadEnd::Cut;
            Read_Record(program.model, file);
            end = ReadEnd::Whole;
        }
    });
    return end;
}

}  // namespace kervol
