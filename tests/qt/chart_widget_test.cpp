// SPDX-License-Identifier: GPL-3.0-or-later
// What a chart shows of its store, and what a person does on it.
#include "qt/chart_widget.h"

#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <cmath>

#include "qt/binder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

constexpr QSize kSize(600, 400);

/// Sets of points whose y is 10 times the set plus the point, labelled "p0", "p1", ...
Chart Filled(int sets, int points) {
    Chart chart;
    chart.Put_NumSets(sets);
    chart.Put_NumPoints(points);
    for (chart.ThisSet = 1; chart.ThisSet <= sets; ++chart.ThisSet) {
        chart.Set().LegendText = "set " + std::to_string(chart.ThisSet);
        for (chart.ThisPoint = 1; chart.ThisPoint <= points; ++chart.ThisPoint) {
            chart.Put_GraphData(static_cast<float>(10 * chart.ThisSet + chart.ThisPoint));
            chart.Put_LabelText("p" + std::to_string(chart.ThisPoint - 1));
        }
    }
    return chart;
}

class ChartWidgetTest : public ::testing::Test {
  protected:
    ChartWidgetTest() {
        widget.resize(kSize);
        widget.show();
    }

    void Show(const ChartLook& look) {
        widget.Show(look);
        QTest::qWait(1);
        widget.replot();
    }
    QPoint Pixel(std::size_t set, std::size_t point) const {
        const QPointF place = widget.Place(set, point);
        return QPointF(widget.xAxis->coordToPixel(place.x()), widget.yAxis->coordToPixel(place.y()))
            .toPoint();
    }
    std::vector<std::string> Tick_Texts() const {
        std::vector<std::string> texts;
        for (const QString& text : widget.xAxis->tickVectorLabels()) texts.push_back(text.toStdString());
        return texts;
    }

    ChartWidget widget;
};

TEST_F(ChartWidgetTest, EverySetIsACurveOfItsPointsWithALegend) {
    Show(Filled(3, 5).look);
    ASSERT_EQ(widget.graphCount(), 3);
    EXPECT_EQ(widget.legend->itemCount(), 3);
    for (int set = 0; set < 3; ++set) {
        EXPECT_EQ(widget.graph(set)->dataCount(), 5);
        EXPECT_EQ(widget.graph(set)->name().toStdString(), "set " + std::to_string(set + 1));
        for (int point = 0; point < 5; ++point) {
            EXPECT_EQ(widget.graph(set)->dataMainKey(point), point);
            EXPECT_EQ(widget.graph(set)->dataMainValue(point), 10 * (set + 1) + point + 1);
        }
    }
}

TEST_F(ChartWidgetTest, AllPointsAreInViewWithASmallMargin) {
    Show(Filled(2, 11).look);
    EXPECT_LT(widget.View().x_low, 0);
    EXPECT_GT(widget.View().x_low, -1);
    EXPECT_GT(widget.View().x_high, 10);
    EXPECT_LT(widget.View().x_high, 11);
    EXPECT_LT(widget.View().y_low, 11);
    EXPECT_GT(widget.View().y_low, 8);
    EXPECT_GT(widget.View().y_high, 31);
    EXPECT_LT(widget.View().y_high, 34);
}

TEST_F(ChartWidgetTest, FlatAndLonePointsHaveAWindowAroundThem) {
    for (const float value : {0.0F, 7.0F, -3e38F, 1e-30F}) {
        for (const int points : {1, 4}) {
            Chart chart = Filled(1, points);
            for (float& y : chart.look.sets[0].GraphData) y = value;
            Show(chart.look);
            const PlaneView view = widget.View();
            EXPECT_LT(view.y_low, double(value)) << value;
            EXPECT_GT(view.y_high, double(value)) << value;
            EXPECT_LT(view.x_low, view.x_high);
            EXPECT_TRUE(std::isfinite(view.y_high - view.y_low));
        }
    }
}

TEST_F(ChartWidgetTest, TheRoundingOfAConstantIsNotEnlarged) {
    Chart chart = Filled(1, 3);
    chart.look.sets[0].GraphData = {5, std::nextafter(5.0F, 6.0F), 5};
    Show(chart.look);
    EXPECT_GT(widget.View().y_high - widget.View().y_low, 0.5);
}

