// SPDX-License-Identifier: GPL-3.0-or-later
// Shows a picture list in smooth lines of one width at every size: its world window in true shape as large as
// it fits, or filling the widget.
#pragma once

#include <QWidget>

#include "core/picture_list.h"
#include "core/sheet.h"

namespace kervol {

class PictureWidget : public QWidget {
  public:
    enum class Fit { TrueShape, Filling };

    /// The list outlives the widget.
    explicit PictureWidget(PictureList& list, Fit fit = Fit::TrueShape);
    ~PictureWidget() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Where the world window stands in the widget.
    QRectF Window_Place() const;
    QPointF To_Widget(double x, double y) const;
    const PictureList& List() const { return list_; }
    /// The picture alone, as large as it stands here.
    Sheet Shown_Sheet() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    PictureList& list_;
    Fit fit_;
};

}  // namespace kervol
