// SPDX-License-Identifier: GPL-3.0-or-later
// The Self-check screen: a report to be read and copied.
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "qt/builders.h"
#include "qt/form_window.h"

namespace kervol {
namespace {

using namespace form;

/// Wide enough for the longest line of the report.
constexpr int kColumns = 124;

QPlainTextEdit* New_Report() {
    auto* report = new QPlainTextEdit;
    report->setObjectName("txt_Report");
    report->setAccessibleName("Report of the self-check");
    report->setReadOnly(true);
    // A cursor that can be moved by the keys, so that the report can be read and copied without a mouse.
    report->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    report->setTabChangesFocus(true);
    report->setLineWrapMode(QPlainTextEdit::NoWrap);
    report->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    report->document()->setDocumentMargin(kGap);
    const QFontMetrics metrics(report->font());
    const int sides = 2 * report->frameWidth() + report->verticalScrollBar()->sizeHint().width() + 2 * kGap;
    report->setMinimumWidth(metrics.horizontalAdvance(QString(kColumns, 'x')) + sides);
    report->setMinimumHeight(metrics.lineSpacing() * 24);
    return report;
}

}  // namespace

void Lay_Out_Self_Check(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    QPlainTextEdit* report = New_Report();
    all->addWidget(report, 1);
    QPushButton* copy = New_Button("cmd_Copy");
    copy->setToolTip("Puts the report on the clipboard as text.");
    all->addLayout(Button_Row(New_Button("cmd_Back"), {copy}, nullptr));
    form.first_focus = report;
    form.screen_share = 0.75;
}

}  // namespace kervol
