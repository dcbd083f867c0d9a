// SPDX-License-Identifier: GPL-3.0-or-later
// Manual of the Home screen's Help menu.
#include <string>

#include "screens/screens_fixture.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HomeManual : public ScreensTest {
  protected:
    TemporaryFolder folder;
};

TEST_F(HomeManual, CanBeOpenedBeforeAnythingIsCalculated) {
    model.DataCalculated = false;
    EXPECT_TRUE(home.mnu_Manual.enabled);
}

TEST_F(HomeManual, OpensFromTheFirstPlaceThatHasIt) {
    const std::string second = folder.Put("second.html", "<h1>Manual</h1>");
    const std::string third = folder.Put("third.html", "<h1>Manual</h1>");
    port.manual_places = {folder / "first.html", second, third};
    home.mnu_Manual.click();
    EXPECT_THAT(port.opened_files, ElementsAre(second));
}

TEST_F(HomeManual, IsNotAFolder) {
    const std::string file = folder.Put("index.html", "<h1>Manual</h1>");
    port.manual_places = {folder.path().string(), file};
    home.mnu_Manual.click();
    EXPECT_THAT(port.opened_files, ElementsAre(file));
}

TEST_F(HomeManual, IsMissedWithThePlacesWhereItWasLookedFor) {
    port.manual_places = {folder / "here.html", folder / "there.html"};
    home.mnu_Manual.click();
    EXPECT_THAT(port.opened_files, IsEmpty());
    Expect_Warning("The manual was not found. It was looked for at\n" + (folder / "here.html") + "\n" +
                   (folder / "there.html") + "\nscripts/manual builds it from the sources of this program.");
}

TEST_F(HomeManual, IsNamedWhereTheDesktopHasNoProgramForIt) {
    const std::string file = folder.Put("index.html", "<h1>Manual</h1>");
    port.manual_places = {file};
    port.opens_files = false;
    home.mnu_Manual.click();
    Expect_Warning("There is no program that shows the manual. Open this file in a browser:\n" + file);
}

}  // namespace
}  // namespace kervol
