// SPDX-License-Identifier: GPL-3.0-or-later
// The s-v-a file of a cam: each kind of writer, what follows from its fields, and its limits.
#include <cmath>

#include "files/drive_test.h"
#include "files/exchange.h"
#include "kinematics/sweep.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class CamDrive : public DriveTest {
  protected:
    void SetUp() override {
        Poison_Tables(tables);
        before = model;
    }

    LinkageModel before = model;
};

TEST_F(CamDrive, OfALinkageWithMassDataFillsEveryField) {
    Poison_All(*program, Cam_Lines());
    EXPECT_EQ(Read_Cam_File(), ReadEnd::Whole);
    Expect_Cam_Box();
    Expect_Cam_Lines(1, 90);
    Expect_Rows(2);
    EXPECT_TRUE(model.CamDriven);
    EXPECT_FALSE(model.LinkDriven);
    EXPECT_EQ(model.CalcMode, 4);
    EXPECT_THAT(port.screens, ElementsAre(ScreenId::frm_Inputnew));
}

TEST_F(CamDrive, ReadsTheSameWithOneValueALineOrOneLineInAll) {
    for (const char* separator : {"\r\n", "\n", "\r", ",", " ,  "}) {
        Poison_All(*program, Cam_Lines());
        EXPECT_EQ(Read_Cam(Joined(Cam_File_Lines({}), separator)), ReadEnd::Whole) << separator;
        Expect_Cam_Box();
        Expect_Cam_Lines(1, 90);
        Expect_Rows(2);
    }
}

TEST_F(CamDrive, CompletesTheLinkage) {
    model.CouplerAC = model.Delta3Deg = model.Delta3 = 5;
    model.Coupler2Length = model.Delta5Deg = model.Delta5 = 5;
    model.Delta3Text = model.Delta4Text = model.Delta5Text = "before";
    Read_Cam_File();
    Expect_Cam_Box();
    EXPECT_EQ(model.Theta2One, -30);
    EXPECT_EQ(model.CouplerAC, 0);
    EXPECT_EQ(model.Coupler2Length, 0);
    EXPECT_EQ(model.Delta3Deg, 0);
    EXPECT_EQ(model.Delta3, 0);
    EXPECT_EQ(model.Delta3Text, "0");
    EXPECT_EQ(model.Delta5Deg, 0);
    EXPECT_EQ(model.Delta5, 0);
    EXPECT_EQ(model.Delta5Text, "0");
    EXPECT_EQ(model.Delta4, static_cast<float>(-20.5 * 0.017453292522222223));
    EXPECT_EQ(model.Delta4Text, "-20.5");
    EXPECT_EQ(model.GroundAngle, static_cast<float>(30 * 0.017453292522222223));
    // O4 lies 10 from O2 at 30 degrees; the file's own Link1 of 10.5 stays all the same.
    EXPECT_NEAR(model.O4LocalX, 10, 1e-5);
    EXPECT_NEAR(model.O4LocalY, 0, 1e-5);
    EXPECT_NEAR(model.O4O6X, 4, 1e-5);
    EXPECT_NEAR(model.O4O6Y, 2.125, 1e-5);
    EXPECT_NEAR(model.O4O6Length, std::hypot(4, 2.125), 1e-5);
    EXPECT_NEAR(model.O2O6Length, std::hypot(14, 2.125), 1e-5);
    EXPECT_THAT(std::vector<float>(model.LinkTable.begin(), model.LinkTable.begin() + 8),
                ElementsAre(0, 10.5, 2.5, 8.5, 7.25, 9.25, 4.75, 6.5));
}

TEST_F(CamDrive, OverLevelGroundStartsAtZeroWithoutASign) {
    auto lines = Cam_File_Lines({});
    lines[24] = "0";
    Read_Cam(Joined(lines));
    Expect_Cam_Box();
    EXPECT_EQ(model.Theta2One, 0);
    EXPECT_FALSE(std::signbit(model.Theta2One));
}

TEST_F(CamDrive, OfACamAloneChangesNoGeometryAndNoDynamics) {
    model.Theta2One = before.Theta2One = 33;
    EXPECT_EQ(Read_Cam_File({.source = 1}), ReadEnd::Whole);
    Expect_Cam_Box();
    Expect_Cam_Lines(2, 9);
    Expect_Rows(2);
    EXPECT_THAT(Differing_Fields(model, before),
                UnorderedElementsAre("DriveScale", "DriveOffset", "DriveArmLength", "CamBaseRadius",
                                     "CamRollerRadius", "TimeStart", "TimeEnd", "TimeStep", "NumSteps",
                                     "CamDriven", "CalcMode"));
}

