// SPDX-License-Identifier: GPL-3.0-or-later
// Registering the program for its model files in a home of the test's own.
#include "files/association.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <map>
#include <memory>
#include <thread>
#include <vector>

#include "files/desktop_files.h"
#include "files/without_rights.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using Calls = std::vector<std::string>;

class Association : public ::testing::Test {
  protected:
    /// Records the tools that are started and makes the caches that they would make.
    UserDesktop Desktop(const std::string& program = "/opt/kervol/bin/kervol") {
        return {program, folder.path().string(), [this](const std::string& tool, const std::string& place) {
                    calls.push_back(tool + " " + fs::relative(place, folder.path()).string());
                    folder.Put(
                        tool == "update-mime-database" ? "mime/mime.cache" : "applications/mimeinfo.cache",
                        "cache");
                }};
    }
    /// All files below the folder with their content and the time of their last change.
    std::map<std::string, std::pair<std::string, fs::file_time_type>> All_Files() const {
        std::map<std::string, std::pair<std::string, fs::file_time_type>> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
            if (entry.is_regular_file())
                files[fs::relative(entry.path(), folder.path()).string()] = {
                    Content_Of(entry.path().string()), entry.last_write_time()};
        return files;
    }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& [name, content] : All_Files()) names.push_back(name);
        return names;
    }

    const TemporaryFolder folder;
    Calls calls;
};

TEST_F(Association, WritesADesktopEntryATypeAndAnIcon) {
    Associate(Desktop());
    EXPECT_THAT(Names(), ElementsAre("applications/kervol.desktop", "applications/mimeinfo.cache",
                                     "icons/hicolor/scalable/apps/kervol.svg", "mime/mime.cache",
                                     "mime/packages/kervol.xml"));
    EXPECT_THAT(Content_Of(folder / "applications/kervol.desktop"),
                AllOf(::testing::StartsWith("[Desktop Entry]\nType=Application\n"),
                      HasSubstr("\nExec=\"/opt/kervol/bin/kervol\" %f\n"),
                      HasSubstr("\nMimeType=application/x-kervol;\n"), HasSubstr("\nIcon=kervol\n")));
    EXPECT_THAT(Content_Of(folder / "mime/packages/kervol.xml"),
                AllOf(HasSubstr("type=\"application/x-kervol\""), HasSubstr("<comment>Kervol File</comment>"),
                      HasSubstr("<glob pattern=\"*.kvl\"/>")));
    EXPECT_THAT(calls, ElementsAre("update-mime-database mime", "update-desktop-database applications"));
}

TEST_F(Association, WritesNothingAtASecondStart) {
    Associate(Desktop());
    calls.clear();
    const auto before = All_Files();
    Associate(Desktop());
    EXPECT_EQ(All_Files(), before);
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(Association, FollowsTheProgramToAnotherPlace) {
    Associate(Desktop());
    calls.clear();
    const std::string entry = folder / "applications/kervol.desktop";
    const std::string before = Content_Of(entry);
    Associate(Desktop("/usr/bin/kervol"));
    EXPECT_THAT(Content_Of(entry), HasSubstr("\nExec=\"/usr/bin/kervol\" %f\n"));
    EXPECT_EQ(Content_Of(entry + "~"), before) << "what stood there is kept";
    EXPECT_THAT(calls, ElementsAre("update-desktop-database applications"));
}

TEST_F(Association, RenewsACacheThatIsMissing) {
    Associate(Desktop());
    for (const char* cache : {"mime/mime.cache", "applications/mimeinfo.cache"}) {
        calls.clear();
        fs::remove(folder / cache);
        Associate(Desktop());
        EXPECT_EQ(calls.size(), 1U) << cache;
    }
}

TEST_F(Association, RepairsAFileThatWasChanged) {
    Associate(Desktop());
    const auto before = Content_Of(folder / "mime/packages/kervol.xml");
    folder.Put("mime/packages/kervol.xml", "something else");
    Associate(Desktop());
    EXPECT_EQ(Content_Of(folder / "mime/packages/kervol.xml"), before);
}

TEST_F(Association, QuotesAProgramInAFolderOfAnyName) {
    Associate(Desktop("/opt/My \"Ker\\vol\" 100%/$x`/kervol"));
    // Each \ of the quoting and of the path itself is doubled once more in a value of the entry.
    EXPECT_THAT(
        Content_Of(folder / "applications/kervol.desktop"),
        AllOf(HasSubstr("\nExec=\"/opt/My \\\\\"Ker\\\\\\\\vol\\\\\" 100%%/\\\\$x\\\\`/kervol\" %f\n"),
              HasSubstr("\nTryExec=/opt/My \"Ker\\\\vol\" 100%/$x`/kervol\n")));
}

TEST_F(Association, KeepsAPathWithALineEndOnOneLine) {
    Associate(Desktop("/opt/a\nHidden=true\r/kervol"));
    EXPECT_THAT(Content_Of(folder / "applications/kervol.desktop"),
                HasSubstr("\nExec=\"/opt/a\\nHidden=true\\r/kervol\" %f\n"));
}

TEST_F(Association, LeavesWhatItCannotWrite) {
    folder.Put("applications", "no folder");
    fs::create_directories(folder / "mime/packages/kervol.xml");
    Associate({"/opt/kervol", folder.path().string(), [](const std::string&, const std::string&) {}});
    EXPECT_EQ(Content_Of(folder / "applications"), "no folder");
    EXPECT_TRUE(fs::is_directory(folder / "mime/packages/kervol.xml"));
    EXPECT_TRUE(fs::exists(folder / "icons/hicolor/scalable/apps/kervol.svg")) << "the others are written";
}

TEST_F(Association, LeavesAHomeWithoutTheRightToWrite) {
    fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                       fs::perms::others_exec);
    const int result = Without_Rights([&] {
        Associate({"/opt/kervol", folder.path().string(), [](const std::string&, const std::string&) {}});
        return 0;
    });
    if (result == kNotPossible) GTEST_SKIP() << "rights of the superuser cannot be given up here";
    EXPECT_EQ(result, 0);
    EXPECT_THAT(Names(), IsEmpty());
}

