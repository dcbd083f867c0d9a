// SPDX-License-Identifier: GPL-3.0-or-later
// A sweep in outline has the bits of a whole one in all that it writes, failures and faults included.
#include "kinematics/outline.h"

#include <cmath>
#include <cstring>

#include "core/geometry.h"
#include "kinematics/examples.h"
#include "kinematics/kinematics_fixture.h"
#include "kinematics/step_count.h"
#include "support/random_linkage.h"

namespace kervol {
namespace {

class OutlineTest : public KinematicsTest {
  protected:
    void SetUp() override {
        port.answer = [](const MessageBox& box) {
            return box.buttons == Buttons::AbortRetryIgnore ? Answer::Ignore : Answer::None;
        };
        start_ = model;
    }
    void TearDown() override {}

    struct Outcome {
        ResultTables tables;
        std::vector<ReportedFault> faults;
        bool failed, calculated;
        std::size_t boxes;
    };
    std::unique_ptr<Outcome> Calculated(Depth depth) {
        const LinkageModel before = model;
        tables = {};
        port.messages.clear();
        program->faults.entries.clear();
        Calculate_Model(*program, depth);
        auto outcome =
            std::make_unique<Outcome>(Outcome{tables, program->faults.entries, model.SomeStepFailed,
                                              model.DataCalculated, port.messages.size()});
        last_ = model.NumSteps;
        model = before;
        return outcome;
    }
    /// Compares both depths with the whole.
    void Expect_Same_Bits() {
        const auto whole = Calculated(Depth::All);
        for (const Depth depth : {Depth::Angles, Depth::Speeds}) {
            SCOPED_TRACE(depth == Depth::Angles ? "angles" : "speeds");
            const auto part = Calculated(depth);
            EXPECT_EQ(part->faults, whole->faults);
            EXPECT_EQ(part->failed, whole->failed);
            EXPECT_EQ(part->calculated, whole->calculated);
            EXPECT_EQ(part->boxes, whole->boxes);
            for (int step = 0; step <= last_; ++step) {
                EXPECT_EQ(part->tables.StepValid(step), whole->tables.StepValid(step));
                EXPECT_TRUE(Same(part->tables.Theta(step), whole->tables.Theta(step))) << "step " << step;
                if (depth == Depth::Angles) continue;
                EXPECT_TRUE(Same(part->tables.Omega(step), whole->tables.Omega(step))) << "step " << step;
                EXPECT_TRUE(Same(part->tables.VelRatio(step), whole->tables.VelRatio(step))) << step;
                EXPECT_TRUE(Same(part->tables.MechAdv(step), whole->tables.MechAdv(step))) << step;
                EXPECT_EQ(part->tables.Alpha(step, 0), whole->tables.Alpha(step, 0));
            }
        }
    }
    void Set_Range(float from, float to, float step) {
        model.CalcMode = 3;
        model.ThetaMinDeg = from;
        model.ThetaMaxDeg = to;
        model.ThetaStepDeg = step;
    }

    LinkageModel start_;
    int last_ = 0;

