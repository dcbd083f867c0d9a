// SPDX-License-Identifier: GPL-3.0-or-later
// Default link data: every entry of every array, whatever stood there before.
#include "dynamics/link_data.h"

#include <string>
#include <vector>

#include "support/compare.h"
#include "support/program_test.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

/// A geometry with lengths all different, and link data of an earlier model everywhere.
LinkageModel Used() {
    LinkageModel model;
    for (LinkArray* array : {&model.LinkMass, &model.LinkInertia, &model.ForceMag, &model.ForceAngle,
                             &model.ForceX, &model.ForceY, &model.ForcePointDist, &model.ForcePointAngle,
                             &model.LinkTorque, &model.LinkFriction})
        array->Fill(Poison);
    model.LinkCG.Fill(Poison);
    for (int i = 0; i <= 8; ++i) model.LinkTable(i) = 10.0F + 3.0F * static_cast<float>(i);
    model.CouplerAC = 7.25F;
    model.Delta3 = -0.75F;
    return model;
}

TEST(DefaultMassProperties, GiveEachLinkItsMassAndTwiceThatAsInertia) {
    LinkageModel model = Used();
    Default_Mass_Properties(model);
    const float masses[] = {0.0F, 0.0F, 0.003F, 0.01F, 0.006F, 0.02F, 0.01F};
    for (int link = 0; link <= 6; ++link) {
        EXPECT_EQ(model.LinkMass(link), masses[link]) << link;
        EXPECT_EQ(model.LinkInertia(link), masses[link] * 2.0F) << link;
    }
}

TEST(DefaultMassProperties, PutTheCentreOfGravityIntoTheMiddleOfTheLink) {
    LinkageModel model = Used();
    Default_Mass_Properties(model);
    const float middles[] = {0.0F, 0.0F, 8.0F, 7.25F, 11.0F, 12.5F, 14.0F};
    for (int link = 0; link <= 6; ++link) {
        EXPECT_EQ(model.LinkCG(link, 0), middles[link]) << link;
        if (link != 3) {
            EXPECT_EQ(model.LinkCG(link, 1), 0.0F) << link;
        }
    }
}

TEST(DefaultMassProperties, PutTheCentreOfGravityOfTheCouplerToCouplerPoint1) {
    LinkageModel model = Used();
    Default_Mass_Properties(model);
    EXPECT_EQ(model.LinkCG(3, 0), model.CouplerAC);
    EXPECT_EQ(model.LinkCG(3, 1), model.Delta3);
}

TEST(DefaultMassProperties, ZeroAllLoads) {
    LinkageModel model = Used();
    Default_Mass_Properties(model);
    for (const LinkArray* array :
         {&model.ForceMag, &model.ForceAngle, &model.ForceX, &model.ForceY, &model.ForcePointDist,
          &model.ForcePointAngle, &model.LinkTorque, &model.LinkFriction})
        for (int link = 0; link <= 6; ++link) EXPECT_EQ((*array)(link), 0.0F) << link;
}

TEST(DefaultMassProperties, WriteLinkDataAndNothingElse) {
    const LinkageModel before = Used();
    LinkageModel model = before;
    Default_Mass_Properties(model);
    const std::vector<std::string> written = {
        "LinkMass", "LinkInertia",    "LinkCG",          "ForceMag",   "ForceAngle",  "ForceX",
        "ForceY",   "ForcePointDist", "ForcePointAngle", "LinkTorque", "LinkFriction"};
    EXPECT_EQ(Differing_Fields(before, model), written);
}

TEST(ExternalForces, AreResolvedForLinks3To6Alone) {
    LinkageModel model = Used();
    const float magnitudes[] = {0, 0, 7, 10, -10, 2, 0};
    const float angles[] = {0, 0, 7, 60, 180, -90, 33};
    for (int link = 2; link <= 6; ++link) {
        model.ForceMag(link) = magnitudes[link];
        model.ForceAngle(link) = angles[link];
    }
    Resolve_External_Forces(model);
    const double x[] = {Poison, Poison, Poison, 5, 10, 0, 0};
    const double y[] = {Poison, Poison, Poison, 8.660254, 0, -2, 0};
    for (int link = 0; link <= 6; ++link) {
        EXPECT_NEAR(model.ForceX(link), x[link], 1e-6) << link;
        EXPECT_NEAR(model.ForceY(link), y[link], 1e-6) << link;
    }
}

TEST(ExternalForces, UseTheProgramsOwnPi) {
    LinkageModel model = Used();
    model.ForceMag(3) = 1;
    model.ForceAngle(3) = 180;
    Resolve_External_Forces(model);
    // sin(3.141592654) is the error of that pi: -4.1e-10.
    EXPECT_NEAR(model.ForceY(3), -4.1e-10, 1e-12);
}

TEST(CGAngle, IsHeldInRadiansAndGivenInDegrees) {
    LinkageModel model = Used();
    Set_CG_Angle(model, 4, 30);
    EXPECT_EQ(model.LinkCG(4, 1), 0.5235988F);
    EXPECT_NEAR(CG_Angle_Degrees(model, 4), 30, 1e-5);
    EXPECT_EQ(model.LinkCG(4, 0), Poison);
    model.LinkCG(4, 1) = 1;
    EXPECT_DOUBLE_EQ(CG_Angle_Degrees(model, 4), 57.29577950560105);
}

class FreshProgram : public ProgramTest {};

TEST_F(FreshProgram, HasTheDefaultLinkDataOfItsGeometry) {
    EXPECT_EQ(model.LinkMass(5), 0.02F);
    EXPECT_EQ(model.LinkInertia(2), 0.006F);
    EXPECT_EQ(model.LinkCG(2, 0), model.Link2 / 2.0F);
    EXPECT_EQ(model.LinkCG(4, 0), model.Link4 / 2.0F);
    EXPECT_EQ(model.LinkCG(5, 0), model.Link5 / 2.0F);
    EXPECT_EQ(model.LinkCG(6, 0), model.Link6 / 2.0F);
    EXPECT_EQ(model.LinkCG(3, 0), model.CouplerAC);
    EXPECT_EQ(model.LinkCG(3, 1), model.Delta3);
    EXPECT_GT(model.Link2, 0.0F);
}

}  // namespace
}  // namespace kervol
