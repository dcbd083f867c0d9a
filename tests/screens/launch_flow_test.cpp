// SPDX-License-Identifier: GPL-3.0-or-later
// From the start of the program to the Home screen, and how it ends.
#include "core/header.h"
#include "files/model_file.h"
#include "screens/launch_screens.h"
#include "screens/screens_fixture.h"
#include "support/compare.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class LaunchFlow : public ScreensTest {
  protected:
    LaunchFlow() { port.user_name = "Ada Lovelace"; }

    /// A person who goes straight on.
    void Press_On() {
        port.script[ScreenId::frm_Title] = [this] { screens->frm_Title.cmd_Start.click(); };
        port.script[ScreenId::frm_Disclaimer] = [this] { screens->frm_Disclaimer.cmd_Done.click(); };
        port.script[ScreenId::frm_User] = [this] { screens->frm_User.cmd_Done.click(); };
    }

    /// A file whose model differs from a fresh one, in its unit system too.
    std::string Put_Model_File() {
        model.ModelTitle = "from the file";
        model.UnitSystem = 3;
        model.Link3 = 8.123456F;
        model.Omega2Start = 17;
        const std::string path = folder / "crank.kvl";
        Save_Model_As(*program, path);
        Take_Box();
        return path;
    }

    UserScreen& user = screens->frm_User;
    TemporaryFolder folder;
};

TEST_F(LaunchFlow, LeadsOverTitleDisclaimerAndUserToTheHomeScreen) {
    Press_On();
    Launch(*screens, "");
    EXPECT_THAT(port.trace, ElementsAre("show frm_Title modal", "hide frm_Title", "show frm_Disclaimer modal",
                                        "hide frm_Disclaimer", "show frm_User modal", "hide frm_User",
                                        "show frm_HomeScreen modeless"));
    EXPECT_EQ(model.UserName, "Ada Lovelace");
    EXPECT_EQ(model.DesignNumber, 1);
    EXPECT_FALSE(model.StartingUp) << "cleared by the Home screen";
    EXPECT_TRUE(model.NewData);
}

TEST_F(LaunchFlow, StartsUpUntilTheHomeScreenComes) {
    Launch(*screens, "");
    EXPECT_TRUE(model.StartingUp);
    EXPECT_EQ(model.UnitSystem, 1);
    EXPECT_EQ(model.UnitText(6), "in");
    EXPECT_TRUE(home.mnu_pick[1].checked);
    EXPECT_EQ(input.lbl_Units.at(Field_Link2).caption, "in");
}

TEST_F(LaunchFlow, NamesProgramVersionAndReleaseOnTheTitle) {
    Launch(*screens, "");
    const TitleScreen& title = screens->frm_Title;
    EXPECT_EQ(title.lblHeader.caption,
              "A Program for the Kinematic Analysis and Synthesis of Kervol Linkages");
    for (const char* part : {"KERVOL for Windows", "7.0", "2.2"})
        EXPECT_THAT(title.lbl_Version.caption, HasSubstr(part));
    EXPECT_EQ(title.cmd_Start.caption, "&Start >");
    EXPECT_EQ(title.cmd_Abort.caption, "< &Abort");
    EXPECT_EQ(screens->frm_About.lbl_Version.caption, title.lbl_Version.caption);
    EXPECT_EQ(screens->frm_About.lblHeader.caption, title.lblHeader.caption);
}

TEST_F(LaunchFlow, AbortAsksWhetherToQuit) {
    screens->frm_Title.cmd_Abort.click();
    EXPECT_THAT(port.trace, ElementsAre("show frm_Quit modal", "focus frm_Quit.cmd_NoQuit"));
    EXPECT_FALSE(port.ended);
}

TEST_F(LaunchFlow, SaysWhoIsResponsibleOnTheDisclaimer) {
    const DisclaimerScreen& disclaimer = screens->frm_Disclaimer;
    for (const char* part : {"responsible for the quality of any design", "warranty of any kind",
                             "incidental or consequential damages"})
        EXPECT_THAT(disclaimer.lbl_Notices.caption, HasSubstr(part));
    EXPECT_EQ(disclaimer.cmd_Done.caption, "&Next >");
}

