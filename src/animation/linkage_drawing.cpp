// SPDX-License-Identifier: GPL-3.0-or-later
#include "animation/linkage_drawing.h"

#include <cmath>

#include "animation/frame.h"
#include "core/arithmetic.h"
#include "core/report.h"

namespace kervol {
namespace {

/// One position on its way to the picture.
class PositionDrawing {
  public:
    PositionDrawing(const Program& program, std::int16_t step, Picture& picture, int links)
        : program_(program), step_(step), pen_(picture, program.animation.PlotY0), whole_(links == 6) {
        A_ = Point(0);
        B_ = Point(1);
        C_ = Point(2);
        O4_ = Pivot_O4(program.model);
        if (!whole_) return;
        D_ = Point(3);
        E_ = Point(4);
        F_ = Point(5);
        O6_ = Pivot_O6(program.model);
    }

    void Draw_Stage1() {
        if (Links_Shown()) {
            pen_.Line(O2_, A_, Link_Colour());
            pen_.Line_To(B_, Link_Colour());
            pen_.Line_To(O4_, Link_Colour());
            pen_.Line(A_, C_, Link_Colour());
            pen_.Line_To(B_, Link_Colour());
            pen_.Circle(A_, State().RadiusSmall, Pin_Colour());
            pen_.Circle(B_, State().RadiusSmall, Pin_Colour());
            // Deliberate: under trace C has no pin, unlike F.
            if (!Tracing()) pen_.Circle(C_, State().RadiusCoupler, Pin_Colour());
        }
        if (program_.model.ShowPoints == "Y") Mark_Point(C_);
        if (program_.model.CalcMode == 4) Draw_Cam_Arm();
    }

    void Draw_Stage2() {
        if (Links_Shown()) {
            if (program_.model.LinkageType == "W") Draw_Watt_Bars();
            if (program_.model.LinkageType == "S") Draw_Stephenson_Bars();
            pen_.Line(E_, O6_, Link_Colour());
            pen_.Circle(D_, State().RadiusSmall, Pin_Colour());
            pen_.Circle(E_, State().RadiusSmall, Pin_Colour());
            pen_.Circle(F_, State().RadiusCoupler, Pin_Colour());
        }
        if (program_.model.ShowPoints == "Y") Mark_Point(F_);
    }

    /// Each bar once more as two sides that run through the link's centre of gravity.
    void Draw_Centres_Of_Gravity() {
        const LinkageModel& model = program_.model;
        Draw_Bar_Through(Centre_Of_Gravity(2, 0, {0, 0}), O2_, A_);
        Draw_Bar_Through(Centre_Of_Gravity(4, 2, {model.Link1, 0}), O4_, B_);
        const UserPoint G3 = Centre_Of_Gravity(3, 1, Local(0));
        pen_.Set_Point(A_, Link_Colour());
        Draw_Bar_Through(G3, A_, B_);
        if (model.LinkageType == "W") Draw_Bar_Through(Centre_Of_Gravity(5, 4, Local(3)), D_, E_);
        if (model.LinkageType == "S") Draw_Bar_Through(Centre_Of_Gravity(5, 4, Local(3)), C_, E_);
        Draw_Bar_Through(Centre_Of_Gravity(6, 5, {Single(double(model.Link1) + model.O4O6X), model.O4O6Y}),
                         O6_, E_);
    }

  private:
    const AnimationState& State() const { return program_.animation; }
    Colour Link_Colour() const { return State().LinkColour; }
    bool Links_Shown() const { return program_.model.HideLinks == "N"; }
    bool Tracing() const { return program_.model.ShowTrace != "N"; }
    Colour Pin_Colour() const { return Tracing() ? State().colours.black : State().LinkColour; }
    UserPoint Point(int point) const { return User_Position(program_, step_, point); }
    UserPoint Local(int point) const {
        const auto& position = program_.tables.PointPos(step_, point);
        return {position(0), position(1)};
    }

    void Mark_Point(UserPoint point) {
        pen_.Set_Point(point, Link_Colour());
        pen_.Circle(point, State().RadiusCoupler, State().colours.green);
    }

    void Draw_Cam_Arm() {
        const LinkageModel& model = program_.model;
        const double angle =
            program_.tables.Theta(step_, 0) * RadiansPerDegree + model.DriveDatum * RadiansPerDegree;
        const UserPoint P = To_User_Frame(model, Single(model.DriveArmLength * std::cos(angle)),
                                          Single(model.DriveArmLength * std::sin(angle)));
        pen_.Circle(P, model.CamRollerRadius, Link_Colour());
        pen_.Circle(P, State().RadiusSmall, Link_Colour());
        pen_.Line(O2_, P, Link_Colour());
        pen_.Line_To(A_, Link_Colour());
    }

    void Draw_Watt_Bars() {
        pen_.Line(O4_, D_, Link_Colour());
        pen_.Line_To(B_, Link_Colour());
        pen_.Line(D_, E_, Link_Colour());
        pen_.Line(D_, F_, Link_Colour());
        pen_.Line_To(E_, Link_Colour());
    }

    void Draw_Stephenson_Bars() {
        pen_.Line(C_, F_, Link_Colour());
        pen_.Line(C_, E_, Link_Colour());
        pen_.Line(F_, E_, Link_Colour());
    }

    void Draw_Bar_Through(UserPoint G, UserPoint from, UserPoint to) {
        pen_.Line(from, G, Link_Colour());
        pen_.Line_To(to, Link_Colour());
        pen_.Circle(G, State().RadiusSmall, Link_Colour());
    }

    UserPoint Centre_Of_Gravity(int link, int column, UserPoint start) const {
        const LinkageModel& model = program_.model;
        const double angle = program_.tables.Theta(step_, column) * RadiansPerDegree + model.LinkCG(link, 1) -
                             model.GroundAngle;
        return To_User_Frame(model, Single(start.x + model.LinkCG(link, 0) * std::cos(angle)),
                             Single(start.y + model.LinkCG(link, 0) * std::sin(angle)));
    }

    const Program& program_;
    std::int16_t step_;
    UpwardPen pen_;
    bool whole_;
    UserPoint O2_, A_, B_, C_, O4_, D_, E_, F_, O6_;
};

}  // namespace

void Drawsub6(Program& program, std::int16_t step, Picture& picture, int links) {
    Procedure(program, "Drawsub6", [&] {
        PositionDrawing drawing(program, step, picture, links);
        drawing.Draw_Stage1();
        if (links != 4) drawing.Draw_Stage2();
        if (program.model.DynamicsCalculated) drawing.Draw_Centres_Of_Gravity();
    });
}

}  // namespace kervol
