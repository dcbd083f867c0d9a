// SPDX-License-Identifier: GPL-3.0-or-later
// The four built-in linkages, field by field, what they leave alone, and that they run.
#include "kinematics/examples.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <variant>

#include "core/arithmetic.h"
#include "core/model_fields.h"
#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

/// One column of the table of examples. A value of `kNotSet` is not given by the example.
struct Expected {
    const char* name;
    const char* ModelTitle;
    const char* LinkageType;
    float Link2, Link3, Link4, Link1, O4X, O4Y;
    float LinkO4D, Link5, Link6, O6X, O6Y;
    float CouplerAC, Delta3Deg, Delta4Deg, Coupler2Length, Delta5Deg;
    std::int16_t OpenCross1, OpenSign1;
    const char* OpenCross1Text;
    std::int16_t OpenCross2, OpenSign2;
    const char* OpenCross2Text;
    float Omega2Start, ThetaMinDeg, ThetaMaxDeg, ThetaStepDeg;
    const char *Delta3Text, *Delta4Text, *Delta5Text, *ThetaMinText, *ThetaMaxText, *ThetaStepText;
    std::int16_t NumSteps;  ///< of the sweep that follows from the range
};

constexpr float kNotSet = -98765;
constexpr const char* kTextNotSet = "not set";

// clang-format off
constexpr std::array<Expected, 4> kExpected = {{
    {"watt", "Kervol Watts Chain with Two Coupler Curves", "W",
     2, 8.625F, 7, 9.375F, 9.375F, 0,
     8, 7, 8, 14.375F, 2,
     6, 45, -30, 6, 80,
     1, -1, "OPEN", 1, -1, "OPEN",
     10, 0, 360, 10, "45", "-30", "80", "0", "360", "10", 36},
    {"roberts", "Watts 6-bar Chain with Roberts 4-bar SL as Stage 2", "W",
     0.2F, 0.42F, 0.5F, 0.6F, 0.6F, 0,
     1, 1, 1, 2.6F, 0,
     0, 0, -84, 1, -60,
     1, -1, "Open", 1, -1, "Open",
     20, 0, 360, 10, "0", "-84", "-60", "0", "360", "10", 36},
    {"hoeken", "Single Dwell Stephenson's Kervol with Hoeken's driver", "S",
     25, 62.5F, 62.5F, 50, 50, 0,
     kNotSet, 112, 30, 80, 11,
     125, 0, kNotSet, 112, 0,
     1, -1, "Open", 2, 1, "Crossed",
     10, 180, 540, 5, "0", kTextNotSet, "0", "180", "540", "5", 72},
    {"double-dwell", "A Stephenson's Kervol that gives a Double-Dwell Motion", "S",
     2.5F, 8.64F, 7.4F, 6.05F, 6.05F, 0,
     0, 6.1F, 1, 7.5F, 0.7F,
     8.75F, -8, kNotSet, 6.05F, 0,
     1, -1, "Open", 2, 1, "Crossed",
     10, 30, 390, 4, "-8", kTextNotSet, "0", "30", "390", "4", 90},
}};
// clang-format on

/// Writes what no example writes.
struct Marker {
    void operator()(float& value) const { value = kNotSet; }
    void operator()(std::int16_t& value) const { value = 4321; }
    void operator()(std::int32_t& value) const { value = 87654; }
    void operator()(bool& value) const { value = true; }
    void operator()(std::string& value) const { value = kTextNotSet; }
    template <class T, std::size_t... N>
    void operator()(Table<T, N...>& table) const {
        T value{};
        (*this)(value);
        table.Fill(value);
    }
};

void Mark_All_Fields(LinkageModel& model) {
    for (const ModelField& field : Model_Fields())
        std::visit([&](auto member) { Marker{}(model.*member); }, field.member);
}

float Radians(float degrees) {
    return Is_Same(degrees, kNotSet) ? kNotSet : static_cast<float>(degrees * 0.017453292522222223);
}

class ExampleTest : public KinematicsTest, public ::testing::WithParamInterface<Expected> {
  protected:
    const Example& Loaded() {
        const Example* example = Find_Example(GetParam().name);
        if (example == nullptr) throw std::runtime_error("no such example");
        Load_Example(model, *example);
        return *example;
    }
};

