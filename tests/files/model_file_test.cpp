// SPDX-License-Identifier: GPL-3.0-or-later
// Opening and saving a model: what is shown, in which order, and which flags and names change.
#include "files/model_file.h"

#include "core/path_text.h"
#include "files/sample_lines.h"
#include "files/watching_port.h"
#include "startup/launch.h"
#include "support/compare.h"
#include "support/program_test.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kRefusal = "This data file is not compatible with this version of KERVOL for Windows. ";

/// The sample with one line replaced.
std::string Sample_With(std::size_t line, const std::string& text) {
    std::vector<std::string> lines = Model_File_Lines();
    lines.at(line - 1) = text;
    return Joined(lines);
}

class ModelFile : public ProgramTest {
  protected:
    ReadEnd Read(const std::string& content) {
        ValueReader file(content);
        return Readfile(*program, file);
    }
    void Expect_Success(const std::string& path) {
        Expect_Box("File " + path + " successfully read.", Icon::Information);
    }

    TemporaryFolder folder;
};

/// A program over a port that tells the order of events.
struct Watched {
    Watched() : program(std::make_unique<Program>(port)) {
        Start_Fresh(*program);
        program->model.StartingUp = false;
        port.events.clear();
    }

    WatchingPort port;
    std::unique_ptr<Program> program;
};

TEST_F(ModelFile, OpeningShowsTheSuccessBoxAndThenTheInputScreen) {
    const std::string path = folder.Put("crank.kvl", Joined(Model_File_Lines()));
    Watched watched;
    Open_Model(*watched.program, path);
    EXPECT_THAT(
        watched.port.events,
        ElementsAre("default pointer", "box: File " + path + " successfully read.", "modal frm_Inputnew"));
    EXPECT_EQ(watched.port.messages.at(0).box.icon, Icon::Information);
    EXPECT_EQ(watched.port.messages.at(0).box.buttons, Buttons::OK);
}

TEST_F(ModelFile, TheStateIsCompleteWhenTheSuccessBoxIsShown) {
    const std::string path = folder.Put("other.kvl", Joined(Model_File_Lines()));
    Watched watched;
    LinkageModel& opened = watched.program->model;
    opened.DataCalculated = opened.DynamicsCalculated = true;
    int looks = 0;
    watched.port.while_open = [&] {
        ++looks;
        EXPECT_FALSE(opened.Loading);
        EXPECT_TRUE(opened.DataFromFile);
        EXPECT_FALSE(opened.DataCalculated);
        EXPECT_FALSE(opened.DynamicsCalculated);
        EXPECT_EQ(opened.UnitText(6), "m");
        EXPECT_EQ(opened.ModelPath, path);
        EXPECT_EQ(opened.ModelName, "crank") << "the name within the file, until the screen has closed";
    };
    Open_Model(*watched.program, path);
    EXPECT_EQ(looks, 2);
    EXPECT_EQ(opened.ModelName, "other");
}

TEST_F(ModelFile, ABusyPointerIsPutBackByReading) {
    port.pointer = Pointer::Busy;
    Read(Joined(Model_File_Lines()));
    Expect_Success("");
    EXPECT_EQ(port.pointer, Pointer::Default);
}

TEST_F(ModelFile, StartingUpSilencesTheSuccessBoxAndTheScreen) {
    model.StartingUp = true;
    EXPECT_EQ(Read(Joined(Model_File_Lines())), ReadEnd::Whole);
    EXPECT_EQ(Boxes_Left(), 0U);
    EXPECT_THAT(port.screens, IsEmpty());
    EXPECT_TRUE(model.DataFromFile);
    EXPECT_FALSE(model.Loading);
    EXPECT_EQ(model.ModelTitle, "Title, with a comma");
}

TEST_F(ModelFile, StartingUpStillShowsARefusalAndAFault) {
    model.StartingUp = true;
    EXPECT_EQ(Read(Sample_With(1, "\"OTHER\"")), ReadEnd::Refused);
    Expect_Box(kRefusal);
    EXPECT_EQ(Read(Sample_With(14, "abc")), ReadEnd::Cut);
    Expect_Box("Error 13   (Type mismatch)  has occurred in \r\r", Icon::Information);
    EXPECT_THAT(port.screens, IsEmpty());
}

