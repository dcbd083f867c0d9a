// SPDX-License-Identifier: GPL-3.0-or-later
// The Input screen in the hands of a person.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QWindow>

#include "qt/window_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

class InputWindowTest : public WindowTest {
  protected:
    PictureList& Picture() { return dynamic_cast<PictureList&>(*screens.frm_Inputnew.Picture1); }
};

TEST_F(InputWindowTest, TheTabKeyGoesThroughTheFieldsInTheirOrder) {
    In(ScreenId::frm_Inputnew, [](FormWindow& form) {
        Click(form, "cmd_Calc");
        Find<QWidget>(form, "opt_SteveWatt_0").setFocus();
        QStringList order;
        QWidget* first = QApplication::focusWidget();
        ASSERT_EQ(first, &Find<QWidget>(form, "opt_SteveWatt_0"));
        for (int i = 0; i < 60; ++i) {
            order.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            if (QApplication::focusWidget() == first) break;
        }
        const QStringList expected = {
            "opt_SteveWatt_0", "opt_OpenCross1_0", "opt_OpenCross2_0", "txt_Linkout_1",  "txt_Linkout_2",
            "txt_Linkout_3",   "txt_Linkout_10",   "txt_Linkout_11",   "txt_Linkout_12", "txt_Linkout_13",
            "txt_Linkout_15",  "txt_Linkout_16",   "txt_Linkout_8",    "txt_Linkout_9",  "txt_Linkout_6",
            "txt_Linkout_7",   "txt_Linkout_4",    "txt_Linkout_5",    "opt_Calctype_0", "txt_Initial_0",
            "txt_Initial_1",   "txt_Initial_2",    "txt_Initial_3"};
        EXPECT_EQ(order.mid(0, expected.size()), expected) << order.join(' ').toStdString();
        EXPECT_EQ(order.last(), "cmd_Next");
        EXPECT_TRUE(order.contains("hsc_step"));
    });
}

TEST_F(InputWindowTest, AMnemonicCalculatesWithTheNumberJustTyped) {
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        Type(form, "txt_Linkout_1", "2.25");
        EXPECT_EQ(program->model.Link2, 2.0F);
        EXPECT_FALSE(Find<QPushButton>(form, "cmd_Step").isEnabled());
        QTest::keyClick(&form, Qt::Key_C, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([&] { return program->model.DataCalculated; }, 2000));
        EXPECT_EQ(program->model.Link2, 2.25F);
        EXPECT_NEAR(program->tables.PointPos(0, 0)(0), 2.25, 1e-5);
        EXPECT_TRUE(Find<QPushButton>(form, "cmd_Step").isEnabled());
        EXPECT_FALSE(Picture().Is_Empty());
    });
}

TEST_F(InputWindowTest, EnterInAFieldTakesTheNumberAndPressesNothing) {
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        Type(form, "txt_Linkout_1", "2.5");
        QTest::keyClick(&Find<QLineEdit>(form, "txt_Linkout_1"), Qt::Key_Return);
        EXPECT_EQ(program->model.Link2, 2.5F);
        EXPECT_FALSE(program->model.DataCalculated);
        EXPECT_TRUE(form.isVisible());
    });
}

TEST_F(InputWindowTest, LookingAtAFieldDoesNotRoundTheValueBehindIt) {
    program->model.CouplerAC = 8.75F;
    port.Fill_Screens();
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        auto& field = Find<QLineEdit>(form, "txt_Linkout_10");
        EXPECT_EQ(field.text(), "8.8");
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_Tab);
        EXPECT_EQ(program->model.CouplerAC, 8.75F);
    });
}

TEST_F(InputWindowTest, ANegativeLengthIsWarnedAboutAndTurned) {
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        Await([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        Type(form, "txt_Linkout_3", "-7.5");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(program->model.Link4, 7.5F);
    });
}

TEST_F(InputWindowTest, ABoxThatALostFocusBringsUpDoesNotLeaveTheClickedButtonDown) {
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        Await([](QDialog& dialog) {
            // The box gets the release of the click that brought it up.
            QTest::mouseRelease(dialog.windowHandle(), Qt::LeftButton, {}, {2, 2});
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        Type(form, "txt_Initial_2", "-3");
        auto& calc = Find<QPushButton>(form, "cmd_Calc");
        QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, calc.mapTo(&form, QPoint(9, 9)));
        EXPECT_TRUE(QTest::qWaitFor([&] { return !calc.isDown(); }, 500));
        EXPECT_EQ(form.focusWidget(), &calc);
    });
}

TEST_F(InputWindowTest, TheStepBarFollowsTheButtonsAndMovesTheLinkage) {
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        Click(form, "cmd_Calc");
        auto& bar = Find<QScrollBar>(form, "hsc_step");
        EXPECT_EQ(bar.maximum(), program->model.NumSteps);
        Click(form, "cmd_Reset");
        EXPECT_EQ(bar.value(), 0);
        QTest::keyClick(&bar, Qt::Key_Right);
        EXPECT_EQ(bar.value(), 1);
        EXPECT_EQ(program->animation.CurrentStep, 1);
        EXPECT_EQ(Find<QLabel>(form, "lbl_StepNumber").text(), "10.0");
        QTest::keyClick(&bar, Qt::Key_End);
        EXPECT_EQ(Find<QLabel>(form, "lbl_StepNumber").text(), "360.0");
        EXPECT_EQ(Find<QWidget>(form, "Picture1").accessibleDescription(), "Step 36, Theta2 360.0 deg");
    });
}

TEST_F(InputWindowTest, TheChainRelabelsTheFieldsAndItsFigure) {
    In(ScreenId::frm_Inputnew, [](FormWindow& form) {
        EXPECT_EQ(Find<QLabel>(form, "lbl_Chain").text(), "Watt Kervol Linkage");
        Find<QRadioButton>(form, "opt_SteveWatt_1").click();
        EXPECT_EQ(Find<QLabel>(form, "lbl_Chain").text(), "Stephenson Kervol Linkage");
        EXPECT_EQ(Find<QLabel>(form, "lbl_Left_7").text(), "Link 6 (O6-D)");
        EXPECT_FALSE(Find<QLineEdit>(form, "txt_Linkout_4").isVisible());
    });
}

TEST_F(InputWindowTest, ARefusedEntryThatCallsBackIsRefusedOnceByOneLeaving) {
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        auto& step = Find<QLineEdit>(form, "txt_Initial_2");
        step.setFocus();
        step.setText("0.1");
        int boxes = 0;
        for (int i = 0; i < 3; ++i)
            Await([&](QDialog& dialog) {
                ++boxes;
                QTest::keyClick(&dialog, Qt::Key_Return);
            });
        // Once for leaving the field, once for the check of the range, once for the last check.
        Click(form, "cmd_Calc");
        EXPECT_EQ(boxes, 3);
        EXPECT_EQ(form.focusWidget(), &step);
        // It stays as it is: leaving it unchanged says nothing new.
        Click(form, "cmd_Cancel");
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(InputWindowTest, TextPutByAnAssistiveToolCountsAsTyped) {
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        Find<QLineEdit>(form, "txt_Linkout_1").setText("3.5");
        Find<QCheckBox>(form, "chk_autocalc").setChecked(true);
        EXPECT_EQ(screens.frm_Inputnew.txt_Linkout[1].text, "3.5");
        EXPECT_TRUE(screens.frm_Inputnew.chk_autocalc.on);
        Click(form, "cmd_Calc");
        EXPECT_EQ(program->model.Link2, 3.5F);
    });
}

}  // namespace
}  // namespace kervol