TEST_F(CamDrive, ForTheSiblingProgramIsRefusedAndChangesNothing) {
    before.DynamicsCalculated = model.DynamicsCalculated = true;
    EXPECT_EQ(Read_Cam_File({.source = 4}), ReadEnd::Refused);
    Expect_Box("This file contains data for a Vostrel linkage.\nPlease import it to Program Vostrel instead.",
               Icon::Information);
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
    EXPECT_TRUE(Has_No_Rows());
    EXPECT_THAT(port.screens, IsEmpty());
}

TEST_F(CamDrive, OfFiveLinksReadsSixteenMassFields) {
    EXPECT_EQ(Read_Cam_File({.source = 5}), ReadEnd::Whole);
    Expect_Cam_Box();
    Expect_Cam_Lines(2, 55);
    EXPECT_EQ(model.LinkMass(6), before.LinkMass(6));
    EXPECT_EQ(model.LinkInertia(6), before.LinkInertia(6));
    EXPECT_EQ(model.LinkCG(6, 0), before.LinkCG(6, 0));
    Expect_Rows(2);
}

TEST_F(CamDrive, OfSevenLinksWithMassDataIsARangeFailureBehindLink6) {
    EXPECT_EQ(Read_Cam_File({.source = 7}), ReadEnd::Cut);
    Expect_Box("Error 9   (Subscript out of range)  has occurred in Read_Cam_Data\r\r", Icon::Information);
    Expect_Cam_Lines(2, 59);
    EXPECT_FALSE(model.CamDriven);
    EXPECT_EQ(model.CalcMode, 3);
    EXPECT_EQ(model.NumSteps, before.NumSteps);
    EXPECT_TRUE(Has_No_Rows());
    EXPECT_THAT(port.screens, IsEmpty());
}

TEST_F(CamDrive, WithoutMassDataPassesOverAsManyTexts) {
    for (const int source : {5, 6, 7, 40})
        for (const int has_dynamics : {0, 1, 2}) {
            SCOPED_TRACE(source);
            Poison_Tables(tables);
            model = before;
            EXPECT_EQ(Read_Cam_File({.source = source, .has_dynamics = has_dynamics}), ReadEnd::Whole);
            Expect_Cam_Box();
            Expect_Cam_Lines(2, 38);
            Expect_Rows(2);
            EXPECT_EQ(model.LinkMass, before.LinkMass);
            EXPECT_EQ(model.LinkInertia, before.LinkInertia);
            EXPECT_EQ(model.LinkCG, before.LinkCG);
        }
}

TEST_F(CamDrive, OfFewerLinksReadsTheMassDataOfThose) {
    for (const int source : {-3, 0, 2, 3}) {
        SCOPED_TRACE(source);
        Poison_Tables(tables);
        model = before;
        EXPECT_EQ(Read_Cam_File({.source = source}), ReadEnd::Whole);
        Expect_Cam_Box();
        Expect_Cam_Lines(2, source < 2 ? 39 : 39 + 4 * (source - 1));
        EXPECT_EQ(model.LinkMass(4), before.LinkMass(4));
        EXPECT_EQ(model.LinkMass(2), source < 2 ? before.LinkMass(2) : 2.01F);
        Expect_Rows(2);
    }
}

TEST_F(CamDrive, SetsTheAssemblyOfBothStages) {
    Read_Cam_File({.assembly1 = 1, .assembly2 = -1});
    Expect_Cam_Box();
    EXPECT_EQ(model.OpenCross1, 2);
    EXPECT_EQ(model.OpenSign1, 1);
    EXPECT_EQ(model.OpenCross1Text, "Crossed");
    EXPECT_EQ(model.OpenCross2, 1);
    EXPECT_EQ(model.OpenSign2, -1);
    EXPECT_EQ(model.OpenCross2Text, "Open");
    Read_Cam_File({.assembly1 = -1, .assembly2 = 1});
    Expect_Cam_Box();
    EXPECT_EQ(model.OpenCross1, 1);
    EXPECT_EQ(model.OpenSign1, -1);
    EXPECT_EQ(model.OpenCross2, 2);
    EXPECT_EQ(model.OpenSign2, 1);
}

TEST_F(CamDrive, LeavesTheAssemblyForAnyOtherNumber) {
    for (const int other : {0, 2, -2, 7}) {
        model = before;
        model.OpenCross1 = 2;
        Read_Cam_File({.assembly1 = other, .assembly2 = other});
        Expect_Cam_Box();
        EXPECT_EQ(model.OpenCross1, 2);
        EXPECT_EQ(model.OpenSign1, 1) << "the sign follows the code that stays";
        EXPECT_EQ(model.OpenCross1Text, "Crossed");
        EXPECT_EQ(model.OpenCross2, 1);
    }
}

