// SPDX-License-Identifier: GPL-3.0-or-later
#include "dynamics/link_data.h"

#include <cmath>

#include "core/arithmetic.h"

namespace kervol {

void Default_Mass_Properties(LinkageModel& model) {
    for (LinkArray* array : {&model.LinkMass, &model.LinkInertia, &model.ForceMag, &model.ForceAngle,
                             &model.ForceX, &model.ForceY, &model.ForcePointDist, &model.ForcePointAngle,
                             &model.LinkTorque, &model.LinkFriction})
        array->Fill(0);
    model.LinkCG.Fill(0);

    model.LinkMass(2) = 0.003F;
    model.LinkMass(3) = 0.01F;
    model.LinkMass(4) = 0.006F;
    model.LinkMass(5) = 0.02F;
    model.LinkMass(6) = 0.01F;
    for (int link = 2; link <= NumLinks; ++link) {
        model.LinkInertia(link) = Single(2.0 * model.LinkMass(link));
        model.LinkCG(link, 0) = Single(model.LinkTable(link) * 0.5);
    }
    model.LinkCG(3, 0) = model.CouplerAC;
    model.LinkCG(3, 1) = model.Delta3;
}

double CG_Angle_Degrees(const LinkageModel& model, int link) {
    return model.LinkCG(link, 1) * DegreesPerRadian;
}

void Set_CG_Angle(LinkageModel& model, int link, double degrees) {
    model.LinkCG(link, 1) = Single(degrees * RadiansPerDegree);
}

void Resolve_External_Force(LinkageModel& model, int link) {
    const double angle = model.ForceAngle(link) * RadiansPerDegree;
    model.ForceX(link) = Single(model.ForceMag(link) * std::cos(angle));
    model.ForceY(link) = Single(model.ForceMag(link) * std::sin(angle));
}

void Resolve_External_Forces(LinkageModel& model) {
    for (int link = 3; link <= NumLinks; ++link) Resolve_External_Force(model, link);
}

}  // namespace kervol
