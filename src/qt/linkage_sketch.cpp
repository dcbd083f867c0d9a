// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/linkage_sketch.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <utility>

#include "core/arithmetic.h"
#include "core/fault.h"
#include "core/geometry.h"
#include "kinematics/examples.h"
#include "kinematics/stage1.h"
#include "kinematics/stage2.h"

namespace kervol {
namespace {

constexpr int kLetterRoom = 32;  ///< logical pixels around the figure
constexpr double kPinRadius = 3.5;
/// Round a letter, two pixels away.
constexpr std::pair<double, double> kRim[] = {{2, 0},  {1.4, 1.4},   {0, 2},  {-1.4, 1.4},
                                              {-2, 0}, {-1.4, -1.4}, {0, -2}, {1.4, -1.4}};

QPointF Turned(Vec point, double angle) {
    return {point.x * std::cos(angle) - point.y * std::sin(angle),
            point.x * std::sin(angle) + point.y * std::cos(angle)};
}

struct Letter {
    QString text;
    QPointF at;
};

std::vector<Letter> Letters(const SketchPosition& p) {
    std::vector<Letter> letters = {{"O2", p.O2}, {"A", p.A},   {"B", p.B},       {"C", p.C},
                                   {"O4", p.O4}, {"O6", p.O6}, {"F", p.coupler2}};
    if (p.watt) letters.push_back({"D", p.D});
    letters.push_back({p.watt ? "E" : "D", p.joint56});
    return letters;
}

std::vector<QPolygonF> Links(const SketchPosition& p) {
    const QPointF start5 = p.watt ? p.D : p.C;
    return {QPolygonF({p.O2, p.A}), QPolygonF({p.A, p.B, p.C}),
            p.watt ? QPolygonF({p.O4, p.B, p.D}) : QPolygonF({p.O4, p.B}),
            QPolygonF({start5, p.joint56, p.coupler2}), QPolygonF({p.O6, p.joint56})};
}

/// The whole figure, centred in a rectangle, y up.
QTransform Fitted(const std::vector<Letter>& points, const QRectF& room) {
    QPolygonF all;
    for (const Letter& point : points) all.append(point.at);
    const QRectF box = all.boundingRect();
    const double scale =
        std::min(room.width() / std::max(box.width(), 1e-9), room.height() / std::max(box.height(), 1e-9));
    QTransform to_widget;
    to_widget.translate(room.center().x(), room.center().y());
    to_widget.scale(scale, -scale);
    to_widget.translate(-box.center().x(), -box.center().y());
    return to_widget;
}

/// A fixed pivot: a triangle standing on a hatched line.
void Paint_Ground(QPainter& painter, QPointF at) {
    const double half = 2 * kPinRadius, depth = 3.2 * kPinRadius;
    painter.drawPolygon(QPolygonF({at, at + QPointF(-half, depth), at + QPointF(half, depth)}));
    for (int i = -1; i <= 2; ++i)
        painter.drawLine(at + QPointF(i * half / 1.5, depth),
                         at + QPointF((i - 1) * half / 1.5, depth + half / 1.5));
}

/// The direction in which a letter stays clear of the figure: away from its nearest neighbours.
QPointF Away(const std::vector<Letter>& letters, std::size_t self) {
    QPointF push(0, -1e-3);
    for (std::size_t i = 0; i < letters.size(); ++i) {
        const QPointF apart = letters[self].at - letters[i].at;
        const double square = QPointF::dotProduct(apart, apart);
        if (i != self && square > 1) push += apart / square;
    }
    return push / std::hypot(push.x(), push.y());
}

/// Points that fall together share one place: "D, F".
std::vector<Letter> Merged(const std::vector<Letter>& letters) {
    std::vector<Letter> merged;
    for (const Letter& letter : letters) {
        const auto same = std::find_if(merged.begin(), merged.end(), [&](const Letter& other) {
            return (letter.at - other.at).manhattanLength() < 2 * kPinRadius;
        });
        if (same == merged.end())
            merged.push_back(letter);
        else
            same->text += ", " + letter.text;
    }
    return merged;
}

/// Beside its triangle for a fixed pivot.
QPointF Centre_Of_Letter(const std::vector<Letter>& letters, std::size_t self) {
    const QPointF away = Away(letters, self);
    const Letter& letter = letters[self];
    if (letter.text.startsWith('O')) return letter.at + QPointF(away.x() < 0 ? -20 : 20, 2.5 * kPinRadius);
    return letter.at + away * 16;
}

/// With a rim in the colour of the ground, so that it can be read where it crosses a link. Glyphs are drawn
/// eight times round their place, since stroking their outlines takes a fifth of the picture's time.
void Paint_Letter(QPainter& painter, const QPalette& palette, QPointF centre, const QString& text) {
    const QPointF start = centre - QFontMetricsF(painter.font()).tightBoundingRect(text).center();
    painter.setPen(palette.color(QPalette::Window));
    for (const auto& [x, y] : kRim) painter.drawText(start + QPointF(x, y), text);
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawText(start, text);
}

/// For those who cannot see the figure: the chain, and where its points stand.
QString In_Words(const SketchPosition& position) {
    QStringList places;
    for (const Letter& letter : Letters(position))
        places.append(QString("%1 (%2, %3)")
                          .arg(letter.text, QString::number(letter.at.x(), 'g', 4),
                               QString::number(letter.at.y(), 'g', 4)));
    return (position.watt ? "A Watt chain: " : "A Stephenson chain: ") + places.join(", ");
}

void Paint_Link_Numbers(QPainter& painter, const QPalette& palette, const std::vector<QPolygonF>& links) {
    int number = 2;
    for (const QPolygonF& link : links) {
        QPointF sum;
        for (const QPointF& point : link) sum += point;
        Paint_Letter(painter, palette, sum / static_cast<double>(link.size()), QString::number(number++));
    }
}

}  // namespace

std::optional<SketchPosition> Solve_Position(LinkageModel model, double degrees) {
    // A model in the making may have a zero length: that is no position, not a fault to report.
    try {
        const double ground = model.GroundAngleDeg * RadiansPerDegree;
        model.Theta2Rad = Single(degrees * RadiansPerDegree - ground);
        Derive_Geometry(model);
        const auto stage1 = Solve_Stage1(model);
        if (!stage1) return std::nullopt;
        SketchPosition position;
        position.watt = model.LinkageType == "W";
        const auto stage2 = position.watt ? Solve_Watt(model, *stage1) : Solve_Stephenson(model, *stage1);
        if (!stage2) return std::nullopt;
        position.A = Turned(stage1->A.position, ground);
        position.B = Turned(stage1->B.position, ground);
        position.C = Turned(stage1->C.position, ground);
        position.O4 = Turned({model.Link1, 0}, ground);
        position.D = Turned(stage2->start.position, ground);
        position.joint56 = Turned(stage2->end.position, ground);
        position.coupler2 = Turned(stage2->coupler2.position, ground);
        position.O6 = Turned({double(model.Link1) + model.O4O6X, model.O4O6Y}, ground);
        return position;
    } catch (const Fault&) {
        return std::nullopt;
    }
}

std::optional<SketchPosition> Find_Position(const LinkageModel& model) {
    auto position = Solve_Position(model, model.ThetaMinDeg);
    for (int degrees = 0; !position && degrees < 360; degrees += 10)
        position = Solve_Position(model, degrees);
    return position;
}

SketchPosition Nomenclature(const std::string& chain) {
    LinkageModel model;
    if (chain == "W") {
        Load_Example(model, *Find_Example("watt"));
        return Solve_Position(model, 60).value_or(SketchPosition());
    }
    // The examples of this chain have points that almost fall together; these are moved apart.
    Load_Example(model, *Find_Example("double-dwell"));
    model.CouplerAC = 11;
    Set_Angle(12, model.Delta3, model.Delta3Text);
    model.Coupler2Length = 4.5F;
    Set_Angle(50, model.Delta5, model.Delta5Text);
    model.Link5 = 6.5F;
    model.Link6 = 6;
    model.O6X = model.O6LocalX = 15;
    model.O6Y = model.O6LocalY = 2;
    model.OpenSign2 = -1;
    return Solve_Position(model, 60).value_or(SketchPosition());
}

LinkageSketch::LinkageSketch(QSize size, QWidget* parent) : QWidget(parent), size_(size) {}

void LinkageSketch::Tell(const QString& description) {
    if (accessibleDescription() != description) setAccessibleDescription(description);
    update();
}

void LinkageSketch::Show_Position(const SketchPosition& position) {
    position_ = position;
    Tell(In_Words(position));
}

void LinkageSketch::Show_Model(const LinkageModel& model) {
    if (const auto position = Find_Position(model)) return Show_Position(*position);
    position_.reset();
    const bool is_empty = !(std::abs(model.Link2) > 0);
    words_ = is_empty ? "No linkage yet.\nEnter one under Input, take an example, or open a file."
                      : "No crank angle was found at which these links meet.\n"
                        "Change lengths or pivots under Input.";
    Tell(words_);
}

void LinkageSketch::paintEvent(QPaintEvent*) {
    if (!position_) {
        QPainter(this).drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, words_);
        return;
    }
    std::vector<Letter> letters = Letters(*position_);
    const QTransform to_widget =
        Fitted(letters, QRectF(rect()).adjusted(kLetterRoom, kLetterRoom, -kLetterRoom, -kLetterRoom));
    for (Letter& letter : letters) letter.at = to_widget.map(letter.at);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::WindowText);
    QColor body = palette().color(QPalette::Highlight);
    painter.setPen(QPen(ink, 1.2));
    painter.setBrush(Qt::NoBrush);
    for (const QPointF pivot : {position_->O2, position_->O4, position_->O6})
        Paint_Ground(painter, to_widget.map(pivot));
    painter.setPen(QPen(body, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    body.setAlpha(48);
    painter.setBrush(body);
    std::vector<QPolygonF> links = Links(*position_);
    for (QPolygonF& link : links) {
        link = to_widget.map(link);
        if (link.size() == 2)
            painter.drawPolyline(link);
        else
            painter.drawPolygon(link);
    }
    painter.setPen(QPen(ink, 1.2));
    painter.setBrush(palette().color(QPalette::Window));
    for (const Letter& letter : letters) painter.drawEllipse(letter.at, kPinRadius, kPinRadius);
    if (numbers_links_) Paint_Link_Numbers(painter, palette(), links);
    letters = Merged(letters);
    for (std::size_t i = 0; i < letters.size(); ++i)
        Paint_Letter(painter, palette(), Centre_Of_Letter(letters, i), letters[i].text);
}

}  // namespace kervol
