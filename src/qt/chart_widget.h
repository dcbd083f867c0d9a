// SPDX-License-Identifier: GPL-3.0-or-later
// The chart of a screen: wheel and mouse enlarge and move it, a double click shows the whole again, and what
// stands under the pointer is told in numbers.
#pragma once

#include <QPoint>
#include <functional>
#include <optional>
#include <vector>

#include "rendering/chart_plot.h"

namespace kervol {

class ChartWidget : public ChartPlot {
  public:
    explicit ChartWidget(QWidget* parent = nullptr);

    std::function<void()> clicked;

    void Show(const ChartLook& look);

    struct Reading {
        std::size_t set, point;

        bool operator==(const Reading&) const = default;
    };
    /// The point nearest to a place on the widget; nothing far from all.
    std::optional<Reading> Nearest(QPointF place) const;
    /// "Theta 3: 41.5 deg at 30" in the chart's own words.
    QString Words(const Reading& reading) const;
    /// The chart as it stands here, with the part of it that is in view.
    Sheet Shown_Sheet() const;
    const std::optional<Reading>& Shown_Reading() const { return reading_; }

    QSize sizeHint() const override { return {420, 260}; }
    QSize minimumSizeHint() const override { return {200, 120}; }

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    std::vector<std::size_t> Drawn_Sets() const;
    void Show_Reading(std::optional<Reading> reading);
    /// The next point along the curve, or the next curve; nothing where none is drawn.
    void Move_Reading(int points, int sets);
    void Zoom(double factor);

    QCPItemEllipse* mark_;
    QCPItemText* words_;
    std::optional<Reading> reading_;
    std::optional<QPoint> pressed_;  ///< where, until the mouse moves away
};

}  // namespace kervol
