// SPDX-License-Identifier: GPL-3.0-or-later
// The start of the window program itself, in a home of the test's own. It ends when its first screen is
// painted.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <map>
#include <string_view>

#include "files/desktop_files.h"

#include <gtest/gtest.h>

namespace {

class Start : public ::testing::Test {
  protected:
    /// Whether the program came to its first screen.
    bool Reaches_Its_First_Screen() {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home.path());
        environment.insert("XDG_DATA_HOME", home.filePath("share"));
        environment.insert("XDG_DATA_DIRS", home.filePath("system"));
        environment.insert("PATH", home.filePath("bin"));
        program.setProcessEnvironment(environment);
        program.start(KERVOL_START, QStringList());
        return program.waitForFinished() && program.exitStatus() == QProcess::NormalExit &&
               program.exitCode() == 0;
    }
    void Put(const QString& name, std::string_view content) {
        const QString path = home.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content.data(), static_cast<qint64>(content.size()));
        file.setPermissions(file.permissions() | QFile::ExeOwner);
    }
    QByteArray Content(const QString& name) const {
        QFile file(home.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// A tool of the desktop that makes the cache it is there for and notes that it ran.
    void Put_Tool(const QString& name, const QByteArray& cache) {
        const QByteArray runs = home.filePath("runs").toUtf8();
        Put("bin/" + name,
            ("#!/bin/sh\n: > \"$1/" + cache + "\"\necho ran >> '" + runs + "'\n").toStdString());
    }
    /// All that the start has put below the data folder, with the time of its last change.
    std::map<QString, QDateTime> Registered() const {
        std::map<QString, QDateTime> files;
        const QDir share(home.filePath("share"));
        QDirIterator all(share.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            all.next();
            files[share.relativeFilePath(all.filePath())] = all.fileInfo().lastModified();
        }
        return files;
    }

    QTemporaryDir home;
};

TEST_F(Start, RegistersTheProgramOnceForItsModelFiles) {
    Put_Tool("update-mime-database", "mime.cache");
    Put_Tool("update-desktop-database", "mimeinfo.cache");
    ASSERT_TRUE(Reaches_Its_First_Screen());
    // The start does not wait for the tools.
    ASSERT_TRUE(QTest::qWaitFor([&] { return Content("runs") == "ran\nran\n"; }));
    const auto registered = Registered();
    for (const char* file : {"applications/kervol.desktop", "applications/mimeinfo.cache", "mime/mime.cache",
                             "mime/packages/kervol.xml", "icons/hicolor/scalable/apps/kervol.svg"})
        EXPECT_TRUE(registered.contains(file)) << file;
    EXPECT_EQ(registered.size(), 5U);
    EXPECT_TRUE(Content("share/applications/kervol.desktop").contains("Exec=\"" KERVOL_START "\" %f\n"));
    EXPECT_TRUE(Content("share/mime/packages/kervol.xml").contains("<glob pattern=\"*.kvl\"/>"));

    ASSERT_TRUE(Reaches_Its_First_Screen());
    EXPECT_EQ(Registered(), registered) << "a second start writes nothing";
    EXPECT_EQ(Content("runs"), "ran\nran\n");
}

TEST_F(Start, LeavesTheRegistrationToAnInstallation) {
    Put("system/applications/kervol.desktop", kervol::kDesktopEntry);
    Put("system/mime/packages/kervol.xml", kervol::kMimePackage);
    Put("system/icons/hicolor/scalable/apps/kervol.svg", kervol::kProgramIcon);
    ASSERT_TRUE(Reaches_Its_First_Screen());
    EXPECT_TRUE(Registered().empty());
}

TEST_F(Start, DoesNotNeedTheToolsOfTheDesktop) {
    EXPECT_TRUE(Reaches_Its_First_Screen());
    EXPECT_EQ(Registered().size(), 3U);
}

TEST_F(Start, DoesNotNeedAHomeThatCanBeWritten) {
    Put("share", "no folder");
    EXPECT_TRUE(Reaches_Its_First_Screen());
    EXPECT_EQ(Content("share"), "no folder");
}

}  // namespace
