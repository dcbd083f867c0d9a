// SPDX-License-Identifier: GPL-3.0-or-later
// A program of the toolkit that does nothing: what any of them takes from start to end.
#include <QCoreApplication>

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
}
