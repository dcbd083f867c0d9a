// SPDX-License-Identifier: GPL-3.0-or-later
// Strokes of a picture on a painter: smooth lines of one width at every size.
#pragma once

#include <QColor>
#include <QRectF>
#include <vector>

#include "core/picture_list.h"

class QPainter;

namespace kervol {

QColor Qt_Colour(Colour colour);

/// Where the window stands in the room: filling it, or in its true shape as large as it goes, in the middle.
QRectF Window_Area(const WorldWindow& window, const QRectF& room, bool true_shape);
/// Place of a point of the world in that area.
QPointF Place_In(const QRectF& area, const WorldWindow& window, double x, double y);

/// Lines end at the edge of `room`. What has no place that a painter can take is left out.
void Paint_Strokes(QPainter& painter, const std::vector<Stroke>& strokes, const WorldWindow& window,
                   const QRectF& area, const QRectF& room);

}  // namespace kervol
