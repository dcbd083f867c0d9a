// SPDX-License-Identifier: GPL-3.0-or-later
// The gate that stands before every control while the animation runs.
#include "qt/run_gate.h"

#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWindow>

#include "qt/window_test.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

void Drop_Text(QWidget& widget, const QString& text) {
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &drop);
}

/// A window with a picture, the button of the run, and what must not be reached.
class RunGateTest : public ::testing::Test {
  protected:
    RunGateTest() {
        auto* column = new QVBoxLayout(&window);
        for (QWidget* part :
             {static_cast<QWidget*>(&picture), static_cast<QWidget*>(&run), static_cast<QWidget*>(&step),
              static_cast<QWidget*>(&field), static_cast<QWidget*>(&bar)})
            column->addWidget(part);
        step.setText("&Step");
        bar.setOrientation(Qt::Horizontal);
        bar.setInvertedControls(false);
        QObject::connect(&run, &QPushButton::clicked, [this] { ++runs; });
        QObject::connect(&step, &QPushButton::clicked, [this] { ++steps; });
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        run.setFocus();
        gate = std::make_unique<RunGate>(picture, run);
    }

    QWidget window;
    QLabel picture{"picture"};
    QPushButton run, step;
    QLineEdit field{"12"};
    QScrollBar bar;
    int runs = 0, steps = 0;
    std::unique_ptr<RunGate> gate;
};

TEST_F(RunGateTest, EscapeAsksForTheEndWhereverTheFocusIs) {
    for (QWidget* widget : {static_cast<QWidget*>(&run), static_cast<QWidget*>(&field), &window}) {
        gate = nullptr;
        widget->setFocus();
        gate = std::make_unique<RunGate>(picture, run);
        EXPECT_FALSE(gate->Is_End_Asked());
        QTest::keyClick(widget, Qt::Key_Escape);
        EXPECT_TRUE(gate->Is_End_Asked());
    }
}

TEST_F(RunGateTest, TheCloseBoxAsksForTheEndAndTheWindowStays) {
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(gate->Is_End_Asked());
}

TEST_F(RunGateTest, TheButtonOfTheRunWorksByMouseAndBySpace) {
    QTest::mouseClick(&run, Qt::LeftButton);
    EXPECT_EQ(runs, 1);
    QTest::keyClick(&run, Qt::Key_Space);
    EXPECT_EQ(runs, 2);
}

TEST_F(RunGateTest, NoOtherControlIsReachedByKeysMouseOrWheel) {
    QTest::keyClicks(&field, "7");
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClick(&bar, Qt::Key_Right);
    QTest::mouseClick(&step, Qt::LeftButton);
    QTest::mouseClick(&field, Qt::LeftButton);
    QTest::mouseDClick(&field, Qt::LeftButton);
    QTest::keyClick(&step, Qt::Key_Space);
    QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
    Turn_Wheel(bar);
    EXPECT_EQ(field.text(), "12");
    EXPECT_EQ(field.selectedText(), "");
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(steps, 0);
    EXPECT_FALSE(step.isDown()) << "what a mnemonic presses is clicked a moment later";
    EXPECT_FALSE(gate->Is_End_Asked());
}

TEST_F(RunGateTest, TheFocusStaysWhereItIs) {
    for (const int key : {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Right}) {
        gate = nullptr;
        run.setFocus();
        gate = std::make_unique<RunGate>(picture, run);
        QTest::keyClick(&run, static_cast<Qt::Key>(key));
        EXPECT_TRUE(run.hasFocus()) << key;
    }
}

TEST_F(RunGateTest, PressesOfTheMouseLeaveTheFocusWhereItIs) {
    // As the system delivers them: to the window, which finds the control.
    for (QWidget* widget : {static_cast<QWidget*>(&field), static_cast<QWidget*>(&step)}) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                          widget->mapTo(&window, widget->rect().center()));
        EXPECT_TRUE(run.hasFocus());
    }
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, run.mapTo(&window, run.rect().center()));
    EXPECT_EQ(runs, 1);
}

TEST_F(RunGateTest, TextDroppedOnAFieldIsHeldOff) {
    Drop_Text(field, "99");
    EXPECT_EQ(field.text(), "12");
    gate = nullptr;
    Drop_Text(field, "99");
    EXPECT_NE(field.text(), "12") << "it can be dropped at other times";
}

TEST_F(RunGateTest, WhenTheRunIsOverEverythingIsReachedAgain) {
    gate = nullptr;
    field.setFocus();
    QTest::keyClicks(&field, "7");
    QTest::mouseClick(&step, Qt::LeftButton);
    QTest::keyClick(&step, Qt::Key_S, Qt::AltModifier);
    QTest::keyClick(&bar, Qt::Key_Right);
    EXPECT_EQ(field.text(), "127");
    EXPECT_TRUE(QTest::qWaitFor([this] { return steps == 2; }, 2000));
    EXPECT_EQ(bar.value(), 1);
    EXPECT_TRUE(window.close());
}

TEST_F(RunGateTest, TimersFireWhileAPositionStands) {
    // Due before the position's own time, which is waited for in the same loop.
    bool fired = false;
    QTimer::singleShot(1, Qt::PreciseTimer, &window, [&] { fired = true; });
    gate->Hold(60);
    EXPECT_TRUE(fired);
}

TEST_F(RunGateTest, APositionThatStandsForNoTimeStillAnswersTheKeyboard) {
    QTimer::singleShot(0, &window, [this] { QTest::keyClick(&run, Qt::Key_Escape); });
    for (int position = 0; position < 3; ++position) gate->Hold(0);
    EXPECT_TRUE(gate->Is_End_Asked());
}

}  // namespace
}  // namespace kervol
