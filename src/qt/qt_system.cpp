// SPDX-License-Identifier: GPL-3.0-or-later
// What the port asks of the system.
#include <QCoreApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QLocale>
#include <QUrl>

#include "core/path_text.h"
#include "qt/qt_port.h"
#include "rendering/qt_text.h"

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace kervol {

std::string QtPort::User_Name() {
#ifdef Q_OS_UNIX
    if (const passwd* account = getpwuid(getuid()); account != nullptr) {
        // Behind the first comma stand rooms and telephones.
        const std::string full = account->pw_gecos == nullptr ? "" : account->pw_gecos;
        const std::string name = full.substr(0, full.find(','));
        return name.empty() ? account->pw_name : name;
    }
    return qEnvironmentVariable("USER").toStdString();
#else
    return qEnvironmentVariable("USERNAME").toStdString();
#endif
}

std::string QtPort::Long_Path(const std::string& path) {
    return Long_Path_Of(path);
}

/// That of an installed program, then that of the build folder which the program stands in.
std::vector<std::string> QtPort::Manual_Places() {
    const QDir program(QCoreApplication::applicationDirPath());
    std::vector<std::string> places;
    for (const char* place : {"../share/doc/kervol/manual/index.html", "../../manual/index.html"})
        places.push_back(QDir::cleanPath(program.filePath(place)).toStdString());
    return places;
}

bool QtPort::Open_File(const std::string& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(Qt_Text(path)));
}

DateAndTime QtPort::Short_Date_And_Time() {
    const QDateTime now = QDateTime::currentDateTime();
    const QLocale locale = QLocale::system();
    return {locale.toString(now.date(), QLocale::ShortFormat).toStdString(),
            locale.toString(now.time(), QLocale::ShortFormat).toStdString()};
}

}  // namespace kervol
