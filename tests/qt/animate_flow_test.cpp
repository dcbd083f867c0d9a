// SPDX-License-Identifier: GPL-3.0-or-later
// To the Animation screen, back and on, as a person goes.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QThread>

#include "qt/window_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

class AnimateFlowTest : public WindowTest {
  protected:
    FormWindow& Home() { return port.Form(ScreenId::frm_HomeScreen); }
    /// Shows Home, presses a button on it, and returns when all that it opened has closed.
    void From_Home(const char* button) {
        port.Show_Screen(ScreenId::frm_HomeScreen, Modality::Modeless);
        Press(Home(), button);
    }
    std::vector<std::string> Visible_Windows() {
        std::vector<std::string> names;
        for (const QWidget* widget : QApplication::topLevelWidgets())
            if (widget->isVisible())
                names.push_back(widget->windowTitle().section("   ", 0, 0).toStdString());
        return names;
    }
    void Expect_Home_Alone() {
        EXPECT_THAT(Visible_Windows(), ::testing::ElementsAre("Home Screen"));
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Home()));
    }
    void Expect_Over_Home(const char* screen) {
        EXPECT_THAT(Visible_Windows(), ::testing::UnorderedElementsAre("Home Screen", screen));
    }
    static void Calculate_And_Press(FormWindow& form, const char* button) {
        Press(form, "cmd_Calc");
        Press(form, button);
    }
    Stop Input(const std::function<void(FormWindow& form)>& act) { return {ScreenId::frm_Inputnew, act}; }
    Stop Animation(const std::function<void(FormWindow& form)>& act) { return {ScreenId::frm_Animate, act}; }
    /// Changes a length, and has it calculated.
    static void Edit(FormWindow& form) {
        Type(form, "txt_Linkout_1", "2.25");
        Press(form, "cmd_Recalc");
    }
    /// Opens the Animation screen, has a length and the title edited, and leaves the screen by `leave`.
    void Leave_Edited(const std::function<void(FormWindow& form)>& leave) {
        Follow({Input([](FormWindow& form) { Calculate_And_Press(form, "cmd_Next"); }),
                Animation([&](FormWindow& form) {
                    Edit(form);
                    Type(form, "txt_header", "Press arm");
                    leave(form);
                })});
        From_Home("cmd_Input");
        EXPECT_EQ(program->model.ModelTitle, "Press arm");
        EXPECT_EQ(program->model.DesignNumber, 2);
        Expect_Home_Alone();
    }
};

TEST_F(AnimateFlowTest, NextOfTheInputScreenOpensItAndItsOwnNextLeadsHome) {
    Follow({Input([](FormWindow& form) { Calculate_And_Press(form, "cmd_Next"); }),
            Animation([this](FormWindow& form) {
                Expect_Over_Home("Animation Screen");
                EXPECT_EQ(Find<QLabel>(form, "lbl_StepNumber").text(), "10.0");
                Press(form, "cmd_Done");
            })});
    From_Home("cmd_Input");
    Expect_Home_Alone();
    EXPECT_TRUE(Find<QPushButton>(Home(), "cmd_Animate").isEnabled());
}

TEST_F(AnimateFlowTest, TheInputScreensAnimateButtonOpensItToo) {
    Follow({Input([](FormWindow& form) { Calculate_And_Press(form, "cmd_Animate"); }),
            Animation([this](FormWindow& form) {
                Expect_Over_Home("Animation Screen");
                Press(form, "cmd_Done");
            })});
    From_Home("cmd_Input");
    Expect_Home_Alone();
}

TEST_F(AnimateFlowTest, BackOpensTheInputScreenAnewAndItsOwnBackLeadsHome) {
    Follow({Input([](FormWindow& form) { Calculate_And_Press(form, "cmd_Next"); }),
            Animation([](FormWindow& form) {
                Edit(form);
                Press(form, "cmd_Back");
            }),
            Input([this](FormWindow& form) {
                Expect_Over_Home("Input Screen");
                EXPECT_EQ(Find<QLineEdit>(form, "txt_Linkout_1").text(), "2.250") << "filled again";
                EXPECT_FALSE(Find<QPushButton>(form, "cmd_Next").isEnabled()) << "as at every opening";
                EXPECT_FALSE(program->model.DataCalculated);
                Press(form, "cmd_Cancel");
            })});
    From_Home("cmd_Input");
    Expect_Home_Alone();
}