TEST_F(ModelFile, AnotherIdentityChangesNothing) {
    for (const char* identity : {"\"KERVOL for windows\"", "\"KERVOL for Windows \"", "\"kervol\"",
                                 "\"KERVOL \"", "\" KERVOL\"", "\"\"", "KERVOL for DOS", "7.0"}) {
        model.DataCalculated = model.DynamicsCalculated = true;
        const LinkageModel before = model;
        Poison_Tables(tables);
        EXPECT_EQ(Read(Sample_With(1, identity)), ReadEnd::Refused) << identity;
        Expect_Box(kRefusal);
        EXPECT_THAT(Differing_Fields(model, before), IsEmpty()) << identity;
        EXPECT_EQ(tables.DriveTheta(0), Poison);
        EXPECT_THAT(port.screens, IsEmpty());
    }
}

TEST_F(ModelFile, TheIdentityIsTakenWithoutQuotesToo) {
    EXPECT_EQ(Read(Sample_With(1, "KERVOL for Windows")), ReadEnd::Whole);
    Expect_Success("");
}

TEST_F(ModelFile, ARefusedFileStillGivesItsName) {
    const std::string path = folder.Put("letter.txt", "Dear friend,\r\nwe met\r\n");
    const ReadReport report = Open_Model(*program, path);
    Expect_Box(kRefusal);
    EXPECT_EQ(report.end, ReadEnd::Refused);
    EXPECT_EQ(model.ModelPath, path);
    EXPECT_EQ(model.ModelName, "letter");
}

TEST_F(ModelFile, ACutFileShowsTheFaultWithoutANameAndThenTheSuccess) {
    std::vector<std::string> lines = Model_File_Lines();
    lines.resize(40);
    EXPECT_EQ(Read(Joined(lines)), ReadEnd::Cut);
    Expect_Box("Error 62   (Input past end of file)  has occurred in \r\r", Icon::Information);
    Expect_Success("");
    EXPECT_THAT(port.screens, ElementsAre(ScreenId::frm_Inputnew));
}

TEST_F(ModelFile, TheSixAnglesAreConvertedEvenAfterACut) {
    std::vector<std::string> lines = Model_File_Lines();
    lines.resize(36);  // the last line read is ThetaMinDeg, 30 degrees
    model.Delta3Text = model.Delta4Text = model.Delta5Text = "stale";
    model.ThetaMinText = model.ThetaMaxText = model.ThetaStepText = "stale";
    model.ThetaMaxDeg = 77;
    EXPECT_EQ(Read(Joined(lines)), ReadEnd::Cut);
    Expect_Fault(62, "");
    Expect_Success("");
    EXPECT_EQ(model.Delta3Text, "-8.5");
    EXPECT_EQ(model.Delta4Text, "-30.5");
    EXPECT_EQ(model.Delta5Text, "80");
    EXPECT_EQ(model.ThetaMinText, "30");
    EXPECT_EQ(model.ThetaMaxText, "77");
    EXPECT_FLOAT_EQ(model.ThetaMax, static_cast<float>(77 * 3.141592654 / 180));
    EXPECT_EQ(model.ThetaStepText, "10") << "of the model that stood before";
}

TEST_F(ModelFile, GeometryAndSignsAreRebuiltEvenAfterACut) {
    std::vector<std::string> lines = Model_File_Lines();
    lines.resize(23);  // up to O6 in the local frame, (8, 4)
    EXPECT_EQ(Read(Joined(lines)), ReadEnd::Cut);
    Expect_Fault(62, "");
    Expect_Success("");
    EXPECT_EQ(model.OpenSign1, 1);
    EXPECT_FLOAT_EQ(model.O4O6X, 8 - 9.375F) << "O4 is still that of the model before";
    EXPECT_FLOAT_EQ(model.O2O6Length, 8.944272F);
    EXPECT_EQ(model.LinkTable(2), 2.5F);
}

TEST_F(ModelFile, ReadingNeitherSetsNorClearsDataSaved) {
    for (const bool saved : {true, false}) {
        model.DataSaved = saved;
        Read(Joined(Model_File_Lines()));
        Expect_Success("");
        EXPECT_EQ(model.DataSaved, saved);
    }
}

TEST_F(ModelFile, UnitSystem0StaysAndLeavesTheUnitTextsEmpty) {
    EXPECT_EQ(Read(Sample_With(40, "0")), ReadEnd::Whole);
    Expect_Success("");
    EXPECT_EQ(model.UnitSystem, 0);
    EXPECT_EQ(model.UnitText(1), "degrees");
    EXPECT_EQ(model.UnitText(4), "/sec");
    EXPECT_EQ(model.UnitText(6), "");
    EXPECT_EQ(model.UnitText(9), "-");
    EXPECT_EQ(model.UnitText(14), "");
    EXPECT_EQ(model.UnitText(15), "");
}