/// The files of an installation in a folder of the system, by their path below it.
const std::map<std::string, std::string> kInstalled = {
    {"applications/kervol.desktop", std::string(kDesktopEntry)},
    {"icons/hicolor/scalable/apps/kervol.svg", std::string(kProgramIcon)},
    {"mime/packages/kervol.xml", std::string(kMimePackage)},
};

class AssociationBesideAnInstallation : public Association {
  protected:
    void SetUp() override {
        for (const auto& [file, content] : kInstalled) {
            fs::create_directories((system.path() / file).parent_path());
            system.Put(file, content);
        }
    }
    UserDesktop Desktop(const std::string& program = "/usr/bin/kervol") {
        UserDesktop desktop = Association::Desktop(program);
        desktop.system_folders = {"/no/such/folder", system.path().string()};
        return desktop;
    }

    const TemporaryFolder system;
};

TEST_F(AssociationBesideAnInstallation, WritesNothingWhereTheUserHasNothing) {
    Associate(Desktop());
    Associate(Desktop("/home/somebody/build/kervol"));
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(AssociationBesideAnInstallation, KeepsAUsersOwnEntryRightSinceItHidesTheSystems) {
    Associate(Association::Desktop("/home/somebody/build/kervol"));
    calls.clear();
    Associate(Desktop());
    EXPECT_THAT(Content_Of(folder / "applications/kervol.desktop"),
                HasSubstr("\nExec=\"/usr/bin/kervol\" %f\n"));
    EXPECT_THAT(calls, ElementsAre("update-desktop-database applications"));
}

TEST_F(AssociationBesideAnInstallation, WritesWhatAnotherReleaseHasInstalledOtherwise) {
    system.Put("mime/packages/kervol.xml", "of another release");
    Associate(Desktop());
    EXPECT_THAT(Names(), ElementsAre("mime/mime.cache", "mime/packages/kervol.xml"));
    EXPECT_THAT(calls, ElementsAre("update-mime-database mime"));
}

TEST_F(Association, NeedsAProgramAndAHome) {
    const auto none = [](const std::string&, const std::string&) { FAIL() << "no tool has work here"; };
    Associate({"", folder.path().string(), none});
    Associate({"/opt/kervol", "", none});
    EXPECT_THAT(Names(), IsEmpty());
}

/// Sets a variable of the environment, or unsets it, while it lives.
class Environment {
  public:
    Environment(const char* name, const char* value) : name_(name) {
        if (const char* old = std::getenv(name)) old_ = old;
        value == nullptr ? unsetenv(name) : setenv(name, value, 1);
    }
    ~Environment() { old_ ? setenv(name_, old_->c_str(), 1) : unsetenv(name_); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

  private:
    const char* name_;
    std::optional<std::string> old_;
};

TEST(UsersDesktop, StandsInTheDataFolderOfTheUser) {
    const Environment home("HOME", "/home/somebody");
    {
        const Environment data("XDG_DATA_HOME", "/data/somebody");
        EXPECT_EQ(Users_Desktop().data_folder, "/data/somebody");
    }
    for (const char* none : {static_cast<const char*>(nullptr), "", "relative/data"}) {
        const Environment data("XDG_DATA_HOME", none);
        EXPECT_EQ(Users_Desktop().data_folder, "/home/somebody/.local/share");
        const Environment no_home("HOME", none);
        EXPECT_EQ(Users_Desktop().data_folder, "");
    }
}

TEST(UsersDesktop, KnowsTheDataFoldersOfTheSystem) {
    {
        const Environment folders("XDG_DATA_DIRS", "/opt/share:relative/share::/usr/share/");
        EXPECT_THAT(Users_Desktop().system_folders, ElementsAre("/opt/share", "/usr/share/"));
    }
    for (const char* none : {static_cast<const char*>(nullptr), ""}) {
        const Environment folders("XDG_DATA_DIRS", none);
        EXPECT_THAT(Users_Desktop().system_folders, ElementsAre("/usr/local/share", "/usr/share"));
    }
}

TEST(UsersDesktop, KnowsTheRunningProgram) {
    EXPECT_EQ(fs::path(Users_Desktop().program).filename(), "test_files");
    EXPECT_TRUE(fs::exists(Users_Desktop().program));
}

/// Waits until the file is there, some seconds at most.
bool Appears(const std::string& path) {
    for (int i = 0; i < 1000 && !fs::exists(path); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return fs::exists(path);
}

TEST(UsersDesktop, StartsAToolOnAFolderOfAnyName) {
    const TemporaryFolder folder;
    const std::string tool = folder.Put("my tool", "#!/bin/sh\nmkdir \"$1\"\n");
    fs::permissions(tool, fs::perms::owner_all);
    Users_Desktop().start_tool(tool, folder / "a folder; $x");
    EXPECT_TRUE(Appears(folder / "a folder; $x"));
    Users_Desktop().start_tool("no-such-tool", folder / "x");
}

/// What a command prints, both streams; nothing where the shell does not know it.
std::optional<std::string> Output_Of(const std::string& command) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen((command + " 2>&1").c_str(), "r"),
                                                               &pclose);
    std::string text;
    for (int c = 0; pipe && (c = std::fgetc(pipe.get())) != EOF;) text += static_cast<char>(c);
    if (text.find("not found") != std::string::npos) return std::nullopt;
    return text;
}

/// Lets the desktop's own tools work on a temporary home.
class RealDesktop : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!Output_Of("gio version") || !Output_Of("update-mime-database -v"))
            GTEST_SKIP() << "needs gio and update-mime-database";
        const std::string program = folder.Put("my program", "#!/bin/sh\n");
        fs::permissions(program, fs::perms::owner_all);
        Associate({program, folder / "share", [](const std::string& tool, const std::string& place) {
                       Output_Of(tool + " '" + place + "'");
                   }});
    }

    const TemporaryFolder folder;
    const Environment home{"HOME", folder.path().c_str()};
    const Environment data{"XDG_DATA_HOME", (folder.path() / "share").c_str()};
};

