// SPDX-License-Identifier: GPL-3.0-or-later
// Files that are not there or are no plain files, and the fault numbers of what the system refuses.
#include "files/disk.h"

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "core/fault.h"
#include "files/model_file.h"
#include "files/without_rights.h"
#include "support/compare.h"
#include "support/program_test.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

std::int32_t Fault_Of_Reading(const std::string& path) {
    try {
        Read_Whole_File(path);
        return 0;
    } catch (const Fault& fault) {
        return fault.number;
    }
}

TEST(Disk, ReadsAFileWhole) {
    const TemporaryFolder folder;
    const std::string content = std::string("a\r\nb\nc\r") + '\0' + "\xFF end";
    EXPECT_EQ(Read_Whole_File(folder.Put("a.kvl", content)), content);
    EXPECT_EQ(Read_Whole_File(folder.Put("empty.kvl", "")), "");
    const std::string large(100'000, 'x');
    EXPECT_EQ(Read_Whole_File(folder.Put("large.kvl", large)), large);
}

TEST(Disk, ReadsNoMoreThanThereEverWasOfAFileThatChangesMeanwhile) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("changing.kvl", "");
    const std::string large(50'000, 'x');
    std::atomic<bool> ended = false;
    std::thread writer([&] {
        while (!ended) {
            folder.Put("changing.kvl", large);
            std::filesystem::resize_file(path, 20'000);
        }
    });
    for (int i = 0; i < 300; ++i) {
        const std::string content = Read_Whole_File(path);
        EXPECT_LE(content.size(), large.size());
        EXPECT_EQ(content.find_first_not_of('x'), std::string::npos);
    }
    ended = true;
    writer.join();
}

TEST(Disk, ReadsThroughALink) {
    const TemporaryFolder folder;
    folder.Put("a.kvl", "content");
    std::filesystem::create_symlink("a.kvl", folder / "link.kvl");
    EXPECT_EQ(Read_Whole_File(folder / "link.kvl"), "content");
}

TEST(Disk, TellsAMissingFileFromAMissingFolder) {
    const TemporaryFolder folder;
    folder.Put("plain", "x");
    std::filesystem::create_symlink("nowhere", folder / "dangling");
    EXPECT_EQ(Fault_Of_Reading(folder / "missing.kvl"), 53);
    EXPECT_EQ(Fault_Of_Reading("a name that is not in the working folder.kvl"), 53);
    EXPECT_EQ(Fault_Of_Reading(folder / "dangling"), 53);
    EXPECT_EQ(Fault_Of_Reading(folder / "no folder/a.kvl"), 76);
    EXPECT_EQ(Fault_Of_Reading(folder / "plain/a.kvl"), 76);
}

TEST(Disk, RefusesNamesThatNoFileCanHave) {
    const TemporaryFolder folder;
    EXPECT_EQ(Fault_Of_Reading(""), 52);
    EXPECT_EQ(Fault_Of_Reading(folder / std::string(5000, 'n')), 52);
}

TEST(Disk, ReadsNothingButPlainFiles) {
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo((folder / "pipe.kvl").c_str(), 0666), 0);
    EXPECT_EQ(Fault_Of_Reading(folder / "pipe.kvl"), 75) << "and never waits for a writer";
    EXPECT_EQ(Fault_Of_Reading(folder.path().string()), 75);
    EXPECT_EQ(Fault_Of_Reading("/dev/zero"), 75) << "and never reads without an end";
}

TEST(Disk, AnUnreadableFileIsRefusedForWantOfRights) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("secret.kvl", "x");
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    const int number = Without_Rights([&] { return Fault_Of_Reading(path); });
    if (number == kNotPossible) GTEST_SKIP() << "rights of the superuser cannot be given up here";
    EXPECT_EQ(number, 70);
}

TEST(Disk, SystemErrorsHaveTheirFaultNumbers) {
    const struct {
        int error, number;
    } cases[] = {
        {EACCES, 70}, {EPERM, 70},  {EROFS, 70},   {ENOENT, 76}, {ENOTDIR, 76},
        {ENOSPC, 61}, {EDQUOT, 61}, {EFBIG, 61},   {EIO, 57},    {ENAMETOOLONG, 52},
        {ENOMEM, 7},  {EISDIR, 75}, {ETXTBSY, 75},
    };
    for (const auto& [error, number] : cases) EXPECT_EQ(Fault_Of_System_Error(error), number) << error;
}

class OpeningWhatIsNoFile : public ProgramTest {};

TEST_F(OpeningWhatIsNoFile, ShowsTheFaultAndChangesNothingButThePath) {
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo((folder / "pipe.kvl").c_str(), 0666), 0);
    const struct {
        std::string path;
        int number;
    } cases[] = {
        {folder / "missing.kvl", 53},
        {folder / "no folder/a.kvl", 76},
        {folder.path().string(), 75},
        {folder / "pipe.kvl", 75},
    };
    for (const auto& [path, number] : cases) {
        LinkageModel expected = model;
        expected.ModelPath = path;
        const ReadReport report = Open_Model(*program, path);
        Expect_Fault(number, "frm_Homescreen.Open");
        EXPECT_EQ(report.end, ReadEnd::Nothing);
        EXPECT_EQ(report.line, 0U);
        EXPECT_THAT(Differing_Fields(model, expected), ::testing::IsEmpty());
        EXPECT_THAT(port.screens, ::testing::IsEmpty());
    }
}

}  // namespace
}  // namespace kervol
