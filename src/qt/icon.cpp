// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "files/desktop_files.h"

namespace kervol {
namespace {

/// Draws a size only when somebody asks for it: drawing all of them would be a third of the program's own
/// start.
class DrawnIcon : public QIconEngine {
  public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        QSvgRenderer drawing(QByteArray(kProgramIcon.data(), static_cast<qsizetype>(kProgramIcon.size())));
        drawing.render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect({}, size), mode, state);
        return pixmap;
    }

    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        QList<QSize> sizes;
        for (const int size : {16, 24, 32, 48, 64, 128, 256}) sizes.append({size, size});
        return sizes;
    }

    QIconEngine* clone() const override { return new DrawnIcon; }
};

}  // namespace

QIcon Program_Icon() {
    return QIcon(new DrawnIcon);
}

}  // namespace kervol
