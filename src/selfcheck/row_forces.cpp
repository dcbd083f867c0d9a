// SPDX-License-Identifier: GPL-3.0-or-later
#include "selfcheck/row_forces.h"

#include <cmath>

#include "core/arithmetic.h"

namespace kervol {
namespace {

/// The coupler point on which a link feels friction, by link number; -1 where it has none.
constexpr int kFrictionPoint[] = {-1, -1, -1, 2, -1, 5, -1};

Vec Along(double length, double angle) {
    return Arm(length, angle).Position();
}

Vec External_Force(const LinkageModel& model, int link, Rules rules) {
    if (rules.Has(Deviation::ForceFrame)) return {model.ForceX(link), model.ForceY(link)};
    const double direction = (double(model.ForceAngle(link)) - model.GroundAngleDeg) * RadiansPerDegree;
    return Along(model.ForceMag(link), direction);
}

/// A point at rest feels it along -x.
Vec Friction(const LinkageModel& model, int link, Vec velocity) {
    const double speed = std::hypot(velocity.x, velocity.y);
    const double size = model.LinkFriction(link);
    if (Is_Zero(speed)) return {-size, 0};
    return -size / speed * velocity;
}

/// Where link 5 is taken to pull on the link that carries it.
Vec Pin_As_Taken(const LinkageModel& model, const LinkAngles& theta, const RowMotion& motion, Rules rules) {
    if (model.LinkageType == "W" && rules.Has(Deviation::ArmOfD))
        return Local_O4(model) + Along(model.Link6, theta(4) + model.Delta4);
    if (model.LinkageType == "S" && rules.Has(Deviation::ArmOfC))
        return motion.point(0).position + Along(model.CouplerAC, theta(3));
    return motion.point(3).position;
}

/// A link of a pair: what its joints must give, as a force and a moment about its outer joint.
struct PairLink {
    PairLink(const LinkLoad& load, Vec cg, Vec outer)
        : force(load.Needed_Force()), moment(Cross(cg - outer, force) + load.Needed_Moment()) {}

    /// A known force acts on the link at a distance from its outer joint.
    void Add(Vec acting, Vec arm) {
        force = force - acting;
        moment -= Cross(arm, acting);
    }

