// SPDX-License-Identifier: GPL-3.0-or-later
// The Matrix screen: the force equations of the first position as the last run left them.
#include "screens/launch_screens.h"
#include "screens/mass_prop_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;

constexpr Colour kGrey = {128, 128, 128};
constexpr Colour kRed = {255, 0, 0};

class MatrixScreenTest : public MassPropTest {
  protected:
    void Open_Matrix() { port.Show_Screen(ScreenId::frm_Matrix, Modality::Modal); }

    std::string Cell(std::size_t row, std::size_t column) const {
        const Label& label = matrix.lbl_A.at(row).at(column);
        EXPECT_EQ(label.colour, label.caption == "0.000" ? kGrey : kRed) << row << ", " << column;
        return label.caption;
    }

    MatrixScreen& matrix = screens->frm_Matrix;
};

TEST_F(MatrixScreenTest, HasItsTexts) {
    EXPECT_EQ(matrix.cmd_Done.caption, "&Next >");
    EXPECT_EQ(matrix.cmd_Back.caption, "< &Back");
    EXPECT_EQ(matrix.cmd_Copy.caption, "&Copy");
    EXPECT_EQ(matrix.cmd_Print.caption, "&Print Form");
    EXPECT_EQ(matrix.Label4.caption, "Note: Data shown are for the first position of linkage calculated.");
    const char* const names[] = {"F12x", "F12y", "F32x", "F32y", "F43x", "F43y", "F14x", "F14y",
                                 "T12",  "F54x", "F54y", "F65x", "F65y", "F16x", "F16y"};
    for (std::size_t i = 1; i <= 15; ++i) {
        EXPECT_EQ(matrix.lbl_Var.at(i).caption, names[i - 1]);
        EXPECT_EQ(matrix.lbl_Var.at(15 + i).caption, names[i - 1]);
    }
    EXPECT_EQ(Screen_Caption(*screens, ScreenId::frm_Matrix),
              "Matrix Screen   KERVOL for Windows 7.0, Rev. 2.2");
}

TEST_F(MatrixScreenTest, ShowsRowsAndColumnsInTheirPlaces) {
    Open_And_Solve();
    Open_Matrix();
    // The equations of links 2 and 5, and the arm of the ground force on the crank: half its length of 2, at
    // 0 degrees.
    EXPECT_EQ(Cell(1, 1), "1.000");
    EXPECT_EQ(Cell(1, 3), "1.000");
    EXPECT_EQ(Cell(3, 1), "0.000");
    EXPECT_EQ(Cell(3, 2), "-1.000");
    EXPECT_EQ(Cell(3, 4), "1.000");
    EXPECT_EQ(Cell(3, 9), "1.000");
    EXPECT_EQ(Cell(9, 3), "0.000");
    EXPECT_EQ(Cell(10, 10), "-1.000");
    EXPECT_EQ(Cell(10, 12), "1.000");
    EXPECT_EQ(Cell(12, 9), "0.000");
    int filled = 0;
    for (std::size_t row = 1; row <= 15; ++row)
        for (std::size_t column = 1; column <= 15; ++column) filled += Cell(row, column) != "0.000";
    EXPECT_LE(filled, 52) << "as many as the equations of a Watt chain name";
}

TEST_F(MatrixScreenTest, TellsTheChainsApartByTheLinkThatBearsLink5) {
    Open_And_Solve();
    Open_Matrix();
    EXPECT_EQ(Cell(4, 10), "0.000");
    EXPECT_EQ(Cell(7, 10), "1.000");
    model.LinkageType = "S";
    Open_And_Solve();
    Open_Matrix();
    EXPECT_EQ(Cell(4, 10), "1.000");
    EXPECT_EQ(Cell(7, 10), "0.000");
}

TEST_F(MatrixScreenTest, ShowsTheRightHandSide) {
    Open();
    Type(screen.txt_MagForce[6], "2,500.000");
    for (int link = 2; link <= 6; ++link) Type(At(screen.txt_Mass, link), "0");
    Solve();
    Open_Matrix();
    EXPECT_EQ(matrix.lbl_B[13].caption, "-2,500.000") << "less the load on link 6 along x";
    EXPECT_EQ(matrix.lbl_B[13].colour, kRed);
    EXPECT_EQ(matrix.lbl_B[14].caption, "0.000");
    EXPECT_EQ(matrix.lbl_B[14].colour, kGrey);
}

TEST_F(MatrixScreenTest, TakesANewRunWhenItOpens) {
    Open_And_Solve();
    Open_Matrix();
    Type(screen.txt_DistCG[2], "0.25");
    Solve();
    EXPECT_EQ(Cell(3, 2), "-1.000");
    Open_Matrix();
    EXPECT_EQ(Cell(3, 2), "-0.250");
    EXPECT_EQ(Cell(3, 4), "1.750");
}

TEST_F(MatrixScreenTest, OpensWithPrintAndCopyOn) {
    matrix.cmd_Print.enabled = matrix.cmd_Copy.enabled = false;
    Open_Matrix();
    EXPECT_TRUE(matrix.cmd_Print.enabled && matrix.cmd_Copy.enabled);
}

TEST_F(MatrixScreenTest, AllItsWaysOutOnlyCloseIt) {
    Open_And_Solve();
    Open_Matrix();
    port.trace.clear();
    matrix.cmd_Done.click();
    matrix.cmd_Back.click();
    Close_Screen(*screens, ScreenId::frm_Matrix);
    EXPECT_THAT(port.trace, ElementsAre("hide frm_Matrix", "hide frm_Matrix", "hide frm_Matrix"));
}

TEST_F(MatrixScreenTest, CopiesAndPrintsItself) {
    matrix.cmd_Copy.click();
    Expect_Box("Use the Alt-PrintScrn key combo to copy the screen to the clipboard", Icon::Information);
    EXPECT_THAT(port.copied, ElementsAre(ScreenId::frm_Matrix));
    port.answers = {Answer::Yes};
    matrix.cmd_Print.click();
    Take_Box();
    EXPECT_THAT(port.printed, ElementsAre(ScreenId::frm_Matrix));
}

}  // namespace
}  // namespace kervol
