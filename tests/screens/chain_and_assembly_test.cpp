// SPDX-License-Identifier: GPL-3.0-or-later
// Options of the chain, the assembly and the drive on the Input screen.
#include "screens/geometry_fields.h"
#include "screens/screens_fixture.h"
#include "support/compare.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ChainOption : public ScreensTest {
  protected:
    ChainOption() { Open_Input(); }
    std::string Caption(LinkField field) { return input.lbl_Left.at(field).caption; }
};

TEST_F(ChainOption, RelabelsTheScreenForAStephensonChain) {
    Choose(input.opt_SteveWatt, 1);
    EXPECT_EQ(model.LinkageType, "S");
    for (const LinkField field : {Field_LinkO4D, Field_Delta4}) {
        EXPECT_FALSE(Link(field).visible);
        EXPECT_FALSE(input.lbl_Left.at(field).visible);
        EXPECT_FALSE(input.lbl_Units.at(field).visible);
    }
    EXPECT_EQ(Caption(Field_Link5), "Link 5 (C-D)");
    EXPECT_EQ(Caption(Field_Link6), "Link 6 (O6-D)");
    EXPECT_EQ(input.lbl_Linkout2.caption, "Dist Coup Pt (C-F)");
    EXPECT_EQ(input.lbl_directions.caption,
              "See Figure A-13 in Mechanon for definitions of linkage nomenclature");
    EXPECT_FALSE(input.Pnl_Grashof[1].visible);
    EXPECT_TRUE(input.Pnl_Grashof[0].visible);
    EXPECT_EQ(input.lbl_Chain.caption, "Stephenson Kervol Linkage");
}

TEST_F(ChainOption, RelabelsTheScreenForAWattChain) {
    Choose(input.opt_SteveWatt, 1);
    Choose(input.opt_SteveWatt, 0);
    EXPECT_EQ(model.LinkageType, "W");
    for (const LinkField field : {Field_LinkO4D, Field_Delta4}) {
        EXPECT_TRUE(Link(field).visible);
        EXPECT_TRUE(input.lbl_Left.at(field).visible);
        EXPECT_TRUE(input.lbl_Units.at(field).visible);
    }
    EXPECT_EQ(Caption(Field_Link5), "Link 5 (D-E)");
    EXPECT_EQ(Caption(Field_Link6), "Link 6 (O6-E)");
    EXPECT_EQ(input.lbl_Linkout2.caption, "Dist Coup Pt (D-F)");
    EXPECT_EQ(input.lbl_directions.caption,
              "See Figure A-12 in Mechanon for definitions of linkage nomenclature");
    EXPECT_TRUE(input.Pnl_Grashof[1].visible);
    EXPECT_EQ(input.lbl_Chain.caption, "Watt Kervol Linkage");
}

TEST_F(ChainOption, TheCatalogueFollows) {
    const CatalogueNames& names = program->catalogue;
    const auto functions = [&] {
        return std::vector{names.CatalogName(20), names.CatalogName(26), names.CatalogName(51)};
    };
    EXPECT_THAT(functions(), ElementsAre("Veloc I 4,5", "Accel I 4,5", "Force 54"));
    Choose(input.opt_SteveWatt, 1);
    EXPECT_THAT(functions(), ElementsAre("Veloc I 3,5", "Accel I 3,5", "Force 53"));
    Choose(input.opt_SteveWatt, 0);
    EXPECT_THAT(functions(), ElementsAre("Veloc I 4,5", "Accel I 4,5", "Force 54"));
    home.mnu_Hoeken.click();
    EXPECT_THAT(functions(), ElementsAre("Veloc I 3,5", "Accel I 3,5", "Force 53"));
}

TEST_F(ChainOption, AChangeDropsTheOldChainsResults) {
    input.cmd_Calc.click();
    ASSERT_TRUE(model.DataCalculated);
    ASSERT_FALSE(Picture_Is_Clear());
    Choose(input.opt_SteveWatt, 1);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_EQ(Outputs(), "");
    EXPECT_TRUE(input.GeometryEdited);
    EXPECT_TRUE(Picture_Is_Clear());
}