TEST_P(ExampleTest, FieldsAreThoseOfTheTable) {
    Mark_All_Fields(model);
    Loaded();
    const Expected& e = GetParam();
    EXPECT_EQ(model.ModelTitle, e.ModelTitle);
    EXPECT_EQ(model.LinkageType, e.LinkageType);
    EXPECT_EQ(model.Link1, e.Link1);
    EXPECT_EQ(model.Link2, e.Link2);
    EXPECT_EQ(model.Link3, e.Link3);
    EXPECT_EQ(model.Link4, e.Link4);
    EXPECT_EQ(model.LinkO4D, e.LinkO4D);
    EXPECT_EQ(model.Link5, e.Link5);
    EXPECT_EQ(model.Link6, e.Link6);
    EXPECT_EQ(model.O4X, e.O4X);
    EXPECT_EQ(model.O4Y, e.O4Y);
    EXPECT_EQ(model.O4LocalX, e.O4X);
    EXPECT_EQ(model.O4LocalY, e.O4Y);
    EXPECT_EQ(model.O6X, e.O6X);
    EXPECT_EQ(model.O6Y, e.O6Y);
    EXPECT_EQ(model.O6LocalX, e.O6X);
    EXPECT_EQ(model.O6LocalY, e.O6Y);
    EXPECT_EQ(model.CouplerAC, e.CouplerAC);
    EXPECT_EQ(model.Coupler2Length, e.Coupler2Length);
    EXPECT_EQ(model.OpenCross1, e.OpenCross1);
    EXPECT_EQ(model.OpenSign1, e.OpenSign1);
    EXPECT_EQ(model.OpenCross1Text, e.OpenCross1Text);
    EXPECT_EQ(model.OpenCross2, e.OpenCross2);
    EXPECT_EQ(model.OpenSign2, e.OpenSign2);
    EXPECT_EQ(model.OpenCross2Text, e.OpenCross2Text);
    EXPECT_EQ(model.Omega2Start, e.Omega2Start);
}

TEST_P(ExampleTest, AnglesStandInDegreesRadiansAndTexts) {
    Mark_All_Fields(model);
    Loaded();
    const Expected& e = GetParam();
    struct Angle {
        float degrees, radians;
        const std::string& text;
        float expected;
        const char* expected_text;
    };
    for (const Angle& angle :
         {Angle{model.Delta3Deg, model.Delta3, model.Delta3Text, e.Delta3Deg, e.Delta3Text},
          Angle{model.Delta4Deg, model.Delta4, model.Delta4Text, e.Delta4Deg, e.Delta4Text},
          Angle{model.Delta5Deg, model.Delta5, model.Delta5Text, e.Delta5Deg, e.Delta5Text},
          Angle{model.ThetaMinDeg, model.ThetaMin, model.ThetaMinText, e.ThetaMinDeg, e.ThetaMinText},
          Angle{model.ThetaMaxDeg, model.ThetaMax, model.ThetaMaxText, e.ThetaMaxDeg, e.ThetaMaxText},
          Angle{model.ThetaStepDeg, model.ThetaStep, model.ThetaStepText, e.ThetaStepDeg, e.ThetaStepText}}) {
        EXPECT_EQ(angle.degrees, angle.expected);
        EXPECT_EQ(angle.radians, Radians(angle.expected));
        EXPECT_EQ(angle.text, angle.expected_text);
    }
}

TEST_P(ExampleTest, GeometryIsDerived) {
    Mark_All_Fields(model);
    Loaded();
    const Expected& e = GetParam();
    const double x = double(e.O6X) - e.O4X, y = e.O6Y;
    EXPECT_FLOAT_EQ(model.O4O6X, static_cast<float>(x));
    EXPECT_FLOAT_EQ(model.O4O6Y, static_cast<float>(y));
    EXPECT_FLOAT_EQ(model.O4O6Length, static_cast<float>(std::hypot(x, y)));
    EXPECT_NEAR(model.O4O6AngleDeg, std::atan2(y, x) * DegreesPerRadian, 1e-5);
    EXPECT_NEAR(model.O4O6Angle, std::atan2(y, x), 1e-7);
    EXPECT_FLOAT_EQ(model.O2O6Length, static_cast<float>(std::hypot(double(e.O6X), y)));
    EXPECT_NEAR(model.O2O6AngleDeg, std::atan2(y, double(e.O6X)) * DegreesPerRadian, 1e-5);
    EXPECT_NEAR(model.O2O6Angle, std::atan2(y, double(e.O6X)), 1e-7);
    const float lengths[] = {e.CouplerAC, e.Link1, e.Link2,   e.Link3,         e.Link4,
                             e.Link5,     e.Link6, e.LinkO4D, model.O2O6Length};
    for (int i = 0; i < 9; ++i) EXPECT_EQ(model.LinkTable(i), lengths[i]) << i;
}

