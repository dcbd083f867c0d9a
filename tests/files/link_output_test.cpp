// SPDX-License-Identifier: GPL-3.0-or-later
// The link output file: written from link 6, read as the drive of the next linkage.
#include <algorithm>
#include <bit>
#include <cmath>
#include <memory>
#include <random>

#include "files/drive_test.h"
#include "files/exchange.h"
#include "files/full_disk.h"
#include "kinematics/step_count.h"
#include "kinematics/sweep.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class LinkOutput : public DriveTest {
  protected:
    void SetUp() override {
        Poison_Tables(tables);
        before = model;
    }
    void Put_Row(int i, float angle, float speed, float acceleration) {
        tables.Theta(i, 5) = angle;
        tables.Omega(i, 4) = speed;
        tables.Alpha(i, 4) = acceleration;
    }
    /// The box of a file that was written, and the file.
    std::string Exported() {
        EXPECT_TRUE(Export_Link6(*program, path));
        Expect_Written_Box();
        return Content_Of(path);
    }
    void Expect_Written_Box() {
        Expect_Box("The angular data for link 6 of this linkage has been written to " + path +
                       "\nThis file can be imported to program Vostrel or Kervol" + path +
                       "\nand used as input data to drive the next stage of a multibar linkage.",
                   Icon::Information);
    }

    const TemporaryFolder folder;
    const std::string path = folder / "stage_kvl.out";
    LinkageModel before = model;
};

TEST_F(LinkOutput, IsTheDriveOfTheNextLinkage) {
    model.TimeStart = model.TimeEnd = model.TimeStep = -1;
    EXPECT_EQ(Read_Link_Output(Joined(Link_Output_File_Lines())), ReadEnd::Whole);
    Expect_Link_Output_Box();
    for (const SampleLine& line : Link_Output_Lines()) EXPECT_TRUE(Holds(model, line)) << line.line;
    Expect_Rows(2);
    EXPECT_THAT(Differing_Fields(model, before), UnorderedElementsAre("NumSteps", "TimeStart", "TimeEnd",
                                                                      "TimeStep", "LinkDriven", "CalcMode"));
    EXPECT_TRUE(model.LinkDriven);
    EXPECT_EQ(model.CalcMode, 5);
    EXPECT_THAT(port.screens, ElementsAre(ScreenId::frm_Inputnew));
}

TEST_F(LinkOutput, ReadsAnyBlanksBetweenItsNumbers) {
    const std::string head = " 2 \r\n 0.5 \r\n 4.5\r\n .25\r\n" + Joined(std::vector<std::string>(12));
    for (const std::string rows : {
             " 0.5           100.25       -0.125\r\n 1.5           101.25       -1.125\r\n 2.5  102.25  "
             "-2.125",
             "0.5 100.25 -0.125\n1.5\t101.25\t\t-1.125\n2.5 102.25 -2.125   \n",
             "  0.5  ,  100.25 ,-0.125,1.5\r101.25\r-1.125\r2.5,102.25,-2.125\r",
             "0.5\n100.25\n-0.125\n1.5\n101.25\n-1.125\n2.5\n102.25\n-2.125\n",
         }) {
        Poison_Tables(tables);
        EXPECT_EQ(Read_Link_Output(head + rows), ReadEnd::Whole) << rows;
        Expect_Link_Output_Box();
        Expect_Rows(2);
    }
}

TEST_F(LinkOutput, PassesOverTwelveFieldsOfAnyKind) {
    auto lines = Link_Output_File_Lines();
    for (std::size_t i = 4; i < 16; ++i) lines[i] = i % 2 == 0 ? "\"Vostrel, with a comma\"" : "17";
    EXPECT_EQ(Read_Link_Output(Joined(lines)), ReadEnd::Whole);
    Expect_Link_Output_Box();
    Expect_Rows(2);
}

