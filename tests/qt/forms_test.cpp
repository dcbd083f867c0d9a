// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for the windows of all screens.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRawFont>
#include <QScrollBar>
#include <set>

#include "qt/window_test.h"
#include "screens/control_lists.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

/// The names of a record's controls, members of groups one by one.
class NameList {
  public:
    template <class Record>
    void operator()(const char* name, Record&) {
        names.insert(name);
    }
    template <class Record, std::size_t count>
    void operator()(const char* name, std::array<Record, count>&) {
        for (std::size_t i = 0; i < count; ++i) names.insert(std::string(name) + "_" + std::to_string(i));
    }

    std::set<std::string> names;
};

std::set<std::string> Names(Screens& screens, ScreenId screen) {
    NameList list;
    switch (screen) {
        case ScreenId::frm_Title:
            Visit_Controls(screens.frm_Title, list);
            break;
        case ScreenId::frm_Disclaimer:
            Visit_Controls(screens.frm_Disclaimer, list);
            break;
        case ScreenId::frm_User:
            Visit_Controls(screens.frm_User, list);
            break;
        case ScreenId::frm_HomeScreen:
            Visit_Controls(screens.frm_HomeScreen, list);
            break;
        case ScreenId::frm_Inputnew:
            Visit_Controls(screens.frm_Inputnew, list);
            break;
        case ScreenId::frm_About:
            Visit_Controls(screens.frm_About, list);
            break;
        case ScreenId::frm_Quit:
            Visit_Controls(screens.frm_Quit, list);
            break;
        case ScreenId::frm_Animate:
            Visit_Controls(screens.frm_Animate, list);
            break;
        case ScreenId::frm_MassProp:
            Visit_Controls(screens.frm_MassProp, list);
            break;
        case ScreenId::frm_Matrix:
            Visit_Controls(screens.frm_Matrix, list);
            break;
        case ScreenId::frm_PlotType:
            Visit_Controls(screens.frm_PlotType, list);
            break;
        case ScreenId::frm_PlotSelect1:
            Visit_Controls(screens.frm_PlotSelect1, list);
            break;
        case ScreenId::frm_PlotSelect2:
            Visit_Controls(screens.frm_PlotSelect2, list);
            break;
        case ScreenId::frm_PlotSelect3:
            Visit_Controls(screens.frm_PlotSelect3, list);
            break;
        case ScreenId::frm_PlotSelect4:
            Visit_Controls(screens.frm_PlotSelect4, list);
            break;
        case ScreenId::frm_Plot1:
            Visit_Controls(screens.frm_Plot1, list);
            break;
        case ScreenId::frm_Plot2:
            Visit_Controls(screens.frm_Plot2, list);
            break;
        case ScreenId::frm_Plot3:
            Visit_Controls(screens.frm_Plot3, list);
            break;
        case ScreenId::frm_Plot4:
            Visit_Controls(screens.frm_Plot4, list);
            break;
        case ScreenId::frm_Myplot2:
            Visit_Controls(screens.frm_Myplot2, list);
            break;
        case ScreenId::frm_MyPlot3:
            Visit_Controls(screens.frm_MyPlot3, list);
            break;
        case ScreenId::frm_MyPlot4:
            Visit_Controls(screens.frm_MyPlot4, list);
            break;
        case ScreenId::frm_PrintSelect:
            Visit_Controls(screens.frm_PrintSelect, list);
            break;
        case ScreenId::frm_PrintData:
            Visit_Controls(screens.frm_PrintData, list);
            break;
        case ScreenId::frm_Flywheel:
            Visit_Controls(screens.frm_Flywheel, list);
            break;
        case ScreenId::frm_FFT:
            Visit_Controls(screens.frm_FFT, list);
            break;
        case ScreenId::frm_SelfCheck:
            Visit_Controls(screens.frm_SelfCheck, list);
            break;
    }
    return list.names;
}

using FormsTest = WindowTest;

TEST_F(FormsTest, EveryControlHasItsOneWidgetAndTheReverse) {
    for (const ScreenId screen : kScreensWithWindow) {
        std::multiset<std::string> widgets;
        for (const QObject* object : port.Form(screen).findChildren<QObject*>()) {
            const std::string name = object->objectName().toStdString();
            if (!name.empty() && !name.starts_with("qt_") && name != "Picture1" && name != "_layout")
                widgets.insert(name);
        }
        const std::set<std::string> names = Names(screens, screen);
        EXPECT_FALSE(names.empty());
        EXPECT_THAT(widgets, ::testing::UnorderedElementsAreArray(names)) << static_cast<int>(screen);
    }
}

