// SPDX-License-Identifier: GPL-3.0-or-later
// JSON as text: nesting, escapes, numbers.
#include "batch/json_writer.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace kervol {
namespace {

TEST(JsonWriter, NestsObjectsAndListsWithCommasBetween) {
    JsonWriter json;
    json.Begin_Object();
    json.Member("a", 1);
    json.Key("b");
    json.Begin_List();
    json.Value(true);
    json.Begin_Object();
    json.End_Object();
    json.Begin_List();
    json.End_List();
    json.Value("x");
    json.End_List();
    json.Member("c", false);
    json.End_Object();
    EXPECT_EQ(json.Text(), "{\"a\":1,\"b\":[true,{},[],\"x\"],\"c\":false}");
}

TEST(JsonWriter, EscapesWhatJsonDoesNotTake) {
    JsonWriter json;
    std::string text = "\"\\/\b\f\n\r\t";
    for (char c = 0; c < 0x20; ++c) text += c;
    text += "\x7F M\xC3\xBCller \xF0\x9F\x94\xA7";
    json.Value(text);
    EXPECT_EQ(nlohmann::json::parse(json.Text()).get<std::string>(), text);
}

TEST(JsonWriter, PutsNumbersAsJsonTakesThem) {
    const struct {
        float value;
        const char* text;
    } cases[] = {{0.05F, "0.05"}, {-5, "-5"}, {1.5E-5F, "1.5E-05"}, {2E7F, "2E+07"}, {0.1F + 0.2F, "0.3"}};
    for (const auto& [value, text] : cases) {
        JsonWriter json;
        json.Value(value);
        EXPECT_EQ(json.Text(), text);
        EXPECT_EQ(nlohmann::json::parse(json.Text()).get<float>(), value);
    }
}

TEST(JsonWriter, PutsATableAsNestedLists) {
    Table<float, 2, 3> table;
    table(0, 1) = 1.5F;
    table(1, 2) = -2;
    JsonWriter json;
    json.Value(table);
    EXPECT_EQ(json.Text(), "[[0,1.5,0],[0,0,-2]]");
    Table<bool, 2> flags;
    flags(1) = true;
    JsonWriter more;
    more.Value(flags);
    EXPECT_EQ(more.Text(), "[false,true]");
}

}  // namespace
}  // namespace kervol