  private:
    template <class Row>
    static bool Same(const Row& left, const Row& right) {
        return std::memcmp(&left, &right, sizeof(Row)) == 0;
    }
};

TEST_F(OutlineTest, OfTheExamplesHasTheBitsOfTheWhole) {
    for (const Example& example : Examples()) {
        SCOPED_TRACE(example.name);
        model = start_;
        Load_Example(model, example);
        for (const float step : {0.4F, 1.0F, 7.0F, 100.0F}) {
            model.ThetaStepDeg = step;
            Expect_Same_Bits();
        }
    }
}

TEST_F(OutlineTest, OfRandomLinkagesHasTheBitsOfTheWhole) {
    RandomLinkages random(31);
    for (int linkage = 0; linkage < 600 && !HasFailure(); ++linkage) {
        SCOPED_TRACE("linkage " + std::to_string(linkage));
        random.Next(model, linkage % 2 == 0 ? "W" : "S");
        model.AngleRange = linkage % 3 == 0 ? "abs" : linkage % 3 == 1 ? "180" : "free";
        model.Omega2Start = linkage % 7 == 0 ? 0 : random.Between(-30, 30);
        const float from = random.Between(-300, 300);
        Set_Range(from, from + random.Between(1, 400), random.Between(0.5F, 30));
        if (linkage % 5 == 0) {
            model.CalcMode = 2;
            model.TimeEnd = 2;
            model.TimeStep = random.Between(0.01F, 0.2F);
            model.Alpha2Const = random.Between(-20, 20);
        }
        Expect_Same_Bits();
    }
}

TEST_F(OutlineTest, OfARowThatIsSolvedTwiceKeepsWhatTheFirstLeft) {
    // The quotient 2.5 makes three steps; row 3 is solved at 120 and again at 100 degrees, and the fold of
    // the transmission angle looks at what stood there before.
    Set_Range(0, 100, 40);
    for (const float speed : {10.0F, -10.0F}) {
        model.Omega2Start = speed;
        Expect_Same_Bits();
    }
}

TEST_F(OutlineTest, TakesPositionsNextToATogglePositionWhole) {
    // Where links 3 and 4 are stretched cos(theta2) is (144 + 87.890625 - 244.140625) / 225.
    model.Link2 = 12;
    Derive_Geometry(model);
    const double limit = std::acos((144 + 87.890625 - 244.140625) / 225) * DegreesPerRadian;
    Set_Range(static_cast<float>(limit) - 0.01F, static_cast<float>(limit) + 0.01F, 0.0001F);
    Expect_Same_Bits();
}

TEST_F(OutlineTest, ReportsTheFaultsOfTheWhole) {
    for (float LinkageModel::*length : {&LinkageModel::Link2, &LinkageModel::Link3, &LinkageModel::Link4,
                                        &LinkageModel::Link5, &LinkageModel::Link6, &LinkageModel::LinkO4D}) {
        model = start_;
        model.*length = 0;
        Derive_Geometry(model);
        Expect_Same_Bits();
        EXPECT_FALSE(Calculated(Depth::Speeds)->faults.empty());
    }
}

TEST_F(OutlineTest, FindsAFaultInAnAccelerationThatIsNotWanted) {
    // Speeds of 1e20 rad/s still are singles; their squares, the accelerations, are not.
    model.Omega2Start = 1e20F;
    Expect_Same_Bits();
    EXPECT_FALSE(Calculated(Depth::Angles)->faults.empty());
}

TEST_F(OutlineTest, FindsAFaultOfLengthsThatAreFarApart) {
    model.Omega2Start = 5000;
    model.CouplerAC = 3e37F;
    Derive_Geometry(model);
    Expect_Same_Bits();
    EXPECT_FALSE(Calculated(Depth::Angles)->faults.empty());
}

TEST_F(OutlineTest, AChainWithoutAStage2IsCalculatedWhole) {
    model.LinkageType = "X";
    EXPECT_EQ(Safe_Depth(model, Depth::Angles), Depth::All);
    Expect_Same_Bits();
}

TEST_F(OutlineTest, AnImportedDriveIsCalculatedWhole) {
    model.CalcMode = 5;
    model.NumSteps = 0;
    tables.DriveTheta(0) = 30;
    tables.Omega(0, 0) = 2;
    Calculate_Model(*program, Depth::Angles);
    EXPECT_NE(tables.PointPos(0, 0, 0), 0);
}

TEST(Sines, AreOddToTheLastBit) {
    // On this rests the second sine of a toggle position.
    RandomLinkages random(9);
    for (int i = 0; i < 100000; ++i) {
        const double left = random.Between(-7, 7), right = random.Between(-7, 7) * 1e-3;
        EXPECT_EQ(std::sin(left - right), -std::sin(right - left));
    }
}

}  // namespace
}  // namespace kervol
