// SPDX-License-Identifier: GPL-3.0-or-later
// Imports of the Home screen, and the screens that an imported drive goes through.
#include <memory>

#include "screens/home_screen.h"
#include "screens/screens_fixture.h"
#include "support/compare.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

constexpr const char* kSaveFirst =
    "The current data has not been saved.  Do you want to save it before resetting?";

/// Rows of 10 degrees each.
std::string Rows(int count) {
    std::string text;
    for (int i = 0; i <= count; ++i) text += std::to_string(10 * i) + ",2,-1\r\n";
    return text;
}

/// A cam alone, which turns the crank by half its own angle.
std::string Cam_Content(int count = 6) {
    std::string text = "1\r\n0.5\r\n0\r\n3\r\n2\r\n1\r\n0\r\n1\r\n0.1\r\n";
    for (int i = 0; i < 9; ++i) text += "\"\"\r\n";
    return text + std::to_string(count) + "\r\n" + Rows(count);
}

std::string Link_Output_Content(int count = 6) {
    std::string text = std::to_string(count) + "\r\n0\r\n1\r\n0.1\r\n";
    for (int i = 0; i < 12; ++i) text += "\r\n";
    return text + Rows(count);
}

/// What tells one import from the other.
struct ImportCase {
    MenuItem HomeScreen::*entry;
    const char* title;
    const char* filter;
    const char* name;
    std::string (*content)(int count);
    const char* file;
    const char* box_end;
    Icon icon;
    const char* reader;
    std::int16_t mode;
    double scale;  ///< crank angle to imported angle, over level ground
};

const ImportCase kImports[] = {
    {&HomeScreen::mnu_Import_SVA, "Open a Haldrix export data file",
     "Haldrix Export (*.sva)|*.sva|(*.*)|*.*|", "*.sva", Cam_Content, "riser.sva",
     " of Haldrix S-V-A data successfully read.", Icon::Information, "Read_Cam_Data", 4, 0.5},
    {&HomeScreen::mnu_Import_Link2_Drive_Data, "Open a Linkage Drive Data file",
     "Linkage Export (*.out)|*.out|(*.*)|*.*|", "*.out", Link_Output_Content, "feeder.out",
     " of Linkage output data successfully read.", Icon::None, "Import_Linkage_Data", 5, 1},
};

class HomeImport : public ScreensTest {
  protected:
    std::string Put(const ImportCase& kind, int count = 6) {
        return folder.Put(kind.file, kind.content(count));
    }
    void Choose(const ImportCase& kind) {
        port.trace.clear();
        port.screens.clear();
        port.dialogs.clear();
        (home.*kind.entry).click();
    }
    void Expect_Read(const ImportCase& kind) {
        Expect_Box("File " + (folder / kind.file) + kind.box_end, kind.icon);
    }
    void Put_Unsaved_Results() {
        model.DataCalculated = true;
        model.DataSaved = false;
        tables.Theta(3, 1) = 45;
    }

    TemporaryFolder folder;
};

TEST_F(HomeImport, EachImportAsksForItsOwnKindOfFile) {
    for (const ImportCase& kind : kImports) {
        Choose(kind);
        ASSERT_EQ(port.dialogs.size(), 1U);
        EXPECT_EQ(port.dialogs[0].title, kind.title);
        EXPECT_EQ(port.dialogs[0].filter, kind.filter);
        EXPECT_EQ(port.dialogs[0].name, kind.name);
        EXPECT_THAT(port.trace, ElementsAre("open dialog"));
    }
}

TEST_F(HomeImport, AnImportTellsAndOpensTheInputScreenWithTheDrive) {
    for (const ImportCase& kind : kImports) {
        SCOPED_TRACE(kind.file);
        model.DataSaved = true;
        home.mnu_New.enabled = false;
        port.files = {Put(kind)};
        Choose(kind);
        Expect_Read(kind);
        EXPECT_THAT(port.trace, ElementsAre("open dialog", "box", "show frm_Inputnew modal"));
        EXPECT_EQ(model.CalcMode, kind.mode);
        EXPECT_TRUE(kind.mode == 4 ? model.CamDriven : model.LinkDriven);
        EXPECT_EQ(model.DriveFileName, kind.file);
        EXPECT_EQ(model.ModelPath, folder / kind.file);
        EXPECT_EQ(model.ModelName, "Model_1");
        EXPECT_FALSE(model.DataSaved);
        EXPECT_FALSE(model.DataCalculated);
        EXPECT_TRUE(home.mnu_New.enabled);
        EXPECT_TRUE(Picture_Is_Clear());
        EXPECT_TRUE(input.lbl_camdriven.visible);
        EXPECT_EQ(input.lbl_camdriven.caption,
                  "\n This linkage is being driven by \ns-v-a data imported from the file: " +
                      std::string(kind.file));
        EXPECT_FALSE(input.frm_calcmode.visible);
        EXPECT_FALSE(home.cmd_Animate.enabled);
        EXPECT_FALSE(home.mnu_Save.enabled);
    }
}

