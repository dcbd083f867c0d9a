// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/binder.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

template <class Widget>
Widget* Named(const char* name, QWidget* parent) {
    auto* widget = new Widget(parent);
    widget->setObjectName(name);
    parent->layout()->addWidget(widget);
    return widget;
}

/// One control of each kind, in a window of its own; every event enters its name.
class BinderTest : public ::testing::Test {
  protected:
    BinderTest() {
        new QVBoxLayout(&window);
        label_widget = Named<QLabel>("lbl_a", &window);
        field_widget = Named<QLineEdit>("txt_a", &window);
        second_widget = Named<QLineEdit>("txt_b", &window);
        button_widget = Named<QPushButton>("cmd_a", &window);
        check_widget = Named<QCheckBox>("chk_a", &window);
        bar_widget = Named<QScrollBar>("hsc_a", &window);
        bar_widget->setOrientation(Qt::Horizontal);
        bar_widget->setInvertedControls(false);
        options_widgets = {Named<QRadioButton>("opt_a_0", &window), Named<QRadioButton>("opt_a_1", &window)};
        combo_widget = Named<QComboBox>("cmb_a", &window);
        combo_widget->setEditable(true);
        combo_widget->setInsertPolicy(QComboBox::NoInsert);
        combo_widget->setCompleter(nullptr);
        action = new QAction(&window);
        action->setObjectName("mnu_a");
        Wire();
        binder = std::make_unique<Binder>(window, [this](const Event& event) {
            if (event) event();
            binder->Push();
        });
        Add_All();
        binder->Check_Names();
        binder->Push();
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        button_widget->setFocus();
        events.clear();
    }

    void Wire() {
        button.caption = "&Calculate";
        bar.maximum = 100;
        const auto enter = [this](const char* name) { return [this, name] { events.emplace_back(name); }; };
        button.click = enter("click");
        field.change = enter("change");
        field.lost_focus = enter("lost focus");
        field.enter = enter("enter");
        check.click = enter("check");
        options[0].click = enter("option 0");
        options[1].click = enter("option 1");
        bar.change = enter("bar change");
        bar.scroll = enter("bar scroll");
        combo.change = enter("combo");
        combo.items = {"10", "20", "40"};
        combo.text = "1000";
        item.click = enter("menu");
    }

    void Add_All() {
        binder->Add("lbl_a", label);
        binder->Add("txt_a", field);
        binder->Add("txt_b", second);
        binder->Add("cmd_a", button);
        binder->Add("chk_a", check);
        binder->Add("hsc_a", bar);
        binder->Add("opt_a", options);
        binder->Add("cmb_a", combo);
        binder->Add("mnu_a", item);
    }

    QWidget window;
    QLabel* label_widget;
    QLineEdit *field_widget, *second_widget;
    QPushButton* button_widget;
    QCheckBox* check_widget;
    QScrollBar* bar_widget;
    std::array<QRadioButton*, 2> options_widgets;
    QComboBox* combo_widget;
    QAction* action;

    Label label;
    TextField field, second;
    Button button;
    CheckBox check;
    ScrollBar bar;
    std::array<OptionButton, 2> options;
    ComboBox combo;
    MenuItem item;
    std::unique_ptr<Binder> binder;
    std::vector<std::string> events;
};

TEST_F(BinderTest, TypingChangesTheRecordAndForgetsTheValueBehindIt) {
    field.text = "1.5";
    field.put_value = 1.5F;
    binder->Push();
    field_widget->setFocus();
    QTest::keyClicks(field_widget, "72");
    EXPECT_EQ(field.text, "72") << "the old text was selected on focus";
    EXPECT_FALSE(field.put_value);
    EXPECT_THAT(events, ElementsAre("change", "change"));
}

TEST_F(BinderTest, AClickIntoAFieldSelectsItsTextAndTheNextOneSetsTheCursor) {
    field.text = "12345";
    binder->Push();
    QTest::mouseClick(field_widget, Qt::LeftButton, {}, {12, field_widget->height() / 2});
    EXPECT_EQ(field_widget->selectedText(), "12345");
    QTest::mouseClick(field_widget, Qt::LeftButton, {}, {12, field_widget->height() / 2});
    EXPECT_EQ(field_widget->selectedText(), "");
}

TEST_F(BinderTest, ATextThatTheProgramWritesRaisesNothing) {
    field.text = "12";
    field.put_value = 12.0F;
    binder->Push();
    EXPECT_EQ(field_widget->text(), "12");
    EXPECT_EQ(field.put_value, 12.0F);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(BinderTest, LeavingAFieldRaisesItsLostFocusOnce) {
    field_widget->setFocus();
    QTest::keyClick(field_widget, Qt::Key_Tab);
    EXPECT_TRUE(second_widget->hasFocus());
    EXPECT_THAT(events, ElementsAre("lost focus"));
}

TEST_F(BinderTest, EnterInAFieldPressesNoButton) {
    field_widget->setFocus();
    QTest::keyClick(field_widget, Qt::Key_Return);
    QTest::keyClick(field_widget, Qt::Key_Enter);
    EXPECT_THAT(events, ElementsAre("enter", "enter"));
}

TEST_F(BinderTest, AMnemonicFindsTheEditedFieldLeft) {
    field_widget->setFocus();
    QTest::keyClicks(field_widget, "3");
    QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return events.size() == 3; }, 2000));
    EXPECT_THAT(events, ElementsAre("change", "lost focus", "click"));
    EXPECT_FALSE(field_widget->hasFocus());
}

