// SPDX-License-Identifier: GPL-3.0-or-later
// New, Open, Save and Save as of the Home screen.
#include <filesystem>

#include "files/model_file.h"
#include "screens/home_screen.h"
#include "screens/screens_fixture.h"
#include "support/compare.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kSaveFirst =
    "The current data has not been saved.  Do you want to save it before resetting?";
constexpr const char* kReset = "Please confirm your order to reset all variables to initial values";

class HomeFiles : public ScreensTest {
  protected:
    /// Results that no file holds.
    void Put_Unsaved_Results() {
        model.DataCalculated = true;
        model.DataSaved = false;
        tables.Theta(3, 1) = 45;
    }

    std::string Written_Box(const std::string& path) { return "File was successfully written to \n" + path; }
    std::string Read_Box(const std::string& path) { return "File " + path + " successfully read."; }

    void Expect_Written(const std::string& name) {
        Expect_Box(Written_Box(folder / name), Icon::Information);
    }

    /// A model on disk that differs from a fresh one.
    std::string Put_Model_File(const std::string& name) {
        const LinkageModel before = model;
        model.ModelTitle = "from the file";
        model.Link3 = 8.123456F;
        model.OpenCross2 = 2;
        model.UnitSystem = 4;
        model.CalcMode = 2;
        model.TimeEnd = 1.5F;
        Save_Model_As(*program, folder / name);
        Take_Box();
        model = before;
        port.trace.clear();
        return folder / name;
    }

    TemporaryFolder folder;
};

TEST_F(HomeFiles, NewWithNothingCalculatedAsksOnce) {
    model.ModelTitle = "mine";
    model.Link2 = 3;
    input.txt_header.text = "mine";
    home.mnu_New.click();
    EXPECT_EQ(input.txt_header.text, "");
    Expect_Box(kReset, Icon::None, Buttons::OKCancel);
    EXPECT_EQ(model.Link2, 2);
    EXPECT_EQ(model.ModelTitle, "");
    EXPECT_EQ(Link(Field_Link2).text, "2.000");
    EXPECT_THAT(port.dialogs, IsEmpty());
}

TEST_F(HomeFiles, NewOverUnsavedResultsOffersToSaveThem) {
    Put_Unsaved_Results();
    port.answers = {Answer::Yes};
    port.files = {folder / "kept.kvl"};
    home.mnu_New.click();
    Expect_Box(kSaveFirst, Icon::None, Buttons::YesNo);
    Expect_Written("kept.kvl");
    Expect_Box(kReset, Icon::None, Buttons::OKCancel);
    EXPECT_THAT(port.trace, ElementsAre("box", "save dialog", "box", "box"));
    EXPECT_EQ(model.ModelName, "Model_1");
    EXPECT_EQ(model.ModelPath, "");
    EXPECT_TRUE(model.DataSaved);
}

TEST_F(HomeFiles, NewWithoutSavingGoesOn) {
    Put_Unsaved_Results();
    port.answers = {Answer::No};
    home.mnu_New.click();
    Expect_Box(kSaveFirst, Icon::None, Buttons::YesNo);
    Expect_Box(kReset, Icon::None, Buttons::OKCancel);
    EXPECT_THAT(port.dialogs, IsEmpty());
}

TEST_F(HomeFiles, NewOverSavedResultsDoesNotOfferIt) {
    Put_Unsaved_Results();
    model.DataSaved = true;
    home.mnu_New.click();
    Expect_Box(kReset, Icon::None, Buttons::OKCancel);
}

TEST_F(HomeFiles, CancelOfNewChangesNothing) {
    Put_Unsaved_Results();
    model.DataFromFile = true;
    port.answers = {Answer::No, Answer::Cancel};
    const LinkageModel before = model;
    home.mnu_New.click();
    Take_Box();
    Take_Box();
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
    EXPECT_EQ(tables.Theta(3, 1), 45);
}

TEST_F(HomeFiles, NewClearsResultsFlagsAndButtons) {
    Put_Unsaved_Results();
    model.DataSaved = true;
    model.DataFromFile = model.DynamicsCalculated = true;
    model.CalcMode = 2;
    model.NewData = false;
    Update_Home_Menu(*screens);
    home.mnu_New.click();
    Take_Box();
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_FALSE(model.DynamicsCalculated);
    EXPECT_FALSE(model.DataFromFile);
    EXPECT_TRUE(model.NewData);
    EXPECT_EQ(model.CalcMode, 3);
    EXPECT_EQ(tables.Theta(3, 1), 0);
    for (const bool enabled : {home.cmd_Print.enabled, home.cmd_Plot.enabled, home.mnu_Save.enabled,
                               home.mnu_New.enabled, home.mnu_Export.enabled})
        EXPECT_FALSE(enabled);
}

