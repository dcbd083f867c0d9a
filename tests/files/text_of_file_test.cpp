// SPDX-License-Identifier: GPL-3.0-or-later
// The encoding of texts in files: UTF-8, and Windows-1252 where the bytes are no UTF-8.
#include "files/value_reader.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

std::string Text_Of(const std::string& bytes) {
    ValueReader file("\"" + bytes + "\"\r\n");
    std::string text;
    file.Read(text);
    return text;
}

TEST(TextOfFile, KeepsValidUtf8) {
    for (const char* text :
         {"crank", "Kurbel \xC3\xBC", "\xE2\x82\xAC 5", "\xF0\x9F\x94\xA7", "\xDF\xBF\xE0\xA0\x80",
          "\xED\x9F\xBF\xEE\x80\x80", "\xF4\x8F\xBF\xBF", "\xC2\x80"})
        EXPECT_EQ(Text_Of(text), text);
}

TEST(TextOfFile, TakesOtherBytesAsWindows1252) {
    const struct {
        const char *bytes, *text;
    } cases[] = {
        {"M\xFCller", "M\xC3\xBCller"},                // u with dots
        {"\xE9t\xE9", "\xC3\xA9t\xC3\xA9"},            // e with acute
        {"\x80 5", "\xE2\x82\xAC 5"},                  // Euro sign
        {"\x93so\x94", "\xE2\x80\x9Cso\xE2\x80\x9D"},  // typographic quotes
        {"90\xB0", "90\xC2\xB0"},                      // degree sign
        {"\x8A\x9F", "\xC5\xA0\xC5\xB8"},              // S with caron, Y with dots
        {"\x99\x83", "\xE2\x84\xA2\xC6\x92"},          // trade mark, florin
        {"\xA0\xFF", "\xC2\xA0\xC3\xBF"},              // no-break space, y with dots
        {"\x81\x9D", "\xC2\x81\xC2\x9D"},              // unused there: the code points themselves
    };
    for (const auto& [bytes, text] : cases) EXPECT_EQ(Text_Of(bytes), text) << bytes;
}

TEST(TextOfFile, TakesEachBadByteOfAMixedTextAlone) {
    EXPECT_EQ(Text_Of("\xC3\xBC\xFC"), "\xC3\xBC\xC3\xBC");
    EXPECT_EQ(Text_Of("\xFC\xE2\x82\xAC\xE9"), "\xC3\xBC\xE2\x82\xAC\xC3\xA9");
}

TEST(TextOfFile, TakesBrokenOverlongAndForbiddenSequencesByteByByte) {
    const struct {
        const char *bytes, *text;
    } cases[] = {
        {"\xE2\x82", "\xC3\xA2\xE2\x80\x9A"},                              // cut
        {"\xE2\x82x", "\xC3\xA2\xE2\x80\x9Ax"},                            // cut within a text
        {"\xC0\xAF", "\xC3\x80\xC2\xAF"},                                  // overlong
        {"\xE0\x9F\xBF", "\xC3\xA0\xC5\xB8\xC2\xBF"},                      // overlong
        {"\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xE2\x82\xAC"},                  // half of a surrogate pair
        {"\xF4\x90\x80\x80", "\xC3\xB4\xC2\x90\xE2\x82\xAC\xE2\x82\xAC"},  // beyond the last code point
        {"\xBF", "\xC2\xBF"},                                              // a continuation alone
    };
    for (const auto& [bytes, text] : cases) EXPECT_EQ(Text_Of(bytes), text) << bytes;
}

TEST(TextOfFile, AppliesToTextsWithoutQuotesToo) {
    ValueReader file("M\xFCller\r\n");
    std::string text;
    file.Read(text);
    EXPECT_EQ(text, "M\xC3\xBCller");
}

TEST(TextOfFile, SkipsAByteOrderMarkAtTheStartAlone) {
    ValueReader file("\xEF\xBB\xBF\"a\"\r\n\"\xEF\xBB\xBF\"\r\n");
    std::string first, second;
    EXPECT_EQ(file.Line(), 1U);
    file.Read(first);
    file.Read(second);
    EXPECT_EQ(first, "a");
    EXPECT_EQ(second, "\xEF\xBB\xBF");
}

}  // namespace
}  // namespace kervol
