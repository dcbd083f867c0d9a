// SPDX-License-Identifier: GPL-3.0-or-later
// Each deviation on purpose is told where a model shows it, with its figures, and nowhere else.
#include <cmath>

#include "core/arithmetic.h"
#include "core/geometry.h"
#include "selfcheck/deviation_texts.h"
#include "selfcheck/selfcheck_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;

class Deviations : public SelfCheckTest {
  protected:
    /// The example with loads changed by `change`, calculated and checked.
    template <class Change>
    SelfCheck Check_Changed(std::string_view example, const Change& change) {
        Load_Example(model, *Find_Example(example));
        model.CalcMode = 3;
        change();
        return Check_Results(model, tables, Calculate_All());
    }

    std::string Applying(const SelfCheck& result) const {
        std::string names;
        for (const DeviationEffect& effect : Applying_Deviations(model, result))
            names += (names.empty() ? "" : ", ") + std::string(Deviation_Name(effect.deviation));
        return names;
    }

    static const DeviationEffect& Effect(const SelfCheck& result, Deviation deviation) {
        return result.effects.at(static_cast<std::size_t>(deviation));
    }
};

TEST_F(Deviations, OfTheExamplesAreThese) {
    EXPECT_EQ(Applying(Check_Example("watt")), "Link5CG, Transmission");
    // Delta3 is 0.
    EXPECT_EQ(Applying(Check_Example("hoeken")), "Stage2Speeds, Link5CG, Transmission");
    EXPECT_EQ(Applying(Check_Example("double-dwell")), "Stage2Speeds, Link5CG, ArmOfC, Transmission");
}

TEST_F(Deviations, OfSpeedsChangeNoAngleAndNothingOfStage1) {
    const SelfCheck result = Check_Example("double-dwell");
    for (const char* name :
         {"Omega3", "Omega4", "Alpha3", "Alpha4", "Veloc CP-1", "Accel I 3,5", "V-Ratio-1"})
        EXPECT_EQ(Find(result, name)->verdict, Verdict::Agrees) << name;
    for (const char* name : {"Omega5", "Omega6", "Alpha5", "Alpha6", "Veloc I 5,6", "Accel I 5,6",
                             "Veloc CP-2", "Accel CP-2", "V-Ratio-2", "MchAdv-2"})
        EXPECT_EQ(Find(result, name)->verdict, Verdict::OnPurpose) << name;
}

// In the local frame, with v the velocity of C, tabulated speeds solve
//   vx - b w5 sin5 - c w6 sin6 = 0 and vy + b w5 cos5 - c w6 cos6 = 0.
TEST_F(Deviations, OfSpeedsAreTheReversedSignAlongX) {
    Check_Example("double-dwell");
    for (int step = 0; step <= model.NumSteps; ++step) {
        const double t5 = tables.Theta(step, 4) * RadiansPerDegree,
                     t6 = tables.Theta(step, 5) * RadiansPerDegree;
        const double w5 = tables.Omega(step, 3), w6 = tables.Omega(step, 4);
        EXPECT_NEAR(
            tables.PointVel(step, 3, 0) - model.Link5 * w5 * std::sin(t5) - model.Link6 * w6 * std::sin(t6),
            0, 1e-4);
        EXPECT_NEAR(
            tables.PointVel(step, 3, 1) + model.Link5 * w5 * std::cos(t5) - model.Link6 * w6 * std::cos(t6),
            0, 1e-4);
    }
}

TEST_F(Deviations, OfTheArmAtDCountWhereLink6IsNotO4D) {
    const auto change = [this] { model.LinkO4D = 7.5F; };
    const SelfCheck result = Check_Changed("watt", change);
    EXPECT_EQ(Applying(result), "Link5CG, ArmOfD, Transmission");
    EXPECT_EQ(Find(result, "Moments on link 4")->verdict, Verdict::OnPurpose);
    EXPECT_GE(Effect(result, Deviation::ArmOfD).step, 0);
    EXPECT_THAT(Deviation_Text(Deviation::ArmOfD, model, result),
                HasSubstr("given an arm of Link6 = 8 in; pin D lies at O4-D = 7.5 in."));
}

TEST_F(Deviations, OfLink5NeedItsMassToChangeTheTorque) {
    const SelfCheck result = Check_Changed("watt", [this] { model.LinkMass(5) = 0; });
    EXPECT_EQ(Find(result, "Accel CG 5")->verdict, Verdict::OnPurpose);
    EXPECT_EQ(Find(result, "Torque 12")->verdict, Verdict::Agrees);
    EXPECT_EQ(Effect_Text(Effect(result, Deviation::Link5CG), model, result),
              "The driving torque does not depend on it.");
}

// The two ends of link 5 move alike where it only travels: its centre of gravity then moves with its pin.
TEST_F(Deviations, OfLink5LeaveOutTheMotionOfItsPin) {
    const SelfCheck result = Check_Example("watt");
    for (const CheckedStep& row : result.steps) {
        const Vec missing = row.consistent.acceleration(9) - row.tabulated.acceleration(9);
        EXPECT_NEAR(missing.x, tables.PointAcc(row.step, 3, 0), 2e-3);
        EXPECT_NEAR(missing.y, tables.PointAcc(row.step, 3, 1), 2e-3);
    }
}

