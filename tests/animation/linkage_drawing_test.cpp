// SPDX-License-Identifier: GPL-3.0-or-later
// The bars, pins and marks of one position, in the order in which they are drawn.
#include "animation/animation_fixture.h"

namespace kervol {
namespace {

/// One made-up position at row 0. Local (x, y) stands at (x, 10 - y) of the picture.
class LinkageDrawing : public AnimationTest {
  protected:
    LinkageDrawing() {
        Put_Pivots(6, 11, -1);
        Put_Point(0, 0, 1, 2);
        Put_Point(0, 1, 5, 3);
        Put_Point(0, 2, 2, 6);
        Put_Point(0, 3, 8, 2);
        Put_Point(0, 4, 10, 4);
        Put_Point(0, 5, 9, 7);
    }

    void Draw(int links = 6) { Drawsub6(*program, 0, picture, links); }

    std::vector<Drawn> Stage1_Bars() const {
        return Joined({Chain({O2, A, B, O4}, kMagenta), Chain({A, C, B}, kMagenta)});
    }
    std::vector<Drawn> Watt_Bars() const {
        return Joined({Chain({O4, D, B}, kMagenta), Chain({D, E}, kMagenta), Chain({D, F, E}, kMagenta),
                       Chain({E, O6}, kMagenta)});
    }
    std::vector<Drawn> Stephenson_Bars() const {
        return Joined({Chain({C, F}, kMagenta), Chain({C, E}, kMagenta), Chain({F, E}, kMagenta),
                       Chain({E, O6}, kMagenta)});
    }
    std::vector<Drawn> Stage1_Pins() const {
        return {Circle(A, kSmall, kMagenta), Circle(B, kSmall, kMagenta), Circle(C, kCoupler, kMagenta)};
    }
    std::vector<Drawn> Stage2_Pins(Colour colour = kMagenta) const {
        return {Circle(D, kSmall, colour), Circle(E, kSmall, colour), Circle(F, kCoupler, colour)};
    }
    std::vector<Drawn> Mark(At point) const {
        return {Dot(point, kMagenta), Circle(point, kCoupler, kGreen)};
    }

