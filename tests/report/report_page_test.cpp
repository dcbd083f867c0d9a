// SPDX-License-Identifier: GPL-3.0-or-later
// The design report: what stands in it, when, and that making it changes nothing.
#include "report/report_page.h"

#include <regex>

#include "dynamics/solve_forces.h"
#include "kinematics/examples.h"
#include "kinematics/step_count.h"
#include "report/report_curves.h"
#include "report/torque_analysis.h"
#include "support/compare.h"
#include "support/program_test.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class ReportTest : public ProgramTest {
  protected:
    void Calculate_Example(const char* name) {
        Load_Example(model, *Find_Example(name));
        ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    }
    std::size_t Count(const std::string& text, const std::string& piece) {
        std::size_t count = 0;
        for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1))
            ++count;
        return count;
    }
    static std::vector<std::string> Headings(const std::string& page) {
        std::vector<std::string> found;
        const std::regex pattern("<h2>([^<]*)</h2>");
        for (std::sregex_iterator match(page.begin(), page.end(), pattern), end; match != end; ++match)
            found.push_back((*match)[1]);
        return found;
    }
};

TEST_F(ReportTest, OfAMotionAloneHasNoForces) {
    Calculate_Example("watt");
    const std::string page = Report_Page(*program);
    EXPECT_THAT(Headings(page), ElementsAre("Model", "Range and limits", "Motion", "Extremes",
                                            "How far the numbers can be trusted"));
    // Six of the motion, and its transmission angle beside the acute one.
    EXPECT_EQ(Count(page, "<svg class=\"chart\""), 7U);
    EXPECT_THAT(page, HasSubstr("<th>Forces</th><td>not calculated</td>"));
}

TEST_F(ReportTest, WithTheDynamicsHasForcesFlywheelAndSpectrum) {
    Calculate_Example("watt");
    Run_Dynamics(*program);
    const std::string page = Report_Page(*program);
    EXPECT_THAT(Headings(page),
                ElementsAre("Model", "Range and limits", "Motion", "Torque and forces", "Extremes",
                            "Flywheel", "Spectrum of the torque", "How far the numbers can be trusted"));
    // Six of the motion, four of the forces, the spectrum, and eight tabulated beside consistent.
    EXPECT_EQ(Count(page, "<svg class=\"chart\""), 19U);
    EXPECT_THAT(page, HasSubstr("Areas of Crank Torque"));
}

TEST_F(ReportTest, NeedsNothingBesideItself) {
    Calculate_Example("hoeken");
    const std::string page = Report_Page(*program);
    for (const char* from_elsewhere : {"<script", "<link", "src=", "url(", "@import", "href="})
        EXPECT_THAT(page, Not(HasSubstr(from_elsewhere)));
    EXPECT_EQ(Count(page, "http"), Count(page, "xmlns=\"http://www.w3.org/2000/svg\""));
}

TEST_F(ReportTest, ClosesEveryElementThatItOpens) {
    Calculate_Example("watt");
    Run_Dynamics(*program);
    const MessageBox box = {"a box"};
    const std::string page = Report_Page(*program, {.boxes = {&box, 1}});
    std::vector<std::string> open;
    const std::regex pattern("<(/?)([a-z0-9A-Z]+)[^<>]*?(/?)>");
    for (std::sregex_iterator match(page.begin(), page.end(), pattern), end; match != end; ++match) {
        const std::string name = (*match)[2];
        if ((*match)[3].length() > 0 || name == "meta") continue;
        if ((*match)[1].length() == 0) {
            open.push_back(name);
            continue;
        }
        ASSERT_FALSE(open.empty()) << name;
        ASSERT_EQ(open.back(), name);
        open.pop_back();
    }
    EXPECT_THAT(open, ElementsAre());
}

TEST_F(ReportTest, HasTheDataWithUnits) {
    Calculate_Example("watt");
    const std::string page = Report_Page(*program);
    EXPECT_THAT(page, HasSubstr("<th>Link 3 (A-B)</th><td>8.625 in</td>"));
    EXPECT_THAT(page, HasSubstr("<th>Angle Delta4</th><td>-30 deg</td>"));
    EXPECT_THAT(page, HasSubstr("<th>Moment of inertia [in-lb-s^2]</th><td class=\"n\">0.006</td>"));
    EXPECT_THAT(page, HasSubstr("<th>Steps not assembled</th><td>none</td>"));
}

