// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons of the Dynamics screen, the ways to it and from it, and the box for an imported torque.
#include <fstream>
#include <optional>

#include "core/fault.h"
#include "core/header.h"
#include "files/exchange.h"
#include "screens/launch_screens.h"
#include "screens/mass_prop_fixture.h"
#include "support/compare.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using MassPropButtons = MassPropTest;

TEST_F(MassPropButtons, HaveTheirCaptions) {
    const std::pair<const Button*, const char*> buttons[] = {
        {&screen.cmd_Solve, "&Solve"},   {&screen.cmd_Matrix, "Show &Matrix"}, {&screen.cmd_Done, "&Next >"},
        {&screen.cmd_Cancel, "< &Back"}, {&screen.cmd_Print, "&Print Form"},   {&screen.cmd_Copy, "&Copy"},
    };
    for (const auto& [button, caption] : buttons) EXPECT_EQ(button->caption, caption);
    EXPECT_EQ(screen.chk_Torque.caption, "Import a Torque Function File to Apply to Link 6 ");
    for (int link = 2; link <= 6; ++link)
        EXPECT_EQ(screen.lbl_Segment.at(static_cast<std::size_t>(link)).caption, std::to_string(link));
    EXPECT_EQ(Screen_Caption(*screens, ScreenId::frm_MassProp),
              "Dynamics Screen   KERVOL for Windows 7.0, Rev. 2.2");
}

TEST_F(MassPropButtons, OnlySolveAndBackAreOnWhenTheScreenOpens) {
    for (Button* button : {&screen.cmd_Matrix, &screen.cmd_Done, &screen.cmd_Print, &screen.cmd_Copy})
        button->enabled = true;
    screen.cmd_Solve.enabled = false;
    Open();
    EXPECT_EQ(Buttons_On(), kOnlySolve);
    EXPECT_EQ(screen.lbl_Header.caption, Put_Header(model));
}

TEST_F(MassPropButtons, OpeningKeepsWhatWasSolvedAndTheModel) {
    Open_And_Solve();
    const LinkageModel before = model;
    Open();
    EXPECT_EQ(Buttons_On(), kOnlySolve);
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
    EXPECT_TRUE(model.DynamicsCalculated);
}

TEST_F(MassPropButtons, SolveFillsTheTablesTurnsThemOnAndMovesTheFocus) {
    Open();
    Poison_Tables(tables);
    model.FlywheelCalculated = true;
    port.trace.clear();
    Solve();
    for (int step = 0; step <= 36; ++step) EXPECT_NE(tables.TorqueTable(step, 0), Poison) << step;
    EXPECT_EQ(tables.TorqueTable(37, 0), Poison);
    EXPECT_TRUE(model.DynamicsCalculated);
    EXPECT_FALSE(model.FlywheelCalculated);
    EXPECT_EQ(Buttons_On(), kAllOn);
    EXPECT_THAT(port.trace, ElementsAre("focus frm_MassProp.cmd_Done"));
    EXPECT_EQ(port.pointer, Pointer::Default);
}

TEST_F(MassPropButtons, SolveShowsTheBusyPointerMeanwhile) {
    Open();
    model.LinkageType = "?";
    Pointer seen = Pointer::Default;
    port.while_box = [&] { seen = port.pointer; };
    Solve();
    Take_Box();
    Take_Box();
    EXPECT_EQ(seen, Pointer::Busy);
    EXPECT_EQ(port.pointer, Pointer::Default);
}

TEST_F(MassPropButtons, ARunThatStopsTurnsThemOnAllTheSame) {
    Open();
    model.LinkageType = "?";
    Solve();
    Take_Box();  // of the equations
    Expect_Box("Error in Computing Simultaneous Equations at step    0", Icon::Question);
    EXPECT_TRUE(model.DynamicsCalculated);
    EXPECT_EQ(Buttons_On(), kAllOn);
}

TEST_F(MassPropButtons, AnyEditTurnsTheResultsOffAndKeepsThem) {
    Open();
    std::vector<TextField*> fields;
    for (const MassPropColumn& column : Columns())
        for (int link = column.first_link; link <= 6; ++link)
            fields.push_back(&At(screen.*column.fields, link));
    for (int link = 2; link <= 6; ++link) {
        fields.push_back(&At(screen.txt_DistCG, link));
        fields.push_back(&At(screen.txt_AngCG, link));
    }
    EXPECT_EQ(fields.size(), 44U);
    for (TextField* field : fields) {
        Solve();
        ASSERT_EQ(Buttons_On(), kAllOn);
        const auto forces = tables.ForceTable;
        Type(*field, "1");
        EXPECT_EQ(Buttons_On(), kOnlySolve);
        EXPECT_TRUE(model.DynamicsCalculated);
        EXPECT_TRUE(tables.ForceTable == forces);
    }
}

TEST_F(MassPropButtons, NextLeavesWithTheResults) {
    Open_And_Solve();
    model.DynamicsCalculated = model.NewData = false;
    home.cmd_Dynamics.enabled = home.cmd_Plot.enabled = false;
    port.trace.clear();
    screen.cmd_Done.click();
    EXPECT_TRUE(model.DynamicsCalculated);
    EXPECT_TRUE(model.NewData);
    EXPECT_TRUE(home.cmd_Dynamics.enabled && home.cmd_Plot.enabled);
    EXPECT_THAT(port.trace, ElementsAre("hide frm_MassProp"));
}