TEST_P(ExampleTest, TouchesNoOtherField) {
    Mark_All_Fields(model);
    const LinkageModel before = model;
    Loaded();
    std::vector<std::string> expected = {"ModelTitle",    "LinkageType",  "Link1",
                                         "Link2",         "Link3",        "Link4",
                                         "Link5",         "Link6",        "O4X",
                                         "O4Y",           "O4LocalX",     "O4LocalY",
                                         "O6X",           "O6Y",          "O6LocalX",
                                         "O6LocalY",      "CouplerAC",    "Coupler2Length",
                                         "Delta3Deg",     "Delta3",       "Delta3Text",
                                         "Delta5Deg",     "Delta5",       "Delta5Text",
                                         "OpenCross1",    "OpenSign1",    "OpenCross1Text",
                                         "OpenCross2",    "OpenSign2",    "OpenCross2Text",
                                         "Omega2Start",   "ThetaMinDeg",  "ThetaMin",
                                         "ThetaMinText",  "ThetaMaxDeg",  "ThetaMax",
                                         "ThetaMaxText",  "ThetaStepDeg", "ThetaStep",
                                         "ThetaStepText", "O4O6X",        "O4O6Y",
                                         "O4O6Length",    "O4O6AngleDeg", "O4O6Angle",
                                         "O2O6Length",    "O2O6AngleDeg", "O2O6Angle",
                                         "LinkTable"};
    if (!Is_Same(GetParam().LinkO4D, kNotSet)) expected.push_back("LinkO4D");
    if (!Is_Same(GetParam().Delta4Deg, kNotSet))
        expected.insert(expected.end(), {"Delta4Deg", "Delta4", "Delta4Text"});
    std::vector<std::string> changed = Differing_Fields(model, before);
    std::sort(expected.begin(), expected.end());
    std::sort(changed.begin(), changed.end());
    EXPECT_EQ(changed, expected);
}

TEST_P(ExampleTest, SweepsWithoutAFailedStep) {
    Loaded();
    EXPECT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    EXPECT_EQ(model.NumSteps, GetParam().NumSteps);
    EXPECT_FALSE(model.SomeStepFailed);
    for (int row = 0; row <= model.NumSteps; ++row) {
        EXPECT_TRUE(tables.StepValid(row)) << row;
        const double user = GetParam().ThetaMinDeg + double(GetParam().ThetaStepDeg) * row;
        EXPECT_NEAR(tables.Theta(row, 0), user, 2e-3) << row;
    }
}

INSTANTIATE_TEST_SUITE_P(All, ExampleTest, ::testing::ValuesIn(kExpected), [](const auto& param) {
    std::string name = param.param.name;
    name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
    return name;
});

using ExamplesTest = KinematicsTest;

TEST_F(ExamplesTest, AreFourInTheirOrder) {
    ASSERT_EQ(Examples().size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(Examples()[i].name, kExpected[i].name);
}

TEST_F(ExamplesTest, UnknownNameFindsNone) {
    for (const char* name : {"", "Watt", "watts", "double dwell"}) EXPECT_EQ(Find_Example(name), nullptr);
}

TEST_F(ExamplesTest, HoekenAfterWattKeepsTheArmOfLink4) {
    Load_Example(model, *Find_Example("watt"));
    Load_Example(model, *Find_Example("hoeken"));
    EXPECT_EQ(model.LinkO4D, 8);
    EXPECT_EQ(model.Delta4Deg, -30);
    EXPECT_EQ(model.Delta4Text, "-30");
    EXPECT_EQ(model.LinkTable(7), 8);
}

TEST_F(ExamplesTest, HoekenSweepsBeyond360Degrees) {
    Load_Example(model, *Find_Example("hoeken"));
    Calculate_Model(*program);
    EXPECT_EQ(model.AngleRange, "abs");
    EXPECT_NEAR(tables.Theta(72, 0), 540, 2e-3);
    EXPECT_GT(tables.Theta(37, 0), 360);
}

TEST_F(ExamplesTest, RobertsHasCouplerPoint1OnA) {
    Load_Example(model, *Find_Example("roberts"));
    Calculate_Model(*program);
    for (int row = 0; row <= 36; ++row) {
        EXPECT_EQ(tables.PointPos(row, 2), tables.PointPos(row, 0));
        EXPECT_EQ(tables.PointVel(row, 2), tables.PointVel(row, 0));
        EXPECT_EQ(tables.PointAcc(row, 2), tables.PointAcc(row, 0));
    }
}

TEST_F(ExamplesTest, DwellLinkagesHaveACrossedStage2BehindAnOpenStage1) {
    for (const char* name : {"hoeken", "double-dwell"}) {
        Load_Example(model, *Find_Example(name));
        Calculate_Model(*program);
        EXPECT_EQ(model.OpenSign1, -1);
        EXPECT_EQ(model.OpenSign2, 1);
    }
}

TEST_F(ExamplesTest, OutputsOfTheDwellLinkagesDwell) {
    // The point of these linkages: over a stretch of the turn link 6 all but stands.
    for (const char* name : {"hoeken", "double-dwell"}) {
        Load_Example(model, *Find_Example(name));
        Calculate_Model(*program);
        int longest = 0, current = 0;
        for (int row = 1; row <= model.NumSteps; ++row) {
            const bool stands = std::abs(tables.Theta(row, 5) - tables.Theta(row - 1, 5)) < 0.5F;
            current = stands ? current + 1 : 0;
            longest = std::max(longest, current);
        }
        EXPECT_GE(longest * double(model.ThetaStepDeg), 40) << name;
    }
}

}  // namespace
}  // namespace kervol
