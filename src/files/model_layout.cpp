// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/model_layout.h"

#include <algorithm>
#include <array>

namespace kervol {
namespace {

using Model = LinkageModel;

/// Combines lambdas into one visitor.
template <class... Lambdas>
struct Overloaded : Lambdas... {
    using Lambdas::operator()...;
};
template <class... Lambdas>
Overloaded(Lambdas...) -> Overloaded<Lambdas...>;

constexpr LinkValue Mass(int link) {
    return {&Model::LinkMass, link};
}
constexpr LinkValue Inertia(int link) {
    return {&Model::LinkInertia, link};
}
constexpr LinkCGValue CG_Distance(int link) {
    return {link, 0};
}
constexpr LinkCGValue CG_Angle(int link) {
    return {link, 1};
}
constexpr LinkValue Force_Mag(int link) {
    return {&Model::ForceMag, link};
}
constexpr LinkValue Force_Angle(int link) {
    return {&Model::ForceAngle, link};
}
constexpr LinkValue Point_Dist(int link) {
    return {&Model::ForcePointDist, link};
}
constexpr LinkValue Point_Angle(int link) {
    return {&Model::ForcePointAngle, link};
}
constexpr LinkValue Torque(int link) {
    return {&Model::LinkTorque, link};
}
constexpr LinkValue Friction(int link) {
    return {&Model::LinkFriction, link};
}

}  // namespace

std::span<const FileField> Common_Fields() {
    // clang-format off
    static constexpr auto kFields = std::to_array<FileField>({
        /*   3 */ &Model::ModelName, &Model::UserName, &Model::DesignNumber, &Model::DateText, &Model::TimeText,
        /*   8 */ &Model::ModelTitle, &Model::LinkageType, &Model::Stage1Class, &Model::Stage2Class,
        /*  12 */ &Model::OpenCross1, &Model::OpenCross2,
        /*  14 */ &Model::Link2, &Model::Link3, &Model::Link4, &Model::Link1,
        /*  18 */ &Model::LinkO4D, &Model::Link5, &Model::Link6, &Model::O4O6Length,
        /*  22 */ &Model::O6LocalX, &Model::O6LocalY, &Model::CouplerAC, &Model::Delta3Deg,
        /*  26 */ &Model::Coupler2Spare, &Model::Delta4Deg, &Model::Coupler2Length, &Model::Delta5Deg,
        /*  30 */ &Model::TimeStart, &Model::TimeEnd, &Model::TimeStep,
        /*  33 */ &Model::Theta2One, &Model::Omega2Start, &Model::Alpha2Const,
        /*  36 */ &Model::ThetaMinDeg, &Model::ThetaMaxDeg, &Model::ThetaStepDeg,
        /*  39 */ &Model::CalcMode, &Model::UnitSystem,
        /*  41 */ &Model::ShowTrace, &Model::StepMode, &Model::HideLinks, &Model::AngleRange, &Model::PrintStep,
        /*  46 */ &Model::ModelTitle,  // a second time; this one stays
        /*  47 */ &Model::ShowPoints, &Model::ShowCoupler, WriterRelease{},
        /*  50 */ &Model::AnimDelay, PositiveCount{&Model::AnimCycles}, &Model::NumSteps,
        /*  53 */ Reserved{2},
        /*  55 */ Mass(2), Inertia(2), CG_Distance(2), CG_Angle(2),
        /*  59 */ Mass(3), Inertia(3), CG_Distance(3), CG_Angle(3),
        /*  63 */ Mass(4), Inertia(4), CG_Distance(4), CG_Angle(4),
        /*  67 */ Mass(5), Inertia(5), CG_Distance(5), CG_Angle(5),
        /*  71 */ Mass(6), Inertia(6), CG_Distance(6), CG_Angle(6),
        /*  75 */ Force_Mag(3), Force_Angle(3), Force_Mag(4), Force_Angle(4),
        /*  79 */ Force_Mag(5), Force_Angle(5), Force_Mag(6), Force_Angle(6),
        /*  83 */ Point_Dist(3), Point_Dist(4), Point_Dist(5), Point_Dist(6),
        /*  87 */ Point_Angle(3), Point_Angle(4), Point_Angle(5), Point_Angle(6),
        /*  91 */ Torque(3), Torque(4), Torque(5), Torque(6),
        /*  95 */ Friction(3), Friction(4), Friction(5), Friction(6),
        /*  99 */ &Model::O4X, &Model::O4Y, &Model::O6X, &Model::O6Y, &Model::GroundAngleDeg, &Model::GroundAngle,
        /* 105 */ &Model::DriveScale, &Model::DriveArmLength, &Model::DriveOffset,
        /* 108 */ &Model::CamDriven, &Model::LinkDriven, &Model::DriveFileName,
    });
    // clang-format on
    return kFields;
}

std::span<const FileField> Release2_Fields() {
    // clang-format off
    static constexpr auto kFields = std::to_array<FileField>({
        /* 111 */ &Model::DriveArmLength,  // a second time
        /* 112 */ &Model::CamBaseRadius, &Model::CamRollerRadius, &Model::DriveDatum,
        /* 115 */ &Model::CamCentreX, &Model::CamCentreY, &Model::TorqueImported,
        /* 118 */ Reserved{97},
    });
    // clang-format on
    return kFields;
}

void Read_Fields(std::span<const FileField> fields, LinkageModel& model, ValueReader& file,
                 std::string& release) {
    const Overloaded read = {
        [&](const LinkValue& value) { file.Read((model.*value.array)(value.link)); },
        [&](const LinkCGValue& value) { file.Read(model.LinkCG(value.link, value.part)); },
        [&](const PositiveCount& count) {
            file.Read(model.*count.member);
            model.*count.member = std::max<std::int16_t>(model.*count.member, 1);
        },
        [&](const WriterRelease&) { file.Read(release); },
        [&](const Reserved& reserved) { file.Skip(reserved.count); },
        [&](auto member) { file.Read(model.*member); },
    };
    for (const FileField& field : fields) std::visit(read, field);
}

void Write_Fields(std::span<const FileField> fields, const LinkageModel& model, ValueWriter& file) {
    const Overloaded write = {
        [&](const LinkValue& value) { file.Write((model.*value.array)(value.link)); },
        [&](const LinkCGValue& value) { file.Write(model.LinkCG(value.link, value.part)); },
        [&](const PositiveCount& count) { file.Write(std::int32_t{model.*count.member}); },
        [&](const WriterRelease&) { file.Write(model.ReleaseText); },
        [&](const Reserved& reserved) { file.Write_Reserved(reserved.count); },
        [&](auto member) { file.Write(model.*member); },
    };
    for (const FileField& field : fields) std::visit(write, field);
}

}  // namespace kervol
