// SPDX-License-Identifier: GPL-3.0-or-later
// The selection screens and the table in their windows: by mouse, by keys alone, on paper.
#include <QClipboard>
#include <QComboBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

#include "kinematics/sweep.h"
#include "qt/data_table.h"
#include "qt/page_printer.h"
#include "qt/pick_list.h"
#include "qt/plot_kind_picture.h"
#include "qt/window_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

class SelectionWindow : public WindowTest {
  protected:
    SelectionWindow() {
        Answer response = Answer::None;
        Run_Sweep(*program, 3, response);
        program->model.DataCalculated = true;
        program->model.NewData = true;
    }

    static PickList& List(QWidget& form, const char* name) { return Find<PickList>(form, name); }
    static QPoint Middle_Of(PickList& list, int row) { return list.visualItemRect(list.item(row)).center(); }
    static void Click_Row(QWidget& form, const char* name, int row) {
        PickList& list = List(form, name);
        list.scrollToItem(list.item(row));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Middle_Of(list, row));
    }
    static std::string Focus() {
        const QWidget* widget = QApplication::focusWidget();
        return widget == nullptr ? "" : widget->objectName().toStdString();
    }
    static std::string Chosen(QWidget& form, int slot) {
        const auto text = [&](const char* name) {
            return Find<QLabel>(form, (name + std::to_string(slot)).c_str()).text().toStdString();
        };
        return text("lbl_Function_") + ":" + text("lbl_Component_");
    }
    static void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    static std::string Marked(QWidget& form, const char* name) {
        const QListWidgetItem* item = List(form, name).currentItem();
        return item == nullptr ? "" : item->text().toStdString();
    }
};

TEST_F(SelectionWindow, APresetIsChosenByOneClick) {
    In(ScreenId::frm_PrintSelect, [](FormWindow& form) {
        EXPECT_EQ(Focus(), "cmb_Preset");
        EXPECT_FALSE(Find<QPushButton>(form, "cmd_Done").isEnabled());
        Click_Row(form, "cmb_Preset", 3);
        EXPECT_EQ(Chosen(form, 0), "Veloc I 2,3:X");
        EXPECT_EQ(Chosen(form, 3), "Veloc I 2,3:Ang");
        EXPECT_EQ(Marked(form, "cmb_Var4"), "Veloc I 2,3");
        EXPECT_TRUE(Find<QPushButton>(form, "cmd_Done").isEnabled());
        EXPECT_TRUE(Find<QRadioButton>(form, "opt_Coord_1").isEnabled());
        EXPECT_FALSE(List(form, "cmb_Var1").isEnabled()) << "its frame is disabled";
        EXPECT_TRUE(Find<QLabel>(form, "lbl_Function_0").isEnabled()) << "what was chosen stays readable";
        EXPECT_EQ(Focus(), "cmb_Preset");
    });
}

TEST_F(SelectionWindow, AllCanBeDoneByKeys) {
    In(ScreenId::frm_PrintSelect, [this](FormWindow& form) {
        Key(Qt::Key_Backtab);
        EXPECT_EQ(Focus(), "opt_PrintSet_0");
        Key(Qt::Key_Down);
        EXPECT_TRUE(screens.frm_PrintSelect.opt_PrintSet[1].on);
        while (Focus() != "cmb_Var1") {
            const std::string before = Focus();
            Key(Qt::Key_Tab);
            ASSERT_NE(Focus(), before) << "a dead end";
            ASSERT_NE(Focus(), "opt_PrintSet_1") << "once around";
        }
        // Moving picks nothing; Enter does.
        for (int i = 0; i < 3; ++i) Key(Qt::Key_Down);
        EXPECT_EQ(screens.frm_PrintSelect.cmb_Var[0].text, "");
        Key(Qt::Key_Return);
        EXPECT_EQ(screens.frm_PrintSelect.cmb_Var[0].text, Marked(form, "cmb_Var1"));
        EXPECT_EQ(Focus(), "cmd_OK1");
        Key(Qt::Key_Return);
        EXPECT_EQ(Chosen(form, 0), Marked(form, "cmb_Var1") + ":Mag");
        EXPECT_EQ(Focus(), "cmd_OK1");
        Key(Qt::Key_Tab);
        EXPECT_EQ(Focus(), "cmd_Clear1");
        Key(Qt::Key_Tab);
        EXPECT_EQ(Focus(), "cmb_Var2");
        QTest::keyClicks(QApplication::focusWidget(), "vel");
        Key(Qt::Key_Space);
        EXPECT_EQ(screens.frm_PrintSelect.cmb_Var[1].text, "Veloc I 2,3");
        EXPECT_EQ(Focus(), "cmb_Com2");
        Key(Qt::Key_Down);
        Key(Qt::Key_End);
        Key(Qt::Key_Tab);
        EXPECT_EQ(screens.frm_PrintSelect.cmb_Com[1].text, "Ang") << "the tab key takes along what is marked";
        EXPECT_EQ(Focus(), "cmd_OK2");
        Key(Qt::Key_Return);
        EXPECT_EQ(Chosen(form, 1), "Veloc I 2,3:Ang");
    });
}

