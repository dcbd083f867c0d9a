// SPDX-License-Identifier: GPL-3.0-or-later
// A number that is not read as it was meant gets an answer where it was typed.
#include "qt/number_field.h"

#include <QLineEdit>
#include <QToolTip>

#include "qt/window_test.h"
#include "screens/fields.h"

namespace kervol {
namespace {

TEST(NumberField, WholeNumbersGetNoNote) {
    for (const char* text :
         {"", "2", "-2.5", " 2.5 ", "+.5", "5.", "1e5", "1E-05", "1,234.500", "-12,345.", "-", "1e", "1e-"})
        EXPECT_EQ(Unread_Note(text), "") << text;
}

TEST(NumberField, TheNoteSaysWhatIsRead) {
    EXPECT_EQ(Unread_Note("2,5"), "Read as 2. Numbers are written with a point.");
    EXPECT_EQ(Unread_Note("-0,25"), "Read as 0. Numbers are written with a point.");
    EXPECT_EQ(Unread_Note("1,234"), "Read as 1. Numbers are written with a point.");
    EXPECT_EQ(Unread_Note("12 mm"), "Read as 12.");
    EXPECT_EQ(Unread_Note("crank"), "Read as 0.");
    EXPECT_EQ(Unread_Note("e5"), "Read as 0.");
    EXPECT_EQ(Unread_Note("1e400 mm"), "Too large to be read.");
    EXPECT_EQ(Unread_Note("1e400,"), "Too large to be read. Numbers are written with a point.");
}

using NumberFieldWindow = WindowTest;

TEST_F(NumberFieldWindow, ACommaIsMarkedUntilItIsMended) {
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        auto& field = Find<QLineEdit>(form, "txt_Linkout_1");
        const QColor plain = field.palette().color(QPalette::Text);
        const QString tip = field.toolTip();
        Type(form, "txt_Linkout_1", "2,5");
        EXPECT_EQ(QToolTip::text(), "Read as 2. Numbers are written with a point.");
        QTest::keyClick(&field, Qt::Key_Tab);
        EXPECT_NE(field.palette().color(QPalette::Text), plain) << "also when the field is left";
        EXPECT_TRUE(field.toolTip().startsWith("Read as 2. "));
        EXPECT_TRUE(field.toolTip().endsWith(tip));
        EXPECT_EQ(Typed_Number(screens.frm_Inputnew.txt_Linkout[1].text), 2);
        Type(form, "txt_Linkout_1", "2.5");
        EXPECT_EQ(field.palette().color(QPalette::Text), plain);
        EXPECT_EQ(field.toolTip(), tip);
    });
}

TEST_F(NumberFieldWindow, ANumberTooLargeIsMarkedAndTheScreenGoesOn) {
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        Type(form, "txt_Linkout_1", "1e400 1");
        EXPECT_EQ(QToolTip::text(), "Too large to be read.");
        Type(form, "txt_Linkout_1", "2.5");
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(Typed_Number(screens.frm_Inputnew.txt_Linkout[1].text), 2.5);
    });
}

TEST_F(NumberFieldWindow, WhatTheProgramPutsIsNotMarked) {
    In(ScreenId::frm_Inputnew, [this](FormWindow& form) {
        auto& field = Find<QLineEdit>(form, "txt_Linkout_1");
        const QString tip = field.toolTip();
        Type(form, "txt_Linkout_1", "2,5");
        port.Fill_Screens();
        EXPECT_EQ(field.toolTip(), tip);
    });
}

}  // namespace
}  // namespace kervol
