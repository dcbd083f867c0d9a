// SPDX-License-Identifier: GPL-3.0-or-later
// Tables to the screen, the printer and a file, from the print selection.
#include <filesystem>

#include "screens/selection_fixture.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class PrintSelect : public SelectionTest {
  protected:
    /// "Theta3" is s + 0.25 at step s of 37, the velocity of A is (3 s, 4 s).
    PrintSelect() {
        model.NumSteps = 36;
        model.PrintStep = 10;
        model.ModelName = "four";
        model.GroundAngleDeg = 0;
        for (int step = 0; step <= 36; ++step) {
            const auto s = static_cast<float>(step);
            tables.Theta(step, 0) = 10 * s;
            tables.Theta(step, 1) = s + 0.25F;
            tables.PointVel(step, 0, 0) = 3 * s;
            tables.PointVel(step, 0, 1) = 4 * s;
        }
    }

    void Print_To(std::size_t place) {
        if (!print.opt_Whereto.at(place).on) Choose(print.opt_Whereto, place);
        print.cmd_Done.click();
    }
    void Put_Steps(const char* text) { print.cmb_Step.text = text; }

    PrintDataScreen& data = screens->frm_PrintData;
    TemporaryFolder folder;
};

TEST_F(PrintSelect, OffersPlacesStepsAndDecimals) {
    EXPECT_EQ(print.opt_Whereto[0].caption, "Screen");
    EXPECT_EQ(print.opt_Whereto[1].caption, "Printer");
    EXPECT_EQ(print.opt_Whereto[2].caption, "Disk File");
    EXPECT_THAT(print.cmb_Step.items, ElementsAre("1", "2", "3", "5", "10"));
    EXPECT_THAT(print.cmb_Decimal.items, ElementsAre("0", "1", "2", "3", "4", "5", "6"));
    Open(print);
    EXPECT_EQ(print.cmb_Step.text, "10");
    EXPECT_EQ(print.cmb_Decimal.text, "3");
    EXPECT_TRUE(print.opt_Whereto[0].on);
    model.PrintStep = 4;
    Open(print);
    EXPECT_EQ(print.cmb_Step.text, "4") << "the model's, though the list does not have it";
}

TEST_F(PrintSelect, FillsTheGridThenShowsItAndStaysBehindIt) {
    Open_Mix(print);
    Confirm(print, 1, "Theta3");
    Confirm(print, 2, "Veloc I 2,3", "Ang");
    print.cmb_Decimal.text = "1";
    std::string first_cell;
    port.opening[ScreenId::frm_PrintData] = [&] { first_cell = data.grd_Data(6, 1); };
    port.trace.clear();
    port.pointer = Pointer::Busy;
    Print_To(0);
    EXPECT_EQ(first_cell, "0.3") << "filled before it is shown";
    EXPECT_THAT(port.trace, ElementsAre("show frm_PrintData modal"));
    EXPECT_EQ(port.pointer, Pointer::Default);
    EXPECT_EQ(program->output.OutputDest, 0);
    EXPECT_EQ(program->output.DecimalPlaces, 1);
    EXPECT_EQ(data.grd_Data.Columns(), 3);
    // By hand: steps 0, 10, 20, 30 of 37, "Theta3" from 0.25 to 30.25; the others count as zeros.
    EXPECT_EQ(data.grd_Data(0, 1), "Theta3");
    EXPECT_EQ(data.grd_Data(1, 2), "Ang");
    EXPECT_EQ(data.grd_Data(2, 2), "deg");
    EXPECT_EQ(data.grd_Data(3, 1), "0.0");
    EXPECT_EQ(data.grd_Data(4, 1), "1.6");
    EXPECT_EQ(data.grd_Data(5, 1), "30.3");
    EXPECT_EQ(data.grd_Data(9, 0), "300.0");
    EXPECT_EQ(data.grd_Data(9, 1), "30.3");
    EXPECT_EQ(data.grd_Data(9, 2), "53.1") << "atan of 4/3";
    EXPECT_EQ(data.lbl_Header2.caption, "Selected Linkage Parameters");
}

TEST_F(PrintSelect, TheChosenFrameHoldsForOneTable) {
    Open(print);
    Pick_Preset(print, "Velocity of Instant Center 2-3  -  X, Y, Mag, Ang Coordinates");
    Choose(print.opt_Coord, 1);
    Print_To(0);
    EXPECT_EQ(selections.LocalCoords, 2);
    EXPECT_EQ(data.lbl_Coord.caption, "Local Rotating");
    EXPECT_FALSE(Frame_Can_Be_Chosen(print));
    EXPECT_TRUE(print.opt_Coord[0].on);
    EXPECT_FALSE(print.opt_Coord[1].on);
    Print_To(0);
    EXPECT_EQ(selections.LocalCoords, 0);
    EXPECT_EQ(data.lbl_Coord.caption, "Global");
}

struct StepCase {
    const char* text;
    int stored;
    int rows;
};

TEST_F(PrintSelect, EveryNthStepComesFromTheBox) {
    Open(print);
    Pick_Preset(print, "Theta magnitudes for links 3, 4, 5, 6");
    for (const StepCase& given : {StepCase{"1", 1, 37}, StepCase{"5", 5, 8}, StepCase{"10", 10, 4},
                                  StepCase{"0", 0, 37}, StepCase{"x", 0, 37}}) {
        Put_Steps(given.text);
        Print_To(0);
        EXPECT_EQ(model.PrintStep, given.stored);
        EXPECT_EQ(data.grd_Data.Rows(), given.rows + 6) << given.text;
    }
    Put_Steps("40000");
    Print_To(0);
    Expect_Fault(6, "frm_PrintSelect.cmd_Done");
}

