// SPDX-License-Identifier: GPL-3.0-or-later
// Values of positional files: where a piece ends, what counts as a number, a flag or a text.
#include "files/value_reader.h"

#include <cmath>
#include <limits>

#include "core/fault.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

/// Fault number that the body raises, 0 for none.
template <class Body>
std::int32_t Fault_Of(const Body& body) {
    try {
        body();
        return 0;
    } catch (const Fault& fault) {
        return fault.number;
    }
}

/// Reads one value of the type from the content, which must succeed.
template <class T>
T Read_One(const std::string& content) {
    ValueReader file(content);
    T value{};
    file.Read(value);
    return value;
}

/// Fault of reading one value of the type; the target must then keep its value.
template <class T>
std::int32_t Fault_Of_Reading(const std::string& content, T kept) {
    ValueReader file(content);
    T value = kept;
    const std::int32_t number = Fault_Of([&] { file.Read(value); });
    if (number != 0) {
        EXPECT_EQ(value, kept) << content;
    }
    return number;
}

TEST(ValueReader, TakesTextInQuotes) {
    const struct {
        std::string content, text;
    } cases[] = {
        {"\"crank\"\r\n", "crank"},
        {"\"\"\r\n", ""},
        {"\"a, b\"\r\n", "a, b"},
        {"\"two\r\nlines\"\r\n", "two\r\nlines"},
        {"\" blanks kept \"", " blanks kept "},
        {"  \t\"blanks before\"", "blanks before"},
        {"\"#TRUE#\"", "#TRUE#"},
        {"\"tail\" dropped\r\n", "tail"},
        {"\"never closed", "never closed"},
        {"\"", ""},
    };
    for (const auto& [content, text] : cases) EXPECT_EQ(Read_One<std::string>(content), text) << content;
}

TEST(ValueReader, TakesTextWithoutQuotesUpToTheNextCommaOrLineEnd) {
    const struct {
        std::string content, text;
    } cases[] = {
        {"crank\r\n", "crank"},
        {"crank,3", "crank"},
        {"two words  \t\r\n", "two words"},
        {"  before\n", "before"},
        {"a \"quote\" within\r", "a \"quote\" within"},
        {"12.5\r\n", "12.5"},
        {"no end", "no end"},
        {",next", ""},
        {"\r\n", ""},
    };
    for (const auto& [content, text] : cases) EXPECT_EQ(Read_One<std::string>(content), text) << content;
}

TEST(ValueReader, DropsWhatStandsBehindAClosingQuoteUpToTheNextSeparator) {
    ValueReader file("\"a\"b \"c\", \"d\" e\r\n5");
    std::string first, second;
    float third = 0;
    file.Read(first);
    file.Read(second);
    file.Read(third);
    EXPECT_EQ(first, "a");
    EXPECT_EQ(second, "d");
    EXPECT_EQ(third, 5);
    EXPECT_TRUE(file.At_End());
}

TEST(ValueReader, ATextThatIsNeverClosedRunsToTheNextQuote) {
    ValueReader file("\"title\r\n7\r\n\"name\"\r\n8\r\n");
    std::string text;
    float number = 0;
    file.Read(text);
    EXPECT_EQ(text, "title\r\n7\r\n");
    file.Read(number);  // what stood behind the next quote is dropped with it
    EXPECT_EQ(number, 8);
}

TEST(ValueReader, EndsLinesAtCrLfLfAndCrAlike) {
    for (const std::string& content : {std::string("1\r\n\"x\"\r\n\r\n4\r\n"), std::string("1\n\"x\"\n\n4\n"),
                                       std::string("1\r\"x\"\r\r4\r"), std::string("1\r\n\"x\"\r\n\n4")}) {
        ValueReader file(content);
        float first = 0, fourth = 0;
        std::string second, third = "?";
        file.Read(first);
        file.Read(second);
        file.Read(third);
        file.Read(fourth);
        EXPECT_EQ(first, 1) << content;
        EXPECT_EQ(second, "x") << content;
        EXPECT_EQ(third, "") << content;
        EXPECT_EQ(fourth, 4) << content;
        EXPECT_TRUE(file.At_End()) << content;
    }
}

TEST(ValueReader, ReadsARowTheSameOnOneLineOrOnThree) {
    for (const std::string& content :
         {std::string("1.5,-2,3E-05\r\n"), std::string("1.5\r\n-2\r\n3E-05\r\n"),
          std::string("1.5, -2 ,3E-05"), std::string(" 1.5 -2\t3E-05 "), std::string("1.5 ,\t-2\n 3E-05")}) {
        ValueReader file(content);
        float a = 0, b = 0, c = 0;
        file.Read(a);
        file.Read(b);
        file.Read(c);
        EXPECT_EQ(a, 1.5F) << content;
        EXPECT_EQ(b, -2.0F) << content;
        EXPECT_EQ(c, 3E-05F) << content;
        EXPECT_TRUE(file.At_End()) << content;
    }
}