TEST_F(LaunchFlow, TheDisclaimerOfTheHelpMenuDoesNotRunTheChainAgain) {
    model.StartingUp = true;
    port.script[ScreenId::frm_Disclaimer] = [this] { screens->frm_Disclaimer.cmd_Done.click(); };
    home.mnu_Disclaimer.click();
    EXPECT_THAT(port.trace, ElementsAre("show frm_Disclaimer modal", "hide frm_Disclaimer"));
    EXPECT_FALSE(model.StartingUp);
}

TEST_F(LaunchFlow, TheUserScreenProposesWhatIsKnown) {
    model.DesignNumber = 12;
    model.ModelName = "crank";
    EXPECT_EQ(user.txt_Filename.text, "Model1") << "before it opens";
    port.Show_Screen(ScreenId::frm_User, Modality::Modal);
    EXPECT_EQ(user.txt_UserName.text, "Ada Lovelace");
    EXPECT_EQ(user.txt_DesignNo.text, "12");
    EXPECT_EQ(user.txt_Filename.text, "crank");
    EXPECT_EQ(user.lbl_UserName.caption, "Please enter your name and/or a project ID:");
    EXPECT_EQ(user.lbl_DesignNo.caption, "Please enter a design number:");
    EXPECT_EQ(user.cmd_Done.caption, "Next >");
}

TEST_F(LaunchFlow, AnEmptyUserNameTakesTheFocusAndNothingElseHappens) {
    port.Show_Screen(ScreenId::frm_User, Modality::Modal);
    const LinkageModel before = model;
    Type(user.txt_UserName, "");
    Type(user.txt_DesignNo, "7");
    port.trace.clear();
    user.cmd_Done.click();
    EXPECT_THAT(port.trace, ElementsAre("focus frm_User.txt_UserName"));
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
    Close_Screen(*screens, ScreenId::frm_User);
    EXPECT_EQ(port.trace.size(), 2U) << "nor by the close box";
    EXPECT_EQ(port.trace.back(), "focus frm_User.txt_UserName");
}

TEST_F(LaunchFlow, TheUserScreenStoresNameAndDesignNumber) {
    port.Show_Screen(ScreenId::frm_User, Modality::Modal);
    Type(user.txt_UserName, "Project 9");
    Type(user.txt_DesignNo, "42b");
    port.trace.clear();
    user.cmd_Done.click();
    EXPECT_EQ(model.UserName, "Project 9");
    EXPECT_EQ(model.DesignNumber, 42);
    EXPECT_THAT(port.trace, ElementsAre("hide frm_User", "show frm_HomeScreen modeless"));
}

TEST_F(LaunchFlow, ADesignNumberThatIsNoNumberIsZeroAndOneTooLargeIsReported) {
    port.Show_Screen(ScreenId::frm_User, Modality::Modal);
    Type(user.txt_DesignNo, "forty");
    user.cmd_Done.click();
    EXPECT_EQ(model.DesignNumber, 0);
    Type(user.txt_DesignNo, "40000");
    port.trace.clear();
    user.cmd_Done.click();
    Expect_Fault(6, "frm_User.Done");
    EXPECT_EQ(model.DesignNumber, 0);
    EXPECT_THAT(port.trace, ElementsAre("box")) << "the screen stays";
}

TEST_F(LaunchFlow, LeavingTheFileNameOrEnterInItStoresTheModelsName) {
    port.Show_Screen(ScreenId::frm_User, Modality::Modal);
    Edit(user.txt_Filename, "rocker");
    EXPECT_EQ(model.ModelName, "rocker");
    Type(user.txt_Filename, "slider");
    EXPECT_EQ(model.ModelName, "rocker");
    user.txt_Filename.enter();
    EXPECT_EQ(model.ModelName, "slider");
}

TEST_F(LaunchFlow, EnterInTheUserNameMovesOnToTheButton) {
    user.txt_UserName.enter();
    EXPECT_THAT(port.trace, ElementsAre("focus frm_User.cmd_Done"));
}

