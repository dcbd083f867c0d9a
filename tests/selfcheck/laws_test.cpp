// SPDX-License-Identifier: GPL-3.0-or-later
// What must hold for the self-check of every linkage.
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "kinematics/stage1.h"
#include "kinematics/stage2.h"
#include "selfcheck/selfcheck_fixture.h"

namespace kervol {
namespace {

constexpr int kLinkages = 300;
constexpr int kCompared = 1000;  // steps at least, or the linkages were of no use

class SelfCheckLaws : public SelfCheckTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(SelfCheckLaws, NoTableOfTheProgramDiffersFromItsOwnRules) {
    RandomLinkages random(27182);
    int steps = 0, with_forces = 0;
    for (int linkage = 0; linkage < kLinkages; ++linkage) {
        SCOPED_TRACE("linkage " + std::to_string(linkage));
        const int solved = Put_Random_Sweep(random, GetParam());
        const SelfCheck result = Check_Results(model, tables, solved);
        EXPECT_EQ(Names(result, Verdict::Differs), "");
        EXPECT_TRUE(result.Tables_Hold());
        steps += static_cast<int>(result.steps.size());
        with_forces += result.steps_with_forces;
    }
    EXPECT_GT(steps, kCompared);
    EXPECT_GT(with_forces, kCompared);
}

// Equilibrium takes all forces in the joints, work none of them.
TEST_P(SelfCheckLaws, EquilibriumAndWorkGiveTheSameConsistentTorque) {
    RandomLinkages random(31415);
    for (int linkage = 0; linkage < kLinkages; ++linkage) {
        const int solved = Put_Random_Sweep(random, GetParam());
        EXPECT_LT(Check_Results(model, tables, solved).torque_ways_differ, 1e-9) << "linkage " << linkage;
    }
}

TEST_P(SelfCheckLaws, ATorqueOnLink6AloneNeedsItTimesTheVelocityRatio) {
    RandomLinkages random(16180);
    for (int linkage = 0; linkage < 50; ++linkage) {
        Put_Random_Sweep(random, GetParam());
        for (LinkArray* array :
             {&model.LinkMass, &model.LinkInertia, &model.ForceMag, &model.LinkTorque, &model.LinkFriction})
            array->Fill(0);
        model.LinkTorque(6) = 12;
        const SelfCheck result = Check_Results(model, tables, Run_Dynamics(*program));
        while (Boxes_Left() > 0) Take_Box();
        for (int i = 0; i < result.steps_with_forces; ++i) {
            const RowValues& row = result.steps[static_cast<std::size_t>(i)].consistent;
            const double expected = -12 * row.omega(4) / row.omega(0);
            EXPECT_NEAR(row.torque(0), expected, 1e-9 * std::abs(expected));
        }
    }
}

/// Local angles of links 3 to 6 and the centre of gravity of link 5, straight from the positions.
struct Posture {
    /// Near one, differences mean nothing.
    bool Is_Far_From_Dead_Centre() const {
        return std::min(std::abs(std::sin(theta[3] - theta[4])), std::abs(std::sin(theta[5] - theta[6]))) >
               0.5;
    }

    double theta[7];
    Vec cg5;
};

class Differences : public SelfCheckLaws {
  protected:
    std::optional<Posture> At(double theta2) {
        LinkageModel moved = model;
        moved.Theta2Rad = static_cast<float>(theta2);
        const auto stage1 = Solve_Stage1(moved);
        if (!stage1) return std::nullopt;
        const auto stage2 =
            moved.LinkageType == "W" ? Solve_Watt(moved, *stage1) : Solve_Stephenson(moved, *stage1);
        if (!stage2) return std::nullopt;
        const Arm cg(model.LinkCG(5, 0), stage2->theta5 + model.LinkCG(5, 1));
        return Posture{{0, 0, theta2, stage1->theta3, stage1->theta4, stage2->theta5, stage2->theta6},
                       stage2->start.position + cg.Position()};
    }
};

/// First and second derivative of a quantity given at five equal steps, up to the fourth order.
constexpr double kStep = 1.0 / 64;
struct Derivatives {
    explicit Derivatives(const std::array<double, 5>& f)
        : first((f[0] - 8 * f[1] + 8 * f[3] - f[4]) / (12 * kStep)),
          second((-f[0] + 16 * f[1] - 30 * f[2] + 16 * f[3] - f[4]) / (12 * kStep * kStep)) {}

