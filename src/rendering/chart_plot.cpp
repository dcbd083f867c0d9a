// SPDX-License-Identifier: GPL-3.0-or-later
#include "rendering/chart_plot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "rendering/chart_extent.h"
#include "rendering/point_ticker.h"
#include "rendering/qt_text.h"

namespace kervol {
namespace {

constexpr double kPen = 1.6, kThickPen = 2.8, kThinPen = 1.0, kGridPen = 1.0;  // logical pixels
constexpr double kTitleSize = 1.25;
constexpr int kFillAlpha = 70;
constexpr QSize kLegendIcon(38, 12);
constexpr int kGap = 6;
constexpr int kBold = 2, kItalic = 1;  // bits of a font's style
constexpr auto kMaskLayer = "mask";

const QColor kInk(0, 0, 0);
const QColor kGrid(200, 204, 210);
const QColor kFrame(90, 90, 90);
const QColor kTint(238, 243, 250);

/// Also of different lightness.
const std::array<QColor, 6> kColours = {QColor(0, 70, 170),  QColor(200, 30, 40),  QColor(0, 120, 60),
                                        QColor(215, 120, 0), QColor(120, 40, 140), QColor(40, 40, 40)};

/// Lengths of dashes and gaps in pens; the first is solid.
const std::array<QVector<qreal>, 6> kPatterns = {
    QVector<qreal>{},         QVector<qreal>{6, 3},
    QVector<qreal>{1.5, 2.5}, QVector<qreal>{7, 2.5, 1.5, 2.5},
    QVector<qreal>{12, 4},    QVector<qreal>{7, 2.5, 1.5, 2.5, 1.5, 2.5}};

QColor Ground(const ChartLook& look) {
    return look.background == chart_background::Tinted ? kTint : QColor(Qt::white);
}

/// Covers what of an enlarged curve stands beside the axes, for files that cannot cut it off.
class Mask : public QCPLayerable {
  public:
    explicit Mask(QCustomPlot& plot) : QCPLayerable(&plot, kMaskLayer) {}

  protected:
    void applyDefaultAntialiasingHint(QCPPainter* painter) const override { painter->setAntialiasing(false); }
    QRect clipRect() const override { return parentPlot()->viewport(); }
    void draw(QCPPainter* painter) override {
        const QRect all = parentPlot()->viewport(), plane = parentPlot()->axisRect()->rect();
        for (const QRect& side : {QRect(all.topLeft(), QPoint(all.right(), plane.top() - 1)),
                                  QRect(QPoint(all.left(), plane.bottom() + 1), all.bottomRight()),
                                  QRect(all.topLeft(), QPoint(plane.left() - 1, all.bottom())),
                                  QRect(QPoint(plane.right() + 1, all.top()), all.bottomRight())})
            painter->fillRect(side, Ground(static_cast<const ChartPlot*>(parentPlot())->Look()));
    }
};

QPen Curve_Pen(const ChartSet& set, std::size_t index) {
    QPen pen(ChartPlot::Curve_Colour(index), set.ThickLines ? kThickPen : kPen);
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::FlatCap);
    const auto pattern = static_cast<std::size_t>(std::max<int>(0, set.PatternData)) % kPatterns.size();
    if (set.PatternedLines && !kPatterns[pattern].isEmpty()) pen.setDashPattern(kPatterns[pattern]);
    return pen;
}

QPen Thin(QPen pen) {
    pen.setWidthF(kThinPen);
    return pen;
}

QCPScatterStyle Dot(const QPen& pen) {
    return {QCPScatterStyle::ssDisc, pen.color(), pen.color(), 2 * pen.widthF() + 2};
}

/// In the legend.
bool Has_Entry(const ChartSet& set) {
    return set.filled && !set.LegendText.empty();
}

bool Has_Lines(const ChartLook& look) {
    return look.GraphStyle != 4;
}

bool Same_Points(const ChartLook& one, const ChartLook& other) {
    return one.polar == other.polar && std::equal(one.sets.begin(), one.sets.end(), other.sets.begin(),
                                                  other.sets.end(), [](const ChartSet& a, const ChartSet& b) {
                                                      return a.GraphData == b.GraphData &&
                                                             a.XPosData == b.XPosData;
                                                  });
}

}  // namespace