TEST_F(Deviations, OfFrictionLeaveOutItsMoment) {
    const SelfCheck result = Check_Changed("watt", [this] {
        model.LinkFriction(5) = 3;
        model.LinkMass(5) = 0;
    });
    EXPECT_THAT(Applying(result), HasSubstr("FrictionArm"));
    EXPECT_GE(Effect(result, Deviation::FrictionArm).step, 0);
    // Rigid links lose the friction times the way of the coupler point.
    for (const CheckedStep& row : result.steps) {
        const Vec v = row.consistent.velocity(5);
        EXPECT_NEAR(row.consistent.load_power, -3 * std::hypot(v.x, v.y), 1e-6 * std::hypot(v.x, v.y));
    }
}

TEST_F(Deviations, OfForceDirectionsCountOnATurnedGround) {
    const auto load = [this] {
        model.ForceMag(6) = 4;
        model.ForceAngle(6) = 90;
    };
    EXPECT_EQ(Applying(Check_Changed("watt", load)), "Link5CG, Transmission");
    const SelfCheck turned = Check_Changed("watt", [&] {
        load();
        Place_Pivots(model, 0, 9.375F, -2, 14.375F);
    });
    EXPECT_THAT(Applying(turned), HasSubstr("ForceFrame"));
    EXPECT_GE(Effect(turned, Deviation::ForceFrame).step, 0);
}

TEST_F(Deviations, OfTheCrankAreToldInTimeSteps) {
    const SelfCheck result = Check_Changed("watt", [this] {
        model.CalcMode = 2;
        model.Theta2One = 20;
        model.TimeStart = 0;
        model.TimeEnd = 0.5F;
        model.TimeStep = 0.05F;
        model.Alpha2Const = -4;
    });
    EXPECT_EQ(Names(result, Verdict::Differs), "");
    EXPECT_EQ(Find(result, "Omega2")->verdict, Verdict::Agrees);
    EXPECT_EQ(Find(result, "Alpha2")->verdict, Verdict::OnPurpose);
    EXPECT_EQ(Find(result, "Alpha2")->from_consistent.expected, -4);
    EXPECT_EQ(Find(result, "Alpha3")->verdict, Verdict::OnPurpose);
    EXPECT_THAT(Deviation_Text(Deviation::CrankAlpha, model, result),
                HasSubstr("an acceleration of -4 rad/sec^2; the accelerations are solved with 0."));
}

TEST_F(Deviations, OfACrankThatKeptAnImportedAccelerationAreToldInAngleSteps) {
    const SelfCheck result = Check_Changed("watt", [this] { model.Alpha2 = 7; });
    EXPECT_EQ(Names(result, Verdict::Differs), "");
    EXPECT_THAT(Applying(result), HasSubstr("CrankAlpha"));
    EXPECT_EQ(Find(result, "Alpha2")->from_consistent.tabulated, 7);
    EXPECT_EQ(Find(result, "Alpha2")->from_consistent.expected, 0);
}

TEST_F(Deviations, OfTransmissionAnglesAgainstTheAcuteAngle) {
    const SelfCheck result = Check_Example("watt");
    for (const CheckedStep& row : result.steps) {
        const double between =
            std::fmod(std::abs(double(tables.Theta(row.step, 2)) - tables.Theta(row.step, 1)), 180);
        EXPECT_NEAR(row.consistent.transmission(0), std::min(between, 180 - between), 1e-4);
    }
    EXPECT_EQ(Find(result, "Trans Ang-2")->verdict, Verdict::Agrees);
}

// Such rows keep an angle that another crank angle or another linkage left behind.
TEST_F(Deviations, OfTransmissionAnglesAreNoDamageWhereARowIsCalculatedTwice) {
    const SelfCheck end = Check_Changed("watt", [this] {
        model.ThetaMinDeg = 100;
        model.ThetaMaxDeg = 175;
        Set_Range_Angles(model);
    });
    EXPECT_NEAR(tables.Theta(model.NumSteps, 0), 175, 1e-3);
    EXPECT_EQ(Names(end, Verdict::Differs), "");
    const auto in_time = [this] {
        model.CalcMode = 2;
        model.Theta2One = 170;
        model.TimeEnd = 0.1F;
        model.TimeStep = 0.01F;
        model.Alpha2Const = 0;
    };
    Check_Changed("watt", in_time);
    const SelfCheck again = Check_Changed("watt", [&] {
        in_time();
        model.Link3 = 8.7F;
    });
    EXPECT_EQ(Names(again, Verdict::Differs), "");
    EXPECT_EQ(Find(again, "Trans Ang-1")->verdict, Verdict::OnPurpose);
}

TEST_F(Deviations, NumbersAreShownWithFourDigits) {
    EXPECT_EQ(Four_Digits(12.3456), "12.35");
    EXPECT_EQ(Four_Digits(-28280.4), "-28280");
    EXPECT_EQ(Four_Digits(0), "0");
}

}  // namespace
}  // namespace kervol