TEST_F(HomeFiles, NewAfterATurnedLinkageStandsOnItsOwnGround) {
    model.GroundAngleDeg = 30;
    model.GroundAngle = 0.5235988F;
    home.mnu_New.click();
    Take_Box();
    Open_Input();
    EXPECT_EQ(model.GroundAngleDeg, 0);
    EXPECT_EQ(model.GroundAngle, 0);
    EXPECT_EQ(model.Link1, 9.375F);
    EXPECT_EQ(model.O4LocalX, 9.375F);
    EXPECT_EQ(model.O4LocalY, 0);
    EXPECT_EQ(model.O6LocalX, 14.375F);
    EXPECT_EQ(model.O6LocalY, 2);
    EXPECT_EQ(Link(Field_Ground).text, "0.00");
}

TEST_F(HomeFiles, OpenProposesBothKindsOfFiles) {
    home.mnu_Open.click();
    ASSERT_EQ(port.dialogs.size(), 1U);
    EXPECT_EQ(port.dialogs[0].title, "Open a model");
    EXPECT_EQ(port.dialogs[0].filter,
              "KERVOL for Windows (*.kvl)|*.kvl | Kervol DOS(*.ikv)|*.ikv| All (*.*)|*.*|");
    EXPECT_EQ(port.dialogs[0].name, "*.kvl");
}

TEST_F(HomeFiles, OpenFillsFieldsOptionsAndUnitsAndShowsTheInputScreen) {
    port.files = {Put_Model_File("crank.kvl")};
    home.mnu_New.enabled = false;
    home.mnu_Open.click();
    Expect_Box(Read_Box(folder / "crank.kvl"), Icon::Information);
    EXPECT_THAT(port.trace,
                ElementsAre("open dialog", "fill while loading", "box", "show frm_Inputnew modal"));
    EXPECT_EQ(model.ModelPath, folder / "crank.kvl");
    EXPECT_EQ(model.ModelName, "crank");
    EXPECT_EQ(Link(Field_Link3).text, "8.123");
    EXPECT_EQ(Link(Field_Link3).put_value, 8.123456F);
    EXPECT_TRUE(input.opt_OpenCross1[0].on);
    EXPECT_TRUE(input.opt_OpenCross2[1].on);
    EXPECT_FALSE(input.opt_OpenCross2[0].on);
    EXPECT_TRUE(animate.opt_OpenCross2[1].on);
    EXPECT_TRUE(input.opt_Calctype[2].on);
    EXPECT_THAT(Initial_Texts(), ElementsAre("0", "1.5", "0.05"));
    EXPECT_TRUE(home.mnu_pick[4].checked);
    EXPECT_EQ(input.lbl_Units.at(Field_Link3).caption, "cm");
    EXPECT_EQ(animate.txt_Linkout.at(Field_Link3).text, "8.123");
    EXPECT_TRUE(model.DataFromFile);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_FALSE(model.DataSaved) << "reading is not saving";
    EXPECT_FALSE(model.Loading);
    EXPECT_TRUE(home.mnu_New.enabled) << "with something open there is something to reset";
    EXPECT_TRUE(Picture_Is_Clear());
}

