// SPDX-License-Identifier: GPL-3.0-or-later
// The linkage in the fields: what is shown, what is read back, and that looking changes nothing.
#include "screens/geometry_fields.h"

#include <cmath>

#include "files/model_file.h"
#include "screens/screens_fixture.h"
#include "support/compare.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::IsSubsetOf;

constexpr const char* kPositive = "This value must be positive.  Please redo.";

class GeometryFields : public ScreensTest {
  protected:
    /// Opens the Input screen and leaves it as the user may: by Back, or on to the next.
    void Look_At_Input() {
        Open_Input();
        input.cmd_Cancel.click();
        Open_Input();
        input.cmd_Next.click();
    }

    /// Fields of the model that looking changed, beside the flags and settings that opening sets.
    std::vector<std::string> Changed_By_Looking() {
        // What follows from nothing that the user gave may be set by the first look.
        model.StepMode = "Y";
        model.ShowCoupler = "Y";
        // The Animation screen shows the points of an angle sweep and not those of time steps.
        model.ShowPoints = model.CalcMode == 3 ? "Y" : "N";
        model.ShowTrace = "N";
        model.HideLinks = "N";
        model.DataCalculated = false;
        model.OpenCross1Text = model.OpenCross1 == 1 ? "Open" : "Crossed";
        model.OpenCross2Text = model.OpenCross2 == 1 ? "Open" : "Crossed";
        Fill_Drive_Angle();
        const LinkageModel before = model;
        Look_At_Input();
        return Differing_Fields(model, before);
    }

    /// The direction from O6 to O4 is written when the geometry is read, for the record.
    void Fill_Drive_Angle() {
        Open_Input();
        Get_Input_Geometry(*screens);
    }

    /// Lengths and angles that no field shows whole.
    void Put_Many_Decimals() {
        const float third = 1.0F / 3;
        for (float* value : {&model.Link2, &model.Link3, &model.Link4, &model.LinkO4D, &model.Link5,
                             &model.Link6, &model.CouplerAC, &model.Coupler2Length})
            *value += third;
        model.Delta3Deg = 12.34567F;
        model.Delta4Deg = -29.87654F;
        model.Delta5Deg = 0.00321F;
        model.Theta2One = 33.333332F;
        model.Omega2Start = 9.8765432F;
        model.Alpha2Const = -1.2345678F;
        model.ThetaMinDeg = 0.1234567F;
        model.ThetaMaxDeg = 359.87654F;
        model.ThetaStepDeg = 1.2345678F;
        model.TimeStart = 0.0123456F;
        model.TimeEnd = 4.9876542F;
        model.TimeStep = 0.0012345F;
    }

    /// As a model file brings it: pivots in the user frame, the ground turned, all that follows rebuilt.
    void Reread() {
        const TemporaryFolder folder;
        Save_Model_As(*program, folder / "m.kvl");
        Take_Box();
        model.DataSaved = false;
        port.files = {folder / "m.kvl"};
        home.mnu_Open.click();
        Take_Box();
        model.ModelPath.clear();
    }
};

TEST_F(GeometryFields, LookingAtTheScreenChangesNoFieldOfAnyExample) {
    for (const MenuItem* entry : {&home.mnu_Test, &home.mnu_Hoeken, &home.mnu_Roberts, &home.mnu_Double}) {
        entry->click();
        EXPECT_THAT(Changed_By_Looking(), IsEmpty()) << model.ModelTitle;
    }
    EXPECT_EQ(model.CouplerAC, 8.75F);
}

TEST_F(GeometryFields, LookingAtTheScreenAfterAFreshStartSetsOnlyFlagsAndTexts) {
    const LinkageModel before = model;
    Look_At_Input();
    EXPECT_THAT(Differing_Fields(model, before),
                IsSubsetOf({"StepMode", "HideLinks", "ShowTrace", "ShowPoints", "OpenCross1Text",
                            "OpenCross2Text", "O6O4AngleDeg", "O6O4Angle"}));
}