TEST_F(ChainOption, IsHeldOffWhileAFileIsRead) {
    model.Loading = true;
    const LinkageModel before = model;
    input.cmd_Calc.enabled = true;
    Choose(input.opt_SteveWatt, 1);
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
    EXPECT_FALSE(input.GeometryEdited);
    EXPECT_EQ(Caption(Field_Link5), "Link 5 (D-E)");
}

TEST_F(ChainOption, HiddenFieldsKeepTheirValues) {
    Choose(input.opt_SteveWatt, 1);
    Edit(Link(Field_Link5), "6");
    EXPECT_EQ(model.LinkO4D, 8);
    EXPECT_EQ(model.Delta4Deg, -30);
}

class AssemblyOption : public ScreensTest {
  protected:
    AssemblyOption() { Open_Input(); }
};

TEST_F(AssemblyOption, SetsCodeSignAndTextOfItsStageAndCalculates) {
    EXPECT_EQ(input.opt_OpenCross1[0].caption, "Open");
    EXPECT_EQ(input.opt_OpenCross1[1].caption, "Crossed");
    Choose(input.opt_OpenCross1, 1);
    EXPECT_EQ(model.OpenCross1, 2);
    EXPECT_EQ(model.OpenSign1, 1);
    EXPECT_EQ(model.OpenCross1Text, "Crossed");
    EXPECT_EQ(model.OpenCross2, 1);
    EXPECT_TRUE(model.DataCalculated) << "a change recalculates";
    const float crossed = tables.Theta(3, 2);
    Choose(input.opt_OpenCross1, 0);
    EXPECT_EQ(model.OpenCross1, 1);
    EXPECT_EQ(model.OpenSign1, -1);
    EXPECT_EQ(model.OpenCross1Text, "Open");
    EXPECT_NE(tables.Theta(3, 2), crossed);
    const float open5 = tables.Theta(3, 4);
    Choose(input.opt_OpenCross2, 1);
    EXPECT_EQ(model.OpenCross2, 2);
    EXPECT_EQ(model.OpenSign2, 1);
    EXPECT_EQ(model.OpenCross2Text, "Crossed");
    EXPECT_NE(tables.Theta(3, 4), open5);
}

TEST_F(AssemblyOption, IsHeldOffWhileAFileIsRead) {
    model.Loading = true;
    const LinkageModel before = model;
    Choose(input.opt_OpenCross1, 1);
    Choose(input.opt_OpenCross2, 1);
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
}

TEST_F(AssemblyOption, DoesNotCalculateWhileTheScreenIsFilled) {
    input.Filling = true;
    Choose(input.opt_OpenCross1, 1);
    EXPECT_EQ(model.OpenCross1, 2);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_EQ(Outputs(), "Print ReDraw");
}

TEST_F(AssemblyOption, ACodeOfAFileIsShownOnBothScreens) {
    for (LinkageScreen* screen :
         {static_cast<LinkageScreen*>(&input), static_cast<LinkageScreen*>(&animate)}) {
        model.OpenCross1 = 2;
        model.OpenCross2 = 1;
        Put_OpenCross(model, *screen);
        EXPECT_TRUE(screen->opt_OpenCross1[1].on);
        EXPECT_FALSE(screen->opt_OpenCross1[0].on);
        EXPECT_TRUE(screen->opt_OpenCross2[0].on);
        model.OpenCross1 = model.OpenCross2 = 7;
        Read_OpenCross(model, *screen);
        EXPECT_EQ(model.OpenCross1, 2);
        EXPECT_EQ(model.OpenCross2, 1);
    }
}

class DriveOption : public ScreensTest {
  protected:
    DriveOption() { Open_Input(); }

    std::string Shown_Fields() const {
        std::string shown;
        for (std::size_t i = 0; i < NumInitialFields; ++i) {
            if (!input.txt_Initial[i].visible) continue;
            EXPECT_TRUE(input.lbl_Initial[i].visible);
            EXPECT_TRUE(input.lbl_Unit[i].visible);
            shown += (shown.empty() ? "" : ", ") + input.lbl_Initial[i].caption + " [" +
                     input.lbl_Unit[i].caption + "]";
        }
        return shown;
    }