ChartPlot::ChartPlot(QWidget* parent)
    : QCustomPlot(parent), font_(font()), points_(QSharedPointer<PointTicker>::create()) {
    // Numbers look the same on every desktop, as everywhere in the program.
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    setLocale(plain);
    setNoAntialiasingOnDrag(false);
    addLayer(kMaskLayer, layer("main"));
    // Owned by the chart.
    new Mask(*this);
    legend->setBorderPen(Qt::NoPen);
    legend->setBrush(Qt::NoBrush);
    legend->setIconSize(kLegendIcon);
    legend->setMargins({0, kGap, 0, 0});
    // The chart library draws the line of an entry somewhat beyond its icon and cuts it, which SVG files do
    // not.
    legend->setIconTextPadding(2 * kGap);
    legend->setRowSpacing(2);
    legend->setColumnSpacing(3 * kGap);
    legend->setFillOrder(QCPLegend::foColumnsFirst);
    plotLayout()->setRowSpacing(kGap);
    plotLayout()->setMargins({kGap, kGap, kGap, kGap});
    axisRect()->setMinimumMargins({0, kGap, 2 * kGap, 0});
    axisRect()->setupFullAxesBox();
    for (QCPAxis* axis : axisRect()->axes()) {
        axis->setBasePen(QPen(kFrame, 1));
        axis->setTickPen(QPen(kFrame, 1));
        axis->setSubTickPen(QPen(kFrame, 1));
        axis->setLabelColor(kInk);
        axis->setTickLabelColor(kInk);
        axis->setNumberPrecision(6);
        axis->setNumberFormat("gb");
    }
    for (QCPAxis* axis : {xAxis2, yAxis2}) axis->setTicks(false);
    axisRect()->setRangeZoomFactor(0.8);
    // The view moves over the points and never leaves them.
    const auto keep = [this](QCPAxis* axis, bool along) {
        connect(axis, qOverload<const QCPRange&>(&QCPAxis::rangeChanged), this,
                [this, axis, along](const QCPRange& range) {
                    if (std::exchange(adjusting_, true)) return;
                    axis->setRange(along ? range.bounded(whole_.x_low, whole_.x_high)
                                         : range.bounded(whole_.y_low, whole_.y_high));
                    adjusting_ = false;
                });
    };
    keep(xAxis, true);
    keep(yAxis, false);
    connect(this, &QCustomPlot::afterLayout, this, &ChartPlot::Keep_Shape);
    Rebuild();
    Show_Whole();
}

QColor ChartPlot::Curve_Colour(std::size_t set) {
    return kColours[set % kColours.size()];
}

void ChartPlot::Show(const ChartLook& look) {
    if (look == look_) return;
    const bool stays = Same_Points(look, look_) && !Shows_Whole();
    look_ = look;
    Rebuild();
    if (!stays) Show_Whole();
    Fit(size());
    replot(rpQueuedReplot);
}

void ChartPlot::Set_Text_Font(const QFont& font) {
    font_ = font;
    Rebuild();
}

void ChartPlot::Rebuild() {
    whole_ = Whole_View(look_);
    setBackground(Ground(look_));
    clearPlottables();
    Put_Curves();
    Put_Titles();
    Put_Axes();
    Put_Grid();
}

QFont ChartPlot::Sized_Font(const ChartFont& font, double size) const {
    QFont sized = font_;
    const int pixels = QFontInfo(font_).pixelSize();
    sized.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels * size * font.FontSize / 100.0))));
    sized.setBold((font.FontStyle & kBold) != 0);
    sized.setItalic((font.FontStyle & kItalic) != 0);
    return sized;
}

