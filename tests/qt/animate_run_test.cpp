// SPDX-License-Identifier: GPL-3.0-or-later
// A run of the animation on its screen: what it paints, how a person ends it, and what is held off meanwhile.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QWindow>

#include "qt/animate_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Each;
using ::testing::ElementsAreArray;
using ::testing::Field;
using ::testing::IsEmpty;

class RunTest : public AnimateTest {
  protected:
    /// The end is asked for at row 5: row 6 is left standing.
    void Expect_Ended_At_Row_5(FormWindow& form) {
        EXPECT_THAT(Rows_Seen(), ElementsAreArray(Rows_To(5)));
        EXPECT_THAT(Standing(), ::testing::ElementsAre(6));
        EXPECT_TRUE(form.isVisible());
        EXPECT_TRUE(Find<QWidget>(form, "cmd_Run").isEnabled());
    }
    void End_By(const std::function<void(FormWindow& form)>& ask) {
        program->model.AnimCycles = 3;
        Open([&](FormWindow& form) {
            At_Row(5, [&] { ask(form); });
            Run(form);
            Expect_Ended_At_Row_5(form);
            // And once more from the start: the end of one run is not that of the next.
            Run(form);
            EXPECT_EQ(Rows_Seen().size(), 3 * kLast + 1);
        });
    }
    /// What a person does in the middle of a run does not change its course.
    void Hold_Off(const std::function<void(FormWindow& form)>& act) {
        Open([&](FormWindow& form) {
            bool done = false;
            At_Row(5, [&] {
                act(form);
                done = true;
            });
            Run(form);
            EXPECT_TRUE(done);
            EXPECT_THAT(Rows_Seen(), ElementsAreArray(Rows_To(kLast)));
            EXPECT_TRUE(form.isVisible());
        });
    }
};

TEST_F(RunTest, ARunPaintsEveryPositionOnceInItsOrder) {
    Open([this](FormWindow& form) {
        Run(form);
        EXPECT_THAT(Rows_Seen(), ElementsAreArray(Rows_To(kLast)));
        EXPECT_THAT(seen, Each(Field(&SeenPaint::cranks, 1U))) << "never a ghost, never an empty picture";
    });
}

TEST_F(RunTest, UnderTraceEveryPaintShowsOnePositionMore) {
    Open([this](FormWindow& form) {
        Find<QCheckBox>(form, "chk_Trace").setChecked(true);
        Run(form);
        EXPECT_THAT(Rows_Seen(), ElementsAreArray(Rows_To(kLast)));
        for (const SeenPaint& paint : seen) {
            if (paint.row == kLast) continue;
            EXPECT_EQ(paint.cranks, static_cast<std::size_t>(paint.row) + 1);
        }
    });
}

TEST_F(RunTest, EveryCycleGoesThroughAllPositions) {
    program->model.AnimCycles = 3;
    Open([this](FormWindow& form) {
        Run(form);
        std::vector<int> rows = Rows_To(kLast);
        for (int cycle = 1; cycle < 3; ++cycle)
            for (int row = 1; row <= kLast; ++row) rows.push_back(row);
        EXPECT_THAT(Rows_Seen(), ElementsAreArray(rows));
    });
}

TEST_F(RunTest, TheValueOfTheStepIsHiddenDuringARun) {
    Open([this](FormWindow& form) {
        auto& number = Find<QLabel>(form, "lbl_StepNumber");
        EXPECT_TRUE(number.isVisible());
        bool shown = true;
        At_Row(5, [&] { shown = number.isVisible(); });
        Run(form);
        EXPECT_FALSE(shown);
        EXPECT_FALSE(number.isVisible());
        Click(form, "cmd_Step");
        EXPECT_TRUE(number.isVisible());
    });
}