TEST_F(GeometryFields, LookingKeepsEveryDecimalInEveryMode) {
    for (const std::int16_t mode : Int16List{1, 2, 3, 4, 5}) {
        Put_Many_Decimals();
        model.CalcMode = mode;
        if (mode > 3) Put_Imported_Drive(mode);
        Reread();
        EXPECT_THAT(Changed_By_Looking(), IsEmpty()) << "mode " << mode;
        EXPECT_EQ(model.Delta5Deg, 0.00321F);
    }
}

TEST_F(GeometryFields, LookingKeepsATurnedGround) {
    Open_Input();
    Edit(Link(Field_O4X), "7.1234567");
    Edit(Link(Field_O4Y), "-3.7654321");
    Edit(Link(Field_O6X), "12.3456789");
    const float ground = model.GroundAngleDeg;
    ASSERT_LT(ground, -20);
    Reread();
    EXPECT_THAT(Changed_By_Looking(), IsEmpty());
    EXPECT_EQ(model.GroundAngleDeg, ground);
}

TEST_F(GeometryFields, PivotsThatWereLeftAloneLeaveLink1AndTheGroundAlone) {
    // As a legacy file leaves it: Link 1 and one local coordinate of O6 from the file, O4 from before.
    model.Link1 = 5.25F;
    model.GroundAngleDeg = 10;
    model.O6LocalY = 3.5F;
    Open_Input();
    EXPECT_EQ(model.Link1, 5.25F);
    EXPECT_EQ(model.GroundAngleDeg, 10);
    EXPECT_EQ(model.O6LocalX, 14.375F);
    EXPECT_EQ(model.O6LocalY, 3.5F);
    Edit(Link(Field_O4X), "6");
    EXPECT_EQ(model.Link1, 6);
    EXPECT_EQ(model.GroundAngleDeg, 0);
    EXPECT_EQ(model.O6LocalY, 2) << "an edit places all of it anew";
}

TEST_F(GeometryFields, AnEditedPivotO6IsPlacedAnew) {
    model.O6LocalY = 3.5F;
    Open_Input();
    Edit(Link(Field_O6X), "20");
    EXPECT_EQ(model.O6LocalX, 20);
    EXPECT_EQ(model.O6LocalY, 2);
}

TEST_F(GeometryFields, AnEditedFieldIsParsedAndTheOthersAreNot) {
    home.mnu_Double.click();
    Edit(Link(Field_Link2), "2.6 about");
    EXPECT_EQ(model.Link2, 2.6F);
    EXPECT_EQ(model.CouplerAC, 8.75F);
}

TEST_F(GeometryFields, TheSameTextTypedAgainIsParsedToo) {
    home.mnu_Double.click();
    ASSERT_EQ(Link(Field_CouplerAC).text, "8.8");
    Edit(Link(Field_CouplerAC), "8.8");
    EXPECT_EQ(model.CouplerAC, 8.8F);
}

TEST_F(GeometryFields, EveryFieldIsReadIntoItsValue) {
    Open_Input();
    for (int field = 0; field < NumLinkFields; ++field)
        Type(Link(static_cast<LinkField>(field)), std::to_string(field + 20) + ".5");
    Link(Field_O4Y).lost_focus();
    EXPECT_EQ(model.Link2, 21.5F);
    EXPECT_EQ(model.Link3, 22.5F);
    EXPECT_EQ(model.Link4, 23.5F);
    EXPECT_EQ(model.LinkO4D, 24.5F);
    EXPECT_EQ(model.Delta4Deg, 25.5F);
    EXPECT_EQ(model.Delta4Text, "25.5");
    EXPECT_FLOAT_EQ(model.Delta4, static_cast<float>(25.5 * 0.017453292522222223));
    EXPECT_EQ(model.Link5, 26.5F);
    EXPECT_EQ(model.Link6, 27.5F);
    EXPECT_EQ(model.O6X, 28.5F);
    EXPECT_EQ(model.O6Y, 29.5F);
    EXPECT_EQ(model.CouplerAC, 30.5F);
    EXPECT_EQ(model.Delta3Deg, 31.5F);
    EXPECT_EQ(model.Delta3Text, "31.5");
    EXPECT_EQ(model.Coupler2Length, 32.5F);
    EXPECT_EQ(model.Delta5Deg, 33.5F);
    EXPECT_EQ(model.Delta5Text, "33.5");
    EXPECT_EQ(model.O4X, 35.5F);
    EXPECT_EQ(model.O4Y, 36.5F);
    EXPECT_EQ(model.LinkTable(2), 21.5F);
    EXPECT_EQ(model.LinkTable(7), 24.5F);
}