TEST_F(PrintSelect, TheTransformIsPrintedHarmonicByHarmonic) {
    program->fourier.FFTReady = true;
    program->fourier.NumHarmonics = 3;
    Open(print);
    Pick_Preset(print, "Current FFT - Real, Imag, Mag, Phase");
    Print_To(0);
    EXPECT_EQ(model.PrintStep, 1);
    EXPECT_EQ(data.grd_Data.Rows(), 4 + 6);
    EXPECT_EQ(data.grd_Data(0, 0), "Harmonic");
}

TEST_F(PrintSelect, PrintsPagesUnlessThePrinterDialogIsCancelled) {
    Open_Mix(print);
    Confirm(print, 1, "Theta3");
    Put_Steps("1");
    Print_To(1);
    ASSERT_EQ(port.documents.size(), 1U);
    EXPECT_TRUE(port.documents.front().ended);
    EXPECT_THAT(port.documents.front().Text(), HasSubstr("File: four"));
    EXPECT_THAT(port.documents.front().Text(), HasSubstr("\n360.000       36.250\n"));
    port.has_printer = false;
    Print_To(1);
    EXPECT_EQ(port.documents.size(), 1U);
    EXPECT_EQ(program->output.OutputDest, 1);
    EXPECT_THAT(port.screens, ::testing::Not(::testing::Contains(ScreenId::frm_PrintData)));
}

TEST_F(PrintSelect, WritesTheFileWhichBecomesTheOneInUse) {
    Open_Mix(print);
    Confirm(print, 1, "Theta3");
    model.ModelPath = folder / "four.kvl";
    model.DataSaved = true;
    port.files = {folder / "table.dat"};
    Print_To(2);
    ASSERT_EQ(port.dialogs.size(), 1U);
    EXPECT_EQ(port.dialogs[0].title, "Save the Data");
    EXPECT_EQ(port.dialogs[0].filter, "*.dat");
    EXPECT_EQ(port.dialogs[0].name, "four.dat");
    EXPECT_EQ(model.ModelPath, folder / "table.dat");
    EXPECT_EQ(model.ModelName, "table");
    EXPECT_TRUE(model.DataSaved);
    const std::string content = Content_Of(folder / "table.dat");
    EXPECT_THAT(content, ::testing::StartsWith("KERVOL for Windows          File \ttable\t\tDesign #\t"));
    EXPECT_THAT(content, HasSubstr("Angle\tTheta3\t\t\t\t\r\n"));
    EXPECT_THAT(content, ::testing::EndsWith("\r\n300.000\t30.250\t\r\n"));
}

TEST_F(PrintSelect, CancelWritesTheProposedNameBesideTheModelAndKeepsWhatWasThere) {
    Open_Mix(print);
    Confirm(print, 1, "Theta3");
    folder.Put("four.dat", "old");
    model.ModelPath = folder / "four.kvl";
    port.files = {std::nullopt};
    Print_To(2);
    EXPECT_EQ(model.ModelPath, folder / "four.dat");
    EXPECT_EQ(model.ModelName, "four");
    EXPECT_THAT(Content_Of(folder / "four.dat"), HasSubstr("Theta3"));
    EXPECT_EQ(Content_Of(folder / "four.dat~"), "old");
}

TEST_F(PrintSelect, CancelWithoutAModelFileWritesIntoTheWorkingFolder) {
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    Open_Mix(print);
    Confirm(print, 1, "Theta3");
    model.ModelPath.clear();
    Print_To(2);
    std::filesystem::current_path(before);
    EXPECT_EQ(model.ModelPath, folder / "four.dat");
    EXPECT_THAT(Content_Of(folder / "four.dat"), HasSubstr("Theta3"));
}

TEST_F(PrintSelect, AFileThatCannotBeOpenedIsReported) {
    Open_Mix(print);
    Confirm(print, 1, "Theta3");
    port.files = {folder / "missing/table.dat"};
    port.pointer = Pointer::Busy;
    Print_To(2);
    const MessageBox box = Take_Box();
    EXPECT_THAT(box.text, HasSubstr("has occurred in frm_PrintSelect.SaveData\r\r"));
    EXPECT_EQ(port.pointer, Pointer::Default);
    EXPECT_EQ(model.ModelPath, folder / "missing/table.dat");
}

TEST_F(PrintSelect, APrinterThatFailsIsReported) {
    Open_Mix(print);
    Confirm(print, 1, "Theta3");
    port.printer_breaks = true;
    Print_To(1);
    Expect_Fault(57, "frm_PrintSelect.PrintForm");
    EXPECT_THAT(port.documents, IsEmpty());
}

TEST_F(PrintSelect, BackFromTheTableMakesTheListsLoadAgain) {
    Open(print);
    EXPECT_FALSE(model.NewData);
    port.trace.clear();
    data.cmd_Cancel.click();
    EXPECT_TRUE(model.NewData);
    EXPECT_THAT(port.trace, ElementsAre("hide frm_PrintData"));
    EXPECT_EQ(data.cmd_Cancel.caption, "< &Back");
}

TEST_F(PrintSelect, TheTableIsPrintedAsItStandsAfterTheWarning) {
    Expect_Print_Asks(data.cmd_PrintForm, ScreenId::frm_PrintData);
}

TEST_F(PrintSelect, CopyPutsTheScreenOnTheClipboardAndNamesTheKeys) {
    data.cmd_Copy.click();
    Expect_Box("Use the Alt-PrintScrn key combo to copy the screen to the clipboard", Icon::None);
    EXPECT_THAT(port.copied, ElementsAre(ScreenId::frm_PrintData));
}

TEST_F(PrintSelect, BackLeadsHome) {
    print.cmd_Cancel.click();
    EXPECT_THAT(port.trace, ElementsAre("hide frm_PrintSelect"));
}

}  // namespace
}  // namespace kervol
