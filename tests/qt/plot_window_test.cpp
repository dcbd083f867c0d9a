// SPDX-License-Identifier: GPL-3.0-or-later
// The plot screens as a person uses them.
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

#include "qt/chart_widget.h"
#include "qt/picture_widget.h"
#include "qt/window_test.h"
#include "rendering/render.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class PlotWindowTest : public WindowTest {
  protected:
    static bool Shown(const QWidget& form, const char* name) { return Find<QWidget>(form, name).isVisible(); }

    /// Copies the values of a picture by its menu.
    static QString Copied(FormWindow& form, const char* name) {
        Find<QWidget>(form, name).actions().back()->trigger();
        return QApplication::clipboard()->text();
    }
};

TEST_F(PlotWindowTest, OneChartShowsAllFunctions) {
    Select("watt", {"Omega3", "Omega4", "Omega5"});
    In(ScreenId::frm_Plot1, [](FormWindow& form) {
        const auto& chart = Find<ChartWidget>(form, "grf_Plot_0");
        EXPECT_EQ(chart.graphCount(), 3);
        EXPECT_EQ(chart.legend->itemCount(), 3);
        EXPECT_EQ(chart.graph(0)->dataCount(), 37);
        EXPECT_EQ(chart.xAxis->label(), "Crank Angle (Deg)");
    });
}

TEST_F(PlotWindowTest, EachOfFourChartsShowsItsFunctionAndNoEmptyCurves) {
    Select("watt", {"Omega3", "Omega4", "Omega5", "Omega6"});
    In(ScreenId::frm_Plot3, [](FormWindow& form) {
        for (const char* name : {"grf_Plot_0", "grf_Plot_1", "grf_Plot_2", "grf_Plot_3"}) {
            const auto& chart = Find<ChartWidget>(form, name);
            EXPECT_EQ(chart.graphCount(), 1) << name;
            EXPECT_EQ(chart.legend->itemCount(), 1) << name;
        }
    });
}

TEST_F(PlotWindowTest, BoxesAndBackgroundReachTheCharts) {
    Select("watt", {"Omega3", "Omega4"});
    In(ScreenId::frm_Plot2, [](FormWindow& form) {
        auto& chart = Find<ChartWidget>(form, "grf_Plot_1");
        Find<QCheckBox>(form, "chk_HGrid").click();
        EXPECT_EQ(chart.Look().GridStyle, 2);
        Find<QCheckBox>(form, "chk_Sticks").click();
        EXPECT_EQ(chart.Look().GraphStyle, 6);
        EXPECT_NE(chart.graph(0)->brush().style(), Qt::NoBrush);
        Find<QRadioButton>(form, "opt_Back_1").click();
        EXPECT_EQ(chart.Look().background, chart_background::Tinted);
    });
}

TEST_F(PlotWindowTest, AClickBesideTheControlsReloadsTheCharts) {
    Select("watt", {"Omega3", "Omega4"});
    In(ScreenId::frm_Plot2, [this](FormWindow& form) {
        program->tables.Omega(3, 1) = 55;
        QTest::mouseClick(&form, Qt::LeftButton, {}, {3, 3});
        EXPECT_EQ(Find<ChartWidget>(form, "grf_Plot_0").graph(0)->dataMainValue(3), 55);
    });
}

TEST_F(PlotWindowTest, ThePolarChartHasItsPointsAtTheOrigin) {
    Select("watt", {"Veloc CP-1"});
    In(ScreenId::frm_Plot4, [](FormWindow& form) {
        const auto& chart = Find<ChartWidget>(form, "grf_Plot_0");
        EXPECT_EQ(chart.graphCount(), 0);
        ASSERT_EQ(chart.plottableCount(), 1);
        EXPECT_EQ(chart.Place(0, 20), QPointF(0, 0));
    });
}

TEST_F(PlotWindowTest, StackedPlotsCopyTheirValuesInFull) {
    Select("watt", {"Omega3", "Omega4"});
    program->tables.Omega(1, 1) = 0.1F;
    program->tables.Omega(1, 2) = -2;
    In(ScreenId::frm_Myplot2, [](FormWindow& form) {
        const QStringList lines = Copied(form, "pct_Plot_1").split('\n');
        EXPECT_EQ(lines.size(), 37 + 2);
        EXPECT_EQ(lines[0], "\tOmega3 Mag\tOmega4 Mag");
        EXPECT_EQ(lines[2], "10\t0.1\t-2");
    });
}

TEST_F(PlotWindowTest, AStackedPlotIsSavedWithItsLabels) {
    Select("watt", {"Omega3", "Omega4"});
    In(ScreenId::frm_Myplot2, [](FormWindow& form) {
        std::string svg;
        form.save_picture = [&](const Sheet& sheet) { svg = Rendered(sheet, PictureFormat::Svg); };
        Find<QWidget>(form, "pct_Plot_1").actions().front()->trigger();
        EXPECT_THAT(svg, HasSubstr("Omega4"));
        EXPECT_THAT(svg, HasSubstr(">360.<"));
        EXPECT_THAT(svg, HasSubstr(">" + Find<QLabel>(form, "lbl_Ymax_1").text().toStdString() + "<"));
        EXPECT_EQ(svg.find("Omega3"), std::string::npos);
    });
}

TEST_F(PlotWindowTest, ThePolarPlotIsSteppedThroughWithItsNumbers) {
    Select("watt", {"Veloc CP-1"});
    In(ScreenId::frm_MyPlot4, [](FormWindow& form) {
        EXPECT_FALSE(Shown(form, "lbl_vector_0"));
        EXPECT_EQ(Find<QPushButton>(form, "cmd_Step").text(), "Plot");
        const std::size_t whole = Find<PictureWidget>(form, "pct_Plot_0").List().Strokes().size();
        Find<QCheckBox>(form, "chk_Pause").click();
        EXPECT_TRUE(Shown(form, "lbl_vector_0"));
        EXPECT_EQ(Find<QPushButton>(form, "cmd_Step").text(), "Step");
        EXPECT_LT(Find<PictureWidget>(form, "pct_Plot_0").List().Strokes().size(), whole);
        Press(form, "cmd_Step");
        EXPECT_EQ(Find<QLabel>(form, "lbl_StepNumber").text(), "10.0");
        EXPECT_THAT(Copied(form, "pct_Plot_0").toStdString(), StartsWith("\tX\tY\n0\t"));
    });
}

TEST_F(PlotWindowTest, BackLeadsToTheSelectionAndDoneToHome) {
    Select("watt", {"Omega3", "Omega4"});
    program->selections.PlotTypePick = 2;
    Follow({{ScreenId::frm_Plot2, [](FormWindow& form) { Press(form, "cmd_Replot"); }},
            {ScreenId::frm_PlotSelect2, [](FormWindow& form) { Press(form, "cmd_Cancel"); }},
            {ScreenId::frm_PlotType, [](FormWindow& form) { Press(form, "cmd_CancelPickPlot"); }}});
    port.Show_Screen(ScreenId::frm_Plot2, Modality::Modal);
    Follow({{ScreenId::frm_Plot2, [](FormWindow& form) { Press(form, "cmd_PlotDone"); }}});
    port.Show_Screen(ScreenId::frm_Plot2, Modality::Modal);
}

}  // namespace
}  // namespace kervol
