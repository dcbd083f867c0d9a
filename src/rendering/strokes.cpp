// SPDX-License-Identifier: GPL-3.0-or-later
#include "rendering/strokes.h"

#include <QLineF>
#include <QPainter>
#include <QVector>
#include <algorithm>
#include <cmath>
#include <optional>

namespace kervol {
namespace {

/// Logical pixels, whatever the zoom.
constexpr double kPenWidth = 1.6;
constexpr double kPointRadius = 1.6;
constexpr double kLargestRadius = 1e6;

bool Is_Finite(QPointF point) {
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// Shortens the part [from, to] of a line to where `start + part * way` lies between low and high.
bool Cut(double start, double way, double low, double high, double& from, double& to) {
    if (std::abs(way) < 1e-12) return start >= low && start <= high;
    const double a = (low - start) / way, b = (high - start) / way;
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
    return from <= to;
}

/// The part of a line within the room.
std::optional<QLineF> Within(const QLineF& line, const QRectF& room) {
    if (!Is_Finite(line.p1()) || !Is_Finite(line.p2())) return std::nullopt;
    double from = 0, to = 1;
    if (!Cut(line.x1(), line.dx(), room.left(), room.right(), from, to)) return std::nullopt;
    if (!Cut(line.y1(), line.dy(), room.top(), room.bottom(), from, to)) return std::nullopt;
    return QLineF(from > 0 ? line.pointAt(from) : line.p1(), to < 1 ? line.pointAt(to) : line.p2());
}

/// Runs of lines in one colour go to the painter together.
class StrokePainter {
  public:
    StrokePainter(QPainter& painter, const WorldWindow& window, const QRectF& area, const QRectF& room)
        : painter_(painter), window_(window), area_(area), room_(room) {}
    ~StrokePainter() { Flush(); }
    StrokePainter(const StrokePainter&) = delete;
    StrokePainter& operator=(const StrokePainter&) = delete;

    void Paint(const Stroke& stroke) {
        if (!lines_.isEmpty() && (stroke.shape.kind != Shape::Kind::Line || stroke.colour != colour_))
            Flush();
        colour_ = stroke.colour;
        const Shape& shape = stroke.shape;
        const QPointF at = Place_In(area_, window_, shape.x1, shape.y1);
        switch (shape.kind) {
            case Shape::Kind::Line:
                if (const auto line = Within({at, Place_In(area_, window_, shape.x2, shape.y2)}, room_))
                    lines_.append(*line);
                break;
            case Shape::Kind::Circle:
                Draw_Circle(at, std::abs(shape.x2 / (window_.right - window_.left)) * area_.width());
                break;
            case Shape::Kind::Point:
                if (!room_.contains(at)) break;
                painter_.setPen(Qt::NoPen);
                painter_.setBrush(Qt_Colour(colour_));
                painter_.drawEllipse(at, kPointRadius, kPointRadius);
                break;
        }
    }

  private:
    void Draw_Circle(QPointF centre, double radius) {
        // What is far larger than any screen the painter would fill from edge to edge.
        if (!Is_Finite(centre) || !(radius <= kLargestRadius)) return;
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
    const WorldWindow& window_;
    QRectF area_, room_;
    Colour colour_{};
    QVector<QLineF> lines_;
};

}  // namespace

QColor Qt_Colour(Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

QRectF Window_Area(const WorldWindow& window, const QRectF& room, bool true_shape) {
    if (!true_shape) return room;
    const double shape =
        std::abs(window.right - window.left) / std::abs(window.bottom - window.top);  // width by height
    const double width = std::min(room.width(), room.height() * shape), height = width / shape;
    return {room.center().x() - width / 2, room.center().y() - height / 2, width, height};
}

QPointF Place_In(const QRectF& area, const WorldWindow& window, double x, double y) {
    return {area.left() + (x - window.left) / (window.right - window.left) * area.width(),
            area.top() + (y - window.top) / (window.bottom - window.top) * area.height()};
}

void Paint_Strokes(QPainter& painter, const std::vector<Stroke>& strokes, const WorldWindow& window,
                   const QRectF& area, const QRectF& room) {
    StrokePainter strokes_painter(painter, window, area, room);
    for (const Stroke& stroke : strokes) strokes_painter.Paint(stroke);
}

}  // namespace kervol