    std::string Shown_Ends() const {
        std::string shown;
        for (const Label* label : {&input.lbl_cw, &input.lbl_ccw, &input.lbl_time})
            shown += label->visible ? "1" : "0";
        return shown;
    }
};

TEST_F(DriveOption, HasItsCaptionsInTheOrderOfTheGroup) {
    EXPECT_EQ(input.opt_Calctype[0].caption, "&Angle Steps");
    EXPECT_EQ(input.opt_Calctype[1].caption, "&One Position");
    EXPECT_EQ(input.opt_Calctype[2].caption, "&Time Steps");
}

TEST_F(DriveOption, OnePositionShowsSpeedAccelerationAndAngle) {
    model.Theta2One = 33;
    model.DataCalculated = true;
    Choose(input.opt_Calctype, 1);
    EXPECT_EQ(model.CalcMode, 1);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_EQ(Shown_Fields(), "Omega2 [rad/s], Alpha2 [rad/s^2], Theta Zero [deg]");
    EXPECT_EQ(Initial(3).text, "10");
    EXPECT_EQ(Initial(4).text, "-5");
    EXPECT_EQ(Initial(5).text, "33");
    EXPECT_EQ(Initial(0).text, "33") << "the hidden ones mirror it";
    EXPECT_EQ(Initial(1).text, "33");
    EXPECT_EQ(input.lbl_Unit[0].caption, "deg");
    EXPECT_EQ(Shown_Ends(), "000");
}

TEST_F(DriveOption, TimeStepsShowTheTimeRange) {
    model.DataCalculated = true;
    Choose(input.opt_Calctype, 2);
    EXPECT_EQ(model.CalcMode, 2);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_EQ(Shown_Fields(),
              "Start Time [sec], End Time [sec], Delta Time [sec], Omega Zero [rad/s], Alpha2 [rad/s^2], "
              "Theta Zero [deg]");
    EXPECT_THAT(Initial_Texts(6), ElementsAre("0", "5", "0.05", "10", "-5", "0"));
    EXPECT_EQ(Shown_Ends(), "001");
    EXPECT_EQ(animate.txt_Initial[2].text, "0.05");
    EXPECT_EQ(animate.lbl_Initial[0].caption, "Start Time");
}

TEST_F(DriveOption, AngleStepsShowTheAngleRange) {
    Choose(input.opt_Calctype, 2);
    model.DataCalculated = true;
    Choose(input.opt_Calctype, 0);
    EXPECT_EQ(model.CalcMode, 3);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_EQ(Shown_Fields(), "Min Theta [deg], Max Theta [deg], Delta Theta [deg], Omega2 [rad/s]");
    EXPECT_THAT(Initial_Texts(4), ElementsAre("0", "360", "10", "10"));
    EXPECT_EQ(Shown_Ends(), "110");
    EXPECT_TRUE(input.hsc_step.visible);
    EXPECT_EQ(animate.lbl_Initial[2].caption, "Delta Theta");
    EXPECT_EQ(animate.txt_Initial[2].text, "10");
}

TEST_F(DriveOption, IsHeldOffWhileAFileIsReadAndWhileTheScreenIsFilled) {
    for (bool* guard : {&model.Loading, &input.Filling}) {
        *guard = true;
        model.DataCalculated = true;
        const LinkageModel before = model;
        Choose(input.opt_Calctype, 1);
        EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
        EXPECT_EQ(Shown_Fields(), "Min Theta [deg], Max Theta [deg], Delta Theta [deg], Omega2 [rad/s]");
        *guard = false;
        Open_Input();
    }
}

TEST_F(DriveOption, IsNotHeldOffByAModelFromAFile) {
    model.DataFromFile = true;
    Choose(input.opt_Calctype, 1);
    EXPECT_EQ(model.CalcMode, 1);
}

}  // namespace
}  // namespace kervol