TEST_F(ChartWidgetTest, TicksStandAtEveryNthPointAndTextsAtEveryMth) {
    Chart chart = Filled(1, 25);
    chart.look.TickEvery = 6;
    chart.look.LabelEvery = 12;
    Show(chart.look);
    EXPECT_THAT(widget.xAxis->tickVector(), ElementsAre(0, 6, 12, 18, 24));
    EXPECT_THAT(Tick_Texts(), ElementsAre("p0", "", "p12", "", "p24"));
}

TEST_F(ChartWidgetTest, TextsThatWouldCollideAreThinnedAndAnEnlargedPartGetsMore) {
    Chart chart = Filled(1, 1025);
    chart.look.TickEvery = 5;
    chart.look.LabelEvery = 10;
    Show(chart.look);
    const auto texts = Tick_Texts();
    const auto shown = std::count_if(texts.begin(), texts.end(), [](const auto& t) { return !t.empty(); });
    EXPECT_GE(shown, 4);
    EXPECT_LE(shown, 600 / 40);
    widget.xAxis->setRange(100, 104);
    widget.replot();
    EXPECT_THAT(Tick_Texts(), ElementsAre("p100", "", "p102", "", "p104"));
}

TEST_F(ChartWidgetTest, TheGridFollowsItsStyle) {
    for (const auto& [style, horizontal, vertical] :
         {std::tuple(0, false, false), std::tuple(1, true, false), std::tuple(2, false, true),
          std::tuple(3, true, true)}) {
        Chart chart = Filled(1, 3);
        chart.look.GridStyle = static_cast<std::int16_t>(style);
        Show(chart.look);
        EXPECT_EQ(widget.yAxis->grid()->pen().style() != Qt::NoPen, horizontal) << style;
        EXPECT_EQ(widget.xAxis->grid()->pen().style() != Qt::NoPen, vertical) << style;
    }
}

TEST_F(ChartWidgetTest, StylesAreLinesFillsAndBoth) {
    Chart chart = Filled(1, 3);
    for (const int style : {0, 2}) {
        chart.look.GraphStyle = static_cast<std::int16_t>(style);
        Show(chart.look);
        EXPECT_EQ(widget.graph(0)->lineStyle(), QCPGraph::lsLine);
        EXPECT_EQ(widget.graph(0)->brush().style(), Qt::NoBrush);
    }
    for (const int style : {4, 6}) {
        chart.look.GraphStyle = static_cast<std::int16_t>(style);
        Show(chart.look);
        EXPECT_NE(widget.graph(0)->brush().style(), Qt::NoBrush);
        EXPECT_LT(widget.View().y_low, 0) << "fills begin at 0";
    }
}

TEST_F(ChartWidgetTest, ASpectrumHasASticksAtEachHarmonicAndItsLineOnDemand) {
    Chart chart = Filled(1, 3);
    chart.look.sticks = true;
    chart.look.GraphStyle = 4;
    Show(chart.look);
    ASSERT_EQ(widget.graphCount(), 1);
    EXPECT_EQ(widget.graph(0)->lineStyle(), QCPGraph::lsImpulse);
    chart.look.GraphStyle = 6;
    Show(chart.look);
    ASSERT_EQ(widget.graphCount(), 2);
    EXPECT_EQ(widget.legend->itemCount(), 1);
    chart.look.GraphStyle = 2;
    Show(chart.look);
    ASSERT_EQ(widget.graphCount(), 1);
    EXPECT_EQ(widget.graph(0)->lineStyle(), QCPGraph::lsLine);
}

