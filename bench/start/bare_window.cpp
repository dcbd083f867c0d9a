// SPDX-License-Identifier: GPL-3.0-or-later
// The least window program worth the name: a menu, a label, a field and a button. What any program on this
// toolkit takes to start.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* menu = new QMenuBar;
    menu->addMenu("&File")->addAction("&Quit", &app, &QApplication::quit);
    layout->setMenuBar(menu);
    layout->addWidget(new QLabel("Name"));
    layout->addWidget(new QLineEdit);
    layout->addWidget(new QPushButton("&Start"));
    window.show();
    return QApplication::exec();
}
