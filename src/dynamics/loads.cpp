// SPDX-License-Identifier: GPL-3.0-or-later
#include "dynamics/loads.h"

#include "core/mathematics.h"

namespace kervol {
namespace {

/// The coupler point on which a link feels friction, by link number; -1 where it has none.
constexpr int kFrictionPoint[] = {-1, -1, -1, 2, -1, 5, -1};

double Cross(Vec arm, Vec force) {
    return arm.x * force.y - arm.y * force.x;
}

Vec Along(float length, Direction direction) {
    return Single_Vec(length * direction.cos, length * direction.sin);
}

/// Against the velocity of a point. Deliberate: 180 degrees for a point at rest.
Direction Friction_Direction(const Table<float, 2>& velocity) {
    return Direction(Single((Atan2D(velocity(0), velocity(1)) + 180) * RadiansPerDegree));
}

void Put_Inertia(const LinkageModel& model, const Table<float, 11, 2>& acceleration, const LinkMotion& motion,
                 StepLoads& loads) {
    for (int link = 2; link <= NumLinks; ++link) {
        const double mass = model.LinkMass(link);
        const auto& cg = acceleration(CG_Point(link));
        loads(link).inertia_force = Single_Vec(mass * cg(0), mass * cg(1));
        loads(link).inertia_torque = Single(double(motion.link(link).alpha) * model.LinkInertia(link));
    }
}

}  // namespace

StepLoads Loads_Of_Step(const LinkageModel& model, const ResultTables& tables, const LinkMotion& motion,
                        int step) {
    StepLoads loads;
    Put_Inertia(model, tables.PointAcc(step), motion, loads);
    for (int link = 3; link <= NumLinks; ++link) {
        LinkLoads& load = loads(link);
        load.external_force = {model.ForceX(link), model.ForceY(link)};
        load.external_torque = model.LinkTorque(link);
        const Direction to_point(model.ForcePointAngle(link) * RadiansPerDegree + motion.link(link).theta);
        double moment = Cross(Along(model.ForcePointDist(link), to_point), load.external_force);
        if (kFrictionPoint[link] >= 0) {
            const Direction against = Friction_Direction(tables.PointVel(step, kFrictionPoint[link]));
            load.friction_force = Along(model.LinkFriction(link), against);
            moment += Cross(Along(model.CouplerAC, against), load.friction_force);
        }
        load.moment = Single(moment);
    }
    return loads;
}

}  // namespace kervol
