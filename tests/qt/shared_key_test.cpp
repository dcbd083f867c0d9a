// SPDX-License-Identifier: GPL-3.0-or-later
// Alt+F on Home: the File menu first, then the others that carry an F.
#include <QAction>
#include <QMenu>
#include <QPushButton>

#include "qt/window_test.h"

namespace kervol {
namespace {

class SharedKeyTest : public WindowTest {
  protected:
    static QMenu* Menu(const FormWindow& home, const char* name) { return Find<QAction>(home, name).menu(); }
    static void Press_F(FormWindow& home) {
        QWidget* popup = QApplication::activePopupWidget();
        if (popup != nullptr)
            QTest::keyClick(popup, Qt::Key_F);
        else
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::AltModifier);
        // A menu that opened takes the keys.
        QTest::qWait(1);
        ASSERT_TRUE(home.isVisible());
    }
    static void Press_Escape() {
        while (QWidget* popup = QApplication::activePopupWidget()) QTest::keyClick(popup, Qt::Key_Escape);
    }
    void Allow(bool flywheel) {
        screens.frm_HomeScreen.cmd_Flywheel.enabled = flywheel;
        port.Run({});
    }
};

TEST_F(SharedKeyTest, BeginsAtTheFileMenuEachTime) {
    for (const bool flywheel : {false, true}) {
        In(ScreenId::frm_HomeScreen, [&](FormWindow& home) {
            Allow(flywheel);
            for (int time = 0; time < 4; ++time) {
                Press_F(home);
                EXPECT_EQ(QApplication::activePopupWidget(), Menu(home, "mnu_file")) << "time " << time;
                EXPECT_EQ(Menu(home, "mnu_file")->activeAction(), &Find<QAction>(home, "mnu_Open"))
                    << "the first entry that can be chosen";
                Press_Escape();
            }
        });
    }
}

TEST_F(SharedKeyTest, GoesOnInTurnToTheMenuAndTheButton) {
    In(ScreenId::frm_HomeScreen, [&](FormWindow& home) {
        Allow(true);
        Press_F(home);
        Press_F(home);
        EXPECT_EQ(QApplication::activePopupWidget(), Menu(home, "mnu_FFT"));
        Press_F(home);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_EQ(QApplication::focusWidget(), &Find<QPushButton>(home, "cmd_Flywheel"));
        Press_F(home);
        EXPECT_EQ(QApplication::activePopupWidget(), Menu(home, "mnu_file"));
        Press_Escape();
    });
}

TEST_F(SharedKeyTest, PassesAButtonThatCannotBeUsed) {
    In(ScreenId::frm_HomeScreen, [&](FormWindow& home) {
        Allow(false);
        for (const char* menu : {"mnu_file", "mnu_FFT", "mnu_file"}) {
            Press_F(home);
            EXPECT_EQ(QApplication::activePopupWidget(), Menu(home, menu));
        }
        Press_Escape();
    });
}

}  // namespace
}  // namespace kervol
