// SPDX-License-Identifier: GPL-3.0-or-later
// Writing over a file without losing what it held.
#include "files/output_file.h"

#include <csignal>
#include <filesystem>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/fault.h"
#include "files/full_disk.h"
#include "files/model_file.h"
#include "files/without_rights.h"
#include "support/program_test.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

namespace fs = std::filesystem;

/// Writes the text; the fault's number, or 0.
std::int32_t Write(const std::string& path, std::string_view text) {
    try {
        OutputFile file(path);
        file.Write(text);
        file.Close();
        return 0;
    } catch (const Fault& fault) {
        return fault.number;
    }
}

mode_t Permissions(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
}

TEST(OutputFile, MakesANewFileAndNothingBesideIt) {
    const TemporaryFolder folder;
    EXPECT_EQ(Write(folder / "new.kvl", "text"), 0);
    EXPECT_EQ(Content_Of(folder / "new.kvl"), "text");
    EXPECT_FALSE(fs::exists(folder / "new.kvl~"));
}

TEST(OutputFile, KeepsTheEarlierContentOneGenerationBack) {
    const TemporaryFolder folder;
    const std::string path = folder / "model.kvl";
    EXPECT_EQ(Write(path, "first and longest"), 0);
    EXPECT_EQ(Write(path, "second"), 0);
    EXPECT_EQ(Content_Of(path), "second");
    EXPECT_EQ(Content_Of(path + "~"), "first and longest");
    EXPECT_EQ(Write(path, "third"), 0);
    EXPECT_EQ(Content_Of(path), "third");
    EXPECT_EQ(Content_Of(path + "~"), "second");
    EXPECT_FALSE(fs::exists(path + "~~"));
}

TEST(OutputFile, IsEmptiedAtOnceAndWrittenAtItsEndWithoutAClose) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("model.kvl", "old");
    {
        OutputFile file(path);
        EXPECT_EQ(Content_Of(path), "");
        file.Write("a");
        file.Write("b");
    }
    EXPECT_EQ(Content_Of(path), "ab");
    EXPECT_EQ(Content_Of(path + "~"), "old");
}

TEST(OutputFile, KeepsTheEarlierContentWhenTheProgramIsKilledMeanwhile) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("model.kvl", "old");
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        OutputFile file(path);
        file.Write("first ");
        file.Flush();
        file.Write("second");
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(Content_Of(path), "first ");
    EXPECT_EQ(Content_Of(path + "~"), "old");
}

TEST(OutputFile, IsWrittenWhenItIsClosed) {
    const TemporaryFolder folder;
    OutputFile file(folder / "model.kvl");
    file.Write("a");
    file.Close();
    EXPECT_EQ(Content_Of(folder / "model.kvl"), "a");
}

TEST(OutputFile, KeepsThePermissions) {
    const TemporaryFolder folder;
    for (const mode_t mode : {mode_t{0600}, mode_t{0644}, mode_t{0664}, mode_t{0755}}) {
        const std::string path = folder.Put("model.kvl", "old");
        ASSERT_EQ(chmod(path.c_str(), mode), 0);
        EXPECT_EQ(Write(path, "new"), 0);
        EXPECT_EQ(Permissions(path), mode);
        EXPECT_EQ(Permissions(path + "~"), mode);
    }
}

TEST(OutputFile, FollowsALinkWhichStaysALink) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "far");
    folder.Put("far/model.kvl", "old");
    fs::create_symlink("far/model.kvl", folder / "link.kvl");
    EXPECT_EQ(Write(folder / "link.kvl", "new"), 0);
    EXPECT_TRUE(fs::is_symlink(folder / "link.kvl"));
    EXPECT_FALSE(fs::is_symlink(folder / "far/model.kvl"));
    EXPECT_EQ(Content_Of(folder / "far/model.kvl"), "new");
    EXPECT_EQ(Content_Of(folder / "far/model.kvl~"), "old") << "beside the file, not beside the link";
    EXPECT_FALSE(fs::exists(folder / "link.kvl~"));
}

TEST(OutputFile, MakesTheTargetOfADanglingLink) {
    const TemporaryFolder folder;
    fs::create_symlink("later.kvl", folder / "link.kvl");
    EXPECT_EQ(Write(folder / "link.kvl", "new"), 0);
    EXPECT_TRUE(fs::is_symlink(folder / "link.kvl"));
    EXPECT_EQ(Content_Of(folder / "later.kvl"), "new");
    fs::create_symlink("no folder/later.kvl", folder / "lost.kvl");
    EXPECT_EQ(Write(folder / "lost.kvl", "new"), 76);
}