TEST_F(LinkOutput, TakesAtMost361Rows) {
    EXPECT_EQ(Read_Link_Output(Joined(Link_Output_File_Lines(360))), ReadEnd::Whole);
    Expect_Link_Output_Box();
    Expect_Rows(360);
    Poison_Tables(tables);
    model = before;
    EXPECT_EQ(Read_Link_Output(Joined(Link_Output_File_Lines(361))), ReadEnd::Cut);
    Expect_Box("Error 9   (Subscript out of range)  has occurred in Import_Linkage_Data\r\r",
               Icon::Information);
    Expect_Rows(360);
    EXPECT_FALSE(model.LinkDriven);
    EXPECT_EQ(model.CalcMode, 3);
    EXPECT_EQ(model.NumSteps, 361);
}

TEST_F(LinkOutput, HasAsManyRowsAsItsCountSays) {
    auto lines = Link_Output_File_Lines();
    lines[0] = " 1";
    EXPECT_EQ(Read_Link_Output(Joined(lines)), ReadEnd::Whole) << "the rest is not looked at";
    Expect_Link_Output_Box();
    Expect_Rows(1);
    lines[0] = " 3";
    Poison_Tables(tables);
    EXPECT_EQ(Read_Link_Output(Joined(lines)), ReadEnd::Cut);
    Expect_Fault(62, "Import_Linkage_Data");
    Expect_Rows(2);
}

TEST_F(LinkOutput, IsNotToldWhileTheProgramStarts) {
    model.StartingUp = true;
    EXPECT_EQ(Read_Link_Output(Joined(Link_Output_File_Lines())), ReadEnd::Whole);
    EXPECT_THAT(port.screens, IsEmpty());
}

TEST_F(LinkOutput, ByItsPathBecomesTheFileInUse) {
    model.DataSaved = true;
    model.DynamicsCalculated = true;
    const std::string name = folder.Put("feeder.out", Joined(Link_Output_File_Lines()));
    EXPECT_EQ(Import_Linkage_Drive(*program, name).end, ReadEnd::Whole);
    EXPECT_EQ(model.ModelPath, name);
    Expect_Link_Output_Box();
    EXPECT_EQ(model.DriveFileName, "feeder.out");
    EXPECT_FALSE(model.DataSaved);
    EXPECT_FALSE(model.DynamicsCalculated);
    Import_Linkage_Drive(*program, folder / "none.out");
    Expect_Fault(53, "mnu_Link_Data_Import_Click");
}

TEST_F(LinkOutput, IsWrittenWithBlanksForSignsAndInZonesOf14Columns) {
    model.NumSteps = 2;
    model.TimeStart = 0;
    model.TimeEnd = 5;
    model.TimeStep = -0.05F;
    Put_Row(0, 61.84461F, -3.1685882F, 29.5F);
    Put_Row(1, 0, 0.25F, -123456.8F);
    // Numbers of 14 and 13 columns: the one fills its zone and moves the next to the third.
    Put_Row(2, -1.2345678E-05F, 1.234567E+20F, 1);
    EXPECT_EQ(Exported(), " 2\r\n 0\r\n 5\r\n-0.05\r\n" + Joined(std::vector<std::string>(12)) +
                              " 61.84461     -3.1685882     29.5\r\n"
                              " 0             0.25         -123456.8\r\n"
                              "-1.2345678E-05               1.234567E+20  1\r\n");
}

TEST_F(LinkOutput, BecomesTheFileInUseAndCountsAsSaved) {
    model.NumSteps = 0;
    Put_Row(0, 1, 2, 3);
    Exported();
    EXPECT_EQ(model.ModelPath, path) << "a later Save writes the model over it";
    EXPECT_TRUE(model.DataSaved);
    EXPECT_EQ(model.ModelName, "Model_1");
}

TEST_F(LinkOutput, KeepsWhatItOverwrites) {
    model.NumSteps = 0;
    Put_Row(0, 1, 2, 3);
    folder.Put("stage_kvl.out", "earlier");
    Exported();
    EXPECT_EQ(Content_Of(path + "~"), "earlier");
}

TEST_F(LinkOutput, ThatCannotBeOpenedIsReportedByTheMenuEntryAndNotSaved) {
    model.DataSaved = false;
    EXPECT_FALSE(Export_Link6(*program, folder.path().string()));
    Expect_Fault(75, "mnu_link4_Click");
    EXPECT_FALSE(Export_Link6(*program, folder / "none/stage.out"));
    Expect_Fault(76, "mnu_link4_Click");
    EXPECT_FALSE(model.DataSaved);
}