TEST_F(AnimateFlowTest, HomeOpensItOnceThereIsSomethingToMove) {
    Follow({Input([](FormWindow& form) { Calculate_And_Press(form, "cmd_Cancel"); }),
            Animation([this](FormWindow& form) {
                Expect_Over_Home("Animation Screen");
                Press(form, "cmd_Done");
            }),
            Animation([](FormWindow& form) { Press(form, "cmd_Back"); }),
            Input([](FormWindow& form) { Press(form, "cmd_Cancel"); })});
    port.Show_Screen(ScreenId::frm_HomeScreen, Modality::Modeless);
    EXPECT_FALSE(Find<QPushButton>(Home(), "cmd_Animate").isEnabled());
    Press(Home(), "cmd_Input");
    ASSERT_TRUE(Find<QPushButton>(Home(), "cmd_Animate").isEnabled());
    Press(Home(), "cmd_Animate");
    Expect_Home_Alone();
    Press(Home(), "cmd_Animate");
    Expect_Home_Alone();
}

TEST_F(AnimateFlowTest, TwoHundredRoundsDeepenNothingAndLeaveNoWindow) {
    constexpr int kRounds = 200;
    int input_level = 0, animation_level = 0, rounds = 0;
    std::vector<Stop> route;
    const auto keep_level = [](int& level) {
        const int now = QThread::currentThread()->loopLevel();
        if (level == 0) level = now;
        ASSERT_EQ(now, level) << "one event loop waits within another";
    };
    for (int round = 0; round < kRounds; ++round) {
        route.push_back(Input([&](FormWindow& form) {
            keep_level(input_level);
            Calculate_And_Press(form, "cmd_Next");
        }));
        route.push_back(Animation([&, round](FormWindow& form) {
            keep_level(animation_level);
            Expect_Over_Home("Animation Screen");
            ++rounds;
            Press(form, round + 1 < kRounds ? "cmd_Back" : "cmd_Done");
        }));
    }
    Follow(std::move(route));
    From_Home("cmd_Input");
    EXPECT_EQ(rounds, kRounds);
    EXPECT_EQ(QThread::currentThread()->loopLevel(), 0);
    Expect_Home_Alone();
}

TEST_F(AnimateFlowTest, AfterManyRoundsABoxStillStandsOverTheFrontScreen) {
    Follow({Input([](FormWindow& form) { Calculate_And_Press(form, "cmd_Next"); }),
            Animation([](FormWindow& form) { Press(form, "cmd_Back"); }),
            Input([](FormWindow& form) { Calculate_And_Press(form, "cmd_Next"); }),
            Animation([this](FormWindow& form) {
                Await([&](QDialog& dialog) {
                    EXPECT_EQ(dialog.parentWidget(), &form);
                    QTest::keyClick(&dialog, Qt::Key_Escape);
                });
                Press(form, "cmd_Copy");
                EXPECT_TRUE(form.isVisible());
                Press(form, "cmd_Done");
            })});
    From_Home("cmd_Input");
    Expect_Home_Alone();
}

TEST_F(AnimateFlowTest, NextEscapeAndTheCloseBoxTakeTheTitleAndCountTheDesign) {
    Leave_Edited([](FormWindow& form) { Press(form, "cmd_Done"); });
    program->model.DesignNumber = 1;
    Leave_Edited([](FormWindow& form) { QTest::keyClick(form.focusWidget(), Qt::Key_Escape); });
    program->model.DesignNumber = 1;
    Leave_Edited([](FormWindow& form) { form.close(); });
}

TEST_F(AnimateFlowTest, EscapeAndTheCloseBoxGoBackWhereNextMayNotBePressed) {
    for (const bool escape : {true, false}) {
        Follow({Input([](FormWindow& form) { Calculate_And_Press(form, "cmd_Next"); }),
                Animation([escape](FormWindow& form) {
                    Type(form, "txt_Linkout_1", "2.25");
                    EXPECT_FALSE(Find<QPushButton>(form, "cmd_Done").isEnabled());
                    if (escape)
                        QTest::keyClick(form.focusWidget(), Qt::Key_Escape);
                    else
                        form.close();
                    EXPECT_FALSE(form.isVisible());
                }),
                Input([this](FormWindow& form) {
                    Expect_Over_Home("Input Screen");
                    EXPECT_EQ(Find<QLineEdit>(form, "txt_Linkout_1").text(), "2.250") << "it is not lost";
                    Press(form, "cmd_Cancel");
                })});
        From_Home("cmd_Input");
        Expect_Home_Alone();
    }
}

}  // namespace
}  // namespace kervol
