// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/choice_box.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <utility>

#include "rendering/qt_text.h"

namespace kervol {

ChoiceBox::ChoiceBox(bool is_editable, QWidget* parent) : QComboBox(parent) {
    setEditable(is_editable);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(16);
    // What is typed is meant as it stands.
    if (is_editable) {
        setCompleter(nullptr);
        lineEdit()->installEventFilter(this);
    }
    connect(this, &QComboBox::activated, this, [this] {
        // An editable box activates the entry that equals its text when it is left.
        if (!leaving_) Pick();
    });
    connect(this, &QComboBox::editTextChanged, this, [this](const QString& text) {
        if (typed) typed(text.toStdString());
    });
}

void ChoiceBox::Pick() {
    if (picked) picked(currentText().toStdString());
}

void ChoiceBox::Show(const std::vector<std::string>& items, const std::string& text) {
    const QSignalBlocker quiet(this);
    QStringList wanted, shown;
    for (const std::string& item : items) wanted.append(Qt_Text(item));
    for (int i = 0; i < count(); ++i) shown.append(itemText(i));
    if (shown != wanted) {
        clear();
        addItems(wanted);
    }
    const QString now = Qt_Text(text);
    if (currentText() == now) return;
    setCurrentIndex(findText(now));
    if (isEditable()) setEditText(now);
}

void ChoiceBox::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (!event->isAutoRepeat()) Pick();
        return;
    }
    const bool moves = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
                       key == Qt::Key_PageDown ||
                       (!isEditable() && (key == Qt::Key_Home || key == Qt::Key_End));
    const bool searches = !isEditable() && event->modifiers() == Qt::NoModifier && !event->text().isEmpty() &&
                          event->text().at(0).isLetterOrNumber();
    if (!moves && !searches) return QComboBox::keyPressEvent(event);
    // The open list moves and searches without picking.
    showPopup();
    if (searches) QCoreApplication::sendEvent(view(), event);
}

void ChoiceBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void ChoiceBox::focusInEvent(QFocusEvent* event) {
    QComboBox::focusInEvent(event);
    if (!isEditable() || event->reason() == Qt::PopupFocusReason) return;
    lineEdit()->selectAll();
    // The press that brings the focus sets the cursor and so ends the selection.
    clicked_in_ = event->reason() == Qt::MouseFocusReason;
}

bool ChoiceBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease && std::exchange(clicked_in_, false) &&
        !lineEdit()->hasSelectedText())
        lineEdit()->selectAll();
    return QComboBox::eventFilter(watched, event);
}

void ChoiceBox::focusOutEvent(QFocusEvent* event) {
    leaving_ = true;
    QComboBox::focusOutEvent(event);
    leaving_ = false;
}

}  // namespace kervol
