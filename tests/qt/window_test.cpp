// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/window_test.h"

#include <QLineEdit>
#include <QPushButton>
#include <QWheelEvent>
#include <cstdio>

#include "catalogue/names.h"
#include "kinematics/examples.h"
#include "kinematics/step_count.h"
#include "screens/launch_screens.h"
#include "startup/launch.h"

namespace kervol {

WindowTest::WindowTest() {
    port.Attach(screens);
    Start_Fresh(*program);
    Wire_Screens(screens);
    kervol::Fill_Screens(screens);
    program->model.StartingUp = false;
    Every_Moment([this] { Use_Dialog(); });
    watchdog_.setSingleShot(true);
    watchdog_.callOnTimeout([] {
        std::fputs("a window was left open\n", stderr);
        std::_Exit(1);
    });
    watchdog_.start(30000);
}

WindowTest::~WindowTest() = default;

void WindowTest::Every_Moment(const std::function<void()>& look) {
    QTimer::singleShot(2, &watchdog_, [this, look] {
        // First, since what follows may open a window and wait in it.
        Every_Moment(look);
        look();
    });
}

void WindowTest::TearDown() {
    EXPECT_TRUE(stops_.empty()) << stops_.size() << " screens did not come";
    EXPECT_TRUE(awaited_.empty()) << awaited_.size() << " awaited dialogs did not come";
    port.Set_Pointer(Pointer::Default);
}

void WindowTest::Use_Dialog() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible() || dialog->property("used").toBool()) return;
    dialog->setProperty("used", true);
    if (awaited_.empty()) {
        ADD_FAILURE() << "nobody awaited the dialog " << dialog->windowTitle().toStdString();
        return dialog->reject();
    }
    const auto use = std::move(awaited_.front());
    awaited_.pop_front();
    use(*dialog);
}

void WindowTest::In(ScreenId screen, const std::function<void(FormWindow& form)>& act) {
    QTimer::singleShot(0, [&] {
        FormWindow& form = port.Form(screen);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        act(form);
        port.Hide_Screen(screen);
    });
    port.Show_Screen(screen, Modality::Modal);
}

void WindowTest::Click(QWidget& form, const char* name) {
    QTest::mouseClick(&Find<QWidget>(form, name), Qt::LeftButton);
}

void WindowTest::Press(FormWindow& form, const char* name) {
    Find<QPushButton>(form, name).click();
}

void WindowTest::Select(const char* example, std::initializer_list<const char*> functions,
                        const char* component) {
    Load_Example(program->model, *Find_Example(example));
    Calculate_Model(*program);
    Change_Catalog_Labels(program->catalogue, program->model.LinkageType);
    std::int16_t k = 0;
    for (const char* function : functions) {
        SlotBoxes boxes = {function, component};
        Confirm_Slot(program->catalogue, program->selections, boxes, ++k);
        for (PlotSelectScreen* form : {&screens.frm_PlotSelect1, &screens.frm_PlotSelect2,
                                       &screens.frm_PlotSelect3, &screens.frm_PlotSelect4}) {
            form->lbl_Function.at(static_cast<std::size_t>(k) - 1).caption = function;
            form->lbl_Component.at(static_cast<std::size_t>(k) - 1).caption = component;
        }
    }
    program->selections.SelCount = k;
}

void WindowTest::Follow(std::vector<Stop> route) {
    stops_.assign(route.begin(), route.end());
    Every_Moment([this] {
        if (stops_.empty()) return;
        FormWindow& form = port.Form(stops_.front().screen);
        if (!form.isVisible() || !form.isActiveWindow()) return;
        const auto act = stops_.front().act;
        stops_.pop_front();
        act(form);
    });
}

void WindowTest::Type(QWidget& form, const char* name, const QString& text) {
    auto& field = Find<QLineEdit>(form, name);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, text);
}

void Turn_Wheel(QWidget& widget) {
    const QPointF at = widget.rect().center();
    QWheelEvent turn(at, widget.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &turn);
}

}  // namespace kervol