TEST(OutputFile, RefusesALinkThatLeadsToItself) {
    const TemporaryFolder folder;
    fs::create_symlink("loop.kvl", folder / "loop.kvl");
    EXPECT_EQ(Write(folder / "loop.kvl", "new"), 75);
}

TEST(OutputFile, RefusesATargetThatIsNoPlainFile) {
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo((folder / "pipe.kvl").c_str(), 0666), 0);
    fs::create_directory(folder / "folder.kvl");
    fs::create_symlink("folder.kvl", folder / "link.kvl");
    EXPECT_EQ(Write(folder / "pipe.kvl", "new"), 75) << "and never waits for a reader";
    EXPECT_EQ(Write(folder / "folder.kvl", "new"), 75);
    EXPECT_EQ(Write(folder / "link.kvl", "new"), 75);
    EXPECT_EQ(Write("/dev/null", "new"), 75);
    EXPECT_TRUE(fs::is_fifo(folder / "pipe.kvl"));
    EXPECT_TRUE(fs::is_directory(folder / "folder.kvl"));
}

TEST(OutputFile, RefusesNamesWithoutAPlace) {
    const TemporaryFolder folder;
    folder.Put("plain", "x");
    EXPECT_EQ(Write("", "new"), 52);
    EXPECT_EQ(Write(folder / "no folder/model.kvl", "new"), 76);
    EXPECT_EQ(Write(folder / "plain/model.kvl", "new"), 76);
    EXPECT_EQ(Write(folder / std::string(300, 'n'), "new"), 52);
}

TEST(OutputFile, WritesInPlaceWhereTheKeptNameIsTaken) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("model.kvl", "old and longer");
    fs::create_directory(path + "~");
    EXPECT_EQ(Write(path, "new"), 0);
    EXPECT_EQ(Content_Of(path), "new");
    EXPECT_TRUE(fs::is_directory(path + "~"));
}

TEST(OutputFile, WritesInPlaceInAFolderWithoutTheRightToWrite) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("model.kvl", "old and longer");
    ASSERT_EQ(chmod(path.c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
    const int number = Without_Rights([&] { return Write(path, "new"); });
    const int number_new = Without_Rights([&] { return Write(folder / "other.kvl", "new"); });
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
    if (number == kNotPossible) GTEST_SKIP() << "rights of the superuser cannot be given up here";
    EXPECT_EQ(number, 0);
    EXPECT_EQ(Content_Of(path), "new");
    EXPECT_FALSE(fs::exists(path + "~"));
    EXPECT_EQ(number_new, 70);
}

/// Writes "new" over "old" without rights in a folder that is closed, beside a kept file that may be written.
int Write_In_A_Closed_Folder(const TemporaryFolder& folder, bool own) {
    const std::string path = folder.Put("model.kvl", "old");
    for (const std::string& file : {path, folder.Put("model.kvl~", "older and longer")}) {
        EXPECT_EQ(chmod(file.c_str(), 0666), 0);
        if (own && geteuid() == 0) {
            EXPECT_EQ(chown(file.c_str(), kNobody, kNobody), 0);
        }
    }
    EXPECT_EQ(chmod(folder.path().c_str(), 0555), 0);
    const int number = Without_Rights([&] { return Write(path, "new"); });
    EXPECT_EQ(chmod(folder.path().c_str(), 0755), 0);
    return number;
}

TEST(OutputFile, CopiesWhereNothingCanBeRenamed) {
    const TemporaryFolder folder;
    const int number = Write_In_A_Closed_Folder(folder, true);
    if (number == kNotPossible) GTEST_SKIP() << "rights of the superuser cannot be given up here";
    EXPECT_EQ(number, 0);
    EXPECT_EQ(Content_Of(folder / "model.kvl"), "new");
    EXPECT_EQ(Content_Of(folder / "model.kvl~"), "old");
}

TEST(OutputFile, CopiesToAFileOfAnotherUserToo) {
    if (geteuid() != 0) GTEST_SKIP() << "only the superuser can make files of two users";
    const TemporaryFolder folder;
    const int number = Write_In_A_Closed_Folder(folder, false);
    if (number == kNotPossible) GTEST_SKIP() << "rights of the superuser cannot be given up here";
    EXPECT_EQ(number, 0);
    EXPECT_EQ(Content_Of(folder / "model.kvl"), "new");
    EXPECT_EQ(Content_Of(folder / "model.kvl~"), "old") << "neither of the two contents may be lost";
}

TEST(OutputFile, KeepsTheOwnerOfAFileOfAnotherUser) {
    if (geteuid() != 0) GTEST_SKIP() << "only the superuser can make files of two users";
    const TemporaryFolder folder;
    struct stat status {};
    for (const bool superuser_writes : {true, false}) {
        const std::string path = folder.Put("model.kvl", "old");
        const uid_t owner = superuser_writes ? kNobody : 0;
        ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
        ASSERT_EQ(chown(path.c_str(), owner, owner), 0);
        ASSERT_EQ(chmod(path.c_str(), 0666), 0);
        const auto write = [&] { return Write(path, "new"); };
        const int number = superuser_writes ? write() : Without_Rights(write);
        if (number == kNotPossible) GTEST_SKIP() << "rights of the superuser cannot be given up here";
        EXPECT_EQ(number, 0);
        EXPECT_EQ(Content_Of(path), "new");
        EXPECT_EQ(Content_Of(path + "~"), "old");
        ASSERT_EQ(stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_uid, owner);
        std::filesystem::remove(path + "~");
    }
}

TEST(OutputFile, RefusesAFileWithoutTheRightToWriteItBeforeAnythingMoves) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("model.kvl", "old");
    ASSERT_EQ(chmod(path.c_str(), 0444), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);  // renaming would be allowed
    const int number = Without_Rights([&] { return Write(path, "new"); });
    if (number == kNotPossible) GTEST_SKIP() << "rights of the superuser cannot be given up here";
    EXPECT_EQ(number, 70);
    EXPECT_EQ(Content_Of(path), "old");
    EXPECT_FALSE(fs::exists(path + "~"));
}

