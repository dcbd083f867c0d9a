// SPDX-License-Identifier: GPL-3.0-or-later
// The screens of the start: title, notices, user.
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "qt/builders.h"
#include "qt/form_window.h"
#include "qt/linkage_sketch.h"
#include "rendering/qt_text.h"

namespace kervol {
namespace {

using namespace form;

constexpr int kTextWidth = 460;

QLabel* New_Brand() {
    QLabel* brand = New_Heading(QString(), 2.0);
    brand->setAlignment(Qt::AlignCenter);
    return brand;
}

QLabel* New_Centred(const QString& name) {
    QLabel* label = New_Label(name);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

/// What the title and the About screen share: the linkage, the program's name, what it is for, its release.
QVBoxLayout* Lay_Out_Identity(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    auto* sketch = new LinkageSketch({kTextWidth, 220});
    sketch->Show_Position(Nomenclature("W"));
    sketch->setAccessibleName("Figure of a Watt linkage");
    all->addWidget(sketch, 1);
    QLabel* brand = New_Brand();
    all->addWidget(brand);
    all->addWidget(New_Centred("lblHeader"));
    all->addSpacing(kGap);
    all->addWidget(New_Centred("lbl_Version"));
    form.refresh = [brand](const LinkageModel& model) {
        // The name alone; the whole title stands in the lines below.
        brand->setText(Qt_Text(model.ProgramTitle).section(' ', 0, 0));
    };
    return all;
}

}  // namespace

void Lay_Out_Title(FormWindow& form) {
    QVBoxLayout* all = Lay_Out_Identity(form);
    QPushButton* start = New_Button("cmd_Start");
    QPushButton* abort = New_Button("cmd_Abort");
    all->addSpacing(kGap);
    all->addLayout(Button_Row(abort, {}, start));
    form.first_focus = start;
    QWidget::setTabOrder(start, abort);
}

void Lay_Out_About(FormWindow& form) {
    QVBoxLayout* all = Lay_Out_Identity(form);
    all->addSpacing(kGap);
    auto* hint = New_Centred(QString());
    hint->setText("Click anywhere to close");
    hint->setEnabled(false);
    all->addWidget(hint);
    form.any_click_closes = true;
}

void Lay_Out_Disclaimer(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    QLabel* notices = New_Label("lbl_Notices");
    notices->setWordWrap(true);
    notices->setFixedWidth(kTextWidth);
    notices->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    all->addWidget(notices, 1);
    QPushButton* done = New_Button("cmd_Done");
    all->addSpacing(kGap);
    all->addLayout(Button_Row(nullptr, {}, done));
    form.first_focus = done;
}

void Lay_Out_User(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kGap);
    const auto add = [grid](int row, const char* label_name, QLineEdit* field) {
        QLabel* label = New_Label(label_name);
        label->setBuddy(field);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1, row == 1 ? Qt::AlignLeft : Qt::Alignment());
    };
    QLineEdit* user =
        New_Text("txt_UserName", "Name or project", "Stands in the header of screens and printed pages.");
    user->setMinimumWidth(220);
    add(0, "lbl_UserName", user);
    add(1, "lbl_DesignNo",
        New_Number("txt_DesignNo", "Design number",
                   "Counts the variants of a design; stands in the header too."));
    add(2, "lbl_Filename", New_Text("txt_Filename", "File name", "Proposed when the model is saved."));
    all->addLayout(grid);
    all->addStretch();
    QPushButton* done = New_Button("cmd_Done");
    all->addSpacing(kGap);
    all->addLayout(Button_Row(nullptr, {}, done));
    form.first_focus = user;
}

void Lay_Out_Quit(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    QLabel* question = New_Centred("lbl_Question");
    question->setMinimumWidth(280);
    all->addSpacing(kGap);
    all->addWidget(question, 1);
    all->addSpacing(kGap);
    QPushButton* no = New_Button("cmd_NoQuit");
    all->addLayout(Button_Row(no, {}, New_Button("cmd_YesQuit")));
    form.first_focus = no;
}

}  // namespace kervol
