// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/icon.h"

#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

namespace kervol {
namespace {

/// On a field of 64 by 64.
QPixmap Drawn_Icon(int size) {
    const QPointF O2(14, 48), A(20, 26), B(46, 16), O4(50, 48), C(34, 9);
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 64.0, size / 64.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(24, 52, 92));
    painter.drawRoundedRect(QRectF(1, 1, 62, 62), 12, 12);
    painter.setPen(QPen(QColor(150, 200, 255), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({O2, A}));
    painter.drawPolyline(QPolygonF({O4, B}));
    painter.setBrush(QColor(150, 200, 255, 110));
    painter.drawPolygon(QPolygonF({A, B, C}));
    painter.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(8, 55), QPointF(56, 55));
    painter.setPen(QPen(Qt::white, 2.5));
    painter.setBrush(QColor(24, 52, 92));
    for (const QPointF pin : {O2, A, B, O4}) painter.drawEllipse(pin, 4.5, 4.5);
    return pixmap;
}

}  // namespace

QIcon Program_Icon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) icon.addPixmap(Drawn_Icon(size));
    return icon;
}

}  // namespace kervol
