// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/picture_menu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <utility>

#include "qt/form_window.h"
#include "rendering/qt_text.h"

namespace kervol {
namespace {

constexpr double kSavedPixels = 2;  // of a file for one of the screen, so that it can be enlarged

void Save(const QWidget& picture, const PictureMenu& menu) {
    const auto* form = dynamic_cast<const FormWindow*>(picture.window());
    if (form == nullptr || !form->save_picture) return;
    Sheet sheet = menu.sheet();
    sheet.pixels = kSavedPixels;
    form->save_picture(sheet);
}

QAction* New_Action(QWidget& picture, const QString& text) {
    auto* action = new QAction(text, &picture);
    picture.addAction(action);
    return action;
}

}  // namespace

void Offer_Picture_Menu(QWidget& picture, PictureMenu menu) {
    qDeleteAll(picture.actions());
    picture.setContextMenuPolicy(Qt::ActionsContextMenu);
    QAction* save = New_Action(picture, "&Save picture as...");
    if (menu.values) {
        QAction* copy = New_Action(picture, "&Copy values");
        QObject::connect(copy, &QAction::triggered, &picture, [values = menu.values] {
            QGuiApplication::clipboard()->setText(Qt_Text(values()));
        });
    }
    QObject::connect(save, &QAction::triggered, &picture,
                     [&picture, menu = std::move(menu)] { Save(picture, menu); });
}

void Mark_Focus(QWidget& picture) {
    if (!picture.hasFocus()) return;
    QPainter painter(&picture);
    painter.setPen(picture.palette().color(QPalette::Highlight));
    painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
}

}  // namespace kervol
