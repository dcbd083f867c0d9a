// SPDX-License-Identifier: GPL-3.0-or-later
// A figure of one position of a linkage, with the letters of its points.
#pragma once

#include <QPointF>
#include <QWidget>
#include <optional>
#include <vector>

#include "core/model.h"

namespace kervol {

/// Points of one position in the user frame. `joint56` and `coupler2` are E and F of a Watt chain, D and F of
/// a Stephenson chain, whose link 5 starts at C.
struct SketchPosition {
    bool watt = true;
    QPointF O2, A, B, C, O4, D, joint56, coupler2, O6;
};

/// The model at a crank angle in degrees, user frame; nothing where it cannot be assembled.
std::optional<SketchPosition> Solve_Position(LinkageModel model, double degrees);

/// The model at the start of its range, else at the first of 36 angles that it can take.
std::optional<SketchPosition> Find_Position(const LinkageModel& model);

/// A well-spread example of the chain: "W" or "S".
SketchPosition Nomenclature(const std::string& chain);

class LinkageSketch : public QWidget {
  public:
    LinkageSketch(QSize size, QWidget* parent = nullptr);

    void Show_Position(const SketchPosition& position);
    /// Where no position is found, words say what to do.
    void Show_Model(const LinkageModel& model);
    /// Writes the number of each moving link, 2 to 6, in its middle.
    void Number_Links() { numbers_links_ = true; }

    QSize sizeHint() const override { return size_; }
    QSize minimumSizeHint() const override { return size_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Tell(const QString& description);

    QSize size_;
    std::optional<SketchPosition> position_;
    QString words_;  ///< in the place of a position
    bool numbers_links_ = false;
};

}  // namespace kervol
