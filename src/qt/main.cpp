// SPDX-License-Identifier: GPL-3.0-or-later
// The window program: kervol [MODEL].
#include <QApplication>
#include <QLocale>
#include <QTimer>
#include <memory>

#include "files/association.h"
#include "qt/icon.h"
#include "qt/look.h"
#include "qt/qt_port.h"
#include "screens/launch_screens.h"

namespace {

/// All that one run holds; on the heap, for its tables are large.
struct Run {
    kervol::QtPort port;
    kervol::Program program{port};
    kervol::Screens screens{program};
};

/// What stands behind the program's name, as one text: a path with blanks needs no quotes.
std::string Command_Line(int argc, char** argv) {
    std::string line;
    for (int i = 1; i < argc; ++i) line += (i > 1 ? " " : "") + std::string(argv[i]);
    return line;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // The toolkit's boxes speak as the rest does: in English, with points in the numbers.
    QLocale::setDefault(QLocale::c());
    QApplication app(argc, argv);
    kervol::Set_Look();
    QApplication::setApplicationName("kervol");
    QApplication::setDesktopFileName("kervol");
    QApplication::setWindowIcon(kervol::Program_Icon());
    // Between two screens no window is open.
    QApplication::setQuitOnLastWindowClosed(false);

    auto run = std::make_unique<Run>();
    run->port.Attach(run->screens);
    QTimer::singleShot(0, [&run, line = Command_Line(argc, argv)] {
        kervol::Associate(kervol::Users_Desktop());
        kervol::Launch(run->screens, line);
    });
    return QApplication::exec();
}
