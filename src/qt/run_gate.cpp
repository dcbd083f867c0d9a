// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/run_gate.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <algorithm>

namespace kervol {
namespace {

bool Is_Input(QEvent::Type type) {
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletRelease:
            return true;
        default:
            return false;
    }
}

bool Is_Escape(const QEvent& event) {
    return event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

}  // namespace

RunGate::RunGate(QWidget& picture, const QWidget& button) : picture_(picture), button_(button) {
    clock_.start();
    qApp->installEventFilter(this);
}

RunGate::~RunGate() {
    qApp->removeEventFilter(this);
}

bool RunGate::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWidgetType()) return false;
    if (event->type() == QEvent::Close) {
        event->ignore();
        Ask_End();
        return true;
    }
    if (Is_Escape(*event)) {
        Ask_End();
        return true;
    }
    return watched != &button_ && Is_Input(event->type());
}

void RunGate::Hold(double milliseconds) {
    picture_.repaint();
    // A run that fell behind does not hurry to make up for it.
    due_ = std::max(due_ + milliseconds, static_cast<double>(clock_.elapsed()));
    const auto left = static_cast<int>(due_ - static_cast<double>(clock_.elapsed()));
    if (left < 1) {
        QCoreApplication::processEvents();
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(left, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

}  // namespace kervol