    Vec force;
    double moment;
};

/// The force of the second link on the first at their common joint, reached by these arms from the outer
/// ones.
std::optional<Vec> Inner_Force(const PairLink& first, Vec arm1, const PairLink& second, Vec arm2) {
    return Solve_Pair(-arm1.y, arm1.x, first.moment, arm2.y, -arm2.x, second.moment);
}

}  // namespace

RowLoads Loads_Of_Row(const LinkageModel& model, const LinkAngles& theta, const RowMotion& motion,
                      double torque6, Rules rules) {
    RowLoads loads;
    for (int link = 2; link <= NumLinks; ++link) {
        LinkLoad& load = loads(link);
        load.inertia = double(model.LinkMass(link)) * motion.cg(link).acceleration;
        load.inertia_torque = motion.link(link).alpha * model.LinkInertia(link);
        if (link == 2) continue;
        load.external = External_Force(model, link, rules);
        load.torque = link == 6 ? torque6 : double(model.LinkTorque(link));
        const double to_point = theta(link) + model.ForcePointAngle(link) * RadiansPerDegree;
        load.external_moment = Cross(Along(model.ForcePointDist(link), to_point), load.external);
        if (kFrictionPoint[link] < 0) continue;
        const PointMotion& point = motion.point(kFrictionPoint[link]);
        load.friction = Friction(model, link, point.velocity);
        if (!rules.Has(Deviation::FrictionArm))
            load.external_moment += Cross(point.position - motion.cg(link).position, load.friction);
    }
    return loads;
}

// The common joint of a pair is reached along each link itself: the two ends miss each other by the rounding
// of the angles, and then only these arms do no work in the motion of the pair.
std::optional<JointForces> Solve_Joints(const LinkageModel& model, const LinkAngles& theta,
                                        const RowMotion& motion, const RowLoads& loads, Rules rules) {
    const Vec A = motion.point(0).position, pin = motion.point(3).position;
    const Vec O4 = Local_O4(model), O6 = Local_O6(model);
    const auto line = [&](int link, float length) { return Along(length, theta(link)); };
    const auto of_link = [&](int link, Vec outer) {
        return PairLink(loads(link), motion.cg(link).position, outer);
    };
    JointForces joints;

    const PairLink link5 = of_link(5, pin), link6 = of_link(6, O6);
    const auto F65 = Inner_Force(link5, line(5, model.Link5), link6, line(6, model.Link6));
    if (!F65) return std::nullopt;
    joints.F65 = *F65;
    joints.F54 = joints.F65 - link5.force;
    joints.F16 = link6.force + joints.F65;

    PairLink link3 = of_link(3, A), link4 = of_link(4, O4);
    const Vec taken = Pin_As_Taken(model, theta, motion, rules);
    if (model.LinkageType == "W")
        link4.Add(joints.F54, taken - O4);
    else
        link3.Add(joints.F54, taken - A);
    const auto F43 = Inner_Force(link3, line(3, model.Link3), link4, line(4, model.Link4));
    if (!F43) return std::nullopt;
    joints.F43 = *F43;
    joints.F32 = joints.F43 - link3.force;
    joints.F14 = link4.force + joints.F43;

    const PairLink crank = of_link(2, {});
    joints.F12 = crank.force - joints.F32;
    joints.T12 = crank.moment - Cross(A, joints.F32);
    return joints;
}

Imbalance Imbalance_Of(const LinkageModel& model, const LinkAngles& theta, const RowMotion& motion,
                       const RowLoads& loads, const JointForces& joints, Rules rules) {
    const Vec A = motion.point(0).position, pin = motion.point(3).position;
    Imbalance open;
    const auto joint = [&](int link, double sign, Vec force, Vec at) {
        open.force(link) = open.force(link) + sign * force;
        open.moment(link) += sign * Cross(at - motion.cg(link).position, force);
    };
    joint(2, 1, joints.F12, {});
    joint(2, 1, joints.F32, A);
    joint(3, -1, joints.F32, A);
    joint(3, 1, joints.F43, A + Along(model.Link3, theta(3)));
    joint(4, -1, joints.F43, motion.point(1).position);
    joint(4, 1, joints.F14, Local_O4(model));
    joint(model.LinkageType == "W" ? 4 : 3, 1, joints.F54, Pin_As_Taken(model, theta, motion, rules));
    joint(5, -1, joints.F54, pin);
    joint(5, 1, joints.F65, pin + Along(model.Link5, theta(5)));
    joint(6, -1, joints.F65, motion.point(4).position);
    joint(6, 1, joints.F16, Local_O6(model));
    open.moment(2) += joints.T12;
    for (int link = 2; link <= NumLinks; ++link) {
        open.force(link) = open.force(link) - loads(link).Needed_Force();
        open.moment(link) -= loads(link).Needed_Moment();
        // Joints between two links cancel in the sum over all, where both take them at the same place.
        open.force(0) = open.force(0) + open.force(link);
        open.moment(0) += open.moment(link) + Cross(motion.cg(link).position, open.force(link));
    }
    return open;
}

RowPower Power_Of(const RowMotion& speeds, const RowLoads& loads) {
    RowPower power;
    for (int link = 2; link <= NumLinks; ++link) {
        const LinkLoad& load = loads(link);
        const Vec velocity = speeds.cg(link).velocity;
        const double omega = speeds.link(link).omega;
        for (const double part : {Dot(load.inertia, velocity), load.inertia_torque * omega}) {
            power.kinetic += part;
            power.gross += std::abs(part);
        }
        for (const double part : {Dot(load.external, velocity), Dot(load.friction, velocity),
                                  load.torque * omega, load.external_moment * omega}) {
            power.loads += part;
            power.gross += std::abs(part);
        }
    }
    return power;
}

}  // namespace kervol
