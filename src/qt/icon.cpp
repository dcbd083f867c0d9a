// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/icon.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "files/desktop_files.h"

namespace kervol {

QIcon Program_Icon() {
    QSvgRenderer drawing(QByteArray(kProgramIcon.data(), static_cast<qsizetype>(kProgramIcon.size())));
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

}  // namespace kervol
