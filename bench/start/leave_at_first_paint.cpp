// SPDX-License-Identifier: GPL-3.0-or-later
// Linked to a window program this ends it as soon as its first window stands painted, so that its start can
// be timed from outside without the program knowing.
#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <cstdlib>

namespace {

class LeaveAtFirstPaint : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = qobject_cast<const QWidget*>(watched);
        // The painted picture reaches the screen before the event loop's next round.
        if (event->type() == QEvent::Paint && widget != nullptr && widget->isWindow())
            QTimer::singleShot(0, [] { std::_Exit(EXIT_SUCCESS); });
        return false;
    }
};

void Watch_First_Paint() {
    qApp->installEventFilter(new LeaveAtFirstPaint(qApp));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(Watch_First_Paint)