TEST_F(RealDesktop, KnowsTheTypeOfAModelFile) {
    const std::string model = folder.Put("crank.kvl", "\"KERVOL for Windows\"\r\n");
    EXPECT_THAT(Output_Of("gio info -a standard::content-type '" + model + "'").value_or(""),
                HasSubstr("application/x-kervol"));
}

TEST_F(RealDesktop, HasNoWorkAtASecondStart) {
    if (!fs::exists(folder / "share/applications/mimeinfo.cache"))
        GTEST_SKIP() << "needs update-desktop-database";
    Associate({folder / "my program", folder / "share",
               [](const std::string& tool, const std::string&) { ADD_FAILURE() << tool; }});
}

TEST_F(RealDesktop, OpensAModelFileWithTheProgram) {
    if (!fs::exists(folder / "share/applications/mimeinfo.cache"))
        GTEST_SKIP() << "needs update-desktop-database";
    EXPECT_THAT(Output_Of("gio mime application/x-kervol").value_or(""), HasSubstr("kervol.desktop"));
}

TEST_F(RealDesktop, AcceptsTheDesktopEntry) {
    const auto complaints =
        Output_Of("desktop-file-validate '" + (folder / "share/applications/kervol.desktop") + "'");
    if (!complaints) GTEST_SKIP() << "needs desktop-file-validate";
    EXPECT_EQ(*complaints, "");
}

}  // namespace
}  // namespace kervol