TEST_F(RunTest, TimersFireAndTheWindowIsSizedAnewDuringARun) {
    for (const int wait : {0, 1}) {
        // One millisecond a position, or none.
        program->model.AnimDelay = 4096;
        program->model.AnimWait = static_cast<std::int16_t>(wait);
        Open([this](FormWindow& form) {
            int ticks = 0, before = 0, after = 0;
            QTimer timer;
            timer.callOnTimeout([&] { ++ticks; });
            timer.start(0);
            const QSize old = Find<QWidget>(form, "Picture1").size();
            At_Row(5, [&] {
                before = ticks;
                form.resize(form.size() + QSize(120, 90));
            });
            At_Row(20, [&] { after = ticks; });
            Run(form);
            EXPECT_GT(after, before);
            EXPECT_THAT(Rows_Seen(), ElementsAreArray(Rows_To(kLast)));
            EXPECT_EQ(seen.front().size, old);
            EXPECT_GT(seen.back().size.width(), old.width());
            EXPECT_GT(seen.back().size.height(), old.height());
            const auto grown = [&](const SeenPaint& paint) { return paint.size != old; };
            EXPECT_LT(std::find_if(seen.begin(), seen.end(), grown)->row, kLast) << "not only at the end";
        });
    }
}

TEST_F(RunTest, EscapeEndsItAtTheNextPositionAndTheWindowStays) {
    End_By([](FormWindow& form) { QTest::keyClick(form.focusWidget(), Qt::Key_Escape); });
}

TEST_F(RunTest, TheRunButtonEndsItWhenClickedAgain) {
    End_By([](FormWindow& form) { Click(form, "cmd_Run"); });
}

TEST_F(RunTest, TheRunButtonEndsItWhenPressedByAKey) {
    End_By([](FormWindow& form) { QTest::keyClick(form.focusWidget(), Qt::Key_Return); });
}

TEST_F(RunTest, TheCloseBoxEndsItAndTheWindowStays) {
    End_By([](FormWindow& form) { EXPECT_FALSE(form.close()); });
}

TEST_F(RunTest, TheCloseBoxOfTheDesktopEndsItAndTheWindowStays) {
    End_By([](FormWindow& form) { EXPECT_FALSE(form.windowHandle()->close()); });
}

TEST_F(RunTest, AFieldIsNotEditedDuringIt) {
    const float before = program->model.Link2;
    Hold_Off([&](FormWindow& form) {
        auto& field = Find<QLineEdit>(form, "txt_Linkout_1");
        const QString text = field.text();
        QTest::keyClicks(&field, "99");
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_EQ(field.text(), text);
    });
    EXPECT_EQ(program->model.Link2, before);
}

TEST_F(RunTest, ClicksIntoFieldsNeitherEndItNorMoveTheFocus) {
    Hold_Off([&](FormWindow& form) {
        for (const char* name : {"txt_Linkout_1", "txt_Linkout_2", "txt_Initial_0"}) {
            auto& field = Find<QLineEdit>(form, name);
            QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {},
                              field.mapTo(&form, field.rect().center()));
        }
        EXPECT_EQ(form.focusWidget(), &Find<QWidget>(form, "cmd_Run"));
    });
    EXPECT_TRUE(program->model.DataCalculated);
    EXPECT_FALSE(screens.frm_Animate.GeometryEdited);
}

TEST_F(RunTest, NoOtherButtonIsPressedDuringIt) {
    int pressed = 0;
    AnimateScreen& screen = screens.frm_Animate;
    for (Button* button : {&screen.cmd_Step, &screen.cmd_Reset, &screen.cmd_Recalc, &screen.cmd_Copy,
                           &screen.cmd_Done, &screen.cmd_Back})
        button->click = [&] { ++pressed; };
    Hold_Off([&](FormWindow& form) {
        for (const char* name : {"cmd_Step", "cmd_Reset", "cmd_Recalc", "cmd_Copy", "cmd_Done", "cmd_Back"}) {
            Click(form, name);
            QTest::keyClick(&Find<QWidget>(form, name), Qt::Key_Return);
        }
        for (const Qt::Key key : {Qt::Key_S, Qt::Key_T, Qt::Key_P, Qt::Key_N, Qt::Key_B})
            QTest::keyClick(&form, key, Qt::AltModifier);
        // What a mnemonic presses is clicked a moment later.
        for (const auto* button : form.findChildren<QPushButton*>())
            EXPECT_FALSE(button->isDown()) << button->objectName().toStdString();
    });
    EXPECT_EQ(pressed, 0);
}