TEST_F(GeometryFields, Link1AndTheAngleToGroundAreResults) {
    Open_Input();
    Type(Link(Field_Link1), "99");
    Type(Link(Field_Ground), "99");
    Type(Link(Field_O4X), "3");
    Edit(Link(Field_O4Y), "4");
    EXPECT_EQ(model.Link1, 5);
    EXPECT_EQ(Link(Field_Link1).text, "5.000");
    EXPECT_NEAR(model.GroundAngleDeg, 53.130102, 1e-5);
    EXPECT_EQ(Link(Field_Ground).text, "53.13");
    EXPECT_NEAR(model.GroundAngle, 0.9272952, 1e-6);
    EXPECT_NEAR(model.O4LocalX, 5, 1e-6);
    EXPECT_NEAR(model.O4LocalY, 0, 1e-6);
    // O6 at (14.375, 2) turned back by the ground angle, whose cosine is 0.6 and sine 0.8.
    EXPECT_NEAR(model.O6LocalX, 14.375 * 0.6 + 2 * 0.8, 1e-5);
    EXPECT_NEAR(model.O6LocalY, 2 * 0.6 - 14.375 * 0.8, 1e-5);
    EXPECT_NEAR(model.O4O6X, model.O6LocalX - 5, 1e-5);
    EXPECT_NEAR(model.O6O4AngleDeg, 180 - std::atan2(2, 11.375) * 180 / 3.141592654, 1);
}

TEST_F(GeometryFields, AGroundLinkWithoutALengthHasTheAngleZero) {
    Open_Input();
    Type(Link(Field_O4X), "0");
    Edit(Link(Field_O4Y), "0");
    EXPECT_EQ(model.Link1, 0);
    EXPECT_EQ(model.GroundAngleDeg, 0);
    EXPECT_EQ(Link(Field_Link1).text, "0.000");
}

TEST_F(GeometryFields, ANegativeLengthIsTurnedPositiveWithAWarning) {
    const std::pair<LinkField, float LinkageModel::*> lengths[] = {
        {Field_Link2, &LinkageModel::Link2},         {Field_Link3, &LinkageModel::Link3},
        {Field_Link4, &LinkageModel::Link4},         {Field_LinkO4D, &LinkageModel::LinkO4D},
        {Field_Link5, &LinkageModel::Link5},         {Field_Link6, &LinkageModel::Link6},
        {Field_CouplerAC, &LinkageModel::CouplerAC}, {Field_Coupler2, &LinkageModel::Coupler2Length},
    };
    for (const auto& [field, length] : lengths) {
        Open_Input();
        Edit(Link(field), "-4.5");
        Expect_Warning(kPositive);
        EXPECT_EQ(model.*length, 4.5F);
        EXPECT_EQ(Link(field).text, "-4.5");
        Open_Input();
        EXPECT_EQ(Link(field).text.substr(0, 3), "4.5");
    }
}

TEST_F(GeometryFields, AnglesAndPivotsMayBeNegative) {
    Open_Input();
    for (const LinkField field :
         {Field_Delta3, Field_Delta4, Field_Delta5, Field_O4X, Field_O4Y, Field_O6X, Field_O6Y})
        Edit(Link(field), "-4.5");
    EXPECT_EQ(Boxes_Left(), 0U);
    for (const float value : {model.Delta3Deg, model.Delta4Deg, model.Delta5Deg, model.O4X, model.O6Y})
        EXPECT_EQ(value, -4.5F);
    EXPECT_EQ(model.GroundAngleDeg, 225);
}

TEST_F(GeometryFields, GroupedAndUnreadableTextsAreTakenAsNumbers) {
    Open_Input();
    Edit(Link(Field_Link3), "1,234.500");
    EXPECT_EQ(model.Link3, 1234.5F);
    Edit(Link(Field_Link3), "1,5");
    EXPECT_EQ(model.Link3, 1);
    Edit(Link(Field_Link3), "long");
    EXPECT_EQ(model.Link3, 0);
    Edit(Link(Field_Link3), "");
    EXPECT_EQ(model.Link3, 0);
}

