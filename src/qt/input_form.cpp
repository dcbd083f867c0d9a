// SPDX-License-Identifier: GPL-3.0-or-later
// The Input screen: fields grouped as the linkage is thought of, and the picture, which takes the rest of the
// room.
#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>

#include "qt/binder.h"
#include "qt/builders.h"
#include "qt/form_window.h"
#include "qt/input_groups.h"
#include "qt/picture_widget.h"

namespace kervol {
namespace {

using namespace form;

/// A scroll bar for the keyboard too: it takes the focus, and shows it.
class StepBar : public QScrollBar {
  public:
    StepBar() : QScrollBar(Qt::Horizontal) {
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

/// The bar, its ends below it, and the step's value between them.
QGridLayout* New_Step_Grid() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kRowGap);
    auto* bar = new StepBar;
    bar->setObjectName("hsc_step");
    bar->setAccessibleName("Position in the motion");
    bar->setToolTip("Moves the linkage through its calculated positions.");
    Keep_Room(bar);
    grid->addWidget(bar, 0, 0, 1, 5);
    grid->addWidget(New_End_Label("lbl_cw", Qt::AlignLeft), 1, 0);
    QLabel* number = New_End_Label("lbl_StepNumber", Qt::AlignRight);
    QFont bold = number->font();
    bold.setBold(true);
    number->setFont(bold);
    number->setMinimumWidth(number->fontMetrics().horizontalAdvance("-1,360.00"));
    grid->addWidget(New_End_Label("lbl_StepLabel", Qt::AlignRight), 1, 1);
    grid->addWidget(number, 1, 2);
    grid->addWidget(New_End_Label("lbl_StepUnit", Qt::AlignLeft), 1, 3);
    grid->addWidget(New_End_Label("lbl_ccw", Qt::AlignRight), 1, 4);
    grid->addWidget(New_End_Label("lbl_time", Qt::AlignRight), 1, 4);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(4, 1);
    return grid;
}

QCheckBox* New_Check(const QString& name, const QString& tip) {
    auto* box = new QCheckBox;
    box->setObjectName(name);
    box->setToolTip(tip);
    return box;
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

QVBoxLayout* New_Picture_Column(PictureList& list) {
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
    column->addLayout(New_Step_Grid());
    return column;
}

QHBoxLayout* New_Buttons() {
    auto* calc = New_Button("cmd_Calc");
    calc->setToolTip("Calculates every step of the drive and draws the first.");
    auto* draw = New_Button("cmd_Draw");
    draw->setToolTip("Draws the whole travel of the crank in ten steps, whatever the drive.");
    auto* step = New_Button("cmd_Step");
    step->setToolTip("Draws the next position beside those that stand.");
    auto* reset = New_Button("cmd_Reset");
    reset->setToolTip("Goes back to the first position.");
    auto* print = New_Button("cmd_Print");
    print->setToolTip("Prints an image of this screen.");
    auto* row =
        Button_Row(New_Button("cmd_Cancel"), {calc, draw, step, reset, print, New_Button("cmd_Animate")},
                   New_Button("cmd_Next"));
    row->insertSpacing(1, 2 * kGap);
    row->insertWidget(2, New_Check("chk_autocalc", "Calculates anew after each change of a field."));
    row->insertWidget(
        3, New_Check("chk_autoscale", "Fits the picture to the whole motion each time it is drawn."));
    return row;
}

/// Says in words what the picture shows, for those who cannot see it.
void Describe_Picture(const FormWindow& form) {
    auto* picture = form.findChild<QWidget*>("Picture1");
    const auto text = [&form](const char* name) { return form.findChild<QLabel*>(name)->text(); };
    const int step = form.findChild<QScrollBar*>("hsc_step")->value();
    const QString description =
        QString("Step %1, %2 %3 %4")
            .arg(QString::number(step), text("lbl_StepLabel"), text("lbl_StepNumber"), text("lbl_StepUnit"));
    if (picture->accessibleDescription() != description) picture->setAccessibleDescription(description);
}

}  // namespace

void Lay_Out_Input(FormWindow& form, PictureList& picture) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(2 * kGap);
    InputGroups groups = New_Input_Groups();
    middle->addLayout(groups.column, 2);
    middle->addLayout(New_Picture_Column(picture), 3);
    all->addLayout(middle, 1);
    all->addLayout(New_Buttons());
    form.first_focus = groups.first_focus;
    // The rest is for the frame of the window.
    form.screen_share = 0.95;
    form.refresh = [&form, show = groups.show_chain](const LinkageModel& model) {
        show(model.LinkageType);
        Describe_Picture(form);
    };
}

}  // namespace kervol
