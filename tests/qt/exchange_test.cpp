// SPDX-License-Identifier: GPL-3.0-or-later
// Drives and torques through the windows: menus and dialogs of the Home screen, and what they open.
#include <QAction>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include "qt/window_test.h"

namespace kervol {
namespace {

class ExchangeTest : public WindowTest {
  protected:
    FormWindow& Home() { return port.Form(ScreenId::frm_HomeScreen); }
    void Trigger(const char* entry) { Home().findChild<QAction*>(entry)->trigger(); }
    bool Is_Enabled(const char* entry) { return Home().findChild<QAction*>(entry)->isEnabled(); }
    /// The next dialog asks for a file: it takes this one.
    void Await_File(const QString& title, const QString& proposal, const QString& path) {
        Await([=](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            auto& name = Find<QLineEdit>(dialog, "fileNameEdit");
            EXPECT_EQ(name.text(), proposal);
            name.setText(path);
            QTest::keyClick(&name, Qt::Key_Return);
        });
    }
    void Await_Box(const QString& end) {
        Await([=](QDialog& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_TRUE(box.text().endsWith(end)) << box.text().toStdString();
            box.button(QMessageBox::Ok)->click();
        });
    }

    QTemporaryDir folder;
};

TEST_F(ExchangeTest, Link6OfOneLinkageDrivesTheNext) {
    port.Show_Screen(ScreenId::frm_HomeScreen, Modality::Modeless);
    EXPECT_FALSE(Is_Enabled("mnu_Export"));
    EXPECT_TRUE(Is_Enabled("mnu_Import_SVA"));
    Follow({{ScreenId::frm_Inputnew, [](FormWindow& form) {
                 Press(form, "cmd_Calc");
                 Press(form, "cmd_Cancel");
             }}});
    Press(Home(), "cmd_Input");
    EXPECT_TRUE(Is_Enabled("mnu_Export"));
    EXPECT_FALSE(Is_Enabled("mnu_Export_Torque"));
    const auto first = std::make_unique<ResultTables>(program->tables);
    const QString path = folder.filePath("stage.out");
    Await_File("Export Link 6 Data", "Model_1_kvl.out", path);
    Await_Box("and used as input data to drive the next stage of a multibar linkage.");
    Trigger("mnu_Export_Link_Data");

    Await_File("Open a Linkage Drive Data file", "*.out", path);
    Await_Box(" of Linkage output data successfully read.");
    Follow({
        {ScreenId::frm_Inputnew,
         [&](FormWindow& form) {
             EXPECT_TRUE(Home().isVisible());
             EXPECT_TRUE(Find<QLabel>(form, "lbl_camdriven").isVisible());
             EXPECT_TRUE(Find<QLabel>(form, "lbl_camdriven").text().endsWith("stage.out"));
             EXPECT_FALSE(Find<QWidget>(form, "frm_calcmode").isVisible());
             EXPECT_FALSE(Find<QLineEdit>(form, "txt_Initial_0").isVisible());
             EXPECT_TRUE(Find<QLineEdit>(form, "txt_Initial_5").isVisible());
             EXPECT_FALSE(Find<QLineEdit>(form, "txt_Initial_5").isEnabled());
             Press(form, "cmd_Calc");
             Press(form, "cmd_Next");
         }},
        {ScreenId::frm_Animate,
         [](FormWindow& form) {
             EXPECT_TRUE(Find<QLabel>(form, "lbl_camdriven").text().endsWith("stage.out"));
             Press(form, "cmd_Done");
         }},
    });
    Trigger("mnu_Import_Link2_Drive_Data");
    EXPECT_EQ(program->model.CalcMode, 5);
    EXPECT_TRUE(program->model.DataCalculated);
    for (int i = 0; i <= 36; ++i) EXPECT_NEAR(program->tables.Theta(i, 0), first->Theta(i, 5), 2e-5) << i;
}

TEST_F(ExchangeTest, CancelInTheWindowsLeavesEverythingAsItWas) {
    port.Show_Screen(ScreenId::frm_HomeScreen, Modality::Modeless);
    for (const char* entry : {"mnu_Import_SVA", "mnu_Import_Link2_Drive_Data"}) {
        Await([](QDialog& dialog) { dialog.reject(); });
        Trigger(entry);
    }
    EXPECT_EQ(program->model.CalcMode, 3);
    EXPECT_EQ(program->model.ModelPath, "");
}

}  // namespace
}  // namespace kervol
