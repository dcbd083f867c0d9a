// SPDX-License-Identifier: GPL-3.0-or-later
#include "dynamics/link_motion.h"

namespace kervol {
namespace {

/// Column of `Theta` by link number; that of links 2 to 6 in `Omega` and `Alpha` is the number less 2.
constexpr int kThetaColumn[] = {-1, -1, 0, 1, 2, 4, 5};
constexpr int kStage2InputColumn = 3;

float Local_Angle(const LinkageModel& model, float user_degrees) {
    return Single(user_degrees * RadiansPerDegree - model.GroundAngle);
}

/// Stores the motion that `of_link` gives for each centre of gravity about its pivot.
template <class OfLink>
void Put_CG_Rows(const LinkMotion& motion, Table<float, 11, 2>& points, OfLink&& of_link) {
    const Vec A = {points(0, 0), points(0, 1)};
    for (int link = 2; link <= NumLinks; ++link) {
        const Vec own = of_link(motion.link(link));
        const Vec whole = link == 3 ? own + A : own;
        auto& cell = points(CG_Point(link));
        cell(0) = Single(whole.x);
        cell(1) = Single(whole.y);
    }
}

}  // namespace

Vec MovingLink::CG_Velocity() const {
    const double speed = double(omega) * cg_distance;
    return {speed * -sin_cg, speed * cos_cg};
}

Vec MovingLink::CG_Acceleration() const {
    const double tangential = double(alpha) * cg_distance;
    const double normal = double(omega_squared) * cg_distance;
    return {tangential * -sin_cg + normal * -cos_cg, normal * -sin_cg + tangential * cos_cg};
}

LinkMotion Motion_Of_Links(const LinkageModel& model, const ResultTables& tables, int step) {
    const auto& theta = tables.Theta(step);
    const auto& omega = tables.Omega(step);
    const auto& alpha = tables.Alpha(step);
    LinkMotion motion;
    for (int link = 2; link <= NumLinks; ++link) {
        MovingLink& moving = motion.link(link);
        moving.theta = Local_Angle(model, theta(kThetaColumn[link]));
        moving.omega = omega(link - 2);
        moving.omega_squared = Single(double(moving.omega) * moving.omega);
        moving.alpha = alpha(link - 2);
        moving.line = Direction(moving.theta);
        const Direction cg(double(moving.theta) + model.LinkCG(link, 1));
        moving.sin_cg = Single(cg.sin);
        moving.cos_cg = Single(cg.cos);
        moving.cg_distance = model.LinkCG(link, 0);
    }
    motion.stage2_input = Direction(Local_Angle(model, theta(kStage2InputColumn)));
    return motion;
}

void Put_CG_Velocities(const LinkMotion& motion, ResultTables& tables, int step) {
    Put_CG_Rows(motion, tables.PointVel(step), [](const MovingLink& link) { return link.CG_Velocity(); });
}

void Put_CG_Accelerations(const LinkMotion& motion, ResultTables& tables, int step) {
    Put_CG_Rows(motion, tables.PointAcc(step), [](const MovingLink& link) { return link.CG_Acceleration(); });
}

}  // namespace kervol
