// SPDX-License-Identifier: GPL-3.0-or-later
// A chart drawn with the chart library: on a light sheet, in curves that tell themselves apart by colour and
// by pattern, so that a print in grey is readable too.
#pragma once

#include <QSharedPointer>
#include <qcustomplot.h>

#include "core/chart.h"
#include "core/sheet.h"

namespace kervol {

class PointTicker;

class ChartPlot : public QCustomPlot {
  public:
    explicit ChartPlot(QWidget* parent = nullptr);

    /// Draws the look. The view stays where only the dress has changed, not the points.
    void Show(const ChartLook& look);
    const ChartLook& Look() const { return look_; }

    void Show_Whole();
    void Show_View(const PlaneView& view);
    PlaneView View() const;
    /// The view that holds all points.
    const PlaneView& Whole() const { return whole_; }
    bool Shows_Whole() const;

    /// Position of a point in the plane.
    QPointF Place(std::size_t set, std::size_t point) const;
    /// Colour of a set's curve.
    static QColor Curve_Colour(std::size_t set);

    /// Texts of the usual size have this font.
    void Set_Text_Font(const QFont& font);
    /// Draws at the painter's origin.
    void Paint(QCPPainter& painter, QSize size);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Rebuild();
    void Keep_Shape();
    void Put_Titles();
    void Put_Axes();
    void Put_Grid();
    void Put_Curves();
    void Put_Curve(std::size_t set);
    QCPAbstractPlottable& Put_Polar(std::size_t set, const QPen& pen);
    QCPAbstractPlottable& Put_Graph(std::size_t set, const QPen& pen);
    void Put_Sticks(QCPGraph& graph);
    QFont Sized_Font(const ChartFont& font, double size) const;
    /// Columns of the legend, texts of the axis and the shape of a polar plane for a sheet of this size.
    void Fit(QSize size);

    ChartLook look_;
    PlaneView whole_{};
    QFont font_;
    QSharedPointer<PointTicker> points_;
    bool adjusting_ = false;  ///< a range is being put into its bounds
};

}  // namespace kervol
