// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of the Dynamics screen: what they show, when they are filled, and how they are read.
#include <cmath>

#include "core/arithmetic.h"
#include "core/fault.h"
#include "core/units.h"
#include "files/model_file.h"
#include "screens/mass_prop_fixture.h"
#include "support/compare.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MassPropFields : public MassPropTest {
  protected:
    static std::vector<std::string> Texts(const LinkFields& fields, int first_link) {
        std::vector<std::string> texts;
        for (std::size_t link = static_cast<std::size_t>(first_link); link < fields.size(); ++link)
            texts.push_back(fields.at(link).text);
        return texts;
    }
    std::vector<std::string> Units() const {
        return {screen.lbl_MassUnit.caption,     screen.lbl_InertiaUnit.caption,
                screen.Lbl_DistUnit[1].caption,  screen.lbl_AngUnit[1].caption,
                screen.lbl_ForceUnit[1].caption, screen.lbl_AngUnit[2].caption,
                screen.Lbl_DistUnit[2].caption,  screen.lbl_AngUnit[3].caption,
                screen.lbl_TorqueUnit.caption,   screen.lbl_ForceUnit[2].caption};
    }
};

TEST_F(MassPropFields, ShowTheDefaultsOfANewModelAsPlainNumbers) {
    Open();
    EXPECT_THAT(Texts(screen.txt_Mass, 2), ElementsAre("0.003", "0.01", "0.006", "0.02", "0.01"));
    EXPECT_THAT(Texts(screen.txt_Inertia, 2), ElementsAre("0.006", "0.02", "0.012", "0.04", "0.02"));
    for (const LinkFields* fields : {&screen.txt_MagForce, &screen.txt_AngForce, &screen.txt_DistP,
                                     &screen.txt_AngP, &screen.txt_Torque, &screen.txt_Frict})
        EXPECT_THAT(Texts(*fields, 3), ElementsAre("0", "0", "0", "0"));
}

TEST_F(MassPropFields, ShowEveryArrayAtItsLinks) {
    float value = 0.5;
    for (const MassPropColumn& column : Columns())
        for (int link = column.first_link; link <= 6; ++link) (model.*column.values)(link) = value += 1;
    model.LinkCG(4, 0) = 1.5E-7F;
    Open();
    value = 0.5;
    for (const MassPropColumn& column : Columns())
        for (int link = column.first_link; link <= 6; ++link) {
            const std::string expected = std::to_string(static_cast<int>(value += 1)) + ".5";
            EXPECT_EQ(At(screen.*column.fields, link).text, expected) << column.name << " " << link;
        }
    EXPECT_EQ(screen.txt_DistCG[4].text, "1.5E-07");
}

TEST_F(MassPropFields, TheAngleOfTheCGIsShownInDegreesWithTwoDecimals) {
    const float radians[] = {0, 1.5707964F, -0.7853982F, 6.2831855F, 0.0001F};
    for (int link = 2; link <= 6; ++link) model.LinkCG(link, 1) = radians[link - 2];
    Open();
    EXPECT_THAT(Texts(screen.txt_AngCG, 2), ElementsAre("0.00", "90.00", "-45.00", "360.00", "0.01"));
}

TEST_F(MassPropFields, ShowTheUnitsOfTheSystemEachTimeTheyOpen) {
    const struct {
        std::int16_t system;
        std::string mass, inertia, length, force, torque;
    } cases[] = {{1, "bl", "in-lb-s^2", "in", "lb", "lb-in"}, {2, "sl", "ft-lb-^2", "ft", "lb", "lb-ft"},
                 {3, "kg", "kg-m^2", "m", "N", "N-m"},        {4, "g", "g-cm^2", "cm", "dyn", "dyn-cm"},
                 {5, "kg", "kg-mm^2", "mm", "kN", "kN-mm"},   {0, "", "", "", "", "-"}};
    for (const auto& [system, mass, inertia, length, force, torque] : cases) {
        model.UnitSystem = system;
        Put_Units(model);
        Open();
        EXPECT_THAT(Units(), ElementsAre(mass, inertia, length, "degrees", force, "degrees", length,
                                         "degrees", torque, force))
            << system;
        EXPECT_EQ(screen.txt_Mass[2].text, "0.003") << "labels alone change";
    }
}

TEST_F(MassPropFields, AModelReadFromAFileFillsThemBeforeTheInputScreenOpens) {
    TemporaryFolder folder;
    model.LinkMass(5) = 0.125F;
    model.LinkCG(6, 1) = 1.5707964F;
    model.LinkFriction(4) = 7;
    Save_Model_As(*program, folder / "loads.kvl");
    Take_Box();
    model.LinkMass(5) = 3;
    bool filled = false;
    port.opening[ScreenId::frm_Inputnew] = [&] {
        filled = screen.txt_Mass[5].text == "0.125" && screen.txt_AngCG[6].text == "90.00" &&
                 screen.txt_Frict[4].text == "7";
    };
    model.DataCalculated = false;
    port.files = {folder / "loads.kvl"};
    home.mnu_Open.click();
    Take_Box();
    EXPECT_TRUE(filled);
}

