// SPDX-License-Identifier: GPL-3.0-or-later
// What must hold for the forces of every linkage: equilibrium, the balance of power, superposition, and the
// sums that the tables promise.
#include <algorithm>
#include <cmath>
#include <complex>

#include "dynamics/dynamics_fixture.h"
#include "dynamics/reference_forces.h"

namespace kervol {
namespace {

using Complex = std::complex<double>;

constexpr int kPositions = 2000;

class ForceLaws : public DynamicsTest, public ::testing::WithParamInterface<const char*> {
  protected:
    double Local(int column) const { return tables.Theta(0, column) * RadiansPerDegree - model.GroundAngle; }
    bool Near_Toggle() const {
        return std::min(std::abs(std::sin(Local(1) - Local(2))), std::abs(std::sin(Local(4) - Local(5)))) <
               0.1;
    }

    /// A random loaded position away from a toggle, where no force is much larger than the loads.
    void Put_Moderate_Position(RandomLinkages& random) {
        do Put_Random_Position(random, GetParam());
        while (Near_Toggle());
        while (Boxes_Left() > 0) Take_Box();
    }

    double Force(int entry, int part) const { return tables.ForceTable(0, entry, part); }
};

/// Row i of A x - B, and the largest term that goes into it.
struct Residual {
    double error, largest;
};
Residual Put_Back(const ReferenceForces& system, const SystemVector& x, int i) {
    Residual residual = {-system.B[i], std::abs(system.B[i])};
    for (int j = 1; j <= 15; ++j) {
        const double term = system.A[i][j] * x(j);
        residual.error += term;
        residual.largest = std::max(residual.largest, std::abs(term));
    }
    return residual;
}

TEST_P(ForceLaws, TheSolutionPutBackIntoTheFifteenEquationsLeavesNothing) {
    RandomLinkages random(60221);
    for (int position = 0; position < kPositions && !HasFailure(); ++position) {
        SCOPED_TRACE("position " + std::to_string(position));
        Put_Random_Position(random, GetParam());
        while (Boxes_Left() > 0) Take_Box();
        StepEquations equations = Form_Step_Equations(model, tables, 0);
        const ReferenceForces system = Forces_By_Formulas(model, tables, 0);
        auto& [A, B] = equations.system;
        std::int16_t error = -1;
        SimQ(port, NumEquations, A, B, error);
        ASSERT_EQ(error, 0);
        double largest = 0;
        for (int i = 1; i <= 15; ++i) largest = std::max(largest, Put_Back(system, B, i).largest);
        for (int i = 1; i <= 15; ++i)
            EXPECT_LE(std::abs(Put_Back(system, B, i).error), 1e-10 * largest) << "equation " << i;
    }
}

/// Velocities that the joints allow for a crank turned with 1 rad/s, from angles and lengths alone.
struct VirtualMotion {
    double omega[7] = {};
    Complex cg[7];
};

/// Turns of two arms whose ends close on a given velocity: a p - b q = v.
void Close(Complex p, Complex q, Complex v, double& a, double& b) {
    const double determinant = std::imag(std::conj(q) * p);
    a = std::imag(std::conj(q) * v) / determinant;
    b = std::imag(std::conj(p) * v) / determinant;
}

class BalanceOfPower : public ForceLaws {
  protected:
    Complex Arm(double length, int column, double offset = 0) const {
        return std::polar(length, Local(column) + offset);
    }
    Complex CG_Arm(int link) const {
        constexpr int column[] = {0, 0, 0, 1, 2, 4, 5};
        return Arm(1, column[link], model.LinkCG(link, 1)) * double(model.LinkCG(link, 0));
    }

    VirtualMotion Move() const {
        constexpr Complex i(0, 1);
        VirtualMotion v;
        auto& w = v.omega;
        w[2] = 1;
        const Complex A = i * Arm(model.Link2, 0);
        Close(i * Arm(model.Link3, 1), i * Arm(model.Link4, 2), -A, w[3], w[4]);
        const Complex pin = model.LinkageType == "W" ? w[4] * i * Arm(model.LinkO4D, 3)
                                                     : A + w[3] * i * Arm(model.CouplerAC, 1);
        Close(i * Arm(model.Link5, 4), i * Arm(model.Link6, 5), -pin, w[5], w[6]);
        const Complex start[] = {0, 0, 0, A, 0, pin, 0};
        for (int link = 2; link <= 6; ++link) v.cg[link] = start[link] + w[link] * i * CG_Arm(link);
        return v;
    }

    Complex Friction(int link) const {
        if (link != 3 && link != 5) return 0;
        const int point = link == 3 ? 2 : 5;
        const Complex velocity(tables.PointVel(0, point, 0), tables.PointVel(0, point, 1));
        return -velocity / std::abs(velocity) * double(model.LinkFriction(link));
    }