TEST_F(BinderTest, AMenuFindsTheEditedFieldLeft) {
    field_widget->setFocus();
    QTest::keyClicks(field_widget, "3");
    action->trigger();
    EXPECT_THAT(events, ElementsAre("change", "lost focus", "menu"));
}

TEST_F(BinderTest, AButtonThatLeavingTheFieldTakesAwayIsNotPressed) {
    field.lost_focus = [this] { button.enabled = false; };
    field_widget->setFocus();
    button_widget->click();
    EXPECT_THAT(events, IsEmpty());
    EXPECT_FALSE(button_widget->isEnabled());
}

TEST_F(BinderTest, AFieldThatTheProgramCallsBackToMayBeLeftAsItStands) {
    field_widget->setFocus();
    QTest::keyClicks(field_widget, "3");
    button.click = [this] { binder->Set_Focus("txt_a"); };
    button_widget->click();
    events.clear();
    EXPECT_TRUE(field_widget->hasFocus());
    EXPECT_EQ(field_widget->selectedText(), "3");
    second_widget->setFocus();
    EXPECT_THAT(events, IsEmpty());
    button_widget->click();
    QTest::keyClicks(field_widget, "4");
    second_widget->setFocus();
    EXPECT_THAT(events, ElementsAre("change", "lost focus"));
}

TEST_F(BinderTest, EnterOnAButtonIsAClick) {
    button_widget->setFocus();
    QTest::keyClick(button_widget, Qt::Key_Return);
    EXPECT_THAT(events, ElementsAre("click"));
}

TEST_F(BinderTest, AnOptionIsClickedOnlyByAChange) {
    QTest::mouseClick(options_widgets[1], Qt::LeftButton, {}, {5, options_widgets[1]->height() / 2});
    QTest::mouseClick(options_widgets[1], Qt::LeftButton, {}, {5, options_widgets[1]->height() / 2});
    QTest::mouseClick(options_widgets[0], Qt::LeftButton, {}, {5, options_widgets[0]->height() / 2});
    EXPECT_THAT(events, ElementsAre("option 1", "option 0"));
    EXPECT_TRUE(options[0].on);
    EXPECT_FALSE(options[1].on);
}

