// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/run_gate.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <algorithm>

#include "qt/wide_registers.h"

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
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

bool Is_Escape(const QEvent& event) {
    return event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

bool Is_Key(const QEvent& event) {
    return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease;
}

bool Is_Button_Key(const QEvent& event) {
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// What moves the focus before the widget under the pointer hears of it.
bool Moves_Focus(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick || type == QEvent::Wheel ||
           type == QEvent::TouchBegin || type == QEvent::TabletPress;
}

bool Is_On(const QWidget& widget, const QEvent& event) {
    const QPointF at = static_cast<const QPointerEvent&>(event).points().constFirst().globalPosition();
    return widget.rect().contains(widget.mapFromGlobal(at).toPoint());
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
    const QWidget* form = picture_.window();
    if (watched == form->windowHandle()) return Moves_Focus(event->type()) && !Is_On(button_, *event);
    // A box over the run has to be answered.
    if (!watched->isWidgetType() || static_cast<QWidget*>(watched)->window() != form) return false;
    if (event->type() == QEvent::Close) {
        event->ignore();
        Ask_End();
        return true;
    }
    if (Is_Escape(*event)) {
        Ask_End();
        return true;
    }
    if (!Is_Input(event->type())) return false;
    return watched != &button_ || (Is_Key(*event) && !Is_Button_Key(*event));
}

void RunGate::Hold(double milliseconds) {
    Let_Pass(milliseconds);
    Clear_Wide_Registers();
}

void RunGate::Let_Pass(double milliseconds) {
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