TEST_F(HomeImport, AnImportOverUnsavedResultsBringsTheSaveDialogTwice) {
    for (const ImportCase& kind : kImports) {
        Put_Unsaved_Results();
        port.answers = {Answer::Yes};
        port.files = {folder / "one.kvl", folder / "two.kvl", std::nullopt};
        Choose(kind);
        Expect_Box(kSaveFirst, Icon::None, Buttons::YesNo);
        for (const char* name : {"one.kvl", "two.kvl"})
            Expect_Box("File was successfully written to \n" + (folder / name), Icon::Information);
        EXPECT_THAT(port.trace,
                    ElementsAre("box", "save dialog", "box", "save dialog", "box", "open dialog"));
        EXPECT_EQ(tables.Theta(3, 1), 45) << "an import clears no tables";
        EXPECT_TRUE(model.DataCalculated);
    }
}

TEST_F(HomeImport, AnImportYesCancelCancelStillComesToTheOpenDialog) {
    for (const ImportCase& kind : kImports) {
        Put_Unsaved_Results();
        port.answers = {Answer::Yes};
        Choose(kind);
        Take_Box();
        EXPECT_THAT(port.trace, ElementsAre("box", "save dialog", "save dialog", "open dialog"));
        EXPECT_FALSE(model.DataSaved);
    }
}

TEST_F(HomeImport, AnImportWithoutSavingOrWithSavedResultsSkipsTheSaveDialogs) {
    for (const ImportCase& kind : kImports) {
        Put_Unsaved_Results();
        port.answers = {Answer::No};
        Choose(kind);
        Expect_Box(kSaveFirst, Icon::None, Buttons::YesNo);
        EXPECT_THAT(port.trace, ElementsAre("box", "open dialog"));
        model.DataSaved = true;
        Choose(kind);
        EXPECT_THAT(port.trace, ElementsAre("open dialog"));
    }
}

TEST_F(HomeImport, CancelOfAnImportChangesNothing) {
    for (const ImportCase& kind : kImports) {
        Put_Unsaved_Results();
        model.DataSaved = model.DynamicsCalculated = true;
        home.mnu_New.enabled = false;
        const LinkageModel before = model;
        Choose(kind);
        EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
        EXPECT_EQ(tables.Theta(3, 1), 45);
        EXPECT_FALSE(home.mnu_New.enabled);
    }
}

TEST_F(HomeImport, AnImportThatCannotBeOpenedIsReportedAndOpensNoScreen) {
    for (const ImportCase& kind : kImports) {
        model.DataSaved = true;
        home.mnu_New.enabled = false;
        port.files = {folder / "none"};
        Choose(kind);
        Expect_Fault(53, "mnu_Link_Data_Import_Click");
        EXPECT_FALSE(home.mnu_New.enabled);
        EXPECT_TRUE(model.DataSaved);
        EXPECT_EQ(model.CalcMode, 3);
        EXPECT_THAT(port.screens, IsEmpty());
    }
}

TEST_F(HomeImport, ACamFileForTheSiblingProgramLeavesTheResults) {
    Put_Unsaved_Results();
    model.DataSaved = model.DynamicsCalculated = true;
    const LinkageModel before = model;
    port.files = {folder.Put("riser.sva", "4\r\n1\r\n")};
    Choose(kImports[0]);
    Expect_Box("This file contains data for a Vostrel linkage.\nPlease import it to Program Vostrel instead.",
               Icon::Information);
    EXPECT_THAT(Differing_Fields(model, before),
                UnorderedElementsAre("ModelPath", "DriveFileName", "DataSaved"));
    EXPECT_THAT(port.screens, IsEmpty());
    EXPECT_TRUE(home.mnu_New.enabled);
    EXPECT_TRUE(home.cmd_Animate.enabled);
}

