// SPDX-License-Identifier: GPL-3.0-or-later
// Measures: how they are written, what they need, and that they read the tables.
#include "study/measure.h"

#include <algorithm>
#include <cmath>

#include "dynamics/crank_torque_areas.h"
#include "dynamics/solve_forces.h"
#include "kinematics/step_count.h"
#include "study/study_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;

class MeasureTest : public StudyTest {
  protected:
    float Of(const std::string& text) {
        std::vector<float> series;
        return Take(text).Of(*program, series);
    }
    std::string Objection(const std::string& text) { return Measure().Parse(text, *program); }
};

TEST_F(MeasureTest, ReadsTheTablesAsTheyStand) {
    Calculate_Model(*program);
    float greatest = tables.Omega(0, 4), least = tables.Theta(0, 6);
    double squares = 0;
    for (int step = 0; step <= model.NumSteps; ++step) {
        greatest = std::max(greatest, tables.Omega(step, 4));
        least = std::min(least, tables.Theta(step, 6));
        squares += double(tables.Omega(step, 4)) * tables.Omega(step, 4);
    }
    EXPECT_EQ(Of("max(Omega6)"), greatest);
    EXPECT_EQ(Of("min(\"Trans Ang-1\")"), least);
    EXPECT_EQ(Of("rms(Omega6)"), static_cast<float>(std::sqrt(squares / 37)));
}

TEST_F(MeasureTest, TakesTheComponentOfAVectorAndXWithoutOne) {
    Calculate_Model(*program);
    // A goes round with 2 in at 10 rad/s.
    EXPECT_NEAR(Of("max(\"Veloc I 2,3\":Mag)"), 20, 1e-4);
    EXPECT_NEAR(Of("range(\"Veloc I 2,3\":Mag)"), 0, 1e-4);
    EXPECT_NEAR(Of("max(\"Veloc I 2,3\":Y)"), 20, 1e-4);  // step 0
    EXPECT_NEAR(Of("max(\"Veloc I 2,3\")"), 20, 1e-4);    // step 27
    EXPECT_EQ(Of("max(\"Veloc I 2,3\")"), Of("max(\"Veloc I 2,3\":X)"));
    EXPECT_NEAR(Of("min(\"Veloc I 2,3\":Ang)"), -90 + 10, 11);
}

TEST_F(MeasureTest, ARangeFollowsAnAngleOverAFullTurn) {
    model.ThetaMinDeg = 300;
    model.ThetaMaxDeg = 420;
    Calculate_Model(*program);
    // The third wrap of the angle of a linkage drawn at 350 degrees has no share in how far it swings.
    float theta[] = {0, 0};
    for (const auto range : {"abs", "180"}) {
        model.AngleRange = range;
        Calculate_Model(*program);
        theta[std::string(range) == "abs"] = Of("range(Theta4)");
    }
    EXPECT_NEAR(theta[0], theta[1], 1e-3);
}

TEST_F(MeasureTest, KnowsWhatItNeeds) {
    const struct {
        const char* text;
        Depth depth;
        Scope scope;
    } cases[] = {
        {"max(Theta6)", Depth::Angles, Scope::Motion},
        {"max(\"Trans Ang-2\")", Depth::Angles, Scope::Motion},
        {"max(Omega3)", Depth::Speeds, Scope::Motion},
        {"max(V-Ratio-2)", Depth::Speeds, Scope::Motion},
        {"max(MchAdv-1)", Depth::Speeds, Scope::Motion},
        {"max(Alpha3)", Depth::All, Scope::Motion},
        {"max(\"Cpler Pt-1\":X)", Depth::All, Scope::Motion},
        {"max(\"Veloc CP-2\":Mag)", Depth::All, Scope::Motion},
        {"max(\"Accel CG 2\":Mag)", Depth::All, Scope::Forces},
        {"max(\"Veloc CG 6\":Mag)", Depth::All, Scope::Forces},
        {"peak(\"Torque 12\")", Depth::All, Scope::Forces},
        {"rms(\"F Shaking\":Mag)", Depth::All, Scope::Forces},
        {"peak(\"Flywl Torque\")", Depth::All, Scope::Flywheel},
    };
    for (const auto& [text, depth, scope] : cases) {
        EXPECT_EQ(Take(text).Needed_Depth(), depth) << text;
        EXPECT_EQ(Take(text).Needed_Scope(), scope) << text;
    }
}

TEST_F(MeasureTest, IsWrittenWithOrWithoutBlanksAndQuotes) {
    for (const char* text :
         {"max(Omega6)", " max ( Omega6 ) ", "max(\"Omega6\")", "max(Trans Ang-1)", "max(F Shaking : Mag)",
          "max(\"F Shaking\":Mag)", "dwell(Theta6, 1 degree)", "dwell(Theta6,1)", "dwell(Theta6, .5 deg)",
          "dwell(\"Veloc CP-1\":Ang, 2 degrees)", "dwell(Omega6, 0.1 rad/sec)"})
        EXPECT_EQ(Objection(text), "") << text;
}

TEST_F(MeasureTest, TellsWhatIsWrong) {
    const struct {
        const char *text, *objection;
    } cases[] = {
        {"", "is no measure"},
        {"Omega6", "is no measure"},
        {"max(Omega6", "is no measure"},
        {"()", "\"\" is no measure; there are max, min, range, mean, rms, peak and dwell"},
        {"Max(Omega6)", "\"Max\" is no measure"},
        {"max()", "\"\" is no function of this chain"},
        {"max(omega6)", "\"omega6\" is no function of this chain"},
        {"max(\"Force 53\")", "\"Force 53\" is no function of this chain"},
        {"max(\"Current FFT\")", "has no steps"},
        {"max(Omega6:Z)", "a component is X, Y, Mag or Ang"},
        {"max(Omega6:)", "a component is X, Y, Mag or Ang"},
        {"max(Veloc I 2,3)", "no function"},
        {"max(Omega6, 1)", "a dwell alone has a tolerance"},
        {"dwell(Theta6)", "a dwell has a tolerance"},
        {"dwell(Theta6, x)", "is no tolerance"},
        {"dwell(Theta6, -1)", "is no tolerance"},
        {"dwell(Theta6, )", "is no tolerance"},
        {"dwell(Theta6, 1 rad)", "the unit of Theta6 is degree"},
        {"dwell(Omega6, 1 degree)", "the unit of Omega6 is rad/sec"},
    };
    for (const auto& [text, objection] : cases) EXPECT_THAT(Objection(text), HasSubstr(objection)) << text;
}

TEST_F(MeasureTest, TheMeanOfTheTorqueIsTheOneOfTheFlywheel) {
    Calculate_Model(*program);
    Run_Dynamics(*program);
    CrankTorqueAreas areas;
    Crank_Torque_Areas(*program, areas);
    EXPECT_EQ(Of("mean(\"Torque 12\")"), areas.Average);
}

}  // namespace
}  // namespace kervol