TEST_F(GeometryFields, ANumberTooLargeIsReportedAndTheFieldKeepsItsText) {
    Open_Input();
    Edit(Link(Field_Link3), "1e60");
    Expect_Fault(6, "Get_Input_Geometry");
    EXPECT_EQ(model.Link3, 8.625F);
    EXPECT_EQ(Link(Field_Link3).text, "1e60");
}

TEST_F(GeometryFields, ReadingClearsTheResultsAndLetsPositionsStand) {
    Open_Input();
    model.DataCalculated = true;
    model.StepMode = "N";
    Get_Input_Geometry(*screens);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_EQ(model.StepMode, "Y");
}

class AnimateFields : public GeometryFields {
  protected:
    TextField& Field(LinkField field) { return animate.txt_Linkout.at(field); }
    std::string Caption(LinkField field) { return animate.lbl_Left.at(field).caption; }
};

TEST_F(AnimateFields, ShowTheElementFromWhichStage2Hangs) {
    home.mnu_Test.click();
    Put_Calc_Geometry(*screens);
    EXPECT_THAT((std::vector{Caption(Field_LinkO4D), Caption(Field_Delta4), Caption(Field_Link5),
                             Caption(Field_Link6)}),
                ElementsAre("Link O4-D", "Angle Delta4", "Link 5 (D-E)", "Link 6 (O6-E)"));
    EXPECT_EQ(Field(Field_LinkO4D).text, "8.000");
    EXPECT_EQ(Field(Field_Delta4).text, "-30.000");
    home.mnu_Double.click();
    Put_Calc_Geometry(*screens);
    EXPECT_THAT((std::vector{Caption(Field_LinkO4D), Caption(Field_Delta4), Caption(Field_Link5),
                             Caption(Field_Link6)}),
                ElementsAre("Coupler A-C", "Angle Delta3", "Link 5 (C-D)", "Link 6 (O6-D)"));
    EXPECT_EQ(Field(Field_LinkO4D).text, "8.750");
    EXPECT_EQ(Field(Field_Delta4).text, "-8.000");
}

TEST_F(AnimateFields, AreReadIntoThatElementAlone) {
    home.mnu_Double.click();
    Put_Calc_Geometry(*screens);
    Type(Field(Field_LinkO4D), "9");
    Type(Field(Field_Delta4), "5");
    Get_Calc_Geometry(*screens);
    EXPECT_EQ(model.CouplerAC, 9);
    EXPECT_EQ(model.Delta3Deg, 5);
    EXPECT_EQ(model.Delta3Text, "5");
    EXPECT_EQ(model.LinkO4D, 0);
    home.mnu_Test.click();
    Put_Calc_Geometry(*screens);
    const LinkageModel before = model;
    Type(Field(Field_LinkO4D), "9");
    Type(Field(Field_Delta4), "5");
    Get_Calc_Geometry(*screens);
    EXPECT_THAT(Differing_Fields(model, before),
                ElementsAre("LinkO4D", "Delta4Deg", "Delta4", "Delta4Text", "LinkTable"));
}

TEST_F(AnimateFields, ReadBothPivots) {
    Type(Field(Field_O4X), "3");
    Type(Field(Field_O4Y), "4");
    Type(Field(Field_O6X), "10");
    Get_Calc_Geometry(*screens);
    EXPECT_EQ(model.Link1, 5);
    EXPECT_EQ(Field(Field_Link1).text, "5.000");
    EXPECT_EQ(Field(Field_Ground).text, "53.13");
    EXPECT_EQ(model.O6X, 10);
    EXPECT_NEAR(model.O6LocalX, 10 * 0.6 + 2 * 0.8, 1e-5);
}

TEST_F(AnimateFields, LookingAtThemChangesNothing) {
    Put_Many_Decimals();
    Reread();
    Fill_Drive_Angle();
    Put_Calc_Geometry(*screens);
    const LinkageModel before = model;
    Get_Calc_Geometry(*screens);
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
}

}  // namespace
}  // namespace kervol