TEST_F(HomeImport, ACutDriveIsReportedAndTheOldResultsAreOutOfDate) {
    for (const ImportCase& kind : kImports) {
        SCOPED_TRACE(kind.file);
        Put_Unsaved_Results();
        model.DataSaved = model.DynamicsCalculated = true;
        Update_Home_Menu(*screens);
        const std::string content = kind.content(6);
        port.files = {folder.Put(kind.file, content.substr(0, content.rfind(",2,")))};
        Choose(kind);
        Expect_Fault(62, kind.reader);
        EXPECT_EQ(tables.DriveTheta(5), 50);
        EXPECT_EQ(model.CalcMode, 3);
        EXPECT_FALSE(model.CamDriven || model.LinkDriven);
        EXPECT_FALSE(model.DataCalculated) << "the tables hold rows of two drives";
        EXPECT_FALSE(model.DynamicsCalculated);
        EXPECT_FALSE(home.cmd_Animate.enabled);
        EXPECT_FALSE(home.mnu_Export_Torque.enabled);
        EXPECT_TRUE(home.mnu_New.enabled);
        EXPECT_THAT(port.screens, IsEmpty());
    }
}

TEST_F(HomeImport, ADriveOf362RowsIsARangeFailureAndOneOf361IsNot) {
    for (const ImportCase& kind : kImports) {
        SCOPED_TRACE(kind.file);
        port.files = {Put(kind, 361)};
        Choose(kind);
        Expect_Fault(9, kind.reader);
        EXPECT_EQ(model.CalcMode, 3);
        EXPECT_THAT(port.screens, IsEmpty());
        port.files = {Put(kind, 360)};
        Choose(kind);
        Expect_Read(kind);
        EXPECT_EQ(input.hsc_step.maximum, 360);
        model.CalcMode = 3;
    }
}

TEST_F(HomeImport, ADriveIsCalculatedAndAnimatedThroughTheScreens) {
    for (const ImportCase& kind : kImports) {
        SCOPED_TRACE(kind.file);
        port.script[ScreenId::frm_Inputnew] = [&] {
            input.cmd_Calc.click();
            EXPECT_EQ(Outputs(), "Next Step Animate Reset Print ReDraw");
            input.cmd_Next.click();
        };
        port.script[ScreenId::frm_Animate] = [&] {
            EXPECT_TRUE(animate.lbl_camdriven.visible);
            EXPECT_THAT(animate.lbl_camdriven.caption, EndsWith(kind.file));
            EXPECT_EQ(animate.hsc_step.maximum, 6);
            Rows_Drawn();
            Move_Bar(animate.hsc_step, 4);
            EXPECT_THAT(Rows_Drawn(), Contains(4));
            animate.cmd_Done.click();
        };
        port.files = {Put(kind)};
        Choose(kind);
        Expect_Read(kind);
        Home_Form_Activate(*screens);
        for (int i = 0; i <= 6; ++i) {
            EXPECT_TRUE(tables.StepValid(i));
            EXPECT_NEAR(tables.Theta(i, 0), kind.scale * 10 * i, 1e-4) << i;
            EXPECT_EQ(tables.Omega(i, 0), 2);
            EXPECT_EQ(tables.Alpha(i, 0), -1);
        }
        EXPECT_TRUE(model.DataCalculated);
        EXPECT_TRUE(home.cmd_Animate.enabled);
        EXPECT_TRUE(home.cmd_Dynamics.enabled);
        EXPECT_FALSE(home.mnu_CalcFFT.enabled);
        model.DataSaved = true;  // the next import does not ask
    }
}

TEST_F(HomeImport, WithAutocalcOnADriveIsCalculatedAtOnce) {
    input.chk_autocalc.on = true;
    port.files = {Put(kImports[1])};
    Choose(kImports[1]);
    Expect_Read(kImports[1]);
    EXPECT_TRUE(model.DataCalculated);
    EXPECT_NEAR(tables.Theta(6, 0), 60, 1e-4);
    EXPECT_TRUE(home.cmd_Animate.enabled);
}

TEST_F(HomeImport, ADrivenModelIsDrivenTheSameWhenItIsOpenedAgain) {
    for (const ImportCase& kind : kImports) {
        SCOPED_TRACE(kind.file);
        port.files = {Put(kind), folder / "driven.kvl", folder / "driven.kvl"};
        Choose(kind);
        Take_Box();
        Calculate_In_Mode(kind.mode);
        Home_Form_Activate(*screens);
        home.mnu_Save.click();
        Take_Box();
        const auto first = std::make_unique<ResultTables>(tables);
        tables.DriveTheta.Fill(0);
        home.mnu_Open.click();
        Take_Box();
        EXPECT_EQ(model.CalcMode, kind.mode);
        EXPECT_EQ(model.DriveFileName, kind.file);
        EXPECT_FALSE(input.frm_calcmode.visible);
        input.cmd_Calc.click();
        for (int i = 0; i <= 6; ++i) EXPECT_EQ(tables.Theta(i), first->Theta(i)) << i;
        home.mnu_Test.click();
        EXPECT_TRUE(input.frm_calcmode.visible) << "an example brings its own drive";
    }
}

}  // namespace
}  // namespace kervol
