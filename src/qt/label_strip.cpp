// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/label_strip.h"

#include <QEvent>
#include <QLabel>
#include <algorithm>
#include <cmath>

namespace kervol {
namespace {

/// As the labels of a plot usually are; room for them keeps the plots below each other in line.
constexpr auto kUsual = "-10,000,000.";

/// Where something of that size begins, about a middle but within the room.
int Start(double middle, int size, int room) {
    return std::clamp(static_cast<int>(std::lround(middle - size / 2.0)), 0, std::max(0, room - size));
}

}  // namespace

LabelStrip::LabelStrip(Qt::Orientation orientation) : orientation_(orientation) {
    const bool across = orientation == Qt::Horizontal;
    setSizePolicy(across ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                  across ? QSizePolicy::Fixed : QSizePolicy::Expanding);
}

void LabelStrip::Add(QLabel* label, double share) {
    label->setParent(this);
    places_.push_back({label, share});
}

QSize LabelStrip::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    int widest = metrics.horizontalAdvance(kUsual);
    for (const Place& place : places_) widest = std::max(widest, place.label->sizeHint().width());
    return {widest + 4, metrics.height()};
}

void LabelStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Put_Labels();
}

bool LabelStrip::event(QEvent* event) {
    // A label has another text; one that got it while it was hidden asked for nothing.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) {
        Put_Labels();
        updateGeometry();
    }
    return QWidget::event(event);
}

void LabelStrip::Put_Labels() {
    for (const Place& place : places_) {
        const QSize size = place.label->sizeHint();
        const QPoint at =
            orientation_ == Qt::Horizontal
                ? QPoint(Start(place.share * width(), size.width(), width()), 0)
                : QPoint(width() - size.width() - 2, Start(place.share * height(), size.height(), height()));
        place.label->setGeometry(QRect(at, size));
    }
}

}  // namespace kervol