TEST_F(LinkOutput, OnAFullDiskStandsAsFarAsItWasWrittenBesideTheEarlierContent) {
    model.NumSteps = 300;
    for (int i = 0; i <= 300; ++i) Put_Row(i, 1, 2, 3);
    folder.Put("stage_kvl.out", "earlier");
    {
        const FullDisk full(1000);
        EXPECT_FALSE(Export_Link6(*program, path));
    }
    Expect_Fault(61, "Export_Link6_to_File");
    EXPECT_FALSE(model.DataSaved);
    EXPECT_EQ(Content_Of(path).size(), 1000U);
    EXPECT_EQ(Content_Of(path + "~"), "earlier");
}

TEST_F(LinkOutput, OfMoreStepsThanTheTablesHoldIsCutAtTheirEnd) {
    model.NumSteps = 1025;
    for (int i = 0; i <= 1024; ++i) Put_Row(i, 1, 2, 3);
    EXPECT_FALSE(Export_Link6(*program, path));
    Expect_Fault(9, "Export_Link6_to_File");
    const std::string content = Content_Of(path);
    EXPECT_EQ(std::count(content.begin(), content.end(), '\n'), 16 + 1025);
}

TEST_F(LinkOutput, ReadsBackToTheSameNumbers) {
    std::mt19937 bits(31);
    const auto any = [&] {
        for (;;) {
            const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(bits()));
            if (std::isfinite(number)) return number;
        }
    };
    for (int trial = 0; trial < 20; ++trial) {
        model.NumSteps = 360;
        for (int i = 0; i <= 360; ++i) Put_Row(i, any(), any(), any());
        const std::string content = Exported();
        const auto written = std::make_unique<ResultTables>(tables);
        Poison_Tables(tables);
        ASSERT_EQ(Read_Link_Output(content), ReadEnd::Whole);
        Expect_Link_Output_Box();
        for (int i = 0; i <= 360; ++i) {
            ASSERT_EQ(tables.DriveTheta(i), written->Theta(i, 5)) << i;
            ASSERT_EQ(tables.Omega(i, 0), written->Omega(i, 4)) << i;
            ASSERT_EQ(tables.Alpha(i, 0), written->Alpha(i, 4)) << i;
        }
    }
}

TEST_F(LinkOutput, TurnsTheCrankOfTheNextLinkageAsLink6Turned) {
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    ASSERT_EQ(model.NumSteps, 36);
    Exported();
    const auto first = std::make_unique<ResultTables>(tables);

    model.NumSteps = 0;
    ASSERT_EQ(Import_Linkage_Drive(*program, path).end, ReadEnd::Whole);
    Expect_Link_Output_Box();
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    ASSERT_EQ(model.NumSteps, 36);
    for (int i = 0; i <= 36; ++i) {
        ASSERT_TRUE(tables.StepValid(i)) << i;
        EXPECT_NEAR(tables.Theta(i, 0), first->Theta(i, 5), 2e-5) << i;
        EXPECT_EQ(tables.Omega(i, 0), first->Omega(i, 4)) << i;
        EXPECT_EQ(tables.Alpha(i, 0), first->Alpha(i, 4)) << i;
        const double speed = std::hypot(tables.PointVel(i, 0, 0), tables.PointVel(i, 0, 1));
        EXPECT_NEAR(speed, model.Link2 * std::abs(first->Omega(i, 4)), 1e-4) << i;
    }
}

TEST_F(LinkOutput, TurnsACrankOverSlopingGroundInTheUserFrame) {
    ASSERT_EQ(Read_Link_Output(Joined(Link_Output_File_Lines())), ReadEnd::Whole);
    Expect_Link_Output_Box();
    model.GroundAngleDeg = 40;
    model.GroundAngle = static_cast<float>(40 * RadiansPerDegree);
    model.DriveDatum = 0.25F;
    Answer response = Answer::None;
    Calc_Drive_Data(*program, response);
    for (int i = 0; i <= 2; ++i) EXPECT_NEAR(tables.Theta(i, 0), Row_Angle(i) + 0.25, 1e-4) << i;
}

}  // namespace
}  // namespace kervol
