// SPDX-License-Identifier: GPL-3.0-or-later
// A list that drops down, for boxes whose pick is an event: nothing counts as picked on the way to an entry,
// by the arrow keys, by the wheel or by typing.
#pragma once

#include <QComboBox>
#include <functional>
#include <string>
#include <vector>

namespace kervol {

class ChoiceBox : public QComboBox {
  public:
    /// An editable box takes any text; Enter picks it.
    explicit ChoiceBox(bool is_editable, QWidget* parent = nullptr);

    std::function<void(const std::string& text)> picked;
    std::function<void(const std::string& text)> typed;  ///< of an editable one, not picked yet

    /// Neither picks nor types.
    void Show(const std::vector<std::string>& items, const std::string& text);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Pick();

    bool leaving_ = false;
    bool clicked_in_ = false;
};

}  // namespace kervol
