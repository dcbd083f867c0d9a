// SPDX-License-Identifier: GPL-3.0-or-later
#include "animation/link_shapes.h"

#include <algorithm>
#include <cmath>

#include "core/arithmetic.h"
#include "core/model_questions.h"

namespace kervol {
namespace {

/// Points of `PointPos`. The fourth is the pin of link 5 in both chains, whatever its letter.
constexpr int kA = 0, kB = 1, kCoupler1 = 2, kLink5Start = 3, kLink5End = 4, kCoupler2 = 5;

bool Is_Cam_Driven(const LinkageModel& model) {
    return model.CalcMode == 4;
}

/// End of the arm that carries the cam's roller.
UserPoint Arm_End(const Program& program, std::int16_t step) {
    const LinkageModel& model = program.model;
    const double angle = (double(program.tables.Theta(step, 0)) + model.DriveDatum) * RadiansPerDegree;
    return To_User_Frame(model, Single(model.DriveArmLength * std::cos(angle)),
                         Single(model.DriveArmLength * std::sin(angle)));
}

void Widen_By_Circle(Extent& extent, UserPoint centre, double radius) {
    extent.Widen(centre.x - radius, centre.y - radius);
    extent.Widen(centre.x + radius, centre.y + radius);
}

}  // namespace

std::vector<LinkShape> Link_Shapes(const Program& program, std::int16_t step) {
    const LinkageModel& model = program.model;
    const auto at = [&](int point) { return User_Position(program, step, point); };
    const UserPoint O4 = Pivot_O4(model);
    std::vector<LinkShape> shapes = {
        {2, {{}, at(kA)}}, {3, {at(kA), at(kB), at(kCoupler1)}}, {4, {O4, at(kB)}}};
    if (Is_Cam_Driven(model)) shapes[0].corners.push_back(Arm_End(program, step));
    if (!Has_Stage2(model)) return shapes;
    if (model.LinkageType == "W") shapes[2].corners.push_back(at(kLink5Start));
    shapes.push_back({5, {at(kLink5Start), at(kLink5End), at(kCoupler2)}});
    shapes.push_back({6, {Pivot_O6(model), at(kLink5End)}});
    return shapes;
}

std::vector<UserPoint> Moving_Joints(const Program& program, std::int16_t step) {
    std::vector<UserPoint> joints;
    for (const int point : {kA, kB, kLink5Start, kLink5End})
        if (point <= kB || Has_Stage2(program.model)) joints.push_back(User_Position(program, step, point));
    return joints;
}

std::vector<UserPoint> Fixed_Pivots(const LinkageModel& model) {
    std::vector<UserPoint> pivots = {{}, Pivot_O4(model)};
    if (Has_Stage2(model)) pivots.push_back(Pivot_O6(model));
    return pivots;
}

std::vector<Path> Coupler_Path(const Program& program, int coupler_point) {
    std::vector<Path> runs;
    if (coupler_point == 2 && !Has_Stage2(program.model)) return runs;
    const int point = coupler_point == 1 ? kCoupler1 : kCoupler2;
    bool restart = true;
    for (std::int16_t step = 0; step <= Last_Step(program.model); ++step) {
        if (program.tables.StepValid(step)) {
            if (restart) runs.emplace_back();
            runs.back().push_back(User_Position(program, step, point));
        }
        restart = !program.tables.StepValid(step);
    }
    return runs;
}

void Extent::Widen(double x, double y) {
    left = std::min(left, x);
    right = std::max(right, x);
    bottom = std::min(bottom, y);
    top = std::max(top, y);
}

Extent Motion_Extent(const Program& program) {
    const LinkageModel& model = program.model;
    Extent extent{};
    for (const UserPoint pivot : Fixed_Pivots(model)) extent.Widen(pivot.x, pivot.y);
    if (Is_Cam_Driven(model))
        Widen_By_Circle(extent, {-model.CamCentreX, -model.CamCentreY},
                        std::abs(double(model.CamBaseRadius)));
    for (std::int16_t step = 0; step <= Last_Step(model); ++step) {
        if (!program.tables.StepValid(step)) continue;
        for (const LinkShape& shape : Link_Shapes(program, step))
            for (const UserPoint corner : shape.corners) extent.Widen(corner.x, corner.y);
        if (Is_Cam_Driven(model))
            Widen_By_Circle(extent, Arm_End(program, step), std::abs(double(model.CamRollerRadius)));
    }
    return extent;
}

}  // namespace kervol