TEST_F(ModelFile, AnimCyclesOf0ReadsAs1) {
    const struct {
        const char* text;
        int cycles;
    } cases[] = {{"0", 1}, {"-5", 1}, {"1", 1}, {"2", 2}, {"0.4", 1}};
    for (const auto& [text, cycles] : cases) {
        Read(Sample_With(51, text));
        Expect_Success("");
        EXPECT_EQ(model.AnimCycles, cycles) << text;
    }
}

TEST_F(ModelFile, AnimCyclesOf0ReadsAs1EvenWhereTheFileIsCutBehindIt) {
    std::vector<std::string> lines = Model_File_Lines();
    lines.resize(51);
    lines[50] = "0";
    EXPECT_EQ(Read(Joined(lines)), ReadEnd::Cut);
    Expect_Fault(62, "");
    Expect_Success("");
    EXPECT_EQ(model.AnimCycles, 1);
}

TEST_F(ModelFile, CountsOutOfRangeAreKeptAsRead) {
    std::vector<std::string> lines = Model_File_Lines();
    lines.resize(214);
    lines[38] = "9";   // drive mode: no such one, so above 3 with drive rows
    lines[51] = "-7";  // steps: no rows at all
    lines[44] = "0";   // every n-th step
    lines[116] = "#TRUE#";
    EXPECT_EQ(Read(Joined(lines)), ReadEnd::Whole);
    Expect_Success("");
    EXPECT_EQ(model.CalcMode, 9);
    EXPECT_EQ(model.NumSteps, -7);
    EXPECT_EQ(model.PrintStep, 0);
}

TEST_F(ModelFile, ADriveTableEndsAtRow360WhateverTheCountSays) {
    std::vector<std::string> lines = Model_File_Lines();
    lines.resize(214);
    lines[38] = "4";
    lines[51] = "2000";
    for (int i = 0; i <= 2000; ++i) lines.push_back(std::to_string(i) + ",1,2");
    Poison_Tables(tables);
    EXPECT_EQ(Read(Joined(lines)), ReadEnd::Cut);
    Expect_Box("Error 9   (Subscript out of range)  has occurred in \r\r", Icon::Information);
    Expect_Success("");
    EXPECT_EQ(tables.DriveTheta(360), 360);
    EXPECT_EQ(tables.Omega(360, 0), 1);
    EXPECT_EQ(tables.Alpha(360, 0), 2);
    EXPECT_EQ(tables.Omega(361, 0), Poison);
    EXPECT_EQ(model.NumSteps, 2000);
}

TEST_F(ModelFile, ImportedTorqueEndsAtTheLastStepOfTheTables) {
    std::vector<std::string> lines = Model_File_Lines();
    lines.resize(214);
    lines[38] = "3";
    lines[51] = "1025";
    for (int i = 0; i <= 1025; ++i) lines.push_back(std::to_string(i));
    EXPECT_EQ(Read(Joined(lines)), ReadEnd::Cut);
    Expect_Fault(9, "");
    Expect_Success("");
    EXPECT_EQ(tables.Torque21Imported(1024), 1024);
}

TEST_F(ModelFile, SavingAsSetsTheNameAndTheFlagOfASavedModel) {
    const std::string path = folder / "a model.kvl";
    model.ModelName = "before";
    EXPECT_TRUE(Save_Model_As(*program, path));
    Expect_Box("File was successfully written to \n" + path, Icon::Information);
    EXPECT_TRUE(model.DataSaved);
    EXPECT_EQ(model.ModelPath, path);
    EXPECT_EQ(model.ModelName, "a model");
    EXPECT_NE(Content_Of(path).find("\r\n\"before\"\r\n"), std::string::npos)
        << "written before it was named";
}

TEST_F(ModelFile, ADriveOfMoreThan361RowsCutsTheFileAtRow361) {
    const std::string path = folder / "long.kvl";
    for (int mode : {4, 5}) {
        model.DataSaved = false;
        model.CalcMode = static_cast<std::int16_t>(mode);
        model.NumSteps = 400;
        tables.DriveTheta(360) = 360.5F;
        EXPECT_FALSE(Save_Model_As(*program, path));
        Expect_Box("Error 9   (Subscript out of range)  has occurred in Writefile\r\r", Icon::Information);
        EXPECT_FALSE(model.DataSaved);
        EXPECT_EQ(model.ModelPath, path);
        const std::string content = Content_Of(path);
        const std::string last = "\r\n360.5,0,0\r\n";
        EXPECT_EQ(content.substr(content.size() - last.size()), last);
        EXPECT_EQ(std::count(content.begin(), content.end(), '\n'), 214 + 361);
    }
}

