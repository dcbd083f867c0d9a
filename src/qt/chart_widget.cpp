// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/chart_widget.h"

#include <QApplication>
#include <algorithm>
#include <cmath>

#include "core/chart_values.h"
#include "core/number_text.h"
#include "qt/picture_menu.h"
#include "rendering/qt_text.h"

namespace kervol {
namespace {

constexpr double kReach = 24;  // logical pixels from the pointer to the point that it reads
constexpr double kMarkRadius = 4;
constexpr double kKeyZoom = 0.8;
const QColor kPaper(255, 255, 225);

}  // namespace

ChartWidget::ChartWidget(QWidget* parent)
    : ChartPlot(parent), mark_(new QCPItemEllipse(this)), words_(new QCPItemText(this)) {
    setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    for (QCPItemPosition* corner : {mark_->topLeft, mark_->bottomRight})
        corner->setType(QCPItemPosition::ptAbsolute);
    for (QCPLayerable* part : std::initializer_list<QCPLayerable*>{mark_, words_}) part->setLayer("overlay");
    words_->position->setType(QCPItemPosition::ptAbsolute);
    words_->setPadding({5, 3, 5, 3});
    words_->setBrush(kPaper);
    words_->setPen(QPen(Qt::darkGray));
    words_->setColor(Qt::black);
    words_->setClipToAxisRect(false);
    mark_->setBrush(Qt::white);
    Show_Reading({});
    Offer_Picture_Menu(*this, {.sheet = [this] { return Shown_Sheet(); },
                               .values = [this] { return Chart_Values(Look()); }});
}

Sheet ChartWidget::Shown_Sheet() const {
    const double width = this->width(), height = this->height();
    Sheet sheet{.width = width, .height = height};
    const std::optional<PlaneView> part = Shows_Whole() ? std::nullopt : std::optional(View());
    sheet.charts.push_back({.box = {0, 0, width, height}, .look = Look(), .view = part});
    return sheet;
}

void ChartWidget::Show(const ChartLook& look) {
    if (look == Look()) return;
    Show_Reading({});
    ChartPlot::Show(look);
    QStringList names;
    for (const ChartSet& set : look.sets)
        if (!set.LegendText.empty()) names.append(Qt_Text(set.LegendText));
    setAccessibleDescription(QString("%1 %2: %3")
                                 .arg(Qt_Text(look.GraphTitle), Qt_Text(look.BottomTitle), names.join(", "))
                                 .trimmed());
}

std::vector<std::size_t> ChartWidget::Drawn_Sets() const {
    std::vector<std::size_t> drawn;
    for (std::size_t set = 0; set < Look().sets.size(); ++set)
        if (Look().sets[set].filled) drawn.push_back(set);
    return drawn;
}

std::optional<ChartWidget::Reading> ChartWidget::Nearest(QPointF place) const {
    if (!axisRect()->rect().contains(place.toPoint())) return {};
    std::optional<Reading> nearest;
    double least = kReach;
    for (const std::size_t set : Drawn_Sets()) {
        for (std::size_t point = 0; point < Look().sets[set].GraphData.size(); ++point) {
            const QPointF at = Place(set, point);
            const double away =
                std::hypot(xAxis->coordToPixel(at.x()) - place.x(), yAxis->coordToPixel(at.y()) - place.y());
            if (away >= least) continue;
            least = away;
            nearest = Reading{set, point};
        }
    }
    return nearest;
}

QString ChartWidget::Words(const Reading& reading) const {
    const ChartSet& set = Look().sets.at(reading.set);
    const QString label = Qt_Text(Look().LabelText.at(reading.point));
    QString value = Qt_Text(Plain_Number(set.GraphData.at(reading.point)));
    if (Look().polar) value = Qt_Text(Plain_Number(set.XPosData.at(reading.point))) + ", " + value;
    const QString name = Qt_Text(set.LegendText).simplified();
    return (name.isEmpty() ? QString() : name + "\n") + (label.isEmpty() ? QString() : label + ":  ") + value;
}

void ChartWidget::Show_Reading(std::optional<Reading> reading) {
    if (reading && reading == reading_) return;
    const bool was = reading_.has_value();
    reading_ = reading;
    mark_->setVisible(reading.has_value());
    words_->setVisible(reading.has_value());
    if (reading) {
        const QPointF at = Place(reading->set, reading->point);
        const QPointF pixel(xAxis->coordToPixel(at.x()), yAxis->coordToPixel(at.y()));
        const QPointF reach(kMarkRadius, kMarkRadius);
        mark_->topLeft->setCoords(pixel - reach);
        mark_->bottomRight->setCoords(pixel + reach);
        mark_->setPen(QPen(Curve_Colour(reading->set), 2));
        words_->setText(Words(*reading));
        words_->setFont(legend->font());
        // Towards the middle, where there is room for it.
        const QPointF middle = axisRect()->rect().center();
        const bool right = pixel.x() < middle.x(), below = pixel.y() < middle.y();
        words_->setPositionAlignment((right ? Qt::AlignLeft : Qt::AlignRight) |
                                     (below ? Qt::AlignTop : Qt::AlignBottom));
        words_->setTextAlignment(Qt::AlignLeft);
        words_->position->setCoords(pixel + QPointF(right ? 12 : -12, below ? 8 : -8));
    }
    if (was || reading) replot(rpQueuedReplot);
}

void ChartWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) pressed_ = event->pos();
    ChartPlot::mousePressEvent(event);
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
    ChartPlot::mouseMoveEvent(event);
    if (pressed_ && (event->pos() - *pressed_).manhattanLength() >= QApplication::startDragDistance())
        pressed_.reset();
    Show_Reading(event->buttons() == Qt::NoButton ? Nearest(event->position()) : std::nullopt);
}

