// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>

namespace kervol {

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (close_asked) close_asked();
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool escape = event->key() == Qt::Key_Escape && escape_closes;
    // Held down it has closed or ended something already.
    if (escape && event->isAutoRepeat()) return;
    if (escape && close_asked) return close_asked();
    QWidget::keyPressEvent(event);
}

void FormWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (any_click_closes && close_asked) return close_asked();
    if (clicked && event->button() == Qt::LeftButton) return clicked();
    QWidget::mouseReleaseEvent(event);
}

}  // namespace kervol