TEST_F(SelectionWindow, AnEntryIsFoundByTypingItWithItsBlanks) {
    In(ScreenId::frm_PrintSelect, [this](FormWindow& form) {
        Find<QRadioButton>(form, "opt_PrintSet_1").click();
        List(form, "cmb_Var1").setFocus();
        QTest::keyClicks(QApplication::focusWidget(), "trans ");
        QTest::keyPress(QApplication::focusWidget(), Qt::Key_Shift, Qt::ShiftModifier);
        QTest::keyClicks(QApplication::focusWidget(), "Ang-2");
        EXPECT_EQ(Marked(form, "cmb_Var1"), "Trans Ang-2");
        EXPECT_EQ(screens.frm_PrintSelect.cmb_Var[0].text, "") << "a blank within it picks nothing";
        Key(Qt::Key_Space);
        EXPECT_EQ(screens.frm_PrintSelect.cmb_Var[0].text, "Trans Ang-2") << "nothing has a blank behind it";
        // After a pause another word begins, and a blank picks again.
        const int pause = QApplication::keyboardInputInterval() + 50;
        QTest::qWait(pause);
        List(form, "cmb_Var1").setFocus();
        QTest::keyClicks(QApplication::focusWidget(), "veloc");
        QTest::qWait(pause);
        Key(Qt::Key_Space);
        EXPECT_EQ(screens.frm_PrintSelect.cmb_Var[0].text, "Veloc I 2,3");
    });
}

TEST_F(SelectionWindow, TheTabKeyTakesAPresetAlongAndGoesOn) {
    In(ScreenId::frm_PrintSelect, [this](FormWindow& form) {
        Key(Qt::Key_Down);
        Key(Qt::Key_Tab);
        EXPECT_EQ(screens.frm_PrintSelect.cmb_Preset.text, Marked(form, "cmb_Preset"));
        EXPECT_NE(Chosen(form, 0), ":");
        EXPECT_EQ(Focus(), "cmd_ClearPreset");
    });
}

TEST_F(SelectionWindow, AMarkThatWasNotPickedGoesBackWhenTheListIsLeft) {
    In(ScreenId::frm_PrintSelect, [](FormWindow& form) {
        Click_Row(form, "cmb_Preset", 1);
        Key(Qt::Key_Down);
        EXPECT_NE(Marked(form, "cmb_Preset"), "Omega magnitudes for links 3, 4, 5, 6");
        Find<QWidget>(form, "cmd_Cancel").setFocus(Qt::MouseFocusReason);
        EXPECT_EQ(Marked(form, "cmb_Preset"), "Omega magnitudes for links 3, 4, 5, 6");
    });
}

TEST_F(SelectionWindow, ADoubleClickOnTheLastMissingVariableShowsTheTable) {
    Follow({{ScreenId::frm_PrintData, [](FormWindow& form) { Press(form, "cmd_Cancel"); }}});
    In(ScreenId::frm_PrintSelect, [&](FormWindow& form) {
        Find<QRadioButton>(form, "opt_PrintSet_1").click();
        for (int slot = 1; slot <= 3; ++slot) {
            Click_Row(form, ("cmb_Var" + std::to_string(slot)).c_str(), 1);
            EXPECT_EQ(Focus(), "cmd_OK" + std::to_string(slot));
            Press(form, Focus().c_str());
        }
        PickList& last = List(form, "cmb_Var4");
        QTest::mouseClick(last.viewport(), Qt::LeftButton, {}, Middle_Of(last, 4));
        QTest::mouseDClick(last.viewport(), Qt::LeftButton, {}, Middle_Of(last, 4));
    });
    EXPECT_EQ(screens.frm_PrintData.grd_Data(0, 4), "Theta6");
}

