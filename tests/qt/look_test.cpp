// SPDX-License-Identifier: GPL-3.0-or-later
// What is disabled stays readable on light and on dark desktops.
#include "qt/look.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

namespace kervol {
namespace {

QPalette Desktop(const QColor& ground, const QColor& text) {
    QPalette desktop;
    for (const auto role : {QPalette::Window, QPalette::Button, QPalette::Base})
        desktop.setColor(role, ground);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        desktop.setColor(role, text);
    // As the widest-spread dark desktop leaves them.
    desktop.setColor(QPalette::Disabled, QPalette::Highlight, ground.lighter());
    desktop.setColor(QPalette::Disabled, QPalette::HighlightedText, ground.darker());
    return desktop;
}

double Luminance(const QColor& colour) {
    const auto part = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

/// From 1, not to be told apart, to 21.
double Contrast(const QPalette& palette, QPalette::ColorRole one, QPalette::ColorRole other) {
    const double a = Luminance(palette.color(QPalette::Disabled, one));
    const double b = Luminance(palette.color(QPalette::Disabled, other));
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(Look, KeepsDisabledTextsAndTheMarkedRowOfADisabledListReadable) {
    const QColor dark(27, 30, 32), light(239, 240, 241);
    for (const QPalette& desktop : {Desktop(light, dark), Desktop(dark, light)}) {
        const QPalette shown = Readable_Roles(desktop).resolve(desktop);
        EXPECT_GT(Contrast(shown, QPalette::WindowText, QPalette::Window), 3);
        EXPECT_GT(Contrast(shown, QPalette::Text, QPalette::Base), 3);
        EXPECT_GT(Contrast(shown, QPalette::HighlightedText, QPalette::Highlight), 4.5);
        EXPECT_GT(Contrast(shown, QPalette::Highlight, QPalette::Base), 1.5) << "the row itself is seen";
    }
}

TEST(Look, LightensAColouredTextOnADarkGroundUntilItCanBeRead) {
    const QColor dark(42, 46, 50);
    for (const QColor& colour : {QColor(Qt::red), QColor(Qt::blue), QColor(Qt::black)}) {
        const QColor shown = Readable_Text(colour, dark);
        EXPECT_GE((Luminance(shown) + 0.05) / (Luminance(dark) + 0.05), 4.5) << colour.name().toStdString();
    }
    EXPECT_GT(Readable_Text(Qt::red, dark).red(), Readable_Text(Qt::red, dark).green()) << "still a red";
    EXPECT_EQ(Readable_Text(Qt::white, dark), QColor(Qt::white));
    EXPECT_EQ(Readable_Text(Qt::red, QColor(239, 239, 239)), QColor(Qt::red)) << "as it is on a light one";
}

TEST(Look, LeavesAllThatIsEnabledToTheDesktop) {
    const QPalette desktop = Desktop(Qt::black, Qt::white);
    const QPalette shown = Readable_Roles(desktop).resolve(desktop);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::Highlight,
                            QPalette::HighlightedText, QPalette::Base, QPalette::Button})
        EXPECT_EQ(shown.color(QPalette::Active, role), desktop.color(QPalette::Active, role)) << role;
}

}  // namespace
}  // namespace kervol
