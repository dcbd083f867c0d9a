// SPDX-License-Identifier: GPL-3.0-or-later
// Positions simple enough to be solved on paper. Links 2 and 4 stand upright, 2 long, on a ground link of 4;
// link 3 lies across them, 4 long: a parallelogram. All numbers are worked out in the comments.
#include "dynamics/dynamics_fixture.h"

namespace kervol {
namespace {

constexpr double kTolerance = 1e-5;

class HandWorked : public DynamicsTest {
  protected:
    void SetUp() override {
        Clear_Link_Data();
        model.NumSteps = 0;
        model.GroundAngle = model.GroundAngleDeg = 0;
        model.Link2 = model.Link4 = 2;
        model.Link3 = 4;
        model.LinkO4D = 1.5F;
        model.Link5 = 5;
        model.Link6 = 3;
        model.CouplerAC = 1;
        model.Delta3 = 0;
        tables.Omega(0).Fill(0);
        tables.Alpha(0).Fill(0);
        tables.PointVel(0).Fill(0);
        tables.PointAcc(0).Fill(0);
    }

    /// Watt: the input line of Stage 2 upright, link 5 level, link 6 upright.
    void Put_Watt() {
        model.LinkageType = "W";
        Put_Angles(0, {90, 0, 90, 90, 0, 90});
    }

    /// Stephenson: link 5 upright on link 3, link 6 level.
    void Put_Stephenson() {
        model.LinkageType = "S";
        Put_Angles(0, {90, 0, 90, 0, 90, 0});
    }

    void Solve() { ASSERT_EQ(Run_Dynamics(*program), 1); }

