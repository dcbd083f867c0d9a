// SPDX-License-Identifier: GPL-3.0-or-later
// Small pictures of the kinds of plots, to tell them apart and to point at.
#pragma once

#include <QWidget>
#include <functional>

namespace kervol {

class PlotKindPicture : public QWidget {
  public:
    /// Picture 0 to 7; 2 i and 2 i + 1 show kind i.
    explicit PlotKindPicture(int picture, QWidget* parent = nullptr);

    std::function<void()> clicked, double_clicked;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    int picture_;
};

}  // namespace kervol