/// Title in the middle above, the legend of one curve beside it, that of several below the chart.
void ChartPlot::Put_Titles() {
    QCPLayoutGrid* all = plotLayout();
    QCPAxisRect* plane = axisRect();
    if (QCPLayout* holder = legend->layout()) holder->take(legend);
    all->take(plane);
    all->clear();
    all->simplify();

    const auto entries = std::count_if(look_.sets.begin(), look_.sets.end(), Has_Entry);
    const bool named = entries > 0, beside = entries == 1;
    legend->setVisible(named);
    legend->setFont(Sized_Font(look_.fonts[font_use::OtherTexts], 1));
    legend->setTextColor(kInk);
    if (!look_.GraphTitle.empty() || beside) {
        auto* heading = new QCPLayoutGrid;
        QFont font = Sized_Font(look_.fonts[font_use::GraphTitle], kTitleSize);
        font.setBold(true);
        auto* title = new QCPTextElement(this, Qt_Text(look_.GraphTitle), font);
        title->setTextColor(kInk);
        title->setLayer("legend");
        heading->addElement(0, 0, title);
        if (beside) heading->addElement(0, 1, legend);
        heading->setColumnStretchFactor(0, 1);
        if (beside) heading->setColumnStretchFactor(1, 0.001);
        all->addElement(0, 0, heading);
        all->setRowStretchFactor(0, 0.001);
    }
    all->addElement(all->rowCount(), 0, plane);
    if (named && !beside) {
        auto* below = new QCPLayoutGrid;
        all->addElement(all->rowCount(), 0, below);
        // Empty cells at both sides, once the layout knows its chart: it does not look for them before.
        below->expandTo(1, 3);
        below->addElement(0, 1, legend);
        below->setColumnStretchFactor(1, 0.001);
        all->setRowStretchFactor(all->rowCount() - 1, 0.001);
    } else if (!beside) {
        plane->insetLayout()->addElement(legend, Qt::AlignTop | Qt::AlignRight);
    }
}

void ChartPlot::Put_Axes() {
    const ChartFont& style = look_.fonts[font_use::OtherTexts];
    ChartFont plain = style;
    // Rows of bold numbers are hard to read.
    plain.FontStyle = 0;
    for (QCPAxis* axis : {xAxis, yAxis}) {
        axis->setLabelFont(Sized_Font(style, 1));
        axis->setTickLabelFont(Sized_Font(plain, 1));
    }
    xAxis->setLabel(Qt_Text(look_.BottomTitle));
    QStringList labels;
    for (const std::string& label : look_.LabelText) labels.append(Qt_Text(label));
    points_->Set_Labels(labels);
    points_->Set_Spacing(look_.TickEvery, look_.LabelEvery);
    xAxis->setSubTicks(look_.polar);
    xAxis->setTicker(look_.polar ? QSharedPointer<QCPAxisTicker>::create()
                                 : QSharedPointer<QCPAxisTicker>(points_));
}

void ChartPlot::Put_Grid() {
    const bool horizontal = look_.GridStyle == 1 || look_.GridStyle == 3;
    const bool vertical = look_.GridStyle == 2 || look_.GridStyle == 3;
    for (auto [axis, shown] : {std::pair(yAxis, horizontal), std::pair(xAxis, vertical)}) {
        axis->grid()->setPen(shown ? QPen(kGrid, kGridPen) : QPen(Qt::NoPen));
        axis->grid()->setZeroLinePen(Qt::NoPen);
    }
    // The axis about which values change their sign.
    yAxis->grid()->setZeroLinePen(QPen(kFrame, kGridPen));
    if (look_.polar) xAxis->grid()->setZeroLinePen(QPen(kFrame, kGridPen));
}

void ChartPlot::Put_Curves() {
    for (std::size_t set = 0; set < look_.sets.size(); ++set)
        if (look_.sets[set].filled) Put_Curve(set);
}

QPointF ChartPlot::Place(std::size_t set, std::size_t point) const {
    const ChartSet& curve = look_.sets.at(set);
    const double x = look_.polar ? double(curve.XPosData.at(point)) : double(point);
    return {x, double(curve.GraphData.at(point))};
}

void ChartPlot::Put_Curve(std::size_t set) {
    const ChartSet& points = look_.sets[set];
    const QPen pen = Curve_Pen(points, set);
    QCPAbstractPlottable& shown = look_.polar ? Put_Polar(set, pen) : Put_Graph(set, pen);
    shown.setName(Qt_Text(points.LegendText));
    if (points.LegendText.empty()) shown.removeFromLegend();
}

QCPAbstractPlottable& ChartPlot::Put_Polar(std::size_t set, const QPen& pen) {
    auto* curve = new QCPCurve(xAxis, yAxis);
    for (std::size_t point = 0; point < look_.sets[set].GraphData.size(); ++point)
        curve->addData(Place(set, point).x(), Place(set, point).y());
    curve->setPen(pen);
    curve->setScatterStyle(Dot(pen));
    return *curve;
}

