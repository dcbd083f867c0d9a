// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/shared_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcutEvent>
#include <algorithm>

namespace kervol {

SharedKey::SharedKey(Qt::Key key, QMenuBar* bar, QMenu* first, QMenu* last, QPushButton* button)
    : QObject(bar), key_(key), bar_(bar), first_(first), last_(last), button_(button) {
    for (QObject* watched : std::initializer_list<QObject*>{bar, first, last, button})
        watched->installEventFilter(this);
}

bool SharedKey::eventFilter(QObject* watched, QEvent* event) {
    const bool is_menu = watched == first_ || watched == last_;
    const bool is_ours =
        is_menu ? event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == key_
                : event->type() == QEvent::Shortcut &&
                      static_cast<QShortcutEvent*>(event)->key() == QKeySequence(Qt::ALT | key_);
    if (is_ours) Go_On();
    return is_ours;
}

void SharedKey::Go_On() const {
    const QWidget* open = QApplication::activePopupWidget();
    if (open == first_) return Open(last_);
    if (open != last_ || !button_->isEnabled()) return Open(first_);
    last_->close();
    button_->setFocus(Qt::ShortcutFocusReason);
}

void SharedKey::Open(QMenu* menu) const {
    bar_->setActiveAction(menu->menuAction());
    const QList<QAction*> entries = menu->actions();
    const auto usable = std::find_if(entries.begin(), entries.end(), [](const QAction* entry) {
        return entry->isEnabled() && !entry->isSeparator();
    });
    if (usable != entries.end()) menu->setActiveAction(*usable);
}

}  // namespace kervol