TEST(ValueReader, TakesDecimalNumbers) {
    const struct {
        const char* text;
        float value;
    } cases[] = {
        {"9.375", 9.375F},
        {"360", 360},
        {".05", 0.05F},
        {"0.05", 0.05F},
        {"-.5", -0.5F},
        {"+5", 5},
        {"+.5", 0.5F},
        {"5.", 5},
        {"-0", 0},
        {"007", 7},
        {"1.5E-03", 1.5E-3F},
        {"1.5e+3", 1500},
        {"2E7", 2E7F},
        {"+1E+2", 100},
        {"16777217", 16777216},
        {"3.4028235E+38", std::numeric_limits<float>::max()},
        {"1.1754944E-38", std::numeric_limits<float>::min()},
        {"1E-45", std::numeric_limits<float>::denorm_min()},
    };
    for (const auto& [text, value] : cases) EXPECT_EQ(Read_One<float>(text), value) << text;
    EXPECT_TRUE(std::signbit(Read_One<float>("-0")));
}

TEST(ValueReader, TakesTextWhereANumberBelongsForATypeMismatch) {
    for (const char* text :
         {"nan",   "NaN", "inf",  "-inf",   "infinity", "0x10",  "0X1P3", "&H10", "12abc",       "1.5E",
          "1.5E+", "1D5", "1.5F", "--5",    "+-5",      "+",     "-",     ".",    "E5",          ".E5",
          "\"5\"", "5\"", "abc",  "#TRUE#", "1;2",      "1.2.3", "1/2",   "5-",   "\xEF\xBC\x95"}) {
        const std::string content = std::string(text) + "\r\n";
        EXPECT_EQ(Fault_Of_Reading<float>(content, 77), 13) << text;
        EXPECT_EQ(Fault_Of_Reading<std::int16_t>(content, 77), 13) << text;
        EXPECT_EQ(Fault_Of_Reading<std::int32_t>(content, 77), 13) << text;
    }
}

TEST(ValueReader, ReadsDigitGroupsAsNumbersOfTheirOwn) {
    ValueReader file("1,234.5\r\n");
    float first = 0, second = 0;
    file.Read(first);
    file.Read(second);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 234.5F);
}

TEST(ValueReader, TakesAnEmptyPieceForNoNumber) {
    for (const std::string& content :
         {std::string("\r\n5"), std::string(",5"), std::string(" \t\n5"), std::string("\r5")}) {
        EXPECT_EQ(Fault_Of_Reading<float>(content, 77), 13) << content;
        EXPECT_EQ(Fault_Of_Reading<std::int16_t>(content, 77), 13) << content;
        EXPECT_EQ(Fault_Of_Reading<bool>(content, true), 13) << content;
    }
}

TEST(ValueReader, OverflowsBeyondSinglePrecision) {
    for (const char* text : {"1E+39", "-1E+39", "3.4028236E+38", "1E+400", "1E+99999999999999999999",
                             "100000000000000000000000000000000000000000"})
        EXPECT_EQ(Fault_Of_Reading<float>(text, 77), 6) << text;
}

TEST(ValueReader, RoundsWhatIsTooSmallForSinglePrecisionToZero) {
    for (const char* text :
         {"1E-46", "-1E-46", "1E-400", "0.00000000000000000000000000000000000000000000000001",
          "1E-99999999999999999999", "0E+999"})
        EXPECT_EQ(Read_One<float>(text), 0.0F) << text;
}

TEST(ValueReader, RoundsADecimalToAnIntegerAHalfToTheEvenNeighbour) {
    const struct {
        const char* text;
        std::int16_t value;
    } cases[] = {
        {"3", 3},         {"-1", -1},         {"+4", 4},          {"0.5", 0},
        {"1.5", 2},       {"2.5", 2},         {"-0.5", 0},        {"-1.5", -2},
        {"-2.5", -2},     {"2.4999", 2},      {"2.5001", 3},      {"1E2", 100},
        {"32767", 32767}, {"-32768", -32768}, {"32767.4", 32767}, {"-32768.5", -32768},
    };
    for (const auto& [text, value] : cases) {
        EXPECT_EQ(Read_One<std::int16_t>(text), value) << text;
        EXPECT_EQ(Read_One<std::int32_t>(text), value) << text;
    }
}