TEST_F(ChartWidgetTest, SixCurvesDifferByColourAndByPatternAndThePatternsRunOn) {
    Chart chart = Filled(8, 3);
    for (std::size_t set = 0; set < 8; ++set) {
        chart.look.sets[set].PatternedLines = true;
        chart.look.sets[set].PatternData = static_cast<std::int16_t>(set);
    }
    chart.look.sets[7].PatternedLines = false;
    chart.look.sets[6].ThickLines = true;
    Show(chart.look);
    EXPECT_EQ(widget.graph(0)->pen().style(), Qt::SolidLine);
    for (int one = 0; one < 6; ++one) {
        for (int other = 0; other < one; ++other) {
            EXPECT_NE(widget.graph(one)->pen().color(), widget.graph(other)->pen().color());
            EXPECT_NE(widget.graph(one)->pen().dashPattern(), widget.graph(other)->pen().dashPattern());
        }
    }
    EXPECT_EQ(widget.graph(6)->pen().style(), Qt::SolidLine) << "the seventh begins anew";
    EXPECT_GT(widget.graph(6)->pen().widthF(), widget.graph(0)->pen().widthF());
    EXPECT_EQ(widget.graph(7)->pen().style(), Qt::SolidLine) << "not patterned";
}

TEST_F(ChartWidgetTest, BackgroundIsWhiteOrTintedAndNeverTheDesktops) {
    Chart chart = Filled(1, 3);
    chart.look.background = chart_background::White;
    Show(chart.look);
    EXPECT_EQ(widget.grab().toImage().pixelColor(1, 1), QColor(Qt::white));
    chart.look.background = chart_background::Tinted;
    Show(chart.look);
    const QColor tint = widget.grab().toImage().pixelColor(1, 1);
    EXPECT_NE(tint, QColor(Qt::white));
    EXPECT_GT(tint.lightness(), 230);
}

TEST_F(ChartWidgetTest, TitlesStandInTheirFonts) {
    Chart chart = Filled(1, 3);
    chart.look.GraphTitle = "Omega 3  (Rad/Sec)";
    chart.look.BottomTitle = "Crank Angle (Deg)";
    chart.look.fonts[font_use::OtherTexts] = {90, 2, 1};
    Show(chart.look);
    EXPECT_EQ(widget.xAxis->label(), "Crank Angle (Deg)");
    EXPECT_TRUE(widget.xAxis->labelFont().bold());
    EXPECT_FALSE(widget.xAxis->tickLabelFont().bold());
    const int small = widget.xAxis->labelFont().pixelSize();
    chart.look.fonts[font_use::OtherTexts].FontSize = 180;
    Show(chart.look);
    EXPECT_NEAR(widget.xAxis->labelFont().pixelSize(), 2 * small, 1);
}

TEST_F(ChartWidgetTest, APolarChartPutsItsPointsInThePlaneInTrueShape) {
    Chart chart = Filled(1, 4);
    chart.look.polar = true;
    chart.look.sets[0].XPosData = {1, 0, -1, 0};
    chart.look.sets[0].GraphData = {0, 1, 0, -1};
    Show(chart.look);
    EXPECT_EQ(widget.graphCount(), 0);
    ASSERT_EQ(widget.plottableCount(), 1);
    const QPoint right = Pixel(0, 0), top = Pixel(0, 1), left = Pixel(0, 2), bottom = Pixel(0, 3);
    EXPECT_NEAR(right.x() - left.x(), bottom.y() - top.y(), 2);
}

TEST_F(ChartWidgetTest, APolarChartWithAllPointsAtTheOriginIsDrawn) {
    Chart chart = Filled(1, 37);
    chart.look.polar = true;
    std::fill(chart.look.sets[0].GraphData.begin(), chart.look.sets[0].GraphData.end(), 0.0F);
    Show(chart.look);
    const QPoint origin = Pixel(0, 20);
    EXPECT_TRUE(widget.axisRect()->rect().contains(origin));
    const QColor there = widget.grab().toImage().pixelColor(origin);
    EXPECT_EQ(there, ChartPlot::Curve_Colour(0));
}

TEST_F(ChartWidgetTest, TheWheelEnlargesAndADoubleClickShowsTheWholeAgain) {
    Show(Filled(1, 100).look);
    EXPECT_TRUE(widget.Shows_Whole());
    const QPointF middle = widget.axisRect()->center();
    QWheelEvent turn(middle, widget.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &turn);
    const PlaneView enlarged = widget.View();
    EXPECT_LT(enlarged.x_high - enlarged.x_low, 90);
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, middle.toPoint());
    EXPECT_TRUE(widget.Shows_Whole());
}

