// SPDX-License-Identifier: GPL-3.0-or-later
// The picture that moves by itself: what is animated, when, and what stands.
#include "animation/linkage_svg.h"

#include <regex>

#include "kinematics/examples.h"
#include "kinematics/step_count.h"
#include "support/program_test.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

std::size_t Count(const std::string& text, const std::string& piece) {
    std::size_t count = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1)) ++count;
    return count;
}

/// Contents of every attribute of that name.
std::vector<std::string> Attributes(const std::string& text, const std::string& name) {
    std::vector<std::string> found;
    const std::regex pattern(" " + name + "=\"([^\"]*)\"");
    for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match)
        found.push_back((*match)[1]);
    return found;
}

class LinkageSvgTest : public ProgramTest {
  protected:
    void Sweep(float high, float step) {
        Load_Example(model, *Find_Example("watt"));
        model.ThetaMaxDeg = high;
        model.ThetaStepDeg = step;
        model.Omega2Start = 1;
        ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    }
    std::string Svg(SvgUse use = SvgUse::File) {
        return Moving_Svg(*program, Timed_Cycle(*program, 1, 0), 600, use);
    }
};

TEST_F(LinkageSvgTest, MovesLinksPinsAndCouplerPointsInOneTime) {
    Sweep(360, 10);
    const std::string svg = Svg();
    EXPECT_THAT(svg, StartsWith("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"600\""));
    EXPECT_EQ(Count(svg, "<animate "), 5U);           // links
    EXPECT_EQ(Count(svg, "<animateTransform "), 6U);  // four pins, two coupler points
    EXPECT_EQ(Count(svg, "dur=\"6.2832s\" repeatCount=\"indefinite\""), 11U);
    for (const std::string& values : Attributes(svg, "values")) EXPECT_EQ(Count(values, ";"), 36U);
    EXPECT_THAT(svg, Not(HasSubstr("keyTimes")));  // even steps need no times
    EXPECT_THAT(svg, Not(HasSubstr("script")));
    EXPECT_EQ(Count(svg, "<polyline "), 2U);
    for (const char* pivot : {">O2<", ">O4<", ">O6<"}) EXPECT_THAT(svg, HasSubstr(pivot));
}

TEST_F(LinkageSvgTest, BeginsAndEndsACycleInOnePlace) {
    Sweep(360, 10);
    for (const std::string& values : Attributes(Svg(), "values"))
        EXPECT_EQ(values.substr(0, values.find(';')), values.substr(values.rfind(';') + 1));
}

TEST_F(LinkageSvgTest, ShowsCoarseStepsAsTheyAre) {
    Sweep(360, 30);
    const std::string svg = Svg();
    EXPECT_EQ(Count(svg, "calcMode=\"discrete\""), 11U);
    const auto times = Attributes(svg, "keyTimes");
    ASSERT_EQ(times.size(), 11U);
    EXPECT_THAT(times[0], StartsWith("0;0.08333;0.16667;"));
    EXPECT_EQ(Count(times[0], ";"), 11U);  // the last position is the first one again
}

TEST_F(LinkageSvgTest, JumpsOverStepsThatFailed) {
    Sweep(60, 10);
    tables.StepValid(2) = tables.StepValid(3) = false;
    const std::string svg = Svg();
    // Steps 0 1 (1 again) 4 5 6 of seven, and the last one held to the end.
    EXPECT_EQ(Attributes(svg, "keyTimes")[0], "0;0.14286;0.57143;0.57143;0.71429;0.85714;1");
    const std::string values = Attributes(svg, "values")[0];
    EXPECT_EQ(Count(values, ";"), 6U);
}

TEST_F(LinkageSvgTest, StandsWhereThereIsOnePosition) {
    Load_Example(model, *Find_Example("watt"));
    model.CalcMode = 1;
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    const std::string svg = Svg();
    EXPECT_EQ(Count(svg, "<polygon "), 5U);
    EXPECT_THAT(svg, Not(HasSubstr("<animate")));
}

TEST_F(LinkageSvgTest, ShowsThePivotsOfALinkageThatNeverAssembles) {
    Sweep(60, 10);
    for (int step = 0; step <= 6; ++step) tables.StepValid(step) = false;
    const std::string svg = Svg();
    EXPECT_THAT(svg, Not(HasSubstr("<polygon")));
    EXPECT_THAT(svg, HasSubstr(">O6<"));
}

TEST_F(LinkageSvgTest, TakesTheGroundOfAPage) {
    Sweep(360, 10);
    EXPECT_THAT(Svg(), HasSubstr("<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>"));
    EXPECT_THAT(Svg(SvgUse::Page), Not(HasSubstr("<rect")));
}

TEST_F(LinkageSvgTest, EscapesATitle) {
    Sweep(360, 10);
    model.ModelTitle = "</title><script>&";
    EXPECT_THAT(Svg(), HasSubstr("<title>&lt;/title&gt;&lt;script&gt;&amp;</title>"));
}

TEST_F(LinkageSvgTest, IsSmall) {
    Sweep(360, 3);  // 121 positions
    EXPECT_LT(Svg().size(), 40'000U);
}

TEST(FittedView, PutsTheWholeMotionInsideThePicture) {
    const FittedView view({-10, 0, 30, 20}, 600);
    EXPECT_EQ(view.Width(), 600);
    EXPECT_LT(view.Height(), 600);
    EXPECT_GT(view.X(-10), 20);
    EXPECT_LT(view.X(30), 580);
    EXPECT_GT(view.Y(20), 20);
    EXPECT_LT(view.Y(0), view.Height() - 20);
    EXPECT_NEAR(view.X(-10) + view.X(30), 600, 1e-9);
    EXPECT_NEAR(view.X(30) - view.X(-10), 2 * (view.Y(0) - view.Y(20)), 1e-9);
}

TEST(FittedView, OfAPointAloneIsAPicture) {
    const FittedView view({0, 0, 0, 0}, 100);
    EXPECT_EQ(view.Width(), 100);
    EXPECT_NEAR(view.X(0), 50, 1e-9);
}

}  // namespace
}  // namespace kervol