TEST_F(LaunchFlow, AFileNamedOnTheCommandLineOpensSilentlyAndKeepsItsUnits) {
    const std::string path = Put_Model_File();
    Launch(*screens, path);
    EXPECT_THAT(port.trace, ::testing::Contains("show frm_Title modal").Times(1));
    EXPECT_THAT(port.trace, ::testing::Not(::testing::Contains("show frm_Inputnew modal")));
    EXPECT_EQ(model.ModelTitle, "from the file");
    EXPECT_EQ(model.ModelName, "crank");
    EXPECT_EQ(model.UnitSystem, 3);
    EXPECT_TRUE(model.DataFromFile);
    EXPECT_FALSE(model.Loading);
    // The screens hold it before anybody opens them.
    EXPECT_EQ(Link(Field_Link3).text, "8.123");
    EXPECT_EQ(Link(Field_Link3).put_value, 8.123456F);
    EXPECT_EQ(Initial(3).text, "17");
    EXPECT_EQ(input.lbl_Units.at(Field_Link3).caption, "m");
    EXPECT_TRUE(home.mnu_pick[3].checked);
    EXPECT_FALSE(home.mnu_pick[1].checked);
}

TEST_F(LaunchFlow, AFileThatCannotBeReadIsReportedAndTheRunStartsFresh) {
    Launch(*screens, folder / "missing.kvl");
    Expect_Fault(53, " in Open_Clicked_File");
    EXPECT_EQ(model.UnitSystem, 1);
    EXPECT_EQ(model.UnitText(6), "in");
    EXPECT_EQ(model.ModelTitle, "Kervol Watts Chain with Two Coupler Curves");
    EXPECT_EQ(port.trace.back(), "show frm_Title modal");
}

TEST_F(LaunchFlow, AFileOfAnotherKindIsRefusedAndTheRunStartsFresh) {
    Launch(*screens, folder.Put("letter.txt", "Dear friend\r\nhello\r\n"));
    Expect_Box("This data file is not compatible with this version of KERVOL for Windows. ", Icon::None);
    EXPECT_EQ(model.UnitText(6), "in");
    EXPECT_FALSE(model.DataFromFile);
}

TEST_F(LaunchFlow, EveryScreenHasItsCaption) {
    const std::string tail = model.CaptionTail;
    ASSERT_THAT(tail, HasSubstr("KERVOL for Windows"));
    EXPECT_EQ(Screen_Caption(*screens, ScreenId::frm_HomeScreen), "Home Screen" + tail);
    EXPECT_EQ(Screen_Caption(*screens, ScreenId::frm_Inputnew), "Input Screen" + tail);
    EXPECT_EQ(Screen_Caption(*screens, ScreenId::frm_Animate), "Animation Screen" + tail);
    EXPECT_EQ(Screen_Caption(*screens, ScreenId::frm_Disclaimer), tail);
    for (const ScreenId screen :
         {ScreenId::frm_Title, ScreenId::frm_User, ScreenId::frm_About, ScreenId::frm_Quit})
        EXPECT_NE(Screen_Caption(*screens, screen), "") << Screen_Name(screen);
}

TEST_F(LaunchFlow, TheHeaderHasTheDesignAndOnceThereIsOneTheFile) {
    model.UserName = "Ada";
    model.DesignNumber = 3;
    model.DateText = "1/2/26";
    model.TimeText = "12:30";
    model.ModelName = "crank";
    EXPECT_EQ(Put_Header(model), "Ada\n Design No. 3\n1/2/26\n at 12:30");
    model.ModelPath = "/tmp/crank.kvl";
    EXPECT_EQ(Put_Header(model), "Ada\n Design No. 3\n1/2/26\n at 12:30\n File: crank");
    Open_Input();
    EXPECT_EQ(input.lbl_Header.caption, Put_Header(model));
}

class QuitFlow : public ScreensTest {
  protected:
    TemporaryFolder folder;
};

