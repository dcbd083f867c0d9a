// SPDX-License-Identifier: GPL-3.0-or-later
// Charts and pictures as files and as numbers on the clipboard, by their context menu.
#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include "qt/chart_widget.h"
#include "qt/picture_widget.h"
#include "qt/window_test.h"
#include "rendering/qt_text.h"
#include "rendering/render.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr Colour kBlue = {0, 0, 255};

std::vector<std::string> Menu_Texts(const QWidget& picture) {
    std::vector<std::string> texts;
    for (const QAction* action : picture.actions()) texts.push_back(action->text().toStdString());
    return texts;
}

bool Is_Well_Formed(const std::string& xml) {
    QXmlStreamReader reader(QByteArray::fromStdString(xml));
    while (!reader.atEnd()) reader.readNext();
    return !reader.hasError();
}

Chart Rising() {
    Chart chart;
    chart.Put_NumPoints(3);
    chart.look.BottomTitle = "Time (Sec)";
    chart.Set().LegendText = "rising";
    for (chart.ThisPoint = 1; chart.ThisPoint <= 3; ++chart.ThisPoint) {
        chart.Put_GraphData(chart.ThisPoint);
        chart.Put_LabelText("t" + std::to_string(chart.ThisPoint));
    }
    return chart;
}

Sheet Chart_Page() {
    Sheet sheet{.width = 400, .height = 300};
    sheet.charts.push_back({{0, 0, 400, 300}, Rising().look});
    return sheet;
}

Sheet Line_Page(std::vector<Stroke> strokes) {
    Sheet sheet{.width = 100, .height = 50};
    sheet.drawings.push_back(
        {.box = {0, 0, 100, 50}, .window = {0, 1, 1, 0}, .true_shape = false, .strokes = std::move(strokes)});
    return sheet;
}

TEST(Rendered, IsTheSameSvgEachTimeWithItsTextsAsTexts) {
    const std::string svg = Rendered(Chart_Page(), PictureFormat::Svg);
    EXPECT_TRUE(Is_Well_Formed(svg));
    for (const char* text : {"viewBox=\"0 0 400 300\"", ">Time (Sec)<", ">rising<", ">t2<", "DejaVu Sans"})
        EXPECT_THAT(svg, HasSubstr(text));
    EXPECT_EQ(Rendered(Chart_Page(), PictureFormat::Svg), svg);
}

TEST(Rendered, IsAPngOfAsManyPixelsAsTheFileIsToHave) {
    Sheet sheet = Chart_Page();
    sheet.pixels = 2;
    const QImage image = QImage::fromData(QByteArray::fromStdString(Rendered(sheet, PictureFormat::Png)));
    EXPECT_EQ(image.size(), QSize(800, 600));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
}

TEST(Rendered, IsAWholePdf) {
    const std::string pdf = Rendered(Chart_Page(), PictureFormat::Pdf);
    EXPECT_THAT(pdf, StartsWith("%PDF-"));
    EXPECT_THAT(pdf, HasSubstr("%%EOF"));
}

TEST(Rendered, IsNothingForAPictureWithoutBounds) {
    Sheet sheet = Chart_Page();
    sheet.pixels = 1e6;
    EXPECT_EQ(Rendered(sheet, PictureFormat::Png), "");
}

TEST(Rendered, FillsTheBoxAndCutsLinesAtItsEdge) {
    const Shape beyond = {Shape::Kind::Line, -5, 0.5, 5, 0.5};
    const std::string svg = Rendered(Line_Page({{beyond, kBlue}}), PictureFormat::Svg);
    EXPECT_THAT(svg, HasSubstr("0,25 100,25"));
    const QImage image = QImage::fromData(
        QByteArray::fromStdString(Rendered(Line_Page({{beyond, kBlue}}), PictureFormat::Png)));
    EXPECT_EQ(image.pixelColor(50, 25).blue(), 255);
    EXPECT_LT(image.pixelColor(50, 25).red(), 128);
}

TEST(Rendered, LeavesOutWhatHasNoPlace) {
    const double far = 1e300;
    const std::string svg = Rendered(Line_Page({{{Shape::Kind::Line, 0.5, -far * far, 0.5, 1}, kBlue},
                                                {{Shape::Kind::Circle, 0, 0, far, 0}, kBlue}}),
                                     PictureFormat::Svg);
    EXPECT_TRUE(Is_Well_Formed(svg));
    for (const char* text : {"nan", "inf", "<ellipse", "<circle"})
        EXPECT_EQ(svg.find(text), std::string::npos) << text;
}

TEST(PictureFormats, AreToldByTheEndingOfTheName) {
    EXPECT_EQ(Picture_Format("a.b.SVG"), PictureFormat::Svg);
    EXPECT_EQ(Picture_Format("/x/y.png"), PictureFormat::Png);
    EXPECT_EQ(Picture_Format("a.pdf"), PictureFormat::Pdf);
    for (const char* name : {"", "svg", "a.jpg", "a.svg.bak", "a.svgz"})
        EXPECT_EQ(Picture_Format(name), std::nullopt) << name;
}

