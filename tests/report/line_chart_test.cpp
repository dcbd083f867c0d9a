// SPDX-License-Identifier: GPL-3.0-or-later
// Charts of a page: ticks, gaps, ranges.
#include "report/line_chart.h"

#include <algorithm>
#include <cmath>
#include <regex>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

std::vector<double> Values(const Ticks& ticks) {
    std::vector<double> values;
    for (int i = 0; i < ticks.count; ++i) values.push_back(std::round(ticks.Value(i) * 1e6) / 1e6);
    return values;
}

LineChart Chart(std::vector<std::optional<double>> values) {
    LineChart chart;
    chart.title = "Title";
    chart.x_label = "Across";
    chart.y_label = "Up";
    for (std::size_t i = 0; i < values.size(); ++i) chart.abscissae.push_back(static_cast<double>(i));
    chart.curves = {{"Curve", std::move(values)}};
    return chart;
}

/// Texts of the axes' numbers, those of x first.
std::vector<std::string> Tick_Texts(const std::string& svg) {
    std::vector<std::string> texts;
    const std::regex pattern("class=\"tick\"[^>]*>([^<]*)<");
    for (std::sregex_iterator match(svg.begin(), svg.end(), pattern), end; match != end; ++match)
        texts.push_back((*match)[1]);
    return texts;
}

/// What the curve's path draws.
std::string Path(const std::string& svg) {
    std::smatch match;
    const std::regex pattern("class=\"curve c1\" d=\"([^\"]*)\"/>\n</svg>");
    return std::regex_search(svg, match, pattern) ? match[1].str() : "";
}

std::size_t Count(const std::string& text, char letter) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), letter));
}

TEST(RoundTicks, AreApartByRoundSteps) {
    EXPECT_THAT(Values(Round_Ticks(0, 10, 6, false)), ElementsAre(0, 2, 4, 6, 8, 10));
    EXPECT_THAT(Values(Round_Ticks(-0.31, 0.29, 6, false)), ElementsAre(-0.2, 0, 0.2));
    EXPECT_THAT(Values(Round_Ticks(1200, 4700, 5, false)), ElementsAre(2000, 3000, 4000));
}

TEST(RoundTicks, OfATurnAreItsParts) {
    EXPECT_THAT(Values(Round_Ticks(0, 360, 10, true)), ElementsAre(0, 45, 90, 135, 180, 225, 270, 315, 360));
    EXPECT_THAT(Values(Round_Ticks(180, 540, 5, true)), ElementsAre(180, 270, 360, 450, 540));
    EXPECT_THAT(Values(Round_Ticks(0, 1440, 5, true)), ElementsAre(0, 360, 720, 1080, 1440));
    EXPECT_THAT(Values(Round_Ticks(0, 20, 5, true)), ElementsAre(0, 5, 10, 15, 20));
}

TEST(RoundTicks, ReachAnEndThatRoundingMoved) {
    EXPECT_EQ(Round_Ticks(0, 359.99997, 10, true).count, 9);
}

TEST(LineChart, HasTicksBeyondItsCurves) {
    const auto texts = Tick_Texts(Chart_Svg(Chart({0.5, 9.3})));
    EXPECT_THAT(std::vector<std::string>(texts.end() - 6, texts.end()),
                ElementsAre("0", "2", "4", "6", "8", "10"));
}

TEST(LineChart, WritesNumbersThatDifferFromTickToTick) {
    const auto small = Tick_Texts(Chart_Svg(Chart({1.0001, 1.0004})));
    EXPECT_EQ(std::set<std::string>(small.begin(), small.end()).size(), small.size());
    EXPECT_THAT(Tick_Texts(Chart_Svg(Chart({0, 4e7}))), ::testing::Contains("2E+07"));
}

TEST(LineChart, DrawsAFlatCurveInTheMiddle) {
    // The grid runs from 58 to 226 pixels.
    EXPECT_THAT(Path(Chart_Svg(Chart({10, 10.00001}))), HasSubstr(" 142L"));
    EXPECT_THAT(Path(Chart_Svg(Chart({0, 0}))), HasSubstr(" 142L"));
}

TEST(LineChart, BreaksWhereAValueIsMissing) {
    const std::string path = Path(Chart_Svg(Chart({1, 2, {}, 3, 4, {}, 5})));
    EXPECT_EQ(Count(path, 'M'), 3U);
    EXPECT_EQ(Count(path, 'L'), 2U);
    EXPECT_TRUE(path.ends_with("h0")) << path;  // the last value stands alone
}

TEST(LineChart, BreaksWhereADirectionJumpsByATurn) {
    LineChart chart = Chart({300, 355, 5, 60});
    EXPECT_EQ(Count(Path(Chart_Svg(chart)), 'M'), 1U);
    chart.turns_y = true;
    EXPECT_EQ(Count(Path(Chart_Svg(chart)), 'M'), 2U);
}

TEST(LineChart, OfNothingIsAnEmptyGrid) {
    EXPECT_EQ(Path(Chart_Svg(Chart({{}, {}}))), "");
    EXPECT_THAT(Chart_Svg(Chart({})), HasSubstr("class=\"grid\""));
}

TEST(LineChart, NeverWritesWhatIsNoNumber) {
    for (const auto& values : std::vector<std::vector<std::optional<double>>>{
             {}, {5}, {0, 0}, {1e30, -1e30}, {1e-30, 2e-30}, {3.4e38, -3.4e38}}) {
        const std::string svg = Chart_Svg(Chart(values));
        EXPECT_THAT(svg, Not(HasSubstr("nan")));
        EXPECT_THAT(svg, Not(HasSubstr("inf")));
        EXPECT_LT(svg.size(), 20'000U);
    }
}

TEST(LineChart, EscapesItsTexts) {
    LineChart chart = Chart({1, 2});
    chart.title = "<a>";
    chart.y_label = "x&y";
    chart.curves[0].name = "\"c\"";
    const std::string svg = Chart_Svg(chart);
    EXPECT_THAT(svg, Not(HasSubstr("<a>")));
    EXPECT_THAT(svg, HasSubstr("x&amp;y"));
    EXPECT_THAT(svg, HasSubstr("&quot;c&quot;"));
}

TEST(LineChart, DrawsBarsFromZero) {
    LineChart chart = Chart({3, 4});
    chart.kind = ChartKind::Bars;
    const std::string svg = Chart_Svg(chart);
    EXPECT_THAT(svg, HasSubstr("class=\"bars\""));
    EXPECT_THAT(Tick_Texts(svg), ::testing::Contains("0"));
}

}  // namespace
}  // namespace kervol
