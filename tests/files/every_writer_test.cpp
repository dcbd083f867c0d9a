// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for each file that the program writes over another: the earlier content is kept, and what cannot
// be written costs no more than the file that was to be written.
#include <filesystem>
#include <sys/stat.h>

#include "dynamics/solve_forces.h"
#include "files/exchange.h"
#include "files/full_disk.h"
#include "files/model_file.h"
#include "files/without_rights.h"
#include "kinematics/step_count.h"
#include "support/program_test.h"
#include "support/temporary_folder.h"

namespace kervol {
namespace {

struct Writer {
    const char* name;
    bool (*write)(Program& program, const std::string& path);
    const char* procedure;
    const char* handler;
};

class EveryWriter : public ProgramTest, public ::testing::WithParamInterface<Writer> {
  protected:
    void SetUp() override {
        ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
        ASSERT_EQ(Run_Dynamics(*program), 37);
    }

    bool Write() { return GetParam().write(*program, path); }
    /// Writes in a folder that is closed meanwhile, as a user without rights: 0 where it went well, 1 where
    /// not, else `kNotPossible`.
    int Write_In_A_Closed_Folder() {
        EXPECT_EQ(chmod(folder.path().c_str(), 0555), 0);
        const int result = Without_Rights([&] { return Write() ? 0 : 1; });
        EXPECT_EQ(chmod(folder.path().c_str(), 0755), 0);
        return result;
    }
    void Take_Boxes() {
        while (Boxes_Left() > 0) Take_Box();
    }

    const TemporaryFolder folder;
    const std::string path = folder / "written";
};

TEST_P(EveryWriter, KeepsTheEarlierContentEachTime) {
    folder.Put("written", "earlier");
    EXPECT_TRUE(Write());
    EXPECT_EQ(Content_Of(path + "~"), "earlier");
    const std::string first = Content_Of(path);
    EXPECT_GT(first.size(), 300U);
    EXPECT_TRUE(Write());
    EXPECT_EQ(Content_Of(path + "~"), first);
    Take_Boxes();
}

TEST_P(EveryWriter, OnAFullDiskLosesOnlyWhatItWasToWrite) {
    folder.Put("written", "earlier");
    folder.Put("another", "other");
    model.DataSaved = false;
    {
        const FullDisk full(300);
        EXPECT_FALSE(Write());
    }
    Expect_Fault(61, GetParam().procedure);
    EXPECT_EQ(Content_Of(path).size(), 300U);
    EXPECT_EQ(Content_Of(path + "~"), "earlier");
    EXPECT_EQ(Content_Of(folder / "another"), "other");
    EXPECT_FALSE(model.DataSaved);
}

TEST_P(EveryWriter, ToAFileWithoutTheRightToWriteChangesNothing) {
    folder.Put("written", "earlier");
    ASSERT_EQ(chmod(path.c_str(), 0444), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    const int result = Without_Rights([&] { return Write() ? 0 : 1; });
    if (result == kNotPossible) GTEST_SKIP() << "rights of the superuser cannot be given up here";
    EXPECT_EQ(result, 1);
    EXPECT_EQ(Content_Of(path), "earlier");
    EXPECT_FALSE(std::filesystem::exists(path + "~"));
}

TEST_P(EveryWriter, InAClosedFolderMakesNoNewFile) {
    const int result = Write_In_A_Closed_Folder();
    if (result == kNotPossible) GTEST_SKIP() << "rights of the superuser cannot be given up here";
    EXPECT_EQ(result, 1);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_P(EveryWriter, InAClosedFolderWritesAFileThatMayBeWritten) {
    folder.Put("written", "earlier");
    ASSERT_EQ(chmod(path.c_str(), 0666), 0);
    const int result = Write_In_A_Closed_Folder();
    if (result == kNotPossible) GTEST_SKIP() << "rights of the superuser cannot be given up here";
    EXPECT_EQ(result, 0);
    EXPECT_GT(Content_Of(path).size(), 300U);
}

TEST_P(EveryWriter, ReportsUnderItsMenuEntryWhatCannotBeOpened) {
    std::filesystem::create_directory(path);
    model.DataSaved = false;
    EXPECT_FALSE(Write());
    Expect_Fault(75, GetParam().handler);
    EXPECT_FALSE(model.DataSaved);
    EXPECT_TRUE(std::filesystem::is_directory(path));
}

TEST_P(EveryWriter, InAFolderThatIsGoneLosesNothingAndCanBeTriedAgain) {
    std::filesystem::remove_all(folder.path());
    model.DataSaved = false;
    EXPECT_FALSE(Write());
    Expect_Fault(76, GetParam().handler);
    EXPECT_FALSE(model.DataSaved);
    EXPECT_TRUE(model.DataCalculated);
    std::filesystem::create_directory(folder.path());
    EXPECT_TRUE(Write());
    EXPECT_GT(Content_Of(path).size(), 300U);
    Take_Boxes();
}

INSTANTIATE_TEST_SUITE_P(
    Files, EveryWriter,
    ::testing::Values(Writer{"Model", Save_Model_As, "Writefile", "frm_Homescreen.SaveAs"},
                      Writer{"LinkOutput", Export_Link6, "Export_Link6_to_File", "mnu_link4_Click"},
                      Writer{"Torque", Export_Torque, "Export_Torque_Data", "mnu_Torque_export_Click"}),
    [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace kervol
