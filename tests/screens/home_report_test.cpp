// SPDX-License-Identifier: GPL-3.0-or-later
// Report of the Home screen's File menu.
#include <filesystem>

#include "kinematics/step_count.h"
#include "screens/home_screen.h"
#include "screens/screens_fixture.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;

class HomeReport : public ScreensTest {
  protected:
    TemporaryFolder folder;
};

TEST_F(HomeReport, IsThereWhereThereIsSomethingToSave) {
    EXPECT_EQ(home.mnu_Report.caption, "&Report...");
    for (const bool calculated : {false, true}) {
        model.DataCalculated = calculated;
        Home_Form_Activate(*screens);
        EXPECT_EQ(home.mnu_Report.enabled, calculated);
        EXPECT_EQ(home.mnu_Report.enabled, home.mnu_Save.enabled);
    }
}

TEST_F(HomeReport, IsWrittenWhereThePersonWants) {
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    const std::string path = folder.Put("mine.html", "older");
    port.files = {path};
    home.mnu_Report.click();
    EXPECT_EQ(port.dialogs.back().title, "Write a Report");
    EXPECT_EQ(port.dialogs.back().filter, "*.html");
    EXPECT_EQ(port.dialogs.back().name, model.ModelName + ".html");
    Expect_Box("The report was written to \n" + path, Icon::Information);
    EXPECT_THAT(Content_Of(path), HasSubstr("<h1>Kervol Watts Chain with Two Coupler Curves</h1>"));
    EXPECT_EQ(Content_Of(path + "~"), "older");
}

TEST_F(HomeReport, IsNotWrittenAfterCancel) {
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    port.files = {std::nullopt};
    home.mnu_Report.click();
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(HomeReport, ThatCannotBeWrittenIsToldInABox) {
    ASSERT_EQ(Calculate_Model(*program), CalculationEnd::Done);
    port.files = {folder / "nowhere/mine.html"};
    home.mnu_Report.click();
    Expect_Fault(76, "Write_Report");
}

}  // namespace
}  // namespace kervol