TEST_F(ReportTest, TellsWhichStepsFailed) {
    Load_Example(model, *Find_Example("watt"));
    model.Link2 = 12;
    port.answer = [](const MessageBox& box) {
        return box.buttons == Buttons::AbortRetryIgnore ? Answer::Ignore : Answer::None;
    };
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    std::vector<MessageBox> boxes;
    while (Boxes_Left() > 0) boxes.push_back(Take_Box());
    ASSERT_FALSE(boxes.empty());
    const std::string page = Report_Page(*program, {.boxes = boxes});
    EXPECT_THAT(page, HasSubstr("<th>Steps not assembled</th><td>10 to 26</td>"));
    EXPECT_THAT(Headings(page), ::testing::Contains("Messages"));
}

/// The distance A-O4 is at most 21.375 in, links 3 and 4 span 15.625 in: the crank stops at 93.12 degrees.
TEST_F(ReportTest, TellsHowFarTheCrankTurnsAndWhatToHeed) {
    Calculate_Example("watt");
    model.Link2 = 12;
    const std::string page = Report_Page(*program);
    EXPECT_THAT(page, HasSubstr("<th>Usable</th><td>266.88 to 93.12 deg over 0, 186.24 deg wide</td>"));
    EXPECT_THAT(page, HasSubstr("<li>The crank cannot make a full turn.</li>"));
    EXPECT_THAT(page, HasSubstr("<li>The drive from 0 to 360 deg leaves the usable range.</li>"));
    EXPECT_THAT(page, HasSubstr("<li>The transmission angle of Stage 1 falls to 0.00 deg at 93.13 deg;"));
}

TEST_F(ReportTest, SaysWhereThereIsNoPositionAtAll) {
    Calculate_Example("watt");
    model.Link4 = 0;
    EXPECT_THAT(Report_Page(*program), HasSubstr("<li>There is no position at all: a length is 0.</li>"));
}

TEST_F(ReportTest, OfAModelThatWasNotCalculatedHasItsDataAlone) {
    EXPECT_THAT(Headings(Report_Page(*program)), ElementsAre("Model"));
}

TEST_F(ReportTest, OfOnePositionHasNoCharts) {
    Load_Example(model, *Find_Example("watt"));
    model.CalcMode = 1;
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    Run_Dynamics(*program);
    const std::string page = Report_Page(*program);
    EXPECT_THAT(Headings(page),
                ElementsAre("Model", "Range and limits", "Extremes", "How far the numbers can be trusted"));
    EXPECT_EQ(Count(page, "<svg class=\"chart\""), 0U);
}

TEST_F(ReportTest, OfAChainWithoutStage2ShowsStage1) {
    Load_Example(model, *Find_Example("watt"));
    model.LinkageType = "X";
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    const auto groups = Motion_Curves(*program);
    for (const CurveGroup& group : groups) EXPECT_LE(group.curves.size(), 2U) << group.title;
    EXPECT_THAT(Report_Page(*program), Not(HasSubstr("Link 6</span>")));
}

TEST_F(ReportTest, EscapesWhatThePersonWrote) {
    Calculate_Example("watt");
    model.ModelTitle = "<script>alert(1)</script>";
    model.UserName = "A & B";
    const MessageBox box = {"<b>"};
    const std::string page = Report_Page(*program, {.boxes = {&box, 1}});
    EXPECT_THAT(page, Not(HasSubstr("<script")));
    EXPECT_THAT(page, Not(HasSubstr("<b>")));
    EXPECT_THAT(page, HasSubstr("by A &amp; B"));
}

TEST_F(ReportTest, ChangesNothing) {
    Calculate_Example("watt");
    Run_Dynamics(*program);
    const LinkageModel before = model;
    const auto flywheel = tables.FlywheelTorque;
    const auto spectrum = tables.FFTTable;
    Report_Page(*program);
    EXPECT_EQ(Differing_Fields(before, model), std::vector<std::string>());
    EXPECT_TRUE(flywheel == tables.FlywheelTorque);
    EXPECT_TRUE(spectrum == tables.FFTTable);
    EXPECT_FALSE(program->fourier.FFTReady);
}