class PictureFilesTest : public WindowTest {
  protected:
    static void Choose(QDialog& dialog, const QString& path) {
        auto& name = Find<QLineEdit>(dialog, "fileNameEdit");
        name.setText(path);
        QTest::keyClick(&name, Qt::Key_Return);
    }
    /// "Save picture as..." of the Input screen's picture, under that name.
    void Save_As(const QString& path) {
        In(ScreenId::frm_Inputnew, [&](FormWindow& form) {
            Await([path](QDialog& dialog) { Choose(dialog, path); });
            Find<QWidget>(form, "Picture1").actions().front()->trigger();
        });
    }

    TemporaryFolder folder;
};

TEST_F(PictureFilesTest, ALinkagePictureIsSavedAndHasNoValues) {
    In(ScreenId::frm_Inputnew, [&](FormWindow& form) {
        EXPECT_THAT(Menu_Texts(Find<QWidget>(form, "Picture1")), ElementsAre("&Save picture as..."));
    });
    Save_As(Qt_Text(folder / "a.svg"));
    EXPECT_TRUE(Is_Well_Formed(Content_Of(folder / "a.svg")));
    EXPECT_THAT(Content_Of(folder / "a.svg"), HasSubstr("<svg"));
    Save_As(Qt_Text(folder / "a.png"));
    EXPECT_FALSE(QImage(Qt_Text(folder / "a.png")).isNull());
}

TEST_F(PictureFilesTest, WhatIsOverwrittenIsKept) {
    folder.Put("a.pdf", "earlier");
    In(ScreenId::frm_Inputnew, [&](FormWindow& form) {
        Await([&](QDialog& dialog) { Choose(dialog, Qt_Text(folder / "a.pdf")); });
        Await([](QDialog& dialog) { dynamic_cast<QMessageBox&>(dialog).button(QMessageBox::Yes)->click(); });
        Find<QWidget>(form, "Picture1").actions().front()->trigger();
    });
    EXPECT_THAT(Content_Of(folder / "a.pdf"), StartsWith("%PDF-"));
    EXPECT_EQ(Content_Of(folder / "a.pdf~"), "earlier");
}

TEST_F(PictureFilesTest, AFailureIsToldInABox) {
    std::filesystem::create_directory(folder / "gone");
    In(ScreenId::frm_Inputnew, [&](FormWindow& form) {
        Await([&](QDialog& dialog) {
            Choose(dialog, Qt_Text(folder / "gone/a.svg"));
            std::filesystem::remove(folder / "gone");
        });
        Await([](QDialog& dialog) {
            EXPECT_THAT(dynamic_cast<QMessageBox&>(dialog).text().toStdString(), HasSubstr("Save_Picture"));
            dialog.accept();
        });
        Find<QWidget>(form, "Picture1").actions().front()->trigger();
    });
    ASSERT_EQ(program->faults.entries.size(), 1U);
    EXPECT_EQ(program->faults.entries.front(), (ReportedFault{76, "Save_Picture"}));
}

TEST_F(PictureFilesTest, AnotherEndingIsRefusedInWords) {
    In(ScreenId::frm_Inputnew, [&](FormWindow& form) {
        Await([&](QDialog& dialog) { Choose(dialog, Qt_Text(folder / "a.bmp")); });
        Await([](QDialog& dialog) {
            EXPECT_EQ(
                dynamic_cast<QMessageBox&>(dialog).text(),
                "A picture is saved as .svg, .png or .pdf.\nPlease give its name one of these endings.");
            dialog.accept();
        });
        Find<QWidget>(form, "Picture1").actions().front()->trigger();
    });
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(PictureFilesTest, TheProposedNameFollowsTheKindOfFile) {
    In(ScreenId::frm_Inputnew, [&](FormWindow& form) {
        Await([](QDialog& dialog) {
            auto& files = dynamic_cast<QFileDialog&>(dialog);
            auto& name = Find<QLineEdit>(dialog, "fileNameEdit");
            EXPECT_EQ(name.text(), "Model_1.svg");
            emit files.filterSelected("PNG image (*.png)");
            EXPECT_EQ(name.text(), "Model_1.png");
            EXPECT_EQ(files.defaultSuffix(), "png");
            dialog.reject();
        });
        Find<QWidget>(form, "Picture1").actions().front()->trigger();
    });
}

TEST(ChartMenu, CopiesLabelsAndValues) {
    ChartWidget widget;
    widget.Show(Rising().look);
    EXPECT_THAT(Menu_Texts(widget), ElementsAre("&Save picture as...", "&Copy values"));
    widget.actions().back()->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), "Time (Sec)\trising\nt1\t1\nt2\t2\nt3\t3\n");
}

TEST(ChartMenu, SavesThePartThatIsInView) {
    ChartWidget widget;
    widget.resize(400, 300);
    widget.Show(Rising().look);
    EXPECT_FALSE(widget.Shown_Sheet().charts.front().view);
    widget.xAxis->setRange(0.5, 1.5);
    ASSERT_TRUE(widget.Shown_Sheet().charts.front().view);
    const std::string svg = Rendered(widget.Shown_Sheet(), PictureFormat::Svg);
    EXPECT_THAT(svg, HasSubstr(">t2<"));
    EXPECT_EQ(svg.find(">t1<"), std::string::npos);
}

}  // namespace
}  // namespace kervol
