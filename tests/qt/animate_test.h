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
    std::vector<int> positions;  ///< the rows whose crank stood
    QSize size;

    int Front() const { return positions.empty() ? -1 : positions.back(); }
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
        seen.clear();
        Click(form, "cmd_Run");
    }
    /// While row `row` is held for the first time.
    void At_Row(int row, std::function<void()> act) { at_row_[row] = std::move(act); }

    /// The rows in the order in which they were first seen in front.
    std::vector<int> Rows_Seen() const {
        std::vector<int> rows;
        for (const SeenPaint& paint : seen)
            if (paint.Front() >= 0 && (rows.empty() || rows.back() != paint.Front()))
                rows.push_back(paint.Front());
        return rows;
    }
    static std::vector<int> Rows_To(int last) {
        std::vector<int> rows;
        for (int row = 0; row <= last; ++row) rows.push_back(row);
        return rows;
    }

    /// The rows whose crank stands now, in the order of drawing. Row 0 and the last are one direction: while
    /// both fit it is told as the last if anything else was in front before.
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
            const int row = static_cast<int>(std::lround(degrees / kDegreesARow)) % kLast;
            rows.push_back(row == 0 && passed_ ? kLast : row);
            passed_ = row != 0 || passed_;
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
        passed_ = !seen.empty() && seen.back().Front() > 0;
        seen.push_back({Standing(), picture.size()});
        const auto due = at_row_.find(seen.back().Front());
        if (due == at_row_.end()) return;
        QTimer::singleShot(0, due->second);
        at_row_.erase(due);
    }

    std::map<int, std::function<void()>> at_row_;
    bool passed_ = false;  ///< a row behind the first was in front
};

}  // namespace kervol