TEST_F(QuitFlow, AsksAndNoIsFocused) {
    for (const Event& quit : {home.cmd_Quit.click, home.mnu_Quit.click}) {
        port.trace.clear();
        quit();
        EXPECT_THAT(port.trace, ElementsAre("show frm_Quit modal", "focus frm_Quit.cmd_NoQuit"));
    }
    EXPECT_EQ(screens->frm_Quit.lbl_Question.caption, "Do you really want to Quit?");
    EXPECT_EQ(screens->frm_Quit.cmd_YesQuit.caption, "&Yes >");
    EXPECT_EQ(screens->frm_Quit.cmd_NoQuit.caption, "< &No");
}

TEST_F(QuitFlow, NoGoesOnAndYesEnds) {
    port.script[ScreenId::frm_Quit] = [this] { screens->frm_Quit.cmd_NoQuit.click(); };
    home.cmd_Quit.click();
    EXPECT_EQ(port.trace.back(), "hide frm_Quit");
    EXPECT_FALSE(port.ended);
    port.script[ScreenId::frm_Quit] = [this] { screens->frm_Quit.cmd_YesQuit.click(); };
    home.cmd_Quit.click();
    EXPECT_TRUE(port.ended);
}

TEST_F(QuitFlow, UnsavedResultsBringTheSaveDialogFirstWithoutAQuestion) {
    model.DataCalculated = true;
    port.files = {folder / "kept.kvl"};
    home.cmd_Quit.click();
    EXPECT_THAT(port.trace,
                ElementsAre("save dialog", "box", "show frm_Quit modal", "focus frm_Quit.cmd_NoQuit"));
    Expect_Box("File was successfully written to \n" + (folder / "kept.kvl"), Icon::Information);
    home.cmd_Quit.click();
    EXPECT_EQ(port.dialogs.size(), 1U) << "saved by now";
}

TEST_F(QuitFlow, CancelOfThatDialogStillAsks) {
    model.DataCalculated = true;
    Close_Screen(*screens, ScreenId::frm_HomeScreen);
    EXPECT_THAT(port.trace, ElementsAre("save dialog", "show frm_Quit modal", "focus frm_Quit.cmd_NoQuit"));
    EXPECT_FALSE(port.ended);
}

TEST_F(QuitFlow, NothingCalculatedIsNothingToSave) {
    model.DataCalculated = false;
    Close_Screen(*screens, ScreenId::frm_HomeScreen);
    EXPECT_THAT(port.dialogs, IsEmpty());
}

TEST_F(QuitFlow, TheCloseBoxOfEachScreenDoesAsItsWayBack) {
    const auto closed = [&](ScreenId screen) {
        port.trace.clear();
        Close_Screen(*screens, screen);
        return port.trace;
    };
    EXPECT_THAT(closed(ScreenId::frm_Title), ElementsAre("show frm_Quit modal", "focus frm_Quit.cmd_NoQuit"));
    EXPECT_THAT(closed(ScreenId::frm_Disclaimer), ElementsAre("hide frm_Disclaimer"));
    EXPECT_THAT(closed(ScreenId::frm_HomeScreen),
                ElementsAre("show frm_Quit modal", "focus frm_Quit.cmd_NoQuit"));
    EXPECT_THAT(closed(ScreenId::frm_Inputnew), ElementsAre("hide frm_Inputnew"));
    EXPECT_THAT(closed(ScreenId::frm_Quit), ElementsAre("hide frm_Quit"));
    EXPECT_THAT(closed(ScreenId::frm_About), ElementsAre("hide frm_About"));
    EXPECT_THAT(closed(ScreenId::frm_Animate), ElementsAre("hide frm_Animate"));
    EXPECT_FALSE(port.ended);
    screens->frm_User.txt_UserName.text = "Ada";
    EXPECT_THAT(closed(ScreenId::frm_User), ElementsAre("hide frm_User", "show frm_HomeScreen modeless"));
    model.StartingUp = true;
    EXPECT_THAT(closed(ScreenId::frm_Disclaimer), ElementsAre("hide frm_Disclaimer", "show frm_User modal"));
}

}  // namespace
}  // namespace kervol