TEST_F(MassPropButtons, BackAndTheCloseBoxChangeNothing) {
    Open_And_Solve();
    Type(screen.txt_Mass[3], "5");
    const LinkageModel before = model;
    port.trace.clear();
    screen.cmd_Cancel.click();
    Close_Screen(*screens, ScreenId::frm_MassProp);
    EXPECT_THAT(port.trace, ElementsAre("hide frm_MassProp", "hide frm_MassProp"));
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
    Open();
    EXPECT_EQ(screen.txt_Mass[3].text, "0.01") << "what was not solved is forgotten";
}

TEST_F(MassPropButtons, HomeOpensItOnceThereIsACalculation) {
    home.cmd_Dynamics.click();
    EXPECT_THAT(port.trace, ElementsAre("show frm_MassProp modal"));
    Calculate_In_Mode(1);
    EXPECT_TRUE(home.cmd_Dynamics.enabled) << "one position can be solved too";
    Edit(Link(Field_Link3), "9");
    Activate_Screen(*screens, ScreenId::frm_HomeScreen);
    EXPECT_FALSE(home.cmd_Dynamics.enabled);
}

TEST_F(MassPropButtons, TheMatrixLeavesThemOnOnceOnReturn) {
    Open_And_Solve();
    port.trace.clear();
    port.opening[ScreenId::frm_Matrix] = [&] {
        EXPECT_TRUE(screen.FromMatrix);
        EXPECT_EQ(screens->frm_Matrix.lbl_Header.caption, Put_Header(model));
    };
    screen.cmd_Matrix.click();
    EXPECT_THAT(port.trace, ElementsAre("show frm_Matrix modal"));
    Activate_Screen(*screens, ScreenId::frm_MassProp);
    EXPECT_EQ(Buttons_On(), kAllOn);
    EXPECT_FALSE(screen.FromMatrix);
    Open();
    EXPECT_EQ(Buttons_On(), kOnlySolve);
}

TEST_F(MassPropButtons, CopyPutsTheImageOnTheClipboardAndSaysHow) {
    screen.cmd_Copy.click();
    Expect_Box("Use the Alt-PrintScrn key combo to copy the screen to the clipboard", Icon::Information);
    EXPECT_THAT(port.copied, ElementsAre(ScreenId::frm_MassProp));
}

TEST_F(MassPropButtons, PrintWarnsAndPrintsOnYesAlone) {
    Expect_Print_Asks(screen.cmd_Print, ScreenId::frm_MassProp);
}

TEST_F(MassPropButtons, AFaultOfPrintingIsReportedUnderTheNameOfThePlots) {
    Break_Next_Box();
    screen.cmd_Print.click();
    Expect_Fault(57, "frm_Plot1.PrintForm");
}

TEST_F(MassPropButtons, HelpTellsAboutForcesInThreeBoxes) {
    screen.cmd_Help.click();
    Expect_Box(
        " You must resolve the link's external force system to a\r"
        " single force acting at some point with respect to each link's CG.\r"
        " That force will be considered to be constant and non-rotating\r"
        " at a fixed angle with respect to the global coordinate system",
        Icon::None);
    Expect_Box(
        " You must also define the Position Vector (Mag and Angle) from \r"
        " the link CG to the point of application of the force on that link. \r"
        " Note that this angle is referenced to the link's embedded, rotating \r"
        " local coordinate system whose X axis lies along its line of centers",
        Icon::None);
    Expect_Box(" There may also be an external torque on the link, independent of \r the external forces",
               Icon::None);
}

TEST_F(MassPropButtons, AFaultWhileTheScreenOpensIsAnnounced) {
    screen.chk_Torque.click = [] { Raise(fault::Overflow); };
    model.TorqueImported = true;
    Open();
    Expect_Box("An error has occurred in the frm_massprop.activate routine", Icon::None);
    Expect_Fault(6, "frm_massprop.activate");
}

class ImportedTorque : public MassPropTest {
  protected:
    /// As a model file with a torque function leaves the program.
    void Read_Imported_Torque() {
        model.TorqueImported = model.DataFromFile = true;
        for (int step = 0; step <= 36; ++step) tables.Torque21Imported(step) = static_cast<float>(step);
        model.LinkTorque(6) = 12;
        Fill_Screens(*screens);
    }
};

TEST_F(ImportedTorque, OfAFileTicksTheBoxWithoutAskingForAFile) {
    Read_Imported_Torque();
    EXPECT_TRUE(screen.chk_Torque.on);
    EXPECT_EQ(screen.txt_Torque[6].text, "0");
    EXPECT_FALSE(screen.txt_Torque[6].enabled);
    EXPECT_FALSE(screen.cmd_Solve.enabled);
    EXPECT_TRUE(model.TorqueImported);
    EXPECT_EQ(model.LinkTorque(6), 12);
    EXPECT_THAT(port.dialogs, IsEmpty());
}

