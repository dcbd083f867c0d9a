// SPDX-License-Identifier: GPL-3.0-or-later
// A list from which one entry is picked: by the mouse, by Enter or the space bar, or by leaving it with the
// tab key. Moving through it with the arrow keys or by typing the beginning of an entry picks nothing yet.
#pragma once

#include <QElapsedTimer>
#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

namespace kervol {

class PickList : public QListWidget {
  public:
    explicit PickList(QWidget* parent = nullptr);

    std::function<void(const std::string&text)> picked, picked_twice;

    /// Marks the entry of that text; none where there is no such entry.
    void Show(const std::vector<std::string>& items, const std::string& text);
    /// Room for this many rows.
    void Set_Rows(int rows);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void Pick_Current();
    /// Whether another entry is marked than the one that was picked.
    bool Has_Moved() const;
    void Mark_Picked();
    bool Is_Typing() const;
    /// Whether a blank goes on with what has just been typed, rather than picking.
    bool Is_Blank_In_Entry() const;
    void Note_Typed(const QString& text);

    std::vector<std::string> items_;
    std::string text_;  ///< of the picked entry
    int rows_ = 4;
    QString typed_;  ///< since the last pause
    QElapsedTimer since_typed_;
};

}  // namespace kervol
