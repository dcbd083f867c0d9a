// SPDX-License-Identifier: GPL-3.0-or-later
// A name of any length leaves the windows as they are.
#include "qt/elided_label.h"

#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

#include "qt/window_test.h"
#include "screens/launch_screens.h"

namespace kervol {
namespace {

constexpr const char* kLongName =
    "Forschungs- und Entwicklungsabteilung f\u00fcr \"Koppelgetriebe\" und Pressen, Werk "
    "M\u00fcnchen-S\u00fcd, "
    "Frau Dr.-Ing. \u00c4hnlich-\u00dcberlang, Projekt Blechf\u00f6rderung, Teil 2 von 17, dritter Entwurf "
    "nach "
    "der zweiten Besprechung, mit ver\u00e4nderter Kurbel und einem neuen Gestellpunkt";

TEST(ElidedLabelTest, AShortTextIsShownWhole) {
    ElidedLabel label(24);
    label.setText("Ada\n Design No. 1");
    label.resize(label.sizeHint());
    EXPECT_EQ(label.Shown(), label.text());
}

TEST(ElidedLabelTest, OnlyTheLineThatIsTooLongIsElided) {
    ElidedLabel label(24);
    label.setText(QString::fromUtf8(kLongName) + "\n Design No. 1");
    label.resize(label.sizeHint());
    EXPECT_LE(label.width(), 24 * label.fontMetrics().averageCharWidth());
    const QStringList lines = label.Shown().split('\n');
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith("Forschung")) << lines[0].toStdString();
    EXPECT_TRUE(lines[0].endsWith(QChar(0x2026))) << "an ellipsis";
    EXPECT_EQ(lines[1], " Design No. 1");
}

TEST(ElidedLabelTest, TheTipHoldsWhatIsElided) {
    ElidedLabel label(10);
    label.setText("a text of more than ten letters");
    label.resize(label.sizeHint());
    label.show();
    QHelpEvent help(QEvent::ToolTip, QPoint(2, 2), label.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&label, &help);
    EXPECT_EQ(QToolTip::text(), label.text());
    QToolTip::hideText();
}

using LongNames = WindowTest;

TEST_F(LongNames, WidenNoWindow) {
    Select("watt", {"Accel CP-1", "Accel CP-2", "Veloc CP-1", "Veloc CP-2"});
    std::vector<ScreenId> all(std::begin(kScreensWithWindow), std::end(kScreensWithWindow));
    all.insert(all.end(), std::begin(kPlotScreens), std::end(kPlotScreens));
    for (const ScreenId screen : all) {
        const auto width = [&] {
            int found = 0;
            In(screen, [&](FormWindow& form) { found = form.minimumSizeHint().width(); });
            return found;
        };
        program->model.UserName = "A company of usual name";
        program->model.ModelName = "model";
        const int usual = width();
        program->model.UserName = kLongName;
        program->model.ModelName = kLongName;
        EXPECT_LE(width(), std::max(usual, 640)) << Screen_Name(screen);
    }
}

}  // namespace
}  // namespace kervol
