// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the tests of the windows without a display.
#include <QApplication>
#include <QTemporaryDir>

#include "qt/look.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const QTemporaryDir runtime;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    kervol::Set_Look();
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