TEST_F(FormsTest, AFontIsThere) {
    EXPECT_FALSE(QFontDatabase::families().isEmpty());
    for (const QChar letter : QString("Aa09-^<>\u00b7"))
        EXPECT_TRUE(QRawFont::fromFont(QApplication::font()).supportsCharacter(letter))
            << int(letter.unicode());
}

TEST_F(FormsTest, NoButtonIsPressedByAnEnterElsewhere) {
    for (const ScreenId screen : kScreensWithWindow)
        for (const auto* button : port.Form(screen).findChildren<QPushButton*>())
            EXPECT_FALSE(button->autoDefault() || button->isDefault()) << button->objectName().toStdString();
}

TEST_F(FormsTest, AccessibleNamesAreThereAndUnique) {
    for (const ScreenId screen : kScreensWithWindow) {
        In(screen, [&](FormWindow& form) {
            std::set<QString> seen;
            for (QWidget* widget : form.findChildren<QWidget*>()) {
                const bool used =
                    qobject_cast<QLineEdit*>(widget) || qobject_cast<QAbstractButton*>(widget) ||
                    qobject_cast<QAbstractSlider*>(widget) || qobject_cast<QAbstractItemView*>(widget) ||
                    qobject_cast<QComboBox*>(widget) || widget->objectName() == "Picture1";
                if (!used || !widget->isVisible() || widget->objectName().startsWith("qt_")) continue;
                if (widget->objectName().isEmpty()) continue;
                const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
                ASSERT_NE(face, nullptr);
                const QString name = face->text(QAccessible::Name);
                EXPECT_FALSE(name.isEmpty()) << widget->objectName().toStdString();
                EXPECT_TRUE(seen.insert(name).second) << name.toStdString() << " stands twice";
            }
        });
    }
}

TEST_F(FormsTest, EscapeAndTheCloseBoxLeaveAModalScreen) {
    for (const ScreenId screen : {ScreenId::frm_Disclaimer, ScreenId::frm_Inputnew, ScreenId::frm_MassProp,
                                  ScreenId::frm_Matrix, ScreenId::frm_About, ScreenId::frm_PlotType,
                                  ScreenId::frm_PrintSelect, ScreenId::frm_PrintData, ScreenId::frm_Quit}) {
        for (const bool escape : {true, false}) {
            In(screen, [&](FormWindow& form) {
                if (escape)
                    QTest::keyClick(&form, Qt::Key_Escape);
                else
                    form.close();
                EXPECT_FALSE(form.isVisible()) << static_cast<int>(screen);
            });
        }
    }
}

TEST_F(FormsTest, AClickAnywhereClosesTheAboutScreen) {
    In(ScreenId::frm_About, [](FormWindow& form) {
        QTest::mouseClick(&Find<QLabel>(form, "lbl_Version"), Qt::LeftButton);
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(FormsTest, TheNoButtonHasTheFocusWhenTheProgramAsksToQuit) {
    In(ScreenId::frm_Quit, [](FormWindow& form) {
        EXPECT_EQ(QApplication::focusWidget(), &Find<QWidget>(form, "cmd_NoQuit"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(FormsTest, TheUserScreenStoresItsFileNameWhenTheFieldIsLeft) {
    In(ScreenId::frm_User, [&](FormWindow& form) {
        EXPECT_EQ(QApplication::focusWidget(), &Find<QWidget>(form, "txt_UserName"));
        EXPECT_EQ(Find<QLineEdit>(form, "txt_Filename").text(), "Model_1");
        Type(form, "txt_Filename", "press arm");
        EXPECT_EQ(program->model.ModelName, "Model_1");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(program->model.ModelName, "press arm");
    });
}

TEST_F(FormsTest, TheUserScreenGoesOnOnlyWithAName) {
    In(ScreenId::frm_User, [&](FormWindow& form) {
        Find<QLineEdit>(form, "txt_UserName").selectAll();
        QTest::keyClick(&Find<QLineEdit>(form, "txt_UserName"), Qt::Key_Delete);
        Click(form, "cmd_Done");
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(QApplication::focusWidget(), &Find<QWidget>(form, "txt_UserName"));
        QTest::keyClicks(QApplication::focusWidget(), "Ada");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), &Find<QWidget>(form, "cmd_Done"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(program->model.UserName, "Ada");
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_TRUE(port.Form(ScreenId::frm_HomeScreen).isVisible());
}

}  // namespace
}  // namespace kervol
