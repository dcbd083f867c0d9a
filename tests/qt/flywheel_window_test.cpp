// SPDX-License-Identifier: GPL-3.0-or-later
// The flywheel screen on real widgets: how its one field is left.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "kinematics/sweep.h"
#include "qt/window_test.h"

namespace kervol {
namespace {

class FlywheelWindow : public WindowTest {
  protected:
    FlywheelWindow() {
        Answer response = Answer::None;
        Run_Sweep(*program, 3, response);
        program->model.DataCalculated = true;
        // Fluctuates by 2 about 10.
        for (int step = 0; step <= program->model.NumSteps; ++step) program->tables.TorqueTable(step, 0) = 10;
        program->tables.TorqueTable(7, 0) = 12;
        program->tables.TorqueTable(9, 0) = 8;
    }

    static QString Tmax_With(FormWindow& form) { return Find<QLabel>(form, "lbl_Torque_1").text(); }
};

TEST_F(FlywheelWindow, ACoefficientIsTakenWhenItsFieldIsLeft) {
    In(ScreenId::frm_Flywheel, [](FormWindow& form) {
        Type(form, "txt_Fluct", "0.5");
        EXPECT_EQ(Tmax_With(form), "");
        Find<QPushButton>(form, "cmd_Cancel").setFocus();
        EXPECT_EQ(Tmax_With(form), "11");
    });
}

TEST_F(FlywheelWindow, WhatARefusalPutBackIsTakenWhenTheFieldIsLeftNext) {
    In(ScreenId::frm_Flywheel, [this](FormWindow& form) {
        auto& field = Find<QLineEdit>(form, "txt_Fluct");
        Type(form, "txt_Fluct", "0.5");
        Find<QPushButton>(form, "cmd_Cancel").setFocus();
        Type(form, "txt_Fluct", "-1");
        Await([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        Find<QPushButton>(form, "cmd_Cancel").setFocus();
        EXPECT_EQ(field.text(), "0.05");
        EXPECT_EQ(form.focusWidget(), &field);
        EXPECT_EQ(Tmax_With(form), "11") << "still that of 0.5";
        Find<QPushButton>(form, "cmd_Cancel").setFocus();
        EXPECT_EQ(Tmax_With(form), "10.1");
    });
}

}  // namespace
}  // namespace kervol
