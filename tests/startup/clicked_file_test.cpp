// SPDX-License-Identifier: GPL-3.0-or-later
// The model file that the command line names.
#include <filesystem>
#include <memory>

#include "files/model_file.h"
#include "headless/recording_port.h"
#include "startup/launch.h"
#include "support/compare.h"
#include "support/program_test.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::IsEmpty;

class ClickedFile : public ProgramTest {
  protected:
    ClickedFile() {
        Start_Fresh(*program);
        model.ModelTitle = "clicked";
        Save_Model_As(*program, folder / "crank.kvl");
        Take_Box();
        model.DataSaved = false;
        Start_Fresh(*program);
    }

    TemporaryFolder folder;
};

/// A system that has no long form of a path.
class PortWithoutLongPaths : public RecordingPort {
  public:
    std::string Long_Path(const std::string& path) override {
        asked = path;
        return {};
    }
    std::string asked;
};

TEST_F(ClickedFile, AnEmptyCommandLineDoesNothing) {
    model.ModelPath = "kept";
    port.pointer = Pointer::Busy;
    const LinkageModel before = model;
    Open_Clicked_File(*program, "");
    EXPECT_THAT(Differing_Fields(model, before), IsEmpty());
    EXPECT_EQ(port.pointer, Pointer::Busy);
}

TEST_F(ClickedFile, OpensSilentlyAndTakesTheFilesName) {
    port.pointer = Pointer::Busy;
    Open_Clicked_File(*program, folder / "crank.kvl");
    EXPECT_EQ(Boxes_Left(), 0U);
    EXPECT_THAT(port.screens, IsEmpty());
    EXPECT_EQ(model.ModelPath, folder / "crank.kvl");
    EXPECT_EQ(model.ModelName, "crank");
    EXPECT_EQ(model.ModelTitle, "clicked");
    EXPECT_TRUE(model.DataFromFile);
    EXPECT_FALSE(model.Loading);
    EXPECT_FALSE(model.DataSaved);
    EXPECT_EQ(port.pointer, Pointer::Default);
}

TEST_F(ClickedFile, TakesTheFullPathAndKeepsTheNameOfALink) {
    std::filesystem::create_symlink("crank.kvl", folder / "short.kvl");
    Open_Clicked_File(*program, folder / "./short.kvl");
    EXPECT_EQ(model.ModelPath, folder / "short.kvl");
    EXPECT_EQ(model.ModelName, "short");
}

TEST_F(ClickedFile, KeepsTheStringAsItCameWhereThereIsNoLongForm) {
    PortWithoutLongPaths without;
    const auto other = std::make_unique<Program>(without);
    Start_Fresh(*other);
    Open_Clicked_File(*other, folder / "crank.kvl");
    EXPECT_THAT(without.messages, IsEmpty());
    EXPECT_EQ(without.asked, folder / "crank.kvl");
    EXPECT_EQ(other->model.ModelPath, folder / "crank.kvl");
    EXPECT_EQ(other->model.ModelTitle, "clicked");
}

TEST_F(ClickedFile, APathWithBlanksIsNotSplit) {
    std::filesystem::copy_file(folder / "crank.kvl", folder / "two words.kvl");
    Open_Clicked_File(*program, folder / "two words.kvl");
    EXPECT_EQ(model.ModelName, "two words");
    EXPECT_EQ(model.ModelTitle, "clicked");
}

TEST_F(ClickedFile, QuotesAreNotRemovedSoThatTheRawStringIsTriedAsAName) {
    const std::string quoted = "\"" + (folder / "crank.kvl") + "\"";
    Open_Clicked_File(*program, quoted);
    const MessageBox box = Take_Box();
    EXPECT_THAT(box.text, ::testing::StartsWith("Error "));
    EXPECT_THAT(box.text, ::testing::HasSubstr(")  has occurred in  in Open_Clicked_File\r\r"));
    EXPECT_EQ(model.ModelPath, quoted);
    EXPECT_EQ(model.ModelName, "Model_1");
    EXPECT_FALSE(model.DataFromFile);
}

TEST_F(ClickedFile, AMissingFileIsReportedUnderItsOddName) {
    Open_Clicked_File(*program, folder / "missing.kvl");
    Expect_Box(
        "Error 53   (File not found)  has occurred in  in Open_Clicked_File\r\r"
        "There are no files with your chosen name in the selected directory",
        Icon::Information);
    EXPECT_EQ(model.ModelPath, folder / "missing.kvl");
    EXPECT_EQ(model.ModelName, "Model_1");
    EXPECT_EQ(port.pointer, Pointer::Default);
}

TEST_F(ClickedFile, AFolderIsRefused) {
    Open_Clicked_File(*program, folder.path().string());
    Expect_Box("Error 75   (Path/File access error)  has occurred in  in Open_Clicked_File\r\r",
               Icon::Information);
}

TEST_F(ClickedFile, ARefusalIsShownEvenWhileStartingUp) {
    Open_Clicked_File(*program, folder.Put("letter.txt", "Dear friend\r\nhello\r\n"));
    Expect_Box("This data file is not compatible with this version of KERVOL for Windows. ");
    EXPECT_EQ(model.ModelName, "letter");
    EXPECT_FALSE(model.DataFromFile);
}

TEST_F(ClickedFile, AFaultIsShownEvenWhileStartingUp) {
    Open_Clicked_File(*program, folder.Put("cut.kvl", "\"KERVOL for Windows\"\r\n\"7.0\"\r\n\"crank\"\r\n"));
    Expect_Box("Error 62   (Input past end of file)  has occurred in \r\r", Icon::Information);
    EXPECT_EQ(model.ModelName, "cut");
    EXPECT_TRUE(model.DataFromFile);
}

TEST_F(ClickedFile, ItsUnitsStay) {
    model.UnitSystem = 3;
    Save_Model_As(*program, folder / "metric.kvl");
    Take_Box();
    Start_Fresh(*program);
    Open_Clicked_File(*program, folder / "metric.kvl");
    EXPECT_EQ(model.UnitSystem, 3);
    EXPECT_EQ(model.UnitText(6), "m");
}

}  // namespace
}  // namespace kervol