TEST_F(ReportTest, IsWrittenKeepingWhatWasThere) {
    Calculate_Example("watt");
    const TemporaryFolder folder;
    const std::string file = folder.Put("r.html", "older");
    EXPECT_TRUE(Write_Report(*program, file));
    EXPECT_EQ(Content_Of(file + "~"), "older");
    EXPECT_THAT(Content_Of(file), ::testing::StartsWith("<!DOCTYPE html>"));
}

TEST_F(ReportTest, ThatCannotBeWrittenIsAFault) {
    Calculate_Example("watt");
    EXPECT_FALSE(Write_Report(*program, "/nowhere/r.html"));
    Expect_Fault(76, "Write_Report");
}

TEST_F(ReportTest, FindsExtremesWhereTheyOccurFirst) {
    const auto extremes = Extremes_Of({"", {{}, 2, -1, 5, -1, 5}});
    ASSERT_TRUE(extremes);
    EXPECT_EQ(extremes->low, -1);
    EXPECT_EQ(extremes->low_step, 2);
    EXPECT_EQ(extremes->high, 5);
    EXPECT_EQ(extremes->high_step, 3);
    EXPECT_FALSE(Extremes_Of({"", {{}, {}}}));
}

TEST_F(ReportTest, HasCurvesOfTheTables) {
    Calculate_Example("watt");
    Run_Dynamics(*program);
    const auto motion = Motion_Curves(*program);
    EXPECT_EQ(motion[0].curves[3].values[7], double(tables.Theta(7, 5)));
    EXPECT_EQ(motion[1].curves[1].values[7], double(tables.Theta(7, 7)));
    EXPECT_EQ(motion[2].curves[3].values[7], double(tables.Omega(7, 4)));
    EXPECT_EQ(motion[3].curves[0].values[7], double(tables.Alpha(7, 1)));
    const auto forces = Force_Curves(*program, MaxSteps + 1);
    EXPECT_EQ(forces[0].curves[0].values[7], double(tables.TorqueTable(7, 0)));
    // The crank's pin carries the same force at both ends but for the crank's own inertia.
    const auto& F12 = tables.ForceTable(7, 5);
    EXPECT_DOUBLE_EQ(*forces[2].curves[0].values[7], std::hypot(double(F12(0)), double(F12(1))));
}

TEST_F(ReportTest, LeavesGapsWhereForcesWereNotSolved) {
    Calculate_Example("watt");
    Run_Dynamics(*program);
    const auto forces = Force_Curves(*program, 5);
    EXPECT_TRUE(forces[0].curves[0].values[4].has_value());
    EXPECT_FALSE(forces[0].curves[0].values[5].has_value());
    EXPECT_TRUE(TorqueAnalysis(*program, 5).spectrum().empty());
    EXPECT_THAT(Report_Page(*program, {.boxes = {}, .solved_steps = 5}),
                HasSubstr("<th>Forces not solved</th><td>from step 5 on</td>"));
}

TEST_F(ReportTest, UnwindsTheCrank) {
    Calculate_Example("hoeken");  // from 180 over 360 to 540 degrees, wrapped in the table
    const Abscissae abscissae = Sweep_Abscissae(*program);
    EXPECT_NEAR(abscissae.values.front(), 180, 1e-3);
    EXPECT_NEAR(abscissae.values.back(), 540, 1e-3);
}

TEST_F(ReportTest, CountsTimeInDrivesOverTime) {
    Load_Example(model, *Find_Example("watt"));
    model.CalcMode = 2;
    model.TimeStart = 1;
    model.TimeEnd = 2;
    model.TimeStep = 0.25F;
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    EXPECT_EQ(Sweep_Abscissae(*program).values, (std::vector<double>{1, 1.25, 1.5, 1.75, 2}));
}

/// The mean of the samples is harmonic 0, and a torque of one cosine would be one bar: Parseval tells that
/// the bars hold the whole torque.
TEST_F(ReportTest, HasASpectrumWithTheMeanOfTheTorque) {
    Calculate_Example("watt");
    Run_Dynamics(*program);
    const TorqueAnalysis analysis(*program, MaxSteps + 1);
    double sum = 0;
    for (int step = 1; step <= 36; ++step) sum += tables.TorqueTable(step, 0);
    ASSERT_EQ(analysis.spectrum().size(), 18U);
    EXPECT_NEAR(analysis.spectrum()[0], std::abs(sum / 36), 1e-4);
}

}  // namespace
}  // namespace kervol
