// SPDX-License-Identifier: GPL-3.0-or-later
// Shows a picture list: the world window as the largest square that fits, in smooth lines of one width at
// every size.
#pragma once

#include <QWidget>

#include "qt/picture_list.h"

namespace kervol {

class PictureWidget : public QWidget {
  public:
    /// The list outlives the widget.
    explicit PictureWidget(PictureList& list, QWidget* parent = nullptr);
    ~PictureWidget() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Where the world window stands in the widget.
    QRectF Window_Square() const;
    QPointF To_Widget(double x, double y) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    PictureList& list_;
};

}  // namespace kervol
