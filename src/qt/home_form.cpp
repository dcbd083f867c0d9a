// SPDX-License-Identifier: GPL-3.0-or-later
// The Home screen: menus, the way to every other screen, and the linkage as it stands.
#include <QAction>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "qt/builders.h"
#include "qt/elided_label.h"
#include "qt/form_window.h"
#include "qt/linkage_sketch.h"
#include "qt/shared_key.h"
#include "rendering/qt_text.h"

namespace kervol {
namespace {

using namespace form;

QMenu* New_Menu(const QString& name, QWidget* parent) {
    auto* menu = new QMenu(parent);
    menu->menuAction()->setObjectName(name);
    menu->setToolTipsVisible(true);
    return menu;
}

QMenu* Add_Menu(QMenuBar* bar, const QString& name) {
    QMenu* menu = New_Menu(name, bar);
    bar->addMenu(menu);
    return menu;
}

QMenu* Add_Menu(QMenu* parent, const QString& name) {
    QMenu* menu = New_Menu(name, parent);
    parent->addMenu(menu);
    return menu;
}

void Add_Entries(QMenu* menu, std::initializer_list<const char*> names) {
    for (const char* name : names) {
        auto* action = new QAction(menu);
        action->setObjectName(name);
        menu->addAction(action);
    }
}

/// Entry 0 of the unit systems belongs to none of them and stands in no menu.
void Add_Units(QMenu* menu) {
    for (int i = 0; i <= 5; ++i) {
        auto* action = new QAction(menu);
        action->setObjectName("mnu_pick_" + QString::number(i));
        action->setCheckable(true);
        if (i > 0) menu->addAction(action);
    }
}

QMenuBar* New_Menus(QWidget* parent) {
    auto* bar = new QMenuBar(parent);
    QMenu* file = Add_Menu(bar, "mnu_file");
    Add_Entries(file, {"mnu_New", "mnu_Open", "mnu_Save", "mnu_Saveas"});
    file->addSeparator();
    Add_Entries(Add_Menu(file, "mnu_Export"), {"mnu_Export_Link_Data", "mnu_Export_Torque"});
    Add_Entries(Add_Menu(file, "mnu_Import"), {"mnu_Import_SVA", "mnu_Import_Link2_Drive_Data"});
    file->addSeparator();
    Add_Entries(file, {"mnu_Report"});
    file->addSeparator();
    Add_Entries(file, {"mnu_Quit"});
    Add_Units(Add_Menu(bar, "mnu_Units"));
    Add_Entries(Add_Menu(bar, "mnu_Examples"), {"mnu_Test", "mnu_Hoeken", "mnu_Roberts", "mnu_Double"});
    Add_Entries(Add_Menu(bar, "mnu_FFT"), {"mnu_CalcFFT"});
    Add_Entries(Add_Menu(bar, "mnu_Tools"), {"mnu_SelfCheck"});
    Add_Entries(Add_Menu(bar, "mnu_Version"), {"mnu_Manual", "mnu_About", "mnu_Disclaimer"});
    return bar;
}

QPushButton* New_Big_Button(const QString& name, const QString& tip) {
    QPushButton* button = New_Button(name);
    button->setMinimumSize(150, button->fontMetrics().height() * 2 + kGap);
    button->setToolTip(tip);
    return button;
}

QVBoxLayout* New_Button_Column(FormWindow& form) {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    QPushButton* input =
        New_Big_Button("cmd_Input", "Enter the linkage and its drive, and calculate its motion.");
    form.first_focus = input;
    column->addWidget(input);
    column->addWidget(New_Big_Button("cmd_Animate", "Watch the calculated linkage move."));
    column->addWidget(New_Big_Button("cmd_Plot", "Plot calculated functions."));
    column->addWidget(New_Big_Button("cmd_Print", "Tabulate calculated functions."));
    QPushButton* dynamics = New_Big_Button("cmd_Dynamics", "Masses, loads, pin forces and driving torque.");
    QPushButton* flywheel =
        New_Big_Button("cmd_Flywheel", "Energy pulses of the driving torque, and a flywheel.");
    // Their captions begin with a tab, which is not to be read out.
    dynamics->setAccessibleName("Dynamics");
    flywheel->setAccessibleName("Flywheel");
    column->addWidget(dynamics);
    column->addWidget(flywheel);
    column->addStretch();
    column->addWidget(New_Big_Button("cmd_Quit", "End the program."));
    return column;
}

QString Model_Line(const LinkageModel& model) {
    const QString chain = model.LinkageType == "W"   ? "Watt chain"
                          : model.LinkageType == "S" ? "Stephenson chain"
                                                     : "";
    const QString state = model.DataCalculated ? "calculated" : "not calculated yet";
    return QStringList{chain, Qt_Text(model.ModelName), state}.join("   \u00b7   ");
}

}  // namespace

void Lay_Out_Home(FormWindow& form) {
    auto* all = new QGridLayout(&form);
    QMenuBar* menus = New_Menus(&form);
    all->setMenuBar(menus);
    all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    all->setHorizontalSpacing(2 * kGap);
    all->setVerticalSpacing(kGap);
    QLabel* title = New_Heading(QString(), 1.3);
    title->setWordWrap(true);
    auto* line = new ElidedLabel(60);
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    auto* inside = new QVBoxLayout(frame);
    auto* sketch = new LinkageSketch({520, 340});
    sketch->setAccessibleName("Figure of the linkage in hand");
    inside->addWidget(sketch, 1);
    all->addLayout(New_Button_Column(form), 0, 0, 3, 1);
    const auto menu = [menus](const char* name) { return menus->findChild<QAction*>(name)->menu(); };
    // File, FFT, Flywheel.
    new SharedKey(Qt::Key_F, menus, menu("mnu_file"), menu("mnu_FFT"),
                  form.findChild<QPushButton*>("cmd_Flywheel"));
    all->addWidget(title, 0, 1);
    all->addWidget(line, 1, 1);
    all->addWidget(frame, 2, 1);
    all->setRowStretch(2, 1);
    all->setColumnStretch(1, 1);
    // The hub of the run is no dialog that Escape takes away.
    form.escape_closes = false;
    form.screen_share = 0.6;
    form.refresh = [=](const LinkageModel& model) {
        title->setText(model.ModelTitle.empty() ? QString("Untitled linkage") : Qt_Text(model.ModelTitle));
        line->setText(Model_Line(model));
        sketch->Show_Model(model);
    };
}

}  // namespace kervol
