// SPDX-License-Identifier: GPL-3.0-or-later
// The Self-check screen and its entry on Home.
#include "screens/home_screen.h"
#include "screens/launch_screens.h"
#include "screens/screens_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class SelfCheckScreenTest : public ScreensTest {
  protected:
    const std::string& Report() const { return screens->frm_SelfCheck.txt_Report.text; }
};

TEST_F(SelfCheckScreenTest, HasItsTexts) {
    EXPECT_EQ(home.mnu_Tools.caption, "&Tools");
    EXPECT_EQ(home.mnu_SelfCheck.caption, "Self-check...");
    EXPECT_EQ(screens->frm_SelfCheck.cmd_Back.caption, "< &Back");
    EXPECT_EQ(screens->frm_SelfCheck.cmd_Copy.caption, "&Copy");
    EXPECT_EQ(Screen_Caption(*screens, ScreenId::frm_SelfCheck),
              "Self-check   KERVOL for Windows 7.0, Rev. 2.2");
}

TEST_F(SelfCheckScreenTest, IsOfferedOnceThereIsSomethingToCheck) {
    for (const bool calculated : {false, true}) {
        model.DataCalculated = calculated;
        Home_Form_Activate(*screens);
        EXPECT_EQ(home.mnu_SelfCheck.enabled, calculated);
    }
}

TEST_F(SelfCheckScreenTest, ReportsOnTheMotionAndOnForcesOnceTheyAreSolved) {
    Calculate_In_Mode(3);
    port.trace.clear();
    home.mnu_SelfCheck.click();
    EXPECT_THAT(port.trace, ElementsAre("show frm_SelfCheck modal"));
    EXPECT_THAT(Report(), StartsWith("Self-check of " + model.ModelTitle + "\n"));
    EXPECT_THAT(Report(), HasSubstr("forces are not solved"));
    EXPECT_THAT(Report(), HasSubstr("none is damaged."));

    port.Show_Screen(ScreenId::frm_MassProp, Modality::Modal);
    screens->frm_MassProp.cmd_Solve.click();
    home.mnu_SelfCheck.click();
    EXPECT_THAT(Report(), HasSubstr("forces of 37 steps."));
    EXPECT_THAT(Report(), HasSubstr("\nThe drive\n"));
    EXPECT_THAT(Report(), HasSubstr("none is damaged."));
}

TEST_F(SelfCheckScreenTest, LooksAtTheTablesEachTimeItOpens) {
    Calculate_In_Mode(3);
    tables.Omega(4, 2) += 0.5F;
    home.mnu_SelfCheck.click();
    EXPECT_THAT(Report(), HasSubstr("Omega4 at step 4"));
    tables.Omega(4, 2) -= 0.5F;
    home.mnu_SelfCheck.click();
    EXPECT_THAT(Report(), HasSubstr("none is damaged."));
}

TEST_F(SelfCheckScreenTest, CopiesItsText) {
    Calculate_In_Mode(3);
    home.mnu_SelfCheck.click();
    screens->frm_SelfCheck.cmd_Copy.click();
    EXPECT_EQ(port.clipboard, Report());
}

TEST_F(SelfCheckScreenTest, IsLeftByBackAndByItsCloseBox) {
    port.Show_Screen(ScreenId::frm_SelfCheck, Modality::Modal);
    port.trace.clear();
    screens->frm_SelfCheck.cmd_Back.click();
    Close_Screen(*screens, ScreenId::frm_SelfCheck);
    EXPECT_THAT(port.trace, ElementsAre("hide frm_SelfCheck", "hide frm_SelfCheck"));
}

}  // namespace
}  // namespace kervol
