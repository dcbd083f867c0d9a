// SPDX-License-Identifier: GPL-3.0-or-later
// The Fourier and the flywheel screen on their widgets: lists that drop down, and what is shown.
#include <QAbstractItemView>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include "dynamics/solve_forces.h"
#include "kinematics/step_count.h"
#include "qt/chart_widget.h"
#include "qt/choice_box.h"
#include "qt/window_test.h"

namespace kervol {
namespace {

class AnalysisWindowTest : public WindowTest {
  protected:
    AnalysisWindowTest() {
        Calculate_Model(*program);
        Run_Dynamics(*program);
    }

    static ChoiceBox& Box(const FormWindow& form, const char* name) { return Find<ChoiceBox>(form, name); }
    void Answer_With_Enter() {
        Await([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    }

    const FourierState& fourier = program->fourier;
};

TEST_F(AnalysisWindowTest, AFunctionIsPickedFromTheOpenListOnly) {
    In(ScreenId::frm_FFT, [this](FormWindow& form) {
        ChoiceBox& box = Box(form, "cmb_Var1");
        EXPECT_TRUE(box.hasFocus());
        EXPECT_EQ(box.currentText(), "");
        QTest::keyClick(&box, Qt::Key_Down);
        ASSERT_TRUE(box.view()->isVisible());
        EXPECT_FALSE(fourier.FFTReady) << "nothing is picked on the way";
        QTest::keyClick(box.view(), Qt::Key_Home);
        QTest::keyClick(box.view(), Qt::Key_Down);
        EXPECT_FALSE(fourier.FFTReady);
        QTest::keyClick(box.view(), Qt::Key_Return);
        EXPECT_TRUE(fourier.FFTReady);
        EXPECT_EQ(screens.frm_FFT.cmb_Var1.text, screens.frm_FFT.cmb_Var1.items.at(1));
        EXPECT_EQ(box.currentText().toStdString(), screens.frm_FFT.cmb_Var1.text);
        EXPECT_TRUE(Find<QPushButton>(form, "cmd_Done").hasFocus());
    });
}

TEST_F(AnalysisWindowTest, ALongListDropsDownBelowItsBox) {
    In(ScreenId::frm_FFT, [](FormWindow& form) {
        ChoiceBox& box = Box(form, "cmb_Var1");
        ASSERT_GT(box.count(), 60);
        box.showPopup();
        const QWidget& list = *box.view()->window();
        EXPECT_GE(list.y(), box.mapToGlobal(box.rect().bottomLeft()).y());
        EXPECT_LE(list.geometry().bottom(), form.screen()->geometry().bottom());
        box.hidePopup();
    });
}

TEST_F(AnalysisWindowTest, TheWheelPicksNothing) {
    In(ScreenId::frm_FFT, [this](FormWindow& form) {
        Turn_Wheel(Box(form, "cmb_Com1"));
        EXPECT_EQ(screens.frm_FFT.cmb_Com1.text, "X");
        EXPECT_FALSE(fourier.FFTReady);
    });
}

TEST_F(AnalysisWindowTest, ATypedNumberOfHarmonicsIsTakenByEnter) {
    In(ScreenId::frm_FFT, [this](FormWindow& form) {
        screens.frm_FFT.cmb_Var1.text = "Theta3";
        port.Run(screens.frm_FFT.cmb_Var1.click);
        ChoiceBox& box = Box(form, "cmb_Harmonics");
        box.setFocus(Qt::TabFocusReason);
        EXPECT_EQ(box.lineEdit()->selectedText(), "18") << "getting the focus selects the text";
        QTest::keyClicks(&box, "7");
        EXPECT_EQ(fourier.NumHarmonics, 18) << "nothing is taken while it is typed";
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_EQ(fourier.NumHarmonics, 7);
        EXPECT_EQ(box.currentText(), "7");
        EXPECT_TRUE(form.isVisible()) << "Enter presses no button";
    });
}

TEST_F(AnalysisWindowTest, AClickIntoTheNumberOfHarmonicsSelectsItForTyping) {
    In(ScreenId::frm_FFT, [](FormWindow& form) {
        ChoiceBox& box = Box(form, "cmb_Harmonics");
        form.findChild<QWidget*>("cmd_Calc")->setFocus();
        const QPoint inside(4, box.lineEdit()->height() / 2);
        QTest::mouseClick(box.lineEdit(), Qt::LeftButton, Qt::NoModifier, inside);
        EXPECT_EQ(box.lineEdit()->selectedText(), "18");
        QTest::mouseClick(box.lineEdit(), Qt::LeftButton, Qt::NoModifier, inside);
        EXPECT_EQ(box.lineEdit()->selectedText(), "") << "a second click sets the cursor";
        box.lineEdit()->selectAll();
        QTest::keyClicks(&box, "40");
        EXPECT_EQ(box.currentText(), "40");
    });
}

TEST_F(AnalysisWindowTest, ATypedNumberOfHarmonicsIsTakenByTheCalculateButton) {
    In(ScreenId::frm_FFT, [this](FormWindow& form) {
        ChoiceBox& box = Box(form, "cmb_Harmonics");
        box.setFocus(Qt::TabFocusReason);
        // An entry of the list as well: leaving the box picks nothing, so no box asks for a function.
        QTest::keyClicks(&box, "9");
        Click(form, "cmd_Calc");
        EXPECT_EQ(fourier.NumHarmonics, 9);
        EXPECT_TRUE(fourier.FFTReady);
    });
}

TEST_F(AnalysisWindowTest, EnterOnNoFunctionAsksForOneAndComesBack) {
    In(ScreenId::frm_FFT, [this](FormWindow& form) {
        ChoiceBox& box = Box(form, "cmb_Var1");
        Answer_With_Enter();
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        EXPECT_TRUE(box.hasFocus());
    });
}

TEST_F(AnalysisWindowTest, TheGraphsOfASpectrumShowTheRecords) {
    In(ScreenId::frm_FFT, [this](FormWindow& form) {
        form.resize(1280, 800);
        screens.frm_FFT.cmb_Var1.text = "Theta3";
        port.Run(screens.frm_FFT.cmb_Var1.click);
        for (int graph = 0; graph < 4; ++graph) {
            const auto& chart = Find<ChartWidget>(form, ("grf_Plot_" + std::to_string(graph)).c_str());
            EXPECT_TRUE(chart.isVisible());
            EXPECT_EQ(chart.Look(), screens.frm_FFT.grf_Plot.at(static_cast<std::size_t>(graph)).look);
            EXPECT_GE(chart.width(), 350);
            EXPECT_GE(chart.height(), 200);
        }
    });
}

TEST_F(AnalysisWindowTest, NextTellsWhereTheSpectrumIsAndCloses) {
    In(ScreenId::frm_FFT, [this](FormWindow& form) {
        EXPECT_FALSE(Find<QPushButton>(form, "cmd_Done").isEnabled());
        screens.frm_FFT.cmb_Var1.text = "Theta3";
        port.Run(screens.frm_FFT.cmb_Var1.click);
        Answer_With_Enter();
        Click(form, "cmd_Done");
        EXPECT_FALSE(form.isVisible());
        EXPECT_TRUE(fourier.FFTReady);
    });
}

TEST_F(AnalysisWindowTest, TheFlywheelShowsItsGraphsOnceItHasCalculated) {
    In(ScreenId::frm_Flywheel, [](FormWindow& form) {
        const auto& first = Find<QWidget>(form, "grf_Plot_0");
        EXPECT_FALSE(first.isVisible());
        Click(form, "cmd_Calc");
        EXPECT_TRUE(first.isVisible());
        EXPECT_TRUE(Find<QWidget>(form, "grf_Plot_1").isVisible());
        EXPECT_NE(Find<QLabel>(form, "lbl_Torque_0").text(), "");
    });
}

TEST_F(AnalysisWindowTest, TheEnergiesStandInAlignedColumns) {
    In(ScreenId::frm_Flywheel, [](FormWindow& form) {
        Click(form, "cmd_Calc");
        const auto& text = Find<QLabel>(form, "pct_Pict1");
        EXPECT_EQ(text.fontMetrics().horizontalAdvance("iiii"), text.fontMetrics().horizontalAdvance("WWWW"));
        EXPECT_EQ(text.textFormat(), Qt::PlainText);
        EXPECT_GE(text.width(), text.sizeHint().width());
        EXPECT_GE(text.height(), text.sizeHint().height());
    });
}

TEST_F(AnalysisWindowTest, ARefusedCoefficientComesBackAs005) {
    In(ScreenId::frm_Flywheel, [this](FormWindow& form) {
        Type(form, "txt_Fluct", "0");
        Answer_With_Enter();
        QTest::keyClick(&Find<QLineEdit>(form, "txt_Fluct"), Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        EXPECT_EQ(Find<QLineEdit>(form, "txt_Fluct").text(), "0.05");
        EXPECT_TRUE(Find<QLineEdit>(form, "txt_Fluct").hasFocus());
    });
}

TEST_F(AnalysisWindowTest, WhatARefusalPutBackIsTakenWhenTheFieldIsLeftNext) {
    // Fluctuates by 2 about 10.
    auto& torque = program->tables.TorqueTable;
    for (int step = 0; step <= program->model.NumSteps; ++step) torque(step, 0) = 10;
    torque(7, 0) = 12;
    torque(9, 0) = 8;
    In(ScreenId::frm_Flywheel, [this](FormWindow& form) {
        const auto& field = Find<QLineEdit>(form, "txt_Fluct");
        const auto& maximum = Find<QLabel>(form, "lbl_Torque_1");
        const auto leave = [&form] { Find<QPushButton>(form, "cmd_Cancel").setFocus(); };
        Type(form, "txt_Fluct", "0.5");
        leave();
        EXPECT_EQ(maximum.text(), "11");
        Type(form, "txt_Fluct", "-1");
        Answer_With_Enter();
        leave();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form)) << "comes back behind the box";
        EXPECT_EQ(field.text(), "0.05");
        EXPECT_EQ(form.focusWidget(), &field);
        EXPECT_EQ(maximum.text(), "11") << "still that of 0.5";
        leave();
        EXPECT_EQ(maximum.text(), "10.1");
    });
}

}  // namespace
}  // namespace kervol