TEST_F(MassPropFields, SolvingUntouchedFieldsChangesNoDatumOfTheModel) {
    // Values that neither two decimals nor degrees bring back.
    for (int link = 2; link <= 6; ++link) {
        const auto part = static_cast<float>(link);
        model.LinkMass(link) = 1 / (part + 1);
        model.LinkInertia(link) = 1E-9F / part;
        model.LinkCG(link, 0) = std::sqrt(part);
        if (link > 2) model.ForceMag(link) = 1E7F / part;
    }
    for (int turn = 1; turn <= 200; ++turn) {
        for (int link = 2; link <= 6; ++link)
            model.LinkCG(link, 1) = std::sin(static_cast<float>(7 * turn + link)) * 3;
        Open();
        const LinkageModel before = model;
        Solve();
        EXPECT_THAT(Differing_Fields(model, before), ::testing::IsSubsetOf({"DynamicsCalculated", "ForceX"}));
        EXPECT_EQ(model.LinkCG, before.LinkCG);
    }
}

TEST_F(MassPropFields, EachFieldGoesToItsOwnArrayAndLink) {
    for (const MassPropColumn& column : Columns())
        for (int link = column.first_link; link <= 6; ++link) {
            const bool taken = std::string(column.name) != "txt_Frict" || link == 3 || link == 5;
            Open();
            LinkageModel expected = model;
            Type(At(screen.*column.fields, link), "2.75");
            Solve();
            if (taken) (expected.*column.values)(link) = 2.75;
            // What follows from it.
            expected.ForceX = model.ForceX;
            expected.ForceY = model.ForceY;
            expected.DynamicsCalculated = true;
            EXPECT_THAT(Differing_Fields(model, expected), IsEmpty()) << column.name << " " << link;
        }
}

TEST_F(MassPropFields, ThePlaceOfTheCGGoesToItsArray) {
    Open();
    for (int link = 2; link <= 6; ++link) {
        Type(At(screen.txt_DistCG, link), std::to_string(link) + ".25");
        Type(At(screen.txt_AngCG, link), std::to_string(30 * link));
    }
    Solve();
    for (int link = 2; link <= 6; ++link) {
        EXPECT_EQ(model.LinkCG(link, 0), static_cast<float>(link) + 0.25F);
        EXPECT_EQ(model.LinkCG(link, 1), static_cast<float>(30 * link * 0.017453292522222223));
    }
}

TEST_F(MassPropFields, AnAngleTypedAsItStoodIsTakenAsTyped) {
    model.LinkCG(3, 1) = 0.12345678F;
    Open();
    ASSERT_EQ(screen.txt_AngCG[3].text, "7.07");
    Type(screen.txt_AngCG[3], "7.07");
    Solve();
    EXPECT_EQ(model.LinkCG(3, 1), static_cast<float>(7.07 * 0.017453292522222223));
}

TEST_F(MassPropFields, AreReadByTheNumberTheyBeginWith) {
    const std::pair<const char*, float> cases[] = {
        {"", 0},        {"heavy", 0},          {"  2.5 kg", 2.5}, {"-3e-2", -0.03F},
        {".5.5", 0.5F}, {"1,234.500", 1234.5}, {"1,5", 1},        {"+4", 4},
    };
    for (const auto& [text, value] : cases) {
        Open();
        Type(screen.txt_Mass[4], text);
        Type(screen.txt_Torque[5], text);
        Type(screen.txt_AngCG[2], text);
        Solve();
        EXPECT_EQ(model.LinkMass(4), value) << text;
        EXPECT_EQ(model.LinkTorque(5), value) << text;
        EXPECT_EQ(model.LinkCG(2, 1), Single(value * 0.017453292522222223)) << text;
    }
}

TEST_F(MassPropFields, AForceIsResolvedAndANegativeOneReversed) {
    Open();
    Type(screen.txt_MagForce[4], "10");
    Type(screen.txt_AngForce[4], "60");
    Type(screen.txt_MagForce[6], "-10");
    Type(screen.txt_AngForce[6], "60");
    Solve();
    // By hand: 10 cos 60 and 10 sin 60.
    EXPECT_NEAR(model.ForceX(4), 5, 1e-6);
    EXPECT_NEAR(model.ForceY(4), 8.6602540, 1e-6);
    EXPECT_EQ(model.ForceX(6), -model.ForceX(4));
    EXPECT_EQ(model.ForceY(6), -model.ForceY(4));
    EXPECT_EQ(model.ForceX(3), 0);
}

TEST_F(MassPropFields, FrictionOfLinks4And6ChangesNoResult) {
    Open_And_Solve();
    const auto forces = tables.ForceTable;
    const auto torques = tables.TorqueTable;
    Type(screen.txt_Frict[4], "50");
    Type(screen.txt_Frict[6], "60");
    Solve();
    EXPECT_TRUE(tables.ForceTable == forces);
    EXPECT_TRUE(tables.TorqueTable == torques);
    EXPECT_EQ(model.LinkFriction(4), 0);
    Type(screen.txt_Frict[5], "60");
    Solve();
    EXPECT_FALSE(tables.ForceTable == forces);
}

TEST_F(MassPropFields, ANumberTooLargeIsAFaultAndNothingIsSolved) {
    Poison_Tables(tables);
    Open();
    Type(screen.txt_Inertia[6], "1e39");
    port.trace.clear();
    Solve();
    Expect_Fault(fault::Overflow, "cmd_solve_Click");
    EXPECT_EQ(tables.ForceTable(0, 0, 0), Poison);
    EXPECT_FALSE(model.DynamicsCalculated);
    EXPECT_EQ(Buttons_On(), kOnlySolve);
    EXPECT_EQ(port.pointer, Pointer::Default);
    EXPECT_THAT(port.trace, ElementsAre("box"));
}

}  // namespace
}  // namespace kervol
