// SPDX-License-Identifier: GPL-3.0-or-later
// Texts and numbers within markup.
#include "core/markup_text.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

TEST(MarkupText, CannotEndElementsOrAttributes) {
    EXPECT_EQ(Markup_Text("<b> & \"it's\""), "&lt;b&gt; &amp; &quot;it&#39;s&quot;");
}

TEST(MarkupText, KeepsLettersOfAllAlphabetsAndLineEnds) {
    EXPECT_EQ(Markup_Text("Über\n\tΔ"), "Über\n\tΔ");
}

TEST(MarkupText, HasBlanksForCharactersThatNoXmlMayHold) {
    EXPECT_EQ(Markup_Text(std::string("a\0b\x1b[1mc", 8)), "a b [1mc");
}

TEST(FixedNumber, HasNoTrailingZerosAndNoMinusBeforeZero) {
    EXPECT_EQ(Fixed_Number(1.5), "1.5");
    EXPECT_EQ(Fixed_Number(1.999), "2");
    EXPECT_EQ(Fixed_Number(100), "100");
    EXPECT_EQ(Fixed_Number(-0.001), "0");
    EXPECT_EQ(Fixed_Number(100, 0), "100");
    EXPECT_EQ(Fixed_Number(0.12345, 4), "0.1235");
    EXPECT_EQ(Fixed_Number(1e20, 1), "100000000000000000000");
}

TEST(ColourText, IsHexadecimalInPairs) {
    EXPECT_EQ(Colour_Text({0, 128, 255}), "#0080ff");
}

}  // namespace
}  // namespace kervol
