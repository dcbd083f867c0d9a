// SPDX-License-Identifier: GPL-3.0-or-later
// Base names of files: separators, the extension of exactly three characters, names beyond ASCII.
#include "core/path_text.h"

#include <cstddef>
#include <string_view>

#include <gtest/gtest.h>

namespace kervol {
namespace {

struct PathName {
    std::string_view path, name;
};

template <std::size_t N>
void Expect_Names(const PathName (&cases)[N]) {
    for (const auto& [path, name] : cases) EXPECT_EQ(StripFilename(path), name) << path;
}

TEST(StripFilename, LeavesTheNameBehindTheLastSeparator) {
    Expect_Names({
        {"C:\\models\\crank.kvl", "crank"},
        {"\\crank.kvl", "crank"},
        {"/home/user/models/crank.kvl", "crank"},
        {"/crank.out", "crank"},
        {"C:\\models/crank.kvl", "crank"},
        {"/models\\crank.kvl", "crank"},
        {"//server\\share\\\\crank.trq", "crank"},
        {"folder/\\crank.sva", "crank"},
    });
}

TEST(StripFilename, LeavesAWholeNameWithoutFolder) {
    Expect_Names({{"crank.kvl", "crank"}, {"C:crank.kvl", "C:crank"}, {"my crank 2.kvl", "my crank 2"}});
}

TEST(StripFilename, OfAnExtensionThatIsNotOfThreeCharactersIsEmpty) {
    Expect_Names({
        {"C:\\models\\crank", ""},
        {"crank", ""},
        {"C:\\models\\crank.data", ""},
        {"/models/crank.data", ""},
        {"crank.kv", ""},
        {"crank.", ""},
        {"crank.kvl~", ""},
    });
}

TEST(StripFilename, OfATextThatIsTooShortIsEmpty) {
    Expect_Names({{"", ""}, {".", ""}, {"a", ""}, {"kvl", ""}, {".kv", ""}, {"....", ""}});
}

TEST(StripFilename, MayLeaveNothingOfAStem) {
    Expect_Names({{".kvl", ""}, {"C:\\models\\.kvl", ""}, {"/models/.kvl", ""}});
}

TEST(StripFilename, LooksAtTheFourthCharacterFromTheEndAlone) {
    Expect_Names({
        {"crank.v2.kvl", "crank.v2"},
        {"a.b.c.kvl", "a.b.c"},
        {"crank..kvl", "crank."},
        {"models.old\\crank.kvl", "crank"},
        {"C:\\models.kvl\\crank", ""},
        // A point that is no extension's is taken as one.
        {"C:\\models.b\\c", "models"},
        {"crank.a.b", "crank"},
    });
}

TEST(StripFilename, CountsCharactersAndNotBytes) {
    Expect_Names({
        {"/home/j\u00F6rg/k\u00FCrbel.kvl", "k\u00FCrbel"},
        {"\u6A5F\u69CB.kvl", "\u6A5F\u69CB"},
        {"crank.\u00E4\u00F6\u00FC", "crank"},
        {"crank.\u6A5F\u69CB\u56F3", "crank"},
        {"crank.\U0001F600ab", "crank"},
        {"crank.\u00E4\u00F6", ""},
        {"crank.\u00E4b", ""},
        {"\u00E9.kvl", "\u00E9"},
        {"\U0001F600\\\U0001F600.kvl", "\U0001F600"},
        {"\u00E9", ""},
        {"\u00E4\u00F6\u00FC", ""},
    });
}

// Continuation bytes alone are no characters; the result matters less than that it ends.
TEST(StripFilename, EndsOnBytesThatAreNoText) {
    EXPECT_EQ(StripFilename("\x80\x80\x80\x80"), "");
    EXPECT_EQ(StripFilename(std::string_view("a\xFF.kvl")), "a\xFF");
}

}  // namespace
}  // namespace kervol