TEST(OutputFile, AFullDiskLeavesTheFileAsFarAsItWasWritten) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("model.kvl", "the earlier content");
    std::int32_t number = 0;
    {
        const FullDisk full(1000);
        number = Write(path, std::string(1500, 'x'));
    }
    EXPECT_EQ(number, 61);
    EXPECT_EQ(Content_Of(path), std::string(1000, 'x'));
    EXPECT_EQ(Content_Of(path + "~"), "the earlier content");
}

TEST(OutputFile, AFullDiskKeepsTheEarlierContentHoweverOftenItIsTried) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("model.kvl", "the earlier content");
    for (int attempt = 1; attempt <= 3; ++attempt) {
        {
            const FullDisk full(0);
            EXPECT_EQ(Write(path, "new"), 61) << attempt;
        }
        EXPECT_EQ(Content_Of(path), "");
        EXPECT_EQ(Content_Of(path + "~"), "the earlier content") << attempt;
    }
    EXPECT_EQ(Write(path, "new"), 0);
    EXPECT_EQ(Content_Of(path), "new");
    EXPECT_EQ(Content_Of(path + "~"), "the earlier content");
}

TEST(OutputFile, AFullDiskThatHasNoRoomForACopyLeavesTheFileUntouched) {
    const TemporaryFolder folder;
    const std::string content(2000, 'o');
    const std::string path = folder.Put("model.kvl", content);
    folder.Put("model.kvl~", "older");
    for (const std::string& file : {path, path + "~"}) ASSERT_EQ(chmod(file.c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);  // nothing can be renamed
    const int number = Without_Rights([&] {
        const FullDisk full(1000);
        return Write(path, "new");
    });
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
    if (number == kNotPossible) GTEST_SKIP() << "rights of the superuser cannot be given up here";
    EXPECT_EQ(number, 61);
    EXPECT_EQ(Content_Of(path), content);
}

class SavingToAFullDisk : public ProgramTest {};

TEST_F(SavingToAFullDisk, IsReportedUnderWritefileAndIsNoSave) {
    const TemporaryFolder folder;
    const std::string path = folder / "model.kvl";
    ASSERT_TRUE(Save_Model_As(*program, path));
    Take_Box();
    const std::string whole = Content_Of(path);
    model.DataSaved = false;
    bool written = true;
    {
        const FullDisk full(300);
        written = Save_Model_As(*program, path);
    }
    EXPECT_FALSE(written);
    Expect_Box(
        "Error 61   (Disk full)  has occurred in Writefile\r\r"
        " The floppy disk in the drive is full - please substitute another",
        Icon::Information);
    EXPECT_FALSE(model.DataSaved);
    EXPECT_EQ(Content_Of(path).size(), 300U);
    EXPECT_EQ(Content_Of(path + "~"), whole);
}

}  // namespace
}  // namespace kervol