QCPAbstractPlottable& ChartPlot::Put_Graph(std::size_t set, const QPen& pen) {
    const auto& values = look_.sets[set].GraphData;
    QCPGraph* graph = addGraph();
    for (std::size_t point = 0; point < values.size(); ++point)
        graph->addData(double(point), double(values[point]));
    graph->setPen(pen);
    // A lone point has no line to be seen by.
    if (values.size() == 1) graph->setScatterStyle(Dot(pen));
    if (Has_Fills(look_) && look_.sticks) Put_Sticks(*graph);
    if (Has_Fills(look_) && !look_.sticks) {
        QColor fill = pen.color();
        fill.setAlpha(kFillAlpha);
        graph->setBrush(fill);
        // The edge of a fill without its line, so that its colour is not all there is to tell it by.
        if (!Has_Lines(look_)) graph->setPen(Thin(pen));
    }
    return *graph;
}

/// A stick at each point of the graph, and the line through them where that is asked for.
void ChartPlot::Put_Sticks(QCPGraph& graph) {
    const QPen pen = graph.pen();
    if (Has_Lines(look_)) {
        QCPGraph* line = addGraph();
        line->setData(graph.data());
        line->setPen(Thin(pen));
        line->removeFromLegend();
    }
    graph.setLineStyle(QCPGraph::lsImpulse);
    graph.setScatterStyle(Dot(pen));
}

PlaneView ChartPlot::View() const {
    return {xAxis->range().lower, xAxis->range().upper, yAxis->range().lower, yAxis->range().upper};
}

bool ChartPlot::Shows_Whole() const {
    const auto near = [](double a, double b, double size) { return std::abs(a - b) <= 1e-9 * size; };
    const PlaneView view = View();
    const double width = whole_.x_high - whole_.x_low, height = whole_.y_high - whole_.y_low;
    return near(view.x_low, whole_.x_low, width) && near(view.x_high, whole_.x_high, width) &&
           near(view.y_low, whole_.y_low, height) && near(view.y_high, whole_.y_high, height);
}

void ChartPlot::Show_View(const PlaneView& view) {
    adjusting_ = true;
    xAxis->setRange(view.x_low, view.x_high);
    yAxis->setRange(view.y_low, view.y_high);
    adjusting_ = false;
}

void ChartPlot::Show_Whole() {
    Show_View(whole_);
}

/// A unit across is as long as one up.
void ChartPlot::Keep_Shape() {
    const QRect plane = axisRect()->rect();
    if (!look_.polar || plane.width() <= 0 || plane.height() <= 0) return;
    const QCPRange x = xAxis->range(), y = yAxis->range();
    const double unit = std::max(x.size() / plane.width(), y.size() / plane.height()) / 2;
    Show_View({x.center() - unit * plane.width(), x.center() + unit * plane.width(),
               y.center() - unit * plane.height(), y.center() + unit * plane.height()});
}

void ChartPlot::Fit(QSize size) {
    const QFontMetrics texts(legend->font());
    int widest = 1;
    for (const ChartSet& set : look_.sets)
        if (Has_Entry(set)) widest = std::max(widest, texts.horizontalAdvance(Qt_Text(set.LegendText)));
    const int item =
        widest + kLegendIcon.width() + legend->iconTextPadding() + legend->columnSpacing() + kGap;
    legend->setWrap(std::max(1, (size.width() - 2 * kGap) / item));
    legend->setFillOrder(QCPLegend::foColumnsFirst, true);

    const QFontMetrics numbers(xAxis->tickLabelFont());
    int label = 1;
    for (const QString& text : points_->Labels()) label = std::max(label, numbers.horizontalAdvance(text));
    const int axis = size.width() - numbers.horizontalAdvance("-0000.00") - 3 * kGap;
    points_->Set_Room(axis / (label + 2 * kGap));
    // As many numbers up the axis as stand well apart.
    yAxis->ticker()->setTickCount(std::clamp(size.height() / (4 * numbers.height()), 2, 7));
}

void ChartPlot::resizeEvent(QResizeEvent* event) {
    Fit(size());
    QCustomPlot::resizeEvent(event);
}

void ChartPlot::Paint(QCPPainter& painter, QSize size) {
    Fit(size);
    toPainter(&painter, size.width(), size.height());
    Fit(this->size());
}

}  // namespace kervol
