// SPDX-License-Identifier: GPL-3.0-or-later
// The window program: kervol [MODEL].
#include <QApplication>
#include <QTimer>
#include <iostream>
#include <memory>

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

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication app(argc, argv);
    if (argc > 2) {
        std::cerr << "kervol: at most one model file can be opened\n";
        return 1;
    }
    kervol::Set_Look();
    QApplication::setApplicationName("kervol");
    QApplication::setDesktopFileName("kervol");
    QApplication::setWindowIcon(kervol::Program_Icon());
    // Between two screens no window is open.
    QApplication::setQuitOnLastWindowClosed(false);

    auto run = std::make_unique<Run>();
    run->port.Attach(run->screens);
    QTimer::singleShot(
        0, [&run, path = std::string(argc == 2 ? argv[1] : "")] { kervol::Launch(run->screens, path); });
    return QApplication::exec();
}
