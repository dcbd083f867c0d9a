// SPDX-License-Identifier: GPL-3.0-or-later
// A key that two menus of a bar and a button share.
#pragma once

#include <QMenuBar>
#include <QPushButton>

namespace kervol {

/// Alt and the key open the first menu; from there the key alone goes on in turn: to the last menu, and to
/// the button if it can be used. The toolkit would begin where it stopped the last time.
class SharedKey : public QObject {
  public:
    /// Lives as long as the bar.
    SharedKey(Qt::Key key, QMenuBar* bar, QMenu* first, QMenu* last, QPushButton* button);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Go_On() const;
    void Open(QMenu* menu) const;

    Qt::Key key_;
    QMenuBar* bar_;
    QMenu* first_;
    QMenu* last_;
    QPushButton* button_;
};

}  // namespace kervol