TEST_F(RunTest, NoSettingIsChangedDuringIt) {
    Hold_Off([&](FormWindow& form) {
        for (const char* box : {"chk_Trace", "chk_Showlinks", "chk_Coupler", "chk_Points"}) {
            auto& check = Find<QCheckBox>(form, box);
            const bool on = check.isChecked();
            QTest::mouseClick(&check, Qt::LeftButton, {}, {5, check.height() / 2});
            QTest::keyClick(&check, Qt::Key_Space);
            EXPECT_EQ(check.isChecked(), on) << box;
        }
        for (const char* name : {"hsc_speed", "hsc_step"}) {
            auto& bar = Find<QScrollBar>(form, name);
            const int value = bar.value();
            Turn_Wheel(bar);
            QTest::keyClick(&bar, Qt::Key_Right);
            QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() - 40, bar.height() / 2});
            EXPECT_EQ(bar.value(), value) << name;
        }
        Turn_Wheel(Find<QWidget>(form, "cmb_wait"));
    });
    EXPECT_EQ(screens.frm_Animate.cmb_wait.text, "1000");
}

TEST_F(RunTest, TheFocusIsStillOnTheRunButtonAfterKeysThatWouldMoveIt) {
    Hold_Off([&](FormWindow& form) {
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Down})
            QTest::keyClick(&Find<QWidget>(form, "cmd_Run"), key);
        EXPECT_EQ(form.focusWidget(), &Find<QWidget>(form, "cmd_Run"));
    });
}

TEST_F(RunTest, EverythingWorksAgainAfterIt) {
    Open([this](FormWindow& form) {
        At_Row(5, [&] { QTest::keyClick(form.focusWidget(), Qt::Key_Escape); });
        Run(form);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &Find<QWidget>(form, "cmd_Step"));
        QTest::keyClick(&form, Qt::Key_S, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return program->animation.CurrentStep == 1; }, 2000));
        auto& bar = Find<QScrollBar>(form, "hsc_step");
        QTest::keyClick(&bar, Qt::Key_End);
        EXPECT_EQ(program->animation.CurrentStep, kLast);
        QTest::mouseClick(&Find<QWidget>(form, "chk_Trace"), Qt::LeftButton, {}, {5, 8});
        EXPECT_TRUE(screens.frm_Animate.chk_Trace.on);
        Type(form, "txt_Linkout_1", "2.25");
        QTest::keyClick(&form, Qt::Key_Return);
        Click(form, "cmd_Recalc");
        EXPECT_EQ(program->model.Link2, 2.25F);
        EXPECT_NEAR(program->tables.PointPos(0, 0)(0), 2.25, 1e-5);
        QTest::keyClick(&form, Qt::Key_Escape);
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(RunTest, OfFailedPositionsItWarnsFirstAndThenRunsAllTheSame) {
    program->model.SomeStepFailed = true;
    Open([this](FormWindow& form) {
        Await([&](QDialog& dialog) {
            EXPECT_THAT(Rows_Seen(), IsEmpty()) << "nothing has run yet";
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        Run(form);
        EXPECT_EQ(Rows_Seen().back(), kLast);
    });
}

TEST_F(RunTest, ABoxThatComesUpDuringItCanBeAnswered) {
    Open([this](FormWindow& form) {
        // As a fault in the middle of a run brings one up.
        At_Row(5, [this] { EXPECT_EQ(port.Show_Message({"Subscript out of range"}), Answer::OK); });
        Await([](QDialog& dialog) {
            QTest::keyClick(&dialog, Qt::Key_Return);
            if (!dialog.isVisible()) return;
            ADD_FAILURE() << "it would stay for ever";
            dialog.hide();
        });
        Run(form);
        EXPECT_EQ(Rows_Seen().back(), kLast) << "an answer is no wish to end";
    });
}

TEST_F(RunTest, AfterARefusedRangeNothingRuns) {
    Open([this](FormWindow& form) {
        int boxes = 0;
        Await([&](QDialog& dialog) {
            ++boxes;
            EXPECT_TRUE(dynamic_cast<QMessageBox&>(dialog).text().contains("too small"));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        Type(form, "txt_Initial_2", "0.1");
        // Leaves the field; the tables have no room for the rows that it counted.
        Run(form);
        EXPECT_EQ(boxes, 1);
        EXPECT_EQ(program->model.NumSteps, 3600);
        EXPECT_THAT(Rows_Seen(), ::testing::SizeIs(::testing::Le(1U))) << "what stood before";
    });
}

}  // namespace
}  // namespace kervol
