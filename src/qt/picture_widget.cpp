// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/picture_widget.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace kervol {
namespace {

/// Logical pixels, whatever the zoom.
constexpr double kPenWidth = 1.6;
constexpr double kPointRadius = 1.6;
constexpr double kLargestRadius = 1e6;

QColor Qt_Colour(Colour colour) {
    return QColor(colour.red, colour.green, colour.blue);
}

/// Runs of lines in one colour go to the painter together.
class StrokePainter {
  public:
    StrokePainter(QPainter& painter, const PictureWidget& widget, double pixels_per_unit)
        : painter_(painter), widget_(widget), scale_(pixels_per_unit) {}
    ~StrokePainter() { Flush(); }
    StrokePainter(const StrokePainter&) = delete;
    StrokePainter& operator=(const StrokePainter&) = delete;

    void Paint(const Stroke& stroke) {
        if (!lines_.isEmpty() && (stroke.shape.kind != Shape::Kind::Line || stroke.colour != colour_))
            Flush();
        colour_ = stroke.colour;
        const Shape& shape = stroke.shape;
        const QPointF at = widget_.To_Widget(shape.x1, shape.y1);
        switch (shape.kind) {
            case Shape::Kind::Line:
                lines_.append(QLineF(at, widget_.To_Widget(shape.x2, shape.y2)));
                break;
            case Shape::Kind::Circle:
                Draw_Circle(at, std::abs(shape.x2) * scale_);
                break;
            case Shape::Kind::Point:
                painter_.setPen(Qt::NoPen);
                painter_.setBrush(Qt_Colour(colour_));
                painter_.drawEllipse(at, kPointRadius, kPointRadius);
                break;
        }
    }

  private:
    void Draw_Circle(QPointF centre, double radius) {
        // What is far larger than any screen the painter would fill from edge to edge.
        if (radius > kLargestRadius) return;
        painter_.setPen(Pen());
        painter_.setBrush(Qt::NoBrush);
        painter_.drawEllipse(centre, radius, radius);
    }

    QPen Pen() const {
        return QPen(Qt_Colour(colour_), kPenWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    }

    void Flush() {
        painter_.setPen(Pen());
        painter_.drawLines(lines_);
        lines_.clear();
    }

    QPainter& painter_;
    const PictureWidget& widget_;
    double scale_;
    Colour colour_{};
    QVector<QLineF> lines_;
};

}  // namespace

PictureWidget::PictureWidget(PictureList& list, QWidget* parent) : QWidget(parent), list_(list) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    list_.changed = [this] { update(); };
}

PictureWidget::~PictureWidget() {
    list_.changed = nullptr;
}

QSize PictureWidget::sizeHint() const {
    return {640, 560};
}

QSize PictureWidget::minimumSizeHint() const {
    return {320, 320};
}

QRectF PictureWidget::Window_Square() const {
    const double side = std::min(width(), height());
    return {(width() - side) / 2, (height() - side) / 2, side, side};
}

QPointF PictureWidget::To_Widget(double x, double y) const {
    const WorldWindow& window = list_.Window();
    const QRectF square = Window_Square();
    return {square.left() + (x - window.left) / (window.right - window.left) * square.width(),
            square.top() + (y - window.top) / (window.bottom - window.top) * square.height()};
}

void PictureWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt_Colour(list_.Background()));
    painter.setRenderHint(QPainter::Antialiasing);
    const WorldWindow& window = list_.Window();
    StrokePainter strokes(painter, *this, Window_Square().width() / std::abs(window.right - window.left));
    for (const Stroke& stroke : list_.Strokes()) strokes.Paint(stroke);
}

}  // namespace kervol
