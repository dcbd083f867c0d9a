// SPDX-License-Identifier: GPL-3.0-or-later
// Holds off what a person does while the animation runs, and paces it.
#pragma once

#include <QElapsedTimer>
#include <QObject>

class QWidget;

namespace kervol {

/// From its making to its end all that a person can do with any window is ask for the end: by Escape, by the
/// close box, or by the button that started the run.
class RunGate : public QObject {
  public:
    /// `picture` shows the run, `button` started it.
    RunGate(QWidget& picture, const QWidget& button);
    ~RunGate() override;

    /// Paints the picture and lets the time pass in which it is to stand, from the end of the time before.
    /// What painting takes is part of it.
    void Hold(double milliseconds);
    void Ask_End() { end_asked_ = true; }
    bool Is_End_Asked() const { return end_asked_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Let_Pass(double milliseconds);

    QWidget& picture_;
    const QWidget& button_;
    QElapsedTimer clock_;
    double due_ = 0;  ///< milliseconds on the clock at which the next position may come
    bool end_asked_ = false;
};

}  // namespace kervol