TEST_F(HomeFiles, ALegacyFileKeepsItsGroundLinkWhileNobodyEditsThePivots) {
    // Its Link 1 is 5.25 and it has one coordinate of O6 in each frame: 20 in the user's, 3.5 in the local
    // one.
    std::string text = "\"KERVOL\"\r\n\"6.0\"\r\n";
    for (const char* line :
         {"\"old\"", "\"Bea\"", "4",          "\"1/2/90\"", "\"10:00\"", "2", "8", "7", "5.25",
          "6",       "0",       "\"Legacy\"", "\"W\"",      "8",         "7", "8", "5", "0",
          "0",       "0",       "6",          "20",         "3.5",       "1", "1"})
        text += std::string(line) + "\r\n";
    for (int skipped = 0; skipped < 8; ++skipped) text += "\"\"\r\n";
    for (const char* line : {"0", "5", "0.05", "0", "10", "0", "\"0\"", "\"360\"", "\"10\"", "\"\"", "3"})
        text += std::string(line) + "\r\n";
    for (int skipped = 0; skipped < 15; ++skipped) text += "\"\"\r\n";
    text += "\"N\"\r\n\"Y\"\r\n\"N\"\r\n";
    for (int skipped = 0; skipped < 4; ++skipped) text += "\"\"\r\n";
    text += "\"abs\"\r\n\"\"\r\n3\r\n10\r\n";
    port.files = {folder.Put("old.ikv", text)};
    home.mnu_Open.click();
    Expect_Box(Read_Box(folder / "old.ikv"), Icon::Information);
    EXPECT_EQ(model.ModelTitle, "Legacy");
    EXPECT_EQ(model.Link1, 5.25F);
    EXPECT_EQ(Link(Field_Link1).text, "5.250");
    EXPECT_EQ(model.O4X, 9.375F) << "not in the format";
    EXPECT_EQ(model.O6LocalX, 14.375F) << "not in the format";
    EXPECT_EQ(model.O6X, 20);
    EXPECT_EQ(model.O6LocalY, 3.5F);
    Edit(Link(Field_O4X), "5.25");
    EXPECT_EQ(model.Link1, 5.25F);
    EXPECT_EQ(model.O6LocalX, 20);
    EXPECT_EQ(model.O6LocalY, 2);
}

TEST_F(HomeFiles, OpenOverUnsavedResultsBringsTheSaveDialogTwice) {
    Put_Unsaved_Results();
    port.answers = {Answer::Yes};
    port.files = {folder / "one.kvl", folder / "two.kvl", std::nullopt};
    home.mnu_Open.click();
    Expect_Box(kSaveFirst, Icon::None, Buttons::YesNo);
    Expect_Written("one.kvl");
    Expect_Written("two.kvl");
    EXPECT_THAT(port.trace, ElementsAre("box", "save dialog", "box", "save dialog", "box", "open dialog"));
    EXPECT_EQ(port.dialogs[1].name, "one.kvl") << "the second proposes the first's name";
    EXPECT_EQ(model.ModelName, "two");
}

TEST_F(HomeFiles, OpenYesCancelCancelStillComesToTheOpenDialogOverZeroedTables) {
    Put_Unsaved_Results();
    port.answers = {Answer::Yes};
    home.mnu_Open.click();
    Take_Box();
    EXPECT_THAT(port.trace, ElementsAre("box", "save dialog", "save dialog", "open dialog"));
    EXPECT_EQ(tables.Theta(3, 1), 0);
    EXPECT_TRUE(model.DataCalculated) << "zeroed tables under a set flag";
    EXPECT_FALSE(model.DataSaved);
}

TEST_F(HomeFiles, OpenWithoutSavingOrWithSavedResultsSkipsTheSaveDialogs) {
    Put_Unsaved_Results();
    port.answers = {Answer::No};
    home.mnu_Open.click();
    Expect_Box(kSaveFirst, Icon::None, Buttons::YesNo);
    EXPECT_THAT(port.trace, ElementsAre("box", "open dialog"));
    model.DataSaved = true;
    home.mnu_Open.click();
    EXPECT_THAT(port.trace, ElementsAre("box", "open dialog", "open dialog"));
}

TEST_F(HomeFiles, CancelOfOpenLeavesTheModelAlone) {
    const LinkageModel before = model;
    home.mnu_Open.click();
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
    EXPECT_THAT(port.screens, IsEmpty());
}

TEST_F(HomeFiles, AFileThatCannotBeOpenedIsReportedAndNothingElseHappens) {
    port.files = {folder / "missing.kvl"};
    home.mnu_New.enabled = false;
    home.mnu_Open.click();
    Expect_Fault(53, "frm_Homescreen.Open");
    EXPECT_EQ(model.ModelName, "Model_1");
    EXPECT_FALSE(home.mnu_New.enabled);
    EXPECT_THAT(port.screens, IsEmpty());
}

TEST_F(HomeFiles, AFileOfAnotherKindIsRefusedAndGivesItsNameAllTheSame) {
    port.files = {folder.Put("letter.txt", "Dear friend\r\nhello\r\n")};
    home.mnu_Open.click();
    Expect_Box("This data file is not compatible with this version of KERVOL for Windows. ", Icon::None);
    EXPECT_EQ(model.ModelName, "letter");
    EXPECT_EQ(model.ModelPath, folder / "letter.txt");
    EXPECT_FALSE(model.DataFromFile);
    EXPECT_TRUE(home.mnu_New.enabled);
    EXPECT_THAT(port.screens, IsEmpty());
}

