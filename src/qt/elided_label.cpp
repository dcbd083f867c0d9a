// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

namespace kervol {

ElidedLabel::ElidedLabel(int letters, QWidget* parent) : QLabel(parent), letters_(letters) {
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::sizeHint() const {
    const QSize whole = QLabel::sizeHint();
    return {std::min(whole.width(), letters_ * fontMetrics().averageCharWidth()), whole.height()};
}

QString ElidedLabel::Shown() const {
    QStringList lines = text().split('\n');
    for (QString& line : lines) line = fontMetrics().elidedText(line, Qt::ElideRight, contentsRect().width());
    return lines.join('\n');
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                          Shown(), foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || Shown() == text()) return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
}

}  // namespace kervol