void ChartWidget::mouseReleaseEvent(QMouseEvent* event) {
    ChartPlot::mouseReleaseEvent(event);
    // A drag moves the view and is no click.
    const bool click = event->button() == Qt::LeftButton && pressed_;
    pressed_.reset();
    if (click && clicked) clicked();
}

void ChartWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    ChartPlot::mouseDoubleClickEvent(event);
    Reset_View();
}

void ChartWidget::Zoom(double factor) {
    Show_Reading({});
    for (QCPAxis* axis : {xAxis, yAxis}) axis->scaleRange(factor);
    replot(rpQueuedReplot);
}

void ChartWidget::Reset_View() {
    Show_Reading({});
    Show_Whole();
    replot(rpQueuedReplot);
}

void ChartWidget::Move_Reading(int points, int sets) {
    const std::vector<std::size_t> drawn = Drawn_Sets();
    if (drawn.empty()) return;
    Reading next = reading_.value_or(Reading{drawn.front(), 0});
    if (reading_) {
        const int last = static_cast<int>(Look().LabelText.size()) - 1,
                  count = static_cast<int>(drawn.size());
        const auto place = std::find(drawn.begin(), drawn.end(), next.set) - drawn.begin();
        next.point = static_cast<std::size_t>(std::clamp(static_cast<int>(next.point) + points, 0, last));
        next.set = drawn[static_cast<std::size_t>((static_cast<int>(place) + sets + count) % count)];
    }
    const QPointF at = Place(next.set, next.point);
    if (!xAxis->range().contains(at.x()) || !yAxis->range().contains(at.y())) Reset_View();
    Show_Reading(next);
    setAccessibleDescription(Words(next));
}

void ChartWidget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            return Move_Reading(-1, 0);
        case Qt::Key_Right:
            return Move_Reading(1, 0);
        case Qt::Key_Up:
            return Move_Reading(0, -1);
        case Qt::Key_Down:
            return Move_Reading(0, 1);
        case Qt::Key_Plus:
            return Zoom(kKeyZoom);
        case Qt::Key_Minus:
            return Zoom(1 / kKeyZoom);
        case Qt::Key_0:
            return Reset_View();
        default:
            ChartPlot::keyPressEvent(event);
    }
}

void ChartWidget::wheelEvent(QWheelEvent* event) {
    Show_Reading({});
    ChartPlot::wheelEvent(event);
}

void ChartWidget::resizeEvent(QResizeEvent* event) {
    Show_Reading({});
    ChartPlot::resizeEvent(event);
}

void ChartWidget::paintEvent(QPaintEvent* event) {
    QCPPainter painter(this);
    // On paper as lines and texts, not as the picture that stands on the screen.
    if (painter.paintEngine()->type() == QPaintEngine::Pdf) return Paint(painter, size());
    painter.end();
    ChartPlot::paintEvent(event);
    Mark_Focus(*this);
}

void ChartWidget::leaveEvent(QEvent* event) {
    ChartPlot::leaveEvent(event);
    Show_Reading({});
}

void ChartWidget::focusOutEvent(QFocusEvent* event) {
    ChartPlot::focusOutEvent(event);
    Show_Reading({});
}

}  // namespace kervol
