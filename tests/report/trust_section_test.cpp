// SPDX-License-Identifier: GPL-3.0-or-later
// The self-check in the report: what is told and drawn of a model, and what is not.
#include "report/trust_section.h"

#include <cmath>

#include "dynamics/solve_forces.h"
#include "kinematics/examples.h"
#include "kinematics/step_count.h"
#include "report/report_page.h"
#include "selfcheck/deviation_texts.h"
#include "support/program_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* kHeading = "<h2>How far the numbers can be trusted</h2>";

class TrustSection : public ProgramTest {
  protected:
    void Calculate_Example(const char* name) {
        Load_Example(model, *Find_Example(name));
        ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
        Run_Dynamics(*program);
    }

    SelfCheck Check() const { return Check_Of_Report(*program, MaxSteps + 1); }

    std::vector<std::string> Titles() const {
        std::vector<std::string> titles;
        for (const CurveGroup& group : Deviating_Curves(model, Check())) titles.push_back(group.title);
        return titles;
    }

    std::vector<CurveGroup> Groups(const char* title) const {
        std::vector<CurveGroup> found;
        for (const CurveGroup& group : Deviating_Curves(model, Check()))
            if (group.title == title) found.push_back(group);
        return found;
    }
};

TEST_F(TrustSection, OfAWattChainDrawsLink5AndTheForces) {
    Calculate_Example("watt");
    EXPECT_THAT(Titles(),
                ElementsAre("Transmission angle of Stage 1", "Velocity of the centre of gravity of link 5",
                            "Acceleration of the centre of gravity of link 5", "Driving torque",
                            "Shaking force", "Force at O2", "Force at O4", "Force at O6"));
}

TEST_F(TrustSection, OfAStephensonChainDrawsTheMotionOfStage2Too) {
    Calculate_Example("double-dwell");
    EXPECT_THAT(Titles(),
                ::testing::IsSupersetOf({"Angular velocity of link 6", "Angular acceleration of link 6",
                                         "Velocity of coupler point 2", "Acceleration of coupler point 2"}));
    EXPECT_THAT(Titles(), Not(::testing::Contains("Angular acceleration of link 4")));
}

TEST_F(TrustSection, DrawsTheTablesAsTheyStandBesideTheRatesOfTheAngles) {
    Calculate_Example("double-dwell");
    const std::vector<CurveGroup> found = Groups("Angular velocity of link 6");
    ASSERT_EQ(found.size(), 1U);
    ASSERT_EQ(found[0].curves.size(), 2U);
    EXPECT_EQ(found[0].unit, "rad/sec");
    EXPECT_EQ(found[0].curves[0].name, "Tables");
    EXPECT_EQ(found[0].curves[1].name, "Consistent");
    const auto& consistent = found[0].curves[1].values;
    ASSERT_EQ(consistent.size(), static_cast<std::size_t>(model.NumSteps) + 1);
    double closer = 0, further = 0;
    for (int step = 1; step < model.NumSteps; ++step) {
        const auto i = static_cast<std::size_t>(step);
        EXPECT_EQ(found[0].curves[0].values[i], double(tables.Omega(step, 4)));
        const double turn =
            std::remainder(double(tables.Theta(step + 1, 5)) - tables.Theta(step - 1, 5), 360);
        const double crank =
            std::remainder(double(tables.Theta(step + 1, 0)) - tables.Theta(step - 1, 0), 360);
        const double rate = turn / crank * tables.Omega(step, 0);
        closer += std::abs(*consistent[i] - rate);
        further += std::abs(tables.Omega(step, 4) - rate);
    }
    // Central differences over ten degrees each way are no better than that.
    EXPECT_LT(closer, 0.5 * further);
}

TEST_F(TrustSection, TellsTheDriveWhatItNeeds) {
    Calculate_Example("watt");
    const std::string page = Report_Page(*program);
    EXPECT_THAT(page, HasSubstr(kHeading));
    EXPECT_THAT(page, HasSubstr("Size a motor on the consistent driving torque, not on the tabulated one"));
    EXPECT_THAT(page, HasSubstr("<h3>What the drive needs</h3>"));
    EXPECT_THAT(page, HasSubstr("<th>Peak torque [lb-in]</th>"));
    EXPECT_THAT(page, HasSubstr("<th>Centre of gravity of link 5</th>"));
    const SelfCheck check = Check();
    EXPECT_THAT(page,
                HasSubstr("<th>Trust</th><td>" + std::to_string(check.Count(Verdict::OnPurpose)) + " of "));
    EXPECT_THAT(page, HasSubstr("A motor needs a peak of " + Four_Digits(check.consistent_drive.peak_torque) +
                                " lb-in</td>"));
}

TEST_F(TrustSection, OfALink5WithoutMassRecommendsTheTabulatedTorqueAndDrawsNone) {
    Load_Example(model, *Find_Example("watt"));
    model.LinkMass(5) = 0;
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    Run_Dynamics(*program);
    EXPECT_THAT(Titles(), Not(::testing::Contains("Driving torque")));
    EXPECT_THAT(Report_Page(*program), HasSubstr("A motor may be sized on the tabulated driving torque"));
}

TEST_F(TrustSection, WithoutForcesTellsOfTheMotionAlone) {
    Load_Example(model, *Find_Example("hoeken"));
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    const std::string page = Report_Page(*program);
    EXPECT_THAT(page, HasSubstr("forces are not solved, so only the motion is compared."));
    EXPECT_THAT(page, Not(HasSubstr("What the drive needs")));
    EXPECT_THAT(Titles(), Not(::testing::Contains("Driving torque")));
}

TEST_F(TrustSection, LeavesGapsAtStepsThatDoNotAssembleAndBehindTheLastForces) {
    Load_Example(model, *Find_Example("watt"));
    model.Link2 = 12;
    port.answer = [](const MessageBox&) { return Answer::Ignore; };
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    Run_Dynamics(*program);
    while (Boxes_Left() > 0) Take_Box();
    model.DynamicsCalculated = true;
    const auto torque = Groups("Driving torque");
    ASSERT_EQ(torque.size(), 1U);
    for (std::size_t step = 0; step < torque[0].curves[1].values.size(); ++step)
        EXPECT_EQ(torque[0].curves[1].values[step].has_value(), step < 10) << step;
    const auto angle = Groups("Transmission angle of Stage 1");
    ASSERT_EQ(angle.size(), 1U);
    EXPECT_FALSE(angle[0].curves[0].values[15].has_value());
    EXPECT_TRUE(angle[0].curves[0].values[30].has_value());
}

TEST_F(TrustSection, SaysAtAGlanceThatATableIsDamaged) {
    Calculate_Example("watt");
    EXPECT_THAT(Report_Page(*program), Not(HasSubstr("some are damaged")));
    tables.Omega(3, 4) += 1;
    EXPECT_THAT(Report_Page(*program),
                HasSubstr("<th>Trust</th><td>some values are damaged; see the self-check</td>"));
}

TEST_F(TrustSection, IsNotThereWhereNothingWasCalculated) {
    Load_Example(model, *Find_Example("watt"));
    EXPECT_THAT(Report_Page(*program), Not(HasSubstr(kHeading)));
}

}  // namespace
}  // namespace kervol
