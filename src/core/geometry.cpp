// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/geometry.h"

#include "core/arithmetic.h"
#include "core/mathematics.h"
#include "core/number_text.h"
#include "core/report.h"

namespace kervol {

void Set_Angle(float degrees, float& radians, std::string& text) {
    radians = Single(degrees * RadiansPerDegree);
    text = Plain_Number(degrees);
}

void Set_Offset_Angles(LinkageModel& model) {
    Set_Angle(model.Delta3Deg, model.Delta3, model.Delta3Text);
    Set_Angle(model.Delta4Deg, model.Delta4, model.Delta4Text);
    Set_Angle(model.Delta5Deg, model.Delta5, model.Delta5Text);
}

void Set_Range_Angles(LinkageModel& model) {
    Set_Angle(model.ThetaMinDeg, model.ThetaMin, model.ThetaMinText);
    Set_Angle(model.ThetaMaxDeg, model.ThetaMax, model.ThetaMaxText);
    Set_Angle(model.ThetaStepDeg, model.ThetaStep, model.ThetaStepText);
}

void Derive_Ground_Link(LinkageModel& model) {
    Cart_to_Polar(model.O4X, model.O4Y, model.Link1, model.GroundAngleDeg);
    model.GroundAngle = Single(model.GroundAngleDeg * RadiansPerDegree);
}

void Derive_Local_O4(LinkageModel& model) {
    Rotate(model.O4X, model.O4Y, model.GroundAngleDeg, -1, model.O4LocalX, model.O4LocalY);
}

void Derive_Local_O6(LinkageModel& model) {
    Rotate(model.O6X, model.O6Y, model.GroundAngleDeg, -1, model.O6LocalX, model.O6LocalY);
}

void Derive_Direction_O6_O4(LinkageModel& model) {
    float length;
    Cart_to_Polar(Single(double(model.O4X) - model.O6X), Single(double(model.O4Y) - model.O6Y), length,
                  model.O6O4AngleDeg);
    model.O6O4Angle = Single(model.O6O4AngleDeg * RadiansPerDegree);
}

void Derive_Geometry(LinkageModel& model) {
    model.O4O6X = Single(double(model.O6LocalX) - model.O4LocalX);
    model.O4O6Y = Single(double(model.O6LocalY) - model.O4LocalY);
    Cart_to_Polar(model.O4O6X, model.O4O6Y, model.O4O6Length, model.O4O6AngleDeg);
    model.O4O6Angle = Single(model.O4O6AngleDeg * RadiansPerDegree);
    Cart_to_Polar(model.O6LocalX, model.O6LocalY, model.O2O6Length, model.O2O6AngleDeg);
    model.O2O6Angle = Single(model.O2O6AngleDeg * RadiansPerDegree);

    const float lengths[] = {model.CouplerAC, model.Link1, model.Link2,   model.Link3,     model.Link4,
                             model.Link5,     model.Link6, model.LinkO4D, model.O2O6Length};
    int i = 0;
    for (const float length : lengths) model.LinkTable(i++) = length;
}

void Derive_Geometry(Program& program) {
    Procedure(program, "Derive_Geometry", [&] { Derive_Geometry(program.model); });
}

}  // namespace kervol
