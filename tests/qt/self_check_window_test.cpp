// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the self-check: a report that can be read and copied, and no more.
#include <QAction>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "qt/window_test.h"

namespace kervol {
namespace {

class SelfCheckWindow : public WindowTest {
  protected:
    void Calculate() {
        In(ScreenId::frm_Inputnew, [](FormWindow& form) { Click(form, "cmd_Calc"); });
    }
};

TEST_F(SelfCheckWindow, ShowsTheReportFromItsBeginning) {
    Calculate();
    In(ScreenId::frm_SelfCheck, [this](FormWindow& form) {
        const auto& report = Find<QPlainTextEdit>(form, "txt_Report");
        EXPECT_EQ(report.toPlainText().toStdString(), screens.frm_SelfCheck.txt_Report.text);
        EXPECT_TRUE(report.toPlainText().startsWith("Self-check of "));
        EXPECT_EQ(report.verticalScrollBar()->value(), 0);
        EXPECT_EQ(report.horizontalScrollBar()->maximum(), 0) << "no line is cut";
    });
}

TEST_F(SelfCheckWindow, TakesNoEntries) {
    Calculate();
    In(ScreenId::frm_SelfCheck, [](FormWindow& form) {
        auto& report = Find<QPlainTextEdit>(form, "txt_Report");
        const QString before = report.toPlainText();
        report.setFocus();
        QTest::keyClicks(&report, "x");
        QTest::keyClick(&report, Qt::Key_Delete);
        EXPECT_EQ(report.toPlainText(), before);
        QTest::keyClick(&report, Qt::Key_Tab);
        EXPECT_FALSE(report.hasFocus()) << "the tab key leads on";
    });
}

TEST_F(SelfCheckWindow, PutsTheReportOnTheClipboardAsText) {
    Calculate();
    In(ScreenId::frm_SelfCheck, [this](FormWindow& form) {
        Click(form, "cmd_Copy");
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(), screens.frm_SelfCheck.txt_Report.text);
    });
}

TEST_F(SelfCheckWindow, OpensFromTheToolsOfHomeAndGoesBackThere) {
    Calculate();
    In(ScreenId::frm_HomeScreen, [this](FormWindow& home) {
        Every_Moment([this] {
            FormWindow& form = port.Form(ScreenId::frm_SelfCheck);
            if (form.isVisible()) Click(form, "cmd_Back");
        });
        Find<QAction>(home, "mnu_SelfCheck").trigger();
        EXPECT_FALSE(port.Form(ScreenId::frm_SelfCheck).isVisible());
        EXPECT_TRUE(home.isVisible());
    });
}

}  // namespace
}  // namespace kervol
