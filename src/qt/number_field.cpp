// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/number_field.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QToolTip>

#include "core/fault.h"
#include "qt/look.h"
#include "screens/fields.h"

namespace kervol {
namespace {

/// As `Typed_Number` reads it, or the beginning of such a text.
const QRegularExpression& Whole_Number_Text() {
    static const QRegularExpression expression(
        R"(^\s*[-+]?([1-9]\d{0,2}(,\d{3})+(?=\.)|\d*)(\.\d*)?(?<=[\d.])([eE][-+]?\d*)?\s*$|^\s*[-+]?$)");
    return expression;
}

}  // namespace

QString Unread_Note(const QString& text) {
    if (Whole_Number_Text().match(text).hasMatch()) return {};
    QString note;
    try {
        // Of a zero without its sign.
        const double read = Typed_Number(text.toStdString()) + 0.0;
        note = "Read as " + QString::number(read, 'g', 7) + ".";
    } catch (const Fault&) {
        note = "Too large to be read.";
    }
    return text.contains(',') ? note + " Numbers are written with a point." : note;
}

void Watch_Number(QLineEdit* field) {
    const QString tip = field->toolTip();
    const auto mark = [field, tip](const QString& note) {
        if (note.isEmpty() && field->toolTip() == tip) return;
        field->setToolTip(note.isEmpty() ? tip : note + "\n" + tip);
        QPalette palette;
        if (!note.isEmpty())
            palette.setColor(QPalette::Text, Readable_Text(Qt::red, field->palette().color(QPalette::Base)));
        field->setPalette(palette);
        // An empty text hides the tip that stands.
        QToolTip::showText(field->mapToGlobal(QPoint(0, field->height())), note, field);
    };
    // What the program puts there is never marked.
    QObject::connect(field, &QLineEdit::textChanged, field, [mark, field](const QString& text) {
        mark(field->isModified() ? Unread_Note(text) : QString());
    });
}

}  // namespace kervol