TEST_F(BinderTest, WritesByTheProgramClickNeitherOptionsNorChecksNorBars) {
    options[1].on = true;
    check.on = true;
    bar.value = 40;
    binder->Push();
    EXPECT_TRUE(options_widgets[1]->isChecked());
    EXPECT_TRUE(check_widget->isChecked());
    EXPECT_EQ(bar_widget->value(), 40);
    options[1].on = false;
    binder->Push();
    EXPECT_FALSE(options_widgets[1]->isChecked()) << "a group may have no option on";
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(BinderTest, ACheckBoxTellsItsState) {
    check_widget->setFocus();
    QTest::keyClick(check_widget, Qt::Key_Space);
    EXPECT_TRUE(check.on);
    EXPECT_THAT(events, ElementsAre("check"));
}

TEST_F(BinderTest, ABarChangesByKeysAndScrollsWhileItsThumbIsHeld) {
    QTest::keyClick(bar_widget, Qt::Key_Right);
    EXPECT_EQ(bar.value, 1);
    EXPECT_THAT(events, ElementsAre("bar change"));
    events.clear();
    bar_widget->setSliderDown(true);
    bar_widget->setSliderPosition(30);
    EXPECT_EQ(bar.value, 30);
    bar_widget->setSliderDown(false);
    EXPECT_THAT(events, ElementsAre("bar scroll", "bar change"));
}

TEST_F(BinderTest, AComboBoxShowsItsItemsAndATextThatIsNoneOfThem) {
    ASSERT_EQ(combo_widget->count(), 3);
    EXPECT_EQ(combo_widget->itemText(2), "40");
    EXPECT_EQ(combo_widget->currentText(), "1000");
    EXPECT_EQ(combo.text, "1000");
}

TEST_F(BinderTest, TypingIntoAComboBoxIsAChangeWithEachLetter) {
    combo_widget->setFocus();
    combo_widget->lineEdit()->selectAll();
    QTest::keyClicks(combo_widget->lineEdit(), "4x");
    EXPECT_EQ(combo.text, "4x");
    EXPECT_THAT(events, ElementsAre("combo", "combo"));
    EXPECT_EQ(combo_widget->count(), 3) << "what is typed is no new item";
    QTest::keyClick(combo_widget->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(combo_widget->currentText(), "4x");
    EXPECT_EQ(combo_widget->count(), 3);
    EXPECT_EQ(events.size(), 2U);
}

TEST_F(BinderTest, AnItemPickedFromTheListOfAComboBoxIsOneChange) {
    for (const int row : {2, 0, 1}) {
        events.clear();
        combo_widget->showPopup();
        QAbstractItemView* list = combo_widget->view();
        list->setCurrentIndex(list->model()->index(row, 0));
        QTest::keyClick(list, Qt::Key_Return);
        EXPECT_EQ(combo.text, combo.items[static_cast<std::size_t>(row)]);
        EXPECT_EQ(combo_widget->currentText().toStdString(), combo.text);
        EXPECT_THAT(events, ElementsAre("combo")) << row;
    }
}

TEST_F(BinderTest, TheFirstItemOfAComboBoxCanBePickedOverATextThatIsNone) {
    combo_widget->showPopup();
    QAbstractItemView* list = combo_widget->view();
    list->setCurrentIndex(list->model()->index(0, 0));
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(combo.text, "10");
    EXPECT_THAT(events, ElementsAre("combo"));
}

TEST_F(BinderTest, AnArrowKeyInAComboBoxPicksAnItem) {
    combo_widget->setFocus();
    QTest::keyClick(combo_widget, Qt::Key_Down);
    EXPECT_THAT(combo.items, ::testing::Contains(combo.text));
    EXPECT_EQ(combo_widget->currentText().toStdString(), combo.text);
    EXPECT_THAT(events, ElementsAre("combo"));
}

TEST_F(BinderTest, ATextOrItemsThatTheProgramWritesIntoAComboBoxRaiseNothing) {
    for (const char* text : {"40", "7", "10", ""}) {
        combo.text = text;
        binder->Push();
        EXPECT_EQ(combo_widget->currentText(), text);
        EXPECT_EQ(combo.text, text);
    }
    combo.items = {"1", "2", "3", "4"};
    combo.text = "3";
    binder->Push();
    EXPECT_EQ(combo_widget->count(), 4);
    EXPECT_EQ(combo_widget->itemText(3), "4");
    EXPECT_EQ(combo_widget->currentText(), "3");
    EXPECT_EQ(combo.text, "3");
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(BinderTest, AComboBoxFindsTheEditedFieldLeft) {
    field_widget->setFocus();
    QTest::keyClicks(field_widget, "3");
    combo_widget->setCurrentIndex(1);
    EXPECT_THAT(events, ElementsAre("change", "lost focus", "combo"));
}

TEST_F(BinderTest, AComboBoxCanBeDisabledAndHidden) {
    combo.enabled = false;
    binder->Push();
    EXPECT_FALSE(combo_widget->isEnabled());
    combo.visible = false;
    binder->Push();
    EXPECT_FALSE(combo_widget->isVisible());
}

TEST_F(BinderTest, HidingAndDisablingReachTheWidgets) {
    label.visible = false;
    field.enabled = false;
    item.enabled = false;
    binder->Push();
    EXPECT_FALSE(label_widget->isVisible());
    EXPECT_FALSE(field_widget->isEnabled());
    EXPECT_FALSE(action->isEnabled());
}

TEST_F(BinderTest, CaptionsAreShownAsPlainTextAsTheyStand) {
    label.caption = "\r\n <b>one</b>\r two\n three";
    binder->Push();
    EXPECT_EQ(label_widget->text(), "\n <b>one</b>\n two\n three");
    EXPECT_EQ(label_widget->textFormat(), Qt::PlainText);
}

TEST_F(BinderTest, ALabelTakesItsColourAndElseThatOfAllTexts) {
    const QColor plain = label_widget->palette().color(QPalette::WindowText);
    binder->Push();
    EXPECT_EQ(label_widget->palette().color(QPalette::WindowText), plain);
    label.colour = Colour{255, 0, 0};
    binder->Push();
    EXPECT_EQ(label_widget->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    label.colour = Colour{128, 128, 128};
    binder->Push();
    EXPECT_EQ(label_widget->palette().color(QPalette::WindowText), QColor(128, 128, 128));
}

TEST_F(BinderTest, AControlThatAHandlerEnablesCanTakeTheFocusAtOnce) {
    button.enabled = false;
    field_widget->setFocus();
    binder->Push();
    button.enabled = true;
    binder->Set_Focus("cmd_a");
    EXPECT_TRUE(button_widget->hasFocus());
}

TEST_F(BinderTest, NamesThatStandOnOneSideOnlyAreRefusedWithAList) {
    Label lost;
    binder->Add("lbl_lost", lost);
    Named<QLabel>("lbl_stray", &window);
    try {
        binder->Check_Names();
        FAIL() << "nothing was refused";
    } catch (const std::logic_error& refusal) {
        EXPECT_THAT(refusal.what(), HasSubstr("lbl_lost"));
        EXPECT_THAT(refusal.what(), HasSubstr("lbl_stray"));
    }
}

}  // namespace
}  // namespace kervol
