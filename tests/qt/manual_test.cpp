// SPDX-License-Identifier: GPL-3.0-or-later
// The manual: where the window program looks for it, and that the desktop is handed it.
#include <QAction>
#include <QDesktopServices>
#include <QFileInfo>
#include <QTextBrowser>

#include "qt/window_test.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;

class ManualTest : public WindowTest {};

TEST_F(ManualTest, IsThatOfAnInstalledProgramBeforeThatOfABuildFolder) {
    EXPECT_THAT(port.Manual_Places(),
                ElementsAre(EndsWith("/share/doc/kervol/manual/index.html"), EndsWith("/manual/index.html")));
    for (const std::string& place : port.Manual_Places())
        EXPECT_TRUE(QFileInfo(QString::fromStdString(place)).isAbsolute()) << place;
}

TEST_F(ManualTest, IsHandedToTheDesktopWithAnyCharactersInItsPath) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("a #1 %20 \u00fc.html", "<h1>Manual</h1>");
    QTextBrowser desktop;  // a widget with a slot for an address
    QDesktopServices::setUrlHandler("file", &desktop, "setSource");
    EXPECT_TRUE(port.Open_File(path));
    QDesktopServices::unsetUrlHandler("file");
    EXPECT_EQ(desktop.source().toLocalFile().toStdString(), path);
}

TEST_F(ManualTest, IsOfferedInTheHelpMenuOfHome) {
    In(ScreenId::frm_HomeScreen, [](FormWindow& home) {
        const auto& entry = Find<QAction>(home, "mnu_Manual");
        EXPECT_EQ(entry.text(), "&Manual");
        EXPECT_TRUE(entry.isEnabled());
    });
}

}  // namespace
}  // namespace kervol