TEST_F(ImportedTorque, IsStillTickedWhenTheScreenOpensAndCanBeSolved) {
    Read_Imported_Torque();
    Open();
    EXPECT_TRUE(screen.chk_Torque.on);
    EXPECT_FALSE(screen.txt_Torque[6].enabled);
    EXPECT_EQ(Buttons_On(), kOnlySolve);
    Solve();
    EXPECT_EQ(model.LinkTorque(6), 0);
    // The torque of the step less inertia alone: its growth is that of the import.
    for (const int step : {0, 36})
        EXPECT_NEAR(tables.TorqueTable(step, 5),
                    static_cast<float>(step) - model.LinkInertia(6) * tables.Alpha(step, 4), 1e-3);
}

TEST_F(ImportedTorque, GivesTheFieldBackWhenTheBoxIsCleared) {
    Read_Imported_Torque();
    Open();
    screen.chk_Torque.on = false;
    screen.chk_Torque.click();
    EXPECT_EQ(screen.txt_Torque[6].text, "12");
    EXPECT_TRUE(screen.txt_Torque[6].enabled);
    EXPECT_TRUE(screen.cmd_Solve.enabled);
    EXPECT_FALSE(model.TorqueImported);
}

TEST_F(ImportedTorque, ThatASweepHasClearedIsUntickedWhenTheScreenOpens) {
    Read_Imported_Torque();
    Calculate_In_Mode(3);
    ASSERT_FALSE(model.TorqueImported);
    Open();
    EXPECT_FALSE(screen.chk_Torque.on);
    EXPECT_EQ(screen.txt_Torque[6].text, "12");
    EXPECT_TRUE(screen.txt_Torque[6].enabled);
    EXPECT_EQ(Buttons_On(), kOnlySolve);
}

class TorqueImport : public MassPropTest {
  protected:
    TorqueImport() {
        Calculate_In_Mode(3);
        model.LinkTorque(6) = 12;
        Open();
        port.dialogs.clear();
    }

    /// A file of as many rows as the model has steps.
    std::string Written(const char* name, const std::string& content) {
        const std::string path = folder / name;
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }
    std::string Torque_File() {
        model.DynamicsCalculated = true;
        for (int step = 0; step <= model.NumSteps; ++step)
            tables.TorqueTable(step, 3) = static_cast<float>(step);
        const std::string path = folder / "load.trq";
        EXPECT_TRUE(Export_Torque(*program, path));
        while (Boxes_Left() > 0) Take_Box();
        return path;
    }
    void Tick() {
        screen.chk_Torque.on = true;
        screen.chk_Torque.click();
    }

    TemporaryFolder folder;
};

TEST_F(TorqueImport, TakesTheFileAndLetsItBeSolved) {
    const std::string path = Torque_File();
    port.files = {path};
    Tick();
    ASSERT_EQ(port.dialogs.size(), 1U);
    EXPECT_EQ(port.dialogs[0].title, "Open a Torque Data file");
    EXPECT_EQ(port.dialogs[0].filter, "Torque Import (*.trq)|*.trq|(*.*)|*.*|");
    EXPECT_EQ(port.dialogs[0].name, "*.trq");
    EXPECT_EQ(Take_Box().text, "File " + path + " of Torque data successfully read.");
    EXPECT_TRUE(model.TorqueImported);
    EXPECT_TRUE(screen.chk_Torque.on);
    EXPECT_TRUE(screen.cmd_Solve.enabled);
    EXPECT_EQ(screen.txt_Torque[6].text, "0");
    EXPECT_FALSE(screen.txt_Torque[6].enabled);
    EXPECT_FALSE(model.DataSaved);
}

TEST_F(TorqueImport, IsUndoneByCancelByARefusedFileAndByOneThatCannotBeOpened) {
    const std::string other = Written("other.trq", "7\r\n");
    const std::string none = folder / "none.trq";
    for (const auto& answer : {std::optional<std::string>(), std::optional(other), std::optional(none)}) {
        port.files = {answer};
        Tick();
        while (Boxes_Left() > 0) Take_Box();
        EXPECT_FALSE(screen.chk_Torque.on);
        EXPECT_FALSE(model.TorqueImported);
        EXPECT_TRUE(screen.cmd_Solve.enabled);
        EXPECT_EQ(screen.txt_Torque[6].text, "12");
        EXPECT_TRUE(screen.txt_Torque[6].enabled);
    }
}

TEST_F(MassPropButtons, WhatStandsBeforeAFieldThatCannotBeTakenIsTaken) {
    Calculate_In_Mode(3);
    Open();
    Type(screen.txt_Mass[6], "5");
    Type(screen.txt_DistCG[3], "2");
    Type(screen.txt_MagForce[3], "10");
    Type(screen.txt_DistP[3], "1e39");
    screen.cmd_Solve.click();
    Expect_Fault(6, "cmd_solve_Click");
    EXPECT_EQ(model.LinkMass(6), 5);
    EXPECT_EQ(model.LinkCG(3, 0), 2);
    EXPECT_EQ(model.ForceX(3), 10);
}

}  // namespace
}  // namespace kervol