TEST_F(HomeFiles, ACutFileIsReportedAndThenShownAsFarAsItWasRead) {
    port.files = {folder.Put("cut.kvl", "\"KERVOL for Windows\"\r\n\"7.0\"\r\n\"crank\"\r\n\"Bea\"\r\n")};
    home.mnu_Open.click();
    Expect_Fault(62, "");
    Expect_Box(Read_Box(folder / "cut.kvl"), Icon::Information);
    EXPECT_EQ(model.UserName, "Bea");
    EXPECT_EQ(port.screens.back(), ScreenId::frm_Inputnew);
}

TEST_F(HomeFiles, SaveAsProposesTheModelsName) {
    model.ModelName = "crank";
    home.mnu_Saveas.click();
    ASSERT_EQ(port.dialogs.size(), 1U);
    EXPECT_EQ(port.dialogs[0].title, "Save the Model");
    EXPECT_EQ(port.dialogs[0].filter, "*.kvl");
    EXPECT_EQ(port.dialogs[0].name, "crank.kvl");
    EXPECT_EQ(port.trace.back(), "save dialog");
}

TEST_F(HomeFiles, SaveAsWritesAndTakesTheFilesName) {
    port.files = {folder / "rocker.kvl"};
    home.mnu_Saveas.click();
    Expect_Written("rocker.kvl");
    EXPECT_TRUE(model.DataSaved);
    EXPECT_EQ(model.ModelName, "rocker");
    EXPECT_EQ(model.ModelPath, folder / "rocker.kvl");
    EXPECT_FALSE(Content_Of(folder / "rocker.kvl").empty());
}

TEST_F(HomeFiles, CancelOfSaveAsChangesNothing) {
    model.DataCalculated = true;
    const LinkageModel before = model;
    home.mnu_Saveas.click();
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
}

TEST_F(HomeFiles, SaveAsksForANameOnceAndThenWritesAtOnce) {
    port.files = {folder / "rocker.kvl"};
    home.mnu_Save.click();
    Expect_Written("rocker.kvl");
    const std::string first = Content_Of(folder / "rocker.kvl");
    model.ModelTitle = "changed";
    home.mnu_Save.click();
    Expect_Written("rocker.kvl");
    EXPECT_EQ(port.dialogs.size(), 1U);
    EXPECT_NE(Content_Of(folder / "rocker.kvl"), first);
}

TEST_F(HomeFiles, SaveAfterNewAsksAgainThoughAFileWasChosenBefore) {
    port.files = {folder / "rocker.kvl"};
    home.mnu_Saveas.click();
    Expect_Written("rocker.kvl");
    home.mnu_New.click();
    Take_Box();
    EXPECT_TRUE(model.DataSaved);
    port.files = {folder / "second.kvl"};
    home.mnu_Save.click();
    Expect_Written("second.kvl");
    EXPECT_EQ(port.dialogs.size(), 2U);
}

TEST_F(HomeFiles, SaveAfterOpenWritesThereOnlyIfAFileWasChosenBefore) {
    const std::string path = Put_Model_File("crank.kvl");
    model.DataSaved = false;
    port.files = {path};
    home.mnu_Open.click();
    Take_Box();
    port.files = {folder / "other.kvl"};
    home.mnu_Save.click();
    Expect_Written("other.kvl");
    EXPECT_EQ(port.trace.at(port.trace.size() - 2), "save dialog");

    port.files = {path};
    home.mnu_Open.click();
    Take_Box();
    port.trace.clear();
    home.mnu_Save.click();
    Expect_Written("crank.kvl");
    EXPECT_THAT(port.trace, ElementsAre("box"));
}

TEST_F(HomeFiles, AFailedSaveAsIsReportedAndIsNoSaving) {
    port.files = {folder / "nowhere/rocker.kvl"};
    home.mnu_Saveas.click();
    Expect_Fault(76, "frm_Homescreen.SaveAs");
    EXPECT_FALSE(model.DataSaved);
}

TEST_F(HomeFiles, AFailedSaveLeavesTheFlagAsItIs) {
    std::filesystem::create_directory(folder / "rocker.kvl");
    model.DataSaved = true;
    model.ModelPath = folder / "rocker.kvl";
    home.mnu_Save.click();
    Expect_Fault(75, "frm_Homescreen.Save");
    EXPECT_TRUE(model.DataSaved);
    EXPECT_THAT(port.dialogs, IsEmpty());
}

}  // namespace
}  // namespace kervol
