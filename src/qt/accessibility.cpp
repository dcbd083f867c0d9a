// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/accessibility.h"

#include <QAbstractScrollArea>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>

#include "qt/chart_widget.h"
#include "qt/form_window.h"
#include "qt/linkage_sketch.h"
#include "qt/picture_widget.h"
#include "qt/plot_kind_picture.h"

namespace kervol {
namespace {

QAccessibleInterface* New_Interface(const QString&, QObject* object) {
    if (auto* form = dynamic_cast<FormWindow*>(object))
        return new QAccessibleWidget(form, QAccessible::Window);
    if (auto* chart = dynamic_cast<ChartWidget*>(object))
        return new QAccessibleWidget(chart, QAccessible::Chart);
    if (dynamic_cast<PictureWidget*>(object) != nullptr || dynamic_cast<LinkageSketch*>(object) != nullptr ||
        dynamic_cast<PlotKindPicture*>(object) != nullptr)
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
    return nullptr;
}

void Name(QWidget& part, const QString& name) {
    if (part.accessibleName().isEmpty()) part.setAccessibleName(name);
}

}  // namespace

void Announce_Own_Widgets() {
    QAccessible::installFactory(New_Interface);
}

void Name_Toolkit_Parts(QWidget& form) {
    for (const auto* area : form.findChildren<QAbstractScrollArea*>()) {
        if (area->accessibleName().isEmpty()) continue;
        Name(*area->verticalScrollBar(), area->accessibleName() + ", up and down");
        Name(*area->horizontalScrollBar(), area->accessibleName() + ", left and right");
    }
    for (const auto* box : form.findChildren<QComboBox*>())
        if (box->lineEdit() != nullptr) Name(*box->lineEdit(), box->accessibleName());
    for (auto* menus : form.findChildren<QMenuBar*>()) Name(*menus, "Menus");
}

}  // namespace kervol
