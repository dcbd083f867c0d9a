// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader finds in the windows: every control has a name, every picture says what it shows.
#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <array>

#include "qt/linkage_sketch.h"
#include "qt/window_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

constexpr std::array kControls = {
    QAccessible::PushButton, QAccessible::EditableText, QAccessible::CheckBox,     QAccessible::RadioButton,
    QAccessible::ComboBox,   QAccessible::ScrollBar,    QAccessible::List,         QAccessible::ListItem,
    QAccessible::Table,      QAccessible::MenuBar,      QAccessible::MenuItem,     QAccessible::Window,
    QAccessible::Graphic,    QAccessible::Chart,        QAccessible::ColumnHeader,
};

bool Needs_Name(const QAccessibleInterface& face) {
    const bool is_control = std::find(kControls.begin(), kControls.end(), face.role()) != kControls.end();
    // A cell of a table may be empty.
    return is_control || (face.state().focusable && face.role() != QAccessible::Cell);
}

std::string Named(const QAccessibleInterface& face) {
    const QObject* object = face.object();
    return (object == nullptr ? std::string("a part") : object->objectName().toStdString()) + ", role " +
           std::to_string(face.role());
}

class AccessibilityTest : public WindowTest {
  protected:
    /// Of all that can be seen or used in a window. The names of what takes the focus are gathered.
    void Check(QAccessibleInterface& face) {
        const QAccessible::State state = face.state();
        if (state.invisible) return;
        const bool is_picture = face.role() == QAccessible::Graphic || face.role() == QAccessible::Chart;
        const QString name = face.text(QAccessible::Name);
        if (Needs_Name(face)) {
            ++controls;
            EXPECT_FALSE(name.isEmpty()) << Named(face);
            const bool is_row = face.role() == QAccessible::ListItem;
            EXPECT_TRUE(is_row || name == name.trimmed()) << Named(face) << ": read out with its blanks";
        }
        if (is_picture) {
            ++pictures;
            EXPECT_FALSE(face.text(QAccessible::Description).trimmed().isEmpty()) << Named(face);
        }
        if (state.focusable && face.role() != QAccessible::Window) {
            const bool of_our_own = face.role() == QAccessible::Client || face.role() == QAccessible::NoRole;
            EXPECT_FALSE(of_our_own && face.childCount() == 0) << Named(face) << " does not say what it is";
        }
        for (int i = 0; i < face.childCount(); ++i)
            if (QAccessibleInterface* part = face.child(i)) Check(*part);
    }

    void Check(FormWindow& form) {
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&form);
        ASSERT_NE(face, nullptr);
        EXPECT_EQ(face->role(), QAccessible::Window);
        controls = 0;
        Check(*face);
        EXPECT_GT(controls, 0) << form.objectName().toStdString();
    }

    int controls = 0, pictures = 0;
};

TEST_F(AccessibilityTest, EveryControlHasANameAndEveryPictureADescription) {
    for (const ScreenId screen : kScreensWithWindow) In(screen, [this](FormWindow& form) { Check(form); });
    EXPECT_GT(pictures, 12) << "the figures, the pictures of plots and the empty charts";
}

TEST_F(AccessibilityTest, SoDoThePlotScreens) {
    Select("watt", {"Accel CP-1", "Accel CP-2", "Veloc CP-1", "Veloc CP-2"});
    for (const ScreenId screen : kPlotScreens) In(screen, [this](FormWindow& form) { Check(form); });
    EXPECT_GE(pictures, 15) << "1, 2, 4, 1 charts and 2, 4, 1 pictures";
}

TEST_F(AccessibilityTest, EveryMenuEntryHasAName) {
    const FormWindow& home = port.Form(ScreenId::frm_HomeScreen);
    port.Run({});
    int entries = 0;
    for (const auto* menu : home.findChildren<QMenu*>()) {
        for (const QAction* entry : menu->actions()) {
            if (entry->isSeparator()) continue;
            EXPECT_FALSE(entry->text().isEmpty()) << entry->objectName().toStdString();
            ++entries;
        }
    }
    EXPECT_GT(entries, 20);
}

QString Description(const QWidget& form, const char* name) {
    auto* widget = form.findChild<QWidget*>(name);
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
}

TEST_F(AccessibilityTest, APlotTellsItsFunctionAndItsLimits) {
    Select("watt", {"Omega3", "Omega4"});
    In(ScreenId::frm_Myplot2, [](FormWindow& form) {
        const QString limits =
            QString("from %1 to %2")
                .arg(Find<QLabel>(form, "lbl_Min_0").text(), Find<QLabel>(form, "lbl_Max_0").text());
        EXPECT_TRUE(Description(form, "pct_Plot_0").startsWith("Omega3 Mag " + limits + " rad/sec"))
            << Description(form, "pct_Plot_0").toStdString();
        EXPECT_TRUE(Description(form, "pct_Plot_1").startsWith("Omega4"));
    });
}

TEST_F(AccessibilityTest, AFigureTellsItsPointsAndWhatToDoWhereItHasNone) {
    LinkageModel& model = program->model;
    const FormWindow& home = port.Form(ScreenId::frm_HomeScreen);
    const auto told = [&] {
        port.Run({});
        for (const auto* sketch : home.findChildren<QWidget*>())
            if (dynamic_cast<const LinkageSketch*>(sketch) != nullptr)
                return sketch->accessibleDescription().toStdString();
        return std::string();
    };
    EXPECT_THAT(told(), ::testing::StartsWith("A Watt chain: O2 (0, 0), A ("));
    model.Link2 = 1000;
    EXPECT_THAT(told(), ::testing::StartsWith("No crank angle was found at which these links meet."));
    model.Link2 = 0;
    EXPECT_THAT(told(), ::testing::StartsWith("No linkage yet."));
}

}  // namespace
}  // namespace kervol