TEST(ValueReader, OverflowsBeyondTheWidthOfAnInteger) {
    for (const char* text : {"32768", "-32769", "32767.5", "99999", "1E+39", "1E+400", "-1E+400"})
        EXPECT_EQ(Fault_Of_Reading<std::int16_t>(text, 77), 6) << text;
    for (const char* text : {"2147483648", "-2147483649", "2147483647.5", "1E+39", "1E+400"})
        EXPECT_EQ(Fault_Of_Reading<std::int32_t>(text, 77), 6) << text;
    EXPECT_EQ(Read_One<std::int32_t>("2147483647"), 2147483647);
    EXPECT_EQ(Read_One<std::int32_t>("-2147483648"), std::numeric_limits<std::int32_t>::min());
}

TEST(ValueReader, TakesTwoFlagsAndNothingElse) {
    EXPECT_TRUE(Read_One<bool>("#TRUE#\r\n"));
    EXPECT_FALSE(Read_One<bool>("#FALSE#\r\n"));
    EXPECT_TRUE(Read_One<bool>(" #TRUE# \r\n"));
    for (const char* text : {"#true#", "#True#", "TRUE", "#TRUE", "TRUE#", "\"#TRUE#\"", "1", "-1", "0",
                             "#TRUE##", "#TRUE# x", "# TRUE#", "#YES#"}) {
        EXPECT_EQ(Fault_Of_Reading<bool>(text, true), 13) << text;
        EXPECT_EQ(Fault_Of_Reading<bool>(text, false), 13) << text;
    }
}

TEST(ValueReader, ReadingPastTheEndIsAFaultOfItsOwn) {
    for (const std::string& content : {std::string(), std::string("  "), std::string("\xEF\xBB\xBF")}) {
        EXPECT_EQ(Fault_Of_Reading<std::string>(content, "kept"), 62);
        EXPECT_EQ(Fault_Of_Reading<float>(content, 77), 62);
        EXPECT_EQ(Fault_Of_Reading<std::int16_t>(content, 77), 62);
        EXPECT_EQ(Fault_Of_Reading<std::int32_t>(content, 77), 62);
        EXPECT_EQ(Fault_Of_Reading<bool>(content, true), 62);
        ValueReader file(content);
        EXPECT_EQ(Fault_Of([&] { file.Skip(1); }), 62);
    }
}

TEST(ValueReader, TheEndIsWhereNoByteIsLeft) {
    EXPECT_TRUE(ValueReader("").At_End());
    EXPECT_TRUE(ValueReader("\xEF\xBB\xBF").At_End());
    EXPECT_FALSE(ValueReader("\r\n").At_End());

    ValueReader file("1\r\n\r\n");
    float value = 0;
    file.Read(value);
    EXPECT_FALSE(file.At_End()) << "an empty line is left";
    std::string text = "?";
    file.Read(text);
    EXPECT_EQ(text, "");
    EXPECT_TRUE(file.At_End());
}

TEST(ValueReader, SkipsValuesOfAnyKind) {
    ValueReader file("\"a, b\"\r\n12.5,#TRUE#\r\n\r\nbare\r\n5");
    file.Skip(5);
    float value = 0;
    file.Read(value);
    EXPECT_EQ(value, 5);
}

TEST(ValueReader, TellsTheLineOfTheNextValue) {
    for (const std::string& end : {std::string("\r\n"), std::string("\n"), std::string("\r")}) {
        ValueReader file("\"a\"" + end + "1,2" + end + end + "\"two" + end + "lines\"" + end + "5");
        std::string text;
        float number = 0;
        EXPECT_EQ(file.Line(), 1U);
        file.Read(text);
        EXPECT_EQ(file.Line(), 2U);
        file.Read(number);
        EXPECT_EQ(file.Line(), 2U);
        file.Read(number);
        EXPECT_EQ(file.Line(), 3U);
        file.Read(text);
        EXPECT_EQ(file.Line(), 4U);
        file.Read(text);
        EXPECT_EQ(file.Line(), 6U);
    }
}

TEST(ValueReader, TellsTheLineOfAPieceThatIsNotANumber) {
    ValueReader file("1\r\n2\r\nabc\r\n4\r\n");
    float number = 0;
    file.Read(number);
    file.Read(number);
    EXPECT_EQ(Fault_Of([&] { file.Read(number); }), 13);
    EXPECT_EQ(file.Line(), 3U);

    ValueReader empty("1\r\n\r\n3\r\n");
    empty.Read(number);
    EXPECT_EQ(Fault_Of([&] { empty.Read(number); }), 13);
    EXPECT_EQ(empty.Line(), 2U);
}

}  // namespace
}  // namespace kervol
