// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTemporaryDir>

#include "qt/file_filter.h"
#include "qt/window_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

class PortTest : public WindowTest {
  protected:
    /// Types a name into the file dialog and accepts it.
    static void Choose(QDialog& dialog, const QString& path) {
        auto& name = Find<QLineEdit>(dialog, "fileNameEdit");
        name.setText(path);
        QTest::keyClick(&name, Qt::Key_Return);
    }

    QTemporaryDir folder;
};

struct BoxCase {
    Icon icon;
    QMessageBox::Icon shown_icon;
    Buttons buttons;
    QMessageBox::StandardButtons shown_buttons;
    Answer preset;
    QMessageBox::StandardButton shown_preset;
};

TEST_F(PortTest, BoxesHaveTheIconButtonsAndDefaultThatWereAskedFor) {
    // clang-format off
    const BoxCase cases[] = {
        {Icon::None, QMessageBox::NoIcon, Buttons::OK, QMessageBox::Ok, Answer::OK, QMessageBox::Ok},
        {Icon::Exclamation, QMessageBox::Warning, Buttons::YesNo, QMessageBox::Yes | QMessageBox::No,
         Answer::No, QMessageBox::No},
        {Icon::Information, QMessageBox::Information, Buttons::OKCancel, QMessageBox::Ok | QMessageBox::Cancel,
         Answer::Cancel, QMessageBox::Cancel},
        {Icon::Question, QMessageBox::Question, Buttons::AbortRetryIgnore,
         QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore, Answer::Retry, QMessageBox::Retry},
    };
    // clang-format on
    for (const BoxCase& given : cases) {
        Await([&](QDialog& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ(box.icon(), given.shown_icon);
            EXPECT_EQ(box.standardButtons(), given.shown_buttons);
            EXPECT_EQ(box.standardButton(box.defaultButton()), given.shown_preset);
            EXPECT_EQ(box.windowTitle(), "KERVOL for Windows");
            QTest::keyClick(&box, Qt::Key_Return);
        });
        EXPECT_EQ(port.Show_Message({"text", given.icon, given.buttons, given.preset}), given.preset);
    }
}