    At O2{0, 10}, A{1, 8}, B{5, 7}, C{2, 4}, O4{6, 10}, D{8, 8}, E{10, 6}, F{9, 3}, O6{11, 11};
};

TEST_F(LinkageDrawing, OfAWattChainHangsStage2OnLink4) {
    model.LinkageType = "W";
    Draw();
    Expect_Drawn(Joined({Stage1_Bars(), Stage1_Pins(), Watt_Bars(), Stage2_Pins()}));
}

TEST_F(LinkageDrawing, OfAStephensonChainHangsStage2OnLink3AndDrawsNoArmO4D) {
    model.LinkageType = "S";
    Draw();
    Expect_Drawn(Joined({Stage1_Bars(), Stage1_Pins(), Stephenson_Bars(), Stage2_Pins()}));
}

TEST_F(LinkageDrawing, OfAnUnknownChainHasOfStage2OnlyTheLastBarAndThePins) {
    model.LinkageType = "?";
    Draw();
    Expect_Drawn(Joined({Stage1_Bars(), Stage1_Pins(), Chain({E, O6}, kMagenta), Stage2_Pins()}));
}

TEST_F(LinkageDrawing, OfFourLinksIsStage1Alone) {
    model.ShowPoints = "Y";
    for (const char* chain : {"W", "S"}) {
        model.LinkageType = chain;
        Draw(4);
        Expect_Drawn(Joined({Stage1_Bars(), Stage1_Pins(), Mark(C)}));
    }
}

TEST_F(LinkageDrawing, UsesTheColourOfThePass) {
    program->animation.LinkColour = kWhite;
    model.ShowPoints = "Y";
    Draw();
    for (const Drawn& drawn : picture.drawn) EXPECT_TRUE(drawn.colour == kWhite || drawn.colour == kGreen);
    EXPECT_EQ(picture.drawn.size(), 5U + 3 + 2 + 6 + 3 + 2);
}

TEST_F(LinkageDrawing, TurnsAllButO2WithTheGround) {
    Turn_Ground(90);
    // A quarter turn makes (x, y) to (-y, x), which stands at (-y, 10 - x) of the picture.
    A = {-2, 9}, B = {-3, 5}, C = {-6, 8}, O4 = {0, 4}, D = {-2, 2}, E = {-4, 0}, F = {-7, 1}, O6 = {1, -1};
    model.LinkageType = "W";
    model.ShowPoints = "Y";
    Draw();
    Expect_Drawn(Joined({Stage1_Bars(), Stage1_Pins(), Mark(C), Watt_Bars(), Stage2_Pins(), Mark(F)}),
                 kTurned);
    model.LinkageType = "S";
    Draw();
    Expect_Drawn(Joined({Stage1_Bars(), Stage1_Pins(), Mark(C), Stephenson_Bars(), Stage2_Pins(), Mark(F)}),
                 kTurned);
}

TEST_F(LinkageDrawing, MarksBothCouplerPointsEachBehindItsStage) {
    model.LinkageType = "S";
    model.ShowPoints = "Y";
    Draw();
    Expect_Drawn(Joined({Stage1_Bars(), Stage1_Pins(), Mark(C), Stephenson_Bars(), Stage2_Pins(), Mark(F)}));
}

TEST_F(LinkageDrawing, UnderTraceHasBlackPinsAndNoneAtC) {
    model.LinkageType = "W";
    // A model that was never animated holds an empty text.
    for (const char* trace : {"Y", ""}) {
        model.ShowTrace = trace;
        Draw();
        Expect_Drawn(Joined({Stage1_Bars(),
                             {Circle(A, kSmall, kBlack), Circle(B, kSmall, kBlack)},
                             Watt_Bars(),
                             Stage2_Pins(kBlack)}));
    }
}

TEST_F(LinkageDrawing, UnderTraceMarksPointsAsWithoutIt) {
    model.ShowTrace = "Y";
    model.ShowPoints = "Y";
    Draw(4);
    Expect_Drawn(Joined({Stage1_Bars(), {Circle(A, kSmall, kBlack), Circle(B, kSmall, kBlack)}, Mark(C)}));
}

TEST_F(LinkageDrawing, WithHiddenLinksAndPointsIsEmpty) {
    // A model that was never animated holds an empty text.
    for (const char* hide : {"Y", ""}) {
        model.HideLinks = hide;
        Draw();
        Expect_Drawn({});
    }
}

TEST_F(LinkageDrawing, WithHiddenLinksMarksPointsAllTheSame) {
    model.HideLinks = "Y";
    model.ShowPoints = "Y";
    for (const char* trace : {"N", "Y"}) {
        model.ShowTrace = trace;
        Draw();
        Expect_Drawn(Joined({Mark(C), Mark(F)}));
    }
}

TEST_F(LinkageDrawing, ShowsTheRowOfItsStep) {
    for (int point = 0; point <= 5; ++point) Put_Point(1, point, 4, 4);
    model.HideLinks = "Y";
    model.ShowPoints = "Y";
    Drawsub6(*program, 1, picture, 6);
    Expect_Drawn(Joined({Mark({4, 6}), Mark({4, 6})}));
}

TEST_F(LinkageDrawing, BeyondTheTablesIsAFaultAndDrawsNothing) {
    Drawsub6(*program, 1025, picture, 6);
    Expect_Fault(9, "Drawsub6");
    Drawsub6(*program, -1, picture, 6);
    Expect_Fault(9, "Drawsub6");
    Expect_Drawn({});
}

/// The driving arm of a cam drive, 3 long at 30 + 60 degrees, with a roller of 1.5.
class CamArm : public LinkageDrawing {
  protected:
    CamArm() {
        model.CalcMode = 4;
        tables.Theta(0, 0) = 30;
        model.DriveDatum = 60;
        model.DriveArmLength = 3;
        model.CamRollerRadius = 1.5;
    }

    std::vector<Drawn> Arm() const {
        return Joined({{Circle(P, 1.5, kMagenta), Circle(P, kSmall, kMagenta)}, Chain({O2, P, A}, kMagenta)});
    }