TEST_F(SelectionWindow, ThePrintSelectionStaysVisibleBehindItsTableAndOpensAnew) {
    Follow({{ScreenId::frm_PrintData,
             [&](FormWindow& form) {
                 EXPECT_TRUE(port.Form(ScreenId::frm_PrintSelect).isVisible());
                 QTest::keyClick(&form, Qt::Key_Escape);
             }},
            {ScreenId::frm_PrintSelect, [&](FormWindow& form) {
                 EXPECT_EQ(Chosen(form, 0), ":");
                 EXPECT_FALSE(Find<QPushButton>(form, "cmd_Done").isEnabled());
                 EXPECT_FALSE(program->model.NewData) << "its lists are loaded";
                 Press(form, "cmd_Cancel");
             }}});
    QTimer::singleShot(0, [&] {
        FormWindow& form = port.Form(ScreenId::frm_PrintSelect);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        Click_Row(form, "cmb_Preset", 0);
        Press(form, "cmd_Done");
    });
    port.Show_Screen(ScreenId::frm_PrintSelect, Modality::Modal);
}

TEST_F(SelectionWindow, TheTableHasHeadsSumsAndRowsAndCannotBeChanged) {
    Follow({{ScreenId::frm_PrintData, [](FormWindow& form) {
                 auto& table = Find<DataTable>(form, "grd_Data");
                 ASSERT_EQ(table.columnCount(), 5);
                 ASSERT_EQ(table.rowCount(), 3 + 4);
                 EXPECT_EQ(table.horizontalHeaderItem(0)->text(), "Crank\nAngle\ndeg");
                 EXPECT_EQ(table.horizontalHeaderItem(2)->text(), "Theta4\nMag\ndegrees");
                 EXPECT_EQ(table.item(0, 0)->text(), "Min");
                 EXPECT_EQ(table.item(2, 0)->text(), "Max");
                 EXPECT_EQ(table.item(3, 0)->text(), "0.000");
                 EXPECT_EQ(table.item(6, 0)->text(), "300.000");
                 EXPECT_EQ(table.item(6, 1)->textAlignment(), Qt::AlignCenter);
                 EXPECT_EQ(table.editTriggers(), QAbstractItemView::NoEditTriggers);
                 EXPECT_EQ(Find<QLabel>(form, "lbl_Header2").text(), "Selected Linkage Parameters");
                 EXPECT_EQ(Find<QLabel>(form, "lbl_Links_1").text(), "2.000");
                 EXPECT_EQ(Find<QLabel>(form, "lbl_Coord").text(), "Global");
                 Press(form, "cmd_Cancel");
             }}});
    In(ScreenId::frm_PrintSelect, [](FormWindow& form) {
        Click_Row(form, "cmb_Preset", 0);
        Press(form, "cmd_Done");
    });
}

TEST_F(SelectionWindow, CopyPutsAnImageOfTheTableOnTheClipboard) {
    QApplication::clipboard()->clear();
    In(ScreenId::frm_PrintData, [this](FormWindow& form) {
        Await([](QDialog& box) { box.accept(); });
        Press(form, "cmd_Copy");
        EXPECT_EQ(QApplication::clipboard()->image().size(), form.grab().toImage().size());
    });
}

TEST_F(SelectionWindow, TheStepsCanBeTypedAndTheDecimalsOnlyChosen) {
    In(ScreenId::frm_PrintSelect, [this](FormWindow& form) {
        auto& steps = Find<QComboBox>(form, "cmb_Step");
        EXPECT_EQ(steps.currentText(), "10");
        steps.lineEdit()->selectAll();
        QTest::keyClicks(steps.lineEdit(), "4");
        EXPECT_EQ(screens.frm_PrintSelect.cmb_Step.text, "4");
        auto& decimals = Find<QComboBox>(form, "cmb_Decimal");
        EXPECT_FALSE(decimals.isEditable());
        EXPECT_EQ(decimals.currentText(), "3");
        QTest::keyClick(&decimals, Qt::Key_Down);
        EXPECT_EQ(screens.frm_PrintSelect.cmb_Decimal.text, "4");
    });
}

