// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/picture_widget.h"

#include <QPainter>

#include "qt/picture_menu.h"
#include "rendering/strokes.h"

namespace kervol {

PictureWidget::PictureWidget(PictureList& list, Fit fit) : list_(list), fit_(fit) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    list_.changed = [this] { update(); };
    Offer_Picture_Menu(*this, {.sheet = [this] { return Shown_Sheet(); }, .values = {}});
}

PictureWidget::~PictureWidget() {
    list_.changed = nullptr;
}

QSize PictureWidget::sizeHint() const {
    return fit_ == Fit::TrueShape ? QSize(640, 560) : QSize(420, 200);
}

QSize PictureWidget::minimumSizeHint() const {
    return fit_ == Fit::TrueShape ? QSize(320, 320) : QSize(160, 80);
}

QRectF PictureWidget::Window_Place() const {
    return Window_Area(list_.Window(), rect(), fit_ == Fit::TrueShape);
}

QPointF PictureWidget::To_Widget(double x, double y) const {
    return Place_In(Window_Place(), list_.Window(), x, y);
}

Sheet PictureWidget::Shown_Sheet() const {
    const double width = this->width(), height = this->height();
    Sheet sheet{.width = width, .height = height};
    sheet.drawings.push_back({.box = {0, 0, width, height},
                              .window = list_.Window(),
                              .true_shape = fit_ == Fit::TrueShape,
                              .background = list_.Background(),
                              .strokes = list_.Strokes()});
    return sheet;
}

void PictureWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt_Colour(list_.Background()));
    painter.setRenderHint(QPainter::Antialiasing);
    Paint_Strokes(painter, list_.Strokes(), list_.Window(), Window_Place(), rect());
}

}  // namespace kervol
