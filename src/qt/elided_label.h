// SPDX-License-Identifier: GPL-3.0-or-later
// A text that a person wrote and that may be of any length: it never widens its window.
#pragma once

#include <QLabel>

namespace kervol {

/// Lines that don't fit end with an ellipsis; the whole text stands in the tip then, and always in `text`.
class ElidedLabel : public QLabel {
  public:
    /// Asks for room for so many letters of a line at most.
    explicit ElidedLabel(int letters, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    /// What is painted.
    QString Shown() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    int letters_;
};

}  // namespace kervol
