// SPDX-License-Identifier: GPL-3.0-or-later
// The number of harmonics on the Fourier screen: what is offered, refused, drawn.
#include "screens/fft_fixture.h"
#include "support/compare.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

constexpr const char* kTooMany =
    "Number of harmonics cannot exceed 1/2 the number of data points available.\r"
    "If you want more bandwidth, recalculate all data with smaller increments. \r"
    "Use the [INPUT] button from the Home Screen to do so.";

class FFTHarmonics : public FFTScreenTest {};

TEST_F(FFTHarmonics, OffersHalfTheStepsAndItsDivisorsDownTo3) {
    Open_With(36);
    EXPECT_THAT(screen.cmb_Harmonics.items, ElementsAre("18", "9", "6", "3"));
    EXPECT_EQ(screen.cmb_Harmonics.text, "18");
    Open_With(7);
    EXPECT_THAT(screen.cmb_Harmonics.items, ElementsAre("4")) << "3.5 to the even 4, and 4 / 2 is below 3";
    Open_With(5);
    EXPECT_THAT(screen.cmb_Harmonics.items, ElementsAre("2")) << "2.5 to the even 2";
    Open_With(360);
    EXPECT_THAT(screen.cmb_Harmonics.items, ElementsAre("180", "90", "60", "45", "36", "30", "20", "18", "15",
                                                        "12", "10", "9", "6", "5", "4", "3"));
    Open_With(1);
    EXPECT_THAT(screen.cmb_Harmonics.items, ElementsAre("0"));
    EXPECT_EQ(fourier.NumHarmonics, 0);
}

TEST_F(FFTHarmonics, FewerHarmonicsGiveFewerPointsAndTicks) {
    Open_And_Transform();
    Pick(screen.cmb_Harmonics, "6");
    EXPECT_EQ(fourier.NumHarmonics, 6);
    EXPECT_EQ(screen.MaxTicks, 6);
    EXPECT_EQ(screen.grf_Plot[2].NumPoints(), 7);
    EXPECT_EQ(screen.grf_Plot[2].look.TickEvery, 1);
    EXPECT_EQ(screen.grf_Plot[2].look.LabelEvery, 2);
    EXPECT_TRUE(fourier.FFTReady);
}

TEST_F(FFTHarmonics, TicksStandAFifteenthOfTheHarmonicsApart) {
    model.ThetaStepDeg = 1;
    Calculate_In_Mode(3);
    ASSERT_EQ(model.NumSteps, 360);
    Open_And_Transform();
    EXPECT_EQ(screen.grf_Plot[0].look.TickEvery, 12);
    EXPECT_EQ(screen.grf_Plot[0].look.LabelEvery, 24);
    // 20 / 15 is 1.33, twice that 2.67.
    Pick(screen.cmb_Harmonics, "20");
    EXPECT_EQ(screen.grf_Plot[0].look.TickEvery, 1);
    EXPECT_EQ(screen.grf_Plot[0].look.LabelEvery, 3);
}

TEST_F(FFTHarmonics, MoreHarmonicsThanHalfTheStepsAreRefused) {
    Open_And_Transform();
    Pick(screen.cmb_Harmonics, "40");
    Expect_Box(kTooMany, Icon::None);
    EXPECT_EQ(fourier.NumHarmonics, 18);
    EXPECT_EQ(screen.cmb_Harmonics.text, "18");
    EXPECT_EQ(screen.grf_Plot[0].NumPoints(), 19);
    for (int row = 18; row <= 512; ++row)
        for (int column = 0; column <= 3; ++column) EXPECT_EQ(tables.FFTTable(row, column), 0);
}

TEST_F(FFTHarmonics, TheCalculateButtonTakesMoreHarmonicsAndShowsZeroesBehindTheTable) {
    Open_And_Transform();
    screen.cmb_Harmonics.text = "40";
    screen.cmd_Calc.click();
    EXPECT_EQ(fourier.NumHarmonics, 40);
    ASSERT_EQ(screen.grf_Plot[2].NumPoints(), 41);
    EXPECT_EQ(screen.grf_Plot[2].look.sets[0].GraphData[40], 0);
    screen.cmb_Harmonics.text = "600";
    screen.cmd_Calc.click();
    EXPECT_EQ(screen.grf_Plot[2].NumPoints(), 513) << "the table ends there";
}

TEST_F(FFTHarmonics, ASweepAbove512StepsIsNoFailure) {
    model.ThetaStepDeg = 0.3515625F;
    Calculate_In_Mode(3);
    ASSERT_EQ(model.NumSteps, 1024);
    tables.FFTTable.Fill(Poison);
    Open();
    EXPECT_TRUE(Table_Is_Clear());
    EXPECT_EQ(fourier.NumHarmonics, 512);
    Pick(screen.cmb_Var1, "Theta3");
    EXPECT_EQ(fourier.FFTHalf, 512);
    EXPECT_EQ(screen.grf_Plot[2].NumPoints(), 513);
    screen.cmd_Clear1.click();
    EXPECT_TRUE(Table_Is_Clear());
}

TEST_F(FFTHarmonics, NoHarmonicsAreRefused) {
    for (const char* text : {"0", "", "x", "-3", "0.4"}) {
        Open();
        screen.cmb_Harmonics.text = text;
        port.trace.clear();
        screen.cmb_Harmonics.click();
        Expect_Box(kNoHarmonics, Icon::Exclamation);
        EXPECT_THAT(port.trace, ElementsAre("box", "focus frm_FFT.cmb_Harmonics"));
        EXPECT_EQ(port.pointer, Pointer::Default);
    }
}

TEST_F(FFTHarmonics, NoHarmonicsEmptyTheFunctionWhereItIsCalculated) {
    Open();
    screen.cmb_Harmonics.text = "0";
    Pick(screen.cmb_Var1, "Theta3");
    Expect_Box(kNoHarmonics, Icon::Exclamation);
    EXPECT_EQ(screen.cmb_Var1.text, "");
    EXPECT_FALSE(fourier.FFTReady);
    EXPECT_EQ(Buttons_On(), "");
}

TEST_F(FFTHarmonics, HarmonicsWithoutAFunctionAskForOne) {
    Open();
    port.trace.clear();
    Pick(screen.cmb_Harmonics, "9");
    Expect_Box(kNoFunction, Icon::Question);
    EXPECT_THAT(port.trace, ElementsAre("box", "focus frm_FFT.cmb_Var1"));
    EXPECT_EQ(fourier.NumHarmonics, 9);
}

TEST_F(FFTHarmonics, HarmonicsOfOneStepCannotBeDrawn) {
    Open_With(1);
    screen.cmb_Harmonics.text = "1";
    Pick(screen.cmb_Var1, "Theta3");
    EXPECT_TRUE(fourier.FFTReady);
    screen.cmb_Harmonics.click();
    Expect_Box(kTooMany, Icon::None);
    Expect_Fault(11, "FFT_Plot_Setup");
    EXPECT_EQ(fourier.NumHarmonics, 0);
}

TEST_F(FFTHarmonics, ANumberOfHarmonicsBeyondAllBoundsIsAFault) {
    Open_And_Transform();
    Pick(screen.cmb_Harmonics, "99999");
    Expect_Fault(6, "frm_FFT.cmb_Harmonics");
    EXPECT_EQ(fourier.NumHarmonics, 18);
}

}  // namespace
}  // namespace kervol