    /// Power of everything that acts on a link beside joint forces and driving torque; `gross` adds up the
    /// sizes.
    double Power(const VirtualMotion& v, int link, double& gross) const {
        constexpr int column[] = {0, 0, 0, 1, 2, 4, 5};
        const Complex acceleration(tables.PointAcc(0, link + 4, 0), tables.PointAcc(0, link + 4, 1));
        const Complex external =
            std::polar(1.0, model.ForceAngle(link) * RadiansPerDegree) * double(model.ForceMag(link));
        const Complex arm =
            Arm(model.ForcePointDist(link), column[link], model.ForcePointAngle(link) * RadiansPerDegree);
        const Complex force = external + Friction(link) - acceleration * double(model.LinkMass(link));
        const double moment = std::imag(std::conj(arm) * external) + model.LinkTorque(link) -
                              double(model.LinkInertia(link)) * tables.Alpha(0, link - 2);
        const double by_force = std::real(std::conj(v.cg[link]) * force), by_moment = moment * v.omega[link];
        gross += std::abs(by_force) + std::abs(by_moment);
        return by_force + by_moment;
    }
};

// The two shortened arms are made the true ones: D at the length of link 6, C on the line of link 3.
TEST_P(BalanceOfPower, TheDrivingTorqueDoesTheWorkOfAllLoadsAndInertia) {
    RandomLinkages random(66260);
    for (int position = 0; position < kPositions && !HasFailure(); ++position) {
        SCOPED_TRACE("position " + std::to_string(position));
        model.NumSteps = 0;
        do {
            random.Next(model, GetParam());
            model.LinkO4D = model.Link6;
            model.Delta3 = 0;
        } while (!Solve_Position(random) || Near_Toggle());
        while (Boxes_Left() > 0) Take_Box();
        Put_Random_Link_Data(random);
        ASSERT_EQ(Solve_Forces(*program), 1);

        const VirtualMotion motion = Move();
        const double T12 = tables.TorqueTable(0, 0);
        double gross = std::abs(T12);
        double net = T12;
        for (int link = 2; link <= 6; ++link) net += Power(motion, link, gross);
        // Angles are singles, and at the toggles left out they count ten times.
        EXPECT_NEAR(net, 0, 2e-5 * gross);
    }
}

TEST_P(ForceLaws, NoLoadsAndMassesGiveNoForces) {
    RandomLinkages random(13806);
    for (int position = 0; position < 200; ++position) {
        Put_Random_Position(random, GetParam());
        while (Boxes_Left() > 0) Take_Box();
        Clear_Link_Data();
        for (int link = 2; link <= 6; ++link) model.LinkCG(link, 0) = random.Between(0, 5);
        ASSERT_EQ(Run_Dynamics(*program), 1);
        for (const auto& entry : tables.ForceTable(0))
            for (const float value : entry) EXPECT_EQ(value, 0);
        for (const float value : tables.TorqueTable(0)) EXPECT_EQ(value, 0);
    }
}

// Powers of two scale a single exactly, so that even roundings scale.
TEST_P(ForceLaws, FourTimesTheLoadsAndMassesGiveExactlyFourTimesTheForces) {
    RandomLinkages random(16021);
    for (int position = 0; position < 500 && !HasFailure(); ++position) {
        Put_Random_Position(random, GetParam());
        while (Boxes_Left() > 0) Take_Box();
        ASSERT_EQ(Run_Dynamics(*program), 1);
        const auto force = tables.ForceTable(0);
        const auto torque = tables.TorqueTable(0);
        for (LinkArray* load :
             {&model.LinkMass, &model.LinkInertia, &model.ForceMag, &model.LinkTorque, &model.LinkFriction})
            for (int link = 2; link <= 6; ++link) (*load)(link) *= 4;
        ASSERT_EQ(Run_Dynamics(*program), 1);
        for (int entry = 0; entry < 13; ++entry)
            for (int part = 0; part < 2; ++part)
                EXPECT_EQ(tables.ForceTable(0, entry, part), 4 * force(entry, part)) << entry;
        for (int column = 0; column < 7; ++column)
            EXPECT_EQ(tables.TorqueTable(0, column), 4 * torque(column));
    }
}

TEST_P(ForceLaws, ForcesOfLoadsAndOfMassesAddUp) {
    RandomLinkages random(29979);
    for (int position = 0; position < 500 && !HasFailure(); ++position) {
        Put_Moderate_Position(random);
        ASSERT_EQ(Run_Dynamics(*program), 1);
        const auto force = tables.ForceTable(0);
        const auto torque = tables.TorqueTable(0);
        const LinkArray mass = model.LinkMass, inertia = model.LinkInertia;
        model.LinkMass.Fill(0);
        model.LinkInertia.Fill(0);
        ASSERT_EQ(Run_Dynamics(*program), 1);
        auto sum = tables.ForceTable(0);
        auto torques = tables.TorqueTable(0);
        const auto LinkCG = model.LinkCG;
        Clear_Link_Data();
        model.LinkMass = mass;
        model.LinkInertia = inertia;
        model.LinkCG = LinkCG;
        ASSERT_EQ(Run_Dynamics(*program), 1);
        double largest = 1;
        for (const auto& table : {force, sum, tables.ForceTable(0)})
            for (const auto& entry : table)
                for (const float value : entry) largest = std::max(largest, std::abs(double(value)));
        // Loads are rounded to singles each for itself, of which ten times stands in a force near a toggle.
        const double tolerance = 1e-5 * largest;
        for (int entry = 0; entry < 13; ++entry)
            for (int part = 0; part < 2; ++part)
                EXPECT_NEAR(force(entry, part), double(sum(entry, part)) + Force(entry, part), tolerance);
        for (int column = 0; column < 6; ++column)
            EXPECT_NEAR(torque(column), double(torques(column)) + tables.TorqueTable(0, column),
                        20 * tolerance);
    }
}

TEST_P(ForceLaws, ShakingForceAndReactionTorqueAreThoseOnTheGround) {
    RandomLinkages random(98067);
    for (int position = 0; position < 500 && !HasFailure(); ++position) {
        Put_Random_Position(random, GetParam());
        while (Boxes_Left() > 0) Take_Box();
        ASSERT_EQ(Run_Dynamics(*program), 1);
        for (int part = 0; part < 2; ++part)
            EXPECT_EQ(tables.ForceTable(0, Shaking, part),
                      static_cast<float>(-(Force(F14, part) + Force(F12, part) + Force(F16, part))));
        EXPECT_EQ(tables.TorqueTable(0, 3), -tables.TorqueTable(0, 0));
    }
}

TEST_P(ForceLaws, WithoutLoadsTheShakingForceIsTheSumOfInertia) {
    RandomLinkages random(83144);
    for (int position = 0; position < 500 && !HasFailure(); ++position) {
        Put_Moderate_Position(random);
        for (LinkArray* load : {&model.ForceMag, &model.LinkTorque, &model.LinkFriction}) load->Fill(0);
        ASSERT_EQ(Run_Dynamics(*program), 1);
        for (int part = 0; part < 2; ++part) {
            double sum = 0, size = 0;
            for (const Entry entry : {Inertia2, Inertia3, Inertia4, Inertia5, Inertia6})
                sum += Force(entry, part);
            for (const Entry entry : {F12, F14, F16}) size += std::abs(Force(entry, part));
            EXPECT_NEAR(Force(Shaking, part), sum, 1e-6 * (size + std::abs(sum)));
        }
        const int links[] = {1, 3, 2, 4, 4, 5, 5, 6};  // column, link
        for (int i = 0; i < 8; i += 2) {
            const int link = links[i + 1];
            EXPECT_EQ(tables.TorqueTable(0, links[i]),
                      static_cast<float>(-(double(model.LinkInertia(link)) * tables.Alpha(0, link - 2))));
        }
    }
}

TEST_P(ForceLaws, WithoutMassesTheShakingForceIsTheSumOfTheLoads) {
    RandomLinkages random(22140);
    for (int position = 0; position < 500 && !HasFailure(); ++position) {
        Put_Moderate_Position(random);
        model.LinkMass.Fill(0);
        model.LinkFriction.Fill(0);
        ASSERT_EQ(Run_Dynamics(*program), 1);
        for (const Entry entry : {Inertia2, Inertia3, Inertia4, Inertia5, Inertia6})
            for (int part = 0; part < 2; ++part) EXPECT_EQ(Force(entry, part), 0);
        for (int part = 0; part < 2; ++part) {
            double sum = 0, size = 0;
            for (int link = 3; link <= 6; ++link) sum += part == 0 ? model.ForceX(link) : model.ForceY(link);
            for (const Entry entry : {F12, F14, F16}) size += std::abs(Force(entry, part));
            EXPECT_NEAR(Force(Shaking, part), sum, 1e-6 * (size + std::abs(sum)));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Chains, ForceLaws, ::testing::Values("W", "S"));
INSTANTIATE_TEST_SUITE_P(Chains, BalanceOfPower, ::testing::Values("W", "S"));

}  // namespace
}  // namespace kervol