TEST_F(ModelFile, SavingWhereNothingCanBeWrittenIsReportedUnderSaveAs) {
    EXPECT_FALSE(Save_Model_As(*program, folder / "no folder/model.kvl"));
    Expect_Box("Error 76   (Path not found)  has occurred in frm_Homescreen.SaveAs\r\r", Icon::Information);
    EXPECT_FALSE(Save_Model_As(*program, folder.path().string()));
    Expect_Box("Error 75   (Path/File access error)  has occurred in frm_Homescreen.SaveAs\r\r",
               Icon::Information);
    EXPECT_FALSE(model.DataSaved);
}

TEST_F(ModelFile, OpeningWhatCannotBeReadIsReportedUnderOpen) {
    Open_Model(*program, folder / "missing.kvl");
    Expect_Box(
        "Error 53   (File not found)  has occurred in frm_Homescreen.Open\r\r"
        "There are no files with your chosen name in the selected directory",
        Icon::Information);
    Open_Model(*program, "");
    Expect_Box(
        "Error 52   (Bad file name or number)  has occurred in frm_Homescreen.Open\r\r"
        "The filename clicked on has a problem.  Try opening it from within the program.",
        Icon::Information);
    EXPECT_EQ(model.ModelName, "Model_1");
}

TEST_F(ModelFile, TheNameIsTheFilesBaseNameOnlyWithAnExtensionOfThreeLetters) {
    const struct {
        const char *name, *base;
    } cases[] = {{"crank.kvl", "crank"}, {"crank.data", ""}, {"crank", ""}, {"two.parts.ikv", "two.parts"}};
    for (const auto& [name, base] : cases) {
        const std::string path = folder.Put(name, Joined(Model_File_Lines()));
        Open_Model(*program, path);
        Expect_Success(path);
        EXPECT_EQ(model.ModelName, base) << name;
    }
    EXPECT_EQ(StripFilename("C:\\models\\crank.kvl"), "crank");
    EXPECT_EQ(StripFilename("C:\\models\\crank"), "");
    EXPECT_EQ(StripFilename("C:\\models\\crank.data"), "");
}

TEST_F(ModelFile, APathOfOtherBytesThanUtf8IsOpenedAsItIsAndShownAsText) {
    const std::string path = folder.Put("M\xFCller.kvl", Joined(Model_File_Lines()));
    const std::string shown = folder / "M\xC3\xBCller.kvl";
    Open_Model(*program, path);
    Expect_Success(shown);
    EXPECT_EQ(model.ModelPath, shown);
    EXPECT_EQ(model.ModelName, "M\xC3\xBCller");
    EXPECT_TRUE(Save_Model_As(*program, path));
    Expect_Box("File was successfully written to \n" + shown, Icon::Information);
    EXPECT_EQ(Content_Of(path + "~"), Joined(Model_File_Lines()));
}

TEST_F(ModelFile, OnlyTheContentDecidesHowAFileIsRead) {
    const std::string current = folder.Put("current.ikv", Joined(Model_File_Lines()));
    Open_Model(*program, current);
    Expect_Success(current);
    EXPECT_EQ(model.ModelTitle, "Title, with a comma");
    const std::string legacy = folder.Put("legacy.kvl", Joined(Legacy_File_Lines()));
    Open_Model(*program, legacy);
    Expect_Success(legacy);
    EXPECT_EQ(model.ModelTitle, "Old title");
}

TEST_F(ModelFile, AFileThatWasOpenedMayBeSavedOverItself) {
    const std::string path = folder.Put("old.kvl", Joined(Legacy_File_Lines()));
    Open_Model(*program, path);
    Expect_Success(path);
    EXPECT_TRUE(Save_Model_As(*program, path));
    Take_Box();
    EXPECT_EQ(Content_Of(path).substr(0, 22), "\"KERVOL for Windows\"\r\n");
    EXPECT_EQ(Content_Of(path + "~"), Joined(Legacy_File_Lines()));
}

}  // namespace
}  // namespace kervol
