// SPDX-License-Identifier: GPL-3.0-or-later
// A value of the tables that was changed behind the program's back is found, and named.
#include <cmath>

#include "selfcheck/self_check_summary.h"
#include "selfcheck/self_check_text.h"
#include "selfcheck/selfcheck_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;

constexpr int kStep = 5;

class Damage : public SelfCheckTest, public ::testing::WithParamInterface<const char*> {
  protected:
    void SetUp() override { ASSERT_TRUE(Check_Example(GetParam()).Tables_Hold()); }

    SelfCheck Check_Again() { return Check_Results(model, tables, model.NumSteps + 1); }

    /// Changes the value, checks, and puts it back.
    void Expect_Found(float& cell, const std::string& where) {
        const float whole = cell;
        cell = whole + 0.001F * (1 + std::abs(whole));
        const SelfCheck result = Check_Again();
        cell = whole;
        EXPECT_FALSE(result.Tables_Hold()) << where;
        for (const CheckedValue& check : result.checks)
            if (check.verdict == Verdict::Differs) {
                EXPECT_EQ(check.from_rule.step, kStep) << where << ", " << check.quantity.name;
            }
    }

    template <std::size_t count>
    void Expect_All_Found(Table<float, count>& row, const std::string& where, int cells = count) {
        for (int i = 0; i < cells; ++i) Expect_Found(row(i), where + " " + std::to_string(i));
    }
    template <std::size_t count>
    void Expect_All_Found(Table<float, count, 2>& row, const std::string& where, int cells = count) {
        for (int i = 0; i < cells; ++i) Expect_All_Found(row(i), where + " " + std::to_string(i));
    }
};

TEST_P(Damage, OfAnyOneCellIsFoundAtItsStep) {
    Expect_All_Found(tables.Theta(kStep), "Theta");
    Expect_All_Found(tables.Omega(kStep), "Omega");
    Expect_All_Found(tables.Alpha(kStep), "Alpha");
    Expect_All_Found(tables.PointPos(kStep), "PointPos", 6);
    Expect_All_Found(tables.PointVel(kStep), "PointVel");
    Expect_All_Found(tables.PointAcc(kStep), "PointAcc");
    Expect_All_Found(tables.VelRatio(kStep), "VelRatio");
    Expect_All_Found(tables.MechAdv(kStep), "MechAdv");
    Expect_All_Found(tables.ForceTable(kStep), "ForceTable");
    Expect_All_Found(tables.TorqueTable(kStep), "TorqueTable", 6);
    EXPECT_TRUE(Check_Again().Tables_Hold()) << "all put back";
}

TEST_P(Damage, OfOneSpeedIsToldOfThatSpeedAndWhatIsRatedByIt) {
    tables.Omega(kStep, 4) += 0.01F;
    const SelfCheck result = Check_Again();
    EXPECT_EQ(Names(result, Verdict::Differs), "Omega6");
    EXPECT_EQ(Find(result, "Omega6")->steps_differing, 1);
    EXPECT_NEAR(Find(result, "Omega6")->from_rule.difference, 0.01, 1e-5);
    EXPECT_EQ(
        Self_Check_Complaint(result),
        "1 value differs from the rules of the tables: Omega6 at step 5. Calculate and solve anew; what "
        "differs even then must not be relied on.");
    EXPECT_THAT(Self_Check_Text(model, result), HasSubstr("DIFFERS"));
}

TEST_P(Damage, OfADrivingTorqueUpsetsTheCrankAndTheWhole) {
    tables.TorqueTable(kStep, 0) *= 1.5F;
    const SelfCheck result = Check_Again();
    EXPECT_EQ(Names(result, Verdict::Differs),
              "Torque 12, Moments on link 2, Moments on the whole, Power of the drive");
}

TEST_P(Damage, ATableOfAnotherModelIsFoundThroughout) {
    model.Link3 *= 1.01F;
    const SelfCheck result = Check_Again();
    EXPECT_EQ(Find(result, "Loop of Stage 1 closes")->verdict, Verdict::Differs);
    EXPECT_GT(Find(result, "Loop of Stage 1 closes")->steps_differing, model.NumSteps / 2);
    EXPECT_THAT(Self_Check_Complaint(result), HasSubstr(" more. Calculate and solve anew"));
}

INSTANTIATE_TEST_SUITE_P(Examples, Damage, ::testing::Values("watt", "double-dwell"));

}  // namespace
}  // namespace kervol
