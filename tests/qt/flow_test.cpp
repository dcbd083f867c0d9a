// SPDX-License-Identifier: GPL-3.0-or-later
// From one screen to the next, as a person goes.
#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "qt/window_test.h"
#include "screens/launch_screens.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

class FlowTest : public WindowTest {
  protected:
    FormWindow& Home() { return port.Form(ScreenId::frm_HomeScreen); }
    void Open_Home() { port.Show_Screen(ScreenId::frm_HomeScreen, Modality::Modeless); }
};

TEST_F(FlowTest, FromTheStartThroughACalculationToTheEnd) {
    Follow({
        {ScreenId::frm_Title, [](FormWindow& form) { QTest::keyClick(form.focusWidget(), Qt::Key_Return); }},
        {ScreenId::frm_Disclaimer,
         [&](FormWindow& form) {
             EXPECT_FALSE(port.Form(ScreenId::frm_Title).isVisible());
             QTest::keyClick(form.focusWidget(), Qt::Key_Return);
         }},
        {ScreenId::frm_User,
         [](FormWindow& form) {
             Type(form, "txt_UserName", "Ada");
             Press(form, "cmd_Done");
         }},
        {ScreenId::frm_HomeScreen,
         [&](FormWindow& form) {
             EXPECT_FALSE(program->model.StartingUp);
             EXPECT_FALSE(Find<QPushButton>(form, "cmd_Print").isEnabled());
             form.findChild<QAction*>("mnu_Hoeken")->trigger();
         }},
        {ScreenId::frm_Inputnew,
         [&](FormWindow& form) {
             EXPECT_TRUE(Home().isVisible()) << "a screen over Home leaves it visible";
             Press(form, "cmd_Calc");
             Press(form, "cmd_Cancel");
         }},
        {ScreenId::frm_HomeScreen,
         [&](FormWindow& form) {
             EXPECT_TRUE(program->model.DataCalculated);
             EXPECT_TRUE(form.findChild<QAction*>("mnu_Saveas")->isEnabled());
             Await([](QDialog& save) { save.reject(); });
             Press(form, "cmd_Quit");
         }},
        {ScreenId::frm_Quit, [](FormWindow& form) { Press(form, "cmd_YesQuit"); }},
    });
    QTimer::singleShot(0, [this] { Launch(screens, ""); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(program->model.UserName, "Ada");
    EXPECT_FALSE(Home().isVisible());
}

TEST_F(FlowTest, AScreenFromAModalOneHidesItAndBringsItBack) {
    Follow({
        {ScreenId::frm_Title, [](FormWindow& form) { Press(form, "cmd_Abort"); }},
        {ScreenId::frm_Quit,
         [&](FormWindow& form) {
             EXPECT_FALSE(port.Form(ScreenId::frm_Title).isVisible());
             Press(form, "cmd_NoQuit");
         }},
        {ScreenId::frm_Title,
         [&](FormWindow& form) {
             EXPECT_FALSE(port.Form(ScreenId::frm_Quit).isVisible());
             port.Hide_Screen(ScreenId::frm_Title);
             EXPECT_FALSE(form.isVisible());
         }},
    });
    port.Show_Screen(ScreenId::frm_Title, Modality::Modal);
}

TEST_F(FlowTest, HomeComesToTheFrontAgainWithItsButtonsRefreshed) {
    Follow({{ScreenId::frm_Inputnew, [](FormWindow& form) {
                 Press(form, "cmd_Calc");
                 Press(form, "cmd_Cancel");
             }}});
    Open_Home();
    EXPECT_FALSE(Home().findChild<QAction*>("mnu_Save")->isEnabled());
    program->model.NewData = false;
    Press(Home(), "cmd_Input");
    EXPECT_TRUE(program->model.NewData) << "coming to the front sets it";
    EXPECT_TRUE(Home().findChild<QAction*>("mnu_Save")->isEnabled());
}

TEST_F(FlowTest, ModalScreensUnwindWhenTheLowerOnesHaveClosed) {
    program->model.StartingUp = true;
    Follow({
        {ScreenId::frm_Title, [](FormWindow& form) { Press(form, "cmd_Start"); }},
        {ScreenId::frm_Disclaimer, [](FormWindow& form) { form.close(); }},
        {ScreenId::frm_User, [](FormWindow& form) { Press(form, "cmd_Done"); }},
    });
    port.Show_Screen(ScreenId::frm_Title, Modality::Modal);
    EXPECT_TRUE(Home().isVisible());
    for (const ScreenId screen : {ScreenId::frm_Title, ScreenId::frm_Disclaimer, ScreenId::frm_User})
        EXPECT_FALSE(port.Form(screen).isVisible());
}

TEST_F(FlowTest, TheDisclaimerFromTheHelpMenuDoesNotRunTheStartAgain) {
    Follow({{ScreenId::frm_Disclaimer, [](FormWindow& form) { Press(form, "cmd_Done"); }}});
    Open_Home();
    Home().findChild<QAction*>("mnu_Disclaimer")->trigger();
    EXPECT_FALSE(port.Form(ScreenId::frm_User).isVisible());
    EXPECT_TRUE(Home().isVisible());
}

TEST_F(FlowTest, TheCloseBoxOfHomeAsksBeforeItEnds) {
    Follow({{ScreenId::frm_Quit, [](FormWindow& form) { Press(form, "cmd_NoQuit"); }}});
    Open_Home();
    Home().close();
    EXPECT_TRUE(Home().isVisible());
}

TEST_F(FlowTest, EscapeDoesNotTakeTheHomeScreenAway) {
    Open_Home();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Home()));
    QTest::keyClick(&Home(), Qt::Key_Escape);
    EXPECT_TRUE(Home().isVisible());
}

TEST_F(FlowTest, AUnitSystemIsChosenByItsMenuAndMarkedAlone) {
    Open_Home();
    Home().findChild<QAction*>("mnu_pick_3")->trigger();
    EXPECT_EQ(program->model.UnitSystem, 3);
    for (int i = 1; i <= 5; ++i)
        EXPECT_EQ(Home().findChild<QAction*>("mnu_pick_" + QString::number(i))->isChecked(), i == 3) << i;
}

TEST_F(FlowTest, MenusOpenByTheirMnemonics) {
    Open_Home();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Home()));
    QTest::keyClick(&Home(), Qt::Key_E, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }, 2000));
    Follow({{ScreenId::frm_Inputnew, [](FormWindow& form) { Press(form, "cmd_Cancel"); }}});
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_R);
    EXPECT_THAT(program->model.ModelTitle, ::testing::HasSubstr("Roberts"));
}

}  // namespace
}  // namespace kervol