TEST_F(SelectionWindow, AKindOfPlotIsChosenByItsPictures) {
    Follow({{ScreenId::frm_PlotSelect4,
             [](FormWindow& form) {
                 EXPECT_EQ(Focus(), "cmb_Var1");
                 EXPECT_EQ(List(form, "cmb_Var1").item(0)->text(), "Veloc I 2,3");
                 Press(form, "cmd_Cancel");
             }},
            {ScreenId::frm_PlotType, [](FormWindow& form) {
                 EXPECT_EQ(Focus(), "opt_PickPlot_3");
                 Press(form, "cmd_CancelPickPlot");
             }}});
    QTimer::singleShot(0, [&] {
        FormWindow& form = port.Form(ScreenId::frm_PlotType);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        EXPECT_EQ(Focus(), "opt_PickPlot_0");
        Click(form, "pct_PickPlot_3");
        EXPECT_TRUE(Find<QRadioButton>(form, "opt_PickPlot_1").isChecked());
        QTest::mouseDClick(&Find<QWidget>(form, "pct_PickPlot_6"), Qt::LeftButton);
    });
    port.Show_Screen(ScreenId::frm_PlotType, Modality::Modal);
    EXPECT_EQ(program->selections.PlotTypePick, 4);
}

TEST_F(SelectionWindow, TheEightPicturesDiffer) {
    std::vector<QImage> seen;
    for (int i = 0; i < 8; ++i) {
        PlotKindPicture picture(i);
        picture.resize(picture.sizeHint());
        const QImage image = picture.grab().toImage();
        for (const QImage& other : seen) EXPECT_NE(image, other) << i;
        seen.push_back(image);
    }
}

TEST_F(SelectionWindow, NextOfAPlotSelectionWaitsForItsFunctions) {
    In(ScreenId::frm_PlotSelect2, [](FormWindow& form) {
        EXPECT_FALSE(Find<QPushButton>(form, "cmd_Done").isEnabled());
        Click_Row(form, "cmb_Preset", 0);
        EXPECT_TRUE(Find<QPushButton>(form, "cmd_Done").isEnabled());
    });
}

class PaperTest : public SelectionWindow {
  protected:
    std::unique_ptr<QPrinter> New_Pdf(const QString& name) const {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(folder.filePath(name));
        return printer;
    }
    QByteArray Content(const QString& name) const {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static int Pages(const QByteArray& pdf) { return static_cast<int>(pdf.count("/Type /Page\n")); }

    QTemporaryDir folder;
};

TEST_F(PaperTest, PagesAreCountedAndTheDocumentIsHandedOver) {
    PagePrinter printer(New_Pdf("a.pdf"), 71);
    EXPECT_EQ(printer.Page(), 1);
    printer.Print_Line("KERVOL");
    printer.New_Page();
    EXPECT_EQ(printer.Page(), 2);
    printer.Print_Line(std::string(300, 'x'));
    printer.End_Document();
    EXPECT_TRUE(Content("a.pdf").startsWith("%PDF-"));
    EXPECT_EQ(Pages(Content("a.pdf")), 2);
}

TEST_F(PaperTest, ADocumentThatWasNotEndedLeavesNoFile) {
    { PagePrinter(New_Pdf("b.pdf"), 71).Print_Line("KERVOL"); }
    EXPECT_FALSE(QFileInfo::exists(folder.filePath("b.pdf")));
}

TEST_F(PaperTest, APrinterThatCannotBeginIsAFault) {
    EXPECT_THROW(PagePrinter(New_Pdf("missing/c.pdf"), 71), Fault);
}

TEST_F(PaperTest, ATableWithoutAPrinterIsOfferedAsPdf) {
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "this machine has a printer";
    program->model.PrintStep = 1;
    program->model.NumSteps = 120;
    In(ScreenId::frm_PrintSelect, [this](FormWindow& form) {
        Click_Row(form, "cmb_Preset", 0);
        Find<QRadioButton>(form, "opt_Whereto_1").click();
        Await([this](QDialog& dialog) {
            auto& name = Find<QLineEdit>(dialog, "fileNameEdit");
            EXPECT_EQ(name.text(), "Model_1.pdf");
            name.setText(folder.filePath("table.pdf"));
            QTest::keyClick(&name, Qt::Key_Return);
        });
        Press(form, "cmd_Done");
    });
    // 121 rows, 60 a page.
    EXPECT_EQ(Pages(Content("table.pdf")), 3);
}

TEST_F(PaperTest, CancelOfThatDialogPrintsNothing) {
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "this machine has a printer";
    Await([](QDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(port.Ask_Printer(), nullptr);
}

}  // namespace
}  // namespace kervol
