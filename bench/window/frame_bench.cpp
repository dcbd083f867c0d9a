// SPDX-License-Identifier: GPL-3.0-or-later
// One frame of the animation, 800 by 800, both coupler paths of 361 points and one position: as the program
// paints it, beside the very same shapes drawn straight with the toolkit's painter on a widget of its own.
#include <QApplication>
#include <QPainter>
#include <QVBoxLayout>
#include <memory>

#include "animation/linkage_drawing.h"
#include "animation/running.h"
#include "animation/surroundings.h"
#include "kinematics/step_count.h"
#include "kinematics/sweep.h"
#include "qt/picture_widget.h"
#include "qt/qt_port.h"
#include "screens/launch_screens.h"
#include "startup/launch.h"

#include <benchmark/benchmark.h>

namespace kervol::bench {
namespace {

constexpr int kSide = 800;
constexpr double kPenWidth = 1.6;
constexpr std::int16_t kRow = 100;

/// The Animation screen with the Watt example in 361 rows, its picture in that size.
struct AnimateWindow {
    AnimateWindow() {
        port.Attach(screens);
        Start_Fresh(program);
        Wire_Screens(screens);
        program.model.ThetaStepDeg = 1;
        Count_Angle_Steps(program);
        Answer response = Answer::None;
        Run_Sweep(program, 3, response);
        program.model.AnimDelay = 0;
        form = &port.Form(ScreenId::frm_Animate);
        Activate_Screen(screens, ScreenId::frm_Animate);
        screens.frm_Animate.hsc_speed.value = 32767;
        program.model.ShowPoints = "N";
        picture = dynamic_cast<PictureWidget*>(form->findChild<QWidget*>("Picture1"));
        picture->setFixedSize(kSide, kSide);
        form->show();
        Begin_Cycle();
        QApplication::processEvents();
    }

    PictureList& List() { return dynamic_cast<PictureList&>(*screens.frm_Animate.Picture1); }

    /// What stands while a cycle goes on.
    void Begin_Cycle() {
        Animate_Setup(program, screens.frm_Animate, screens.frm_Animate);
        List().Clear();
        Drawpivots(program, List());
        Axes(program, List());
        Draw_Coupler_Curves(program, List());
    }
    void Draw_Position() {
        program.animation.LinkColour = program.animation.colours.magenta;
        Drawsub6(program, kRow, List(), NumLinks);
    }

    QtPort port;
    Program program{port};
    Screens screens{program};
    FormWindow* form = nullptr;
    PictureWidget* picture = nullptr;
};

/// The strokes of a list as the painter takes them: runs of one colour, in pixels.
struct StraightRun {
    QPen pen;
    QVector<QLineF> lines;
    QVector<QRectF> circles;
    QVector<QPointF> points;
};

/// Paints shapes that were brought into its pixels beforehand.
class StraightWidget : public QWidget {
  public:
    StraightWidget(const PictureList& list, const PictureWidget& picture) {
        setAttribute(Qt::WA_OpaquePaintEvent);
        const double scale = kSide / (list.Window().right - list.Window().left);
        for (const Stroke& stroke : list.Strokes()) Take(stroke, picture, scale);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const StraightRun& run : runs_) {
            painter.setPen(run.pen);
            if (!run.lines.isEmpty()) painter.drawLines(run.lines);
            for (const QRectF& circle : run.circles) painter.drawEllipse(circle);
            if (run.points.isEmpty()) continue;
            painter.setPen(Qt::NoPen);
            painter.setBrush(run.pen.color());
            for (const QPointF& point : run.points) painter.drawEllipse(point, kPenWidth, kPenWidth);
            painter.setBrush(Qt::NoBrush);
        }
    }

  private:
    void Take(const Stroke& stroke, const PictureWidget& picture, double scale) {
        const Shape& shape = stroke.shape;
        const QColor colour(stroke.colour.red, stroke.colour.green, stroke.colour.blue);
        if (runs_.isEmpty() || kind_ != shape.kind || runs_.last().pen.color() != colour)
            runs_.append({QPen(colour, kPenWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin), {}, {}, {}});
        kind_ = shape.kind;
        const QPointF at = picture.To_Widget(shape.x1, shape.y1);
        const double radius = shape.x2 * scale;
        if (kind_ == Shape::Kind::Line)
            runs_.last().lines.append(QLineF(at, picture.To_Widget(shape.x2, shape.y2)));
        if (kind_ == Shape::Kind::Circle)
            runs_.last().circles.append(QRectF(at.x() - radius, at.y() - radius, 2 * radius, 2 * radius));
        if (kind_ == Shape::Kind::Point) runs_.last().points.append(at);
    }

    QVector<StraightRun> runs_;
    Shape::Kind kind_ = Shape::Kind::Line;
};

/// In a window like that of the picture, so that both paint through the same layers.
struct StraightWindow {
    explicit StraightWindow(AnimateWindow& window)
        : widget(new StraightWidget(window.List(), *window.picture)) {
        auto* column = new QVBoxLayout(&form);
        column->addWidget(widget);
        widget->setFixedSize(kSide, kSide);
        form.resize(window.form->size());
        form.show();
        QApplication::processEvents();
    }

    QWidget form;
    StraightWidget* widget;
};

void Frame_Of_The_Picture(benchmark::State& state) {
    const auto window = std::make_unique<AnimateWindow>();
    window->Draw_Position();
    for (auto _ : state) window->picture->repaint();
    state.counters["shapes"] = static_cast<double>(window->List().Strokes().size());
}

void Frame_Drawn_Straight(benchmark::State& state) {
    const auto window = std::make_unique<AnimateWindow>();
    window->Draw_Position();
    StraightWindow straight(*window);
    if (straight.widget->grab().toImage() != window->picture->grab().toImage())
        return state.SkipWithError("the two pictures differ");
    for (auto _ : state) straight.widget->repaint();
}

/// A position of a run: drawn into the list, shown, held for no time, taken away again.
void Position_Of_A_Run(benchmark::State& state) {
    const auto window = std::make_unique<AnimateWindow>();
    window->port.Set_Running(true);
    for (auto _ : state) Drawone(window->program, kRow, window->List());
    window->port.Set_Running(false);
}

/// The same without the frame.
void Position_Into_The_List(benchmark::State& state) {
    const auto window = std::make_unique<AnimateWindow>();
    const AnimationState& animation = window->program.animation;
    for (auto _ : state) {
        for (const Colour colour : {animation.colours.magenta, animation.colours.white}) {
            window->program.animation.LinkColour = colour;
            Drawsub6(window->program, kRow, window->List(), NumLinks);
        }
        Draw_Coupler_Curves(window->program, window->List());
        Drawpivots(window->program, window->List());
    }
}

// Under a load of others: --benchmark_repetitions=9 --benchmark_enable_random_interleaving=true, medians.
BENCHMARK(Frame_Of_The_Picture)->Unit(benchmark::kMicrosecond);
BENCHMARK(Frame_Drawn_Straight)->Unit(benchmark::kMicrosecond);
BENCHMARK(Position_Of_A_Run)->Unit(benchmark::kMicrosecond);
BENCHMARK(Position_Into_The_List)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kervol::bench