    void Expect_Torque(int column, double value) const {
        EXPECT_NEAR(tables.TorqueTable(0, column), value, kTolerance) << "column " << column;
    }
    void Expect(Entry entry, double x, double y) const { Expect_Force(entry, x, y, kTolerance); }
};

// Link 4 about O4: 10 + F34 at height 2, which is -2 f for F34 = (f, 0), so f = 5 and F43 = (-5, 0). Link 3
// bears it through: F32 = (-5, 0). Link 2: F12 = (5, 0); about O2: T12 + (0, 2) x (-5, 0) = T12 + 10 = 0.
// Link 4 along x: 5 + F14 = 0.
TEST_F(HandWorked, Stage1BalancesATorqueOnItsRocker) {
    Put_Watt();
    model.LinkTorque(4) = 10;
    Solve();
    Expect(F43, -5, 0);
    Expect(F32, -5, 0);
    Expect(F12, 5, 0);
    Expect(F14, -5, 0);
    Expect(Shaking, 0, 0);
    for (const Entry none : {F54, F65, F16, Inertia2, Inertia3, Inertia4, Inertia5, Inertia6})
        Expect(none, 0, 0);
    Expect_Torque(0, -10);
    Expect_Torque(3, 10);
    Expect_Torque(2, 10);
    for (const int none : {1, 4, 5}) Expect_Torque(none, 0);
}

// The crank turns with 10 rad/s: A accelerates with 2 x 100 downward and link 3 moves along. Link 3, mass 0.5
// with its centre in the middle: (0, -100) in all, half at each pin, F43 = (0, -50), F32 = (0, 50). Link 2,
// mass 0.2 at height 1: (0, -20) = F12 + F32. Link 4, mass 0.3 at height 1: (0, -30) = F14 - F43. No force
// has a moment about O2 or O4.
TEST_F(HandWorked, Stage1BearsItsInertia) {
    Put_Watt();
    model.LinkMass(2) = 0.2F;
    model.LinkMass(3) = 0.5F;
    model.LinkMass(4) = 0.3F;
    model.LinkInertia(3) = 7;
    model.LinkCG(2, 0) = model.LinkCG(4, 0) = 1;
    model.LinkCG(3, 0) = 2;
    tables.Omega(0, 0) = tables.Omega(0, 2) = 10;
    tables.PointVel(0, 0, 0) = -20;
    tables.PointAcc(0, 0, 1) = -200;
    Solve();
    Expect(Inertia2, 0, 20);
    Expect(Inertia3, 0, 100);
    Expect(Inertia4, 0, 30);
    Expect(F43, 0, -50);
    Expect(F32, 0, 50);
    Expect(F12, 0, -70);
    Expect(F14, 0, -80);
    Expect(Shaking, 0, 150);
    Expect_Torque(0, 0);
    EXPECT_NEAR(tables.PointVel(0, 6, 0), -10, kTolerance);
    EXPECT_NEAR(tables.PointVel(0, 7, 0), -20, kTolerance);
    EXPECT_NEAR(tables.PointVel(0, 8, 0), -10, kTolerance);
    EXPECT_NEAR(tables.PointAcc(0, 6, 1), -100, kTolerance);
    EXPECT_NEAR(tables.PointAcc(0, 7, 1), -200, kTolerance);
    EXPECT_NEAR(tables.PointAcc(0, 8, 1), -100, kTolerance);
}

// Links 2 and 4 alone gain speed with 5 rad/s^2: moments of inertia 3 and 4 about centres in the pivots take
// 15 and 20. That of link 4 comes over link 3 at height 2: F34 = (-10, 0), F43 = (10, 0); T12 = 15 + 20.
TEST_F(HandWorked, TheDrivingTorqueSpeedsUpTheLinks) {
    Put_Watt();
    model.LinkInertia(2) = 3;
    model.LinkInertia(4) = 4;
    tables.Alpha(0, 0) = tables.Alpha(0, 2) = 5;
    Solve();
    Expect(F43, 10, 0);
    Expect_Torque(0, 35);
    Expect_Torque(2, -20);
}

// The force (0, -12) stands 3 from the centre of gravity of link 3, which lies at A. About A: 4 F43y = 36.
// Link 2 then carries -F32y = 3 and link 4 the other 9; nothing turns the crank.
TEST_F(HandWorked, AnExternalForceActsAtItsPoint) {
    Put_Watt();
    model.ForceMag(3) = 12;
    model.ForceAngle(3) = -90;
    model.ForcePointDist(3) = 3;
    Solve();
    Expect(F43, 0, 9);
    Expect(F32, 0, -3);
    Expect(F12, 0, 3);
    Expect(F14, 0, 9);
    Expect_Torque(0, 0);
    Expect_Torque(1, -36);
}

TEST_F(HandWorked, ANegativeForceIsReversed) {
    Put_Watt();
    model.ForceMag(3) = -12;
    model.ForceAngle(3) = 90;
    model.ForcePointDist(3) = 3;
    Solve();
    Expect(F43, 0, 9);
    Expect(F32, 0, -3);
}

TEST_F(HandWorked, AForceAtTheCentreOfGravityHasNoMoment) {
    Put_Watt();
    model.ForceMag(3) = 12;
    model.ForceAngle(3) = -90;
    model.LinkCG(3, 0) = 3;
    Solve();
    Expect(F43, 0, 9);
    Expect_Torque(1, 0);
}

// The point turns with the link: 30 degrees from link 4, which stands at 90, and 2 away. Its arm is
// (-1, sqrt 3) and the moment of the force (5, 0) is -5 sqrt 3.
TEST_F(HandWorked, TheForcePointTurnsWithItsLinkAndTheForceDoesNot) {
    Put_Watt();
    model.ForceMag(4) = 5;
    model.ForcePointDist(4) = 2;
    model.ForcePointAngle(4) = 30;
    Solve();
    Expect_Torque(2, -8.660254);
}

// The whole linkage stands at 25 degrees. Deliberate: the angle of the force counts from the ground link.
TEST_F(HandWorked, TheAngleOfAForceIsTakenFromTheGroundLink) {
    model.GroundAngleDeg = 25;
    model.GroundAngle = static_cast<float>(25 * RadiansPerDegree);
    Put_Watt();
    model.ForceMag(3) = 12;
    model.ForceAngle(3) = -90;
    model.ForcePointDist(3) = 3;
    Solve();
    Expect(F43, 0, 9);
    Expect(F32, 0, -3);
}

// Link 6 about O6: 3 + F56 at height 3, so F56 = (1, 0) and F65 = (-1, 0) = F54. On link 4 it acts at height
// 3, the length of link 6, though D is at 1.5: (0, 3) x (-1, 0) = 3, F43 = (-1.5, 0) and T12 = -3.
TEST_F(HandWorked, TheArmToDIsAsLongAsLink6) {
    Put_Watt();
    model.LinkTorque(6) = 3;
    Solve();
    Expect(F65, -1, 0);
    Expect(F54, -1, 0);
    Expect(F16, -1, 0);
    Expect(F43, -1.5, 0);
    Expect(F14, -0.5, 0);
    Expect_Torque(0, -3);
    Expect_Torque(5, 3);
}

// Link 6 lies along x: 3 + 3 F56y = 0, F65 = (0, 1) = F54, which acts on link 3 at C, 1 from A along the
// link. About A: 4 F43y + 1 = 0. Link 3 along y: -F32y - 0.25 + 1 = 0. The offset of C by 90 degrees would
// leave it no arm.
TEST_F(HandWorked, TheArmToCLiesAlongLink3) {
    Put_Stephenson();
    model.Delta3 = static_cast<float>(90 * RadiansPerDegree);
    model.Delta3Deg = 90;
    model.LinkTorque(6) = 3;
    Solve();
    Expect(F65, 0, 1);
    Expect(F54, 0, 1);
    Expect(F43, 0, -0.25);
    Expect(F32, 0, 0.75);
    Expect(F14, 0, -0.25);
    Expect(F12, 0, -0.75);
    Expect(F16, 0, 1);
    Expect_Torque(0, 0);
}

// Coupler point 1 moves along (3, 4): friction of 10 is (-6, -8) at the centre of gravity, in the middle of
// link 3. Half of the 8 goes to each pin: F43y = 4, F32y = -4. Along x link 4,
// upright and free to turn, bears none of the 6: F32x = -6 and T12 = -(0, 2) x (-6, -4) = -12.
TEST_F(HandWorked, FrictionActsAgainstTheVelocityWithoutAMoment) {
    Put_Watt();
    model.LinkFriction(3) = 10;
    model.LinkCG(3, 0) = 2;
    tables.PointVel(0, 2, 0) = 3;
    tables.PointVel(0, 2, 1) = 4;
    Solve();
    Expect(F43, 0, 4);
    Expect(F32, -6, -4);
    Expect(F12, 6, 4);
    Expect_Torque(0, -12);
    Expect_Torque(1, 0);
}

// At rest the friction of link 5 points along 180 degrees: (-2, 0). Link 6, upright and free to turn, bears
// none of it, so F54 = (-2, 0), at height 3 of link 4: a moment of 6. F34 = (3, 0) balances it at height 2;
// F32 = F43 = (-3, 0) and T12 = -(0, 2) x (-3, 0) = -6.
TEST_F(HandWorked, FrictionOfAPointAtRestPointsBackward) {
    Put_Watt();
    model.LinkFriction(5) = 2;
    Solve();
    Expect(F65, 0, 0);
    Expect(F54, -2, 0);
    Expect(F43, -3, 0);
    Expect_Torque(0, -6);
    Expect_Torque(4, 0);
}

// Link 5 does not turn, so its mass counts for nothing, whatever the acceleration of its pin.
TEST_F(HandWorked, TheMassOfLink5ActsOnlyThroughItsRotation) {
    Put_Watt();
    model.LinkMass(5) = 4;
    model.LinkCG(5, 0) = 2;
    tables.PointAcc(0, 3, 0) = 50;
    tables.PointAcc(0, 3, 1) = -70;
    Solve();
    Expect(Inertia5, 0, 0);
    Expect(F54, 0, 0);
    // Turning with 3 rad/s and -1 rad/s^2 at 2 along x: 4 (-2 x 9, -2 x 1).
    tables.Omega(0, 3) = 3;
    tables.Alpha(0, 3) = -1;
    Solve();
    Expect(Inertia5, 72, 8);
    EXPECT_NEAR(tables.PointVel(0, 9, 1), 6, kTolerance);
}

}  // namespace
}  // namespace kervol
