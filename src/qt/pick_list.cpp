// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/pick_list.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

namespace kervol {

PickList::PickList(QWidget* parent) : QListWidget(parent) {
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::itemClicked, this, [this] { Pick_Current(); });
    connect(this, &QListWidget::itemDoubleClicked, this, [this](const QListWidgetItem* item) {
        text_ = item->text().toStdString();
        if (picked_twice) picked_twice(text_);
    });
}

void PickList::Show(const std::vector<std::string>& items, const std::string& text) {
    if (items != items_) {
        items_ = items;
        clear();
        for (const std::string& item : items) addItem(QString::fromStdString(item));
        updateGeometry();
    }
    text_ = text;
    Mark_Picked();
}

void PickList::Mark_Picked() {
    const auto found = std::find(items_.begin(), items_.end(), text_);
    const int row = found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
    if (row == currentRow() && (row < 0 || item(row)->isSelected())) return;
    setCurrentRow(row);
    if (row < 0) scrollToTop();
}

void PickList::Set_Rows(int rows) {
    rows_ = rows;
    updateGeometry();
}

QSize PickList::sizeHint() const {
    int widest = 0;
    for (const std::string& item : items_)
        widest = std::max(widest, fontMetrics().horizontalAdvance(QString::fromStdString(item)));
    const int row = count() > 0 ? sizeHintForRow(0) : fontMetrics().lineSpacing();
    const int frame = 2 * frameWidth();
    return {widest + fontMetrics().averageCharWidth() * 2 + frame + verticalScrollBar()->sizeHint().width(),
            rows_ * row + frame};
}

/// The toolkit makes the first entry the current one as soon as the list has the focus, but does not mark it.
bool PickList::Has_Moved() const {
    return currentItem() != nullptr && currentItem()->isSelected() &&
           currentItem()->text().toStdString() != text_;
}

void PickList::Pick_Current() {
    if (currentItem() == nullptr) return;
    text_ = currentItem()->text().toStdString();
    if (picked) picked(text_);
}

/// The tab key takes along what the arrow keys have marked. Where the pick itself moves the focus it has done
/// its work.
bool PickList::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Tab || key == Qt::Key_Backtab) && Has_Moved()) {
            Pick_Current();
            if (!hasFocus()) return true;
        }
    }
    return QListWidget::event(event);
}

/// As long as the toolkit's own search takes letters for parts of one word.
bool PickList::Is_Typing() const {
    return !typed_.isEmpty() && !since_typed_.hasExpired(QApplication::keyboardInputInterval());
}

bool PickList::Is_Blank_In_Entry() const {
    return Is_Typing() && std::any_of(items_.begin(), items_.end(), [this](const std::string& item) {
               return QString::fromStdString(item).startsWith(typed_ + ' ', Qt::CaseInsensitive);
           });
}

/// A key that writes nothing may be the shift key of the next letter.
void PickList::Note_Typed(const QString& text) {
    if (text.isEmpty()) return;
    typed_ = Is_Typing() ? typed_ + text : text;
    since_typed_.start();
}

void PickList::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool blank = key == Qt::Key_Space && Is_Blank_In_Entry();
    const bool picks = key == Qt::Key_Return || key == Qt::Key_Enter || (key == Qt::Key_Space && !blank);
    const bool at_start = selectedItems().isEmpty() && currentRow() <= 0;
    Note_Typed(event->text());
    if (picks)
        Pick_Current();
    else if (blank)
        keyboardSearch(event->text());
    else if (key == Qt::Key_Down && at_start)
        setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
    else
        QListWidget::keyPressEvent(event);
}

void PickList::focusOutEvent(QFocusEvent* event) {
    QListWidget::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason) Mark_Picked();
}

}  // namespace kervol
