// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/picture_column.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>

#include "qt/builders.h"
#include "qt/picture_widget.h"

namespace kervol::form {
namespace {

/// A scroll bar for the keyboard too: it takes the focus, and shows it.
class FocusBar : public QScrollBar {
  public:
    FocusBar() : QScrollBar(Qt::Horizontal) {
        setFocusPolicy(Qt::StrongFocus);
        // A scroll bar takes the right arrow for "back".
        setInvertedControls(false);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QScrollBar::paintEvent(event);
        if (!hasFocus()) return;
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
};

QLabel* New_End_Label(const QString& name, Qt::Alignment side) {
    QLabel* label = New_Label(name);
    label->setAlignment(side);
    Keep_Room(label);
    return label;
}

QHBoxLayout* New_Title_Row() {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    auto* label = New_Label(QString());
    label->setText("Title");
    QLineEdit* title =
        New_Text("txt_header", "Title of the model", "Stands above plots and tables, and in the file.");
    label->setBuddy(title);
    row->addWidget(label);
    row->addWidget(title, 1);
    return row;
}

/// The bar, and below it its ends, with what stands between them.
QGridLayout* New_Step_Grid(QLayout* value) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kRowGap);
    QScrollBar* bar =
        New_Bar("hsc_step", "Position in the motion", "Moves the linkage through its calculated positions.");
    Keep_Room(bar);
    grid->addWidget(bar, 0, 0, 1, 3);
    grid->addWidget(New_End_Label("lbl_cw", Qt::AlignLeft), 1, 0);
    if (value != nullptr) grid->addLayout(value, 1, 1);
    grid->addWidget(New_End_Label("lbl_ccw", Qt::AlignRight), 1, 2);
    grid->addWidget(New_End_Label("lbl_time", Qt::AlignRight), 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    return grid;
}

}  // namespace

QScrollBar* New_Bar(const QString& name, const QString& accessible, const QString& tip) {
    auto* bar = new FocusBar;
    bar->setObjectName(name);
    bar->setAccessibleName(accessible);
    bar->setToolTip(tip);
    return bar;
}

QHBoxLayout* New_Step_Value() {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    QLabel* number = New_End_Label("lbl_StepNumber", Qt::AlignRight);
    QFont bold = number->font();
    bold.setBold(true);
    number->setFont(bold);
    number->setMinimumWidth(number->fontMetrics().horizontalAdvance("-1,360.00") + 2 * kRowGap);
    row->addWidget(New_End_Label("lbl_StepLabel", Qt::AlignRight));
    row->addWidget(number);
    row->addWidget(New_End_Label("lbl_StepUnit", Qt::AlignLeft));
    return row;
}

QVBoxLayout* New_Picture_Column(PictureList& list, QLayout* value) {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addLayout(New_Title_Row());
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(1, 1, 1, 1);
    auto* picture = new PictureWidget(list);
    picture->setObjectName("Picture1");
    picture->setAccessibleName("Picture of the linkage");
    inside->addWidget(picture);
    column->addWidget(frame, 1);
    column->addLayout(New_Step_Grid(value));
    return column;
}

void Describe_Picture(const QWidget& form) {
    auto* picture = form.findChild<QWidget*>("Picture1");
    const auto text = [&form](const char* name) { return form.findChild<QLabel*>(name)->text(); };
    const int step = form.findChild<QScrollBar*>("hsc_step")->value();
    const QString description =
        QString("Step %1, %2 %3 %4")
            .arg(QString::number(step), text("lbl_StepLabel"), text("lbl_StepNumber"), text("lbl_StepUnit"));
    if (picture->accessibleDescription() != description) picture->setAccessibleDescription(description);
}

}  // namespace kervol::form
