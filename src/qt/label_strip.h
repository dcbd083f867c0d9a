// SPDX-License-Identifier: GPL-3.0-or-later
// Labels along one side of a picture, each at its place.
#pragma once

#include <QWidget>
#include <vector>

class QLabel;

namespace kervol {

class LabelStrip : public QWidget {
  public:
    /// Labels below each other end at the strip's right edge, those side by side stand in its middle.
    explicit LabelStrip(Qt::Orientation orientation);

    /// `share` says where between the strip's ends the label's middle stands.
    void Add(QLabel* label, double share);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    struct Place {
        QLabel* label;
        double share;
    };

    void Put_Labels();

    Qt::Orientation orientation_;
    std::vector<Place> places_;
};

}  // namespace kervol