TEST_F(CamDrive, TakesAtMost361Rows) {
    EXPECT_EQ(Read_Cam_File({.count = 360}), ReadEnd::Whole);
    Expect_Cam_Box();
    EXPECT_EQ(model.NumSteps, 360);
    Expect_Rows(360);
}

TEST_F(CamDrive, OfMoreRowsStopsAtRow361WithoutBecomingTheDrive) {
    for (const int count : {361, 362, 1024, 32767}) {
        Poison_Tables(tables);
        model = before;
        EXPECT_EQ(Read_Cam_File({.count = count}), ReadEnd::Cut);
        Expect_Box("Error 9   (Subscript out of range)  has occurred in Read_Cam_Data\r\r",
                   Icon::Information);
        Expect_Rows(360);
        EXPECT_FALSE(model.CamDriven);
        EXPECT_EQ(model.CalcMode, 3);
        EXPECT_EQ(model.NumSteps, count);
        EXPECT_THAT(port.screens, IsEmpty());
    }
}

TEST_F(CamDrive, WithANegativeCountHasNoRows) {
    auto lines = Cam_File_Lines({.count = 0});
    lines[89] = "-5";
    EXPECT_EQ(Read_Cam(Joined(lines)), ReadEnd::Whole);
    Expect_Cam_Box();
    EXPECT_EQ(model.NumSteps, -5);
    EXPECT_TRUE(Has_No_Rows());
}

TEST_F(CamDrive, IsNotToldWhileTheProgramStarts) {
    model.StartingUp = true;
    EXPECT_EQ(Read_Cam_File(), ReadEnd::Whole);
    EXPECT_TRUE(model.CamDriven);
    EXPECT_THAT(port.screens, IsEmpty());
}

TEST_F(CamDrive, PutsTheForcesOutOfDate) {
    model.DynamicsCalculated = true;
    Read_Cam_File();
    Expect_Cam_Box();
    EXPECT_FALSE(model.DynamicsCalculated);
}

TEST_F(CamDrive, DrivesTheCrankByScaleAndOffsets) {
    Poison_Tables(tables);
    Read_Cam_File();
    Expect_Cam_Box();
    model.AngleRange = "free";
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    for (int i = 0; i <= 2; ++i) {
        // 1.5 times the row, less 12.25, less the ground angle and the datum; then in the user frame.
        EXPECT_NEAR(tables.Theta(i, 0), 1.5 * (i + 0.5) - 12.25 - 7.5, 1e-4) << i;
        EXPECT_EQ(tables.Omega(i, 0), Row_Speed(i));
        EXPECT_EQ(tables.Alpha(i, 0), Row_Acceleration(i));
        EXPECT_TRUE(tables.StepValid(i));
    }
}

TEST_F(CamDrive, ByItsPathBecomesTheFileInUse) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("riser.sva", Joined(Cam_File_Lines({})));
    model.DataSaved = true;
    const ReadReport report = Import_Cam_Drive(*program, path);
    EXPECT_EQ(report.end, ReadEnd::Whole);
    EXPECT_EQ(model.ModelPath, path);
    Expect_Cam_Box();
    EXPECT_EQ(model.DriveFileName, "riser.sva");
    EXPECT_EQ(model.ModelName, before.ModelName);
    EXPECT_FALSE(model.DataSaved);
}

TEST_F(CamDrive, HasAFileNameOfItsOwnExtensionWhateverTheFileIsCalled) {
    const TemporaryFolder folder;
    const std::string content = Joined(Cam_File_Lines({}));
    Import_Cam_Drive(*program, folder.Put("riser.txt", content));
    Expect_Cam_Box();
    EXPECT_EQ(model.DriveFileName, "riser.sva");
    Import_Cam_Drive(*program, folder.Put("riser", content));
    Expect_Cam_Box();
    EXPECT_EQ(model.DriveFileName, ".sva") << "only an extension of three letters leaves a base name";
}

TEST_F(CamDrive, ThatIsNotThereIsReportedByTheMenuEntry) {
    const TemporaryFolder folder;
    model.DataSaved = true;
    const ReadReport report = Import_Cam_Drive(*program, folder / "none.sva");
    EXPECT_EQ(report.end, ReadEnd::Nothing);
    EXPECT_EQ(report.line, 0U);
    Expect_Fault(53, "mnu_Link_Data_Import_Click");
    EXPECT_THAT(Differing_Fields(model, before),
                UnorderedElementsAre("ModelPath", "DriveFileName", "DataSaved"));
    EXPECT_TRUE(model.DataSaved);
    Import_Cam_Drive(*program, folder.path().string());
    Expect_Fault(75, "mnu_Link_Data_Import_Click");
    Import_Cam_Drive(*program, "/dev/zero");
    Expect_Fault(75, "mnu_Link_Data_Import_Click");
}

}  // namespace
}  // namespace kervol
