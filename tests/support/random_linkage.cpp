// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/random_linkage.h"

#include <algorithm>

#include "core/geometry.h"
#include "core/mathematics.h"
#include "kinematics/sweep.h"

namespace kervol {

void Place_Pivots(LinkageModel& model, float O4X, float O4Y, float O6X, float O6Y) {
    model.O4X = O4X;
    model.O4Y = O4Y;
    model.O6X = O6X;
    model.O6Y = O6Y;
    Cart_to_Polar(O4X, O4Y, model.Link1, model.GroundAngleDeg);
    model.GroundAngle = static_cast<float>(model.GroundAngleDeg * RadiansPerDegree);
    Rotate(O4X, O4Y, model.GroundAngleDeg, -1, model.O4LocalX, model.O4LocalY);
    Rotate(O6X, O6Y, model.GroundAngleDeg, -1, model.O6LocalX, model.O6LocalY);
    Derive_Geometry(model);
}

void RandomLinkages::Next(LinkageModel& model, std::string_view chain) {
    model.LinkageType = chain;
    for (float* length : {&model.Link2, &model.Link3, &model.Link4, &model.LinkO4D, &model.Link5,
                          &model.Link6, &model.CouplerAC, &model.Coupler2Length})
        *length = Between(0.5F, 10);
    // A short crank turns fully more often, so that all directions of the crank are met.
    if (Sign() > 0) model.Link2 = Between(0.5F, 2);
    Set_Angle(Between(-180, 180), model.Delta3, model.Delta3Text);
    Set_Angle(Between(-180, 180), model.Delta4, model.Delta4Text);
    Set_Angle(Between(-180, 180), model.Delta5, model.Delta5Text);

    const bool level = Below(4) == 0;
    const float O4Y = level ? 0 : Between(-8, 8);
    const float O4X = level ? Between(1, 10) : Between(-8, 8);
    const float O6X = Between(-10, 10);
    const float O6Y = Between(-10, 10);
    Place_Pivots(model, O4X, O4Y, O6X, O6Y);

    model.OpenCross1 = Sign() < 0 ? 1 : 2;
    model.OpenCross2 = Sign() < 0 ? 1 : 2;
    Set_Open_Signs(model);
    model.Omega2 = Between(0.5F, 20);
    if (Sign() < 0) model.Omega2 = -model.Omega2;
    model.Alpha2 = Between(-50, 50);
}

float RandomLinkages::Between(float low, float high) {
    // Not a distribution of the library: those differ between implementations.
    const double share = static_cast<double>(source_()) / 4294967296.0;
    return static_cast<float>(low + share * (double(high) - low));
}

std::int16_t RandomLinkages::Sign() {
    return (source_() & 0x10000U) != 0 ? 1 : -1;
}

float Longest_Link(const LinkageModel& model) {
    const bool watt = model.LinkageType == "W";
    return std::max({model.Link1, model.Link2, model.Link3, model.Link4, model.Link5, model.Link6,
                     watt ? model.LinkO4D : model.CouplerAC, watt ? model.O4O6Length : model.O2O6Length});
}

}  // namespace kervol
