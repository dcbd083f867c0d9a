// SPDX-License-Identifier: GPL-3.0-or-later
// Geometry that follows from the stored fields, worked out by hand.
#include "core/geometry.h"

#include <string>
#include <vector>

#include "core/mathematics.h"
#include "core/thrown_fault.h"
#include "support/compare.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

constexpr double kRadians = 0.017453292522222223;

/// Pivots such that O4 to O6 is a 3-4-5 triangle and O2 to O6 a 5-12-13 one, lengths all different.
LinkageModel Sample() {
    LinkageModel model;
    model.O4LocalX = 8.0F;
    model.O4LocalY = 8.0F;
    model.O6LocalX = 5.0F;
    model.O6LocalY = 12.0F;
    model.CouplerAC = 10.0F;
    model.Link1 = 11.0F;
    model.Link2 = 12.0F;
    model.Link3 = 13.0F;
    model.Link4 = 14.0F;
    model.Link5 = 15.0F;
    model.Link6 = 16.0F;
    model.LinkO4D = 17.0F;
    return model;
}

TEST(SetAngle, WritesRadiansAndPlainText) {
    float radians = 0.0F;
    std::string text;
    const struct {
        float degrees;
        const char* text;
    } cases[] = {{0.0F, "0"}, {180.0F, "180"}, {-40.25F, "-40.25"}, {0.1F, "0.1"}, {1e7F, "1E+07"}};
    for (const auto& c : cases) {
        Set_Angle(c.degrees, radians, text);
        EXPECT_EQ(radians, static_cast<float>(double(c.degrees) * kRadians));
        EXPECT_EQ(text, c.text);
    }
    Set_Angle(180.0F, radians, text);
    EXPECT_FLOAT_EQ(radians, 3.14159265F);
}

TEST(SetOffsetAngles, WritesTheTwinsOfTheThreeOffsetAnglesAlone) {
    LinkageModel before;
    before.Delta3Deg = 30.0F;
    before.Delta4Deg = -45.5F;
    before.Delta5Deg = 90.0F;
    LinkageModel model = before;
    Set_Offset_Angles(model);
    EXPECT_FLOAT_EQ(model.Delta3, 0.523598776F);
    EXPECT_FLOAT_EQ(model.Delta4, -0.794124810F);
    EXPECT_FLOAT_EQ(model.Delta5, 1.57079633F);
    EXPECT_EQ(model.Delta3Text, "30");
    EXPECT_EQ(model.Delta4Text, "-45.5");
    EXPECT_EQ(model.Delta5Text, "90");
    EXPECT_EQ(
        Differing_Fields(before, model),
        (std::vector<std::string>{"Delta3", "Delta3Text", "Delta4", "Delta4Text", "Delta5", "Delta5Text"}));
}

TEST(SetRangeAngles, WritesTheTwinsOfTheAngleRangeAlone) {
    LinkageModel before;
    before.ThetaMinDeg = -90.0F;
    before.ThetaMaxDeg = 360.0F;
    before.ThetaStepDeg = 2.5F;
    LinkageModel model = before;
    Set_Range_Angles(model);
    EXPECT_FLOAT_EQ(model.ThetaMin, -1.57079633F);
    EXPECT_FLOAT_EQ(model.ThetaMax, 6.28318531F);
    EXPECT_FLOAT_EQ(model.ThetaStep, 0.0436332313F);
    EXPECT_EQ(model.ThetaMinText, "-90");
    EXPECT_EQ(model.ThetaMaxText, "360");
    EXPECT_EQ(model.ThetaStepText, "2.5");
    EXPECT_EQ(Differing_Fields(before, model),
              (std::vector<std::string>{"ThetaMin", "ThetaMax", "ThetaStep", "ThetaMinText", "ThetaMaxText",
                                        "ThetaStepText"}));
}

TEST(DeriveGeometry, GivesTheLineFromO4ToO6) {
    LinkageModel model = Sample();
    Derive_Geometry(model);
    EXPECT_EQ(model.O4O6X, -3.0F);
    EXPECT_EQ(model.O4O6Y, 4.0F);
    EXPECT_EQ(model.O4O6Length, 5.0F);
    EXPECT_FLOAT_EQ(model.O4O6AngleDeg, 126.869898F);
    EXPECT_EQ(model.O4O6Angle, static_cast<float>(double(model.O4O6AngleDeg) * kRadians));
}

TEST(DeriveGeometry, GivesTheLineFromO2ToO6) {
    LinkageModel model = Sample();
    Derive_Geometry(model);
    EXPECT_EQ(model.O2O6Length, 13.0F);
    EXPECT_FLOAT_EQ(model.O2O6AngleDeg, 67.3801350F);
    EXPECT_EQ(model.O2O6Angle, static_cast<float>(double(model.O2O6AngleDeg) * kRadians));
}