TEST_F(ChartWidgetTest, AViewStaysWhenOnlyTheDressChangesAndItNeverLeavesThePoints) {
    Chart chart = Filled(1, 100);
    Show(chart.look);
    widget.xAxis->setRange(20, 30);
    chart.look.GridStyle = 3;
    Show(chart.look);
    EXPECT_EQ(widget.View().x_low, 20);
    widget.xAxis->setRange(-500, 5000);
    EXPECT_TRUE(widget.Shows_Whole());
    widget.xAxis->setRange(20, 30);
    chart.look.sets[0].GraphData[5] = 77;
    Show(chart.look);
    EXPECT_TRUE(widget.Shows_Whole()) << "other points";
}

TEST_F(ChartWidgetTest, APointUnderThePointerIsReadInLabelAndValue) {
    Show(Filled(2, 5).look);
    const QPoint at = Pixel(1, 2);
    const QPointF near = at + QPointF(2, 1);
    QMouseEvent move(QEvent::MouseMove, near, widget.mapToGlobal(near), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&widget, &move);
    ASSERT_TRUE(widget.Shown_Reading());
    EXPECT_EQ(*widget.Shown_Reading(), (ChartWidget::Reading{1, 2}));
    EXPECT_EQ(widget.Words(*widget.Shown_Reading()), "set 2\np2:  23");
    EXPECT_FALSE(widget.Nearest({1, 1})) << "outside the axes";
}

TEST_F(ChartWidgetTest, ArrowKeysReadAlongTheCurves) {
    Show(Filled(2, 3).look);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down}) QTest::keyClick(&widget, key);
    ASSERT_TRUE(widget.Shown_Reading());
    EXPECT_EQ(*widget.Shown_Reading(), (ChartWidget::Reading{1, 1}));
    EXPECT_EQ(widget.accessibleDescription(), "set 2\np1:  22");
    for (int i = 0; i < 5; ++i) QTest::keyClick(&widget, Qt::Key_Right);
    EXPECT_EQ(widget.Shown_Reading()->point, 2U);
}

TEST_F(ChartWidgetTest, ASetThatIsNotDrawnIsNotRead) {
    Chart chart = Filled(1, 3);
    chart.look.sets[0].GraphData = {-1, 1, -1};
    chart.Put_NumSets(2);
    Show(chart.look);
    EXPECT_EQ(widget.Nearest(Pixel(1, 0)), std::nullopt);
    QTest::keyClick(&widget, Qt::Key_Right);
    QTest::keyClick(&widget, Qt::Key_Down);
    EXPECT_EQ(*widget.Shown_Reading(), (ChartWidget::Reading{0, 0}));

    Chart empty;
    Show(empty.look);
    QTest::keyClick(&widget, Qt::Key_Right);
    EXPECT_EQ(widget.Shown_Reading(), std::nullopt);
}

TEST_F(ChartWidgetTest, AClickIsAClickAndADragIsNone) {
    int clicks = 0;
    widget.clicked = [&] { ++clicks; };
    Show(Filled(1, 5).look);
    const QPoint middle = widget.axisRect()->center();
    QTest::mouseClick(&widget, Qt::LeftButton, {}, middle);
    EXPECT_EQ(clicks, 1);
    QTest::mousePress(&widget, Qt::LeftButton, {}, middle);
    QTest::mouseMove(&widget, middle + QPoint(60, 0));
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, middle + QPoint(60, 0));
    EXPECT_EQ(clicks, 1);
}

TEST(ChartBinding, ShowsTheRecordAndRaisesItsClick) {
    QWidget form;
    auto* widget = new ChartWidget(&form);
    widget->setObjectName("grf_Plot_0");
    std::array<Chart, 1> charts;
    Binder binder(form, [](const Event& event) {
        if (event) event();
    });
    binder.Add("grf_Plot", charts);
    binder.Check_Names();
    charts[0] = Filled(2, 3);
    int clicks = 0;
    charts[0].click = [&] { ++clicks; };
    binder.Push();
    EXPECT_EQ(widget->Look(), charts[0].look);
    EXPECT_EQ(widget->graphCount(), 2);
    widget->clicked();
    EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace kervol
