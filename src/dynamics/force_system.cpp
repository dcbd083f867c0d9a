// SPDX-License-Identifier: GPL-3.0-or-later
#include "dynamics/force_system.h"

#include "core/model_questions.h"

namespace kervol {
namespace {

/// Row of a link's force along x; that along y and the moment follow.
constexpr int First_Row(int link) {
    return 3 * (link - 2) + 1;
}

/// From the centre of gravity to the pivot from which the link is measured.
Vec To_Pivot(const MovingLink& link) {
    const Vec cg = link.CG_Arm();
    return Single_Vec(-cg.x, -cg.y);
}

/// From the centre of gravity to the point at that length from the pivot.
Vec To_Point(const MovingLink& link, float length, Direction direction) {
    const Vec cg = link.CG_Arm();
    return Single_Vec(length * direction.cos - cg.x, length * direction.sin - cg.y);
}

Vec To_End(const MovingLink& link, float length) {
    return To_Point(link, length, link.line);
}

/// Puts a joint force into the equations of a link on which it acts at `arm`, reversed for `sign` -1.
void Put_Joint(SystemMatrix& A, int column, int link, double sign, Vec arm) {
    const int row = First_Row(link);
    A(row, column) = sign;
    A(row + 1, column + 1) = sign;
    A(row + 2, column) = -sign * arm.y;
    A(row + 2, column + 1) = sign * arm.x;
}

void Put_Coefficients(const LinkageModel& model, const LinkMotion& motion, SystemMatrix& A) {
    if (!Has_Stage2(model)) return;
    const bool watt = model.LinkageType == "W";
    const auto& link = motion.link;
    Put_Joint(A, unknown::F12, 2, 1, To_Pivot(link(2)));
    Put_Joint(A, unknown::F32, 2, 1, To_End(link(2), model.Link2));
    Put_Joint(A, unknown::F32, 3, -1, To_Pivot(link(3)));
    Put_Joint(A, unknown::F43, 3, 1, To_End(link(3), model.Link3));
    Put_Joint(A, unknown::F43, 4, -1, To_End(link(4), model.Link4));
    Put_Joint(A, unknown::F14, 4, 1, To_Pivot(link(4)));
    A(First_Row(2) + 2, unknown::T12) = 1;
    if (watt)
        Put_Joint(A, unknown::F54, 4, 1, To_Point(link(4), model.Link6, motion.stage2_input));
    else
        Put_Joint(A, unknown::F54, 3, 1, To_End(link(3), model.CouplerAC));
    Put_Joint(A, unknown::F54, 5, -1, To_Pivot(link(5)));
    Put_Joint(A, unknown::F65, 5, 1, To_End(link(5), model.Link5));
    Put_Joint(A, unknown::F65, 6, -1, To_End(link(6), model.Link6));
    Put_Joint(A, unknown::F16, 6, 1, To_Pivot(link(6)));
}

void Put_Right_Hand_Side(const StepLoads& loads, SystemVector& B) {
    for (int link = 2; link <= NumLinks; ++link) {
        const LinkLoads& load = loads(link);
        const int row = First_Row(link);
        B(row) = load.inertia_force.x - load.external_force.x - load.friction_force.x;
        B(row + 1) = load.inertia_force.y - load.external_force.y - load.friction_force.y;
        B(row + 2) = double(load.inertia_torque) - load.external_torque - load.moment;
    }
}

}  // namespace

void Form_Force_System(const LinkageModel& model, const LinkMotion& motion, const StepLoads& loads,
                       ForceSystem& system) {
    Put_Right_Hand_Side(loads, system.VectorB);
    Put_Coefficients(model, motion, system.MatrixA);
}

}  // namespace kervol
