// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of tests on the Animation screen's window: the Watt example, swept, and a watch on what stands on
// the picture each time it is painted.
#pragma once

#include <QEvent>
#include <QScrollBar>
#include <cmath>
#include <map>
#include <vector>

#include "kinematics/sweep.h"
#include "qt/picture_widget.h"
#include "qt/window_test.h"

namespace kervol {

/// What the picture showed when it was painted.
struct SeenPaint {
    std::size_t cranks;  ///< how many positions stood
    int row;             ///< of the one drawn last, -1 for none
    QSize size;
};

class AnimateTest : public WindowTest {
  protected:
    static constexpr Colour kMagenta = {255, 0, 255};
    static constexpr int kLast = 36;
    /// By hand: the example's crank is 2 long and turns by 10 degrees a row.
    static constexpr double kCrank = 2, kDegreesARow = 10;

    AnimateTest() {
        Answer response = Answer::None;
        Run_Sweep(*program, 3, response);
        program->model.DataCalculated = true;
        program->model.AnimWait = 0;
    }

    /// Runs `act` on the open Animation screen.
    void Open(const std::function<void(FormWindow& form)>& act) {
        In(ScreenId::frm_Animate, [&](FormWindow& form) {
            form.resize(1100, 740);
            PaintWatch watch(*this, Find<QWidget>(form, "Picture1"));
            act(form);
        });
    }

    PictureList& List() { return dynamic_cast<PictureList&>(*screens.frm_Animate.Picture1); }

    /// Clicks the Run button; returns when the run is over. What was painted since the click is in `seen`.
    void Run(FormWindow& form) {
        QApplication::processEvents();
        seen.clear();
        Click(form, "cmd_Run");
    }
    /// While row `row` is held for the first time.
    void At_Row(int row, std::function<void()> act) { at_row_[row] = std::move(act); }

    /// The rows in the order in which they were painted. The last row looks like the first: between two
    /// cycles they count as one.
    std::vector<int> Rows_Seen() const {
        std::vector<int> rows;
        for (const SeenPaint& paint : seen)
            if (paint.row >= 0 && (rows.empty() || rows.back() != paint.row)) rows.push_back(paint.row);
        return rows;
    }
    static std::vector<int> Rows_To(int last) {
        std::vector<int> rows;
        for (int row = 0; row <= last; ++row) rows.push_back(row);
        return rows;
    }

    /// The rows whose crank stands now, in the order of drawing; the last row is told as 0.
    std::vector<int> Standing() {
        std::vector<int> rows;
        const double y0 = program->animation.PlotY0;
        for (const Stroke& stroke : List().Strokes()) {
            const Shape& line = stroke.shape;
            if (line.kind != Shape::Kind::Line || stroke.colour != kMagenta) continue;
            if (std::hypot(line.x1, y0 - line.y1) > 1e-4) continue;
            const double x = line.x2, y = y0 - line.y2;
            EXPECT_NEAR(std::hypot(x, y), kCrank, 1e-4);
            const double degrees = std::atan2(y, x) * 180 / 3.14159265358979 + 360;
            rows.push_back(static_cast<int>(std::lround(degrees / kDegreesARow)) % kLast);
        }
        return rows;
    }

    std::vector<SeenPaint> seen;

  private:
    class PaintWatch : public QObject {
      public:
        PaintWatch(AnimateTest& test, QWidget& picture) : test_(test), picture_(picture) {
            picture_.installEventFilter(this);
        }

      protected:
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint) test_.Enter(picture_);
            return false;
        }

      private:
        AnimateTest& test_;
        QWidget& picture_;
    };

    void Enter(const QWidget& picture) {
        const std::vector<int> rows = Standing();
        int row = rows.empty() ? -1 : rows.back();
        if (row == 0 && !seen.empty() && seen.back().row >= kLast - 1) row = kLast;
        seen.push_back({rows.size(), row, picture.size()});
        const auto due = at_row_.find(row);
        if (due == at_row_.end()) return;
        QTimer::singleShot(0, due->second);
        at_row_.erase(due);
    }

    std::map<int, std::function<void()>> at_row_;
};

}  // namespace kervol
