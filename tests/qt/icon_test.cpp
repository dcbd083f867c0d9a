// SPDX-License-Identifier: GPL-3.0-or-later
// The icon of the windows comes out of the installed drawing at every size.
#include "qt/icon.h"

#include <QImage>

#include <gtest/gtest.h>

namespace kervol {
namespace {

TEST(ProgramIcon, FillsEverySizeButItsRoundedCorners) {
    const QIcon icon = Program_Icon();
    EXPECT_EQ(icon.availableSizes().size(), 7);
    for (const QSize size : icon.availableSizes()) {
        const QImage image = icon.pixmap(size).toImage();
        ASSERT_EQ(image.size(), size);
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << size.width();
        // Between the ground line and the links.
        const QPoint ground(size.width() / 2, size.height() * 47 / 64);
        EXPECT_EQ(image.pixelColor(ground).alpha(), 255) << size.width();
    }
}

TEST(ProgramIcon, ShowsLinksAndPinsInTheirColours) {
    const QImage image = Program_Icon().pixmap(256).toImage();
    // A point of the field of 64 by 64.
    const auto colour = [&](int x, int y) { return image.pixelColor(x * 4, y * 4); };
    EXPECT_EQ(colour(32, 40), QColor(0x18, 0x34, 0x5c)) << "the ground";
    EXPECT_EQ(colour(17, 37), QColor(0x96, 0xc8, 0xff)) << "the crank";
    EXPECT_EQ(colour(32, 55), QColor(Qt::white)) << "the base line";
    EXPECT_EQ(colour(50, 48), QColor(0x18, 0x34, 0x5c)) << "a pin";
}

}  // namespace
}  // namespace kervol