TEST(DeriveGeometry, DoesNotNormaliseItsAngles) {
    LinkageModel model = Sample();
    model.O6LocalX = -5.0F;
    model.O6LocalY = -12.0F;
    Derive_Geometry(model);
    EXPECT_FLOAT_EQ(model.O2O6AngleDeg, 247.380135F);
    EXPECT_FLOAT_EQ(model.O4O6AngleDeg, 236.976132F);  // of (-13, -20)
    EXPECT_GT(model.O2O6Angle, 4.0F);
}

TEST(DeriveGeometry, OfO6OnO4IsZeroWithoutAFault) {
    LinkageModel model = Sample();
    model.O6LocalX = model.O4LocalX;
    model.O6LocalY = model.O4LocalY;
    Derive_Geometry(model);
    EXPECT_EQ(model.O4O6Length, 0.0F);
    EXPECT_EQ(model.O4O6AngleDeg, 0.0F);
    EXPECT_EQ(model.O4O6Angle, 0.0F);
}

TEST(DeriveGeometry, FillsTheTableOfLengthsInItsOrder) {
    LinkageModel model = Sample();
    model.O2O6Length = 99.0F;
    Derive_Geometry(model);
    const float lengths[] = {10.0F, 11.0F, 12.0F, 13.0F, 14.0F, 15.0F, 16.0F, 17.0F, 13.0F};
    for (int i = 0; i <= 8; ++i) EXPECT_EQ(model.LinkTable(i), lengths[i]) << i;
}

TEST(DeriveGeometry, WritesItsOwnFieldsAndNoOthers) {
    const LinkageModel before = Sample();
    LinkageModel model = before;
    Derive_Geometry(model);
    const std::vector<std::string> written = {"O4O6X",        "O4O6Y",     "O4O6Length",
                                              "O4O6AngleDeg", "O4O6Angle", "O2O6Length",
                                              "O2O6AngleDeg", "O2O6Angle", "LinkTable"};
    EXPECT_EQ(Differing_Fields(before, model), written);
}

// O4 at (30, 40) and O6 at (-30, 20) in the user frame: the ground lies at 53.13 degrees. In the local frame
// O4 is (50, 0) and O6, by its components along and across the ground, (-2, 36).
TEST(DeriveGeometry, OfATurnedGroundWorksInTheLocalFrame) {
    LinkageModel model;
    model.O4X = 30.0F;
    model.O4Y = 40.0F;
    model.O6X = -30.0F;
    model.O6Y = 20.0F;
    Derive_Ground_Link(model);
    Derive_Local_O4(model);
    Derive_Local_O6(model);
    Derive_Geometry(model);
    EXPECT_FLOAT_EQ(model.O4LocalX, model.Link1);
    // 1e-4: the ground angle is a single in degrees, an error of 2e-6 degrees at a distance of 65.
    EXPECT_NEAR(model.O4LocalY, 0.0F, 1e-4F);
    EXPECT_NEAR(model.O4O6X, -52.0F, 1e-4F);
    EXPECT_NEAR(model.O4O6Y, 36.0F, 1e-4F);
    EXPECT_FLOAT_EQ(model.O4O6Length, 63.2455532F);  // turning keeps it: of (-60, -20)
    EXPECT_FLOAT_EQ(model.O2O6Length, 36.0555128F);  // of (-30, 20)
    // The user frame's 198.434949 and 146.309932 degrees less the 53.130102 of the ground.
    EXPECT_NEAR(model.O4O6AngleDeg, 145.304846F, 1e-4F);
    EXPECT_NEAR(model.O2O6AngleDeg, 93.179830F, 1e-4F);
}

TEST(DeriveGeometry, KeepsWhatItWroteBeforeAnOverflow) {
    LinkageModel model = Sample();
    model.O4LocalX = 0.0F;
    model.O4LocalY = -3e38F;
    model.O6LocalX = 1.0F;
    model.O6LocalY = 3e38F;
    EXPECT_EQ(Thrown([&] { Derive_Geometry(model); }).number, 6);
    EXPECT_EQ(model.O4O6X, 1.0F);
    EXPECT_EQ(model.O4O6Y, 0.0F);
    EXPECT_EQ(model.LinkTable(0), 0.0F);
}

TEST(DeriveGeometry, KeepsTheFirstAngleWhereItsLengthOverflows) {
    LinkageModel model = Sample();
    model.O4LocalX = 0.0F;
    model.O4LocalY = 0.0F;
    model.O6LocalX = 3e38F;
    model.O6LocalY = 3e38F;
    Expect_Thrown(6, "Cart_to_Polar", [&] { Derive_Geometry(model); });
    EXPECT_EQ(model.O4O6X, 3e38F);
    EXPECT_FLOAT_EQ(model.O4O6AngleDeg, 45.0F);
    EXPECT_EQ(model.O4O6Length, 0.0F);
    EXPECT_EQ(model.O4O6Angle, 0.0F);
}

}  // namespace
}  // namespace kervol