TEST_F(PortTest, EveryButtonGivesItsAnswer) {
    const std::pair<QMessageBox::StandardButton, Answer> cases[] = {{QMessageBox::Abort, Answer::Abort},
                                                                    {QMessageBox::Retry, Answer::Retry},
                                                                    {QMessageBox::Ignore, Answer::Ignore}};
    for (const auto& [button, answer] : cases) {
        Await([button = button](QDialog& dialog) {
            dynamic_cast<QMessageBox&>(dialog).button(button)->click();
        });
        EXPECT_EQ(port.Show_Message({"?", Icon::None, Buttons::AbortRetryIgnore, Answer::Abort}), answer);
    }
    Await([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(port.Show_Message({"?", Icon::None, Buttons::OKCancel, Answer::OK}), Answer::Cancel);
}

TEST_F(PortTest, TextsOfBoxesArePlainAndBreakAtEitherMark) {
    Await([](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        EXPECT_EQ(box.text(), "a < b\n<i>c</i>\nd & e");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        box.accept();
    });
    port.Show_Message({"a < b\r<i>c</i>\r\nd & e"});
}

TEST_F(PortTest, LinesOfBoxesAreNotBrokenOnceMore) {
    Await([](QDialog& dialog) {
        const auto& label = Find<QLabel>(dialog, "qt_msgbox_label");
        EXPECT_GE(label.width(), label.fontMetrics().size(0, label.text()).width());
        dialog.reject();
    });
    port.Show_Message(
        {"Number of harmonics cannot exceed 1/2 the number of data points available.\rIf you want more"});
}

TEST_F(PortTest, AQuestionShowsTheUsualPointerAndTheBusyOneComesBack) {
    port.Set_Pointer(Pointer::Busy);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    Await([](QDialog& dialog) {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        dialog.accept();
    });
    port.Show_Message({"?"});
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    port.Set_Pointer(Pointer::Default);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PortTest, FiltersBecomeTheToolkitsOwn) {
    EXPECT_THAT(Qt_Name_Filters("KERVOL for Windows (*.kvl)|*.kvl | Kervol DOS(*.ikv)|*.ikv| All (*.*)|*.*|"),
                ElementsAre(QString("KERVOL for Windows (*.kvl)"), QString("Kervol DOS (*.ikv)"),
                            QString("All (*)")));
    EXPECT_THAT(Qt_Name_Filters("Kervol Export (*.out)|*.out|(*.*)|*.*|"),
                ElementsAre(QString("Kervol Export (*.out)"), QString("(*)")));
    EXPECT_THAT(Qt_Name_Filters("*.kvl"), ElementsAre(QString("*.kvl")));
}

TEST_F(PortTest, TheSaveDialogProposesTheNameInTheFolderOfTheModel) {
    program->model.ModelPath = (folder.path() + "/old.kvl").toStdString();
    Await([&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Save the Model");
        EXPECT_EQ(Find<QLineEdit>(dialog, "fileNameEdit").text(), "Model_1.kvl");
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory(), QDir(folder.path()));
        Choose(dialog, "fresh");
    });
    EXPECT_EQ(port.Ask_File_To_Save({"Save the Model", "*.kvl", "Model_1.kvl"}),
              (folder.path() + "/fresh.kvl").toStdString());
}

TEST_F(PortTest, AFileThatExistsIsOverwrittenOnlyAfterAQuestion) {
    QFile file(folder.filePath("there.kvl"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    const auto choose = [&](QDialog& dialog) { Choose(dialog, folder.filePath("there.kvl")); };
    Await([&](QDialog& dialog) {
        choose(dialog);
        dialog.reject();
    });
    Await([](QDialog& question) { dynamic_cast<QMessageBox&>(question).button(QMessageBox::No)->click(); });
    EXPECT_EQ(port.Ask_File_To_Save({"Save", "*.kvl", "x.kvl"}), std::nullopt);
    Await(choose);
    Await([](QDialog& question) { dynamic_cast<QMessageBox&>(question).button(QMessageBox::Yes)->click(); });
    EXPECT_EQ(port.Ask_File_To_Save({"Save", "*.kvl", "x.kvl"}), folder.filePath("there.kvl").toStdString());
}

TEST_F(PortTest, TheOpenDialogGivesTheChosenFileAndNothingAfterCancel) {
    QFile file(folder.filePath("a b.kvl"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    Await([&](QDialog& dialog) {
        QCoreApplication::processEvents();
        auto& name = Find<QLineEdit>(dialog, "fileNameEdit");
        EXPECT_EQ(name.text(), "*.kvl");
        EXPECT_EQ(name.selectedText(), name.text()) << "what is typed takes its place";
        Choose(dialog, folder.filePath("a b.kvl"));
    });
    EXPECT_EQ(port.Ask_File_To_Open({"Open", "*.kvl", "*.kvl"}), folder.filePath("a b.kvl").toStdString());
    Await([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(port.Ask_File_To_Open({"Open", "*.kvl", "*.kvl"}), std::nullopt);
}

TEST_F(PortTest, ALongPathIsAbsoluteKeepsTheNameOfALinkAndIsEmptyForNothing) {
    QFile file(folder.filePath("real.kvl"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    ASSERT_TRUE(QFile::link("real.kvl", folder.filePath("link.kvl")));
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    EXPECT_EQ(port.Long_Path("./link.kvl"), (QDir::currentPath() + "/link.kvl").toStdString());
    EXPECT_EQ(port.Long_Path("missing.kvl"), "");
    QDir::setCurrent(before);
}

TEST_F(PortTest, AScreenWithoutAPrinterIsOfferedAsPdf) {
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "this machine has a printer";
    const QString path = folder.filePath("input.pdf");
    In(ScreenId::frm_Inputnew, [&](FormWindow&) {
        Await([&](QDialog& dialog) {
            EXPECT_EQ(Find<QLineEdit>(dialog, "fileNameEdit").text(), "Model_1.pdf");
            Choose(dialog, path);
        });
        port.Print_Screen(ScreenId::frm_Inputnew);
    });
    QFile pdf(path);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_EQ(pdf.read(5), "%PDF-");
    EXPECT_GT(QFileInfo(path).size(), 5000);
}

TEST_F(PortTest, AWindowShowsARepeatedFaultOnce) {
    EXPECT_FALSE(port.Shows_Repeated_Faults());
}

TEST_F(PortTest, TheUserAndTheClockAreTold) {
    EXPECT_FALSE(port.User_Name().empty());
    EXPECT_EQ(port.User_Name().find(','), std::string::npos);
    EXPECT_FALSE(port.Short_Date_And_Time().date.empty());
    EXPECT_FALSE(port.Short_Date_And_Time().time.empty());
}

}  // namespace
}  // namespace kervol