    At P{0, 7};
};

TEST_F(CamArm, StandsBetweenTheStages) {
    model.LinkageType = "W";
    model.ShowPoints = "Y";
    Draw();
    Expect_Drawn(Joined({Stage1_Bars(), Stage1_Pins(), Mark(C), Arm(), Watt_Bars(), Stage2_Pins(), Mark(F)}),
                 kTurned);
}

TEST_F(CamArm, TurnsWithTheGroundAndKeepsItsColourUnderTrace) {
    Turn_Ground(90);
    model.ShowTrace = "Y";
    model.HideLinks = "Y";
    P = {-3, 10};
    A = {-2, 9};
    Draw();
    Expect_Drawn(Arm(), kTurned);
}

TEST_F(CamArm, IsNotHiddenWithTheLinks) {
    model.HideLinks = "Y";
    Draw();
    Expect_Drawn(Arm(), kTurned);
}

TEST_F(CamArm, BelongsToNoOtherMode) {
    model.HideLinks = "Y";
    for (const std::int16_t mode : Modes{1, 2, 3, 5}) {
        model.CalcMode = mode;
        Draw();
        Expect_Drawn({});
    }
}

/// Links whose directions are quarter turns, with centres of gravity off their lines.
class CentresOfGravity : public LinkageDrawing {
  protected:
    CentresOfGravity() {
        model.DynamicsCalculated = true;
        model.HideLinks = "Y";
        Put_Angles(0);
        Put_Centre(2, 2, Pi / 2);
        Put_Centre(3, 0.5, 0);
        Put_Centre(4, 3, 0);
        Put_Centre(5, 1, -Pi);
        Put_Centre(6, 2, Pi / 2);
    }

    /// Directions of the links in the user frame.
    void Put_Angles(float ground) {
        tables.Theta(0, 0) = 0 + ground;
        tables.Theta(0, 1) = 180 + ground;
        tables.Theta(0, 2) = 90 + ground;
        tables.Theta(0, 4) = 90 + ground;
        tables.Theta(0, 5) = 0 + ground;
    }
    void Put_Centre(int link, double distance, double angle) {
        model.LinkCG(link, 0) = static_cast<float>(distance);
        model.LinkCG(link, 1) = static_cast<float>(angle);
    }

    std::vector<Drawn> Through(At from, At G, At to) const {
        return Joined({Chain({from, G, to}, kMagenta), {Circle(G, kSmall, kMagenta)}});
    }
    std::vector<Drawn> Figure(At start_of_bar5) const {
        return Joined({Through(O2, G2, A),
                       Through(O4, G4, B),
                       {Dot(A, kMagenta)},
                       Through(A, G3, B),
                       Through(start_of_bar5, G5, E),
                       Through(O6, G6, E)});
    }

    // O2 + (0, 2); A + (-0.5, 0); O4 + (0, 3); D + (0, -1); O6 + (0, 2), as they stand on the picture.
    At G2{0, 8}, G3{0.5, 8}, G4{6, 7}, G5{8, 9}, G6{11, 9};
};

TEST_F(CentresOfGravity, LieOnBarsDrawnThroughThem) {
    model.LinkageType = "W";
    Draw();
    Expect_Drawn(Figure(D), kTurned);
}

TEST_F(CentresOfGravity, OfAStephensonChainAreReachedFromCInLink5) {
    model.LinkageType = "S";
    Draw();
    // The centre itself counts from the tabulated point 3, which this chain's rows hold equal to C.
    Expect_Drawn(Figure(C), kTurned);
}

TEST_F(CentresOfGravity, TurnWithTheGround) {
    Turn_Ground(90);
    Put_Angles(90);
    A = {-2, 9}, B = {-3, 5}, C = {-6, 8}, O4 = {0, 4}, D = {-2, 2}, E = {-4, 0}, F = {-7, 1}, O6 = {1, -1};
    // Locally (0, 2), (0.5, 2), (6, 3), (8, 1), (11, 1).
    G2 = {-2, 10}, G3 = {-2, 9.5}, G4 = {-3, 4}, G5 = {-1, 2}, G6 = {-1, -1};
    model.LinkageType = "W";
    Draw();
    Expect_Drawn(Figure(D), kTurned);
}

TEST_F(CentresOfGravity, StandBehindTheBarsAndMarks) {
    model.LinkageType = "W";
    model.HideLinks = "N";
    model.ShowPoints = "Y";
    Draw();
    Expect_Drawn(
        Joined({Stage1_Bars(), Stage1_Pins(), Mark(C), Watt_Bars(), Stage2_Pins(), Mark(F), Figure(D)}),
        kTurned);
}

TEST_F(CentresOfGravity, DisappearUntilTheDynamicsAreSolvedAgain) {
    model.DynamicsCalculated = false;
    Draw();
    Expect_Drawn({});
}

}  // namespace
}  // namespace kervol
