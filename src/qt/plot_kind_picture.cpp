// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/plot_kind_picture.h"

#include <QMouseEvent>
#include <QPainter>
#include <array>
#include <cmath>

#include "core/constants.h"

namespace kervol {
namespace {

constexpr QSize kSize(150, 104);
constexpr double kMargin = 7, kGap = 6;
constexpr int kPoints = 48;

/// Dark and light enough for white and for black ground.
const std::array<QColor, 4> kCurves = {QColor(214, 69, 65), QColor(52, 120, 200), QColor(56, 150, 80),
                                       QColor(200, 130, 20)};

enum class Shape { Curves, Rays, Envelopes };

struct PlotKind {
    int rows, columns;
    Shape shape;
    int curves;  ///< in each window
    bool annotated;
};

/// By picture: one function or four; charts with their grid beside aligned plots; rays or envelopes.
constexpr std::array<PlotKind, 8> kKinds = {{{1, 1, Shape::Curves, 1, true},
                                             {1, 1, Shape::Curves, 4, true},
                                             {2, 1, Shape::Curves, 1, true},
                                             {2, 1, Shape::Curves, 1, false},
                                             {2, 2, Shape::Curves, 1, true},
                                             {2, 2, Shape::Curves, 1, false},
                                             {1, 1, Shape::Rays, 1, false},
                                             {1, 1, Shape::Envelopes, 4, false}}};

/// A motion's typical curve in the unit square, another one for each number.
double Height_At(double x, int number) {
    const double turn = 2 * Pi * (x + 0.17 * number);
    return 0.5 + 0.3 * std::sin(turn) + 0.12 * std::cos(2 * turn + number);
}

QPointF Tip_At(double x, int number) {
    const double angle = 2 * Pi * x;
    const double reach =
        (0.62 + 0.3 * std::cos(angle * (1 + number % 2) + 0.8 * number)) * (1 - 0.16 * number);
    return {reach * std::cos(angle), reach * std::sin(angle)};
}

void Paint_Grid(QPainter& painter, const QRectF& window, QColor ink) {
    ink.setAlpha(50);
    painter.setPen(QPen(ink, 1));
    for (const double part : {0.25, 0.5, 0.75}) {
        const double x = window.left() + part * window.width(), y = window.top() + part * window.height();
        painter.drawLine(QPointF(x, window.top()), QPointF(x, window.bottom()));
        painter.drawLine(QPointF(window.left(), y), QPointF(window.right(), y));
    }
}

void Paint_Curve(QPainter& painter, const QRectF& window, int number) {
    QPolygonF curve;
    for (int i = 0; i <= kPoints; ++i) {
        const double x = double(i) / kPoints;
        curve.append(
            {window.left() + x * window.width(), window.bottom() - Height_At(x, number) * window.height()});
    }
    painter.drawPolyline(curve);
}

void Paint_Polar(QPainter& painter, const QRectF& window, int number, bool rays) {
    const double reach = std::min(window.width(), window.height()) / 2;
    QPolygonF envelope;
    for (int i = 0; i <= kPoints; ++i) {
        const QPointF tip = Tip_At(double(i) / kPoints, number);
        envelope.append(window.center() + QPointF(tip.x(), -tip.y()) * reach);
        if (rays && i % 2 == 0) painter.drawLine(window.center(), envelope.last());
    }
    if (!rays) painter.drawPolyline(envelope);
}

void Paint_Axes(QPainter& painter, const QRectF& window, const QColor& ink, Shape shape) {
    painter.setPen(QPen(ink, 1));
    if (shape == Shape::Curves) {
        painter.drawPolyline(QPolygonF({window.topLeft(), window.bottomLeft(), window.bottomRight()}));
        return;
    }
    const QPointF centre = window.center();
    painter.drawLine(QPointF(window.left(), centre.y()), QPointF(window.right(), centre.y()));
    painter.drawLine(QPointF(centre.x(), window.top()), QPointF(centre.x(), window.bottom()));
}

void Paint_Window(QPainter& painter, const QRectF& window, const PlotKind& kind, int first,
                  const QColor& ink) {
    if (kind.annotated) Paint_Grid(painter, window, ink);
    Paint_Axes(painter, window, ink, kind.shape);
    for (int curve = 0; curve < kind.curves; ++curve) {
        const int number = first + curve;
        const bool rays = kind.shape == Shape::Rays;
        painter.setPen(QPen(kCurves[static_cast<std::size_t>(number) % kCurves.size()], rays ? 1.0 : 1.8));
        if (kind.shape == Shape::Curves)
            Paint_Curve(painter, window, number);
        else
            Paint_Polar(painter, window, number, rays);
    }
}

}  // namespace

PlotKindPicture::PlotKindPicture(int picture, QWidget* parent) : QWidget(parent), picture_(picture) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
}

QSize PlotKindPicture::sizeHint() const {
    return kSize;
}

void PlotKindPicture::paintEvent(QPaintEvent*) {
    const PlotKind& kind = kKinds.at(static_cast<std::size_t>(picture_));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(palette().base());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.setBrush(Qt::NoBrush);
    const QColor ink = palette().color(QPalette::Text);
    const double width = (this->width() - 2 * kMargin - (kind.columns - 1) * kGap) / kind.columns;
    const double height = (this->height() - 2 * kMargin - (kind.rows - 1) * kGap) / kind.rows;
    for (int row = 0; row < kind.rows; ++row)
        for (int column = 0; column < kind.columns; ++column)
            Paint_Window(painter,
                         {kMargin + column * (width + kGap), kMargin + row * (height + kGap), width, height},
                         kind, row * kind.columns + column, ink);
}

void PlotKindPicture::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && clicked) clicked();
}

void PlotKindPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && double_clicked) double_clicked();
}

}  // namespace kervol
