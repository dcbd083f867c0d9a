// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes from outside: valid UTF-8 stays, every other byte is the Windows-1252 character that it stands for.
#include "core/text_encoding.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace kervol {
namespace {

using namespace std::string_view_literals;

/// A character of two or three bytes, written by the rule of UTF-8.
std::string Encoded(unsigned code) {
    if (code < 0x800) return {static_cast<char>(0xC0 | (code >> 6)), static_cast<char>(0x80 | (code & 0x3F))};
    return {static_cast<char>(0xE0 | (code >> 12)), static_cast<char>(0x80 | ((code >> 6) & 0x3F)),
            static_cast<char>(0x80 | (code & 0x3F))};
}

TEST(Decoded, LeavesAsciiAlone) {
    std::string ascii;
    for (int c = 0; c < 0x80; ++c) ascii += static_cast<char>(c);
    EXPECT_EQ(Decoded(ascii), ascii);
    EXPECT_EQ(Decoded(""), "");
}

TEST(Decoded, LeavesValidUtf8Alone) {
    for (const std::string_view text : {"K\u00FCrbel"sv, "\u6A5F\u69CB"sv, "\U0001F600"sv,
                                        "\u0080\u07FF\u0800"sv, "\uD7FF\uE000\uFFFF\U00010000\U0010FFFF"sv})
        EXPECT_EQ(Decoded(text), text);
}

TEST(Decoded, TakesALoneHighByteAsWindows1252) {
    EXPECT_EQ(Decoded("K\xFCrbel"), "K\u00FCrbel");
    EXPECT_EQ(Decoded("\x80"), "\u20AC");
    EXPECT_EQ(Decoded("\x84x\x93"), "\u201Ex\u201C");
    EXPECT_EQ(Decoded("\x9F"), "\u0178");
    EXPECT_EQ(Decoded("\xB0"), "\u00B0");
    for (unsigned byte = 0xA0; byte <= 0xFF; ++byte)
        EXPECT_EQ(Decoded(std::string(1, static_cast<char>(byte))), Encoded(byte)) << byte;
}

TEST(Decoded, KnowsAllCharactersOfTheUpperControlRange) {
    const unsigned codes[] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                              0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
    unsigned byte = 0x80;
    for (const unsigned code : codes) {
        // The five bytes that Windows-1252 leaves unused stand for themselves.
        EXPECT_EQ(Decoded(std::string(1, static_cast<char>(byte))), Encoded(code == 0 ? byte : code)) << byte;
        ++byte;
    }
}

TEST(Decoded, TakesCutSequencesByteByByte) {
    EXPECT_EQ(Decoded("\xC3"), "\u00C3");
    EXPECT_EQ(Decoded("\xE6\xA9"), "\u00E6\u00A9");
    EXPECT_EQ(Decoded("\xF0\x9F\x98"), "\u00F0\u0178\u02DC");
    EXPECT_EQ(Decoded("\xC3x"), "\u00C3x");
}

// Overlong forms, a surrogate and what lies above the last character.
TEST(Decoded, TakesSequencesThatStandForNoCharacterByteByByte) {
    EXPECT_EQ(Decoded("\xC1\xBF"), "\u00C1\u00BF");
    EXPECT_EQ(Decoded("\xE0\x9F\xBF"), "\u00E0\u0178\u00BF");
    EXPECT_EQ(Decoded("\xED\xA0\xB0"), "\u00ED\u00A0\u00B0");
    EXPECT_EQ(Decoded("\xF0\x8F\xBF\xBF"), "\u00F0\u008F\u00BF\u00BF");
    EXPECT_EQ(Decoded("\xF4\x90\xBF\xBF"), "\u00F4\u0090\u00BF\u00BF");
    EXPECT_EQ(Decoded("\xF5\xBF"), "\u00F5\u00BF");
}

TEST(Decoded, GivesTextThatIsLeftAloneTheSecondTime) {
    for (unsigned first = 0; first < 256; ++first) {
        for (unsigned second = 0; second < 256; ++second) {
            const std::string bytes = {static_cast<char>(first), static_cast<char>(second), '\xA9'};
            const std::string once = Decoded(bytes);
            ASSERT_EQ(Decoded(once), once) << first << ' ' << second;
        }
    }
}

}  // namespace
}  // namespace kervol