    double first, second;
};

// A second opinion on the consistent rates, by differences of positions alone. Crank angles are singles:
// multiples of the step are exact.
TEST_P(Differences, OfPositionsGiveTheConsistentRates) {
    RandomLinkages random(14142);
    int compared = 0;
    for (int linkage = 0; linkage < 2000 && compared < 200; ++linkage) {
        random.Next(model, GetParam());
        Put_Loads(random);
        const double theta2 = kStep * std::nearbyint(random.Between(-3, 3) / kStep);
        std::array<Posture, 5> at;
        bool is_smooth = true;
        for (std::size_t i = 0; i < at.size(); ++i) {
            const auto posture = At(theta2 + (static_cast<double>(i) - 2) * kStep);
            is_smooth = is_smooth && posture && posture->Is_Far_From_Dead_Centre();
            if (posture) at[i] = *posture;
        }
        if (!is_smooth) continue;
        ++compared;
        LinkAngles theta;
        for (int link = 2; link <= 6; ++link) theta(link) = at[2].theta[link];
        const auto motion = Motion_Of_Row(model, theta, {1, 0}, Rules::Consistent());
        ASSERT_TRUE(motion);
        const auto expect = [&](auto&& value, double rate, double second) {
            const Derivatives found({value(at[0]), value(at[1]), value(at[2]), value(at[3]), value(at[4])});
            // Positions rest on a point C that is rounded to singles, up to 1e-6 at 20 lengths, over the
            // step's square.
            const double scale = 1 + std::abs(rate) + std::abs(second);
            EXPECT_NEAR(found.first, rate, 1e-3 * scale);
            EXPECT_NEAR(found.second, second, 3e-2 * scale);
        };
        for (int link = 3; link <= 6; ++link)
            expect([&](const Posture& p) { return std::remainder(p.theta[link] - theta(link), 2 * Pi); },
                   motion->link(link).omega, motion->link(link).alpha);
        expect([](const Posture& p) { return p.cg5.x; }, motion->cg(5).velocity.x,
               motion->cg(5).acceleration.x);
        expect([](const Posture& p) { return p.cg5.y; }, motion->cg(5).velocity.y,
               motion->cg(5).acceleration.y);
    }
    EXPECT_GE(compared, 100);
}

INSTANTIATE_TEST_SUITE_P(Chains, SelfCheckLaws, ::testing::Values("W", "S"));
INSTANTIATE_TEST_SUITE_P(Chains, Differences, ::testing::Values("W", "S"));

using WattLaws = SelfCheckTest;

TEST_F(WattLaws, MotionAgreesWithItsPositionsToRounding) {
    RandomLinkages random(57721);
    for (int linkage = 0; linkage < kLinkages; ++linkage) {
        Put_Random_Sweep(random, "W");
        const SelfCheck result = Check_Results(model, tables, 0);
        for (const CheckedValue& check : result.checks)
            if (!check.quantity.name.starts_with("Trans Ang")) {
                EXPECT_EQ(check.verdict, Verdict::Agrees) << check.quantity.name << " of linkage " << linkage;
            }
    }
}

TEST_F(WattLaws, WithoutWhatDeviatesTheForcesAgreeToo) {
    RandomLinkages random(66260);
    for (int linkage = 0; linkage < kLinkages; ++linkage) {
        Put_Random_Sweep(random, "W");
        model.LinkO4D = model.Link6;
        model.LinkMass(5) = 0;
        model.LinkFriction.Fill(0);
        model.ForceMag.Fill(0);
        const SelfCheck result = Check_Results(model, tables, Calculate_All());
        for (const CheckedValue& check : result.checks)
            if (!check.quantity.name.starts_with("Trans Ang") && !check.quantity.name.ends_with("CG 5")) {
                EXPECT_EQ(check.verdict, Verdict::Agrees) << check.quantity.name << " of linkage " << linkage;
            }
    }
}

class FullTurn : public SelfCheckTest, public ::testing::WithParamInterface<const char*> {};

// What goes into the masses comes out again. Means over a full turn of a smooth function are exact to many
// digits with few steps.
TEST_P(FullTurn, WithoutLoadsTheConsistentTorqueDoesNoWorkAndTheTabulatedOneDoes) {
    const SelfCheck result = Check_Example(GetParam());
    EXPECT_LT(std::abs(result.consistent_drive.mean_torque), 1e-5 * result.consistent_drive.rms_torque);
    EXPECT_GT(std::abs(result.tabulated_drive.mean_torque), 1e-3 * result.tabulated_drive.rms_torque);
    EXPECT_NEAR(result.consistent_drive.mean_power, 10 * result.consistent_drive.mean_torque,
                1e-9 * result.consistent_drive.rms_torque)
        << "the crank turns with 10 rad/s";
}

INSTANTIATE_TEST_SUITE_P(Examples, FullTurn, ::testing::Values("watt", "hoeken", "double-dwell"));

}  // namespace
}  // namespace kervol
